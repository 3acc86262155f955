#include "composants/controle_lettres.h"

#include <QDir>
#include <QStandardPaths>

#include "composants/fenetre_lettre.h"
#include "data/layouts/contrat.h"
#include "lettres/traitement_texte.h"
#include "liaison/bureau.h"
#include "liaison/textes_qt.h"

namespace hote {

namespace {

QString dansDocuments(const char* dossier) {
  return QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))
      .filePath(dossier);
}

// The amendment's number stands before the entity; a contract hands over its agreement alone.
std::string avenantNomme(const std::string& document, const data::CItem& contrat) {
  const std::string entite = contrat(data::Contrat::Association);
  if (document == contrat(data::Contrat::Convention) || !document.ends_with(entite)) return "";
  return document.substr(0, document.size() - entite.size());
}

}  // namespace

QString dossierModeles(const QSettings& reglages) {
  const QString choisi = reglages.value(CleDossierModeles).toString();
  return choisi.isEmpty() ? dansDocuments("Modèles de lettres") : choisi;
}

QString dossierLettres() {
  return dansDocuments("Lettres");
}

void ControleLettres::Appeler(const std::string& methode) {
  if (methode != "Imprimer") return;
  if (objets_.Db == nullptr) throw std::logic_error("a letter without a database");
  const std::string cle = Lire("W_CodeContrat");
  documents::DossierLettre contrat =
      documents::lireDossierLettre(*objets_.Db, cle, "", bureau_.Plateforme().poste.Aujourdhui());
  contrat.avenant = avenantNomme(Lire("W_Document"), contrat.contrat);
  if (contrat.Etat() == 0) {
    throw screen::ErreurImpression("Le contrat " + cle + " n'a pas d'avenant « " + contrat.avenant +
                                   " » : il n'y a pas de lettre à imprimer.");
  }
  const DossierModeles modeles(dossierModeles(bureau_.Reglages()));
  Annoncer(ecrireLettre(contrat, modeles, dossierLettres()));
}

void ControleLettres::Annoncer(const LettreOdt& lettre) {
  FenetreLettre fenetre(lettre, bureau_.FenetreCourante());
  fenetre.exec();
  if (fenetre.Choix() == FenetreLettre::Suite::Pdf) return EnPdf(lettre.fichier);
  if (fenetre.Choix() != FenetreLettre::Suite::Ouvrir) return;
  if (TraitementTexte(bureau_.Reglages()).Ouvrir(lettre.fichier)) return;
  throw screen::ErreurImpression(versModele("Aucun programme de ce poste n'ouvre le fichier « " +
                                            lettre.fichier +
                                            " ». Ouvrez-le depuis votre dossier de documents."));
}

void ControleLettres::EnPdf(const QString& fichier) {
  const TraitementTexte traitement(bureau_.Reglages());
  try {
    if (!traitement.SaitConvertir()) return EnPdfSimple(fichier);
    const QString pdf = traitement.EnPdf(fichier, bureau_.FenetreCourante());
    if (!pdf.isEmpty() && bureau_.SurImpression) bureau_.SurImpression(pdf);
  } catch (const ConversionManquee& erreur) {
    throw screen::ErreurImpression(erreur.what());
  }
}

void ControleLettres::EnPdfSimple(const QString& fichier) {
  const QString pdf = TraitementTexte::EnPdfSimple(fichier);
  bureau_.Plateforme().messages.Montrer(
      {versModele(
           "Ce poste n'a pas LibreOffice : le PDF a la mise en page simple de l'aperçu, sans "
           "les images du modèle. Pour une mise en page complète, ouvrez « " +
           fichier + " » et enregistrez-la en PDF depuis le traitement de texte."),
       screen::Boutons::Ok, screen::Icone::Information, screen::TitreMessage});
  if (bureau_.SurImpression) bureau_.SurImpression(pdf);
}

}  // namespace hote
