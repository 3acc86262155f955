// The looks of the forms: nothing cut or laid over another in a larger font, disabled texts that
// read, and the contract that runs picked out of the list. The forms are taken unbound, so that
// every field shows at once, which is more than any contract shows.

#include "widget/apparence.h"

#include <QScrollArea>
#include <QScrollBar>

#include "essai.h"
#include "widget/formes.h"
#include "widget/lignes_contrats.h"

namespace {

constexpr const char* Formes[] = {"Ctr_Contrat",        "Frm_ElementsContrat", "Frm_MotifCDD",
                                  "Frm_MotifsEmbauche", "Frm_Stage",           "Frm_Reprise",
                                  "Frm_QualifPro",      "Frm_ElemDroitPublic", "Frm_RubSaisie",
                                  "Frm_CommentBull",    "Frm_ContratAnnuel"};
// A screen of 1366x768 at a scale of one and a half, less its title bar, its task bar and the
// host's menu; the pages scroll downwards only there, and their columns stand beside each other
// on a screen of 1024.
constexpr QSize Place{904, 426};
constexpr int LargeurAise = 1024;

class Apparence : public ::testing::TestWithParam<double> {
 protected:
  Apparence() { hote::enregistrerFormes(bureau); }
  ~Apparence() override {
    QApplication::setFont(police);
    QApplication::setPalette(palette);
  }
  void grossir(double facteur) {
    QFont grande = police;
    grande.setPointSizeF(police.pointSizeF() * facteur);
    QApplication::setFont(grande);
  }
  std::unique_ptr<QWidget> montrer(const std::string& forme) {
    auto racine = bureau.Construire(forme);
    racine->show();
    QCoreApplication::processEvents();
    return racine;
  }
  const QFont police = QApplication::font();
  const QPalette palette = QApplication::palette();
  QTemporaryDir dossier;
  hote::Bureau bureau{
      nullptr, std::make_unique<QSettings>(dossier.filePath("reglages.ini"), QSettings::IniFormat)};
};

// What the widget must hold to be read whole, in the bold of a list's current rows where it is one.
QSize besoin(const QWidget& widget) {
  const QString chiffres(widget.property("caracteres").toInt(), '0');
  if (qobject_cast<const QLineEdit*>(&widget) != nullptr && !chiffres.isEmpty()) {
    return {widget.fontMetrics().horizontalAdvance(chiffres), widget.fontMetrics().height()};
  }
  if (qobject_cast<const QListWidget*>(&widget) != nullptr && !chiffres.isEmpty()) {
    QFont gras = widget.font();
    gras.setBold(true);
    return {QFontMetrics(gras).horizontalAdvance(chiffres), 0};
  }
  const auto* const etiquette = qobject_cast<const QLabel*>(&widget);
  const bool texte = etiquette != nullptr
                         ? !etiquette->wordWrap() && !etiquette->text().isEmpty()
                         : qobject_cast<const QAbstractButton*>(&widget) != nullptr;
  return texte ? widget.sizeHint() : QSize(0, 0);
}

std::string defauts(const QWidget& racine) {
  QStringList defauts;
  for (const QWidget* const widget : racine.findChildren<QWidget*>()) {
    if (!widget->isVisible() || widget->size().isEmpty() || widget->objectName().startsWith("qt_"))
      continue;
    const QSize voulu = besoin(*widget);
    if (voulu.width() > widget->width() || voulu.height() > widget->height()) {
      defauts << widget->objectName() + " is cut";
    }
    const QWidget* const parent = widget->parentWidget();
    if (parent->layout() == nullptr) continue;
    if (!parent->rect().contains(widget->geometry()))
      defauts << widget->objectName() + " sticks out";
    for (const QObject* const autre : parent->children()) {
      const auto* const voisin = qobject_cast<const QWidget*>(autre);
      if (voisin == nullptr || voisin == widget || !voisin->isVisible()) continue;
      if (voisin->geometry().intersects(widget->geometry())) {
        defauts << widget->objectName() + " lies over " + voisin->objectName();
      }
    }
  }
  return defauts.join("\n").toStdString();
}

TEST_P(Apparence, NothingIsCutNorLaidOver) {
  grossir(GetParam());
  for (const char* const forme : Formes) {
    const auto racine = montrer(forme);
    EXPECT_LE(racine->minimumSizeHint().width(), Place.width() * GetParam()) << forme;
    EXPECT_LE(racine->minimumSizeHint().height(), Place.height() * GetParam()) << forme;
    racine->resize(racine->minimumSizeHint());
    auto* const onglets = racine->findChild<QTabWidget*>();
    for (int i = 0; i < (onglets == nullptr ? 1 : onglets->count()); ++i) {
      if (onglets != nullptr) onglets->setCurrentIndex(i);
      QCoreApplication::processEvents();
      EXPECT_EQ(defauts(*racine), "") << forme << " page " << i;
    }
  }
}

TEST_P(Apparence, PagesScrollDownwardsOnly) {
  grossir(GetParam());
  // The table of fifteen columns needs the screen of 1024.
  const std::pair<const char*, int> cas[] = {{"Frm_ElementsContrat", Place.width()},
                                             {"Frm_ElementsContrat", LargeurAise},
                                             {"Frm_ContratAnnuel", LargeurAise}};
  for (const auto& [forme, largeur] : cas) {
    const auto racine = montrer(forme);
    auto* const onglets = racine->findChild<QTabWidget*>();
    racine->resize(QSize(largeur, Place.height()) * GetParam());
    for (int i = 0; i < onglets->count(); ++i) {
      onglets->setCurrentIndex(i);
      QCoreApplication::processEvents();
      const auto& zone = dynamic_cast<const QScrollArea&>(*onglets->currentWidget());
      EXPECT_EQ(zone.horizontalScrollBar()->maximum(), 0) << forme << i << " in " << largeur;
      for (const auto* const rang : zone.findChildren<QBoxLayout*>()) {
        if (!rang->objectName().startsWith("colonnes")) continue;
        EXPECT_EQ(rang->direction() == QBoxLayout::LeftToRight, largeur == LargeurAise) << i;
      }
    }
  }
}
INSTANTIATE_TEST_SUITE_P(Polices, Apparence, ::testing::Values(1.0, 1.5));

// Fields of the logic that have no place on the screen: the binder shows them as it shows all.
TEST_F(Apparence, FieldsWithoutAPlaceStayOutOfSight) {
  const auto editeur = montrer("Frm_ElementsContrat");
  const auto motif = montrer("Frm_MotifCDD");
  const auto suivi = montrer("Frm_ContratAnnuel");
  const std::pair<QWidget*, const char*> caches[] = {
      {editeur.get(), "Etq_CodeAidant"},   {editeur.get(), "Etq_NomPrenomAidant"},
      {editeur.get(), "Cbo_PeriodeEffet"}, {suivi.get(), "Lst_CopieDiff"},
      {motif.get(), "Txt_CodeAbs"},        {motif.get(), "Txt_AidantRemplContrat"}};
  for (const auto& [racine, nom] : caches) {
    auto* const champ = racine->findChild<QWidget*>(nom);
    ASSERT_NE(champ, nullptr) << nom;
    champ->show();
    EXPECT_FALSE(champ->isVisible()) << nom;
  }
}

// Black on white is 21 to 1, and 4.54 is the contrast of #767676 on white.
TEST_F(Apparence, DisabledTextsReadAndStepBackOnAnyPalette) {
  EXPECT_NEAR(hote::contraste(Qt::black, Qt::white), 21.0, 1e-9);
  EXPECT_NEAR(hote::contraste(Qt::white, QColor(0x76, 0x76, 0x76)), 4.54, 0.005);
  const auto racine = montrer("Frm_ElementsContrat");
  const std::pair<QColor, QColor> palettes[] = {
      {Qt::white, QColor(0xef, 0xef, 0xef)}, {QColor(0x1e, 0x1e, 0x1e), QColor(0x35, 0x35, 0x35)}};
  for (const auto& [base, fenetre] : palettes) {
    QPalette nouvelle(fenetre, fenetre);
    nouvelle.setColor(QPalette::Base, base);
    QApplication::setPalette(nouvelle);
    QCoreApplication::processEvents();
    const QPalette vue = racine->findChild<QWidget*>("Txt_NumContrat")->palette();
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
      const QColor eteint = vue.color(QPalette::Disabled, role);
      for (const QColor& fond : {base, fenetre}) {
        EXPECT_GE(hote::contraste(eteint, fond), 4.5) << fenetre.name().toStdString() << role;
        EXPECT_LT(hote::contraste(eteint, fond),
                  hote::contraste(vue.color(QPalette::Active, role), fond) - 2);
      }
    }
  }
}

