#include "fenetre/menu_lettres.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QMenuBar>
#include <QSettings>
#include <QUrl>

#include "composants/controle_lettres.h"
#include "fenetre/avertir.h"
#include "lettres/modeles.h"
#include "lettres/traitement_texte.h"
#include "liaison/bureau.h"
#include "liaison/textes_qt.h"

namespace hote {

namespace {

void ouvrirDossier(const QString& dossier) {
  QDir().mkpath(dossier);
  if (QDesktopServices::openUrl(QUrl::fromLocalFile(dossier))) return;
  informer("Aucun programme de ce poste ne montre un dossier. Celui-ci est « " + dossier + " ».");
}

void ouvrirModeles(const QSettings& reglages) {
  const QString dossier = dossierModeles(reglages);
  try {
    DossierModeles(dossier).Completer();
  } catch (const screen::ErreurImpression& erreur) {
    return avertir(versQt(erreur.what()));
  }
  ouvrirDossier(dossier);
}

void choisirModeles(QSettings& reglages, QWidget* parente) {
  const QString dossier = QFileDialog::getExistingDirectory(
      parente, "Dossier des modèles de lettres", dossierModeles(reglages));
  if (!dossier.isEmpty()) reglages.setValue(CleDossierModeles, dossier);
}

void choisirTraitement(QSettings& reglages, QWidget* parente) {
  const QString programme = QFileDialog::getOpenFileName(
      parente, "Programme du traitement de texte", TraitementTexte::Trouver());
  if (!programme.isEmpty()) reglages.setValue(TraitementTexte::CleChemin, programme);
}

void retrouverTraitement(QSettings& reglages) {
  reglages.remove(TraitementTexte::CleChemin);
  const QString trouve = TraitementTexte::Trouver();
  if (trouve.isEmpty()) return avertir("Aucun traitement de texte n'est trouvé sur ce poste.");
  informer(trouve == TraitementTexte::AuSysteme
               ? QString("Les lettres s'ouvrent avec le programme que le système emploie.")
               : "Les lettres s'ouvrent avec « " + trouve + " ».");
}

}  // namespace

void ajouterMenuLettres(QMenuBar& menus, Bureau& bureau) {
  QMenu* const menu = menus.addMenu("&Lettres");
  QSettings& reglages = bureau.Reglages();
  QWidget* const parente = menus.window();
  menu->addAction("Dossier des &lettres", menu, [] { ouvrirDossier(dossierLettres()); });
  menu->addAction("Dossier des &modèles", menu, [&reglages] { ouvrirModeles(reglages); });
  menu->addSeparator();
  menu->addAction("&Choisir le dossier des modèles…", menu,
                  [&reglages, parente] { choisirModeles(reglages, parente); });
  menu->addAction("Choisir le &traitement de texte…", menu,
                  [&reglages, parente] { choisirTraitement(reglages, parente); });
  menu->addAction("&Retrouver le traitement de texte", menu,
                  [&reglages] { retrouverTraitement(reglages); });
}

}  // namespace hote
