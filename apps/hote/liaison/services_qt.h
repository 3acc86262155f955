#pragma once
// The services of the platform, on Qt.

#include <QByteArray>
#include <QFont>
#include <QString>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "screen/platform.h"

class QBuffer;
class QPainter;
class QPdfWriter;
class QSettings;
class QWidget;

namespace hote {

class Bureau;

class CurseurQt : public screen::Curseur {
 public:
  explicit CurseurQt(Bureau& bureau) : bureau_(bureau) {}
  void Attente(bool attente) override;
  void TraiterEvenements() override;
  void Bip() override;

  // Lifts the wait cursor while the user is asked something.
  class Levee {
   public:
    explicit Levee(CurseurQt& curseur);
    ~Levee();
    Levee(const Levee&) = delete;
    Levee& operator=(const Levee&) = delete;

   private:
    CurseurQt& curseur_;
    bool attente_;
  };

 private:
  Bureau& bureau_;
  bool attente_ = false;
};

class MessagesQt : public screen::Messages {
 public:
  MessagesQt(Bureau& bureau, CurseurQt& curseur) : bureau_(bureau), curseur_(curseur) {}
  screen::Reponse Montrer(const screen::Message& message) override;

 private:
  Bureau& bureau_;
  CurseurQt& curseur_;
};

// A hint that stands beside its field until the user goes on.
class IndicationsQt : public screen::Indications {
 public:
  explicit IndicationsQt(Bureau& bureau) : bureau_(bureau) {}
  void Montrer(const screen::Field& champ, const std::string& texte) override;

 private:
  Bureau& bureau_;
};

// A modal form gets a window of its own for the time of its show.
class ModalesQt : public screen::Modales {
 public:
  ModalesQt(Bureau& bureau, CurseurQt& curseur) : bureau_(bureau), curseur_(curseur) {}
  void Attendre(screen::Form& form) override;
  // The entries that follow `menu` in the form, up to the next one that heads a menu.
  void MontrerMenu(screen::Form& form, std::string_view menu) override;

 private:
  void Placer(QWidget& fenetre, QWidget* parente, const QString& nom);

  Bureau& bureau_;
  CurseurQt& curseur_;
};

// A font of a printed page, of even width where the machine does not have it.
QFont policeImprimee(const std::string& nom, double points, bool gras);

// Paper is a PDF file in the user's documents.
class ImprimantePdf : public screen::Imprimante {
 public:
  ImprimantePdf(Bureau& bureau, CurseurQt& curseur);
  ~ImprimantePdf() override;
  std::vector<std::string> Noms() const override { return {"Document PDF"}; }
  void Choisir(int imprimante) override;
  void Police(const std::string& nom, double points, bool gras) override;
  void Texte(int x, int y, const std::string& texte, int largeur = 0) override;
  void Image(int x, int y, int largeur, int hauteur, const std::string& fichier) override;
  void FinPage() override;
  void FinDocument() override;

 private:
  QPainter& Pinceau();

  Bureau& bureau_;
  CurseurQt& curseur_;
  // The document while it grows; it goes onto the disk whole.
  QByteArray octets_{};
  std::unique_ptr<QBuffer> fichier_;
  std::unique_ptr<QPdfWriter> document_;
  std::unique_ptr<QPainter> pinceau_;
  bool pageFinie_ = false;
  QFont police_ = policeImprimee("Courier New", 10, false);
};

// One line in the painter's font, with its top at the place; drawn narrower where it would not fit
// into `largeur`, 0 for any.
void ecrireLigne(QPainter& pinceau, const QPoint& place, const QString& ligne, int largeur);

class ReglagesQt : public screen::Reglages {
 public:
  explicit ReglagesQt(QSettings& reglages) : reglages_(reglages) {}
  std::string Lire(const std::string& section, const std::string& cle,
                   const std::string& defaut) const override;
  void Ecrire(const std::string& section, const std::string& cle,
              const std::string& valeur) override;
  // What the workstation answers for a setting that nobody has made.
  void Proposer(const QString& cle, std::function<QString()> trouver) {
    propositions_[cle] = std::move(trouver);
  }

 private:
  QSettings& reglages_;
  std::map<QString, std::function<QString()>> propositions_;
};

class AideQt : public screen::Aide {
 public:
  explicit AideQt(Bureau& bureau) : bureau_(bureau) {}
  std::string Dossier() const override;
  // The host shows help in a window of its own.
  void Preparer(const std::string&, const screen::FenetreAide&) override {}
  void Appeler(const std::string& fichier, int commande) override;

 private:
  Bureau& bureau_;
};

// The suite's other controls, those that the host has.
class ControlesQt : public screen::ControlesHeberges {
 public:
  // The first one told of a name holds until it is taken away.
  void Ajouter(const std::string& nom, screen::ControleHeberge& controle) {
    controles_.emplace_back(nom, &controle);
  }
  void Oter(const screen::ControleHeberge& controle);
  screen::ControleHeberge* Trouver(const std::string& nom) override;

 private:
  std::vector<std::pair<std::string, screen::ControleHeberge*>> controles_;
};

}  // namespace hote
