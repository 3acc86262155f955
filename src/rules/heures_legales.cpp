#include "rules/heures_legales.h"

#include <algorithm>

#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "data/requete.h"

namespace rules {

namespace {

namespace C = data::Contrat;
namespace T = data::TpsAidantIndispo;
using data::citer, data::citerDebut, data::Requete;

constexpr const char* SansConstantes =
    "La création d'un contrat de travail est impossible tant que les constantes de paie ne sont "
    "pas renseignées.";
constexpr const char* MaximumDepasse =
    "Le nombre d'heures cumulées tous contrats confondus est supérieur au nombre d'heures légal "
    "autorisé, voulez-vous continuer ?";

constexpr long long SemainesParAn = 52;
constexpr long long MoisParAn = 12;
// No working time is longer; keeps a damaged record within what can be multiplied.
constexpr long long DureeMax = 1'000'000'000'000;
// Where the start time stands in the key of an unavailability, from 0.
constexpr std::size_t DebutHeure = 11;
constexpr std::size_t LongueurHeure = 4;

// Int(numerateur / denominateur + 1/2), Int being the whole number not above.
long long arrondi(long long numerateur, long long denominateur) {
  const long long double2 = 2 * numerateur + denominateur;
  const long long diviseur = 2 * denominateur;
  return double2 / diviseur - (double2 % diviseur < 0 ? 1 : 0);
}

// The carer's other contracts in force on that day. One whose frequency is unknown counts as the
// one before it did, the first as nothing: users reckon with it.
long long autresContrats(data::Db& db, const std::string& codeAidant, const std::string& numero,
                         long effet) {
  const std::string jour = std::to_string(effet);
  const data::CItem lignes = Requete(data::fichier::CONTRAT)
                                 .Avec(data::Cle, "=", citerDebut(codeAidant))
                                 .Avec(C::DateFin, "=", citer(""))
                                 .Ou(">=", citer(jour))
                                 .Avec(C::DateDebut, "<=", citer(jour))
                                 .Avec(C::Annule, "<>", citer(C::MarqueAnnule))
                                 .Lire(db, {data::Cle, C::DateFin});
  const data::DbFile fichier = db.OpenFile(data::fichier::CONTRAT);
  const std::string cle = codeAidant + numero;
  long long total = 0;
  long long montant = 0;
  for (int i = 1; i <= lignes.DCount(); ++i) {
    data::CItem contrat;
    if (lignes.Vue(i, 1) == cle || !fichier.Lire(lignes(i, 1), contrat)) continue;
    const int dernier = contrat.DCount(C::DureeTravail);
    const auto frequence = static_cast<int>(data::entier(contrat.Vue(C::Frequence, dernier)));
    montant = hebdomadaire(data::entier(contrat.Vue(C::DureeTravail, dernier)), frequence)
                  .value_or(montant);
    total += montant;
  }
  return total;
}

// Times of day are subtracted as the four-digit numbers that they are on file.
long long indisponibilites(data::Db& db, const std::string& codeAidant, long debut) {
  const std::string jour = std::to_string(debut);
  const data::CItem lignes = Requete(data::fichier::TPSAIDANTINDISPO)
                                 .Avec(data::Cle, "=", citerDebut(codeAidant))
                                 .Avec(T::Comptee, "=", citer("O"))
                                 .Avec("DateDebIndispo", "<=", citer(jour))
                                 .Avec(T::DateFin, ">=", citer(jour))
                                 .Ou("=", citer(""))
                                 .Lire(db, {data::Cle, T::HeureFin});
  long long total = 0;
  for (int i = 1; i <= lignes.DCount(); ++i) {
    const std::string cle = lignes(i, 1);
    if (cle.size() < DebutHeure) continue;
    total += data::entier(lignes.Vue(i, 2)) - data::entier(cle.substr(DebutHeure, LongueurHeure));
  }
  return total;
}

}  // namespace

std::optional<long long> hebdomadaire(long long duree, int frequence) {
  duree = std::clamp(duree, -DureeMax, DureeMax);
  switch (frequence) {
    case 1:
      return duree;
    case 2:
      return arrondi(duree, 2);
    case 3:
      return arrondi(duree * MoisParAn, SemainesParAn);
    case 4:
      return arrondi(duree, SemainesParAn);
    default:
      return std::nullopt;
  }
}

std::optional<AvisHeures> Verif_NbHeures(data::Db& db, const std::string& codeAidant,
                                         const std::string& numero, const TempsTravail& temps) {
  data::CItem constantes;
  if (!db.OpenFile(data::fichier::CONSTANTESPAIE).Lire(data::ConstantesPaie::Cle, constantes)) {
    return AvisHeures{SansConstantes, false};
  }
  const long long total = hebdomadaire(temps.duree, temps.frequence).value_or(temps.duree) +
                          autresContrats(db, codeAidant, numero, temps.effet) +
                          indisponibilites(db, codeAidant, temps.debut);
  if (total <= data::entier(constantes.Vue(data::ConstantesPaie::MaximumHebdo))) {
    return std::nullopt;
  }
  return AvisHeures{MaximumDepasse, true};
}

}  // namespace rules
