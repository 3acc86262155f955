#include "base/article_json.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <nlohmann/json.hpp>

#include "base/caracteres.h"
#include "data/citem.h"
#include "data/storage.h"
#include "data/store_error.h"
#include "data/texte.h"

namespace base {
namespace {

using Json = nlohmann::json;

constexpr std::size_t Profondeur = 3;  // attributes, values, subvalues
constexpr std::array<char, Profondeur> Separateurs = {data::SepAttribut, data::SepValeur,
                                                      data::SepSousValeur};

enum Membre : std::size_t { Fichier, Cle, Item, AucunMembre };
constexpr std::array<std::string_view, 3> NomsMembres = {"fichier", "cle", "item"};

// Builds the canonical text form from texts that come with their place. Separators are written only
// when a text that is not empty follows them, so that no level has an empty end.
class Assemblage {
 public:
  void Entre() { places_[profondeur_++] = 0; }
  void Sort() { --profondeur_; }
  std::size_t ProfondeurCourante() const { return profondeur_; }
  void Suivant() { ++places_[profondeur_ - 1]; }

  void Ajoute(std::string_view texte) {
    if (texte.empty()) return;
    for (std::size_t n = 0; n < Profondeur; ++n) {
      const std::size_t place = n < profondeur_ ? places_[n] : 1;
      if (place == ecrites_[n]) continue;
      texte_.append(place - ecrites_[n], Separateurs[n]);
      ecrites_[n] = place;
      std::fill(ecrites_.begin() + static_cast<std::ptrdiff_t>(n) + 1, ecrites_.end(), 1);
    }
    texte_ += texte;
  }
  std::string Prend() { return std::move(texte_); }

 private:
  std::size_t profondeur_ = 0;
  std::array<std::size_t, Profondeur> places_ = {0, 0, 0};   // of the element being read, from 1
  std::array<std::size_t, Profondeur> ecrites_ = {1, 1, 1};  // where the end of texte_ stands
  std::string texte_;
};

// The parser's input, which tells how far the parser has read.
class Curseur {
 public:
  using iterator_category = std::input_iterator_tag;
  using value_type = char;
  using difference_type = std::ptrdiff_t;
  using pointer = const char*;
  using reference = const char&;

  Curseur(const char* place, const char** lu) : place_(place), lu_(lu) {}
  reference operator*() const { return *place_; }
  Curseur& operator++() {
    *lu_ = ++place_;
    return *this;
  }
  Curseur operator++(int) {
    Curseur avant = *this;
    ++*this;
    return avant;
  }
  bool operator==(const Curseur& autre) const { return place_ == autre.place_; }
  bool operator!=(const Curseur& autre) const { return place_ != autre.place_; }

 private:
  const char* place_;
  const char** lu_;
};

// Takes the parser's tokens and knows, for each, where it begins. Every handler that refuses
// throws.
class Lecture : public nlohmann::json_sax<Json> {
 public:
  Lecture(std::string_view json, Membre racine)
      : json_(json), lu_(json.data()), finJeton_(json.data()), membre_(racine), racine_(racine) {}

  void Analyse() {
    if (const auto interdit = interditDansJson(json_)) Refuse(interdit->position, interdit->raison);
    const char* const fin = json_.data() + json_.size();
    Json::sax_parse(Curseur(json_.data(), &lu_), Curseur(fin, &lu_), this);
  }

  Enregistrement Resultat() {
    return {std::move(textes_[Fichier]), std::move(textes_[Cle]), assemblage_.Prend()};
  }

  bool null() override { return RefuseJeton(SansPlace); }
  bool boolean(bool) override { return RefuseJeton(SansPlace); }
  bool number_integer(number_integer_t) override { return RefuseJeton(Nombre); }
  bool number_unsigned(number_unsigned_t) override { return RefuseJeton(Nombre); }
  bool number_float(number_float_t, const string_t&) override { return RefuseJeton(Nombre); }
  bool binary(binary_t&) override { return RefuseJeton(SansPlace); }

  bool string(string_t& texte) override {
    Jeton();
    if (assemblage_.ProfondeurCourante() > 0) {
      assemblage_.Suivant();
      assemblage_.Ajoute(texte);
    } else if (membre_ == Fichier || membre_ == Cle) {
      textes_[membre_] = std::move(texte);
    } else {
      RefuseForme();
    }
    return true;
  }

