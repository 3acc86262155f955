// Buttons, options and check boxes.

#include <QCheckBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>

#include "liaison/consultation.h"
#include "liaison/liaison.h"
#include "liaison/lien.h"
#include "liaison/textes_qt.h"

namespace hote {

namespace {

// `clicked` alone is a user's act; `toggled` comes from a push too.
class LienPressable : public Lien {
 public:
  LienPressable(Liaison& liaison, screen::Field& champ, QAbstractButton& bouton)
      : Lien(liaison, champ, bouton), bouton_(bouton) {
    connect(&bouton_, &QAbstractButton::clicked, this, [this] { Cliquer(); });
  }

 protected:
  void Cliquer() {
    Binder().Jouer([this](screen::User& user) { user.Cliquer(Champ()); });
  }
  void PousserEtat() override {
    const QString texte = versQt(Champ().Libelle());
    if (bouton_.text() != texte) bouton_.setText(texte);
  }

  QAbstractButton& bouton_;
};

class LienBouton : public LienPressable {
 public:
  LienBouton(Liaison& liaison, screen::Field& champ, QPushButton& bouton)
      : LienPressable(liaison, champ, bouton) {
    bouton.setAutoDefault(false);
    bouton.setDefault(false);
    if (bouton.toolTip().isEmpty()) bouton.setToolTip(toucheDuBouton(champ.Nom()));
  }
  bool Touche(QKeyEvent& evenement) override {
    if (toucheDe(evenement) != screen::ToucheEntree) return false;
    if (!evenement.isAutoRepeat()) Cliquer();
    return true;
  }

 protected:
  void PousserEtat() override {
    const QString texte = Binder().LibelleBouton(Champ());
    if (bouton_.text() != texte) bouton_.setText(texte);
  }

 private:
  // The key of a button that has the same in every form: see Liaison::Commander.
  static const char* toucheDuBouton(const std::string& nom) {
    if (nom == "Cmd_OK" || nom == "Cmd_Ok") return "Ctrl+Entrée";
    if (nom == "Cmd_Recherche") return "F5";
    if (nom == "Cmd_Ajouter") return "Inser";
    if (nom == "Cmd_Retour" || nom == "Cmd_Sortir") return "Échap";
    return "";
  }
};

// An option or a box: a value beside its caption. In consultation it is read as a text is: it takes
// the keyboard, but neither a click nor a key that would change it.
class LienValeur : public LienPressable {
 public:
  using LienPressable::LienPressable;

  bool Pression(const QWidget& /*ou*/, const QMouseEvent& /*evenement*/) override { return Fige(); }
  bool Touche(QKeyEvent& evenement) override {
    const int touche = evenement.key();
    return Fige() && (touche == Qt::Key_Space || touche == Qt::Key_Select ||
                      (touche >= Qt::Key_Left && touche <= Qt::Key_Down));
  }

 protected:
  void PousserEtat() override {
    LienPressable::PousserEtat();
    montrerConsultation(bouton_, Fige());
  }
};

class LienOption : public LienValeur {
 public:
  using LienValeur::LienValeur;

  // Qt's own arrows click before they move the focus, and only where an option is on already.
  bool Touche(QKeyEvent& evenement) override {
    if (LienValeur::Touche(evenement)) return true;
    const int sens = sensDe(evenement.key());
    if (sens == 0) return false;
    std::vector<screen::Field*> groupe;
    for (screen::Field* const champ : Champ().Forme().Fields()) {
      const bool voisin = champ->Genre() == screen::Kind::Option &&
                          champ->Cadre() == Champ().Cadre() && champ->Disponible();
      if (voisin) groupe.push_back(champ);
    }
    const auto ici = std::find(groupe.begin(), groupe.end(), &Champ());
    if (groupe.size() < 2 || ici == groupe.end()) return true;
    const auto rang = static_cast<std::size_t>(ici - groupe.begin());
    screen::Field& cible = *groupe[(rang + (sens > 0 ? 1 : groupe.size() - 1)) % groupe.size()];
    Binder().Jouer([&](screen::User& user) { user.Cliquer(cible); });
    return true;
  }

 protected:
  void PousserEtat() override {
    LienValeur::PousserEtat();
    const bool valeur = static_cast<screen::OptionButton&>(Champ()).Value();
    if (bouton_.isChecked() == valeur) return;
    if (valeur) {
      bouton_.setChecked(true);
    } else {
      Binder().Groupe(Champ().Cadre()).Eteindre(bouton_);
    }
  }

 private:
  static int sensDe(int touche) {
    if (touche == Qt::Key_Down || touche == Qt::Key_Right) return 1;
    return touche == Qt::Key_Up || touche == Qt::Key_Left ? -1 : 0;
  }
};

class LienCase : public LienValeur {
 public:
  using LienValeur::LienValeur;

 protected:
  void PousserEtat() override {
    LienValeur::PousserEtat();
    const bool cochee = static_cast<screen::CheckBox&>(Champ()).Value() != 0;
    if (bouton_.isChecked() != cochee) bouton_.setChecked(cochee);
  }
};

}  // namespace

std::unique_ptr<Lien> creerLienBouton(Liaison& liaison, screen::Field& champ, QWidget& widget) {
  switch (champ.Genre()) {
    case screen::Kind::Bouton:
      if (auto* bouton = qobject_cast<QPushButton*>(&widget)) {
        return std::make_unique<LienBouton>(liaison, champ, *bouton);
      }
      return nullptr;
    case screen::Kind::Option:
      if (auto* option = qobject_cast<QRadioButton*>(&widget)) {
        liaison.Groupe(champ.Cadre()).Ajouter(*option);
        return std::make_unique<LienOption>(liaison, champ, *option);
      }
      return nullptr;
    default:
      if (auto* coche = qobject_cast<QCheckBox*>(&widget)) {
        return std::make_unique<LienCase>(liaison, champ, *coche);
      }
      return nullptr;
  }
}

}  // namespace hote
