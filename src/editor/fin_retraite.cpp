#include "editor/fin_retraite.h"

#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/requete.h"

namespace editor {

namespace {

// The one retirement body of private employers' staff, which is its own code.
constexpr const char* RetraiteParticuliers = "IRCEM";

}  // namespace

RetraiteFin::RetraiteFin(session::Session& session, screen::Frame& page,
                         session::Sourdine& sourdine)
    : session_(session), page_(page), sourdine_(sourdine) {
  Txt_OrgRetraite.SetEnabled(false);
}

void RetraiteFin::Afficher(const std::string& entite, bool particuliers, const std::string& code) {
  Remplir(entite, particuliers);
  organisme_.Afficher(code, organisme_.Lignes().Libelle(code));
}

void RetraiteFin::Choisir(const std::string& entite, bool particuliers) {
  Remplir(entite, particuliers);
  const auto& premier = organisme_.Lignes().A(0);
  organisme_.Afficher(premier.code, premier.libelle);
}

void RetraiteFin::Vider() {
  organisme_.Remplir({});
  organisme_.Afficher("", "");
}

std::string RetraiteFin::Code() const {
  const std::string& code = Txt_OrgRetraite.Text();
  return code.empty() ? organisme_.Lignes().A(0).code : code;
}

void RetraiteFin::Remplir(const std::string& entite, bool particuliers) {
  using namespace data;
  organisme_.Remplir(
      particuliers
          ? ListeCodes(std::vector<ListeCodes::Ligne>{{RetraiteParticuliers, RetraiteParticuliers}})
          : ListeCodes::DeSelection(
                Requete(fichier::ORGANISMESOCIAL)
                    .Avec(Cle, "=", citerDebut(entite))
                    .Avec(OrganismeSocial::Genre, "=", citer(OrganismeSocial::GenreRetraite))
                    .Par(OrganismeSocial::Libelle)
                    .Lire(*session_.Db, {Cle, OrganismeSocial::Libelle})));
  Cbo_OrgRetraite.SetEnabled(!particuliers);
}

}  // namespace editor
