#pragma once
// A small form of every kind of field, on widgets made by hand, driven by real clicks and keys. The
// journal notes the events in order: "-Txt_Date" for a LostFocus, "Cmd_OK" for a Click,
// "Txt_Nom=ab" for a Change.

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDialog>
#include <QFrame>
#include <QGroupBox>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>
#include <cstdlib>
#include <sstream>

#include "data/store_error.h"
#include "liaison/bureau.h"
#include "liaison/combo_deroulante.h"
#include "liaison/liaison.h"
#include "screen/form.h"
#include "support/table.h"

namespace essai {

// A clerk who waits behind the code under test: acts as soon as a window or box is there, and
// closes what is left after a while, so that a failed check leaves no loop open.
class Apres {
 public:
  explicit Apres(std::function<void(QWidget&)> acte) : acte_(std::move(acte)) { Guetter(); }
  int Fois() const { return fois_; }

 private:
  // A new timer each time: one that is being delivered is silent in a nested loop.
  void Guetter() {
    QTimer::singleShot(10, &vie_, [this] {
      Guetter();
      QWidget* const popup = QApplication::activePopupWidget();
      QWidget* const fenetre = popup != nullptr ? popup : QApplication::activeModalWidget();
      if (fenetre == nullptr || ++tours_ > 500) {
        if (fenetre != nullptr) std::abort();
        return;
      }
      // A window in which the clerk is still at work comes back to the front when a box closes.
      if (vue_ == fenetre || enCours_.contains(fenetre)) return;
      vue_ = fenetre;
      ++fois_;
      // A window is active a moment after it is shown.
      if (popup == nullptr) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return fenetre->isActiveWindow(); }, 2000));
      }
      enCours_ << fenetre;
      acte_(*fenetre);
      enCours_.removeOne(fenetre);
    });
  }

  QObject vie_;
  std::function<void(QWidget&)> acte_;
  QWidget* vue_ = nullptr;
  QList<const QWidget*> enCours_;
  int fois_ = 0;
  int tours_ = 0;
};

class Fenetre : public QDialog {
 public:
  void reject() override { close(); }
};

class Frm_Essai : public screen::Form {
 public:
  explicit Frm_Essai(screen::Platform& platform) : Form(platform, "Frm_Essai", "Essai") {
    Ong.Lier(0, Cdr_P1);
    Ong.Lier(1, Cdr_P2);
    for (screen::Field* const champ : Fields()) {
      champ->LostFocus = [this, champ] { noter("-" + champ->Nom()); };
    }
    Txt_Date.LostFocus = [this] {
      noter("-Txt_Date");
      if (Txt_Date.Text() == "?") Txt_Date.SetFocus();
      if (Txt_Date.Text() == "boite") MessageBox("Date douteuse");
    };
    Opt_1.LostFocus = [this] {
      noter("-Opt_1");
      if (optionGardee) Opt_1.SetFocus();
    };
    Txt_Num.KeyPress = [](char32_t& touche) {
      if (touche == U',') touche = U'.';
      const bool chiffre = (touche >= U'0' && touche <= U'9') || touche == U'.';
      if (!chiffre && touche != screen::ToucheRetour) touche = 0;
    };
    Txt_Num.Change = [this] {
      noter("Txt_Num=" + Txt_Num.Text());
      if (SurNum) SurNum();
    };
    Cbo_Ville.Click = [this] { noter("Cbo_Ville:" + Cbo_Ville.Text()); };
    Cbo_Ville.Change = [this] {
      noter("Cbo_Ville=" + Cbo_Ville.Text());
      if (SurVille) SurVille();
    };
    Cbo_Ville.DropDown = [this] {
      if (Cbo_Ville.ListCount() == 0) Cbo_Ville.AddItem("Lyon"), Cbo_Ville.AddItem("Nice");
    };
    for (int i = 0; i < 40; ++i) {
      Lst_A.AddItem("a" + std::to_string(i));
      Lst_B.AddItem("b" + std::to_string(i));
    }
    Lst_A.Click = [this] {
      noter("Lst_A" + std::to_string(Lst_A.ListIndex()));
      Lst_B.SetListIndex(Lst_A.ListIndex());
    };
    Lst_A.DblClick = [this] {
      noter("Lst_A!");
      if (SurDouble) SurDouble();
    };
    Opt_1.Click = [this] { noter("Opt_1"); };
    Opt_2.Click = [this] { noter("Opt_2"); };
    Cac_X.Click = [this] { noter("Cac_X"); };
    Bdh_N.Change = [this] { noter("Bdh_N" + std::to_string(Bdh_N.Value())); };
    Ong.Click = [this](int ancien) { noter("Ong<" + std::to_string(ancien)); };
    Cmd_OK.Click = [this] {
      noter("Cmd_OK");
      if (SurOk) SurOk();
    };
    Mnu_Sommaire.Click = [this] { noter("Mnu_Sommaire"); };
  }