  bool start_array(std::size_t) override {
    Jeton();
    if (membre_ != Item) RefuseForme();
    if (assemblage_.ProfondeurCourante() == Profondeur) {
      Refuse(debutJeton_, "tableau trop profond : une sous-valeur est un texte");
    }
    if (assemblage_.ProfondeurCourante() > 0) assemblage_.Suivant();
    assemblage_.Entre();
    return true;
  }

  bool end_array() override {
    Jeton();
    assemblage_.Sort();
    return true;
  }

  bool start_object(std::size_t) override {
    Jeton();
    if (racine_ == Item || objet_) RefuseForme();
    objet_ = true;
    return true;
  }

  bool key(string_t& nom) override {
    Jeton();
    const auto place = std::find(NomsMembres.begin(), NomsMembres.end(), nom);
    if (place == NomsMembres.end()) {
      Refuse(debutJeton_,
             "membre inconnu « " + nom + " » ; seuls « fichier », « cle » et « item » ont un sens");
    }
    membre_ = static_cast<Membre>(place - NomsMembres.begin());
    if (vus_[membre_]) Refuse(debutJeton_, "membre « " + nom + " » donné deux fois");
    vus_[membre_] = true;
    places_[membre_] = PlaceApresDeuxPoints();
    return true;
  }

  bool end_object() override {
    Jeton();
    for (std::size_t m = 0; m < NomsMembres.size(); ++m) {
      if (!vus_[m]) {
        Refuse(debutJeton_, "il manque le membre « " + std::string(NomsMembres[m]) + " »");
      }
    }
    VerifieNoms();
    membre_ = AucunMembre;
    return true;
  }

  bool parse_error(std::size_t, const std::string&, const Json::exception&) override {
    const std::size_t place = PlaceFautive();
    if (place == json_.size()) Refuse(place, "JSON incomplet : le texte s'arrête avant la fin");
    Refuse(place, "JSON invalide à partir d'ici");
    return false;
  }

 private:
  static constexpr std::string_view Nombre =
      "nombre au lieu d'un texte : mettez-le entre guillemets";
  static constexpr std::string_view SansPlace =
      "« true », « false » et « null » ne sont pas des textes ; un texte vide s'écrit \"\"";

  [[noreturn]] void Refuse(std::size_t position, std::string_view raison) const {
    const std::string_view avant = json_.substr(0, position);
    const auto ligne = 1 + std::count(avant.begin(), avant.end(), '\n');
    const std::size_t debut = avant.rfind('\n') + 1;  // npos + 1 is 0
    throw RefusJson(ligne, colonneDe(json_.substr(debut), position - debut), std::string(raison));
  }

  bool RefuseJeton(std::string_view raison) {
    Jeton();
    const bool texteAttendu = membre_ == Fichier || membre_ == Cle;
    if (assemblage_.ProfondeurCourante() == 0 && !texteAttendu) RefuseForme();
    Refuse(debutJeton_, raison);
  }

  [[noreturn]] void RefuseForme() const {
    if (assemblage_.ProfondeurCourante() > 0) {
      Refuse(debutJeton_, "objet à l'intérieur d'un article : mettez un texte ou un tableau");
    }
    if (membre_ == Item)
      Refuse(debutJeton_, "un article est le tableau [\"…\",…] de ses attributs");
    if (membre_ == AucunMembre) {
      Refuse(debutJeton_,
             "un enregistrement est un objet {\"fichier\":\"…\",\"cle\":\"…\",\"item\":[…]}");
    }
    Refuse(debutJeton_, "« " + std::string(NomsMembres[membre_]) + " » doit être un texte");
  }

  void VerifieNoms() const {
    VerifieNom(Fichier, "0");  // a legal key: only the file name can be refused
    VerifieNom(Cle, textes_[Cle]);
  }
  void VerifieNom(Membre membre, std::string_view cle) const {
    try {
      data::VerifierEcriture(textes_[Fichier], cle, "");
    } catch (const data::StoreError& erreur) {
      Refuse(places_[membre], erreur.what());
    }
  }

