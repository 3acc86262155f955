// What a shortened contract does to the planning.

#include "rules/planning.h"

#include "data/cles.h"
#include "data/jour.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/recherches.h"
#include "data/layouts/voisins.h"
#include "data/requete.h"
#include "data/texte.h"

namespace rules {

namespace {

using data::citer, data::citerDebut;

constexpr int LongueurUtilisateur = 20;
constexpr const char* PremierAppel = "AFAIRE";
constexpr const char* Mandat = "M";

// What shortening an intervention reads, which belongs to the block that does it.
void annoncer(const std::string& cle, data::Route& route) {
  namespace f = data::fichier;
  if (!route.Utile()) return;
  const std::string aide =
      data::milieu(cle, data::TpsDetailsInterv::PosAide, data::LongueurCodeAidant);
  route.AnnoncerBloc();
  route.Annoncer({{f::TPSDETAILSINTERV, {cle}, {}},
                  {f::TPSEXCEPTIONS, {}, {}, {{&data::IndexExceptions, data::KeyRange::Une(cle)}}},
                  {f::TPSPARAM, {data::TpsParam::Cle}, {}},
                  {f::CIVILAIDE, {aide}, {}},
                  {f::CIVILAIDANT, {cle.substr(0, data::LongueurCodeAidant)}, {}}});
}

Sort sortDe(const Intervention& intervention, const ContratPlanifie& contrat,
            const ParametresPlanning& parametres) {
  if (intervention.Debut() <= contrat.dernierJour.value_or(0)) return Sort::Coupee;
  return contrat.determine && parametres.resteSansContrat ? Sort::SansContrat : Sort::Supprimee;
}

std::string annonce(Sort sort, long dernierJour) {
  switch (sort) {
    case Sort::SansContrat:
      return "Sera sans contrat.";
    case Sort::Supprimee:
      return "Sera supprimée.";
    case Sort::Coupee:
      return "Nouvelle date de fin au " + data::dateAffichee(dernierJour) + ".";
  }
  return {};
}

}  // namespace

std::vector<Incidence> incidences(data::Db& db, const ContratPlanifie& contrat) {
  std::vector<Incidence> trouvees;
  if (!contrat.dernierJour) return trouvees;
  using namespace data::TpsDetailsInterv;
  data::Requete requete(data::fichier::TPSDETAILSINTERV, "SELECT");
  requete.Avec(data::Cle, "=", citerDebut(contrat.codeAidant))
      .Avec(DateFin, ">", citer(std::to_string(*contrat.dernierJour)))
      .Ou("=", citer(""))
      .Avec("CodeActInterv", "=", citerDebut(contrat.association));
  if (contrat.convention == data::ConventionParticuliers) {
    requete.Avec("CodeAide", "=", citer(contrat.employeur))
        .Avec("TypeActDetailInterv", "=", citer(Mandat));
  } else {
    requete.Avec("TypeActDetailInterv", "#", citer(Mandat));
  }
  const data::CItem lignes =
      requete.Par("JourInterv").Par("HeureInterv").Lire(db, {data::Cle, DateFin, HeureFin});
  const ParametresPlanning parametres = parametresPlanning(db);
  for (int i = 1; i <= lignes.DCount(); ++i) {
    const Intervention intervention{lignes(i, 1), lignes(i, 2), lignes(i, 3)};
    trouvees.push_back({intervention, sortDe(intervention, contrat, parametres)});
  }
  return trouvees;
}

std::string rapportIncidences(data::Db& db, const ContratPlanifie& contrat,
                              const std::vector<Incidence>& incidences,
                              const std::string& anomalies) {
  const ParametresPlanning parametres = parametresPlanning(db);
  std::string texte = anomalies.empty() ? "" : anomalies + "\r\n\r\n";
  texte += "La modification du contrat aura les incidences suivantes sur le planning : \r\n";
  for (const auto& [intervention, sort] : incidences) {
    texte += ligneIntervention(db, intervention, parametres) + "\r\n" + std::string(20, ' ') +
             annonce(sort, contrat.dernierJour.value_or(0));
  }
  return texte;
}

MiseAJourPlanning::MiseAJourPlanning(data::Db& db, const ContratPlanifie& contrat,
                                     long ancienDernierJour, const std::string& utilisateur)
    : db_(db),
      contrat_(contrat),
      ancienDernierJour_(ancienDernierJour),
      utilisateur_(data::gauche(utilisateur, LongueurUtilisateur)) {}

void MiseAJourPlanning::Appliquer(const std::vector<Incidence>& incidences) {
  try {
    for (const Incidence& incidence : incidences) {
      if (incidence.sort != Sort::SansContrat) {
        data::Route route(db_.Stockage());
        annoncer(incidence.intervention.cle, route);
        Remplacer(incidence.intervention.cle);
        db_.Stockage().EnUnBloc([&] { Ecourter(incidence.intervention.cle, incidence.sort); });
      }
      ++faites_;
    }
  } catch (...) {
    EffacerListe();
    throw;
  }
  EffacerListe();
}

// An intervention and what deviates from it go together: done again, nothing is left over.
void MiseAJourPlanning::Ecourter(const std::string& cle, Sort sort) {
  const data::DbFile interventions = db_.OpenFile(data::fichier::TPSDETAILSINTERV);
  data::CItem article;
  if (sort == Sort::Supprimee) {
    interventions.DeleteItem(cle);
  } else if (interventions.Lire(cle, article)) {
    article.Set(data::TpsDetailsInterv::DateFin, std::to_string(*contrat_.dernierJour));
    article.DBWrite();
  }
  Supprimer_ExceptionsApres(cle);
}

// The replacements that the change touches. The first call of the series answers the name of its
// list before the lines.
void MiseAJourPlanning::Remplacer(const std::string& cle) {
  data::CItem demande;
  demande.Set(1, cle);
  demande.Set(2, std::to_string(ancienDernierJour_));
  demande.Set(3, std::to_string(*contrat_.dernierJour + 1));
  demande.Set(4, liste_.empty() ? PremierAppel : liste_);
  demande.Set(5, utilisateur_);
  long statut = 0;
  const data::CItem reponse = db_.CallRoutine("REMPLRECURSIF", statut, demande.Text());
  int ligne = 1;
  if (liste_.empty()) liste_ = reponse(ligne++);
  for (; ligne <= reponse.DCount(); ++ligne) remplacements_.push_back(reponse(ligne));
}

void MiseAJourPlanning::Supprimer_ExceptionsApres(const std::string& cle) {
  const data::CItem lignes =
      data::Requete(data::fichier::TPSEXCEPTIONS, "SELECT")
          .Avec(data::TpsExceptions::Intervention, "=", citer(cle))
          .Avec("DateDebExcep", ">", citer(std::to_string(*contrat_.dernierJour)))
          .Lire(db_, {data::Cle});
  const data::DbFile exceptions = db_.OpenFile(data::fichier::TPSEXCEPTIONS);
  for (int i = 1; i <= lignes.DCount(); ++i) exceptions.DeleteItem(lignes(i, 1));
}

void MiseAJourPlanning::EffacerListe() {
  if (liste_.empty()) return;
  data::CItem commande;
  commande.Set(1, "EFFACER-LISTE " + liste_);
  long statut = 0;
  db_.Execute(commande.Text(), "", statut);
  liste_.clear();
}

void MiseAJourPlanning::LaisserSansContrat() {
  const std::string cle = contrat_.codeAidant + (contrat_.typeActivite == Mandat
                                                     ? contrat_.association + contrat_.typeActivite
                                                     : contrat_.employeur);
  const data::DbFile fichier = db_.OpenFile(data::fichier::TPSSANSCONTRAT);
  data::CItem marque;
  if (!fichier.Lire(cle, marque)) fichier.NewItem(cle).DBWrite();
}

}  // namespace rules
