#include "demo/carriere.h"

#include <algorithm>
#include <map>

#include "demo/alea.h"
#include "demo/calendrier.h"

namespace demo {
namespace {

const Metier& tirerMetier(Alea& alea, Emploi emploi) {
  while (true) {
    const Metier& metier = alea.parmiPoids(Metiers);
    if (metier.emploi == emploi) return metier;
  }
}

const MotifFin& motif(std::string_view code) {
  return *std::find_if(std::begin(MotifsFin), std::end(MotifsFin),
                       [&](const MotifFin& ligne) { return code == ligne.code; });
}

// A reason in proportion to how often contracts of that type end so.
const MotifFin& tirerMotif(Alea& alea, char type) {
  const auto poids = [type](const MotifFin& ligne) {
    return type == 'I' ? ligne.poidsCDI : ligne.poidsCDD;
  };
  long total = 0;
  for (const MotifFin& ligne : MotifsFin) total += poids(ligne);
  long tirage = alea.entre(1, total);
  for (const MotifFin& ligne : MotifsFin) {
    tirage -= poids(ligne);
    if (tirage <= 0) return ligne;
  }
  return MotifsFin[0];
}

bool finDEssai(const PlanContrat& plan) {
  return plan.motifFin == &motif("34") || plan.motifFin == &motif("35");
}

class Planificateur {
 public:
  Planificateur(const Parametres& parametres, const BaseAidant& base)
      : parametres_(parametres),
        base_(base),
        alea_(parametres.graine, Domaine::Carriere, static_cast<std::uint64_t>(base.numero)),
        derniereEmbauche_(parametres.aujourdhui) {}

  Carriere construire() {
    switch (base_.parcours) {
      case Parcours::Stable:
        planifierStable();
        break;
      case Parcours::Remplacant:
        planifierRemplacements(base_.embauche, static_cast<int>(alea_.entre(5, 13)));
        break;
      case Parcours::Mandataire:
        planifierParticuliers(static_cast<int>(alea_.entre(3, 9)));
        break;
      case Parcours::Administratif:
        planifierAdministratif();
        break;
      case Parcours::Stagiaire:
        planifierStage();
        break;
    }
    conclure();
    annulerUn();
    numeroter();
    return std::move(carriere_);
  }

 private:
  PlanContrat contratEntite(char type, Emploi emploi, long debut) {
    PlanContrat plan;
    plan.type = type;
    plan.entite = base_.entite;
    plan.convention = base_.convention;
    // Most carers keep their trade from one contract to the next.
    if (metier_ == nullptr || metier_->emploi != emploi || alea_.surCent(15)) {
      metier_ = &tirerMetier(alea_, emploi);
    }
    plan.metier = metier_;
    plan.debut = debut;
    tirerEssai(plan);
    return plan;
  }

  void tirerEssai(PlanContrat& plan) {
    const bool cdi = plan.type == 'I';
    plan.essai = cdi ? alea_.entre(1, 2) * 30 : alea_.entre(2, 14);
    plan.essaiRenouvelable = cdi && alea_.surCent(30);
  }

  // A fixed term runs to its day, or is broken off before. What is still running on the current
  // day stays unclosed half of the time; false then, since nothing may follow it.
  bool finirCDD(PlanContrat& plan, long fin) {
    plan.finPresumee = fin;
    if (fin >= parametres_.aujourdhui && alea_.surCent(50)) return false;
    plan.motifFin = fin < parametres_.aujourdhui ? &tirerMotif(alea_, 'D') : &motif("31");
    plan.fin = fin;
    if (finDEssai(plan)) {
      plan.fin = alea_.entre(plan.debut, std::min(plan.finEssai(), fin - 1));
    } else if (plan.motifFin != &motif("31")) {
      plan.fin = alea_.entre(plan.debut + (fin - plan.debut) / 3, fin - 1);
    }
    return true;
  }

