// `oublier`: what the law makes an association erase goes for good, from the file and its history.

#include <filesystem>
#include <map>
#include <utility>

#include "base/affichage.h"
#include "base/commandes.h"
#include "base/ouverture.h"
#include "data/cles.h"
#include "data/jour.h"
#include "data/layouts/fichiers.h"

namespace base {
namespace {

namespace fichier = data::fichier;

// Where a file's keys hold the carer's code; the contract's key begins with it.
struct ParAidant {
  std::string_view fichier;
  std::size_t position = 0;
};
constexpr ParAidant Fichiers[] = {
    {fichier::ABSENCESAIDANT},   {fichier::ACTUSUIVICONTRAT}, {fichier::AIDANTTTE},
    {fichier::CIVILAIDANT},      {fichier::CONTRAT},          {fichier::CONTRATINV},
    {fichier::DETAILADMIN},      {fichier::DETAILCALCUL},     {fichier::DETAILINTER},
    {fichier::DETAILMANDAT},     {fichier::DETAILPREST},      {fichier::DSNEVENEMENT},
    {fichier::ETRANGER},         {fichier::HISTORINDEM, 2},   {fichier::INFOSAIDANT},
    {fichier::MISSIONSAIDANT},   {fichier::OPPOSITION},       {fichier::RIBAIDANT},
    {fichier::TPSAIDANTINDISPO}, {fichier::TPSDETAILSINTERV}, {fichier::TPSEXCEPTIONS},
    {fichier::TPSMOI},           {fichier::TPSSANSCONTRAT}};

bool estDeLAidant(std::string_view nom, std::string_view cle, std::string_view aidant) {
  const data::FichierConnu* const connu = data::fichierConnu(nom);
  if (connu == nullptr) return false;
  if (connu->prefixe) return cle.starts_with(aidant);  // the indexes of contracts and amendments
  for (const ParAidant& ligne : Fichiers) {
    if (ligne.fichier != nom || cle.size() < ligne.position) continue;
    return cle.substr(ligne.position).starts_with(aidant);
  }
  return false;
}

struct Reste {
  bool article = false;
  long anciens = 0;
};
// By file and key.
using Liste = std::map<std::pair<std::string, std::string>, Reste>;

// Every record of the carer, those that only the history still holds too.
Liste toutDeLAidant(storage::Magasin& stockage, std::string_view aidant) {
  Liste liste;
  for (const auto& compte : stockage.Fichiers()) {
    stockage.Scan(compte.nom, data::KeyRange::Tout(), [&](std::string_view cle, auto) {
      if (estDeLAidant(compte.nom, cle, aidant))
        liste[{compte.nom, std::string(cle)}].article = true;
      return true;
    });
  }
  stockage.ParcourirAnciens("", [&](std::string_view nom, std::string_view cle, long anciens) {
    if (estDeLAidant(nom, cle, aidant)) {
      liste[{std::string(nom), std::string(cle)}].anciens = anciens;
    }
  });
  return liste;
}

Liste anciensAvant(storage::Magasin& stockage, std::string_view avant) {
  Liste liste;
  stockage.ParcourirAnciens(avant, [&](std::string_view nom, std::string_view cle, long anciens) {
    liste[{std::string(nom), std::string(cle)}].anciens = anciens;
  });
  return liste;
}

// "31/12/2020" as the history writes it, "2020-12-31".
std::string horodatage(const std::string& date) {
  if (!data::lireDateAffichee(date)) {
    throw Echec(MauvaisUsage, "--avant : « " + date + " » n'est pas une date JJ/MM/AAAA.");
  }
  return date.substr(6, 4) + "-" + date.substr(3, 2) + "-" + date.substr(0, 2);
}

std::string textes(long nombre, const char* un, const char* plusieurs) {
  return std::to_string(nombre) + (nombre == 1 ? un : plusieurs);
}

void montrer(Contexte& contexte, const Liste& liste) {
  std::string sortie;
  for (const auto& [lieu, reste] : liste) {
    ecrireColonne(sortie, lieu.first);
    sortie += '\t';
    ecrireColonne(sortie, lieu.second);
    sortie += reste.article ? "\tarticle\t" : "\t\t";
    sortie += textes(reste.anciens, " ancien texte\n", " anciens textes\n");
  }
  contexte.Ecrit(sortie);
}

void dire(Contexte& contexte, const Liste& liste, bool essai) {
  long articles = 0;
  long anciens = 0;
  for (const auto& [lieu, reste] : liste) {
    articles += reste.article ? 1 : 0;
    anciens += reste.anciens;
  }
  contexte.erreurs << textes(articles, " article et ", " articles et ")
                   << textes(anciens, " ancien texte ", " anciens textes ")
                   << (essai ? "seraient effacés. Rien n'a été effacé.\n"
                             : "effacés pour de bon.\n");
}

}  // namespace

int oublier(Contexte& contexte, const Arguments& arguments) {
  const std::string aidant = arguments.Texte("--aidant");
  if (arguments.Donne("--aidant") == arguments.Donne("--avant")) {
    throw Echec(MauvaisUsage, "oublier : donnez --avant ou --aidant, l'un des deux.");
  }
  if (arguments.Donne("--aidant") && aidant.size() != data::LongueurCodeAidant) {
    throw Echec(MauvaisUsage,
                "--aidant : le code d'un aidant a 5 caractères, « " + aidant + " » non.");
  }
  const std::string avant =
      arguments.Donne("--avant") ? horodatage(arguments.Texte("--avant")) : "";
  const bool essai = arguments.Donne("--essai");
  Base base(contexte, arguments, essai ? Acces::Lecture : Acces::Ecriture);
  storage::Magasin& stockage = base.Magasin();
  const auto lister = [&] {
    return avant.empty() ? toutDeLAidant(stockage, aidant) : anciensAvant(stockage, avant);
  };
  Liste liste;
  if (essai) {
    liste = lister();
  } else {
    // One block: what is listed is what goes.
    stockage.EnUnBloc([&] {
      liste = lister();
      if (!avant.empty()) stockage.OublierAvant(avant);
      if (avant.empty()) {
        for (const auto& [lieu, reste] : liste) stockage.Oublier(lieu.first, lieu.second);
      }
    });
  }
  montrer(contexte, liste);
  dire(contexte, liste, essai);
  if (!essai && !stockage.Compacter()) {
    contexte.erreurs << "Un programme qui lit la base retient encore une partie du journal : il se "
                        "videra à sa fermeture.\n";
  }
  return Fait;
}

}  // namespace base
