#include "fenetre/captures_etats.h"

#include <functional>
#include <optional>
#include <stdexcept>
#include <utility>
#include <vector>

#include "control/ctr_contrat.h"
#include "data/cles.h"
#include "data/jour.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/liste_codes.h"
#include "data/nombre.h"
#include "data/poste.h"
#include "fenetre/album.h"
#include "fenetre/fenetre_hote.h"
#include "fenetre/joueur.h"
#include "liaison/textes_qt.h"
#include "storage/sqlite.h"
#include "widget/contrat_widget.h"

namespace hote {

namespace {

namespace C = data::Contrat;
namespace A = data::CivilAidant;
using Pas = Joueur::Pas;

constexpr int NombreContrats = 60;
// In no demonstration data.
constexpr const char* AidantCharge = "99997";
constexpr const char* AidantLibre = "99998";
constexpr const char* AidantParti = "99999";

void modifier(const QString& base, std::string_view fichier, const std::string& de,
              const std::string& vers, const std::function<void(data::CItem&)>& changer) {
  const data::PosteSysteme poste;
  const auto stockage = storage::SqliteStorage::Ouvrir(versModele(base), poste);
  std::string texte;
  if (!stockage->Get(fichier, de, texte)) throw std::runtime_error("L'article " + de + " manque.");
  data::CItem article(texte);
  changer(article);
  stockage->Put(fichier, vers, article.Text());
}

void ajouterAidants(const QString& base, const std::string& aidant, const std::string& contrat) {
  const auto nommer = [&](const char* code, const char* nom, const char* fin) {
    modifier(base, data::fichier::CIVILAIDANT, aidant, code, [&](data::CItem& article) {
      article.Set(A::Nom, nom);
      article.Set(A::DateFin, fin);
      article.Set(A::DernierNumero, data::numeroContrat(NombreContrats));
    });
  };
  nommer(AidantCharge, "Abadie-Longuépée de la Rochemontée", "");
  nommer(AidantLibre, "Abadie", "");
  nommer(AidantParti, "Abadie", "20000");
  const long aujourdhui = data::PosteSysteme().Aujourdhui();
  for (int numero = 1; numero <= NombreContrats; ++numero) {
    const long debut = aujourdhui - 70L * (NombreContrats - numero);
    modifier(base, data::fichier::CONTRAT, contrat, data::cleContrat(AidantCharge, numero),
             [&](data::CItem& article) {
               article.Set(C::DateDebut, std::to_string(debut));
               article.Set(C::DateFin, std::to_string(debut + (numero % 7 == 0 ? 150 : 60)));
             });
  }
}

// Of a contract that is open: a page each, what is refused, what helps with a date.
const std::vector<Pas> Edition = {
    {"", &Joueur::Touche, "Lst_DatDebContrat", "Home"},
    {"", &Joueur::Touche, "", "Return"},
    {"editeur-1", &Joueur::Onglet, "Ong_Contrat", "1"},
    {"editeur-2", &Joueur::Onglet, "Ong_Contrat", "2"},
    {"editeur-3", &Joueur::Onglet, "Ong_Contrat", "3"},
    {"editeur-4", &Joueur::Onglet, "Ong_Contrat", "4"},
    {"editeur-5", &Joueur::Onglet, "Ong_Contrat", "5"},
    {"", &Joueur::Onglet, "Ong_Contrat", "1"},
    {"calendrier", &Joueur::Touche, "Txt_DatDebContrat", "F4"},
    {"", &Joueur::Touche, "", "Escape"},
    {"indication", &Joueur::Saisir, "Txt_DatDebContrat", "32/13\t"},
    {"", &Joueur::Saisir, "", "\x1b"},
    {"edition-modifiee", &Joueur::Saisir, "Txt_PerEssaiContrat", "45\t"},
};

const std::vector<Pas> Conflit = {
    {"conflit", &Joueur::Touche, "", "Ctrl+Return"},
    {"", &Joueur::Repondre, "", "Revenir à la saisie"},
    {"quitter", &Joueur::Cliquer, "Cmd_Retour"},
    {"", &Joueur::Repondre, "", "Non"},
};

const std::vector<Pas> Employeurs = {
    {"creation", &Joueur::Touche, "Lst_DatDebContrat", "Ins"},
    {"", &Joueur::Saisir, "Txt_ConvColContrat", "02\t"},
    {"", &Joueur::Saisir, "Txt_AssocContrat", "001\t"},
    {"employeur-rien", &Joueur::Saisir, "Cbo_LibEmplEtabContrat", "zzzz\n"},
    {"employeur-trouves", &Joueur::Saisir, "Cbo_LibEmplEtabContrat", "m\n"},
    {"", &Joueur::Cliquer, "Cmd_Retour"},
    {"", &Joueur::Repondre, "", "Oui"},
};

// A second contract of the employer of `ancien`, which has ended, within its days.
std::vector<Pas> creerPendant(const data::CItem& ancien, const std::string& nature) {
  const long debut = static_cast<long>(data::entier(ancien.Vue(C::DateDebut)));
  const std::string employeur = ancien(C::Employeur).substr(ancien(C::Association).size());
  const auto jour = [&](long rang) { return data::dateAffichee(debut + rang) + "\t"; };
  return {
      {"", &Joueur::Touche, "Lst_DatDebContrat", "Ins"},
      {"", &Joueur::Saisir, "Txt_ConvColContrat", ancien(C::Convention) + "\t"},
      {"", &Joueur::Saisir, "Txt_AssocContrat", ancien(C::Association) + "\t"},
      {"", &Joueur::Saisir, "Txt_EmplEtabContrat", employeur + "\t"},
      {"", &Joueur::Saisir, "Txt_DatDebContrat", jour(1)},
      {"", &Joueur::Saisir, "Cbo_NatureContrat", nature + "\t"},
      {"chevauchement", &Joueur::Saisir, "Txt_PerEssaiContrat", "2\t"},
      {"", &Joueur::Onglet, "Ong_Contrat", "2"},
      {"", &Joueur::Touche, "Cbo_QualifContrat", "Down"},
      {"", &Joueur::Saisir, "Txt_DureeWContrat", "5\t"},
      {"", &Joueur::Touche, "Cbo_FreqWContrat", "Down"},
      {"", &Joueur::Saisir, "Txt_TauxHorContrat", "12,02\t"},
      {"", &Joueur::Onglet, "Ong_Contrat", "3"},
      {"", &Joueur::Saisir, "Txt_ProfilContrat", ancien(C::Profil) + "\t"},
      {"", &Joueur::Touche, "Cbo_Activite", "Down"},
      {"", &Joueur::Touche, "Cbo_LibPrevContrat", "Down"},
      {"chevauchement-refus", &Joueur::Touche, "", "Ctrl+Return"},
      {"chevauchement-question", &Joueur::Repondre, "", "OK"},
      {"", &Joueur::Repondre, "", "Oui"},
      {"", &Joueur::Cliquer, "Cmd_Retour"},
      {"", &Joueur::Repondre, "", "Oui"},
  };
}

const std::vector<Pas> Consultation = {
    {"", &Joueur::Touche, "Lst_DatDebContrat", "Home"},
    {"", &Joueur::Touche, "", "Return"},
    {"consultation-1", &Joueur::Onglet, "Ong_Contrat", "1"},
    {"consultation-2", &Joueur::Onglet, "Ong_Contrat", "2"},
    {"consultation-3", &Joueur::Onglet, "Ong_Contrat", "3"},
    {"consultation-4", &Joueur::Onglet, "Ong_Contrat", "4"},
    {"consultation-5", &Joueur::Onglet, "Ong_Contrat", "5"},
    {"", &Joueur::Cliquer, "Cmd_Retour"},
};

// Of the open carer, under the entity's own agreement; nothing where there is none.
std::optional<data::CItem> contratTermine(data::Storage& stockage, const data::CItem& cles) {
  for (int i = 1; i <= cles.DCount(); ++i) {
    std::string texte;
    if (!stockage.Get(data::fichier::CONTRAT, cles(i), texte)) continue;
    const data::CItem contrat(texte);
    if (!data::estParticulierEmployeur(contrat) && !contrat.Vue(C::DateFin).empty()) return contrat;
  }
  return std::nullopt;
}

std::string libelleNature(data::Storage& stockage, const std::string& code) {
  std::string texte;
  stockage.Get(data::fichier::TABLES, data::Tables::NatureContrat, texte);
  return data::ListeCodes::DeTable(data::CItem(texte), data::Tables::Codes, data::Tables::Libelles)
      .Libelle(code);
}

}  // namespace

void capturerEtats(Album& album, FenetreHote& fenetre, const QString& base,
                   const std::string& aidant) {
  Joueur clerc(album, fenetre);
  const std::string contrat = fenetre.Ecran()->Controle().ClesContrats()(1);
  clerc.Jouer({{"infobulle", &Joueur::Bulle, "Lst_EmplEtabContrat"}});
  const auto ailleurs = [&] {
    modifier(base, data::fichier::CONTRAT, contrat, contrat, [](data::CItem& article) {
      article.Set(C::PeriodeEssai, article(C::PeriodeEssai) == "20" ? "21" : "20");
      article.Set(C::DureeMinimale, "6 mois");
    });
  };
  std::vector<Pas> edition = Edition;
  edition.push_back({"", &Joueur::Faire, "", "", ailleurs});
  edition.insert(edition.end(), Conflit.begin(), Conflit.end());
  clerc.Jouer(std::move(edition));
  fenetre.ChangerDroits(1);
  fenetre.Ecran()->Affiche("", "", "");
  clerc.Jouer(Consultation);
  fenetre.ChangerDroits(session::Droit::Plein);

  ajouterAidants(base, aidant, contrat);
  fenetre.OuvrirFichier(base);
  const struct {
    const char* aidant;
    const char* image;
  } aidants[] = {{AidantCharge, "frise-chargee"},
                 {AidantLibre, "aucun-contrat"},
                 {AidantParti, "aidant-supprime"}};
  for (const auto& [code, image] : aidants) {
    fenetre.OuvrirAidant(std::string(code));
    fenetre.Ecran()->Affiche("", "", "");
    clerc.Jouer({{image, &Joueur::Saisir, "rechercheAidant", "\x1b"}});
  }
  fenetre.OuvrirAidant(std::string(AidantCharge));
  fenetre.Ecran()->Affiche("", "", "");
  clerc.Jouer(Employeurs);
  data::Storage& stockage = fenetre.Ecran()->Controle().Etat().Db->Stockage();
  if (const auto ancien = contratTermine(stockage, fenetre.Ecran()->Controle().ClesContrats())) {
    clerc.Jouer(creerPendant(*ancien, libelleNature(stockage, (*ancien)(C::Nature))));
  }
  clerc.Jouer({{"homonymes", &Joueur::Saisir, "rechercheAidant", "abadie"}});
}

}  // namespace hote
