// A key in every text field and drop-down of the editor, from the window that receives it until it
// is handled, the screen pushed and what changed painted. In a field that holds a text, its last
// character is erased and typed again, so that what a whole code or date brings about counts; in
// an empty one, a digit is typed and erased. The worse of the two keys is the field's.

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <map>
#include <stdexcept>

#include "control/ctr_contrat.h"
#include "liaison/combo_deroulante.h"
#include "liaison/textes_qt.h"
#include "mesures.h"
#include "poste.h"
#include "screen/user.h"

namespace bench {

namespace {

using editor::Frm_ElementsContrat;

constexpr int Tours = 15;
constexpr long ContratsDemo = 800;
constexpr const char* Entite = "001";

std::string texteDe(const screen::Field& champ) {
  if (champ.Genre() == screen::Kind::Texte) {
    return static_cast<const screen::TextField&>(champ).Text();
  }
  return static_cast<const screen::ComboBox&>(champ).Text();
}

bool saisissable(const screen::Field& champ) {
  if (champ.Genre() == screen::Kind::Texte) return true;
  return champ.Genre() == screen::Kind::Deroulante &&
         static_cast<const screen::ComboBox&>(champ).Saisie();
}

// A key changes what the field shows: all but those of a drop-down without a second row.
bool changeant(const screen::Field& champ) {
  return saisissable(champ) || static_cast<const screen::ComboBox&>(champ).ListCount() > 1;
}

// One key given to the window, as the window system does, until nothing is left to do.
double frapper(QWindow& fenetre, Qt::Key touche, const QString& texte) {
  const double debut = tempsProcesseur();
  QTest::sendKeyEvent(QTest::Click, &fenetre, touche, texte, Qt::NoModifier);
  traiterTout();
  return tempsProcesseur() - debut;
}

struct Frappe {
  Qt::Key touche;
  QString texte;
};

Frappe frappeDe(QChar caractere) {
  return {static_cast<Qt::Key>(caractere.toUpper().unicode()), QString(caractere)};
}

// The same keys in a text line alone in its window.
class LigneNue {
 public:
  LigneNue() : ligne_(&fenetre_) { fenetre_.show(); }
  void Mesurer() {
    fenetre_.activateWindow();
    ligne_.setFocus();
    traiterTout();
    for (int tour = 0; tour < Tours; ++tour) {
      temps_.push_back(frapper(*fenetre_.windowHandle(), Qt::Key_1, "1"));
      temps_.push_back(frapper(*fenetre_.windowHandle(), Qt::Key_Backspace, "\b"));
    }
    if (!ligne_.text().isEmpty()) throw std::runtime_error("the bare line did not take the keys");
  }
  double Mediane() const { return mediane(temps_); }

 private:
  QWidget fenetre_;
  QLineEdit ligne_;
  std::vector<double> temps_;
};

struct Resultat {
  std::string champ;
  double temps;
};

// Types in the fields of an editor that is open.
class Dactylo {
 public:
  Dactylo(hote::Bureau& bureau, Frm_ElementsContrat& forme, QWidget& fenetre)
      : bureau_(bureau), forme_(forme), fenetre_(fenetre) {}

  std::vector<Resultat> Mesurer() {
    std::vector<Resultat> resultats;
    for (screen::Field* const champ : forme_.Fields()) {
      const bool champTape =
          champ->Genre() == screen::Kind::Texte || champ->Genre() == screen::Kind::Deroulante;
      if (champTape && champ->Disponible()) resultats.push_back(MesurerChamp(*champ));
    }
    return resultats;
  }

 private:
  Resultat MesurerChamp(screen::Field& champ) {
    const auto* const widget = Entrer(champ);
    // Something must be chosen, so that there is a row to go back to.
    const bool sansChoix = !saisissable(champ) && texteDe(champ).empty();
    if (sansChoix) frapper(*fenetre_.windowHandle(), Qt::Key_Down, "");
    const std::vector<Frappe> frappes = Frappes(champ);
    RetenirTextes();
    std::vector<std::vector<double>> temps(frappes.size());
    for (int tour = 0; tour < Tours; ++tour) {
      if (QApplication::focusWidget() != widget) Entrer(champ);
      if (saisissable(champ)) QTest::keyClick(fenetre_.windowHandle(), Qt::Key_End);
      for (std::size_t i = 0; i < frappes.size(); ++i) {
        const std::string avant = texteDe(champ);
        const Peintures peintures(*QApplication::focusWidget());
        const double duree = frapper(*fenetre_.windowHandle(), frappes[i].touche, frappes[i].texte);
        if (changeant(champ) && (texteDe(champ) == avant || peintures.Nombre() == 0)) {
          throw std::runtime_error("a key changed or painted nothing in " + champ.Nom());
        }
        temps[i].push_back(duree);
      }
      RendreTextes();
    }
    double pire = 0;
    for (const auto& mesures : temps) pire = std::max(pire, mediane(mesures));
    return {champ.Nom(), pire};
  }

