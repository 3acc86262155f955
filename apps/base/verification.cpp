#include "base/verification.h"

#include <algorithm>
#include <set>
#include <string_view>

#include "base/chevauchements.h"
#include "data/citem.h"
#include "data/cles.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/store_error.h"
#include "data/texte.h"

namespace base {
namespace {

using data::CItem;
namespace CivilAidant = data::CivilAidant;
namespace Contrat = data::Contrat;

// The two ends of a transfer of leave: what stands in one must come back in the other.
struct Lien {
  int attribut;
  int retour;
};
constexpr Lien Liens[] = {{Contrat::CongesReportesSur, Contrat::CongesReprisDe},
                          {Contrat::CongesReprisDe, Contrat::CongesReportesSur}};

bool estNumeroContrat(std::string_view texte) {
  return texte.size() == 3 && std::all_of(texte.begin(), texte.end(), data::estChiffre);
}

std::string guillemets(std::string_view texte) {
  return "« " + std::string(texte) + " »";
}

class Verification {
 public:
  Verification(data::Storage& stockage, const Rapport& rapport,
               const std::function<void(long, long)>& progres)
      : stockage_(stockage), rapport_(rapport), progres_(progres) {}

  Bilan Tout() {
    const auto fichiers = stockage_.Fichiers();
    for (const auto& fichier : fichiers) total_ += fichier.articles;
    for (const auto& fichier : fichiers) Fichier(fichier.nom);
    return bilan_;
  }

 private:
  void Constate(std::string_view fichier, std::string_view cle, std::string anomalie) {
    ++bilan_.constats;
    rapport_({std::string(fichier), std::string(cle), std::move(anomalie)});
  }
  // Damage is a finding, told once though several records may lead to it; anything else that the
  // store cannot do ends the check.
  void ConstateDommage(const data::StoreError& erreur, std::string_view fichier) {
    if (erreur.Numero() != data::NumeroErreur::Endommage) throw erreur;
    if (!dommages_.insert(erreur.Fichier() + '\t' + erreur.Cle() + '\t' + erreur.what()).second)
      return;
    Constate(erreur.Fichier().empty() ? fichier : erreur.Fichier(), erreur.Cle(), erreur.what());
  }

  // Walks the file and, where a record does not read, starts again behind it.
  void Fichier(const std::string& nom) {
    data::KeyRange reste;
    for (bool fini = false; !fini;) {
      std::string derniere = reste.debut;
      try {
        stockage_.Scan(nom, reste, [&](std::string_view cle, std::string_view texte) {
          derniere = cle;
          Article(nom, cle, texte);
          return true;
        });
        fini = true;
        if (nom == data::fichier::CONTRAT) FinAidant();
      } catch (const data::StoreError& erreur) {
        ConstateDommage(erreur, nom);
        if (erreur.Fichier() == nom) derniere = std::max(derniere, erreur.Cle());
        fini = derniere == reste.debut;  // the damage has no key: nothing says where to go on
        reste.debut = derniere + '\0';
      }
    }
  }

  void Article(const std::string& fichier, std::string_view cle, std::string_view texte) {
    progres_(++bilan_.articles, total_);
    if (!data::cleBienFormee(fichier, cle)) {
      Constate(fichier, cle, "la clé n'a pas la forme des clés de ce fichier");
    }
    if (fichier == data::fichier::ASSOCIATION || fichier == data::fichier::CONVENTIONCOL) {
      UnCode(fichier, cle, cle, "");
    }
    const bool contrat = fichier == data::fichier::CONTRAT;
    const bool aidant = fichier == data::fichier::CIVILAIDANT;
    const bool index =
        !contrat && data::fichierConnu(fichier) != nullptr && data::fichierConnu(fichier)->prefixe;
    const CItem item(texte);
    if (item.Text() != texte) Constate(fichier, cle, "le texte n'est pas sous sa forme canonique");
    try {
      if (contrat) UnContrat(cle, item);
      if (aidant) UnAidant(cle, item);
      if (index) UneEntree(fichier, cle);
    } catch (const data::StoreError& erreur) {
      ConstateDommage(erreur, fichier);
    }
  }