  // A failed trial ends before `fin`.
  void finirCDI(PlanContrat& plan, long fin) {
    plan.fin = fin;
    plan.motifFin = &tirerMotif(alea_, 'I');
    if (finDEssai(plan)) plan.fin = alea_.entre(plan.debut + 2, std::min(plan.finEssai(), fin));
  }

  int ajouter(PlanContrat plan) {
    plan.anciennete = plan.debut;
    carriere_.contrats.push_back(std::move(plan));
    return static_cast<int>(carriere_.contrats.size()) - 1;
  }

  // Until numbers are given, links hold the rank in the list plus one.
  void lier(int avant, int apres) {
    PlanContrat& premier = carriere_.contrats[static_cast<std::size_t>(avant)];
    PlanContrat& second = carriere_.contrats[static_cast<std::size_t>(apres)];
    premier.suivant = apres + 1;
    second.precedent = avant + 1;
    second.anciennete = premier.debut;
  }

  void planifierStable() {
    int cdd = -1;
    if (base_.cddFin != 0) {
      PlanContrat premier = contratEntite('D', Emploi::Production, base_.embauche);
      premier.finPresumee = premier.fin = base_.cddFin;
      premier.motifFin = &motif("31");
      cdd = ajouter(premier);
    }
    PlanContrat cdi = contratEntite('I', Emploi::Production, base_.cdiDebut);
    if (base_.cdiFin != 0) finirCDI(cdi, base_.cdiFin);
    // Colleagues count on that end, long after the trial.
    if (finDEssai(cdi)) {
      cdi.fin = base_.cdiFin;
      cdi.motifFin = &motif("59");
    }
    const int rang = ajouter(cdi);
    if (cdd >= 0 && base_.cdiDebut <= base_.cddFin + 3) lier(cdd, rang);
    if (base_.cdiFin != 0 && alea_.surCent(45)) {
      planifierRemplacements(base_.cdiFin + alea_.entre(30, 300),
                             static_cast<int>(alea_.entre(1, 5)));
    }
    if (alea_.surCent(35)) planifierParticuliers(static_cast<int>(alea_.entre(1, 3)));
  }

  // A colleague of the same entity, met shortly before, whose long absence begins soon enough.
  const BaseAidant* chercherAbsent(long libre, BaseAidant& collegue) {
    for (int numero = base_.numero - 1; numero >= std::max(1, base_.numero - 12); --numero) {
      collegue = baseAidant(parametres_, numero);
      if (collegue.absenceDebut >= libre && collegue.absenceDebut < libre + 500 &&
          collegue.entite == base_.entite) {
        return &collegue;
      }
    }
    return nullptr;
  }

  // Fixed terms one after the other, some of them ended by an open-ended contract.
  void planifierRemplacements(long libre, int nombre) {
    for (int i = 0; i < nombre; ++i) {
      BaseAidant collegue;
      const BaseAidant* absent = alea_.surCent(45) ? chercherAbsent(libre, collegue) : nullptr;
      const long debut = absent != nullptr ? absent->absenceDebut : libre + alea_.entre(0, 45);
      if (debut > parametres_.aujourdhui + 15) return;
      PlanContrat plan = contratEntite('D', Emploi::Production, debut);
      long fin = debut + alea_.entre(6, 150);
      if (absent != nullptr) {
        plan.codeRemplace = absent->code;
        plan.cleAbsence = absent->cleAbsence();
        fin = absent->absenceFin;
      }
      const bool close = finirCDD(plan, fin);
      libre = plan.fin + 1;
      const int rang = ajouter(std::move(plan));
      if (!close) return;
      if (i + 1 == nombre && alea_.surCent(50)) planifierSuite(rang, libre);
      libre += alea_.surCent(30) ? 0 : alea_.entre(1, 70);
    }
  }

  // The open-ended contract that a fixed term leads to takes over its leave.
  void planifierSuite(int cdd, long libre) {
    const long debut = libre + alea_.entre(0, 2);
    if (debut > parametres_.aujourdhui) return;
    PlanContrat suite = contratEntite('I', Emploi::Production, debut);
    if (alea_.surCent(30) && debut < parametres_.aujourdhui - 60) {
      finirCDI(suite, alea_.entre(debut + 20, parametres_.aujourdhui - 10));
    }
    lier(cdd, ajouter(std::move(suite)));
  }

