#include "data/citem.h"

#include <algorithm>
#include <stdexcept>

#include "data/store_error.h"

namespace data {

namespace {

// The n-th piece (from 1) of `texte` between separators.
std::string_view piece(std::string_view texte, char sep, int n) {
  if (n < 1) return {};
  for (; n > 1; --n) {
    const auto fin = texte.find(sep);
    if (fin == std::string_view::npos) return {};
    texte.remove_prefix(fin + 1);
  }
  return texte.substr(0, texte.find(sep));
}

int count(std::string_view texte, char sep) {
  if (texte.empty()) return 0;
  return static_cast<int>(std::count(texte.begin(), texte.end(), sep)) + 1;
}

void cutEnd(std::string& texte, char sep) {
  const auto dernier = texte.find_last_not_of(sep);
  texte.erase(dernier == std::string::npos ? 0 : dernier + 1);
}

// Cuts empty ends of every value, then of the attribute.
std::string canonical(std::string_view attribut) {
  std::string resultat;
  if (attribut.find(SepSousValeur) == std::string_view::npos) {
    resultat = attribut;
  } else {
    resultat.reserve(attribut.size());
    for (std::size_t debut = 0; debut <= attribut.size();) {
      const auto fin = std::min(attribut.find(SepValeur, debut), attribut.size());
      std::string valeur(attribut.substr(debut, fin - debut));
      cutEnd(valeur, SepSousValeur);
      (resultat += valeur) += SepValeur;
      debut = fin + 1;
    }
  }
  cutEnd(resultat, SepValeur);
  return resultat;
}

struct Span {
  std::size_t debut;
  std::size_t longueur;
};

// Where the n-th piece of texte[zone] stands, adding the separators that it needs.
Span makePiece(std::string& texte, Span zone, char sep, int n) {
  std::size_t debut = zone.debut;
  std::size_t fin = zone.debut + zone.longueur;
  for (; n > 1; --n) {
    const auto trouve = texte.find(sep, debut);
    if (trouve != std::string::npos && trouve < fin) {
      debut = trouve + 1;
    } else {
      texte.insert(fin, 1, sep);
      debut = ++fin;
    }
  }
  const auto suite = texte.find(sep, debut);
  if (suite != std::string::npos && suite < fin) fin = suite;
  return {debut, fin - debut};
}

// Removes the n-th piece of texte[zone] with the separator after it. Without the last piece the
// zone may end in a separator, which the canonical form cuts.
void erasePiece(std::string& texte, Span zone, char sep, int n) {
  const std::string_view contenu = std::string_view(texte).substr(zone.debut, zone.longueur);
  if (n < 1 || n > count(contenu, sep)) return;
  const Span place = makePiece(texte, zone, sep, n);
  const bool suivie = place.debut + place.longueur < zone.debut + zone.longueur;
  texte.erase(place.debut, place.longueur + (suivie ? 1 : 0));
}

void refuse(std::string_view texte, std::string_view separateurs) {
  if (texte.find_first_of(separateurs) != std::string_view::npos) {
    throw std::invalid_argument(
        "CItem: a text set at one level holds a separator of that level or above");
  }
}

constexpr char surAttribut[] = {SepAttribut};
constexpr char surValeur[] = {SepAttribut, SepValeur};
constexpr char surSousValeur[] = {SepAttribut, SepValeur, SepSousValeur};

}  // namespace

CItem::CItem(std::shared_ptr<const Attache> attache, std::string cle, std::string_view texte)
    : attache_(std::move(attache)), cle_(std::move(cle)) {
  SetText(texte);
}

std::string CItem::Text() const {
  std::size_t longueur = 0;
  for (const auto& attribut : avant_) longueur += attribut.size() + 1;
  for (const auto& attribut : apres_) longueur += attribut.size() + 1;
  std::string resultat;
  resultat.reserve(longueur);
  for (const auto& attribut : avant_) (resultat += attribut) += SepAttribut;
  for (auto i = apres_.rbegin(); i != apres_.rend(); ++i) (resultat += *i) += SepAttribut;
  if (!resultat.empty()) resultat.pop_back();
  return resultat;
}

// Every record read comes through here: most attributes are empty or one plain value, and cost no
// second look.
void CItem::SetText(std::string_view texte) {
  // Built aside: `texte` may be a view of this very item.
  std::vector<std::string> attributs;
  attributs.reserve(static_cast<std::size_t>(count(texte, SepAttribut)));
  const bool sousValeurs = texte.find(SepSousValeur) != std::string_view::npos;
  for (std::size_t i = 0; i < texte.size(); ++i) {
    if (texte[i] == SepAttribut) {
      attributs.emplace_back();
      continue;
    }
    const auto fin = std::min(texte.find(SepAttribut, i), texte.size());
    if (sousValeurs || texte[fin - 1] == SepValeur) {
      attributs.push_back(canonical(texte.substr(i, fin - i)));
    } else {
      attributs.emplace_back(texte.data() + i, fin - i);
    }
    i = fin;
  }
  avant_ = std::move(attributs);
  apres_.clear();
  Couper();
}

const std::string* CItem::Lieu(int a) const {
  if (a < 1 || a > DCount()) return nullptr;
  const auto i = static_cast<std::size_t>(a - 1);
  return i < avant_.size() ? &avant_[i] : &apres_[apres_.size() - 1 - (i - avant_.size())];
}

std::string_view CItem::Vue(int a) const {
  if (a == 0) return cle_;
  const std::string* lieu = Lieu(a);
  return lieu == nullptr ? std::string_view() : std::string_view(*lieu);
}

std::string_view CItem::Vue(int a, int v) const {
  if (a == 0) return v == 1 ? std::string_view(cle_) : std::string_view();
  return piece(Vue(a), SepValeur, v);
}

std::string_view CItem::Vue(int a, int v, int s) const {
  return piece(Vue(a, v), SepSousValeur, s);
}

int CItem::DCount(int a) const {
  return count(Vue(a), SepValeur);
}

std::string& CItem::Place(int a) {
  if (a > DCount()) {
    Ouvrir(DCount());
    avant_.resize(static_cast<std::size_t>(a));
  }
  const auto i = static_cast<std::size_t>(a - 1);
  return i < avant_.size() ? avant_[i] : apres_[apres_.size() - 1 - (i - avant_.size())];
}

// Moves the gap so that `position` attributes stand before it.
void CItem::Ouvrir(int position) {
  const auto cible = static_cast<std::size_t>(position);
  while (avant_.size() > cible) {
    apres_.push_back(std::move(avant_.back()));
    avant_.pop_back();
  }
  while (avant_.size() < cible && !apres_.empty()) {
    avant_.push_back(std::move(apres_.back()));
    apres_.pop_back();
  }
}

// Cuts empty attributes from the end.
void CItem::Couper() {
  std::size_t vides = 0;
  while (vides < apres_.size() && apres_[vides].empty()) ++vides;
  if (vides > 0) apres_.erase(apres_.begin(), apres_.begin() + static_cast<std::ptrdiff_t>(vides));
  if (!apres_.empty()) return;
  while (!avant_.empty() && avant_.back().empty()) avant_.pop_back();
}

void CItem::Set(int a, std::string_view texte) {
  refuse(texte, {surAttribut, sizeof surAttribut});
  if (a == -1) a = DCount() + 1;
  if (a < 1 || (texte.empty() && a > DCount())) return;
  std::string nouveau = canonical(texte);
  Place(a) = std::move(nouveau);
  Couper();
}

void CItem::Set(int a, int v, std::string_view texte) {
  refuse(texte, {surValeur, sizeof surValeur});
  if (a < 1 || v < 1 || (texte.empty() && Vue(a, v).empty())) return;
  const std::string copie(texte);
  std::string& attribut = Place(a);
  const Span place = makePiece(attribut, {0, attribut.size()}, SepValeur, v);
  attribut.replace(place.debut, place.longueur, copie);
  attribut = canonical(attribut);
  Couper();
}

void CItem::Set(int a, int v, int s, std::string_view texte) {
  refuse(texte, {surSousValeur, sizeof surSousValeur});
  if (a < 1 || v < 1 || s < 1 || (texte.empty() && Vue(a, v, s).empty())) return;
  const std::string copie(texte);
  std::string& attribut = Place(a);
  const Span valeur = makePiece(attribut, {0, attribut.size()}, SepValeur, v);
  const Span place = makePiece(attribut, valeur, SepSousValeur, s);
  attribut.replace(place.debut, place.longueur, copie);
  attribut = canonical(attribut);
  Couper();
}

void CItem::Insert(int a, std::string_view texte) {
  if (a < 1) return;
  if (a > DCount()) return Set(a, texte);
  refuse(texte, {surAttribut, sizeof surAttribut});
  std::string nouveau = canonical(texte);
  Ouvrir(a - 1);
  avant_.push_back(std::move(nouveau));
}

void CItem::Insert(int a, int v, std::string_view texte) {
  if (a < 1 || v < 1) return;
  if (v > DCount(a)) return Set(a, v, texte);
  refuse(texte, {surValeur, sizeof surValeur});
  const std::string copie(texte);
  std::string& attribut = Place(a);
  const Span place = makePiece(attribut, {0, attribut.size()}, SepValeur, v);
  attribut.insert(place.debut, copie + SepValeur);
  attribut = canonical(attribut);
}

void CItem::Insert(int a, int v, int s, std::string_view texte) {
  if (a < 1 || v < 1 || s < 1) return;
  if (s > count(Vue(a, v), SepSousValeur)) return Set(a, v, s, texte);
  refuse(texte, {surSousValeur, sizeof surSousValeur});
  const std::string copie(texte);
  std::string& attribut = Place(a);
  const Span valeur = makePiece(attribut, {0, attribut.size()}, SepValeur, v);
  const Span place = makePiece(attribut, valeur, SepSousValeur, s);
  attribut.insert(place.debut, copie + SepSousValeur);
  attribut = canonical(attribut);
}

void CItem::Delete(int a) {
  if (a < 1 || a > DCount()) return;
  Ouvrir(a);
  avant_.pop_back();
  Couper();
}

void CItem::Delete(int a, int v) {
  if (a < 1 || v < 1 || v > DCount(a)) return;
  std::string& attribut = Place(a);
  erasePiece(attribut, {0, attribut.size()}, SepValeur, v);
  attribut = canonical(attribut);
  Couper();
}

void CItem::Delete(int a, int v, int s) {
  if (a < 1 || v < 1 || s < 1 || Vue(a, v, s).data() == nullptr) return;
  std::string& attribut = Place(a);
  const Span valeur = makePiece(attribut, {0, attribut.size()}, SepValeur, v);
  erasePiece(attribut, valeur, SepSousValeur, s);
  attribut = canonical(attribut);
  Couper();
}

std::string CItem::GetText(int a, int v, int s) const {
  if (a < 0) return Text();
  if (v < 1) return (*this)(a);
  return s < 1 ? (*this)(a, v) : (*this)(a, v, s);
}

void CItem::SetField(int a, int v, int s, std::string_view texte) {
  if (a < 0) return SetText(texte);
  if (v < 1) return Set(a, texte);
  return s < 1 ? Set(a, v, texte) : Set(a, v, s, texte);
}

void CItem::DBWrite() const {
  if (attache_ == nullptr) {
    throw StoreError(NumeroErreur::NonAttache,
                     "Cet article n'appartient à aucun fichier et ne peut pas être écrit.");
  }
  attache_->Ecrire(cle_, Text());
}

void CItem::DBWriteU() const {
  DBWrite();
}

}  // namespace data
