#include "dialogs/frm_tps_indem.h"

#include "data/layouts/voisins.h"

namespace dialogs {

namespace {

namespace C = data::Contrat;

constexpr FormeHebergee::Hebergement TpsIndem{
    "Ctr_TpsIndem",
    "Le temps d'indemnisation ne peut pas être affiché ici : l'écran d'indemnisation des arrêts de "
    "travail n'est pas installé sur ce poste. Consultez-le depuis un poste qui en dispose.",
    "W_Occupe", "-1"};

// The last payslip computed, or else the last period processed; never later than the carer's first
// compensation.
std::string premierePeriode(const session::Dossier& dossier, const std::string& cle) {
  const data::CItem& contrat = dossier.ItemContrat;
  std::string periode = contrat(C::DernierCalcul);
  if (periode.empty()) periode = contrat(C::PeriodeTraitee);
  data::CItem historique;
  if (!dossier.Session.F_HISTORINDEM.Lire(cle, historique)) return periode;
  const std::string premiere = historique(data::HistorIndem::Periodes, 1);
  return !premiere.empty() && periode > premiere ? premiere : periode;
}

}  // namespace

Frm_TpsIndem::Frm_TpsIndem(screen::Platform& platform, const session::Dossier& dossier,
                           const std::string& prevoyance)
    : FormeHebergee(platform, "Frm_TpsIndem", "Temps d'indemnisation des arrêts de travail",
                    TpsIndem),
      session_(dossier.Session),
      cle_(prevoyance + dossier.Session.CodeAidant),
      periode_(premierePeriode(dossier, cle_)) {}

std::vector<FormeHebergee::Propriete> Frm_TpsIndem::Contexte() const {
  return {{"DroitsUtilisateur", "W_Droits"},
          {"TheDatabase", "Db"},
          {"TheClient", "LeClient"},
          {"W_CodeAidant", session_.CodeAidant},
          {"W_NomPrenom", session_.NomPrenomAidant},
          {"W_Periode", periode_},
          {"W_Cle", cle_}};
}

}  // namespace dialogs
