// The planning in words, and the coherence of a contract with it.

#include "data/cles.h"
#include "data/jour.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "data/question.h"
#include "data/texte.h"
#include "rules/chevauchement.h"
#include "rules/planning.h"

namespace rules {

namespace {

namespace T = data::TpsDetailsInterv;
using data::citer, data::citerDebut;

constexpr const char* Jours[] = {"Lundi    ", "Mardi    ", "Mercredi ", "Jeudi    ",
                                 "Vendredi ", "Samedi   ", "Dimanche "};
constexpr int LongueurNom = 30;
// Most activities of a contract that are looked at.
constexpr std::size_t ActivitesMax = 100;

std::string deux(long long nombre) {
  return data::completeAGauche(std::to_string(nombre), 2, '0');
}

// "0830" as "08h30", or "08,30" where times are kept as they are. Hundredths become minutes.
std::string heure(const std::string& chiffres, bool enCentiemes) {
  const std::string heures = chiffres.substr(0, std::min<std::size_t>(chiffres.size(), 2));
  const long long reste = chiffres.size() > 2 ? data::entier(chiffres.substr(2)) : 0;
  if (!enCentiemes) return heures + "," + deux(reste);
  return heures + "h" + deux((reste * 60 + 50) / 100);
}

std::string partie(const std::string& cle, int position, std::size_t longueur) {
  const auto debut = static_cast<std::size_t>(position - 1);
  return debut < cle.size() ? cle.substr(debut, longueur) : std::string();
}

std::string jourCite(long jour) {
  return citer(std::to_string(jour));
}

// What both sides of a contract's dates are looked up by.
std::string condition(const ContratPlanifie& c) {
  return "AVEC 0 = " + citerDebut(c.codeAidant) +
         " AND AVEC TypeActDetailInterv = " + citer(c.typeActivite) +
         " AND AVEC CodeActInterv = " + citerDebut(c.association) +
         (c.convention == data::ConventionParticuliers
              ? " AND AVEC CodeAide = " + citer(c.employeur)
              : "");
}

// The days before the start that no other contract covers; "" when there are none.
std::string avantDebut(const ContratPlanifie& c) {
  const std::string avant = condition(c) + " AND AVEC DateDebInterv < " + jourCite(c.debut);
  if (c.derniereFinAvant == 0) return avant;
  if (c.derniereFinAvant >= c.debut - 1) return "";
  return avant + " AND AVEC 1 > " + jourCite(c.derniereFinAvant) + " OR = \"\"";
}

std::string apresFin(const ContratPlanifie& c) {
  if (!c.termine || !c.dernierJour) return "";
  const std::string apres =
      condition(c) + " AND AVEC 1 > " + jourCite(*c.dernierJour) + " OR = \"\"";
  if (c.prochainDebutApres == SansFin) return apres;
  return apres + " AND AVEC DateDebInterv < " + jourCite(c.prochainDebutApres);
}

std::vector<Intervention> chercher(data::Db& db, const std::string& conditions) {
  const data::CItem lignes =
      db.Selectionner("SELECT TPSDETAILSINTERV " + conditions, "TPSDETAILSINTERV", "0 1 2");
  std::vector<Intervention> trouvees;
  for (int i = 1; i <= lignes.DCount(); ++i) {
    trouvees.push_back({lignes(i, 1), lignes(i, 2), lignes(i, 3)});
  }
  return trouvees;
}

std::string horsDates(data::Db& db, const ContratPlanifie& c, bool avecFin,
                      const ParametresPlanning& parametres) {
  std::string question = avantDebut(c);
  const std::string fin = avecFin ? apresFin(c) : "";
  if (!question.empty() && !fin.empty()) question += " OR ";
  question += fin;
  if (question.empty()) return "";
  std::string texte;
  for (const auto& intervention : chercher(db, question)) {
    if (texte.empty()) {
      texte =
          "Des interventions du planning sont en dehors des dates de validité du contrat : \r\n";
    }
    texte += ligneIntervention(db, intervention, parametres);
  }
  return texte;
}

bool prevue(const ContratPlanifie& c, const std::string& libelle) {
  const std::size_t nombre = std::min(c.activites.size(), ActivitesMax);
  for (std::size_t i = 0; i < nombre; ++i) {
    if (!libelle.empty() && c.activites[i] == libelle) return true;
  }
  return false;
}

std::string horsActivites(data::Db& db, const ContratPlanifie& c,
                          const ParametresPlanning& parametres) {
  std::string question = condition(c);
  if (c.termine && c.dernierJour) {
    question += " AND AVEC DateDebInterv <= " + jourCite(*c.dernierJour);
  }
  question += " AND AVEC 1 >= " + jourCite(c.debut) + " OR = \"\"";
  std::string texte;
  for (const auto& intervention : chercher(db, question)) {
    const std::string code = intervention.Activite();
    const std::string libelle = c.activitesOffertes.Libelle(code);
    if (prevue(c, libelle)) continue;
    if (texte.empty()) {
      texte =
          "Des interventions du planning sont sur des activités non définies pour ce contrat : ";
    }
    texte += ligneIntervention(db, intervention, parametres) +
             "\r\n          ACTIVITE : " + (libelle.empty() ? code : libelle);
  }
  return texte;
}

}  // namespace

long Intervention::Debut() const {
  return static_cast<long>(data::entier(partie(cle, T::PosDebut, 5)));
}
std::string Intervention::Activite() const {
  return partie(cle, T::PosActivite, T::LongueurActivite);
}

ParametresPlanning parametresPlanning(data::Db& db) {
  data::CItem parametres;
  db.OpenFile(data::fichier::TPSPARAM).Lire(data::TpsParam::Cle, parametres);
  return {parametres.Vue(data::TpsParam::Mode) == "1",
          parametres.Vue(data::TpsParam::Notation) == "2"};
}

std::string ligneIntervention(data::Db& db, const Intervention& i,
                              const ParametresPlanning& parametres) {
  const long long jour = data::entier(partie(i.cle, T::PosJour, 1));
  data::CItem aide;
  db.OpenFile(data::fichier::CIVILAIDE).Lire(partie(i.cle, T::PosAide, 5), aide);
  const std::string nom = data::sansBlancs(aide(data::CivilAide::Nom)) + " " +
                          data::sansBlancs(aide(data::CivilAide::Prenom));
  const std::string jusquAu = " jusqu'au ";
  return "\r\n" + std::string(Jours[jour >= 0 && jour < 6 ? jour : 6]) + "de " +
         heure(partie(i.cle, T::PosHeure, 4), parametres.enCentiemes) + " à " +
         heure(i.heureFin, parametres.enCentiemes) + " chez " + data::gauche(nom, LongueurNom) +
         " à partir du " + data::dateAffichee(i.Debut()) +
         (i.fin.empty() ? std::string(jusquAu.size() + 10, ' ')
                        : jusquAu + data::dateAffichee(static_cast<long>(data::entier(i.fin))));
}

std::string Verif_CoherencePlanning(data::Db& db, const ContratPlanifie& contrat, bool avecFin) {
  const ParametresPlanning parametres = parametresPlanning(db);
  if (!parametres.resteSansContrat) return "";
  std::string texte = horsDates(db, contrat, avecFin, parametres);
  const std::string activites = horsActivites(db, contrat, parametres);
  if (!texte.empty() && !activites.empty()) texte += "\r\n\r\n";
  return texte + activites;
}

}  // namespace rules
