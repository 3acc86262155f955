#include "editor/paie_offre.h"

#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "data/requete.h"
#include "editor/editeur.h"

namespace editor {

namespace {

using data::citer, data::citerDebut;

// The type of the activities of private employers.
constexpr const char* Mandat = "M";

}  // namespace

data::ListeCodes OffreActivites::Gestion_Activite(const std::string& entite,
                                                  bool particuliers) const {
  using namespace data;
  Requete requete(fichier::ACTIVITES);
  requete.Avec(Cle, "=", citerDebut(entite));
  if (!editeur_.origine.Genre().Administratif()) {
    requete.Avec(Activites::Genre, particuliers ? "=" : "<>", citer(Mandat));
  }
  return ListeCodes::DeSelection(
      requete.Par(Activites::Libelle)
          .Lire(*editeur_.Session().Db, {Cle, Activites::Libelle, Activites::Genre}));
}

data::ListeCodes OffreActivites::DeLEmployeur() const {
  const auto& origine = editeur_.origine;
  session::Session& s = editeur_.Session();
  data::CItem ouvertes;
  if (!s.F_ACTIVITESAIDE.Lire(origine.Employeur(), ouvertes)) return {};
  const long debut = origine.Debut().value_or(0);
  std::vector<data::ListeCodes::Ligne> lignes;
  for (int v = 1; v <= ouvertes.DCount(data::ActivitesAide::Codes); ++v) {
    const std::string code = ouvertes(data::ActivitesAide::Codes, v);
    data::CItem activite;
    if (!s.F_ACTIVITES.Lire(code, activite)) break;
    const auto du = ouvertes.Vue(data::ActivitesAide::Debuts, v);
    const auto au = ouvertes.Vue(data::ActivitesAide::Fins, v);
    const bool ouverte =
        !du.empty() && data::entier(du) <= debut && (au.empty() || debut <= data::entier(au));
    if (activite.Vue(data::Activites::Genre) != Mandat || !ouverte) continue;
    lignes.push_back({code, activite(data::Activites::Libelle), {Mandat}});
  }
  return data::ListeCodes(std::move(lignes));
}

void OffreActivites::Offrir(data::ListeCodes activites) {
  ListeActivites_ = std::move(activites);
  liste_.Clear();
  for (const auto& ligne : ListeActivites_.Lignes()) liste_.AddItem(ligne.libelle);
}

std::string OffreActivites::Type(const std::string& code) const {
  if (const auto* const offerte = ListeActivites_.ParCode(code)) {
    return offerte->suite.empty() ? std::string() : offerte->suite.front();
  }
  data::CItem activite;
  editeur_.Session().F_ACTIVITES.Lire(code, activite);
  return activite(data::Activites::Genre);
}

std::string OffreActivites::Libelle(const std::string& code) const {
  std::string libelle = ListeActivites_.Libelle(code);
  data::CItem activite;
  if (libelle.empty() && editeur_.Session().F_ACTIVITES.Lire(code, activite)) {
    libelle = activite(data::Activites::Libelle);
  }
  return libelle.empty() ? code : libelle;
}

}  // namespace editor
