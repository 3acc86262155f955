#include "composants/suite.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "composants/controle_aide.h"
#include "composants/controle_lettres.h"
#include "composants/controle_table.h"
#include "lettres/traitement_texte.h"
#include "liaison/bureau.h"
#include "liaison/fenetre.h"
#include "liaison/liaison.h"
#include "liaison/textes_qt.h"

namespace hote {

namespace {

constexpr int LargeurRecues = 520;  // pixels

// The forms that host a control. For one that this host does not bring along: what it is, and the
// answer that lets its form close.
struct FormeHote {
  const char* forme;
  const char* controle;
  const char* composant = nullptr;
  const char* sortie = nullptr;
  const char* libre = nullptr;
};

constexpr FormeHote Formes[] = {
    {"Frm_TpsIndem", "Ctr_TpsIndem", "l'indemnisation des arrêts de travail", "W_Occupe", "0"},
    {"Frm_PeriodeConges", "Ctr_PeriodeConges", "la période de congés", "W_Occupe", "0"},
    {"Frm_QualifPro", ControleTable::Nom},
    {"Frm_MotifsEmbauche", ControleTable::Nom},
    {"Frm_Ventilation", "Ctr_Ventilation", "le décompte des congés", "W_Sortir", "-1"},
    {"Frm_VESPAMOI", "Ctr_Vespamoi", "la télégestion VESPARIO", "W_Sortir", "-1"},
    {"Frm_DetailCongesDelPrev", "Ctr_DetailCongesDelPrev", "les congés de délai de prévenance",
     "W_Occupe", "0"},
    {"Frm_CivilAide", ControleAide::Nom},
};

// In the place of a control that is not installed: what was handed over, and a way out.
class ControleAbsent : public ControleVisible {
 public:
  explicit ControleAbsent(const FormeHote& forme) : forme_(forme) {}

  std::string Lire(const std::string& propriete) const override {
    return propriete == forme_.sortie ? forme_.libre : ControleVisible::Lire(propriete);
  }
  std::unique_ptr<QWidget> Vue() override;

 private:
  const FormeHote& forme_;
};

std::unique_ptr<QWidget> ControleAbsent::Vue() {
  auto vue = std::make_unique<QWidget>();
  auto* const colonne = new QVBoxLayout(vue.get());
  colonne->setContentsMargins(0, 0, 0, 0);
  auto* const texte = new QLabel(
      "Cet écran est celui d'un autre composant de la suite, " + QString(forme_.composant) +
          ", qui n'est pas installé sur ce poste. Voici ce que le contrat lui a transmis :",
      vue.get());
  texte->setWordWrap(true);
  colonne->addWidget(texte);
  auto* const recues = new QTreeWidget(vue.get());
  recues->setRootIsDecorated(false);
  recues->setHeaderLabels({"Propriété", "Valeur"});
  for (const auto& [nom, valeur] : Recues()) {
    recues->addTopLevelItem(new QTreeWidgetItem({versQt(nom), versQt(valeur)}));
  }
  recues->resizeColumnToContents(0);
  recues->setMinimumWidth(LargeurRecues);
  colonne->addWidget(recues);
  auto* const boutons = new QDialogButtonBox(vue.get());
  QPushButton* const fermer = boutons->addButton("&Fermer", QDialogButtonBox::RejectRole);
  colonne->addWidget(boutons);
  QObject::connect(fermer, &QPushButton::clicked, vue.get(),
                   [vue = vue.get()] { vue->window()->close(); });
  return vue;
}

std::unique_ptr<QWidget> construire(Bureau& bureau, const FormeHote& forme) {
  auto fenetre = std::make_unique<Fenetre>();
  fenetre->setObjectName(forme.forme);
  auto* const colonne = new QVBoxLayout(fenetre.get());
  colonne->setContentsMargins(8, 8, 8, 8);
  // A host's own control brings a window of its own.
  auto* const controle =
      dynamic_cast<ControleVisible*>(bureau.Plateforme().controles.Trouver(forme.controle));
  if (controle == nullptr) return fenetre;
  QWidget* const vue = controle->Vue().release();
  vue->setProperty(ProprieteHebergee, true);
  colonne->addWidget(vue);
  return fenetre;
}

}  // namespace

Suite::Suite(Bureau& bureau) : bureau_(bureau) {
  controles_[ControleLettres::Nom] = std::make_unique<ControleLettres>(bureau, objets_);
  controles_[ControleTable::Nom] = std::make_unique<ControleTable>(bureau, objets_);
  controles_[ControleAide::Nom] = std::make_unique<ControleAide>(bureau, objets_);
  for (const FormeHote& forme : Formes) {
    if (forme.composant != nullptr) {
      controles_[forme.controle] = std::make_unique<ControleAbsent>(forme);
    }
  }
  for (const auto& [nom, controle] : controles_) bureau_.Heberger(nom, *controle);
  bureau_.ProposerReglage(TraitementTexte::CleChemin, TraitementTexte::Trouver);
}

Suite::~Suite() {
  for (const auto& [nom, controle] : controles_) bureau_.Congedier(*controle);
}

void enregistrerHebergees(Bureau& bureau) {
  for (const FormeHote& forme : Formes) {
    bureau.Enregistrer(forme.forme, [&bureau, &forme] { return construire(bureau, forme); });
  }
}

}  // namespace hote
