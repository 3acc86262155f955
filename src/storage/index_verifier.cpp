#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "storage/controle.h"
#include "storage/index_sqlite.h"

namespace storage {

namespace {

constexpr Acte kControle{"Contrôle des index de"};
constexpr long kPasAvance = 10000;  // entries and records between two calls of `avance`

constexpr const char* kEntrees =
    "SELECT indice, valeur, cle FROM entree ORDER BY indice, valeur, cle";
constexpr const char* kEntreesDe =
    "SELECT count(*) FROM entree WHERE indice = ?1 AND valeur = ?2 AND cle = ?3";
constexpr const char* kNombre = "SELECT count(*) FROM entree";
constexpr const char* kArticles = "SELECT cle, texte, controle FROM article WHERE fichier = ?1";
constexpr const char* kTexte = "SELECT texte FROM article WHERE fichier = ?1 AND cle = ?2";

class Comparaison {
 public:
  Comparaison(Connexion& connexion, const std::function<void(const Dommage&)>& signaler,
              const std::function<void(long)>& avance)
      : connexion_(connexion),
        signaler_(signaler),
        avance_(avance),
        entreesDe_(connexion, kEntreesDe, kControle),
        texte_(connexion, kTexte, kControle) {}

  // Each value of each record has its entry. Records that do not read back are told elsewhere.
  void Articles(std::string_view fichier) {
    Requete articles(connexion_, kArticles, kControle);
    const Usage usage(articles);
    usage->Lier(1, fichier);
    while (usage->Avancer({kControle.nom, fichier})) {
      const std::string_view cle = usage->Texte(0);
      const std::string_view texte = usage->Texte(1);
      if (usage->Nombre(2) != controleArticle(fichier, cle, texte)) continue;
      for (const auto& entree : data::entreesDe(fichier, cle, texte)) {
        ++attendues_;
        if (!Presente(entree, cle)) {
          Signaler(entree, cle, " ne mène pas à cet article par « ");
        }
      }
      Avancer();
    }
  }

  // Each entry leads to a record that holds its value. When every value has its entry, none is left
  // to look for once the numbers agree.
  void Entrees() {
    if (manquantes_ == 0 && connexion_.Nombre(kNombre, kControle) == attendues_) return;
    Requete entrees(connexion_, kEntrees, kControle);
    const Usage usage(entrees);
    while (usage->Avancer(kControle)) {
      Entree(usage->Nombre(0), std::string(usage->Texte(1)), usage->Texte(2));
      Avancer();
    }
  }

 private:
  bool Presente(const data::EntreeIndex& entree, std::string_view cle) {
    const Usage usage(entreesDe_);
    usage->Lier(1, std::int64_t{data::rangIndex(*entree.index)});
    usage->Lier(2, entree.valeur);
    usage->Lier(3, cle);
    const bool presente = usage->Avancer(kControle) && usage->Nombre(0) == 1;
    if (!presente) ++manquantes_;
    return presente;
  }

  void Entree(std::int64_t indice, std::string valeur, std::string_view cle) {
    if (indice < 0 || indice >= static_cast<std::int64_t>(std::size(data::IndexTenus))) {
      signaler_({{},
                 {},
                 "Les index tiennent des valeurs qui ne sont d'aucun d'eux : la commande reparer "
                 "les refait."});
      return;
    }
    const data::EntreeIndex entree{&data::IndexTenus[indice], std::move(valeur)};
    const Usage usage(texte_);
    usage->Lier(1, entree.index->fichier);
    usage->Lier(2, cle);
    if (usage->Avancer(kControle)) {
      const auto tenues = data::entreesDe(entree.index->fichier, cle, usage->Texte(0));
      if (std::find(tenues.begin(), tenues.end(), entree) != tenues.end()) return;
    }
    Signaler(entree, cle, " mène à cet article par une valeur qu'il n'a pas, « ");
  }

  void Signaler(const data::EntreeIndex& entree, std::string_view cle, const char* quoi) {
    signaler_({std::string(entree.index->fichier), std::string(cle),
               "l'index " + data::champIndex(*entree.index) + quoi + entree.valeur +
                   " » : la commande reparer refait les index"});
  }

  void Avancer() {
    if (++lus_ % kPasAvance == 0 && avance_) avance_(lus_);
  }

  Connexion& connexion_;
  const std::function<void(const Dommage&)>& signaler_;
  const std::function<void(long)>& avance_;
  Requete entreesDe_;
  Requete texte_;
  std::int64_t attendues_ = 0;
  std::int64_t manquantes_ = 0;
  long lus_ = 0;
};

}  // namespace

bool IndexSqlite::Verifier(const std::function<void(const Dommage&)>& signaler,
                           const std::function<void(long)>& avance) {
  const LectureUnie lecture(connexion_, false, kControle);
  if (!Tenu(kControle)) return false;
  try {
    Comparaison comparaison(connexion_, signaler, avance);
    for (const std::string_view fichier : data::fichiersIndexes()) comparaison.Articles(fichier);
    comparaison.Entrees();
  } catch (const data::StoreError& refus) {
    // The pages that do not read are named by the check of the whole file.
    if (refus.Numero() != data::NumeroErreur::Endommage) throw;
    signaler({{}, {}, "Les index ne peuvent pas être tous comparés aux articles."});
  }
  return true;
}

}  // namespace storage
