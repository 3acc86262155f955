#include "rules/chevauchement.h"

#include <algorithm>

#include "data/cles.h"
#include "data/jour.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/nombre.h"
#include "data/requete.h"

namespace rules {

namespace {

namespace C = data::Contrat;
using data::citer;
using data::citerDebut;

constexpr const char* EnTeteDates = "\r\n\r\nDate début        Date Fin\r\n";

bool particulier(const Portee& portee) {
  return portee.convention == data::ConventionParticuliers;
}

// The dates of another contract, as a result row gives them.
struct Autre : Dates {
  static Autre Lire(const data::CItem& lignes, int ligne, int colonneDebut) {
    Autre autre{{data::entier(lignes.Vue(ligne, colonneDebut)), std::nullopt}};
    const auto fin = lignes.Vue(ligne, colonneDebut + 1);
    if (!fin.empty()) autre.fin = data::entier(fin);
    return autre;
  }
  long Fin() const { return fin.value_or(SansFin); }
  std::string FinAffichee() const { return fin ? data::dateAffichee(*fin) : ""; }
};

Refus refus(const char* titre, const Autre& autre, const std::string& fin) {
  return {titre + std::string(EnTeteDates) + data::dateAffichee(autre.debut) + "       " + fin};
}

// The carer's other contracts of the same kind with the same entity and, for private employers, the
// same employer.
data::Requete& porter(data::Requete& requete, const Portee& p) {
  requete.Avec(C::Association, "=", citer(p.association));
  if (particulier(p)) requete.Avec(C::Employeur, "=", citer(p.employeur));
  return requete;
}

data::CItem autresParEmployeur(data::Db& db, const Portee& p) {
  data::Requete requete(data::fichier::CONTRAT);
  requete.Avec(C::Convention, particulier(p) ? "=" : "<>", citer(data::ConventionParticuliers));
  return porter(requete, p)
      .Avec(data::Cle, "=", citerDebut(p.codeAidant))
      .Sans(data::Cle, "=", citer(p.codeAidant + p.numero))
      .Avec(C::Annule, "<>", citer(C::MarqueAnnule))
      .Par(C::Employeur)
      .Lire(db, {C::DateDebut, C::DateFin});
}

data::CItem autresParCle(data::Db& db, const Portee& p) {
  data::Requete requete(data::fichier::CONTRAT);
  requete.Avec(data::Cle, "=", citerDebut(p.codeAidant))
      .Avec(C::Convention, particulier(p) ? "=" : "<>", citer(data::ConventionParticuliers));
  return porter(requete, p)
      .Avec(data::Cle, "<>", citer(p.codeAidant + p.numero))
      .Avec(C::Annule, "<>", citer(C::MarqueAnnule))
      .Lire(db, {data::Cle, C::DateDebut, C::DateFin});
}

}  // namespace

bool seChevauchent(const Dates& a, const Dates& b) {
  return a.debut <= b.fin.value_or(SansFin) && b.debut <= a.fin.value_or(SansFin);
}

bool memePortee(const Portee& a, const Portee& b) {
  const bool autreContrat = a.numero != b.numero || a.numero.empty();
  return autreContrat && particulier(a) == particulier(b) && a.association == b.association &&
         (!particulier(a) || a.employeur == b.employeur);
}

Voisinage VerifContratExist(data::Db& db, const Portee& portee, const Dates& dates) {
  Voisinage resultat;
  const data::CItem lignes = autresParEmployeur(db, portee);
  for (int i = 1; i <= lignes.DCount(); ++i) {
    const Autre autre = Autre::Lire(lignes, i, 1);
    if (seChevauchent(dates, autre)) {
      resultat.finContratConflit = autre.FinAffichee();
      resultat.conflit =
          refus("Création impossible car 2 contrats ont des dates qui se chevauchent : ", autre,
                resultat.finContratConflit);
      return resultat;
    }
    if (const long avant = autre.Fin(); avant < dates.debut) {
      resultat.derniereFinAvant = std::max(resultat.derniereFinAvant, avant);
    }
    if (dates.fin && autre.debut > *dates.fin && autre.debut < resultat.prochainDebutApres) {
      resultat.prochainDebutApres = autre.debut;
    }
  }
  return resultat;
}

std::optional<Refus> Verif_SuppDateFin(data::Db& db, const Portee& portee, const Dates& dates) {
  const data::CItem lignes = autresParCle(db, portee);
  for (int i = 1; i <= lignes.DCount(); ++i) {
    const Autre autre = Autre::Lire(lignes, i, 2);
    if (!seChevauchent(dates, autre)) continue;
    if (!dates.fin) {
      // Only the other contract's start is shown, also when it has an end date.
      return refus(
          "Suppression impossible de la date de fin car 2 contrats se retrouvent sans date de "
          "fin : ",
          autre, "");
    }
    return refus(
        "Modification impossible de la date de fin car 2 contrats ont maintenant des dates qui "
        "se chevauchent : ",
        autre, autre.FinAffichee());
  }
  return std::nullopt;
}

}  // namespace rules