  // An entity or an agreement names the index files of its contracts.
  void UnCode(std::string_view fichier, std::string_view cle, std::string_view code,
              const std::string& debut) {
    if (code.empty() || data::estNomDeFichier(code)) return;
    Constate(fichier, cle,
             debut + "le code " + guillemets(code) +
                 " ne peut pas entrer dans le nom d'un fichier index : aucun contrat ne peut être "
                 "créé sous lui");
  }

  bool Lire(std::string_view fichier, std::string_view cle, CItem& item) {
    std::string texte;
    if (!stockage_.Get(fichier, cle, texte)) return false;
    item.SetText(texte);
    return true;
  }

  void UnContrat(std::string_view cle, const CItem& contrat) {
    const std::string_view aidant = cle.substr(0, data::LongueurCodeAidant);
    if (aidant != dernierAidant_) {
      FinAidant();
      dernierAidant_ = aidant;
      CItem item;
      if (!Lire(data::fichier::CIVILAIDANT, aidant, item)) {
        Constate(data::fichier::CONTRAT, cle, "l'aidant " + guillemets(aidant) + " n'existe pas");
      }
    }
    for (const Lien& lien : Liens) UnLien(cle, contrat, lien);
    chevauchements_.Ajoute(cle, contrat);
    SesEntrees(cle, contrat);
    for (const int attribut : {Contrat::Association, Contrat::Convention}) {
      UnCode(data::fichier::CONTRAT, cle, contrat.Vue(attribut),
             "attribut " + std::to_string(attribut) + " : ");
    }
  }

  void FinAidant() {
    for (const Chevauchements::Paire& paire : chevauchements_.Vide()) {
      Constate(data::fichier::CONTRAT, paire.cle,
               "le contrat chevauche le contrat " + guillemets(paire.autre));
    }
  }

  // What the creation of a contract writes last: its entry in the index of its entity and
  // agreement, and its number beside its private employer. A cancelled contract needs neither.
  void SesEntrees(std::string_view cle, const CItem& contrat) {
    const std::string index = std::string(data::fichier::PrefixeContrats) +
                              contrat(Contrat::Association) + contrat(Contrat::Convention);
    const bool nommable =
        index.size() == data::fichier::PrefixeContrats.size() + data::fichier::LongueurPortee &&
        data::estNomDeFichier(index);
    if (contrat.Vue(Contrat::Annule) == Contrat::MarqueAnnule) return;
    CItem entree;
    if (nommable && !Lire(index, cle, entree)) {
      Constate(data::fichier::CONTRAT, cle, "le contrat n'est pas dans son index " + index);
    }
    const std::string_view employeur = contrat.Vue(Contrat::Employeur);
    if (!data::estParticulierEmployeur(contrat) || employeur.empty()) return;
    const std::string inverse =
        std::string(cle.substr(0, data::LongueurCodeAidant)).append(employeur);
    entree = CItem();
    Lire(data::fichier::CONTRATINV, inverse, entree);
    const std::string_view numero = cle.substr(data::LongueurCodeAidant);
    for (int v = 1; v <= entree.DCount(data::ContratInv::Numeros); ++v) {
      if (entree.Vue(data::ContratInv::Numeros, v) == numero) return;
    }
    Constate(data::fichier::CONTRAT, cle,
             "le contrat n'est pas dans CONTRATINV " + guillemets(inverse));
  }

  void UneEntree(const std::string& index, std::string_view cle) {
    const std::string contrat(cle.substr(0, data::LongueurCodeAidant + data::LongueurNumero));
    CItem item;
    if (Lire(data::fichier::CONTRAT, contrat, item)) return;
    Constate(index, cle, "le contrat " + guillemets(contrat) + " n'existe pas");
  }

