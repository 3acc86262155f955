#include "fenetre/recherche_aidant.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QTreeView>
#include <QVBoxLayout>
#include <algorithm>

#include "liaison/textes_qt.h"
#include "widget/apparence.h"
#include "widget/lignes_listes.h"

namespace hote {

namespace {

// A list that is narrower, in digits, keeps its room for the names: the code stands in the tooltip.
constexpr int LargeurAvecCode = 24;

// What the directory gives in another colour steps back, as far as it still reads on this palette.
// The open carer has a bar at the left, as a contract that runs has in its list.
class LigneAidant : public LigneListe {
 public:
  LigneAidant(QObject* parent, const Annuaire& annuaire)
      : LigneListe(parent), annuaire_(annuaire) {}

  void paint(QPainter* pinceau, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    LigneListe::paint(pinceau, option, index);
    if (option.rect.left() <= 0 && annuaire_.EstOuvert(index.row())) Marquer(*pinceau, option);
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* cellule, const QModelIndex& index) const override {
    LigneListe::initStyleOption(cellule, index);
    Abreger(*cellule, index.data(Annuaire::Distinction).toString());
    if (!index.data(Qt::ForegroundRole).isValid()) return;
    QPalette& palette = cellule->palette;
    palette.setColor(QPalette::All, QPalette::Text,
                     palette.color(QPalette::Disabled, QPalette::WindowText));
  }

 private:
  // Of namesakes the name gives way to what tells them apart, which ends the text; half of the row
  // stays its own.
  static void Abreger(QStyleOptionViewItem& cellule, const QString& distinction) {
    if (distinction.isEmpty() || !cellule.rect.isValid()) return;
    const int place = cellule.rect.width() - 2 * Marge;
    const int reste = place - cellule.fontMetrics.horizontalAdvance(distinction);
    const QString nom = cellule.text.chopped(distinction.size());
    cellule.text = cellule.fontMetrics.elidedText(nom, Qt::ElideRight, std::max(reste, place / 2)) +
                   distinction;
  }

