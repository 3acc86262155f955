#pragma once
// Which log belongs to a data file. SQLite lays a log that it finds under the right name over
// whatever file stands there: a backup that was put over the file after a crash would be mixed with
// the writes that came after it. So the first page carries a mark, the salts (random numbers) of
// the log that was begun last over this very file. A log with other salts is another file's.
//
// The mark is written before the log that it names is begun, so a crash in between leaves the
// former log, all of it in the file by then, beside the new mark: the mark names both.

#include <array>
#include <cstdint>
#include <optional>

struct sqlite3_file;

namespace storage {

// A place of the first page that SQLite keeps for later versions of itself and leaves zero.
inline constexpr int kLieuMarque = 72;
inline constexpr int kOctetsMarque = 20;
using OctetsMarque = std::array<unsigned char, kOctetsMarque>;

inline constexpr int kOctetsSels = 8;
inline constexpr int kLieuSels = 16;  // in the log's header
using Sels = std::array<unsigned char, kOctetsSels>;

struct Marque {
  Sels journal{};
  Sels precedent{};

  // A file that no log was begun over since marks are laid: nothing is known of its log.
  bool Absente() const { return journal == Sels{}; }
  bool Admet(const Sels& sels) const {
    return Absente() || sels == journal || (precedent != Sels{} && sels == precedent);
  }
  bool operator==(const Marque&) const = default;
};

// The mark as it stands in a page, with its own checksum: the page's seal leaves it out.
OctetsMarque octetsDe(const Marque& marque);
// Nothing when the bytes are damaged.
std::optional<Marque> marqueDe(const OctetsMarque& octets);

// Of a file without pages yet, the absent mark. Nothing when it cannot be read or is damaged;
// another process may be writing it, so it is read again before it is called so.
std::optional<Marque> lireMarque(sqlite3_file* fichier);

// Both on the file as it is, without seals; a SQLite result code comes back. On return of the
// second the mark is on the disk.
int lireOctetsMarque(sqlite3_file* fichier, OctetsMarque& octets);
int poserMarque(sqlite3_file* fichier, const Marque& marque);
// A mark that no log bears: of a file that was copied, or made, whole.
Marque marqueNeuve();

}  // namespace storage
