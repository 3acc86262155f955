#include "screen/headless/services.h"

#include <iomanip>
#include <sstream>
#include <stdexcept>

#include "screen/field.h"

namespace screen::headless {

void IndicationsNotees::Montrer(const Field& champ, const std::string& texte) {
  notees_.push_back(champ.Nom() + " : " + texte);
}

Tranche ConflitsNotes::Trancher(const Conflit& conflit) {
  notes_.push_back(conflit);
  if (reponses_.empty()) return Tranche::Remplacer;
  const Tranche reponse = reponses_.front();
  reponses_.pop_front();
  return reponse;
}

std::optional<Conflit> ConflitsNotes::Prendre() {
  if (notes_.empty()) return std::nullopt;
  Conflit conflit = std::move(notes_.front());
  notes_.pop_front();
  return conflit;
}

void CurseurCompte::Attente(bool attente) {
  if (attente) ++attentes_;
  attente_ = attente;
}

void CurseurCompte::TraiterEvenements() {
  ++traitements_;
  if (SurEvenements) SurEvenements();
}

void ImprimanteEnregistree::Choisir(int imprimante) {
  if (imprimante < 0 || static_cast<std::size_t>(imprimante) >= noms.size()) {
    throw std::out_of_range("no printer of index " + std::to_string(imprimante));
  }
  choisie_ = static_cast<std::size_t>(imprimante);
}

void ImprimanteEnregistree::Police(const std::string& nom, double points, bool gras) {
  crayon_.police = nom;
  crayon_.points = points;
  crayon_.gras = gras;
}

void ImprimanteEnregistree::Texte(int x, int y, const std::string& texte, int largeur) {
  Trace trace = crayon_;
  trace.x = x;
  trace.y = y;
  trace.largeur = largeur;
  trace.texte = texte;
  page_.push_back(std::move(trace));
}

void ImprimanteEnregistree::Image(int x, int y, int largeur, int hauteur,
                                  const std::string& fichier) {
  Trace trace;
  trace.x = x;
  trace.y = y;
  trace.largeur = largeur;
  trace.hauteur = hauteur;
  trace.image = fichier;
  page_.push_back(std::move(trace));
}

void ImprimanteEnregistree::FinPage() {
  pages_.push_back(std::move(page_));
  page_.clear();
}

void ImprimanteEnregistree::FinDocument() {
  if (!page_.empty()) FinPage();
  if (!panne.empty()) {
    pages_.clear();
    throw ErreurImpression(std::exchange(panne, {}));
  }
  documents_.push_back({choisie_ < noms.size() ? noms[choisie_] : std::string(), pages_});
  pages_.clear();
}

std::vector<std::string> DocumentImprime::Lignes() const {
  const auto cm = [](int twips) { return static_cast<double>(twips) / TwipsParCentimetre; };
  std::vector<std::string> lignes;
  for (std::size_t page = 0; page < pages.size(); ++page) {
    for (const Trace& t : pages[page]) {
      std::ostringstream ligne;
      ligne << page + 1 << " : " << std::fixed << std::setprecision(2) << cm(t.x) << ' ' << cm(t.y)
            << ' ';
      if (!t.image.empty()) {
        ligne << "image " << cm(t.largeur) << " x " << cm(t.hauteur) << " : " << t.image;
      } else {
        ligne << t.police << ' ' << std::defaultfloat << t.points << (t.gras ? " gras" : "")
              << " : " << t.texte;
      }
      lignes.push_back(ligne.str());
    }
  }
  return lignes;
}

std::string ReglagesEnMemoire::Lire(const std::string& section, const std::string& cle,
                                    const std::string& defaut) const {
  const auto trouve = valeurs_.find({section, cle});
  return trouve == valeurs_.end() ? defaut : trouve->second;
}

void ReglagesEnMemoire::Ecrire(const std::string& section, const std::string& cle,
                               const std::string& valeur) {
  valeurs_[{section, cle}] = valeur;
}

void ControleEnregistre::Regler(const std::string& propriete, const std::string& valeur) {
  proprietes_[propriete] = valeur;
  journal_.push_back(propriete + "=" + valeur);
}

std::string ControleEnregistre::Lire(const std::string& propriete) const {
  const auto trouve = proprietes_.find(propriete);
  return trouve == proprietes_.end() ? std::string() : trouve->second;
}

void ControleEnregistre::Appeler(const std::string& methode) {
  journal_.push_back(methode + "()");
  if (SurAppel) SurAppel(methode);
}

ControleHeberge* ControlesEnregistres::Trouver(const std::string& nom) {
  const auto trouve = controles_.find(nom);
  return trouve == controles_.end() ? nullptr : &trouve->second;
}

}  // namespace screen::headless