  const Annuaire& annuaire_;
};

}  // namespace

RechercheAidant::RechercheAidant(QWidget* parent)
    : QWidget(parent),
      saisie_(new QLineEdit(this)),
      ouvert_(new QLabel(this)),
      liste_(new QTreeView(this)),
      compte_(new QLabel(this)) {
  saisie_->setObjectName("rechercheAidant");
  saisie_->setPlaceholderText("Nom ou code de l'aidant");
  saisie_->setMaxLength(80);
  saisie_->installEventFilter(this);
  liste_->setObjectName("listeAidants");
  liste_->setModel(&annuaire_);
  liste_->setRootIsDecorated(false);
  liste_->setUniformRowHeights(true);
  liste_->setAllColumnsShowFocus(true);
  liste_->setHeaderHidden(true);
  liste_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  liste_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  liste_->header()->setStretchLastSection(false);
  liste_->header()->setSectionResizeMode(Annuaire::Nom, QHeaderView::Stretch);
  // The toolkit's own would run under the bar of a narrow list.
  liste_->header()->setMinimumSectionSize(2 * LigneListe::Marge);
  liste_->setItemDelegate(new LigneAidant(liste_, annuaire_));
  liste_->header()->resizeSection(
      Annuaire::Code, fontMetrics().horizontalAdvance("000000") + 2 * LigneListe::Marge);
  ouvert_->setObjectName("aidantOuvert");
  ouvert_->setTextFormat(Qt::PlainText);
  ouvert_->setWordWrap(true);
  ouvert_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  ouvert_->hide();
  auto* const disposition = new QVBoxLayout(this);
  disposition->setContentsMargins(12, 12, 6, 12);
  disposition->setSpacing(9);
  disposition->addWidget(saisie_);
  disposition->addWidget(ouvert_);
  disposition->addWidget(liste_);
  disposition->addWidget(compte_);
  appliquerApparence(*this);
  liste_->viewport()->installEventFilter(this);
  connect(saisie_, &QLineEdit::textChanged, this, [this] { Filtrer(); });
  connect(saisie_, &QLineEdit::returnPressed, this, [this] { Choisir(); });
  connect(liste_, &QTreeView::activated, this, [this] { Choisir(); });
}

void RechercheAidant::Remplir(std::vector<Aidant> aidants) {
  annuaire_.Remplir(std::move(aidants));
  Filtrer();
}

void RechercheAidant::Designer(const std::string& code) {
  annuaire_.Ouvrir(code);
  MontrerOuvert();
  const int ligne = annuaire_.LigneDe(code);
  if (ligne < 0) return;
  liste_->setCurrentIndex(annuaire_.index(ligne, 0));
  liste_->scrollTo(annuaire_.index(ligne, 0), QAbstractItemView::PositionAtCenter);
}

void RechercheAidant::MasquerSupprimes(bool masques) {
  annuaire_.MasquerSupprimes(masques);
  Filtrer();
}

void RechercheAidant::MontrerOuvert() {
  const Aidant* const aidant = annuaire_.Trouver(annuaire_.Ouvert());
  const bool absent = aidant != nullptr && annuaire_.LigneDe(aidant->code) < 0;
  if (absent) {
    const QString nom = versQt(aidant->nomPrenom + " (" + aidant->code + ")");
    ouvert_->setText("Ouvert : " + nom);
    ouvert_->setToolTip(nom);
  }
  ouvert_->setVisible(absent);
}

void RechercheAidant::Prendre() {
  saisie_->setFocus();
  saisie_->selectAll();
}

void RechercheAidant::Filtrer() {
  // Its picture is loaded when it is first of use: not while the window starts.
  if (!saisie_->text().isEmpty()) saisie_->setClearButtonEnabled(true);
  annuaire_.Filtrer(saisie_->text());
  const int ouvert = saisie_->text().isEmpty() ? annuaire_.LigneDe(annuaire_.Ouvert()) : -1;
  if (annuaire_.rowCount() > 0) {
    liste_->setCurrentIndex(annuaire_.index(std::max(ouvert, 0), 0));
  }
  MontrerOuvert();
  Compter();
}

void RechercheAidant::Compter() {
  const int retenus = annuaire_.rowCount();
  const int masques = annuaire_.Masques();
  QString texte = annuaire_.Total() == 0 ? "Aucun aidant"
                  : retenus == 0         ? "Aucun aidant ne convient"
                  : retenus + masques == annuaire_.Total()
                      ? QString("%1 aidants").arg(retenus)
                      : QString("%1 sur %2 aidants").arg(retenus).arg(annuaire_.Total());
  if (masques > 0) {
    texte += masques == 1 ? ", 1 supprimé masqué" : QString(", %1 supprimés masqués").arg(masques);
  }
  compte_->setText(texte);
}

// The carer is handed over by copy: the host may fill the list again meanwhile.
void RechercheAidant::Choisir() {
  const QModelIndex courant = liste_->currentIndex();
  if (!courant.isValid()) return;
  const Aidant aidant = annuaire_.Ligne(courant.row());
  emit choisi(aidant);
}

bool RechercheAidant::eventFilter(QObject* objet, QEvent* evenement) {
  if (objet == liste_->viewport() && evenement->type() == QEvent::Resize) {
    const int place = fontMetrics().horizontalAdvance(QString(LargeurAvecCode, '0'));
    liste_->setColumnHidden(Annuaire::Code, liste_->viewport()->width() < place);
  }
  if (objet != saisie_ || evenement->type() != QEvent::KeyPress) return false;
  const int touche = static_cast<QKeyEvent*>(evenement)->key();
  if (touche == Qt::Key_Escape && !saisie_->text().isEmpty()) {
    saisie_->clear();
    return true;
  }
  const bool deplace = touche == Qt::Key_Up || touche == Qt::Key_Down || touche == Qt::Key_PageUp ||
                       touche == Qt::Key_PageDown;
  if (deplace) QCoreApplication::sendEvent(liste_, evenement);
  return deplace;
}

}  // namespace hote