  screen::Handler SurOk, SurNum, SurVille, SurDouble;
  bool fermable = true;
  bool optionGardee = false;
  std::string journal;
  std::string Prendre() { return std::exchange(journal, {}); }

  screen::Label Etq_Nom{*this, "Etq_Nom", "Dupont & Fils"};
  screen::TextField Txt_Date{*this, "Txt_Date"};
  screen::TextField Txt_Num{*this, "Txt_Num", 5};
  screen::TextField Txt_Notes{*this, "Txt_Notes", 40};
  screen::ComboBox Cbo_Ville{*this, "Cbo_Ville", true, 10};
  screen::Frame Cdr_Table{*this, "Cdr_Table"};
  screen::ListBox Lst_A{Cdr_Table, "Lst_A"};
  screen::ListBox Lst_B{Cdr_Table, "Lst_B"};
  screen::ScrollBar Bdv_T{Cdr_Table, "Bdv_T"};
  screen::Frame Cdr_G{*this, "Cdr_G", "Choix"};
  screen::OptionButton Opt_1{Cdr_G, "Opt_1", "Un"};
  screen::OptionButton Opt_2{Cdr_G, "Opt_2", "Deux"};
  screen::CheckBox Cac_X{*this, "Cac_X", "Coche"};
  screen::UpDown Bdh_N{*this, "Bdh_N"};
  screen::TabStrip Ong{*this, "Ong", {"Premier", "Second"}};
  screen::Frame Cdr_P1{*this, "Cdr_P1"};
  screen::TextField Txt_P1{Cdr_P1, "Txt_P1", 0};
  screen::Frame Cdr_P2{*this, "Cdr_P2"};
  screen::TextField Txt_P2{Cdr_P2, "Txt_P2(0)", 0};
  screen::Button Cmd_OK{*this, "Cmd_OK", "&Valider"};
  screen::MenuItem Mnu_Aide{*this, "Mnu_Aide", "Aide"};
  screen::MenuItem Mnu_Sommaire{*this, "Mnu_Sommaire", "Aide KORVALDIS"};

 protected:
  bool QueryUnload() override { return fermable; }
  void MouseDown(int) override { Services().modales.MontrerMenu(*this, "Mnu_Aide"); }

 private:
  void noter(const std::string& evenement) { journal += (journal.empty() ? "" : " ") + evenement; }
};

template <typename Widget>
Widget* poser(QWidget& parent, const char* nom) {
  auto* const widget = new Widget(&parent);
  widget->setObjectName(nom);
  parent.layout()->addWidget(widget);
  return widget;
}