  void planifierParticuliers(int nombre) {
    std::map<int, long> libreChez;  // by employer: first free day, 0 once an open one is there
    for (int i = 0; i < nombre; ++i) {
      const int ecart = static_cast<int>(alea_.entre(0, VoisinageAides - 2));
      const int numero = base_.numero + ecart + (base_.numero + ecart + 1) % 2;
      const BaseAide aide = baseAide(parametres_, numero);
      const auto place = libreChez.try_emplace(numero, base_.embauche).first;
      if (place->second == 0) continue;
      const long debut = alea_.entre(place->second, parametres_.aujourdhui);
      if (debut > parametres_.aujourdhui) continue;
      place->second = ajouterParticulier(aide, debut);
    }
  }

  // The first day that this employer leaves free, 0 when none. The employer's death ends all.
  long ajouterParticulier(const BaseAide& aide, long debut) {
    if (aide.depart != 0 && debut >= aide.depart) return 0;
    PlanContrat plan;
    plan.particulier = true;
    plan.entite = aide.entite;
    plan.convention = RangParticuliers;
    plan.employeur = aide.numero;
    plan.metier = &tirerMetier(alea_, Emploi::Mandataire);
    plan.type = alea_.surCent(18) ? 'D' : 'I';
    plan.debut = debut;
    tirerEssai(plan);
    if (plan.type == 'D') {
      finirCDD(plan, debut + alea_.entre(15, 200));
    } else if (alea_.surCent(55) && debut < parametres_.aujourdhui - 40) {
      finirCDI(plan, alea_.entre(debut + 15, parametres_.aujourdhui - 5));
    }
    if (aide.depart != 0 && (plan.fin == 0 || plan.fin > aide.depart)) {
      plan.fin = aide.depart;
      plan.motifFin = &motif("65");
    }
    const long libre = plan.fin == 0 ? 0 : plan.fin + 1;
    ajouter(std::move(plan));
    return libre;
  }

  void planifierAdministratif() {
    long debut = base_.embauche;
    int cdd = -1;
    if (alea_.surCent(50)) {
      PlanContrat premier = contratEntite('D', Emploi::Administratif, debut);
      if (!finirCDD(premier, debut + alea_.entre(30, 180))) {
        ajouter(std::move(premier));
        return;
      }
      debut = premier.fin + alea_.entre(1, 5);
      const bool enchaine = debut <= premier.fin + 3;
      const int rang = ajouter(std::move(premier));
      if (enchaine) cdd = rang;
    }
    if (debut > parametres_.aujourdhui) return;
    PlanContrat cdi = contratEntite('I', Emploi::Administratif, debut);
    if (alea_.surCent(20) && debut < parametres_.aujourdhui - 200) {
      finirCDI(cdi, alea_.entre(debut + 90, parametres_.aujourdhui - 20));
    }
    const int rang = ajouter(std::move(cdi));
    if (cdd >= 0) lier(cdd, rang);
  }

  void planifierStage() {
    PlanContrat stage = contratEntite('D', Emploi::Administratif, base_.embauche);
    stage.stage = true;
    const bool close = finirCDD(stage, stage.debut + alea_.entre(40, 120));
    const long libre = stage.fin + alea_.entre(10, 200);
    ajouter(std::move(stage));
    if (close) planifierRemplacements(libre, static_cast<int>(alea_.entre(0, 4)));
  }

  // The contract that began last, when nothing goes on after it; nullptr when there is none.
  PlanContrat* dernierContrat() {
    PlanContrat* dernier = nullptr;
    long fin = 0;
    for (PlanContrat& plan : carriere_.contrats) {
      if (plan.fin == 0 || plan.fin >= parametres_.aujourdhui) return nullptr;
      if (dernier == nullptr || plan.debut >= dernier->debut) dernier = &plan;
      fin = std::max(fin, plan.fin);
    }
    return dernier != nullptr && dernier->fin == fin ? dernier : nullptr;
  }

