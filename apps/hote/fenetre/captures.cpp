#include "fenetre/captures.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>
#include <algorithm>
#include <stdexcept>

#include "control/ctr_contrat.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "dialogs/frm_anim.h"
#include "dialogs/frm_anomalies_ajoutgraph.h"
#include "dialogs/frm_comment_bull.h"
#include "dialogs/frm_contrat_annuel.h"
#include "dialogs/frm_elem_droit_public.h"
#include "dialogs/frm_impression_a4.h"
#include "dialogs/frm_motif_cdd.h"
#include "dialogs/frm_reprise.h"
#include "dialogs/frm_rub_saisie.h"
#include "dialogs/frm_stage.h"
#include "fenetre/aide.h"
#include "fenetre/album.h"
#include "fenetre/captures_etats.h"
#include "fenetre/captures_liste.h"
#include "fenetre/captures_papier.h"
#include "fenetre/fenetre_hote.h"
#include "liaison/bureau.h"
#include "liaison/liaison.h"
#include "liaison/textes_qt.h"
#include "storage/copie.h"
#include "storage/sqlite.h"
#include "widget/contrat_widget.h"

namespace hote {

namespace {

constexpr QSize TailleControle{1010, 690};
constexpr QSize TailleFenetre{1280, 720};

// As a desktop with light letters on a dark ground has it.
void assombrir() {
  const QColor fond(0x20, 0x22, 0x26), base(0x17, 0x18, 0x1b), texte(0xe6, 0xe6, 0xe6);
  QPalette palette(QColor(0x2c, 0x2f, 0x34), fond);
  const std::pair<QPalette::ColorRole, QColor> couleurs[] = {
      {QPalette::Base, base},
      {QPalette::AlternateBase, QColor(0x1c, 0x1e, 0x22)},
      {QPalette::ToolTipBase, base},
      {QPalette::Highlight, QColor(0x2a, 0x6f, 0xb0)},
      {QPalette::HighlightedText, Qt::white},
      {QPalette::Link, QColor(0x6c, 0xb4, 0xee)}};
  for (const auto& [role, couleur] : couleurs) palette.setColor(role, couleur);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                          QPalette::ToolTipText, QPalette::PlaceholderText}) {
    palette.setColor(role, texte);
  }
  QApplication::setPalette(palette);
}

struct Vedettes {
  std::string premier;       // the first carer with a contract
  std::string plusContrats;  // the one with most of them
};

Vedettes chercherVedettes(data::Storage& stockage) {
  Vedettes vedettes;
  std::string aidant;
  int contrats = 0;
  int record = 0;
  stockage.Scan(data::fichier::CONTRAT, data::KeyRange::Tout(),
                [&](std::string_view cle, std::string_view) {
                  contrats = cle.substr(0, 5) == aidant ? contrats + 1 : 1;
                  aidant = cle.substr(0, 5);
                  if (vedettes.premier.empty()) vedettes.premier = aidant;
                  if (contrats > record) vedettes.plusContrats = aidant;
                  record = std::max(record, contrats);
                  return true;
                });
  if (aidant.empty()) throw std::runtime_error("Ce fichier ne contient aucun contrat à montrer.");
  return vedettes;
}

void capturer(Album& album, Bureau& bureau, screen::Form& forme, const QString& nom) {
  const std::unique_ptr<QWidget> fenetre = bureau.Construire(forme.Nom());
  forme.Show();
  const Liaison liaison(forme, *fenetre, bureau);
  fenetre->show();
  // As the desk fits a window to the screen.
  if (album.Taille().isValid()) fenetre->resize(fenetre->size().boundedTo(album.Taille()));
  album.Prendre(*fenetre, nom);
}

// `suffixe`: of the names of the pictures.
void capturerDialogues(Album& album, Bureau& bureau, const control::Ctr_Contrat& liste, int niveau,
                       const char* suffixe) {
  session::Session session(bureau.Plateforme().poste);
  session.Db = liste.Etat().Db;
  session.OuvrirFichiers();
  const session::DroitsUniformes droits(niveau);
  session.W_Droits = &droits;
  session.CodeAidant = liste.W_Code;
  session.NomPrenomAidant = liste.W_NomPrenom;
  session::Dossier dossier(session);
  session.F_CONTRAT.Lire(liste.ClesContrats()(1), dossier.ItemContrat);
  const auto prendre = [&](screen::Form& forme, const char* nom) {
    capturer(album, bureau, forme, QString(nom) + suffixe);
  };
  const auto jour = [&](int attribut) {
    return session.Lib.DateFromInternal(dossier.ItemContrat.Vue(attribut));
  };

  dialogs::Frm_MotifCDD motif(bureau.Plateforme(), dossier, jour(data::Contrat::DateDebut), {});
  prendre(motif, "motif-cdd");

  // Of a contract under public law, where the file has one.
  session::Dossier publique(session);
  const data::CItem publics =
      session.Db->Selectionner("SSELECT CONTRAT AVEC 121 <> \"\"", "CONTRAT", "0");
  session.F_CONTRAT.Lire(publics(1, 1), publique.ItemContrat);
  dialogs::Frm_ElemDroitPublic droitPublic(bureau.Plateforme(), publique, 1);
  prendre(droitPublic, "droit-public");
  dossier.CleContratCourant = liste.ClesContrats()(1);
  dialogs::Frm_ContratAnnuel suivi(bureau.Plateforme(), dossier, {});
  prendre(suivi, "suivi-1");
  suivi.Hide();
  suivi.Ong_SuivContrat.SetTab(1 - suivi.Ong_SuivContrat.Tab());
  prendre(suivi, "suivi-2");

  dialogs::Frm_Stage stage(bureau.Plateforme(), dossier);
  prendre(stage, "stage");

  dialogs::Frm_RubSaisie rubriques(bureau.Plateforme(), dossier, {});
  prendre(rubriques, "rubriques");
  dialogs::Frm_CommentBull commentaires(bureau.Plateforme(), dossier);
  prendre(commentaires, "commentaires");

  dialogs::Frm_Reprise reprise(bureau.Plateforme(), dossier);
  dialogs::DonneesReprise donnees;
  donnees.aidant = "Aidant : " + liste.W_Code + " " + liste.W_NomPrenom;
  donnees.debut = jour(data::Contrat::DateDebut);
  donnees.fin = jour(data::Contrat::DateFin);
  reprise.Afficher(donnees);
  prendre(reprise, "reprise");

  dialogs::Frm_AnomaliesAjoutgraph incidences(
      bureau.Plateforme(), dossier,
      {"La modification du contrat aura les incidences suivantes sur le planning : \r\n"
       "\r\nLundi    de 08h30 à 10h00 chez DUPONT Jeanne à partir du 07/09/2026\r\n"
       "                    Nouvelle date de fin au 30/11/2026."
       "\r\nMardi    de 14h00 à 15h30 chez ARNAUD Louis à partir du 08/12/2026\r\n"
       "                    Sera sans contrat.",
       true, "001 Aide du Val"});
  prendre(incidences, "incidences");
  dialogs::Frm_ImpressionA4 impression(bureau.Plateforme());
  prendre(impression, "impression");
  dialogs::Frm_Anim attente(bureau.Plateforme());
  prendre(attente, "attente");
}

