// `creer`, `fichiers`, `verifier` and `demo`: the data file as a whole.

#include <filesystem>
#include <limits>
#include <set>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "base/affichage.h"
#include "base/commandes.h"
#include "base/controle_index.h"
#include "base/ouverture.h"
#include "base/progres.h"
#include "base/verification.h"
#include "data/layouts/fichiers.h"
#include "demo/generateur.h"
#include "storage/adresse.h"

namespace base {
namespace {

// Shows the findings, one line each, with those of a damaged record told once: the store's own
// check and the reading of the records both meet it.
class Constats {
 public:
  explicit Constats(Contexte& contexte) : contexte_(contexte) {}

  // The progress that shows on the terminal while findings come.
  void Pendant(Progres& progres) { progres_ = &progres; }
  void Dommage(const storage::Dommage& dommage) {
    if (!dommage.cle.empty()) dommages_.emplace(dommage.fichier, dommage.cle);
    Montre({dommage.fichier, dommage.cle, dommage.message});
  }
  void Constate(const Constat& constat) {
    if (!dommages_.contains({constat.fichier, constat.cle})) Montre(constat);
  }
  long Nombre() const { return nombre_; }

 private:
  void Montre(const Constat& constat) {
    ++nombre_;
    if (progres_) progres_->Efface();
    std::string ligne;
    for (const std::string* colonne : {&constat.fichier, &constat.cle, &constat.anomalie}) {
      if (!ligne.empty() || colonne != &constat.fichier) ligne += '\t';
      ecrireColonne(ligne, *colonne);
    }
    contexte_.Ecrit(ligne + '\n');
  }

  Contexte& contexte_;
  std::set<std::pair<std::string, std::string>> dommages_;
  Progres* progres_ = nullptr;
  long nombre_ = 0;
};

std::string resume(long anomalies) {
  if (anomalies == 0) return "aucune anomalie.";
  return std::to_string(anomalies) + (anomalies == 1 ? " anomalie." : " anomalies.");
}

// Writes the demonstration records, and takes the new file away again when that fails.
long remplirDemo(Contexte& contexte, const std::string& chemin, const demo::OptionsDemo& options,
                 const storage::OptionsOuverture& stockageOptions) {
  const data::PosteSysteme poste;
  auto stockage = storage::creer(chemin, poste, stockageOptions);
  try {
    Progres progres(contexte.erreurs, contexte.terminal, "Démonstration, personnes");
    stockage->EnUnBloc([&] {
      demo::genererDemo(*stockage, options,
                        [&](long faits, long total) { progres.Avance(faits, total); });
    });
  } catch (...) {
    stockage.reset();
    std::error_code ignoree;  // the error under way is the one to tell
    if (!storage::estAdresseServeur(chemin)) std::filesystem::remove(chemin, ignoree);
    throw;
  }
  long articles = 0;
  for (const auto& fichier : stockage->Fichiers()) articles += fichier.articles;
  return articles;
}

}  // namespace

int creer(Contexte& contexte, const Arguments& arguments) {
  const std::string chemin = arguments.Texte("BASE");
  const data::PosteSysteme poste;
  storage::creer(chemin, poste, optionsStockage(arguments));
  contexte.Ecrit(storage::sansMotDePasse(chemin) + " est créé, sans article.\n");
  return Fait;
}

int fichiers(Contexte& contexte, const Arguments& arguments) {
  Base base(contexte, arguments, Acces::Lecture);
  std::string sortie;
  for (const auto& fichier : base.Stockage().Fichiers()) {
    const data::FichierConnu* const connu = data::fichierConnu(fichier.nom);
    sortie += fichier.nom + '\t' + std::to_string(fichier.articles) + '\t';
    sortie += connu ? connu->contenu : "fichier inconnu de la suite";
    sortie += '\n';
  }
  contexte.Ecrit(sortie);
  return Fait;
}

int verifierBase(Contexte& contexte, const Arguments& arguments) {
  Base base(contexte, arguments, Acces::Lecture);
  Constats constats(contexte);
  Progres pages(contexte.erreurs, contexte.terminal, "Vérification des pages, textes lus");
  constats.Pendant(pages);
  base.Magasin().Verifier([&](const storage::Dommage& dommage) { constats.Dommage(dommage); },
                          [&](long lus) { pages.Avance(lus); });
  pages.Efface();
  Progres index(contexte.erreurs, contexte.terminal, "Vérification des index, articles lus");
  constats.Pendant(index);
  controlerIndex(contexte, base.Magasin(), index,
                 [&](const Constat& constat) { constats.Constate(constat); });
  Progres articles(contexte.erreurs, contexte.terminal, "Vérification des articles");
  constats.Pendant(articles);
  const Bilan bilan = verifier(
      base.Stockage(), [&](const Constat& constat) { constats.Constate(constat); },
      [&](long lus, long total) { articles.Avance(lus, total); });
  articles.Efface();
  contexte.erreurs << bilan.articles << " articles lus, " << resume(constats.Nombre()) << '\n';
  return constats.Nombre() == 0 ? Fait : Refuse;
}

int demo(Contexte& contexte, const Arguments& arguments) {
  const std::string chemin = arguments.Texte("BASE");
  ::demo::OptionsDemo options;
  const long aidants = arguments.Entier("--aidants", 1, options.aidants);
  if (aidants > ::demo::AidantsMax) {
    throw Echec(MauvaisUsage, "--aidants : au plus " + std::to_string(::demo::AidantsMax) + '.');
  }
  options.aidants = static_cast<int>(aidants);
  options.graine = static_cast<unsigned long>(
      arguments.Entier("--graine", 0, static_cast<long>(options.graine)));
  const long articles = remplirDemo(contexte, chemin, options, optionsStockage(arguments));
  contexte.Ecrit(storage::sansMotDePasse(chemin) + " est créé, " + std::to_string(articles) +
                 " articles.\n");
  return Fait;
}

}  // namespace base
