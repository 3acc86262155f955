#include "data/poste.h"

#include <pwd.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <ctime>

#include "data/jour.h"
#include "data/texte.h"

namespace data {

namespace {

constexpr int longueurNom = 20;

std::tm localTime() {
  const std::time_t maintenant =
      std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
  std::tm local{};
  localtime_r(&maintenant, &local);
  return local;
}

std::string isoDate(const Date& d) {
  return completeAGauche(std::to_string(d.annee), 4, '0') + "-" +
         completeAGauche(std::to_string(d.mois), 2, '0') + "-" +
         completeAGauche(std::to_string(d.jour), 2, '0');
}

}  // namespace

long PosteSysteme::Aujourdhui() const {
  const std::tm local = localTime();
  // A clock outside the years 1 to 9999 is no clock; day 0 then shows that something is wrong.
  return jourDe({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday}).value_or(0);
}

std::string PosteSysteme::Horodatage() const {
  const std::tm local = localTime();
  char texte[32];
  return std::string(texte, std::strftime(texte, sizeof texte, "%Y-%m-%d %H:%M:%S", &local));
}

// The account that the program runs under; the environment only where the system has no name for
// it.
std::string PosteSysteme::NomUtilisateur() const {
  const passwd* const compte = getpwuid(geteuid());
  const char* const candidats[] = {compte != nullptr ? compte->pw_name : nullptr,
                                   std::getenv("USER"), std::getenv("LOGNAME")};
  for (const char* candidat : candidats) {
    if (candidat == nullptr || !utf8Valide(candidat)) continue;
    std::string nom = gauche(sansBlancs(sansControles(candidat)), longueurNom);
    if (!nom.empty()) return nom;
  }
  return {};
}

std::string PosteFixe::Horodatage() const {
  return isoDate(dateDe(aujourdhui_)) + " 00:00:00";
}

}  // namespace data
