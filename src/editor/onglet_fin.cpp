#include "editor/onglet_fin.h"

#include "data/jour.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "data/requete.h"
#include "editor/editeur.h"

namespace editor {

namespace {

namespace C = data::Contrat;

// The one retirement body of private employers' staff, which is its own code.
constexpr const char* RetraiteParticuliers = "IRCEM";

}  // namespace

OngletFin::OngletFin(Frm_ElementsContrat& editeur) : Onglet(editeur, FinContrat, "Cdr_Ong5") {
  Page.SetEnabled(false);
}

void OngletFin::Afficher_Ong5() {
  const auto& origine = editeur_.origine;
  if (Session().EtatSuppAidant) Txt_DateFinContrat.SetEnabled(false);
  if (Creation()) {
    QuitterEntite();
  } else {
    RemplirRetraite(origine.Entite(), origine.Particuliers());
  }
}

void OngletFin::SelonDroits(bool complet) {
  if (!complet) Cmd_SupprimerContrat.SetVisible(false);
}

void OngletFin::Vider_Ong() {
  Cmd_SupprimerContrat.SetVisible(false);
  Cbo_OrgRetraite.SetListIndex(-1);
  Etq_InfoComplMotifFin.SetVisible(false);
}

// A private employer whose leave is provisioned is billed before the contract may end: refuses the
// tab while the month's invoice is missing.
bool OngletFin::Admettre() {
  const auto& origine = editeur_.origine;
  const std::string periode = Contrat()(C::DernierCalcul);
  if (periode.empty() || !origine.Particuliers() || !editeur_.paie.ProvisionFacturee()) return true;
  data::CItem employeur;
  Session().Db->OpenFile(data::fichier::ELTSPARTEMP).Lire(origine.Employeur(), employeur);
  if (employeur.Vue(data::EltsPartEmp::DerniereFacture) == periode) return true;
  data::CItem calcul;
  if (!Session().F_DETAILCALCUL.Lire(Dossier().CleContratCourant + periode, calcul) ||
      calcul.Vue(data::DetailCalcul::Facturation) != "P") {
    return true;
  }
  Message(
      "Vous ne pouvez pas accéder à l'onglet fin de contrat tant que vous n'avez pas fait la "
      "facture du mois de " +
          data::moisAnnee(periode),
      screen::Icone::Exclamation);
  return false;
}

void OngletFin::SelonType(bool determine) {
  screen::Activer({&Etq_DatNotifContrat, &Txt_DatNotifContrat, &Etq_DateFinContrat}, true);
  Cac_PrecaLibContrat.SetEnabled(determine);
  Cac_PrecaLibContrat.SetValue(determine ? 1 : 0);
}

void OngletFin::ChoisirEntite(const std::string& entite, bool particuliers) {
  const session::Sourdine::Silence silence(sourdine_);
  RemplirRetraite(entite, particuliers);
  Cbo_OrgRetraite.SetListIndex(0);
  Txt_OrgRetraite.SetText(ListeOrgRetraite_.A(0).code);
}

void OngletFin::QuitterEntite() {
  const session::Sourdine::Silence silence(sourdine_);
  ListeOrgRetraite_ = data::ListeCodes();
  Cbo_OrgRetraite.Clear();
  Txt_OrgRetraite.SetText("");
}

void OngletFin::RemplirRetraite(const std::string& entite, bool particuliers) {
  using namespace data;
  if (particuliers) {
    ListeOrgRetraite_ =
        ListeCodes(std::vector<ListeCodes::Ligne>{{RetraiteParticuliers, RetraiteParticuliers}});
  } else {
    ListeOrgRetraite_ = ListeCodes::DeSelection(
        Requete(fichier::ORGANISMESOCIAL)
            .Avec(Cle, "=", citerDebut(entite))
            .Avec(OrganismeSocial::Genre, "=", citer(OrganismeSocial::GenreRetraite))
            .Par(OrganismeSocial::Libelle)
            .Lire(*Session().Db, {Cle, OrganismeSocial::Libelle}));
  }
  Cbo_OrgRetraite.Clear();
  for (const auto& ligne : ListeOrgRetraite_.Lignes()) Cbo_OrgRetraite.AddItem(ligne.libelle);
  Cbo_OrgRetraite.SetEnabled(!particuliers);
}

std::optional<long> OngletFin::DateFin() const {
  const auto fin = Contrat().Vue(C::DateFin);
  if (fin.empty()) return std::nullopt;
  return static_cast<long>(data::entier(fin));
}

}  // namespace editor
