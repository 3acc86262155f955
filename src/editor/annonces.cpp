#include "editor/annonces.h"

#include "data/cles.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/recherches.h"
#include "data/layouts/voisins.h"
#include "data/texte.h"
#include "editor/editeur.h"

namespace editor {

namespace {

namespace C = data::Contrat;
namespace f = data::fichier;
using data::KeyRange;

// What payroll and billing have made of the contract.
std::vector<data::Annonce> resultats(Frm_ElementsContrat& editeur) {
  const rules::ContratTraite contrat = editeur.ContratTraite();
  std::vector<data::Annonce> annonces;
  for (const auto fichier : rules::fichiersTraites(contrat)) {
    annonces.push_back({fichier, {}, {KeyRange::Prefixe(contrat.cle)}});
  }
  return annonces;
}

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
      {f::PROFIL, editeur.paie.ClesProfils(), {}},
      {f::RUBCHARGE, {}, {KeyRange::Tout()}},
  };
  if (s.OptionCompteur999) {
    annonces.push_back({f::TPSDETAILSINTERV, {}, {aidant}});
    annonces.push_back({f::TPSPARAM, {data::TpsParam::Cle}, {}});
  }
  const session::Dossier& dossier = editeur.Dossier();
  if (dossier.ModeCreation) {
    annonces.push_back({f::CIVILAIDANT, {s.CodeAidant}, {}});
  } else {
    const bool debutChange =
        std::to_string(editeur.Dates().debut) != dossier.ItemContrat.Vue(C::DateDebut);
    if (debutChange || editeur.fin.FinAffichee()) {
      for (auto& annonce : resultats(editeur)) annonces.push_back(std::move(annonce));
    }
    // The planning is compared with what the third tab says.
    if (debutChange && !editeur.paie.Charge()) {
      annonces.push_back({f::TABLES, {data::Tables::CarteOrange}, {}});
      annonces.push_back({f::CONTRATSPREV, {}, {KeyRange::Tout()}});
    }
    annonces.push_back({f::PROFIL, {dossier.ItemContrat(C::Profil)}, {}});
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

void AnnoncerIncidences(const std::vector<rules::Incidence>& incidences, data::Route& route) {
  if (!route.Utile()) return;
  std::vector<std::string> aides;
  aides.reserve(incidences.size());
  for (const auto& incidence : incidences) {
    aides.push_back(data::milieu(incidence.intervention.cle, data::TpsDetailsInterv::PosAide,
                                 data::LongueurCodeAidant));
  }
  route.Annoncer({{f::CIVILAIDE, aides, {}}});
}

void AnnoncerSuppression(Frm_ElementsContrat& editeur, data::Route& route) {
  if (route.Utile()) route.Annoncer(resultats(editeur));
}

void AnnoncerSupprimee(Frm_ElementsContrat& editeur, data::Route& route) {
  if (!route.Utile()) return;
  route.AnnoncerBloc();
  const session::Dossier& dossier = editeur.Dossier();
  const std::string& cle = dossier.CleContratCourant;
  const auto par = [&](const data::Index& index) {
    return data::Chemin{&index, KeyRange::Une(cle)};
  };
  std::vector<data::Annonce> annonces = {
      {f::OPPOSITION, {}, {KeyRange::Prefixe(cle)}},
      {f::DSNEVENEMENT, {cle}, {}},
      {f::CONTRAT, {cle}, {}, {par(data::IndexReportes), par(data::IndexRepris)}},
  };
  if (dossier.Session.OptionCompteur999) {
    annonces.push_back({f::ACTIVITES, {}, {KeyRange::Prefixe(editeur.origine.Entite())}});
    annonces.push_back({f::TPSDETAILSINTERV, {}, {KeyRange::Prefixe(dossier.Session.CodeAidant)}});
    annonces.push_back({f::TPSMOI, {}, {}, {par(data::IndexMainOeuvre)}});
  }
  route.Annoncer(annonces);
}

void AnnoncerDeclaration(const session::Dossier& dossier, data::Route& route) {
  if (!route.Utile()) return;
  const data::CItem& contrat = dossier.ItemContrat;
  const std::string employeur = contrat(C::Employeur);
  const std::string& code = dossier.Session.CodeAidant;
  route.Annoncer({{f::ASSOCIATION, {contrat(C::Association)}, {}},
                  {f::CIVILAIDE, {employeur}, {}},
                  {f::ELTSPARTEMP, {employeur}, {}},
                  {f::CIVILAIDANT, {code}, {}},
                  {f::ETRANGER, {code}, {}},
                  {f::TABLES, {data::Tables::TitresSejour, data::Tables::NatureVoie}, {}},
                  {f::ETABLISSEMENT, {employeur}, {}},
                  {f::CENTREMEDICAL, {}, {KeyRange::Tout()}}});
}

}  // namespace editor
