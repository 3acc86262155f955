#include "widget/lignes_suivi.h"

#include <QLabel>
#include <QListWidget>
#include <QPainter>

#include "widget/courbe_suivi.h"
#include "widget/lignes_listes.h"

namespace hote {

namespace {

constexpr const char* PeriodePaie = "Etq_PeriodePaie";
constexpr const char* Decimales = "decimales";
constexpr QChar Moins(0x2212);
constexpr QChar BlancVirgule(0x2008);
constexpr QChar BlancChiffre(0x2007);

bool negatif(const QString& texte) {
  return texte.trimmed().startsWith('-');
}

class LigneSuivi : public LigneListe {
 public:
  LigneSuivi(QListWidget& colonne, const QListWidget& periodes, const QLabel& enPaie)
      : LigneListe(&colonne), colonne_(colonne), periodes_(periodes), enPaie_(enPaie) {}

  void paint(QPainter* pinceau, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    LigneListe::paint(pinceau, option, index);
    if (&colonne_ == &periodes_ && EnPaie(index.row())) Marquer(*pinceau, option);
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* cellule, const QModelIndex& index) const override {
    LigneListe::initStyleOption(cellule, index);
    if (EnPaie(index.row()) || negatif(cellule->text)) {
      cellule->font.setWeight(QFont::DemiBold);
      cellule->fontMetrics = QFontMetrics(cellule->font);
    }
    if (&colonne_ == &periodes_) return;
    cellule->text = nombreAligne(cellule->text, colonne_.property(Decimales).toInt());
    cellule->displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
  }

 private:
  bool EnPaie(int ligne) const {
    const QListWidgetItem* const element = periodes_.item(ligne);
    return element != nullptr && element->text() == enPaie_.text();
  }

  const QListWidget& colonne_;
  const QListWidget& periodes_;
  const QLabel& enPaie_;
};

// A tab: the lists on its page, one of which bears the months.
struct Onglet {
  const char* page;
  const char* periodes;
  const char* cumul;
  const char* solde;
};
constexpr Onglet Onglets[] = {
    {"Cdr_Remunere", "Lst_Periode", "Lst_DiffCumul", "Lst_Solde"},
    {"Cdr_TTE", "Lst_PeriodeTTE", "Lst_DiffCumulTTE", "Lst_SoldeTTE"},
};

}  // namespace

QString nombreAligne(const QString& texte, int decimales) {
  QString nombre = texte.trimmed();
  if (nombre.isEmpty()) return nombre;
  if (negatif(nombre)) nombre = Moins + nombre.mid(1).trimmed();
  const auto virgule = nombre.indexOf(',');
  const auto presentes = virgule < 0 ? 0 : nombre.size() - virgule - 1;
  if (virgule < 0 && decimales > 0) nombre += BlancVirgule;
  for (auto i = presentes; i < decimales; ++i) nombre += BlancChiffre;
  return nombre;
}

void habillerSuivi(QWidget& racine) {
  const auto* const enPaie = racine.findChild<QLabel*>(PeriodePaie);
  for (const Onglet& onglet : Onglets) {
    auto* const page = racine.findChild<QWidget*>(onglet.page);
    auto* const periodes = page->findChild<QListWidget*>(onglet.periodes);
    for (auto* const colonne : page->findChildren<QListWidget*>()) {
      colonne->setItemDelegate(new LigneSuivi(*colonne, *periodes, *enPaie));
    }
    page->findChild<CourbeSuivi*>()->Suivre(*periodes, *page->findChild<QListWidget*>(onglet.cumul),
                                            *page->findChild<QListWidget*>(onglet.solde));
  }
}

}  // namespace hote
