#include "base/transfert.h"

#include <memory>
#include <utility>
#include <vector>

#include "base/ouverture.h"
#include "base/progres.h"
#include "data/store_error.h"
#include "storage/adresse.h"
#include "storage/controle.h"
#include "storage/copie.h"

namespace base {
namespace {

using storage::Magasin;

// Records that are compared together.
constexpr std::size_t Lot = 1000;

long nombreArticles(data::Storage& stockage) {
  long articles = 0;
  for (const auto& fichier : stockage.Fichiers()) articles += fichier.articles;
  return articles;
}

struct Histoire {
  long anciens = 0;
  std::uint64_t somme = 0;
};

// Of all former texts in their order: equal for equal histories alone.
Histoire histoireDe(Magasin& magasin) {
  Histoire histoire;
  storage::Controle controle;
  magasin.ParcourirHistorique(
      [&](std::string_view fichier, std::string_view cle, const data::AncienTexte& ancien) {
        controle.Texte(fichier);
        controle.Nombre(storage::controleAncien(fichier, cle, ancien));
        ++histoire.anciens;
      });
  histoire.somme = controle.Somme();
  return histoire;
}

class Transfert {
 public:
  Transfert(Contexte& contexte, Magasin& source, Magasin& cible)
      : contexte_(contexte), source_(source), cible_(cible), total_(nombreArticles(source)) {}

  long Articles() const { return total_; }
  long Anciens() const { return anciens_; }

  // In one block of the target.
  void Copier() {
    Progres histoire(contexte_.erreurs, contexte_.terminal, "Copie de l'historique, textes");
    cible_.EnUnBloc([&] {
      long faits = 0;
      source_.ParcourirHistorique(
          [&](std::string_view fichier, std::string_view cle, const data::AncienTexte& ancien) {
            cible_.Reprendre(fichier, cle, ancien);
            histoire.Avance(++faits);
          });
      histoire.Efface();
      CopierArticles();
    });
  }

  // Echec at the first record that differs.
  void Comparer() {
    Progres progres(contexte_.erreurs, contexte_.terminal, "Relecture, articles");
    long lus = 0;
    for (const auto& fichier : source_.Fichiers()) {
      fichier_ = fichier.nom;
      precedente_.clear();
      source_.Scan(fichier.nom, data::KeyRange::Tout(),
                   [&](std::string_view cle, std::string_view texte) {
                     lot_.emplace_back(cle, texte);
                     if (lot_.size() == Lot) ComparerLot(false);
                     progres.Avance(++lus, total_);
                     return true;
                   });
      ComparerLot(true);
    }
    if (nombreArticles(cible_) != lus) Differe("le nombre des articles n'est pas le même");
    const Histoire avant = histoireDe(source_);
    const Histoire apres = histoireDe(cible_);
    if (avant.somme != apres.somme) Differe("l'historique n'est pas le même");
    anciens_ = apres.anciens;
  }

 private:
  void CopierArticles() {
    Progres progres(contexte_.erreurs, contexte_.terminal, "Copie, articles");
    long faits = 0;
    for (const auto& fichier : source_.Fichiers()) {
      source_.Scan(fichier.nom, data::KeyRange::Tout(),
                   [&](std::string_view cle, std::string_view texte) {
                     cible_.Put(fichier.nom, cle, texte);
                     progres.Avance(++faits, total_);
                     return true;
                   });
    }
  }

  // All that the target holds after the last record compared, up to the last one of this lot, or
  // to the end of the file.
  void ComparerLot(bool fin) {
    data::KeyRange cles;
    cles.debut = precedente_.empty() ? "" : precedente_ + '\0';
    if (!fin) {
      precedente_ = lot_.back().first;
      cles.fin = precedente_ + '\0';
      cles.sansFin = false;
    }
    auto attendu = lot_.begin();
    cible_.Scan(fichier_, cles, [&](std::string_view cle, std::string_view texte) {
      if (attendu == lot_.end() || attendu->first != cle || attendu->second != texte) {
        Differe("l'article « " + std::string(cle) + " » du fichier " + fichier_ + " diffère");
      }
      ++attendu;
      return true;
    });
    if (attendu != lot_.end()) {
      Differe("l'article « " + attendu->first + " » du fichier " + fichier_ + " manque");
    }
    lot_.clear();
  }

  [[noreturn]] static void Differe(const std::string& quoi) {
    throw Echec(Refuse, "La copie ne se relit pas comme la base : " + quoi +
                            ". Si quelqu'un écrivait dans la base, recommencez quand personne "
                            "n'y travaille, dans une base sans article.");
  }

  Contexte& contexte_;
  Magasin& source_;
  Magasin& cible_;
  long total_;
  long anciens_ = 0;
  std::string fichier_;
  std::string precedente_;
  std::vector<std::pair<std::string, std::string>> lot_;
};

// A base on a server may have been made beforehand, by who has the right to: it is then empty.
std::unique_ptr<Magasin> ouvrirServeur(const std::string& cible, const data::Poste& poste,
                                       const storage::OptionsOuverture& options) {
  try {
    auto magasin = storage::ouvrir(cible, poste, options);
    if (magasin->Fichiers().empty()) return magasin;
  } catch (const data::StoreError& erreur) {
    if (erreur.Numero() != data::NumeroErreur::PasUneBase) throw;
    return storage::creer(cible, poste, options);
  }
  throw Echec(Refuse, storage::sansMotDePasse(cible) +
                          " a déjà des articles. Donnez l'adresse d'une base sans article. Si une "
                          "copie s'y est arrêtée pendant sa relecture, elle y est entière : la "
                          "commande verifier la contrôle.");
}

// On a server the copy stands before it is read again.
void relire(Transfert& transfert, bool surServeur) {
  try {
    transfert.Comparer();
  } catch (const data::StoreError& erreur) {
    if (!surServeur) throw;
    throw data::StoreError(erreur.Numero(),
                           std::string(erreur.what()) +
                               " Tout est copié, mais la relecture n'est pas finie : contrôlez la "
                               "copie par la commande verifier.",
                           erreur.Fichier(), erreur.Cle());
  }
}

std::string nombre(long n, const char* un, const char* plusieurs) {
  return std::to_string(n) + (n > 1 ? plusieurs : un);
}

}  // namespace

int transferer(Contexte& contexte, const Arguments& arguments) {
  Base base(contexte, arguments, Acces::Lecture);
  const std::string copie = arguments.Texte("COPIE");
  const data::PosteSysteme poste;
  const storage::OptionsOuverture options = optionsStockage(arguments);
  std::unique_ptr<storage::FichierEnChemin> fichier;
  if (!storage::estAdresseServeur(copie)) {
    fichier = std::make_unique<storage::FichierEnChemin>(copie);
    fichier->ExigerLibre();
  }
  auto cible = fichier == nullptr ? ouvrirServeur(copie, poste, options)
                                  : storage::creer(fichier->Nom(), poste, options);
  Transfert transfert(contexte, base.Magasin(), *cible);
  transfert.Copier();
  relire(transfert, fichier == nullptr);
  if (fichier != nullptr) {
    cible.reset();
    fichier->Arriver();
  }
  contexte.Ecrit(storage::sansMotDePasse(copie) + " est une copie entière, relue : " +
                 nombre(transfert.Articles(), " article", " articles") + " et " +
                 nombre(transfert.Anciens(), " ancien texte.\n", " anciens textes.\n"));
  if (cible != nullptr) cible->Compacter();
  return Fait;
}

}  // namespace base
