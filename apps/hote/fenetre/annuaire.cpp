#include "fenetre/annuaire.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <algorithm>
#include <numeric>
#include <set>

#include "data/citem.h"
#include "data/jour.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "data/storage.h"
#include "data/texte.h"
#include "liaison/textes_qt.h"

namespace hote {

std::vector<Aidant> lireAidants(data::Storage& stockage) {
  namespace A = data::CivilAidant;
  std::vector<Aidant> aidants;
  stockage.Scan(data::fichier::CIVILAIDANT, data::KeyRange::Tout(),
                [&](std::string_view cle, std::string_view texte) {
                  const data::CItem item(texte);
                  aidants.push_back({std::string(cle), item(A::Nom) + " " + item(A::Prenom),
                                     !item.Vue(A::DateFin).empty(),
                                     static_cast<long>(data::entier(item.Vue(A::DateNaissance))),
                                     item(A::Ville)});
                  return true;
                });
  return aidants;
}

namespace {

// The words that a name is found by: whole, and for "Marie-Hélène" each of its parts, too.
std::string motsDe(const std::string& nom) {
  std::string parties = data::sansAccents(nom);
  for (char& c : parties) {
    if (c == '-' || c == '\'') c = ' ';
  }
  std::string texte;
  for (const std::string& forme : {data::plier(nom), parties}) {
    for (const std::string& mot : data::mots(forme)) texte += " " + mot;
  }
  return texte;
}

}  // namespace

void Annuaire::Remplir(std::vector<Aidant> aidants) {
  beginResetModel();
  fiches_.clear();
  fiches_.reserve(aidants.size());
  for (Aidant& aidant : aidants) {
    const std::string code = data::plier(aidant.code);
    const std::string court = code.substr(std::min(code.find_first_not_of('0'), code.size()));
    const std::string mots = " " + code + " " + court + motsDe(aidant.nomPrenom);
    std::string nom = data::sansAccents(aidant.nomPrenom);
    fiches_.push_back({std::move(aidant), std::move(nom), mots});
  }
  std::sort(fiches_.begin(), fiches_.end(), [](const Fiche& a, const Fiche& b) {
    const int ordre = data::ordreDictionnaire(a.aidant.nomPrenom, a.nom, b.aidant.nomPrenom, b.nom);
    return ordre != 0 ? ordre < 0 : a.aidant.code < b.aidant.code;
  });
  DistinguerHomonymes();
  retenus_.resize(fiches_.size());
  std::iota(retenus_.begin(), retenus_.end(), std::size_t{0});
  masques_ = 0;
  endResetModel();
}

// Those of one name stand side by side.
void Annuaire::DistinguerHomonymes() {
  for (auto debut = fiches_.begin(); debut != fiches_.end();) {
    const auto fin = std::find_if(debut, fiches_.end(),
                                  [&](const Fiche& fiche) { return fiche.nom != debut->nom; });
    std::set<long> naissances;
    std::set<std::string> villes;
    for (auto fiche = debut; fiche != fin; ++fiche) {
      naissances.insert(fiche->aidant.naissance);
      villes.insert(fiche->aidant.ville);
    }
    const auto nombre = static_cast<std::size_t>(fin - debut);
    const bool parNaissance = naissances.count(0) == 0 && naissances.size() == nombre;
    const bool parVille = villes.count("") == 0 && villes.size() == nombre;
    for (auto fiche = debut; fiche != fin && nombre > 1; ++fiche) {
      const Aidant& aidant = fiche->aidant;
      fiche->distinction = parNaissance ? data::dateAffichee(aidant.naissance)
                           : parVille   ? aidant.ville
                                        : aidant.code;
    }
    debut = fin;
  }
}

void Annuaire::Ouvrir(const std::string& code) {
  ouvert_ = code;
  if (!retenus_.empty()) {
    emit dataChanged(index(0, 0), index(rowCount() - 1, NombreColonnes - 1));
  }
}

const Aidant* Annuaire::Trouver(const std::string& code) const {
  const auto trouve = std::find_if(fiches_.begin(), fiches_.end(),
                                   [&](const Fiche& fiche) { return fiche.aidant.code == code; });
  return trouve == fiches_.end() ? nullptr : &trouve->aidant;
}

void Annuaire::Filtrer(const QString& saisie) {
  std::vector<std::string> mots;
  for (const std::string& mot : data::mots(data::plier(versModele(saisie)))) {
    mots.push_back(" " + mot);
  }
  beginResetModel();
  retenus_.clear();
  masques_ = 0;
  for (std::size_t i = 0; i < fiches_.size(); ++i) {
    const bool garde = std::all_of(mots.begin(), mots.end(), [&](const std::string& mot) {
      return fiches_[i].mots.find(mot) != std::string::npos;
    });
    if (!garde) continue;
    if (supprimesMasques_ && fiches_[i].aidant.supprime) {
      ++masques_;
    } else {
      retenus_.push_back(i);
    }
  }
  endResetModel();
}

const Aidant& Annuaire::Ligne(int ligne) const {
  return fiches_[retenus_.at(static_cast<std::size_t>(ligne))].aidant;
}

int Annuaire::LigneDe(const std::string& code) const {
  const auto trouve = std::find_if(retenus_.begin(), retenus_.end(),
                                   [&](std::size_t i) { return fiches_[i].aidant.code == code; });
  return trouve == retenus_.end() ? -1 : static_cast<int>(trouve - retenus_.begin());
}

int Annuaire::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(retenus_.size());
}

int Annuaire::columnCount(const QModelIndex&) const {
  return NombreColonnes;
}

QVariant Annuaire::data(const QModelIndex& index, int role) const {
  const Fiche& fiche = fiches_[retenus_.at(static_cast<std::size_t>(index.row()))];
  const Aidant& aidant = fiche.aidant;
  const QString distinction =
      fiche.distinction.empty() ? QString() : " (" + versQt(fiche.distinction) + ")";
  if (role == Qt::DisplayRole) {
    return index.column() == Code ? versQt(aidant.code) : versQt(aidant.nomPrenom) + distinction;
  }
  if (role == Distinction && index.column() == Nom) return distinction;
  if (aidant.code == ouvert_) {
    if (role == Qt::FontRole) {
      QFont gras;
      gras.setBold(true);
      return gras;
    }
    if (role == Qt::AccessibleDescriptionRole) return "Aidant ouvert";
  }
  // A narrow list leaves out the code and the end of a name.
  if (role == Qt::ToolTipRole) {
    const QString entier = versQt(aidant.code + " " + aidant.nomPrenom) + distinction;
    const char* const etat = aidant.supprime ? "<br>Aidant supprimé : aucun ajout possible" : "";
    return entier.toHtmlEscaped() + etat;
  }
  if (role == Qt::ForegroundRole && aidant.supprime) {
    return QGuiApplication::palette().brush(QPalette::PlaceholderText);
  }
  return {};
}

}  // namespace hote
