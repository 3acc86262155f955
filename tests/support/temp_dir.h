#pragma once
// A scratch folder that goes, with all that it holds, when the object does.

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace support {

class TempDir {
 public:
  TempDir() {
    std::string modele = (std::filesystem::temp_directory_path() / "contrats-XXXXXX").string();
    if (mkdtemp(modele.data()) == nullptr) throw std::runtime_error("no scratch folder");
    dossier_ = modele;
  }
  ~TempDir() {
    std::error_code code;
    std::filesystem::remove_all(dossier_, code);
  }
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;

  const std::filesystem::path& Dossier() const { return dossier_; }
  // The path of a file in the folder; the file need not exist.
  std::string Chemin(const std::string& nom) const { return (dossier_ / nom).string(); }

 private:
  std::filesystem::path dossier_;
};

}  // namespace support