// The list before a search, when the filters are free.
void capturerSelection(Album& album, Bureau& bureau, const control::Ctr_Contrat& liste) {
  const session::DroitsUniformes droits(session::Droit::Plein);
  ContratWidget ecran(bureau);
  ecran.TheDatabase(*liste.Etat().Db);
  ecran.W_Code = liste.W_Code;
  ecran.W_NomPrenom = liste.W_NomPrenom;
  ecran.DroitsUtilisateur(droits);
  ecran.init();
  ecran.resize(album.Taille().isValid() ? album.Taille() : TailleControle);
  ecran.show();
  album.Prendre(ecran, "selection");
}

void capturerEcrans(Album& album, Bureau& bureau, const QString& copie, std::string aidant) {
  FenetreHote fenetre(bureau);
  fenetre.show();
  // The screen that the pictures are made on is smaller than any real one.
  fenetre.resize(album.Taille().isValid() ? album.Taille() : TailleFenetre);
  if (!fenetre.OuvrirFichier(copie)) throw std::runtime_error("Le fichier ne s'ouvre pas.");
  album.Prendre(fenetre, "fenetre");
  const data::PosteSysteme poste;
  const Vedettes vedettes =
      chercherVedettes(*storage::SqliteStorage::OuvrirEnLecture(versModele(copie), poste));
  if (aidant.empty()) aidant = vedettes.premier;
  if (!fenetre.OuvrirAidant(vedettes.plusContrats)) {
    throw std::runtime_error("L'aidant ne s'affiche pas.");
  }
  fenetre.Ecran()->Affiche("", "", "");
  album.Prendre(fenetre, "liste-longue");
  if (!fenetre.OuvrirAidant(aidant)) throw std::runtime_error("L'aidant ne s'affiche pas.");
  fenetre.Ecran()->Affiche("", "", "");
  album.Prendre(fenetre, "liste");
  capturerEtatsListe(album, fenetre);
  fenetre.Ecran()->Affiche("", "", "");
  if (fenetre.Ecran()->Controle().Lst_DatDebContrat.ListCount() == 0) {
    throw std::runtime_error("L'aidant « " + aidant + " » n'a pas de contrat à montrer.");
  }
  capturerEtats(album, fenetre, copie, aidant);
  fenetre.OuvrirAidant(aidant);
  fenetre.Ecran()->Affiche("", "", "");
  const control::Ctr_Contrat& liste = fenetre.Ecran()->Controle();
  capturerDialogues(album, bureau, liste, session::Droit::Plein, "");
  capturerDialogues(album, bureau, liste, 1, "-consultation");
  capturerPapiers(album, bureau, liste);
  capturerHebergees(album, bureau, liste);
  capturerSelection(album, bureau, liste);
  FenetreAide aide(&fenetre);
  aide.setAttribute(Qt::WA_DeleteOnClose, false);
  aide.Montrer("Frm_ElementsContrat");
  album.Prendre(aide, "aide");
}

}  // namespace

QStringList capturerFormes(const QString& fichier, const std::string& aidant,
                           const QString& dossier, const QSize& taille, bool sombre) {
  if (surServeur(fichier)) {
    throw std::runtime_error(
        "--captures : les images se font d'un fichier de données, non d'un serveur.");
  }
  const QTemporaryDir essai;
  const QString copie = essai.filePath(QFileInfo(fichier).fileName());
  storage::copierFichier(versModele(fichier), versModele(copie));
  if (sombre) assombrir();
  Album album(dossier, taille);
  Bureau bureau(nullptr,
                std::make_unique<QSettings>(essai.filePath("reglages.ini"), QSettings::IniFormat));
  capturerEcrans(album, bureau, copie, aidant);
  return album.Images();
}

}  // namespace hote