// The widgets of Frm_Essai, in another order than its fields.
inline std::unique_ptr<QWidget> construireEssai() {
  auto racine = std::make_unique<Fenetre>();
  new QVBoxLayout(racine.get());
  poser<QPushButton>(*racine, "Cmd_OK");
  poser<QLabel>(*racine, "Etq_Nom");
  for (const char* const nom : {"Txt_Num", "Txt_Date"}) poser<QLineEdit>(*racine, nom);
  poser<QPlainTextEdit>(*racine, "Txt_Notes")->setMaximumHeight(60);
  poser<ComboDeroulante>(*racine, "Cbo_Ville");
  auto* const table = poser<QFrame>(*racine, "Cdr_Table");
  new QHBoxLayout(table);
  for (const char* const nom : {"Lst_A", "Lst_B"}) {
    poser<QListWidget>(*table, nom)->setFixedHeight(100);
  }
  poser<QScrollBar>(*table, "Bdv_T");
  auto* const groupe = poser<QGroupBox>(*racine, "Cdr_G");
  new QHBoxLayout(groupe);
  for (const char* const nom : {"Opt_1", "Opt_2"}) poser<QRadioButton>(*groupe, nom);
  poser<QCheckBox>(*racine, "Cac_X");
  poser<QSpinBox>(*racine, "Bdh_N");
  auto* const onglets = poser<QTabWidget>(*racine, "Ong");
  for (const char* const nom : {"Cdr_P1", "Cdr_P2"}) {
    auto* const page = new QWidget;
    page->setObjectName(nom);
    new QVBoxLayout(page);
    poser<QLineEdit>(*page, nom == std::string("Cdr_P1") ? "Txt_P1" : "Txt_P2_0");
    onglets->addTab(page, "");
  }
  return racine;
}

