#pragma once
// The library of ZIP archives, loaded by the first letter: it brings one of encryption along, which
// is a twelfth of all instructions of the window's start.
//
//   libzip().discard(archive);
//
// An ArchiveIllisible where this workstation has no such library.

#include <zip.h>

namespace hote {

// Its functions, by their names without "zip_".
struct LibZip {
  decltype(&zip_close) close;
  decltype(&zip_discard) discard;
  decltype(&zip_error_fini) error_fini;
  decltype(&zip_error_init) error_init;
  decltype(&zip_fclose) fclose;
  decltype(&zip_file_add) file_add;
  decltype(&zip_fopen_index) fopen_index;
  decltype(&zip_fread) fread;
  decltype(&zip_get_num_entries) get_num_entries;
  decltype(&zip_open_from_source) open_from_source;
  decltype(&zip_set_file_compression) set_file_compression;
  decltype(&zip_source_buffer) source_buffer;
  decltype(&zip_source_buffer_create) source_buffer_create;
  decltype(&zip_source_close) source_close;
  decltype(&zip_source_free) source_free;
  decltype(&zip_source_keep) source_keep;
  decltype(&zip_source_open) source_open;
  decltype(&zip_source_read) source_read;
  decltype(&zip_source_stat) source_stat;
  decltype(&zip_stat_index) stat_index;
};

const LibZip& libzip();

}  // namespace hote
