#pragma once
// The small services of a host without a display. Each records what it was asked.

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "screen/platform.h"

namespace screen::headless {

class IndicationsNotees : public Indications {
 public:
  void Montrer(const Field& champ, const std::string& texte) override;
  // Those shown since the last call, each "<field> : <text>".
  std::vector<std::string> Prendre() { return std::exchange(notees_, {}); }

 private:
  std::vector<std::string> notees_;
};

// The record is replaced unless another answer was given in advance; answers serve in order.
class ConflitsNotes : public Conflits {
 public:
  void Repondre(Tranche tranche) { reponses_.push_back(tranche); }
  Tranche Trancher(const Conflit& conflit) override;
  // The oldest one not taken yet, which is thereby taken; nothing when there is none.
  std::optional<Conflit> Prendre();

 private:
  std::deque<Tranche> reponses_;
  std::deque<Conflit> notes_;
};

class CurseurCompte : public Curseur {
 public:
  // What happens while pending events are processed.
  std::function<void()> SurEvenements;

  void Attente(bool attente) override;
  void TraiterEvenements() override;
  void Bip() override { ++bips_; }

  // The pointer shown now, and how many times the wait state was entered.
  bool EnAttente() const { return attente_; }
  int Attentes() const { return attentes_; }
  int Traitements() const { return traitements_; }
  int Bips() const { return bips_; }

 private:
  bool attente_ = false;
  int attentes_ = 0;
  int traitements_ = 0;
  int bips_ = 0;
};

// Something put on a page: a text, or a picture with its size. Units are twips. The width of a text
// is what its place can hold, 0 without a bound.
struct Trace {
  int x = 0;
  int y = 0;
  std::string texte;
  std::string police;
  double points = 0;
  bool gras = false;
  std::string image;
  int largeur = 0;
  int hauteur = 0;
};

struct DocumentImprime {
  std::string imprimante;
  std::vector<std::vector<Trace>> pages;

  // What stands on it, one line a text or picture in the order of printing: page, place in
  // centimetres from the left and from the top, font, then the text or the picture's file:
  //
  //   1 : 4.30 1.40 Courier New 11 gras : URSSAF
  //   1 : 0.00 0.00 image 20.81 x 29.80 : aide/URSSAF.jpg
  std::vector<std::string> Lignes() const;
};

class ImprimanteEnregistree : public Imprimante {
 public:
  // The workstation's printers; the first one prints until another is chosen.
  std::vector<std::string> noms{"Imprimante"};
  // Not empty: why the next document does not come onto paper.
  std::string panne;

  std::vector<std::string> Noms() const override { return noms; }
  // An index without a printer is a std::out_of_range.
  void Choisir(int imprimante) override;
  void Police(const std::string& nom, double points, bool gras) override;
  void Texte(int x, int y, const std::string& texte, int largeur = 0) override;
  void Image(int x, int y, int largeur, int hauteur, const std::string& fichier) override;
  void FinPage() override;
  // What stands on a page not ended yet is printed with it.
  void FinDocument() override;

  const std::vector<DocumentImprime>& Documents() const { return documents_; }

 private:
  std::size_t choisie_ = 0;
  Trace crayon_;
  std::vector<Trace> page_;
  std::vector<std::vector<Trace>> pages_;
  std::vector<DocumentImprime> documents_;
};

class ReglagesEnMemoire : public Reglages {
 public:
  std::string Lire(const std::string& section, const std::string& cle,
                   const std::string& defaut) const override;
  void Ecrire(const std::string& section, const std::string& cle,
              const std::string& valeur) override;

 private:
  std::map<std::pair<std::string, std::string>, std::string> valeurs_;
};

class AideEnregistree : public Aide {
 public:
  std::string dossier = "aide";

  std::string Dossier() const override { return dossier; }
  void Preparer(const std::string& fichier, const FenetreAide& fenetre) override {
    preparees_.emplace_back(fichier, fenetre.nom);
  }
  void Appeler(const std::string& fichier, int commande) override {
    appels_.emplace_back(fichier, commande);
  }
  const std::vector<std::pair<std::string, int>>& Appels() const { return appels_; }
  // File and window name of each preparation.
  const std::vector<std::pair<std::string, std::string>>& Preparees() const { return preparees_; }

 private:
  std::vector<std::pair<std::string, std::string>> preparees_;
  std::vector<std::pair<std::string, int>> appels_;
};

class ControleEnregistre : public ControleHeberge {
 public:
  // What a method does, if anything.
  std::function<void(const std::string& methode)> SurAppel;

  void Regler(const std::string& propriete, const std::string& valeur) override;
  // "" for a property never set.
  std::string Lire(const std::string& propriete) const override;
  void Appeler(const std::string& methode) override;

  // Property settings as "nom=valeur" and method calls as "nom()", in order.
  const std::vector<std::string>& Journal() const { return journal_; }
  // Those since the last call.
  std::vector<std::string> Prendre() { return std::exchange(journal_, {}); }

 private:
  std::map<std::string, std::string> proprietes_;
  std::vector<std::string> journal_;
};

class ControlesEnregistres : public ControlesHeberges {
 public:
  // Makes the host have a control of that name.
  ControleEnregistre& Ajouter(const std::string& nom) { return controles_[nom]; }
  ControleHeberge* Trouver(const std::string& nom) override;

 private:
  std::map<std::string, ControleEnregistre> controles_;
};

}  // namespace screen::headless