  // Retirement or death may have ended the last contract, and with it the whole career. A term that
  // was reached, a failed trial and an employer's death have their reason already.
  void conclure() {
    PlanContrat* dernier = dernierContrat();
    if (dernier == nullptr || finDEssai(*dernier) || dernier->motifFin == &motif("31") ||
        dernier->motifFin == &motif("65")) {
      return;
    }
    const auto aAns = [&](int ans) {
      return dernier->type == 'I' && moisPlusTard(base_.naissance, 12 * ans) <= dernier->fin;
    };
    if (aAns(67) && alea_.surCent(50)) {
      dernier->motifFin = &motif("38");
    } else if (aAns(62) && alea_.surCent(70)) {
      dernier->motifFin = &motif("39");
    } else if (base_.absenceDebut == 0 && alea_.surCent(12)) {
      dernier->motifFin = &motif("66");
      carriere_.numeros.deces = dernier->fin;
    } else {
      return;
    }
    derniereEmbauche_ = dernier->debut;
  }

  // A creation that was given up once it had its number: it may share days with anything.
  void annulerUn() {
    if (!alea_.surCent(9)) return;
    PlanContrat abandon =
        contratEntite('I', Emploi::Production, alea_.entre(base_.embauche, derniereEmbauche_));
    abandon.annule = true;
    ajouter(std::move(abandon));
  }

  // Numbers follow the starts; now and then one is given back and stays without record.
  void numeroter() {
    std::vector<PlanContrat>& contrats = carriere_.contrats;
    std::vector<std::size_t> ordre(contrats.size());
    for (std::size_t i = 0; i < ordre.size(); ++i) ordre[i] = i;
    std::stable_sort(ordre.begin(), ordre.end(), [&](std::size_t a, std::size_t b) {
      return contrats[a].debut < contrats[b].debut;
    });
    NumerosAidant& numeros = carriere_.numeros;
    std::vector<int> numeroDe(contrats.size() + 1, 0);
    for (const std::size_t rang : ordre) {
      if (alea_.surCent(3)) numeros.libres.push_back(++numeros.dernier);
      numeroDe[rang + 1] = ++numeros.dernier;
    }
    for (std::size_t i = 0; i < contrats.size(); ++i) {
      contrats[i].numero = numeroDe[i + 1];
      contrats[i].suivant = numeroDe[static_cast<std::size_t>(contrats[i].suivant)];
      contrats[i].precedent = numeroDe[static_cast<std::size_t>(contrats[i].precedent)];
    }
    std::sort(contrats.begin(), contrats.end(),
              [](const PlanContrat& a, const PlanContrat& b) { return a.numero < b.numero; });
    resumer();
  }

  void resumer() {
    NumerosAidant& numeros = carriere_.numeros;
    // A colleague who is being replaced is still in service.
    numeros.tousFinis = base_.absenceDebut == 0;
    for (const PlanContrat& plan : carriere_.contrats) {
      if (plan.annule) continue;
      if (plan.particulier &&
          (numeros.premiereEmbauche02 == 0 || plan.debut < numeros.premiereEmbauche02)) {
        numeros.premiereEmbauche02 = plan.debut;
      }
      numeros.derniereFin = std::max(numeros.derniereFin, plan.fin);
      if (plan.fin == 0 || plan.fin > parametres_.aujourdhui - 30) numeros.tousFinis = false;
    }
  }

  const Parametres& parametres_;
  const BaseAidant& base_;
  Alea alea_;
  long derniereEmbauche_;           // the last day on which the carer may be hired
  const Metier* metier_ = nullptr;  // of the last contract with the entity
  Carriere carriere_;
};

}  // namespace

std::string PlanContrat::cle(const BaseAidant& base) const {
  return base.code + chiffres(numero, 3);
}

Carriere construireCarriere(const Parametres& parametres, const BaseAidant& base) {
  return Planificateur(parametres, base).construire();
}

}  // namespace demo
