#include "data/storage.h"

namespace data {

KeyRange KeyRange::Prefixe(std::string_view prefixe) {
  KeyRange cles;
  cles.debut = prefixe;
  // The first text after all that begin so: the last byte that can grow grows by one.
  std::string fin(prefixe);
  while (!fin.empty() && static_cast<unsigned char>(fin.back()) == 0xFF) fin.pop_back();
  if (fin.empty()) return cles;
  fin.back() = static_cast<char>(static_cast<unsigned char>(fin.back()) + 1);
  cles.fin = std::move(fin);
  cles.sansFin = false;
  return cles;
}

KeyRange KeyRange::Une(std::string_view cle) {
  KeyRange cles;
  cles.debut = cle;
  cles.fin = std::string(cle) + '\0';
  cles.sansFin = false;
  return cles;
}

bool KeyRange::EstUneCle() const {
  return !sansFin && fin.size() == debut.size() + 1 && fin.back() == '\0' && fin.starts_with(debut);
}

KeyRange KeyRange::Avec(const KeyRange& autre) const {
  KeyRange cles = *this;
  if (autre.debut > cles.debut) cles.debut = autre.debut;
  if (!autre.sansFin && (cles.sansFin || autre.fin < cles.fin)) {
    cles.fin = autre.fin;
    cles.sansFin = false;
  }
  return cles;
}

namespace {

thread_local Storage* enRoute = nullptr;

}  // namespace

Route::Route(Storage& storage) : storage_(storage), dehors_(enRoute) {
  storage_.DebuterRoute();
  enRoute = &storage_;
}

Route::~Route() {
  enRoute = dehors_;
  storage_.FinirRoute();
}

void Route::Interrompre() noexcept {
  if (enRoute != nullptr) enRoute->OublierRoute();
}

}  // namespace data
