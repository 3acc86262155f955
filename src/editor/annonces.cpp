#include "editor/annonces.h"

#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "editor/editeur.h"

namespace editor {

namespace {

namespace C = data::Contrat;
namespace f = data::fichier;
using data::KeyRange;

}  // namespace

void AnnoncerGardes(Frm_ElementsContrat& editeur, data::Route& route) {
  const session::Session& s = editeur.Session();
  if (!route.Utile() || s.CodeAidant.empty()) return;
  route.AnnoncerBloc();
  const auto aidant = KeyRange::Prefixe(s.CodeAidant);
  std::vector<data::Annonce> annonces = {
      {f::CONTRAT, {}, {aidant}},
      {f::DSNEVENEMENT, {}, {aidant}},
      {f::TPSAIDANTINDISPO, {}, {aidant}},
      {f::CONSTANTESPAIE, {data::ConstantesPaie::Cle}, {}},
      {f::PCS, editeur.caracteristiques.ClesPCS(), {}},
      {f::CONVENTIONCOL, {editeur.origine.Convention()}, {}},
      {f::ELTSPARTEMP, {editeur.origine.Employeur()}, {}},
      {f::ACTIVITES, {}, {KeyRange::Prefixe(editeur.origine.Entite())}},
  };
  if (s.OptionCompteur999) {
    annonces.push_back({f::TPSDETAILSINTERV, {}, {aidant}});
    annonces.push_back({f::TPSPARAM, {data::TpsParam::Cle}, {}});
  }
  const session::Dossier& dossier = editeur.Dossier();
  if (dossier.ModeCreation) {
    annonces.push_back({f::CIVILAIDANT, {s.CodeAidant}, {}});
  } else {
    annonces.push_back({f::PROFIL, {dossier.ItemContrat(C::Profil)}, {}});
    annonces.push_back({f::RUBCHARGE, {}, {KeyRange::Tout()}});
  }
  route.Annoncer(annonces);
}

void AnnoncerCreation(const session::Dossier& dossier, data::Route& route) {
  const std::string& code = dossier.Session.CodeAidant;
  if (!route.Utile() || code.empty()) return;
  const auto aidant = KeyRange::Prefixe(code);
  route.Annoncer(
      {{f::CIVILAIDANT, {code}, {}}, {f::CONTRAT, {}, {aidant}}, {f::DSNEVENEMENT, {}, {aidant}}});
}

void AnnoncerModification(const session::Dossier& dossier, data::Route& route) {
  if (!route.Utile()) return;
  std::vector<std::string> cles = {dossier.CleContratCourant};
  for (const data::CItem* const contrat : {&dossier.Initial, &dossier.ItemContrat}) {
    for (const int lien : {C::CongesReportesSur, C::CongesReprisDe}) {
      cles.push_back((*contrat)(lien));
    }
  }
  route.Annoncer({{f::CONTRAT, cles, {}}, {f::DSNEVENEMENT, cles, {}}});
}

namespace {

std::vector<data::Annonce> suites(const session::Dossier& dossier, const std::string& cle) {
  const data::CItem& contrat = dossier.ItemContrat;
  const std::string suffixe = contrat(C::Association) + contrat(C::Convention);
  const std::string& code = dossier.Session.CodeAidant;
  std::vector<data::Annonce> annonces = {
      {f::CONTRAT, {cle}, {}},
      {f::AIDANTTTE, {dossier.ItemAidantTte(0)}, {}},
      {f::MISSIONSAIDANT, {code}, {}},
      {f::LIENCONTRAT, {std::string(f::PrefixeContrats) + suffixe}, {}},
      {f::LIENAVENANT, {std::string(f::PrefixeAvenants) + suffixe}, {}},
  };
  if (dossier.Particuliers()) {
    annonces.push_back({f::CIVILAIDANT, {code}, {}});
    annonces.push_back({f::CONTRATINV, {code + contrat(C::Employeur)}, {}});
  } else {
    annonces.push_back({f::ACTUSUIVICONTRAT, {code}, {}});
  }
  return annonces;
}

}  // namespace

void AnnoncerSuite(const session::Dossier& dossier, const std::string& cle, data::Route& route) {
  if (route.Utile()) route.AnnoncerSuite(suites(dossier, cle));
}

void RelireSuite(const session::Dossier& dossier, data::Route& route) {
  if (route.Utile()) route.Annoncer(suites(dossier, dossier.CleContratCourant));
}

}  // namespace editor
