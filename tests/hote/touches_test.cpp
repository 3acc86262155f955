// Keys that type nothing, keys that type more than one character, and where Tab goes.

#include <QCalendarWidget>
#include <QClipboard>

#include "essai.h"
#include "liaison/aide_date.h"
#include "liaison/mnemoniques.h"

namespace {

using Touches = essai::Essai;

// The field takes digits and a point, five in all; a comma becomes a point.
TEST_F(Touches, APasteGoesThroughTheFieldsFilter) {
  const struct {
    const char* colle;
    const char* texte;
  } cas[] = {{"1 2,5x", "12.5"}, {"abc", ""}, {"1234567", "12345"}, {"a\tb7", "7"}};
  auto& champ = w<QLineEdit>("Txt_Num");
  for (const auto& c : cas) {
    aller("Txt_Num");
    champ.selectAll();
    QApplication::clipboard()->setText(c.colle);
    touche(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(champ.text().toStdString(), c.texte) << c.colle;
    EXPECT_EQ(forme.Txt_Num.Text(), c.texte) << c.colle;
  }
  taper("12");
  touche(Qt::Key_Home);
  QApplication::clipboard()->setText("x8");
  touche(Qt::Key_V, Qt::ControlModifier);
  taper("9");
  EXPECT_EQ(forme.Txt_Num.Text(), "89712");
}

TEST_F(Touches, AltAndALetterTypeNothing) {
  for (const char* nom : {"Txt_Date", "Txt_Notes", "Cbo_Ville"}) {
    aller(nom);
    QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_K, "k", Qt::AltModifier);
    EXPECT_EQ(forme.journal, "") << nom;
  }
  EXPECT_EQ(forme.Txt_Date.Text() + forme.Txt_Notes.Text() + forme.Cbo_Ville.Text(), "");
}

// The list is filled when it is opened: here Lyon and Nice.
TEST_F(Touches, AListTakesTheRowThatBeginsWithWhatIsTyped) {
  aller("Cbo_Ville");
  QLineEdit& saisie = *w<QComboBox>("Cbo_Ville").lineEdit();
  taper("n");
  EXPECT_EQ(saisie.text(), "nice");
  EXPECT_EQ(saisie.selectedText(), "ice");
  EXPECT_EQ(forme.Cbo_Ville.Text(), "n");
  touche(Qt::Key_Tab);
  EXPECT_EQ(forme.Prendre(), "Cbo_Ville=n Cbo_Ville:Nice -Cbo_Ville");
  EXPECT_EQ(saisie.text(), "Nice");
  // Esc takes the proposal back, then what was typed; a text that no row begins with stands.
  aller("Cbo_Ville");
  saisie.selectAll();
  taper("l");
  for (const char* attendu : {"lyon", "l"}) {
    EXPECT_EQ(saisie.text(), attendu);
    touche(Qt::Key_Escape);
  }
  EXPECT_EQ(saisie.text(), "Nice");
  saisie.selectAll();
  taper("x");
  touche(Qt::Key_Tab);
  EXPECT_EQ(forme.Cbo_Ville.Text(), "x");
}

TEST_F(Touches, ADateTakesItsKeysOnceItIsWhole) {
  auto& champ = w<QLineEdit>("Txt_Date");
  const struct {
    const char* texte;
    Qt::Key cle;
    const char* attendu;
  } cas[] = {{"31/12/2026", Qt::Key_Plus, "01/01/2027"},
             {"01/03/2024", Qt::Key_Minus, "29/02/2024"},
             {"1", Qt::Key_Minus, "1-"},
             {"", Qt::Key_Plus, "+"}};
  for (const auto& c : cas) {
    const QKeyEvent touche(QEvent::KeyPress, c.cle, {}, c.cle == Qt::Key_Plus ? "+" : "-");
    const auto date = hote::dateParTouche(touche, c.texte, 21511);
    EXPECT_EQ(date.value_or(c.texte + touche.text()), c.attendu) << c.texte;
  }
  const QKeyEvent aujourdhui(QEvent::KeyPress, Qt::Key_Semicolon, Qt::ControlModifier);
  EXPECT_EQ(hote::dateParTouche(aujourdhui, "x", 21511), "22/11/2026");
  // The calendar stands at the field's date; Enter takes the day.
  champ.setProperty(hote::ProprieteDate, true);
  aller("Txt_Date");
  taper("01/03/2026");
  const essai::Apres jour([&](QWidget& calendrier) {
    auto* const jours = calendrier.findChild<QCalendarWidget*>();
    ASSERT_NE(jours, nullptr);
    EXPECT_EQ(jours->selectedDate(), QDate(2026, 3, 1));
    jours->setSelectedDate(QDate(2026, 3, 9));
    emit jours->activated(jours->selectedDate());
  });
  touche(Qt::Key_F4);
  EXPECT_TRUE(QTest::qWaitFor([&] { return forme.Txt_Date.Text() == "09/03/2026"; }, 2000));
}

TEST_F(Touches, ARefusalLeavesTheTextToBeTypedOver) {
  aller("Txt_Notes");
  aller("Txt_Date");
  taper("boite");
  forme.Txt_Date.LostFocus = [this] {
    forme.MessageBox("Date douteuse");
    forme.Txt_Date.SetFocus();
  };
  const essai::Apres clerc([](QWidget& boite) { QTest::keyClick(&boite, Qt::Key_Return); });
  touche(Qt::Key_Tab);
  EXPECT_EQ(w<QLineEdit>("Txt_Date").selectedText(), "boite");
}

class Frm_Codes : public screen::Form {
 public:
  explicit Frm_Codes(screen::Platform& platform) : Form(platform, "Frm_Codes", "Codes") {
    Cmd_Retour.SetLibelle("Retour");
  }
  screen::TextField Txt_Entite{*this, "Txt_Entite", 3};
  screen::ComboBox Cbo_LibEntite{*this, "Cbo_LibEntite"};
  screen::TextField Txt_Fin{*this, "Txt_Fin"};
  screen::Button Cmd_Ajouter{*this, "Cmd_Ajouter", "Ajouter"};
  screen::Button Cmd_Annuler{*this, "Cmd_Annuler", "Annuler"};
  screen::Button Cmd_Reste{*this, "Cmd_Reste", "Aa & Nn"};
  screen::Button Cmd_Retour{*this, "Cmd_Retour", "R"};
};

TEST_F(Touches, TabGoesPastALabelThatItsCodeHasFound) {
  Frm_Codes codes(bureau.Plateforme());
  codes.Show();
  essai::Fenetre fenetre;
  new QVBoxLayout(&fenetre);
  essai::poser<QLineEdit>(fenetre, "Txt_Entite");
  essai::poser<ComboDeroulante>(fenetre, "Cbo_LibEntite");
  essai::poser<QLineEdit>(fenetre, "Txt_Fin");
  hote::Liaison l(codes, fenetre, bureau);
  fenetre.show();
  fenetre.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&fenetre));
  const struct {
    const char* code;
    const char* libelle;
    const char* ensuite;
  } cas[] = {
      {"001", "Siège", "Txt_Fin"}, {"", "Siège", "Cbo_LibEntite"}, {"001", "", "Cbo_LibEntite"}};
  for (const auto& c : cas) {
    codes.Txt_Entite.SetText(c.code);
    codes.Cbo_LibEntite.SetText(c.libelle);
    codes.Txt_Entite.SetFocus();
    l.Pousser();
    QTest::keyClick(fenetre.windowHandle(), Qt::Key_Tab);
    EXPECT_EQ(codes.Active()->Nom(), c.ensuite) << c.code << c.libelle;
  }
}

TEST_F(Touches, EachButtonHasALetterOfItsOwn) {
  const Frm_Codes codes(bureau.Plateforme());
  const hote::Mnemoniques lettres(codes, {u'r'});
  EXPECT_EQ(lettres.Libelle(codes.Cmd_Ajouter), "&Ajouter");
  EXPECT_EQ(lettres.Libelle(codes.Cmd_Annuler), "A&nnuler");
  EXPECT_EQ(lettres.Libelle(codes.Cmd_Reste), "Aa && Nn");
  EXPECT_EQ(lettres.Libelle(codes.Cmd_Retour), "R&etour");
}

}  // namespace