  const QWidget* Entrer(screen::Field& champ) {
    QString nom = hote::versQt(champ.Nom());
    auto* const widget = fenetre_.findChild<QWidget*>(nom.replace("(", "_").remove(")"));
    if (widget == nullptr) throw std::runtime_error("no widget " + champ.Nom());
    widget->setFocus();
    traiterTout();
    if (forme_.Active() != &champ) throw std::runtime_error("no focus for " + champ.Nom());
    return widget;
  }

  static std::vector<Frappe> Frappes(const screen::Field& champ) {
    const Frappe efface{Qt::Key_Backspace, "\b"};
    if (!saisissable(champ)) return Choix(static_cast<const screen::ComboBox&>(champ));
    const QString texte = hote::versQt(texteDe(champ));
    if (texte.isEmpty()) return {frappeDe('1'), efface};
    return {efface, frappeDe(texte.back())};
  }

  // To the row beside and back.
  static std::vector<Frappe> Choix(const screen::ComboBox& champ) {
    const Frappe bas{Qt::Key_Down, ""};
    const Frappe haut{Qt::Key_Up, ""};
    const bool derniere = champ.ListIndex() > 0 && champ.ListIndex() + 1 == champ.ListCount();
    return derniere ? std::vector{haut, bas} : std::vector{bas, haut};
  }

  void RetenirTextes() {
    textes_.clear();
    for (screen::Field* const champ : forme_.Fields()) {
      if (champ->Genre() == screen::Kind::Texte) textes_.emplace_back(champ, texteDe(*champ));
    }
  }
  // A code typed again empties those that were chosen under it.
  void RendreTextes() {
    screen::User user(forme_);
    for (const auto& [champ, texte] : textes_) {
      if (texteDe(*champ) != texte && champ->Accessible()) user.Taper(*champ, texte);
    }
    bureau_.PousserTout();
    traiterTout();
  }

  hote::Bureau& bureau_;
  Frm_ElementsContrat& forme_;
  QWidget& fenetre_;
  std::vector<std::pair<screen::Field*, std::string>> textes_;
};

// Stands for the user while the editor's own loop runs: acts once it is open, then leaves it
// without keeping anything.
class Visite : public QObject {
 public:
  // `abandon`: the answer to the question asked on leaving that keeps nothing.
  Visite(QMessageBox::ButtonRole abandon, std::function<void(QWidget&)> acte)
      : abandon_(abandon), acte_(std::move(acte)) {
    Guetter();
  }
  void Rendre() const {
    if (erreur_) std::rethrow_exception(erreur_);
    if (!vue_) throw std::runtime_error("the editor did not open");
  }

 private:
  static constexpr int QuestionsMax = 5;

  // A new timer each time: one that is being delivered is silent in a nested loop.
  void Guetter() {
    QTimer::singleShot(20, this, [this] {
      Guetter();
      QWidget* const fenetre = QApplication::activeModalWidget();
      if (auto* const boite = qobject_cast<QMessageBox*>(fenetre)) return Repondre(*boite);
      if (fenetre == nullptr || occupee_) return;
      if (vue_) return Sortir(*fenetre);
      vue_ = occupee_ = true;
      try {
        acte_(*fenetre);
      } catch (...) {
        erreur_ = std::current_exception();
      }
      occupee_ = false;
    });
  }
  void Repondre(QMessageBox& boite) {
    if (occupee_ || ++questions_ > QuestionsMax) qFatal("%s", qPrintable(boite.text()));
    for (QAbstractButton* const bouton : boite.buttons()) {
      if (boite.buttonRole(bouton) == abandon_) return bouton->click();
    }
    boite.close();
  }
  static void Sortir(const QWidget& fenetre) {
    if (auto* const retour = fenetre.findChild<QPushButton*>("Cmd_Retour")) retour->click();
  }

