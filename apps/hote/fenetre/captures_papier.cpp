#include "fenetre/captures_papier.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <utility>
#include <vector>

#include "composants/fenetre_lettre.h"
#include "control/ctr_contrat.h"
#include "data/layouts/fichiers.h"
#include "documents/dossier_declaration.h"
#include "documents/page.h"
#include "fenetre/album.h"
#include "liaison/bureau.h"

namespace hote {

namespace {

// The user's folder is another one meanwhile: nothing printed for a picture is left in it.
class Maison {
 public:
  Maison() { qputenv("HOME", essai_.path().toUtf8()); }
  ~Maison() { qputenv("HOME", vraie_); }
  Maison(const Maison&) = delete;
  Maison& operator=(const Maison&) = delete;
  QString Dossier(const char* nom) const { return essai_.filePath(nom); }

 private:
  QByteArray vraie_ = qgetenv("HOME");
  QTemporaryDir essai_{};
};

// A page of paper, where the program that draws them is installed.
void capturerPapier(Album& album, const QString& pdf, int page, const QString& nom) {
  const QString dessin = QStandardPaths::findExecutable("pdftoppm");
  if (dessin.isEmpty()) return;
  const QTemporaryDir essai;
  const QString racine = essai.filePath("page");
  const QString numero = QString::number(page);
  if (QProcess::execute(dessin, {"-png", "-r", "80", "-singlefile", "-f", numero, "-l", numero, pdf,
                                 racine}) != 0) {
    throw std::runtime_error(versModele("« " + pdf + " » ne se dessine pas."));
  }
  album.Reprendre(racine + ".png", nom);
}

}  // namespace

// The declarations of a contract, printed as the editor does, and its letter.
void capturerPapiers(Album& album, Bureau& bureau, const control::Ctr_Contrat& liste) {
  const Maison maison;
  const std::string cle = liste.ClesContrats()(1);
  session::Session session(bureau.Plateforme().poste);
  session.Db = liste.Etat().Db;
  session.OuvrirFichiers();
  data::CItem contrat;
  session.F_CONTRAT.Lire(cle, contrat);
  documents::DossierDeclaration declaration =
      documents::lireDossierDeclaration(session, cle, contrat);
  declaration.dossierImages = bureau.Plateforme().aide.Dossier();
  QString pdf;
  const auto annoncer = std::exchange(bureau.SurImpression, [&](const QString& f) { pdf = f; });
  documents::imprimer(documents::pagesDeclaration(declaration, false),
                      bureau.Plateforme().imprimante);
  bureau.SurImpression = annoncer;
  capturerPapier(album, pdf, 1, "declaration-matricielle");
  capturerPapier(album, pdf, 2, "declaration-formulaire");

  const documents::DossierLettre lettre =
      documents::lireDossierLettre(*session.Db, cle, "", bureau.Plateforme().poste.Aujourdhui());
  FenetreLettre fenetre(ecrireLettre(lettre, DossierModeles(maison.Dossier("modeles")),
                                     maison.Dossier("Documents/Lettres")),
                        nullptr);
  fenetre.show();
  album.Prendre(fenetre, "lettre");
}

void capturerHebergees(Album& album, Bureau& bureau, const control::Ctr_Contrat& liste) {
  std::string employeur;
  liste.Etat().Db->Stockage().Scan(data::fichier::CIVILAIDE, data::KeyRange::Tout(),
                                   [&](std::string_view cle, std::string_view) {
                                     employeur = cle;
                                     return false;
                                   });
  const struct {
    const char* controle;
    const char* forme;
    std::vector<std::pair<const char*, std::string>> proprietes;
  } vues[] = {{"Ctr_ParamTable",
               "Frm_QualifPro",
               {{"TheCle", "QUALIF"}, {"W_Droits", std::string(session::DroitContrat)}}},
              {"Ctr_CivilAide", "Frm_CivilAide", {{"W_CodeAide", employeur}}},
              {"Ctr_Ventilation",
               "Frm_Ventilation",
               {{"W_CodeAidant", liste.W_Code}, {"W_NomPrenom", liste.W_NomPrenom}}}};
  for (const auto& vue : vues) {
    screen::ControleHeberge& controle = *bureau.Plateforme().controles.Trouver(vue.controle);
    for (const auto& [propriete, valeur] : vue.proprietes) controle.Regler(propriete, valeur);
    controle.Appeler("init");
    const std::unique_ptr<QWidget> fenetre = bureau.Construire(vue.forme);
    fenetre->show();
    album.Prendre(*fenetre, QString(vue.forme).section('_', 1).toLower());
  }
}

}  // namespace hote
