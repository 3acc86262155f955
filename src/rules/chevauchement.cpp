#include "rules/chevauchement.h"

#include "data/cles.h"
#include "data/jour.h"
#include "data/layouts/fichiers.h"
#include "data/nombre.h"
#include "data/question.h"

namespace rules {

namespace {

using data::citer;
using data::citerDebut;

constexpr const char* EnTeteDates = "\r\n\r\nDate début        Date Fin\r\n";

bool particulier(const Portee& portee) {
  return portee.convention == data::ConventionParticuliers;
}

// The dates of another contract, as a result row gives them.
struct Autre {
  long debut;
  std::optional<long> fin;

  static Autre Lire(const data::CItem& lignes, int ligne, int colonneDebut) {
    Autre autre{data::entier(lignes.Vue(ligne, colonneDebut)), std::nullopt};
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

data::CItem autresParEmployeur(data::Db& db, const Portee& p) {
  const std::string cle = p.codeAidant + p.numero;
  const std::string fin = " AND AVEC 2 = " + citer(p.association) +
                          (particulier(p) ? " AND AVEC 3 = " + citer(p.employeur) : "") +
                          " AND AVEC 0 = " + citerDebut(p.codeAidant) +
                          " AND SANS 0 = " + citer(cle) + " AND AVEC 65 <> \"O\" PAR 3";
  return particulier(p)
             ? db.Selectionner("SSELECT CONTRAT AVEC 1 = \"02\"" + fin, "CONTRAT", "7 8 51")
             : db.Selectionner("SSELECT CONTRAT AVEC 1 <> \"02\"" + fin, "CONTRAT", "7 8");
}

data::CItem autresParCle(data::Db& db, const Portee& p) {
  const std::string cle = p.codeAidant + p.numero;
  return db.Selectionner("SSELECT CONTRAT AVEC 0 = " + citerDebut(p.codeAidant) + " AND AVEC 1 " +
                             (particulier(p) ? "=" : "<>") +
                             " \"02\" AND AVEC 2 = " + citer(p.association) +
                             (particulier(p) ? " AND AVEC 3 = " + citer(p.employeur) : "") +
                             " AND AVEC 0 <> " + citer(cle) + " AND AVEC 65 <> \"O\"",
                         "CONTRAT", "0 7 8");
}

}  // namespace

Voisinage VerifContratExist(data::Db& db, const Portee& portee, const Dates& dates) {
  Voisinage resultat;
  const data::CItem lignes = autresParEmployeur(db, portee);
  const long fin = dates.fin.value_or(SansFin);
  for (int i = 1; i <= lignes.DCount(); ++i) {
    const Autre autre = Autre::Lire(lignes, i, 1);
    if (dates.debut <= autre.Fin() && fin >= autre.debut) {
      resultat.finContratConflit = autre.FinAffichee();
      resultat.conflit =
          refus("Création impossible car 2 contrats ont des dates qui se chevauchent : ", autre,
                resultat.finContratConflit);
      return resultat;
    }
    const long finAutre = autre.Fin();
    if (finAutre < dates.debut && finAutre > resultat.derniereFinAvant) {
      resultat.derniereFinAvant = finAutre;
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
    const bool commenceAvantSaFin = !autre.fin || dates.debut <= *autre.fin;
    if (!dates.fin && commenceAvantSaFin) {
      // Only the other contract's start is shown, also when it has an end date.
      return refus(
          "Suppression impossible de la date de fin car 2 contrats se retrouvent sans date de "
          "fin : ",
          autre, "");
    }
    if (dates.fin && *dates.fin >= autre.debut && commenceAvantSaFin) {
      return refus(
          "Modification impossible de la date de fin car 2 contrats ont maintenant des dates qui "
          "se chevauchent : ",
          autre, autre.FinAffichee());
    }
  }
  return std::nullopt;
}

}  // namespace rules