  void UnLien(std::string_view cle, const CItem& contrat, const Lien& lien) {
    const std::string_view autre = contrat.Vue(lien.attribut);
    if (autre.empty()) return;
    const std::string debut =
        "attribut " + std::to_string(lien.attribut) + " : le contrat lié " + guillemets(autre);
    CItem lie;
    if (autre == cle) {
      Constate(data::fichier::CONTRAT, cle, debut + " est ce contrat lui-même");
    } else if (!Lire(data::fichier::CONTRAT, autre, lie)) {
      Constate(data::fichier::CONTRAT, cle, debut + " n'existe pas");
    } else if (lie.Vue(lien.retour) != cle) {
      Constate(data::fichier::CONTRAT, cle,
               debut + " ne renvoie pas ici : son attribut " + std::to_string(lien.retour) +
                   " vaut " + guillemets(lie.Vue(lien.retour)));
    }
  }

  void UnAidant(std::string_view cle, const CItem& aidant) {
    const std::string_view compteur = aidant.Vue(CivilAidant::DernierNumero);
    if (!compteur.empty() && !estNumeroContrat(compteur)) {
      Constate(data::fichier::CIVILAIDANT, cle,
               "attribut 41 : le compteur " + guillemets(compteur) +
                   " n'est pas un nombre à 3 chiffres");
      return;
    }
    const std::string plusHaut = PlusHautNumero(cle);
    if (plusHaut > compteur) {
      const std::string etat = compteur.empty() ? "vide" : guillemets(compteur);
      Constate(data::fichier::CIVILAIDANT, cle,
               "attribut 41 : le compteur est " + etat + ", et le plus haut contrat " + plusHaut);
    }
    NumerosLibres(cle, aidant, std::max<std::string_view>(compteur, plusHaut));
  }

  // Empty when the carer has no contract.
  std::string PlusHautNumero(std::string_view aidant) {
    std::string plusHaut;
    stockage_.Scan(data::fichier::CONTRAT, data::KeyRange::Prefixe(aidant),
                   [&](std::string_view cle, std::string_view) {
                     const std::string_view numero = cle.substr(aidant.size());
                     if (estNumeroContrat(numero)) plusHaut = numero;
                     return true;
                   });
    return plusHaut;
  }

  void NumerosLibres(std::string_view cle, const CItem& aidant, std::string_view dernierDonne) {
    std::set<std::string_view> vus;
    for (int v = 1; v <= aidant.DCount(CivilAidant::NumerosLibres); ++v) {
      const std::string_view numero = aidant.Vue(CivilAidant::NumerosLibres, v);
      const std::string defaut = DefautNumeroLibre(cle, numero, dernierDonne);
      const bool nouveau = vus.insert(numero).second;
      if (defaut.empty() && nouveau) continue;
      Constate(data::fichier::CIVILAIDANT, cle,
               "attribut 42 : le numéro libre " + guillemets(numero) +
                   (defaut.empty() ? " est donné deux fois" : defaut));
    }
  }

  // A cancelled contract keeps its record and gives its number back: it holds nothing.
  std::string DefautNumeroLibre(std::string_view aidant, std::string_view numero,
                                std::string_view dernierDonne) {
    if (!estNumeroContrat(numero)) return " n'est pas un nombre à 3 chiffres";
    if (numero > dernierDonne) return " n'a jamais été donné";
    CItem contrat;
    const bool pris =
        Lire(data::fichier::CONTRAT, std::string(aidant) + std::string(numero), contrat);
    if (pris && contrat.Vue(Contrat::Annule) != Contrat::MarqueAnnule)
      return " est celui d'un contrat existant";
    return {};
  }

  data::Storage& stockage_;
  const Rapport& rapport_;
  const std::function<void(long, long)>& progres_;
  Bilan bilan_;
  long total_ = 0;
  std::string dernierAidant_;
  Chevauchements chevauchements_;
  std::set<std::string> dommages_;
};

}  // namespace

Bilan verifier(data::Storage& stockage, const Rapport& rapport,
               const std::function<void(long, long)>& progres) {
  return Verification(stockage, rapport, progres).Tout();
}

}  // namespace base
