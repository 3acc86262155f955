// Typing, choosing and what the model shows back.

#include <QDropEvent>
#include <QMimeData>

#include "essai.h"

namespace {

using essai::Apres;

class Saisie : public essai::Essai {
 protected:
  void coller(const QString& texte) {
    QApplication::clipboard()->setText(texte);
    touche(Qt::Key_V, Qt::ControlModifier);
  }
  std::string affiche(const char* nom) { return w<QLineEdit>(nom).text().toStdString(); }
};

TEST_F(Saisie, EveryFieldHasItsWidget) {
  EXPECT_EQ(liaison->Ecarts().join(", ").toStdString(), "");
  EXPECT_EQ(w<QLabel>("Etq_Nom").text(), "Dupont & Fils");
  EXPECT_EQ(w<QTabWidget>("Ong").tabText(1), "Second");
  EXPECT_EQ(racine->windowTitle(), "Essai");
  w("Cac_X").setObjectName("Cac_Y");
  hote::Liaison autre(forme, *racine, bureau);
  EXPECT_EQ(autre.Ecarts().join(", ").toStdString(),
            "field without its widget: Cac_X, widget without its field: Cac_Y");
}

// The field takes digits and a point, five in all; a comma becomes a point. A paste goes round.
TEST_F(Saisie, KeyFilterSeesKeysAndDeadKeysAndAPasteGoesRound) {
  parcourir("Le filtre des touches");
  w<QLineEdit>("Txt_Num").selectAll();
  coller(
      "a\tb\x07"
      "cdefgh");
  EXPECT_EQ(forme.Txt_Num.Text(), affiche("Txt_Num"));
  EXPECT_LE(forme.Txt_Num.Text().size(), 5U);
  EXPECT_EQ(forme.Txt_Num.Text().find_first_of("\t\x07"), std::string::npos);
}

TEST_F(Saisie, EditingKeys) {
  parcourir("Les touches d'édition");
  // The third level of a keyboard is typed with Ctrl and Alt.
  QTest::sendKeyEvent(QTest::Click, &w("Txt_Num"), Qt::Key_7, "7",
                      Qt::ControlModifier | Qt::AltModifier);
  EXPECT_EQ(forme.Prendre() + " " + affiche("Txt_Num"), "Txt_Num=57 57");
}

// A text that is dropped on a field is an act on it: the field before must be left.
TEST_F(Saisie, DroppedTextLeavesTheFieldBefore) {
  aller("Txt_Date");
  taper("?");
  QMimeData donnees;
  donnees.setText("12");
  for (const bool refus : {true, false}) {
    if (!refus) forme.Txt_Date.SetText("");
    QDragEnterEvent arrivee({5, 5}, Qt::CopyAction, &donnees, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&w("Txt_Num"), &arrivee);
    QDropEvent depot({5, 5}, Qt::CopyAction, &donnees, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&w("Txt_Num"), &depot);
    QCoreApplication::processEvents();
    EXPECT_EQ(forme.Prendre(), refus ? "-Txt_Date" : "-Txt_Date Txt_Num=12");
    EXPECT_EQ(affiche("Txt_Num"), refus ? "" : "12");
    EXPECT_EQ(focus(), refus ? "Txt_Date" : "Txt_Num");
  }
}

// A handler of the key that fails, or goes elsewhere, takes the key.
TEST_F(Saisie, KeyOfAHandlerThatFailsOrLeavesIsDropped) {
  Apres clerc([](QWidget& boite) { QTest::keyClick(&boite, Qt::Key_Escape); });
  aller("Txt_Num");
  forme.Txt_Num.KeyPress = [](char32_t&) { throw std::runtime_error("panne"); };
  taper("1");
  EXPECT_EQ(clerc.Fois(), 1);
  EXPECT_TRUE(QTest::qWaitForWindowActive(racine.get()));
  forme.Txt_Num.KeyPress = [this](char32_t&) { forme.Txt_P1.SetFocus(); };
  taper("2");
  EXPECT_EQ(forme.Prendre() + affiche("Txt_Num") + affiche("Txt_P1"), "-Txt_Num");
  // A key that the filter changes is one change too, even when that moves the focus.
  forme.Txt_Num.KeyPress = [](char32_t& touche) { touche = U'.'; };
  forme.SurNum = [this] { forme.Txt_P1.SetFocus(); };
  aller("Txt_Num");
  taper(",");
  EXPECT_EQ(forme.Prendre(), "Txt_Num=. -Txt_Num");
  EXPECT_EQ(focus(), "Txt_P1");
}

TEST_F(Saisie, LongPasteIsCutAndAProgramMaySetMore) {
  cliquer(w("Txt_Notes"));
  coller(QString(100000, 'x') + "\n");
  EXPECT_EQ(forme.Txt_Notes.Text(), std::string(40, 'x'));
  EXPECT_EQ(w<QPlainTextEdit>("Txt_Notes").toPlainText().size(), 40);
  forme.Txt_Notes.SetText("un\r\ndeux");
  forme.Txt_Num.SetText("1234567");
  liaison->Pousser();
  EXPECT_EQ(w<QPlainTextEdit>("Txt_Notes").toPlainText(), "un\ndeux");
  EXPECT_EQ(forme.Txt_Notes.Text(), "un\r\ndeux");
  // The unbreakable blank of an amount outlives an edit beside it.
  forme.Txt_Notes.SetText("12\u00a0000");
  liaison->Pousser();
  touche(Qt::Key_Home);
  taper("!");
  EXPECT_EQ(forme.Txt_Notes.Text(), "!12\u00a0000");
  EXPECT_EQ(affiche("Txt_Num"), "1234567");
}

TEST_F(Saisie, DropDownIsFilledLateAndChosenOrTyped) {
  auto& combo = w<ComboDeroulante>("Cbo_Ville");
  combo.setFocus();
  touche(Qt::Key_Down);
  EXPECT_EQ(forme.Prendre(), "-Txt_Date Cbo_Ville:Lyon");
  forme.Cbo_Ville.Clear();
  liaison->Pousser();
  taper("P");
  EXPECT_EQ(forme.Prendre(), "Cbo_Ville=P");
  combo.showPopup();
  ASSERT_EQ(combo.count(), 2);
  combo.hidePopup();
  racine->activateWindow();
  EXPECT_EQ(focus(), "Cbo_Ville");
  touche(Qt::Key_Down);
  EXPECT_EQ(forme.Prendre(), "Cbo_Ville:Lyon");
  EXPECT_EQ(forme.Cbo_Ville.ListIndex(), 0);
  taper("x");
  EXPECT_EQ(combo.currentText().toStdString(), forme.Cbo_Ville.Text());
  EXPECT_EQ(combo.currentIndex(), -1);
  EXPECT_EQ(forme.Cbo_Ville.ListIndex(), -1);
  // Rows that are filled anew under the keys leave the cursor where it is.
  forme.SurVille = [this] {
    forme.Cbo_Ville.AddItem("Ville " + std::to_string(forme.Cbo_Ville.ListCount()));
  };
  touche(Qt::Key_Home);
  taper("abc");
  EXPECT_EQ(forme.Cbo_Ville.Text(), "abcLyonx");
  forme.SurVille = nullptr;
  forme.Cbo_Ville.SetListIndex(1);
  liaison->Pousser();
  touche(Qt::Key_End);
  taper("yz");
  EXPECT_EQ(forme.Cbo_Ville.Text(), "Niceyz");
  // The end of the edit is no choice.
  forme.Prendre();
  touche(Qt::Key_Return);
  touche(Qt::Key_Tab);
  EXPECT_EQ(forme.Prendre(), "-Cbo_Ville");
}

TEST_F(Saisie, RefusedLeaveKeepsTheRowsHidden) {
  aller("Txt_Date");
  taper("?");
  auto& combo = w<ComboDeroulante>("Cbo_Ville");
  cliquer(combo, {combo.width() - 5, combo.height() / 2});
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  EXPECT_EQ(actif(), "Txt_Date");
  EXPECT_EQ(focus(), "Txt_Date");
}

// A drop-down without typing shows what a record holds, in its rows or not, and nothing for
// nothing.
TEST_F(Saisie, FixedDropDownShowsTextsOutsideItsRows) {
  class Frm_Fixe : public screen::Form {
   public:
    explicit Frm_Fixe(screen::Platform& plateforme) : Form(plateforme, "Frm_Fixe", "Fixe") {
      Cbo_Fixe.AddItem("Lyon");
    }
    screen::ComboBox Cbo_Fixe{*this, "Cbo_Fixe", false};
  } fixe(bureau.Plateforme());
  QDialog fenetre;
  new QVBoxLayout(&fenetre);
  auto* const combo = essai::poser<ComboDeroulante>(fenetre, "Cbo_Fixe");
  hote::Liaison liens(fixe, fenetre, bureau);
  const struct {
    const char* texte;
    int ligne;
    const char* montre;
  } cas[] = {{"Ancienne", -1, "Ancienne"}, {"", -1, ""}, {"Lyon", 0, "Lyon"}, {"", -1, ""}};
  for (const auto& c : cas) {
    fixe.Cbo_Fixe.SetListIndex(c.ligne);
    fixe.Cbo_Fixe.SetText(c.texte);
    liens.Pousser();
    EXPECT_EQ(combo->currentIndex(), c.ligne) << c.montre;
    const QString montre = c.ligne < 0 ? combo->placeholderText() : combo->currentText();
    EXPECT_EQ(montre, c.montre);
  }
}

TEST_F(Saisie, ListsOfOneTableAreSelectedAndScrolledAsOne) {
  auto& a = w<QListWidget>("Lst_A");
  auto& b = w<QListWidget>("Lst_B");
  parcourir("Les listes d'une table");
  // Only the left button chooses.
  for (const auto bouton : {Qt::RightButton, Qt::MiddleButton}) {
    cliquer(*a.viewport(), a.visualItemRect(a.item(3)).center(), bouton);
  }
  EXPECT_EQ(forme.Prendre(), "");
  a.verticalScrollBar()->setValue(12);
  EXPECT_EQ(b.verticalScrollBar()->value(), 12);
  forme.Lst_A.SetListIndex(39);
  liaison->Pousser();
  EXPECT_TRUE(a.viewport()->rect().contains(a.visualItemRect(a.item(39)).center()));
  EXPECT_EQ(b.verticalScrollBar()->value(), a.verticalScrollBar()->value());
  forme.Lst_A.Clear();
  liaison->Pousser();
  EXPECT_EQ(a.count(), 0);
}

TEST_F(Saisie, DoubleClickFollowsTheClick) {
  auto& a = w<QListWidget>("Lst_A");
  const QPoint place = a.viewport()->mapTo(racine.get(), a.visualItemRect(a.item(2)).center());
  QTest::mouseDClick(racine->windowHandle(), Qt::LeftButton, {}, place);
  // The second press is a click of its own before it is a double click.
  EXPECT_EQ(forme.Prendre(), "-Txt_Date Lst_A2 Lst_A2 Lst_A!");
}

// The model sets one, none, the other; the widgets follow without an event of their own. Arrows
// choose, also where none is on yet, round the end, and against one refusal.
TEST_F(Saisie, OptionsFollowTheModel) {
  parcourir("Les options");
}

TEST_F(Saisie, ATabThatAScreenReaderActivatesIsShown) {
  parcourir("Un onglet qu'un lecteur d'écran active");
}

TEST_F(Saisie, ArrowsCountAndTheirTextDoesNot) {
  parcourir("Les flèches");
}

// The wheel turns a value only where the user is, and then nothing else.
TEST_F(Saisie, StrayWheelDoesNothing) {
  struct Guet : QObject {
    int roues = 0;
    bool eventFilter(QObject*, QEvent* e) override {
      roues += e->type() == QEvent::Wheel;
      return false;
    }
  } guet;
  racine->installEventFilter(&guet);
  forme.Cbo_Ville.AddItem("Lyon");
  liaison->Pousser();
  aller("Txt_Num");
  QWidget* const cibles[] = {&w("Cbo_Ville"), &w("Bdh_N"), w<QTabWidget>("Ong").tabBar()};
  for (QWidget* const cible : cibles) {
    EXPECT_NE(cible->focusPolicy(), Qt::WheelFocus);
    const QPoint milieu = cible->rect().center();
    QWheelEvent roue(milieu, cible->mapToGlobal(milieu), {}, {0, -120}, Qt::NoButton, {},
                     Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(cible, &roue);
  }
  EXPECT_EQ(forme.Prendre(), "");
  EXPECT_EQ(guet.roues, 0);
}

}  // namespace