class Essai : public ::testing::Test {
 protected:
  Essai() {
    bureau.Enregistrer("Frm_Essai", construireEssai);
    forme.Show();
    racine = construireEssai();
    liaison = std::make_unique<hote::Liaison>(forme, *racine, bureau);
    QObject::connect(liaison.get(), &hote::Liaison::formeCachee, racine.get(), &QWidget::hide);
    racine->show();
    racine->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(racine.get()));
    QCoreApplication::processEvents();
    forme.Prendre();
  }

  template <typename Widget = QWidget>
  Widget& w(const char* nom) {
    Widget* const widget = racine->findChild<Widget*>(nom);
    if (widget == nullptr) throw std::logic_error(std::string("no widget ") + nom);
    return *widget;
  }
  // A click where the screen shows the widget, as the window system gives it: modal windows block
  // it.
  void cliquer(QWidget& widget, QPoint place = {}, Qt::MouseButton bouton = Qt::LeftButton) {
    if (place.isNull()) place = widget.rect().center();
    QTest::mouseClick(racine->windowHandle(), bouton, {}, widget.mapTo(racine.get(), place));
    QCoreApplication::processEvents();
  }
  void ligne(const char* liste, int rang) {
    auto& l = w<QListWidget>(liste);
    cliquer(*l.viewport(), l.visualItemRect(l.item(rang)).center());
  }
  void option(const char* nom) { cliquer(w(nom), {8, w(nom).height() / 2}); }
  // To the window, so that shortcuts count.
  void touche(Qt::Key cle, Qt::KeyboardModifiers modifs = {}) {
    QTest::keyClick(racine->windowHandle(), cle, modifs);
    QCoreApplication::processEvents();
  }
  void taper(const QString& texte) {
    QWidget* const cible = QApplication::focusWidget();
    ASSERT_NE(cible, nullptr);
    for (const QChar c : texte) QTest::keyClick(cible, c.toLatin1());
    QCoreApplication::processEvents();
  }
  void aller(const char* nom) {
    cliquer(w(nom));
    EXPECT_EQ(actif(), nom);
    forme.Prendre();
  }
  void faire(const std::string& acte) {
    std::istringstream mots(acte);
    std::string verbe, nom, reste;
    mots >> verbe >> nom;
    std::getline(mots >> std::ws, reste);
    const auto combinaison = [&nom] { return QKeySequence(QString::fromStdString(nom))[0]; };
    if (verbe == "aller") aller(nom.c_str());
    if (verbe == "cliquer") cliquer(w(nom.c_str()));
    if (verbe == "option") option(nom.c_str());
    if (verbe == "ligne") ligne(nom.c_str(), std::stoi(reste));
    if (verbe == "fleche") cliquer(w(nom.c_str()), {w(nom.c_str()).width() - 5, 5});
    if (verbe == "onglet") {
      QTabBar& barre = *w<QTabWidget>("Ong").tabBar();
      cliquer(barre, barre.tabRect(std::stoi(nom)).center());
    }
    // As a screen reader does, which moves no focus.
    if (verbe == "activer") w<QTabWidget>("Ong").setCurrentIndex(std::stoi(nom));
    if (verbe == "tout") w<QLineEdit>(nom.c_str()).selectAll();
    if (verbe == "touche") touche(combinaison().key(), combinaison().keyboardModifiers());
    if (verbe == "taper") taper(QString::fromStdString(nom));
    if (verbe == "coller") {
      QApplication::clipboard()->setText(QString::fromStdString(nom));
      touche(Qt::Key_V, Qt::ControlModifier);
    }
    if (verbe == "composer") {
      QInputMethodEvent evenement;
      evenement.setCommitString(QString::fromStdString(nom));
      QCoreApplication::sendEvent(QApplication::focusWidget(), &evenement);
    }
    if (verbe == "griser" || verbe == "poser" || verbe == "cacher") {
      screen::Field& champ = *forme.Find(nom);
      if (verbe == "cacher") champ.SetVisible(false);
      if (verbe == "griser") champ.SetEnabled(false);
      if (auto* const texte = dynamic_cast<screen::TextField*>(&champ)) texte->SetText(reste);
      if (auto* const liste = dynamic_cast<screen::ListBox*>(&champ)) {
        liste->SetListIndex(std::stoi(reste));
      }
      if (auto* const o = dynamic_cast<screen::OptionButton*>(&champ)) o->SetValue(reste != "0");
      if (auto* const n = dynamic_cast<screen::UpDown*>(&champ)) n->SetValue(std::stoi(reste));
      liaison->Pousser();
    }
    if (verbe == "griser" || verbe == "cacher" || verbe == "garder") forme.Prendre();
    if (verbe == "garder") forme.optionGardee = true;
  }
  // What the widget shows, and for a text the model too.
  std::string montre(const std::string& nom) {
    if (nom == "focus") return focus();
    if (nom == "actif") return actif();
    if (nom == "curseur") return std::to_string(w<QLineEdit>("Txt_Num").cursorPosition());
    QWidget& widget = w(nom.c_str());
    if (auto* const liste = qobject_cast<QListWidget*>(&widget)) {
      return std::to_string(liste->currentRow());
    }
    if (auto* const o = qobject_cast<QRadioButton*>(&widget)) return o->isChecked() ? "1" : "0";
    if (auto* const n = qobject_cast<QSpinBox*>(&widget)) return std::to_string(n->value());
    const std::string texte = dynamic_cast<QLineEdit&>(widget).text().toStdString();
    EXPECT_EQ(texte, dynamic_cast<screen::TextField&>(*forme.Find(nom)).Text());
    return texte;
  }
  // Walks through a table: an act, the events that it brings, what is shown then.
  void parcourir(const char* titre) {
    for (const auto& [acte, evenements, vus] : support::table<3>("hote/parcours.md", titre)) {
      SCOPED_TRACE(std::string(titre) + ": " + acte);
      faire(acte);
      EXPECT_EQ(forme.Prendre(), evenements);
      std::istringstream mots(vus);
      for (std::string mot; mots >> mot;) {
        const std::size_t egal = mot.find('=');
        EXPECT_EQ(montre(mot.substr(0, egal)), mot.substr(egal + 1)) << mot;
      }
    }
  }
  std::string actif() const { return forme.Active() == nullptr ? "" : forme.Active()->Nom(); }
  std::string focus() const {
    const QWidget* widget = QApplication::focusWidget();
    if (qobject_cast<const QTabBar*>(widget) != nullptr) widget = widget->parentWidget();
    return widget == nullptr ? "" : widget->objectName().toStdString();
  }

  QTemporaryDir dossier;
  hote::Bureau bureau{
      nullptr, std::make_unique<QSettings>(dossier.filePath("reglages.ini"), QSettings::IniFormat)};
  Frm_Essai forme{bureau.Plateforme()};
  std::unique_ptr<QWidget> racine;
  std::unique_ptr<hote::Liaison> liaison;
};

}  // namespace essai
