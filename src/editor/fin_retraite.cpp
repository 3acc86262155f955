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
  Cbo_OrgRetraite.Click = Cbo_OrgRetraite.Change = sourdine_.SiAudible(
      [this] { Txt_OrgRetraite.SetText(ListeOrgRetraite_.Code(Cbo_OrgRetraite.Text())); });
}

void RetraiteFin::Afficher(const std::string& entite, bool particuliers, const std::string& code) {
  const session::Sourdine::Silence silence(sourdine_);
  Remplir(entite, particuliers);
  Cbo_OrgRetraite.SetText(ListeOrgRetraite_.Libelle(code));
  Txt_OrgRetraite.SetText(code);
}

void RetraiteFin::Choisir(const std::string& entite, bool particuliers) {
  const session::Sourdine::Silence silence(sourdine_);
  Remplir(entite, particuliers);
  Cbo_OrgRetraite.SetListIndex(0);
  Txt_OrgRetraite.SetText(ListeOrgRetraite_.A(0).code);
}

void RetraiteFin::Vider() {
  const session::Sourdine::Silence silence(sourdine_);
  ListeOrgRetraite_ = data::ListeCodes();
  Cbo_OrgRetraite.Clear();
  Txt_OrgRetraite.SetText("");
}

std::string RetraiteFin::Code() const {
  const std::string& code = Txt_OrgRetraite.Text();
  return code.empty() ? ListeOrgRetraite_.A(0).code : code;
}

void RetraiteFin::Remplir(const std::string& entite, bool particuliers) {
  using namespace data;
  if (particuliers) {
    ListeOrgRetraite_ =
        ListeCodes(std::vector<ListeCodes::Ligne>{{RetraiteParticuliers, RetraiteParticuliers}});
  } else {
    ListeOrgRetraite_ = ListeCodes::DeSelection(
        Requete(fichier::ORGANISMESOCIAL)
            .Avec(Cle, "=", citerDebut(entite))
            .Avec(OrganismeSocial::Genre, "=", citer(OrganismeSocial::GenreRetraite))
            .Par(OrganismeSocial::Libelle)
            .Lire(*session_.Db, {Cle, OrganismeSocial::Libelle}));
  }
  Cbo_OrgRetraite.Clear();
  for (const auto& ligne : ListeOrgRetraite_.Lignes()) Cbo_OrgRetraite.AddItem(ligne.libelle);
  Cbo_OrgRetraite.SetEnabled(!particuliers);
}

}  // namespace editor
