#include "fenetre/annuaire.h"

#include <QGuiApplication>
#include <QPalette>
#include <QStringList>
#include <algorithm>
#include <numeric>
#include <tuple>

#include "data/citem.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/storage.h"
#include "liaison/textes_qt.h"

namespace hote {

std::vector<Aidant> lireAidants(data::Storage& stockage) {
  namespace A = data::CivilAidant;
  std::vector<Aidant> aidants;
  stockage.Scan(data::fichier::CIVILAIDANT, data::KeyRange::Tout(),
                [&](std::string_view cle, std::string_view texte) {
                  const data::CItem item(texte);
                  aidants.push_back({std::string(cle), item(A::Nom) + " " + item(A::Prenom),
                                     !item.Vue(A::DateFin).empty()});
                  return true;
                });
  return aidants;
}

QString plier(const QString& texte) {
  QString plie;
  for (const QChar c : texte.toLower().normalized(QString::NormalizationForm_D)) {
    if (c == QChar(0x153)) {
      plie += "oe";
    } else if (c == QChar(0xe6)) {
      plie += "ae";
    } else if (c.isLetterOrNumber()) {
      plie += c;
    } else if (!c.isMark()) {
      plie += ' ';
    }
  }
  return plie.simplified();
}

void Annuaire::Remplir(std::vector<Aidant> aidants) {
  beginResetModel();
  fiches_.clear();
  fiches_.reserve(aidants.size());
  for (Aidant& aidant : aidants) {
    const QString code = plier(versQt(aidant.code));
    const auto debut = std::find_if(code.begin(), code.end(), [](QChar c) { return c != '0'; });
    const QString court = code.mid(debut - code.begin());
    const QString nom = plier(versQt(aidant.nomPrenom));
    fiches_.push_back({std::move(aidant), nom, versModele(" " + code + " " + court + " " + nom)});
  }
  std::sort(fiches_.begin(), fiches_.end(), [](const Fiche& a, const Fiche& b) {
    return std::tie(a.nom, a.aidant.code) < std::tie(b.nom, b.aidant.code);
  });
  retenus_.resize(fiches_.size());
  std::iota(retenus_.begin(), retenus_.end(), std::size_t{0});
  endResetModel();
}

void Annuaire::Filtrer(const QString& saisie) {
  std::vector<std::string> mots;
  for (const QString& mot : plier(saisie).split(' ', Qt::SkipEmptyParts)) {
    mots.push_back(versModele(" " + mot));
  }
  beginResetModel();
  retenus_.clear();
  for (std::size_t i = 0; i < fiches_.size(); ++i) {
    const bool garde = std::all_of(mots.begin(), mots.end(), [&](const std::string& mot) {
      return fiches_[i].mots.find(mot) != std::string::npos;
    });
    if (garde) retenus_.push_back(i);
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
  const Aidant& aidant = Ligne(index.row());
  if (role == Qt::DisplayRole) {
    return versQt(index.column() == Code ? aidant.code : aidant.nomPrenom);
  }
  if (role == Qt::ToolTipRole && aidant.supprime) return "Aidant supprimé : aucun ajout possible";
  if (role == Qt::ForegroundRole && aidant.supprime) {
    return QGuiApplication::palette().brush(QPalette::PlaceholderText);
  }
  return {};
}

}  // namespace hote
