// `importer` and `exporter`: a data file from and to JSON Lines.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <system_error>
#include <utility>

#include "base/affichage.h"
#include "base/cles_vues.h"
#include "base/commandes.h"
#include "base/jsonl.h"
#include "base/ouverture.h"
#include "base/progres.h"
#include "data/store_error.h"

namespace base {
namespace {

// More would only hide the first ones.
constexpr int RefusMontres = 20;

// Rolls the import back once all its lines have been looked at.
struct ImportRefuse {};

class Import {
 public:
  Import(Contexte& contexte, std::string source, std::istream& entree, data::Storage& stockage)
      : contexte_(contexte),
        source_(std::move(source)),
        lecteur_(entree),
        stockage_(stockage),
        progres_(contexte.erreurs, contexte.terminal, "Importation, articles lus") {}

  // Runs inside one block of the store. After a refusal the other lines are still read, so that
  // one run tells what there is to mend, but nothing more is written.
  void Lire() {
    Enregistrement enregistrement;
    for (bool encore = true; encore;) {
      try {
        encore = lecteur_.Suivant(enregistrement);
        if (encore) Prendre(enregistrement);
      } catch (const RefusJson& refus) {
        Signale(refus);
      }
    }
    if (refus_ > 0) throw ImportRefuse{};
  }

  long Articles() const { return articles_; }
  long Refus() const { return refus_; }

 private:
  void Prendre(const Enregistrement& enregistrement) {
    const long avant = vues_.Ajoute(enregistrement.fichier, enregistrement.cle, lecteur_.Ligne());
    if (avant > 0) {
      throw RefusJson(lecteur_.Ligne(), 1,
                      enregistrement.fichier + " " + enregistrement.cle +
                          " est déjà donné à la ligne " + std::to_string(avant));
    }
    if (refus_ == 0) {
      stockage_.Put(enregistrement.fichier, enregistrement.cle, enregistrement.texte);
    }
    progres_.Avance(++articles_);
  }

  void Signale(const RefusJson& refus) {
    if (++refus_ > RefusMontres) return;
    progres_.Efface();
    contexte_.erreurs << source_ << ", ligne " << refus.Ligne() << ", colonne " << refus.Colonne()
                      << " : " << refus.what() << '\n';
  }

  Contexte& contexte_;
  std::string source_;
  LecteurJsonl lecteur_;
  data::Storage& stockage_;
  Progres progres_;
  ClesVues vues_;
  long articles_ = 0;
  long refus_ = 0;
};

// From the beginning once more: another station wrote while the lines were being read.
void relire(const std::string& source, std::istream& entree) {
  entree.clear();
  entree.seekg(0);
  if (entree.good()) return;
  throw Echec(Panne, source +
                         " : un autre poste a écrit en même temps, et ce texte ne se relit pas. "
                         "Rien n'a été écrit : recommencez.");
}

int importerDepuis(Contexte& contexte, data::Storage& stockage, const std::string& source,
                   std::istream& entree) {
  long articles = 0;
  long refus = 0;
  try {
    bool deja = false;
    stockage.EnUnBloc([&] {
      if (std::exchange(deja, true)) relire(source, entree);
      Import import(contexte, source, entree, stockage);
      try {
        import.Lire();
      } catch (const ImportRefuse&) {
        refus = import.Refus();
        throw;
      }
      articles = import.Articles();
    });
  } catch (const ImportRefuse&) {
    contexte.erreurs << "Importation refusée : " << refus << (refus == 1 ? " ligne" : " lignes")
                     << " à corriger";
    if (refus > RefusMontres)
      contexte.erreurs << ", les " << RefusMontres << " premières ci-dessus";
    contexte.erreurs << ". Rien n'a été écrit.\n";
    return Refuse;
  } catch (const EntreeIllisible& erreur) {
    throw Echec(Panne, source + " : " + erreur.what() + " Rien n'a été écrit.");
  }
  contexte.Ecrit(std::to_string(articles) +
                 (articles > 1 ? " articles importés.\n" : " article importé.\n"));
  return Fait;
}

// The files asked for, or all; in the order of their names and once each.
std::vector<data::FichierCompte> fichiersVoulus(data::Storage& stockage,
                                                const std::vector<std::string>& noms) {
  auto fichiers = stockage.Fichiers();
  if (noms.empty()) return fichiers;
  std::set<std::string> voulus(noms.begin(), noms.end());
  std::vector<data::FichierCompte> gardes;
  for (auto& fichier : fichiers) {
    if (voulus.erase(fichier.nom) > 0) gardes.push_back(std::move(fichier));
  }
  if (!voulus.empty()) {
    throw Echec(Refuse, fichierSansArticle(*voulus.begin()));
  }
  return gardes;
}

class Export {
 public:
  Export(Contexte& contexte, long total)
      : contexte_(contexte),
        progres_(contexte.erreurs, contexte.terminal, "Exportation, articles"),
        total_(total) {}

  void Article(const std::string& fichier, std::string_view cle, std::string_view texte) {
    ecrireEnregistrement(envoi_, fichier, cle, texte);
    envoi_ += '\n';
    if (envoi_.size() >= TailleEnvoi) Envoie();
    progres_.Avance(++articles_, total_);
  }
  void Envoie() {
    contexte_.Ecrit(envoi_);
    envoi_.clear();
  }

 private:
  Contexte& contexte_;
  Progres progres_;
  long total_;
  long articles_ = 0;
  std::string envoi_;
};

}  // namespace

int importer(Contexte& contexte, const Arguments& arguments) {
  const std::string source = arguments.Texte("SOURCE");
  if (std::error_code ignoree; source != "-" && std::filesystem::is_directory(source, ignoree)) {
    throw Echec(Panne, source + " est un dossier. Donnez un fichier JSON Lines.");
  }
  Base base(contexte, arguments, Acces::Ecriture);
  if (source == "-") {
    return importerDepuis(contexte, base.Stockage(), "entrée standard", contexte.entree);
  }
  std::ifstream entree(source, std::ios::binary);
  if (!entree) {
    throw Echec(Panne,
                source + " : ce fichier ne peut pas être lu. Vérifiez son nom et ses droits.");
  }
  return importerDepuis(contexte, base.Stockage(), source, entree);
}

int exporter(Contexte& contexte, const Arguments& arguments) {
  Base base(contexte, arguments, Acces::Lecture);
  const auto voulus = fichiersVoulus(base.Stockage(), arguments.Tous("--fichier"));
  long total = 0;
  for (const auto& fichier : voulus) total += fichier.articles;
  Export sortie(contexte, total);
  for (const auto& fichier : voulus) {
    base.Stockage().Scan(fichier.nom, data::KeyRange::Tout(),
                         [&](std::string_view cle, std::string_view texte) {
                           sortie.Article(fichier.nom, cle, texte);
                           return true;
                         });
  }
  sortie.Envoie();
  return Fait;
}

}  // namespace base
