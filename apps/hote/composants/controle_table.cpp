#include "composants/controle_table.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

#include "data/liste_codes.h"
#include "data/texte.h"
#include "liaison/bureau.h"
#include "liaison/textes_qt.h"

namespace hote {

namespace {

constexpr int LargeurTwips = 9000;
constexpr int HauteurTwips = 6300;
constexpr int TwipsParPixel = 15;

}  // namespace

// The lines, and under them the one that is being typed.
class ControleTable::Lignes : public QWidget {
 public:
  Lignes(ControleTable& controle, TableCodes& table, bool modifiable)
      : controle_(controle),
        table_(table),
        liste_(new QTreeWidget(this)),
        code_(new QLineEdit(this)),
        libelle_(new QLineEdit(this)),
        regroupement_(new QComboBox(this)) {
    auto* const colonne = new QVBoxLayout(this);
    colonne->setContentsMargins(0, 0, 0, 0);
    colonne->addWidget(liste_);
    Saisie(*colonne);
    Boutons(*colonne, modifiable);
    liste_->setRootIsDecorated(false);
    liste_->setUniformRowHeights(true);
    liste_->setHeaderLabels({"Code", "Libellé", "Regroupement"});
    liste_->setColumnHidden(0, table.Genre().codes == 0);
    liste_->setColumnHidden(2, table.Genre().regroupements == 0);
    liste_->header()->setStretchLastSection(false);
    liste_->header()->setSectionResizeMode(1, QHeaderView::Stretch);
    liste_->header()->setSectionResizeMode(2, QHeaderView::ResizeToContents);
    connect(liste_, &QTreeWidget::currentItemChanged, this, [this] { Prendre(); });
    Remplir(0);
  }

  QSize sizeHint() const override {
    return {LargeurTwips / TwipsParPixel, HauteurTwips / TwipsParPixel};
  }

 private:
  void Saisie(QVBoxLayout& colonne) {
    auto* const saisie = new QFormLayout;
    saisie->addRow("&Code", code_);
    saisie->addRow("&Libellé", libelle_);
    saisie->addRow("Regroupement &budgétaire", regroupement_);
    saisie->setRowVisible(code_, table_.Genre().codes != 0);
    saisie->setRowVisible(regroupement_, table_.Genre().regroupements != 0);
    code_->setMaximumWidth(120);
    regroupement_->addItem("");
    const auto groupes = data::ListeCodes::DeTable(table_.Regroupements());
    for (const auto& groupe : groupes.Lignes()) {
      regroupement_->addItem(versQt(groupe.libelle), versQt(groupe.code));
    }
    colonne.addLayout(saisie);
  }

  void Boutons(QVBoxLayout& colonne, bool modifiable) {
    auto* const rangee = new QHBoxLayout;
    const auto bouton = [&](const char* texte, auto acte) {
      auto* const b = new QPushButton(texte, this);
      b->setAutoDefault(false);
      rangee->addWidget(b);
      connect(b, &QPushButton::clicked, this, acte);
      return b;
    };
    const auto changer = {bouton("&Ajouter", [this] { Ajouter(); }),
                          bouton("&Modifier", [this] { Changer(); }),
                          bouton("&Retirer", [this] { Retirer(); })};
    rangee->addStretch();
    auto* const enregistrer = bouton("&Enregistrer", [this] {
      if (EnSuspens()) {
        controle_.Dire(
            "Ce qui est tapé n'est pas encore dans la table : Ajouter ou Modifier "
            "l'y met.");
      } else if (controle_.EnregistrerOuDire()) {
        window()->close();
      }
    });
    bouton("&Fermer", [this] { window()->close(); });
    for (QWidget* const b : changer) b->setEnabled(modifiable);
    for (QWidget* const w :
         std::initializer_list<QWidget*>{enregistrer, code_, libelle_, regroupement_}) {
      w->setEnabled(modifiable);
    }
    colonne.addLayout(rangee);
  }

  void Remplir(int rang) {
    liste_->clear();
    for (int i = 0; i < table_.Nombre(); ++i) {
      const TableCodes::Ligne ligne = table_.A(i);
      const int groupe = regroupement_->findData(versQt(ligne.regroupement));
      const QString nom = groupe < 0 ? versQt(ligne.regroupement) : regroupement_->itemText(groupe);
      liste_->addTopLevelItem(
          new QTreeWidgetItem({versQt(ligne.code), versQt(ligne.libelle), nom}));
    }
    liste_->setCurrentItem(liste_->topLevelItem(std::min(rang, table_.Nombre() - 1)));
  }

  int Rang() const { return liste_->indexOfTopLevelItem(liste_->currentItem()); }

  void Prendre() {
    if (Rang() < 0) return;
    const TableCodes::Ligne ligne = table_.A(Rang());
    code_->setText(versQt(ligne.code));
    libelle_->setText(versQt(ligne.libelle));
    regroupement_->setCurrentIndex(
        std::max(0, regroupement_->findData(versQt(ligne.regroupement))));
  }

  TableCodes::Ligne Tapee() const {
    const auto texte = [](const QString& t) {
      return data::sansBlancs(data::sansControles(versModele(t)));
    };
    return {texte(code_->text()), texte(libelle_->text()),
            versModele(regroupement_->currentData().toString())};
  }

  // Typed, and neither added nor given to the line.
  bool EnSuspens() const {
    const TableCodes::Ligne tapee = Tapee();
    const TableCodes::Ligne ligne = Rang() < 0 ? TableCodes::Ligne() : table_.A(Rang());
    return tapee.code != ligne.code || tapee.libelle != ligne.libelle;
  }

  void Suivre(const std::string& refus, int rang) {
    if (refus.empty()) return Remplir(rang);
    controle_.Dire(refus);
    libelle_->setFocus();
  }
  void Ajouter() { Suivre(table_.Ajouter(Tapee()), table_.Nombre()); }
  void Changer() {
    const int rang = Rang();
    if (rang >= 0) Suivre(Changee(rang), rang);
  }
  std::string Changee(int rang) {
    std::string refus;
    controle_.LeBureau().Proteger([&] { refus = table_.Changer(rang, Tapee()); });
    return refus;
  }
  void Retirer() {
    const int rang = Rang();
    if (rang < 0) return;
    std::string refus;
    controle_.LeBureau().Proteger([&] { refus = table_.Retirer(rang); });
    Suivre(refus, rang);
  }

  ControleTable& controle_;
  TableCodes& table_;
  QTreeWidget* liste_;
  QLineEdit* code_;
  QLineEdit* libelle_;
  QComboBox* regroupement_;
};

void ControleTable::Appeler(const std::string& methode) {
  if (methode != "init" || Objets().Db == nullptr) return;
  const GenreTable* const genre = genreTable(Recue("TheCle"));
  table_ = genre == nullptr ? nullptr : std::make_unique<TableCodes>(*Objets().Db, *genre);
}

std::string ControleTable::Lire(const std::string& propriete) const {
  if (propriete == "Width") return std::to_string(LargeurTwips);
  if (propriete == "Height") return std::to_string(HauteurTwips);
  return ControleModifiable::Lire(propriete);
}

std::unique_ptr<QWidget> ControleTable::Vue() {
  if (table_ == nullptr) {
    return std::make_unique<QLabel>("Cette table ne se modifie pas ici.");
  }
  return std::make_unique<Lignes>(*this, *table_, Plein(Recue("W_Droits")));
}

}  // namespace hote
