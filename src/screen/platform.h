#pragma once
// What a host gives to the screens: small services, each replaceable. The headless versions stand
// in screen/headless and serve tests and the scenario pilot; a desktop host gives its own.

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "data/poste.h"

namespace screen {

class Field;
class Form;

inline const std::string TitreMessage = "Message KORVALDIS";

enum class Boutons { Ok, OkAnnuler, OuiNon, OuiNonAnnuler };
enum class Icone { Aucune, Information, Question, Exclamation, Arret };
enum class Reponse { Ok, Annuler, Oui, Non };

struct Message {
  std::string texte;
  Boutons boutons = Boutons::Ok;
  Icone icone = Icone::Aucune;
  std::string titre;
  // The answer that loses nothing of what was typed, where it is not the usual one (Annuler, else
  // Non, for Échap; the first button for Enter): both keys give it.
  std::optional<Reponse> prudente = {};
  // A notice has one answer; anything else asks.
  bool Demande() const { return boutons != Boutons::Ok; }
};

class Messages {
 public:
  virtual ~Messages() = default;
  // Blocks until the user has answered.
  virtual Reponse Montrer(const Message& message) = 0;
};

// A hint beside a field, where the screens have no message of their own: what is wrong with the
// text that holds the user there, and what would be right. It does not wait for an answer.
class Indications {
 public:
  virtual ~Indications() = default;
  virtual void Montrer(const Field& champ, const std::string& texte) = 0;
};

// A record that somebody else has written since it was opened here, in French as a clerk reads it:
// which one, by whom and when ("" when that is not known), and where theirs and ours differ.
struct Conflit {
  struct Ecart {
    std::string legende;
    std::string surFichier;
    std::string ici;
  };
  std::string article;
  std::string auteur;
  std::vector<Ecart> ecarts;
};

enum class Tranche {
  Remplacer,  // the record on file is replaced: the last write wins, knowingly
  Garder,     // the record on file stays, what was typed here is given up
  Revenir,    // nothing is decided: back to what is being typed
};

class Conflits {
 public:
  virtual ~Conflits() = default;
  virtual Tranche Trancher(const Conflit& conflit) = 0;
};

class Modales {
 public:
  virtual ~Modales() = default;
  // Called with a form just made visible; returns when it is no longer.
  virtual void Attendre(Form& form) = 0;
  // A pop-up menu of the form was asked for at the pointer.
  virtual void MontrerMenu(Form& form, std::string_view menu) = 0;
};

// The pointer and the event queue during long work.
class Curseur {
 public:
  virtual ~Curseur() = default;
  virtual void Attente(bool attente) = 0;
  virtual void TraiterEvenements() = 0;
  virtual void Bip() = 0;
};

// A document that did not come onto paper, whole or at all. The text is French, names the document
// and says what to do.
class ErreurImpression : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Paper. Coordinates are twips, 567 to the centimetre, from the page's top left corner. Each call
// that puts something on paper may raise ErreurImpression: nothing of the document stands then, and
// the next call begins another one.
class Imprimante {
 public:
  virtual ~Imprimante() = default;
  virtual std::vector<std::string> Noms() const = 0;
  // Where the printer of that index is tied to, "" when that is not known; and the index of the one
  // that the workstation prepares for whoever does not choose.
  virtual std::string Port(int /*imprimante*/) const { return {}; }
  virtual int ParDefaut() const { return 0; }
  // Makes the printer of that index the one that prints.
  virtual void Choisir(int imprimante) = 0;
  virtual void Police(const std::string& nom, double points, bool gras) = 0;
  // `largeur`: what the place can hold; a longer text is drawn narrower. 0: any width.
  virtual void Texte(int x, int y, const std::string& texte, int largeur = 0) = 0;
  // A picture that cannot be read is left out.
  virtual void Image(int x, int y, int largeur, int hauteur, const std::string& fichier) = 0;
  virtual void FinPage() = 0;
  virtual void FinDocument() = 0;
};

// Twips in a centimetre of paper.
inline constexpr int TwipsParCentimetre = 567;

// The workstation's settings store.
class Reglages {
 public:
  virtual ~Reglages() = default;
  virtual std::string Lire(const std::string& section, const std::string& cle,
                           const std::string& defaut) const = 0;
  virtual void Ecrire(const std::string& section, const std::string& cle,
                      const std::string& valeur) = 0;
};

// A window in which help is shown, with its place and size on the screen.
struct FenetreAide {
  std::string nom;
  int x = 0;
  int y = 0;
  int largeur = 0;
  int hauteur = 0;
};

// The help system. Commands are those of the platform's help call.
class Aide {
 public:
  virtual ~Aide() = default;
  static constexpr int Sommaire = 11;
  static constexpr int Quitter = 2;
  // The folder of the application, where the help file stands.
  virtual std::string Dossier() const = 0;
  // Describes the window in which later calls for `fichier` show.
  virtual void Preparer(const std::string& fichier, const FenetreAide& fenetre) = 0;
  virtual void Appeler(const std::string& fichier, int commande) = 0;
};

// A sibling control of the suite, which a form hosts and drives by named properties and methods.
class ControleHeberge {
 public:
  virtual ~ControleHeberge() = default;
  virtual void Regler(const std::string& propriete, const std::string& valeur) = 0;
  virtual std::string Lire(const std::string& propriete) const = 0;
  virtual void Appeler(const std::string& methode) = 0;
};

class ControlesHeberges {
 public:
  virtual ~ControlesHeberges() = default;
  // The control of that name, which lives as long as the host; nullptr when the host does not have
  // it.
  virtual ControleHeberge* Trouver(const std::string& nom) = 0;
};

// One of each; the host keeps them alive as long as any form.
struct Platform {
  Messages& messages;
  Indications& indications;
  Conflits& conflits;
  Modales& modales;
  Curseur& curseur;
  Imprimante& imprimante;
  Reglages& reglages;
  Aide& aide;
  ControlesHeberges& controles;
  const data::Poste& poste;
};

}  // namespace screen