  std::size_t Position(const char* place) const {
    return static_cast<std::size_t>(place - json_.data());
  }
  // Notes where the token just read begins and ends.
  void Jeton() {
    debutJeton_ = Position(ApresBlancs(finJeton_, " \t\r\n,:"));
    finJeton_ = lu_;
  }
  std::size_t PlaceApresDeuxPoints() const { return Position(ApresBlancs(finJeton_, " \t\r\n:")); }
  const char* ApresBlancs(const char* place, std::string_view blancs) const {
    const char* const fin = json_.data() + json_.size();
    while (place != fin && blancs.find(*place) != std::string_view::npos) ++place;
    return place;
  }
  // Where the token begins that the parser could not take; inside a string, the very character;
  // the end of the text when it is the end that comes too early.
  std::size_t PlaceFautive() const {
    constexpr std::string_view Blancs = " \t\r\n";
    const char* const fin = json_.data() + json_.size();
    const char* place = ApresBlancs(finJeton_, Blancs);
    if (place != fin && (*place == ',' || *place == ':')) {
      // One separator may stand before the token; it is passed once the parser has read beyond it.
      const char* const apres = ApresBlancs(place + 1, Blancs);
      if (place + 1 < lu_ || apres == fin) place = apres;
    }
    const bool texteOuvert = place != fin && *place == '"' && (place + 1 == lu_ || lu_[-1] != '"');
    if (texteOuvert) place = lu_ == fin ? fin : lu_ - 1;
    while (place != fin && (static_cast<unsigned char>(*place) & 0xC0) == 0x80) --place;
    return Position(place);
  }

  std::string_view json_;
  const char* lu_;
  const char* finJeton_;
  std::size_t debutJeton_ = 0;
  bool objet_ = false;
  Membre membre_;
  Membre racine_;
  std::array<bool, 3> vus_ = {false, false, false};
  std::array<std::size_t, 3> places_ = {0, 0, 0};
  std::array<std::string, 2> textes_;
  Assemblage assemblage_;
};

std::string_view prendPiece(std::string_view& reste, char separateur, bool& encore) {
  const std::size_t fin = reste.find(separateur);
  encore = fin != std::string_view::npos;
  const std::string_view piece = reste.substr(0, fin);
  reste = encore ? reste.substr(fin + 1) : std::string_view();
  return piece;
}

void ecrireTexte(std::string& sortie, std::string_view texte) {
  constexpr char Chiffres[] = "0123456789abcdef";
  sortie += '"';
  for (const char c : texte) {
    if (c == '"' || c == '\\') {
      sortie += '\\';
      sortie += c;
    } else if (const auto octet = static_cast<unsigned char>(c); octet < 0x20) {
      sortie += "\\u00";
      sortie += Chiffres[octet >> 4];
      sortie += Chiffres[octet & 15];
    } else {
      sortie += c;
    }
  }
  sortie += '"';
}

// The pieces between the separators as an array, each written by `ecrirePiece`.
template <typename Ecriture>
void ecrireTableau(std::string& sortie, std::string_view texte, char separateur,
                   const Ecriture& ecrirePiece) {
  sortie += '[';
  for (bool encore = true; encore;) {
    ecrirePiece(sortie, prendPiece(texte, separateur, encore));
    if (encore) sortie += ',';
  }
  sortie += ']';
}

void ecrireAttribut(std::string& sortie, std::string_view attribut) {
  constexpr std::string_view Dessous(&Separateurs[1], 2);
  if (attribut.find_first_of(Dessous) == std::string_view::npos) {
    ecrireTexte(sortie, attribut);
  } else {
    ecrireTableau(sortie, attribut, data::SepValeur, ecrireValeur);
  }
}

}  // namespace

Enregistrement lireEnregistrement(std::string_view json) {
  Lecture lecture(json, AucunMembre);
  lecture.Analyse();
  return lecture.Resultat();
}

std::string lireItem(std::string_view json) {
  Lecture lecture(json, Item);
  lecture.Analyse();
  return lecture.Resultat().texte;
}

void ecrireValeur(std::string& sortie, std::string_view valeur) {
  if (valeur.find(data::SepSousValeur) == std::string_view::npos) {
    ecrireTexte(sortie, valeur);
  } else {
    ecrireTableau(sortie, valeur, data::SepSousValeur, ecrireTexte);
  }
}

void ecrireItem(std::string& sortie, std::string_view texte) {
  if (texte.empty()) {
    sortie += "[]";
  } else {
    ecrireTableau(sortie, texte, data::SepAttribut, ecrireAttribut);
  }
}

void ecrireEnregistrement(std::string& sortie, std::string_view fichier, std::string_view cle,
                          std::string_view texte) {
  sortie += "{\"fichier\":";
  ecrireTexte(sortie, fichier);
  sortie += ",\"cle\":";
  ecrireTexte(sortie, cle);
  sortie += ",\"item\":";
  ecrireItem(sortie, texte);
  sortie += '}';
}

long colonneDe(std::string_view ligne, std::size_t position) {
  return 1 + data::longueur(ligne.substr(0, position));
}

}  // namespace base
