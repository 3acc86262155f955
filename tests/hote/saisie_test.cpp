// Typing, choosing and what the model shows back.

#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>

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

// What a clerk does beside typing; each line goes on from the text that the former has left.
TEST_F(Saisie, EditingKeys) {
  aller("Txt_Num");
  auto& champ = w<QLineEdit>("Txt_Num");
  const struct {
    const char* nom;
    std::function<void()> acte;
    const char* texte;
  } cas[] = {
      {"keys", [&] { taper("123"); }, "123"},
      {"cut", [&] { champ.selectAll(), touche(Qt::Key_X, Qt::ControlModifier); }, ""},
      {"undo", [&] { touche(Qt::Key_Z, Qt::ControlModifier); }, "123"},
      {"Delete", [&] { touche(Qt::Key_Home), touche(Qt::Key_Delete); }, "23"},
      {"dropped over a selection", [&] { champ.selectAll(), taper("x"); }, "23"},
      {"changed over a selection", [&] { champ.selectAll(), taper(","); }, "."},
      {"third level",
       [&] {
         QTest::sendKeyEvent(QTest::Click, &champ, Qt::Key_7, "7",
                             Qt::ControlModifier | Qt::AltModifier);
       },
       ".7"},
      {"word", [&] { touche(Qt::Key_Backspace, Qt::ControlModifier); }, "."},
      {"undo after a program's text",
       [&] {
         forme.Txt_Num.SetText("5");
         liaison->Pousser();
         touche(Qt::Key_Z, Qt::ControlModifier);
       },
       "5"},
  };
  for (const auto& c : cas) {
    SCOPED_TRACE(c.nom);
    c.acte();
    EXPECT_EQ(forme.Txt_Num.Text(), c.texte);
    EXPECT_EQ(affiche("Txt_Num"), c.texte);
  }
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
  ligne("Lst_A", 1);
  EXPECT_EQ(b.currentRow(), 1);
  EXPECT_TRUE(b.item(1)->isSelected());
  ligne("Lst_A", 1);
  EXPECT_EQ(forme.Prendre(), "-Txt_Date Lst_A1 Lst_A1");
  // Only the left button chooses.
  for (const auto bouton : {Qt::RightButton, Qt::MiddleButton}) {
    cliquer(*a.viewport(), a.visualItemRect(a.item(3)).center(), bouton);
  }
  touche(Qt::Key_Down);
  touche(Qt::Key_End);
  touche(Qt::Key_Home);
  EXPECT_EQ(forme.Prendre(), "Lst_A2 Lst_A39 Lst_A0");
  EXPECT_EQ(b.currentRow(), 0);
  a.verticalScrollBar()->setValue(12);
  EXPECT_EQ(b.verticalScrollBar()->value(), 12);
  forme.Lst_A.SetListIndex(39);
  liaison->Pousser();
  EXPECT_TRUE(a.viewport()->rect().contains(a.visualItemRect(a.item(39)).center()));
  EXPECT_EQ(b.verticalScrollBar()->value(), a.verticalScrollBar()->value());
  // The first arrow in a list without a row takes the first row; Enter opens as a double click.
  forme.Lst_A.SetListIndex(-1);
  liaison->Pousser();
  forme.Prendre();
  for (const auto cle : {Qt::Key_Return, Qt::Key_Down, Qt::Key_Down, Qt::Key_Enter}) touche(cle);
  EXPECT_EQ(forme.Prendre(), "Lst_A0 Lst_A1 Lst_A1 Lst_A!");
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
  option("Opt_1");
  EXPECT_EQ(allumees(), "1");
  touche(Qt::Key_Right);
  EXPECT_EQ(allumees(), "2");
  EXPECT_EQ(forme.Prendre(), "-Txt_Date Opt_1 -Opt_1 Opt_2");
  forme.Opt_2.SetValue(false);
  liaison->Pousser();
  EXPECT_EQ(allumees(), "");
  EXPECT_EQ(forme.Prendre(), "");
  // The arrows choose, also where none is on yet, round the end, and against one refusal.
  touche(Qt::Key_Down);
  EXPECT_EQ(allumees(), "1");
  forme.optionGardee = true;
  touche(Qt::Key_Left);
  EXPECT_EQ(allumees(), "1");
  EXPECT_EQ(forme.Prendre() + "/" + focus(), "-Opt_2 Opt_1 -Opt_1/Opt_1");
}

TEST_F(Saisie, ArrowsCountAndTheirTextDoesNot) {
  aller("Bdh_N");
  forme.Bdh_N.SetValue(3);
  liaison->Pousser();
  forme.Prendre();
  touche(Qt::Key_A, Qt::ControlModifier);
  taper("7");
  coller("8");
  touche(Qt::Key_Up);
  touche(Qt::Key_Down);
  EXPECT_EQ(forme.Prendre(), "Bdh_N4 Bdh_N3");
  EXPECT_EQ(w<QSpinBox>("Bdh_N").value(), 3);
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
