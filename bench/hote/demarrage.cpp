// The start of the host, counted as whole processes: what the system does to load the program and
// its libraries, the toolkit's start and ours, up to the picture; nothing of the program's end.
// Without a display by the processor; on one, where a start waits for the X server too, by the
// clock.

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <chrono>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <vector>

#include "bases.h"
#include "data/cles.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "mesures.h"
#include "premiere_image.h"

namespace bench {

namespace {

constexpr int Tours = 15;
constexpr long ContratsDemo = 800;  // the demonstration file: 200 carers
constexpr long ContratsGrande = 200'000;
const std::string Ecran = "xcb";

struct Depart {
  std::string nom;
  std::vector<std::string> commande;
  std::string image;
  std::string plateforme = "offscreen";
};

std::vector<char*> pointeurs(std::vector<std::string>& textes) {
  std::vector<char*> resultat;
  for (std::string& texte : textes) resultat.push_back(texte.data());
  resultat.push_back(nullptr);
  return resultat;
}

// This process's surroundings, with settings of their own: none of the user's recent files.
std::vector<std::string> environnement(const Depart& depart, const std::string& reglages) {
  std::vector<std::string> variables{"QT_QPA_PLATFORM=" + depart.plateforme,
                                     "XDG_CONFIG_HOME=" + reglages, "XDG_RUNTIME_DIR=" + reglages,
                                     "QT_PLUGIN_PATH=" GREFFONS,
                                     "QT_QPA_GENERIC_PLUGINS=premiere_image:" + depart.image};
  for (char** variable = environ; *variable != nullptr; ++variable) {
    const std::string texte = *variable;
    if (!texte.starts_with("QT_") && !texte.starts_with("XDG_")) {
      variables.push_back(texte);
    }
  }
  return variables;
}

double nanosecondes(const timeval& temps) {
  return static_cast<double>(temps.tv_sec) * 1e9 + static_cast<double>(temps.tv_usec) * 1e3;
}

// Time of one start, of the program and of the system for it.
double lancer(Depart& depart, const std::string& reglages) {
  std::vector<std::string> variables = environnement(depart, reglages);
  const auto debut = std::chrono::steady_clock::now();
  pid_t enfant = 0;
  if (posix_spawn(&enfant, depart.commande.front().c_str(), nullptr, nullptr,
                  pointeurs(depart.commande).data(), pointeurs(variables).data()) != 0) {
    throw std::runtime_error(depart.commande.front() + " does not start");
  }
  int etat = 0;
  rusage consomme{};
  if (wait4(enfant, &etat, 0, &consomme) != enfant || !WIFEXITED(etat) ||
      WEXITSTATUS(etat) != ImageVue) {
    throw std::runtime_error(depart.commande.front() + " did not show " + depart.image);
  }
  if (depart.plateforme == Ecran) {
    return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - debut)
        .count();
  }
  return nanosecondes(consomme.ru_utime) + nanosecondes(consomme.ru_stime);
}

// A carer with a contract that has not ended: the list that the host opens shows those only.
std::string aidantEnCours(const Base& demo) {
  std::string aidant;
  demo.stockage->Scan(data::fichier::CONTRAT, data::KeyRange::Tout(),
                      [&](std::string_view cle, std::string_view texte) {
                        const data::CItem contrat(texte);
                        const bool enCours = contrat.Vue(data::Contrat::DateFin).empty() &&
                                             contrat.Vue(data::Contrat::Annule).empty();
                        if (enCours) aidant = cle.substr(0, data::LongueurCodeAidant);
                        return !enCours;
                      });
  return aidant;
}

}  // namespace

void mesurerDemarrage(Medianes& medianes) {
  const QTemporaryDir reglages;
  const Base& demo = base(ContratsDemo);
  const std::string aidant = aidantEnCours(demo);
  std::vector<Depart> departs{
      {"fenetreVide", {PROGRAMME_VIDE}, ImageFenetre},
      {"fenetreMot", {PROGRAMME_VIDE, "Contrats"}, ImageFenetre},
      {"fenetreHote", {PROGRAMME_HOTE, demo.chemin}, ImageFenetre},
      {"fenetreHoteGrande", {PROGRAMME_HOTE, base(ContratsGrande).chemin}, ImageFenetre},
      {"aidantsListes", {PROGRAMME_HOTE, demo.chemin}, "listeAidants"},
      {"contratsListes", {PROGRAMME_HOTE, "--aidant", aidant, demo.chemin}, "Lst_DatDebContrat"},
  };
  if (std::getenv("DISPLAY") != nullptr) {
    departs.push_back({"fenetreVideEcran", {PROGRAMME_VIDE}, ImageFenetre, Ecran});
    departs.push_back({"fenetreHoteEcran", {PROGRAMME_HOTE, demo.chemin}, ImageFenetre, Ecran});
  }
  std::map<std::string, std::vector<double>> temps;
  // In turn, so that what the machine does besides falls on all alike; the first turn only warms.
  for (int tour = 0; tour <= Tours; ++tour) {
    for (Depart& depart : departs) {
      const double mesure = lancer(depart, reglages.path().toStdString());
      if (tour > 0) temps[depart.nom].push_back(mesure);
    }
  }
  for (const auto& [nom, mesures] : temps) medianes[nom] = mediane(mesures);
}

}  // namespace bench
