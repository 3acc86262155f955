// The planning in words, and the coherence of a contract with it.

#include <algorithm>
#include <charconv>
#include <map>

#include "data/cles.h"
#include "data/jour.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "data/question.h"
#include "data/requete.h"
#include "data/texte.h"
#include "rules/chevauchement.h"
#include "rules/planning.h"

namespace rules {

namespace {

namespace T = data::TpsDetailsInterv;
using data::citerDebut;

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

// The day of a planning key or of a last day; 0 for what is none.
long jourLu(std::string_view texte) {
  long jour = 0;
  std::from_chars(texte.data(), texte.data() + texte.size(), jour);
  return jour;
}

// The types of the entity's activities, by code.
std::map<std::string, std::string, std::less<>> typesActivites(data::Db& db,
                                                               const std::string& association) {
  std::map<std::string, std::string, std::less<>> types;
  const data::CItem lignes = data::Requete(data::fichier::ACTIVITES)
                                 .Avec(data::Cle, "=", citerDebut(association))
                                 .Lire(db, {data::Cle, data::Activites::Genre});
  for (int i = 1; i <= lignes.DCount(); ++i) types[lignes(i, 1)] = lignes(i, 2);
  return types;
}

// Days before the start that no other contract covers, or after the last day and before the next
// contract. `fin` is 0 for an intervention without end.
bool avantDebut(const ContratPlanifie& c, long debut, long fin) {
  if (debut >= c.debut) return false;
  if (c.derniereFinAvant == 0) return true;
  return c.derniereFinAvant < c.debut - 1 && (fin == 0 || fin > c.derniereFinAvant);
}

bool apresFin(const ContratPlanifie& c, long debut, long fin) {
  if (!c.termine || !c.dernierJour || (fin != 0 && fin <= *c.dernierJour)) return false;
  return c.prochainDebutApres == SansFin || debut < c.prochainDebutApres;
}

// On some day of the contract.
bool pendant(const ContratPlanifie& c, long debut, long fin) {
  if (c.termine && c.dernierJour && debut > *c.dernierJour) return false;
  return fin == 0 || fin >= c.debut;
}

bool prevue(const ContratPlanifie& c, const data::ListeCodes::Ligne* activite) {
  const auto fin =
      c.activites.begin() + static_cast<std::ptrdiff_t>(std::min(c.activites.size(), ActivitesMax));
  return activite != nullptr && std::find(c.activites.begin(), fin, activite->libelle) != fin;
}

struct HorsContrat {
  std::vector<Intervention> dates;
  std::vector<Intervention> activites;
};

// One walk over the carer's interventions, of which there may be thousands: those of the contract's
// entity and kind of activity, and with a private employer those at that person's.
HorsContrat examiner(data::Db& db, const ContratPlanifie& c, bool avecFin) {
  const auto types = typesActivites(db, c.association);
  const bool particulier = c.convention == data::ConventionParticuliers;
  HorsContrat hors;
  db.Stockage().Scan(
      data::fichier::TPSDETAILSINTERV, data::KeyRange::Prefixe(c.codeAidant),
      [&](std::string_view cle, std::string_view texte) {
        if (cle.size() < T::LongueurCle) return true;
        const auto activite = cle.substr(T::PosActivite - 1, T::LongueurActivite);
        const auto type = types.find(activite);
        if (type == types.end() || type->second != c.typeActivite) return true;
        if (particulier && cle.substr(T::PosAide - 1, data::LongueurCodeAidant) != c.employeur) {
          return true;
        }
        const long debut = jourLu(cle.substr(T::PosDebut - 1, 5));
        const long fin = jourLu(texte.substr(0, texte.find(data::SepAttribut)));
        const bool date = avantDebut(c, debut, fin) || (avecFin && apresFin(c, debut, fin));
        const bool autre =
            pendant(c, debut, fin) && !prevue(c, c.activitesOffertes.ParCode(activite));
        if (!date && !autre) return true;
        const data::CItem article(texte);
        const Intervention intervention{std::string(cle), article(T::DateFin),
                                        article(T::HeureFin)};
        if (date) hors.dates.push_back(intervention);
        if (autre) hors.activites.push_back(intervention);
        return true;
      });
  return hors;
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
  const HorsContrat hors = examiner(db, contrat, avecFin);
  std::string texte;
  if (!hors.dates.empty()) {
    texte = "Des interventions du planning sont en dehors des dates de validité du contrat : \r\n";
  }
  for (const auto& i : hors.dates) texte += ligneIntervention(db, i, parametres);
  if (hors.activites.empty()) return texte;
  if (!texte.empty()) texte += "\r\n\r\n";
  texte += "Des interventions du planning sont sur des activités non définies pour ce contrat : ";
  for (const auto& i : hors.activites) {
    const std::string libelle = contrat.activitesOffertes.Libelle(i.Activite());
    texte += ligneIntervention(db, i, parametres) +
             "\r\n          ACTIVITE : " + (libelle.empty() ? i.Activite() : libelle);
  }
  return texte;
}

}  // namespace rules
