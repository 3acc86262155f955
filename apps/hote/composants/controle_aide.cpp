#include "composants/controle_aide.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "data/jour.h"
#include "data/liste_codes.h"
#include "data/store_error.h"
#include "liaison/bureau.h"
#include "liaison/textes_qt.h"

namespace hote {

// One entry a place, as typed until it is stored.
class ControleAide::Saisie : public QWidget {
 public:
  Saisie(const ControleAide& controle, FicheAide& fiche, bool modifiable)
      : controle_(controle), fiche_(fiche) {
    auto* const colonne = new QVBoxLayout(this);
    colonne->setContentsMargins(0, 0, 0, 0);
    auto* const places = new QFormLayout;
    for (const PlaceAide& place : FicheAide::Places()) {
      QWidget* const entree = Entree(place);
      entree->setEnabled(modifiable);
      entree->setObjectName(QString("place_%1").arg(place.attribut));
      places->addRow(place.libelle, entree);
      entrees_.push_back(entree);
    }
    colonne->addLayout(places);
    auto* const rangee = new QHBoxLayout;
    rangee->addStretch();
    auto* const enregistrer = new QPushButton("&Enregistrer", this);
    auto* const fermer = new QPushButton("&Fermer", this);
    for (QPushButton* const bouton : {enregistrer, fermer}) {
      bouton->setAutoDefault(false);
      rangee->addWidget(bouton);
    }
    enregistrer->setEnabled(modifiable);
    colonne->addLayout(rangee);
    connect(enregistrer, &QPushButton::clicked, this, [this] {
      if (controle_.EnregistrerOuDire()) window()->close();
    });
    connect(fermer, &QPushButton::clicked, this, [this] { window()->close(); });
  }

  QSize sizeHint() const override { return QWidget::sizeHint().expandedTo({520, 0}); }

  bool Touchee() const {
    for (std::size_t i = 0; i < entrees_.size(); ++i) {
      if (Texte(i) != fiche_.Lire(FicheAide::Places()[i])) return true;
    }
    return false;
  }

  // Why the first wrong place cannot stand, which takes the focus; "" when all were taken.
  std::string Reprendre() {
    for (std::size_t i = 0; i < entrees_.size(); ++i) {
      std::string refus = fiche_.Ecrire(FicheAide::Places()[i], Texte(i));
      if (refus.empty()) continue;
      entrees_[i]->setFocus();
      return refus;
    }
    return "";
  }

 private:
  QWidget* Entree(const PlaceAide& place) {
    const QString texte = versQt(fiche_.Lire(place));
    if (place.genre == PlaceAide::Genre::Voie) return Voies(texte);
    auto* const entree = new QLineEdit(texte, this);
    // What is on file longer than it should be is not cut.
    entree->setMaxLength(std::max(place.longueur, static_cast<int>(texte.size())));
    return entree;
  }

  QComboBox* Voies(const QString& code) {
    auto* const voies = new QComboBox(this);
    voies->addItem("");
    const auto natures = data::ListeCodes::DeTable(fiche_.NaturesVoie());
    for (const auto& nature : natures.Lignes()) {
      voies->addItem(versQt(nature.libelle), versQt(nature.code));
    }
    // A kind that the table does not know stays.
    if (!code.isEmpty() && voies->findData(code) < 0) voies->addItem(code, code);
    voies->setCurrentIndex(code.isEmpty() ? 0 : voies->findData(code));
    return voies;
  }

  std::string Texte(std::size_t i) const {
    if (const auto* const voies = qobject_cast<const QComboBox*>(entrees_[i])) {
      return versModele(voies->currentData().toString());
    }
    return versModele(static_cast<const QLineEdit*>(entrees_[i])->text());
  }

  const ControleAide& controle_;
  FicheAide& fiche_;
  std::vector<QWidget*> entrees_;
};

// A person who is not on file is no error of the screen: its window says so.
void ControleAide::Appeler(const std::string& methode) {
  if (methode != "init" || Objets().Db == nullptr) return;
  const int annee = data::dateDe(LeBureau().Plateforme().poste.Aujourdhui()).annee;
  fiche_.reset();
  try {
    fiche_ = std::make_unique<FicheAide>(*Objets().Db, Recue("W_CodeAide"), annee);
  } catch (const data::StoreError& erreur) {
    if (!erreur.EstNonTrouve()) throw;
  }
}

std::unique_ptr<QWidget> ControleAide::Vue() {
  if (fiche_ == nullptr) {
    return std::make_unique<QLabel>("Aucun aidé ne porte le code « " + versQt(Recue("W_CodeAide")) +
                                    " ».");
  }
  auto saisie = std::make_unique<Saisie>(*this, *fiche_, Plein(std::string(session::DroitContrat)));
  saisie_ = saisie.get();
  return saisie;
}

bool ControleAide::Modifie() const {
  return fiche_ != nullptr && (fiche_->Modifiee() || (saisie_ != nullptr && saisie_->Touchee()));
}

std::string ControleAide::Enregistrer() const {
  if (saisie_ != nullptr) {
    if (std::string refus = saisie_->Reprendre(); !refus.empty()) return refus;
  }
  return fiche_->Modifiee() ? fiche_->Enregistrer() : "";
}

}  // namespace hote
