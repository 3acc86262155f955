#include "control/frise.h"

#include <algorithm>
#include <iterator>
#include <tuple>

#include "data/cles.h"

namespace control {

namespace {

// A date typed wrong by a century must not squeeze all others into a line.
constexpr long JoursAvantMax = 60 * 366;
constexpr long JoursApresMax = 10 * 366;
// The axis goes on beyond the last date by this part of its length, and by these days at least.
constexpr long PartMarge = 20;
constexpr long MargeMin = 30;

struct Pose {
  const ContratAidant* contrat;
  bool enMain;
};

bool particulier(const ContratAidant& contrat) {
  return contrat.portee.convention == data::ConventionParticuliers;
}

// Contracts of one band have this in common.
auto portee(const ContratAidant& contrat) {
  return std::make_tuple(particulier(contrat), contrat.portee.association,
                         particulier(contrat) ? contrat.portee.employeur : std::string());
}

long derniere(const ContratAidant& contrat) {
  return contrat.dates.fin.value_or(rules::SansFin);
}

Barre faireBarre(const Pose& pose, long aujourdhui) {
  const ContratAidant& contrat = *pose.contrat;
  Barre barre;
  barre.cle = contrat.cle;
  barre.etat = etatContrat(contrat, aujourdhui);
  barre.enMain = pose.enMain;
  barre.debut = contrat.dates.debut;
  const auto fin = contrat.FinAttendue();
  barre.sansFin = !fin;
  barre.fin = std::max(fin.value_or(0), barre.debut);
  barre.certaine = barre.fin;
  barre.dite = fin.value_or(0);
  barre.presumee = !contrat.dates.fin && contrat.finPresumee;
  if (barre.presumee) {
    // It runs until it is ended, whatever was presumed.
    if (barre.etat == EtatContrat::EnCours) barre.fin = std::max(barre.fin, aujourdhui);
    barre.certaine = std::max(std::min(aujourdhui, barre.fin), barre.debut - 1);
  }
  return barre;
}

void mesurerAxe(Frise& frise) {
  frise.du = frise.au = frise.aujourdhui;
  for (const Barre& barre : frise.barres) {
    frise.du = std::min(frise.du, barre.debut);
    frise.au = std::max(frise.au, barre.sansFin ? barre.debut : barre.fin);
  }
  frise.du = std::max(frise.du, frise.aujourdhui - JoursAvantMax);
  frise.au = std::min(frise.au, frise.aujourdhui + JoursApresMax);
  const long marge = std::max((frise.au - frise.du) / PartMarge, MargeMin);
  frise.du -= marge;
  frise.au += marge;
  for (Barre& barre : frise.barres) {
    if (!barre.sansFin) continue;
    barre.fin = barre.certaine = frise.au;
  }
}

// The first row of a band in which the contract's days are free; a new one where none is. What
// comes by start only has to look at the last of a row; what was cancelled comes after all others.
int placer(std::vector<std::vector<rules::Dates>>& rangs, const ContratAidant& contrat) {
  const auto prise = [&](const rules::Dates& dates) {
    return rules::seChevauchent(dates, contrat.dates);
  };
  const auto libre = std::find_if(rangs.begin(), rangs.end(), [&](const auto& rang) {
    return contrat.annule ? std::none_of(rang.begin(), rang.end(), prise) : !prise(rang.back());
  });
  const auto numero = static_cast<int>(libre - rangs.begin());
  if (libre == rangs.end()) {
    rangs.push_back({contrat.dates});
  } else {
    libre->push_back(contrat.dates);
  }
  return numero;
}

// The contracts of one band, by start; what was cancelled comes last, so that it pushes none of the
// others down. A contract that overlaps another one overlaps the one of those before it that ends
// last.
void poserBande(Frise& frise, std::vector<Pose> poses) {
  std::stable_sort(poses.begin(), poses.end(), [](const Pose& a, const Pose& b) {
    return std::make_tuple(a.contrat->annule, a.contrat->dates.debut, a.contrat->cle) <
           std::make_tuple(b.contrat->annule, b.contrat->dates.debut, b.contrat->cle);
  });
  frise.bandes.push_back({poses.front().contrat->portee, frise.rangs, 0});
  Bande& bande = frise.bandes.back();
  std::vector<std::vector<rules::Dates>> rangs;
  const ContratAidant* plusLong = nullptr;
  std::size_t barreDuPlusLong = 0;
  for (const Pose& pose : poses) {
    const ContratAidant& contrat = *pose.contrat;
    Barre barre = faireBarre(pose, frise.aujourdhui);
    barre.rang = frise.rangs + placer(rangs, contrat);
    if (!contrat.annule) {
      const bool conflit = plusLong != nullptr &&
                           rules::memePortee(contrat.portee, plusLong->portee) &&
                           rules::seChevauchent(contrat.dates, plusLong->dates);
      if (conflit) barre.chevauche = frise.barres[barreDuPlusLong].chevauche = true;
      if (plusLong == nullptr || derniere(contrat) > derniere(*plusLong)) {
        plusLong = &contrat;
        barreDuPlusLong = frise.barres.size();
      }
    }
    frise.barres.push_back(std::move(barre));
  }
  bande.rangs = static_cast<int>(rangs.size());
  frise.rangs += bande.rangs;
}

}  // namespace

bool Frise::Chevauchement() const {
  return std::any_of(barres.begin(), barres.end(), [](const Barre& b) { return b.chevauche; });
}

Frise faireFriseBande(const std::vector<ContratAidant>& contrats, const ContratAidant& enMain,
                      long aujourdhui) {
  std::vector<ContratAidant> bande;
  std::copy_if(contrats.begin(), contrats.end(), std::back_inserter(bande),
               [&](const ContratAidant& c) { return portee(c) == portee(enMain); });
  return faireFrise(bande, enMain, aujourdhui);
}

Frise faireFrise(const std::vector<ContratAidant>& contrats,
                 const std::optional<ContratAidant>& enMain, long aujourdhui) {
  std::vector<Pose> poses;
  for (const ContratAidant& contrat : contrats) {
    const bool remplace = enMain && !enMain->cle.empty() && enMain->cle == contrat.cle;
    if (contrat.dates.debut != 0 && !remplace) poses.push_back({&contrat, false});
  }
  if (enMain && enMain->dates.debut != 0) poses.push_back({&*enMain, true});
  std::vector<std::vector<Pose>> bandes;
  for (const Pose& pose : poses) {
    const auto bande = std::find_if(bandes.begin(), bandes.end(), [&](const auto& autre) {
      return portee(*autre.front().contrat) == portee(*pose.contrat);
    });
    if (bande == bandes.end()) {
      bandes.push_back({pose});
    } else {
      bande->push_back(pose);
    }
  }
  const auto ordre = [](const std::vector<Pose>& bande) {
    long premier = rules::SansFin;
    for (const Pose& pose : bande) premier = std::min(premier, pose.contrat->dates.debut);
    return std::make_pair(particulier(*bande.front().contrat), premier);
  };
  std::stable_sort(bandes.begin(), bandes.end(),
                   [&](const auto& a, const auto& b) { return ordre(a) < ordre(b); });
  Frise frise;
  frise.aujourdhui = aujourdhui;
  for (auto& bande : bandes) poserBande(frise, std::move(bande));
  mesurerAxe(frise);
  return frise;
}

}  // namespace control
