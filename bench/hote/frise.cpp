// The strip of time of a carer with 60 contracts: laid out and drawn whole; beside it, laid out
// alone.

#include "control/frise.h"

#include <QImage>
#include <QPainter>
#include <stdexcept>

#include "mesures.h"
#include "widget/frise_contrats.h"

namespace bench {

namespace {

constexpr int Tours = 61;
constexpr int Contrats = 60;
constexpr int Employeurs = 6;
constexpr long Aujourdhui = 21511;

// Six bands of ten contracts: ended ones one after the other, then one that runs or is to come; in
// each band one is cancelled and two overlap.
std::vector<control::ContratAidant> contrats() {
  std::vector<control::ContratAidant> resultat;
  for (int i = 0; i < Contrats; ++i) {
    const int employeur = i % Employeurs;
    const int rang = i / Employeurs;
    control::ContratAidant contrat;
    const std::string numero = std::to_string(101 + i);
    contrat.cle = "00001" + numero;
    contrat.portee = {"00001", numero, employeur == 0 ? "01" : "02", "001",
                      "0000" + std::to_string(employeur)};
    contrat.dates.debut = Aujourdhui - 3400 + rang * 380 + employeur * 7;
    if (rang < 9) contrat.dates.fin = contrat.dates.debut + (rang == 5 ? 400 : 300);
    if (rang == 9 && employeur % 2 == 0) contrat.finPresumee = contrat.dates.debut + 200;
    contrat.annule = rang == 3;
    resultat.push_back(contrat);
  }
  return resultat;
}

}  // namespace

void mesurerFrise(Medianes& medianes) {
  const auto donnees = contrats();
  FriseContrats frise;
  frise.NommerBande = [](const rules::Portee& portee) {
    return QString::fromStdString(portee.employeur);
  };
  frise.Montrer(control::faireFrise(donnees, {}, Aujourdhui));
  frise.resize(1000, frise.sizeHint().height());
  QImage image(frise.size(), QImage::Format_ARGB32_Premultiplied);
  std::vector<double> dessinees, calculees;
  for (int tour = 0; tour < Tours; ++tour) {
    const double debut = tempsProcesseur();
    auto contenu = control::faireFrise(donnees, {}, Aujourdhui);
    calculees.push_back(tempsProcesseur() - debut);
    frise.Montrer(std::move(contenu));
    frise.render(&image);
    dessinees.push_back(tempsProcesseur() - debut);
  }
  // The bar of the first contract is on the picture, in another colour than the ground beneath it.
  const QRect place = frise.Place(frise.Contenu().barres.front());
  if (frise.Contenu().barres.size() != Contrats || !frise.Contenu().Chevauchement() ||
      image.pixelColor(place.center()) == frise.palette().color(QPalette::Base)) {
    throw std::runtime_error("the strip of time is not drawn");
  }
  medianes["friseDessinee"] = mediane(dessinees);
  medianes["friseCalculee"] = mediane(calculees);
}

}  // namespace bench
