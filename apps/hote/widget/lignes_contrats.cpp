#include "widget/lignes_contrats.h"

#include <QHelpEvent>
#include <QListWidget>
#include <QPainter>
#include <QToolTip>
#include <utility>

#include "data/jour.h"
#include "data/poste.h"
#include "widget/apparence.h"
#include "widget/lignes_listes.h"

namespace hote {

namespace {

constexpr const char* ListeDebuts = "Lst_DatDebContrat";
constexpr const char* ListeFins = "Lst_DatFinContrat";
constexpr const char* Colonnes[] = {ListeDebuts, ListeFins, "Lst_Type", "Lst_EmplEtabContrat",
                                    "Lst_QualifContrat"};

std::string texte(const QListWidget& liste, int ligne) {
  const QListWidgetItem* const element = liste.item(ligne);
  return element == nullptr ? std::string() : element->text().toStdString();
}

class LigneContrat : public LigneListe {
 public:
  LigneContrat(QListWidget& colonne, const QListWidget& debuts, const QListWidget& fins,
               const data::Poste& poste, std::function<QString(int)> decrire)
      : LigneListe(&colonne),
        debuts_(debuts),
        fins_(fins),
        poste_(poste),
        decrire_(std::move(decrire)) {}

  bool helpEvent(QHelpEvent* evenement, QAbstractItemView* vue, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override {
    QString lignes = decrire_ && index.isValid() ? decrire_(index.row()) : QString();
    if (evenement->type() != QEvent::ToolTip || lignes.isEmpty()) {
      return LigneListe::helpEvent(evenement, vue, option, index);
    }
    const bool coupe = sizeHint(option, index).width() > option.rect.width();
    if (coupe) lignes.prepend(index.data().toString() + "\n");
    QToolTip::showText(evenement->globalPos(), lignes, vue->viewport(), option.rect);
    return true;
  }

  void paint(QPainter* pinceau, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    LigneListe::paint(pinceau, option, index);
    const bool repere = option.widget == &debuts_ && Etat(index.row()) == EtatContrat::EnCours &&
                        option.state.testFlag(QStyle::State_Enabled);
    if (repere) Marquer(*pinceau, option);
  }

 protected:
  // A list that cannot be used shows no more than its texts.
  void initStyleOption(QStyleOptionViewItem* cellule, const QModelIndex& index) const override {
    LigneListe::initStyleOption(cellule, index);
    if (!cellule->state.testFlag(QStyle::State_Enabled)) return;
    const EtatContrat etat = Etat(index.row());
    if (etat == EtatContrat::EnCours) {
      cellule->font.setWeight(QFont::DemiBold);
      cellule->fontMetrics = QFontMetrics(cellule->font);
    }
    if (etat != EtatContrat::Termine) return;
    const QPalette& palette = cellule->palette;
    const QColor couleur = attenuer(palette.color(QPalette::Active, QPalette::Text),
                                    {palette.color(QPalette::Active, QPalette::Base),
                                     palette.color(QPalette::Active, QPalette::Window)});
    cellule->palette.setColor(QPalette::Active, QPalette::Text, couleur);
    cellule->palette.setColor(QPalette::Inactive, QPalette::Text, couleur);
  }

 private:
  EtatContrat Etat(int ligne) const {
    return etatContrat(texte(debuts_, ligne), texte(fins_, ligne), poste_.Aujourdhui());
  }

  const QListWidget& debuts_;
  const QListWidget& fins_;
  const data::Poste& poste_;
  const std::function<QString(int)> decrire_;
};

}  // namespace

EtatContrat etatContrat(std::string_view debut, std::string_view fin, long aujourdhui) {
  const long premier = data::lireDateAffichee(debut).value_or(0);
  return control::etatContrat({premier, data::lireDateAffichee(fin)}, aujourdhui);
}

void habillerContrats(QWidget& racine, const data::Poste& poste,
                      const std::function<QString(int)>& decrire) {
  const auto* const debuts = racine.findChild<QListWidget*>(ListeDebuts);
  const auto* const fins = racine.findChild<QListWidget*>(ListeFins);
  for (const char* const nom : Colonnes) {
    auto* const colonne = racine.findChild<QListWidget*>(nom);
    colonne->setItemDelegate(new LigneContrat(*colonne, *debuts, *fins, poste, decrire));
  }
}

}  // namespace hote
