// Typing, choosing and what the model shows back.

#include <QClipboard>
#include <QInputMethodEvent>

#include "essai.h"

namespace {

using essai::Apres;

class Saisie : public essai::Essai {
 protected:
  void composer(const QString& texte) {
    QInputMethodEvent evenement;
    evenement.setCommitString(texte);
    QCoreApplication::sendEvent(QApplication::focusWidget(), &evenement);
  }
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

// The field takes digits and a point, five in all; a comma becomes a point.
TEST_F(Saisie, KeyFilterSeesKeysAndDeadKeysAndAPasteGoesRound) {
  aller("Txt_Num");
  taper("1a,");
  composer("ê");
  composer("x7");
  EXPECT_EQ(forme.Prendre(), "Txt_Num=1 Txt_Num=1. Txt_Num=1.7");
  touche(Qt::Key_Home);
  taper("9");
  EXPECT_EQ(affiche("Txt_Num"), "91.7");
  EXPECT_EQ(w<QLineEdit>("Txt_Num").cursorPosition(), 1);
  touche(Qt::Key_Backspace);
  taper("234");
  EXPECT_EQ(affiche("Txt_Num"), "231.7");
  EXPECT_EQ(forme.Txt_Num.Text(), "231.7");
  w<QLineEdit>("Txt_Num").selectAll();
  coller(
      "a\tb\x07"
      "cdefgh");
  EXPECT_EQ(forme.Txt_Num.Text(), affiche("Txt_Num"));
  EXPECT_LE(forme.Txt_Num.Text().size(), 5U);
  EXPECT_EQ(forme.Txt_Num.Text().find_first_of("\t\x07"), std::string::npos);
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
  EXPECT_EQ(affiche("Txt_Num"), "1234567");
}

TEST_F(Saisie, DropDownIsFilledLateAndChosenOrTyped) {
  auto& combo = w<ComboDeroulante>("Cbo_Ville");
  combo.setFocus();
  taper("P");
  EXPECT_EQ(forme.Prendre(), "-Txt_Date Cbo_Ville=P");
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

TEST_F(Saisie, ListsOfOneTableAreSelectedAndScrolledAsOne) {
  auto& a = w<QListWidget>("Lst_A");
  auto& b = w<QListWidget>("Lst_B");
  ligne("Lst_A", 1);
  EXPECT_EQ(b.currentRow(), 1);
  EXPECT_TRUE(b.item(1)->isSelected());
  ligne("Lst_A", 1);
  EXPECT_EQ(forme.Prendre(), "-Txt_Date Lst_A1 Lst_A1");
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

// The model sets one, none, the other; the widgets follow without an event of their own.
TEST_F(Saisie, OptionsFollowTheModel) {
  const auto allumees = [this] {
    return std::string(w<QRadioButton>("Opt_1").isChecked() ? "1" : "") +
           (w<QRadioButton>("Opt_2").isChecked() ? "2" : "");
  };
  cliquer(w("Opt_1"), {8, w("Opt_1").height() / 2});
  EXPECT_EQ(allumees(), "1");
  touche(Qt::Key_Right);
  EXPECT_EQ(allumees(), "2");
  EXPECT_EQ(forme.Prendre(), "-Txt_Date Opt_1 -Opt_1 Opt_2");
  forme.Opt_2.SetValue(false);
  liaison->Pousser();
  EXPECT_EQ(allumees(), "");
  EXPECT_EQ(forme.Prendre(), "");
}

TEST_F(Saisie, WheelTurnsOnlyWhatTheUserIsIn) {
  forme.Cbo_Ville.AddItem("Lyon");
  liaison->Pousser();
  aller("Txt_Num");
  auto& combo = w<ComboDeroulante>("Cbo_Ville");
  QWheelEvent roue(combo.rect().center(), combo.mapToGlobal(combo.rect().center()), {}, {0, -120},
                   Qt::NoButton, {}, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&combo, &roue);
  EXPECT_EQ(forme.Cbo_Ville.ListIndex(), -1);
}

}  // namespace