// The bar at the left of a row that runs, also on the selected row; none in lists out of use.
TEST_F(Apparence, TheRunningContractHasItsBarAndRowsStayInStep) {
  const data::PosteFixe poste(21511);
  const auto racine = montrer("Ctr_Contrat");
  hote::habillerContrats(*racine, poste);
  QSet<int> hauteurs;
  for (auto* const liste : racine->findChildren<QListWidget*>()) {
    const bool debuts = liste->objectName() == "Lst_DatDebContrat";
    liste->addItems({debuts ? "07/10/2019" : "", debuts ? "06/06/2019" : "06/10/2019"});
    hauteurs << liste->sizeHintForRow(0) << liste->sizeHintForRow(1);
  }
  EXPECT_EQ(hauteurs.size(), 1);
  auto* const debuts = racine->findChild<QListWidget*>("Lst_DatDebContrat");
  const auto bord = [&](int ligne) {
    const QRect place = debuts->visualItemRect(debuts->item(ligne));
    return debuts->viewport()->grab().toImage().pixelColor(1, place.center().y());
  };
  const QPalette vue = debuts->palette();
  EXPECT_EQ(bord(0), vue.color(QPalette::Highlight));
  EXPECT_EQ(bord(1), vue.color(QPalette::Base));
  debuts->setCurrentRow(0);
  EXPECT_EQ(bord(0), vue.color(QPalette::HighlightedText));
  debuts->clearSelection();
  debuts->setEnabled(false);
  EXPECT_EQ(bord(0), vue.color(QPalette::Disabled, QPalette::Base));
}

TEST(LignesContrats, TheDatesSayWhatRuns) {
  using E = hote::EtatContrat;
  const struct {
    const char* debut;
    const char* fin;
    E etat;
  } cas[] = {
      {"07/10/2019", "", E::EnCours},
      {"22/11/2026", "", E::EnCours},
      {"23/11/2026", "", E::AVenir},
      {"01/12/2026", "31/12/2026", E::AVenir},
      {"01/02/2026", "22/11/2026", E::EnCours},
      {"01/02/2026", "21/11/2026", E::Termine},
      {"06/06/2019", "06/10/2019", E::Termine},
      {"02/12/2025", "01/12/2026", E::EnCours},
      {"", "", E::AVenir},
      {"01/02/2026", "??", E::EnCours},
  };
  for (const auto& c : cas) {
    // 22/11/2026.
    EXPECT_EQ(hote::etatContrat(c.debut, c.fin, 21511), c.etat) << c.debut << " to " << c.fin;
  }
}

}  // namespace