  QMessageBox::ButtonRole abandon_;
  std::function<void(QWidget&)> acte_;
  std::exception_ptr erreur_;
  bool vue_ = false;
  bool occupee_ = false;
  int questions_ = 0;
};

Frm_ElementsContrat& editeurOuvert(hote::Bureau& bureau) {
  auto* const forme = dynamic_cast<Frm_ElementsContrat*>(bureau.FormeCourante());
  if (forme == nullptr) throw std::runtime_error("the window on top is not the editor");
  return *forme;
}

// The fields of a new contract that lead to all others.
void remplir(Base& base, hote::Bureau& bureau, Frm_ElementsContrat& editeur) {
  const data::CItem lignes = base.db->Selectionner(
      std::string("SSELECT ETABLISSEMENT AVEC 0 = \"") + Entite + "]\"", "ETABLISSEMENT", "0");
  screen::User user(editeur);
  user.Taper(*editeur.Find("Txt_ConvColContrat"), "01");
  user.Taper(*editeur.Find("Txt_AssocContrat"), Entite);
  user.Taper(*editeur.Find("Txt_EmplEtabContrat"), lignes(1, 1).substr(3));
  user.Taper(*editeur.Find("Txt_DatDebContrat"), "01/12/2026");
  bureau.PousserTout();
  traiterTout();
}

// The keys with which one of 2,000 activities and one of 500 profiles is chosen, the worst of them:
// the list is opened, the next row is taken, a code is erased by its end and typed again.
double choisir(hote::Bureau& bureau, Frm_ElementsContrat& editeur, QWidget& fenetre) {
  screen::User user(editeur);
  user.Onglet(editeur.Ong_Contrat, editor::ElementsPaie);
  user.Taper(*editeur.Find("Txt_ProfilContrat"), std::to_string(PremierProfil));
  bureau.PousserTout();
  traiterTout();
  std::map<std::string, std::vector<double>> temps;
  const auto frapperDans = [&](const char* champ, Qt::Key touche, const QString& texte) {
    auto* const widget = fenetre.findChild<QWidget*>(champ);
    widget->setFocus();
    if (auto* const ligne = qobject_cast<QLineEdit*>(widget)) ligne->end(false);
    traiterTout();
    temps[champ + std::to_string(touche)].push_back(
        frapper(*fenetre.windowHandle(), touche, texte));
  };
  const auto& liste = dynamic_cast<screen::ListBox&>(*editeur.Find("Lst_ActiviteContrat"));
  const int avant = liste.ListCount();
  for (int tour = 0; tour < Tours; ++tour) {
    frapperDans("Cbo_Activite", Qt::Key_Down, "");
    frapperDans("Txt_ProfilContrat", Qt::Key_Backspace, "\b");
    frapperDans("Txt_ProfilContrat", Qt::Key_0, QString::number(tour % 10));
  }
  if (liste.ListCount() == avant) throw std::runtime_error("no activity was chosen");
  double pire = 0;
  for (const auto& [touche, prises] : temps) pire = std::max(pire, mediane(prises));
  return pire;
}

void imprimer(const char* titre, const std::vector<Resultat>& resultats) {
  std::printf("\n%s\n", titre);
  for (const Resultat& r : resultats)
    std::printf("  %-28s %8.1f us\n", r.champ.c_str(), r.temps / 1e3);
}

}  // namespace

void mesurerTouches(Medianes& medianes) {
  Base& base = bench::base(ContratsDemo);
  PosteEcran poste(base, base.aidant);
  LigneNue ligneNue;
  control::Ctr_Contrat& liste = poste.ecran->Controle();
  double pire = 0;
  const auto taper = [&](const char* titre, bool nouveau, const std::function<void()>& ouvrir) {
    Visite visite(nouveau ? QMessageBox::YesRole : QMessageBox::NoRole, [&](QWidget& fenetre) {
      Frm_ElementsContrat& editeur = editeurOuvert(poste.bureau);
      if (nouveau) remplir(base, poste.bureau, editeur);
      const auto resultats = Dactylo(poste.bureau, editeur, fenetre).Mesurer();
      imprimer(titre, resultats);
      for (const Resultat& r : resultats) pire = std::max(pire, r.temps);
    });
    ouvrir();
    visite.Rendre();
  };
  poste.fenetre.activateWindow();
  ligneNue.Mesurer();
  poste.ecran->Affiche("", "", "");
  taper("Un contrat existant", false,
        [&] { screen::User(liste).DoubleCliquer(liste.Lst_DatDebContrat, 0); });
  ligneNue.Mesurer();
  taper("Un contrat nouveau", true, [&] { screen::User(liste).Cliquer(liste.Cmd_Ajouter); });
  ligneNue.Mesurer();
  PosteEcran choix(bench::baseChoix(), contratChoix().substr(0, 5));
  Visite visite(QMessageBox::NoRole, [&](QWidget& fenetre) {
    medianes["toucheChoix"] = choisir(choix.bureau, editeurOuvert(choix.bureau), fenetre);
  });
  choix.ecran->Controle().W_CodeContrat = contratChoix();
  choix.ecran->Controle().Appel_Contrat();
  visite.Rendre();
  medianes["toucheEditeur"] = pire;
  medianes["toucheLigneNue"] = ligneNue.Mediane();
}

}  // namespace bench
