#include "fenetre/base_ouverte.h"

#include <QFileInfo>

#include "fenetre/avertir.h"
#include "liaison/textes_qt.h"
#include "storage/adresse.h"
#include "storage/ouvrir.h"

namespace hote {

namespace {

constexpr int AttenteEcritureMs = 2000;

std::unique_ptr<data::Storage> ouvrir(const std::string& chemin, const data::Poste& poste,
                                      bool reseauAdmis) {
  storage::OptionsOuverture options;
  options.attenteMs = AttenteEcritureMs;
  options.reseauAdmis = reseauAdmis;
  auto stockage = storage::ouvrir(chemin, poste, options);
  if (!stockage->Avis().empty()) informer(versQt(stockage->Avis()));
  return stockage;
}

}  // namespace

bool surServeur(const QString& chemin) {
  return storage::estAdresseServeur(versModele(chemin));
}

QString aMontrer(const QString& chemin) {
  return versQt(storage::sansMotDePasse(versModele(chemin)));
}

std::unique_ptr<data::Storage> ouvrirBase(const std::string& chemin, const data::Poste& poste) {
  return ouvrir(chemin, poste, false);
}

std::unique_ptr<data::Storage> ouvrirBaseEnReseau(const std::string& chemin,
                                                  const data::Poste& poste) {
  return ouvrir(chemin, poste, true);
}

BaseOuverte::BaseOuverte(const QString& chemin, const data::Poste& poste, const Ouvreur& ouvrir)
    : chemin_(surServeur(chemin) ? aMontrer(chemin) : QFileInfo(chemin).absoluteFilePath()),
      veille_(surServeur(chemin) ? nullptr
                                 : std::make_unique<storage::Veille>(versModele(chemin_))),
      db_(ouvrir(versModele(surServeur(chemin) ? chemin : chemin_), poste)) {
  if (veille_ == nullptr) return;
  veille_->SuivreJournal();
  // A write in the file makes a signal too.
  connect(&signaux_, &QFileSystemWatcher::fileChanged, this, [this] { Regarder(); });
  Veiller();
}

// A file that leaves its name leaves the watch.
void BaseOuverte::Veiller() {
  if (veille_ != nullptr) signaux_.addPath(chemin_);
}

QString BaseOuverte::Nom() const {
  return veille_ == nullptr ? chemin_ : QFileInfo(chemin_).fileName();
}

QString BaseOuverte::Defaut() const {
  return veille_ == nullptr ? QString() : versQt(veille_->Defaut());
}

bool BaseOuverte::Remplacee() const {
  return veille_ != nullptr && veille_->Remplace();
}

QString BaseOuverte::EcarterJournal() {
  return veille_ == nullptr ? QString() : versQt(veille_->EcarterJournal());
}

void BaseOuverte::Regarder() {
  if (!Defaut().isEmpty()) emit disparue();
}

}  // namespace hote
