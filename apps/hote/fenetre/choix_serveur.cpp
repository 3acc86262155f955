#include "fenetre/choix_serveur.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "liaison/textes_qt.h"
#include "storage/adresse.h"

namespace hote {

ChoixServeur::ChoixServeur(QWidget* parent)
    : QDialog(parent),
      serveur_(Champ("serveur", "nom, nom:port ou adresse entière")),
      base_(Champ("base", "")),
      compte_(Champ("compte", "celui de votre session")),
      adresse_(new QLabel(this)),
      boutons_(new QDialogButtonBox(QDialogButtonBox::Open | QDialogButtonBox::Cancel, this)) {
  setObjectName("ChoixServeur");
  setWindowTitle("Ouvrir un serveur");
  base_->setText("contrats");
  adresse_->setTextFormat(Qt::PlainText);
  adresse_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  auto* const passe = new QLabel(
      "Le mot de passe n'est ni demandé ni gardé ici. La personne qui gère le serveur le place une "
      "fois pour toutes sur ce poste (fichier .pgpass).",
      this);
  passe->setWordWrap(true);
  auto* const page = new QFormLayout(this);
  page->addRow("&Serveur :", serveur_);
  page->addRow("&Base :", base_);
  page->addRow("&Compte :", compte_);
  page->addRow("Adresse :", adresse_);
  page->addRow(passe);
  page->addRow(boutons_);
  connect(boutons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(boutons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
  // The password of a pasted address does not stay in sight.
  connect(serveur_, &QLineEdit::editingFinished, this, [this] {
    const std::string saisie = versModele(serveur_->text().trimmed());
    if (storage::estAdresseServeur(saisie)) {
      serveur_->setText(versQt(storage::sansMotDePasse(saisie)));
    }
  });
  Montrer();
}

QLineEdit* ChoixServeur::Champ(const char* nom, const QString& exemple) {
  auto* const champ = new QLineEdit(this);
  champ->setObjectName(nom);
  champ->setPlaceholderText(exemple);
  champ->setMinimumWidth(360);
  connect(champ, &QLineEdit::textChanged, this, [this] { Montrer(); });
  return champ;
}

// A whole address may be pasted in the place of a server's name; its password is left out.
QString ChoixServeur::Adresse() const {
  const std::string serveur = versModele(serveur_->text().trimmed());
  if (storage::estAdresseServeur(serveur)) return versQt(storage::sansMotDePasse(serveur));
  const std::string base = versModele(base_->text().trimmed());
  if (serveur.empty() || base.empty()) return {};
  return versQt(storage::adresseServeur(serveur, base, versModele(compte_->text().trimmed())));
}

void ChoixServeur::Montrer() {
  const bool entiere = storage::estAdresseServeur(versModele(serveur_->text().trimmed()));
  base_->setEnabled(!entiere);
  compte_->setEnabled(!entiere);
  const QString adresse = Adresse();
  adresse_->setText(adresse);
  boutons_->button(QDialogButtonBox::Open)->setEnabled(!adresse.isEmpty());
}

QString ChoixServeur::Demander(QWidget* parent) {
  ChoixServeur choix(parent);
  return choix.exec() == QDialog::Accepted ? choix.Adresse() : QString();
}

}  // namespace hote
