#include "editor/caracteristiques_pcs.h"

#include "data/cles.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/requete.h"

namespace editor {

namespace {

namespace C = data::Contrat;
using data::citer, data::citerDebut, data::Requete;

// The profession proposed: home help, for an entity or for a private employer.
constexpr const char* CategorieAide = "56";
constexpr const char* FonctionEntite = "563b";
constexpr const char* FonctionParticulier = "563c";

// Keys below are those of categories, keys above those of functions.
constexpr const char* LimiteCategories = "100";

}  // namespace

NomenclaturePCS::NomenclaturePCS(session::Session& session, screen::Frame& page,
                                 session::Sourdine& sourdine)
    : session_(session),
      page_(page),
      sourdine_(sourdine),
      fonction_(Txt_CodPCSContrat, Cbo_FoncPCSContrat, sourdine, RegleFonction()),
      zones_({session::texte(Cbo_CategPCSContrat, C::CategoriePCS).ParAvenant(),
              session::texte(Txt_CodPCSContrat, C::CodePCS).ParAvenant(),
              session::texte(Cbo_FoncPCSContrat, C::FonctionPCS).ParAvenant()}) {
  Cbo_CategPCSContrat.DropDown = [this] {
    if (ListePCS_.Vide()) Remplir_PCS();
  };
  Cbo_CategPCSContrat.Click = sourdine_.SiAudible(
      [this] { ChoisirCategorie(ListePCS_.A(Cbo_CategPCSContrat.ListIndex()).code); });
  Cbo_CategPCSContrat.Change = sourdine_.SiAudible([this] { Cbo_CategPCSContrat_Change(); });
  Cbo_FoncPCSContrat.DropDown = [this] { Cbo_FoncPCSContrat_DropDown(); };
}

session::RegleCode NomenclaturePCS::RegleFonction() {
  session::RegleCode regle;
  regle.longueur = LongueurCode;
  regle.inconnu = "Aucune fonction ne correspond à ce code.";
  regle.icone = screen::Icone::Exclamation;
  regle.source = [this](const std::string& code) { return Chercher(code); };
  regle.tape = session::RegleCode::Nomme;
  return regle;
}

// The lists are filled when they are opened; what they held belongs to another contract.
void NomenclaturePCS::Montrer(const data::CItem& contrat, int rang) {
  const session::Sourdine::Silence silence(sourdine_);
  fonction_.Remplir({});
  zones_.Montrer(session_.Lib, contrat, rang);
}

void NomenclaturePCS::MontrerNouveau() {
  fonction_.Remplir({});
  zones_.Vider();
  zones_.Oublier();
}

void NomenclaturePCS::Ecrire(data::CItem& contrat, int rang) const {
  zones_.Ecrire(session_.Lib, contrat, rang);
}

void NomenclaturePCS::Proposer(const std::string& convention) {
  const session::Sourdine::Silence silence(sourdine_);
  const std::string code =
      convention == data::ConventionParticuliers ? FonctionParticulier : FonctionEntite;
  const std::string fonction = Libelle(code);
  Cbo_CategPCSContrat.SetText(Libelle(CategorieAide));
  fonction_.Remplir({});
  fonction_.Afficher(fonction.empty() ? "" : code, fonction);
}

bool NomenclaturePCS::CategorieJuste() const {
  return Cbo_CategPCSContrat.Text() ==
         Libelle(Txt_CodPCSContrat.Text().substr(0, LongueurCategorie));
}

bool NomenclaturePCS::FonctionJuste() const {
  return Cbo_FoncPCSContrat.Text() == Libelle(Txt_CodPCSContrat.Text());
}

std::vector<std::string> NomenclaturePCS::Cles() const {
  const std::string code = Txt_CodPCSContrat.Text();
  return {code.substr(0, LongueurCategorie), code};
}

// "" for a key that the nomenclature does not have.
std::string NomenclaturePCS::Libelle(const std::string& cle) const {
  data::CItem ligne;
  session_.Db->OpenFile(data::fichier::PCS).Lire(cle, ligne);
  return ligne(data::Pcs::Libelle);
}

// The function of a code, whose category comes to stand beside it.
std::optional<std::string> NomenclaturePCS::Chercher(const std::string& code) {
  data::CItem ligne;
  if (!session_.Db->OpenFile(data::fichier::PCS).Lire(code, ligne)) return std::nullopt;
  const std::string categorie = code.substr(0, LongueurCategorie);
  const session::Sourdine::Silence silence(sourdine_);
  const std::string libelle = Libelle(categorie);
  if (Cbo_CategPCSContrat.Text() != libelle) {
    Cbo_CategPCSContrat.SetText(libelle);
    Remplir_FoncPCS(categorie);
  }
  return ligne(data::Pcs::Libelle);
}

void NomenclaturePCS::Remplir_PCS() {
  ListePCS_ =
      data::ListeCodes::DeSelection(Requete(data::fichier::PCS)
                                        .Avec(data::Cle, "<", citer(LimiteCategories))
                                        .Par(data::Pcs::Libelle)
                                        .Lire(*session_.Db, {data::Cle, data::Pcs::Libelle}));
  const session::Sourdine::Silence silence(sourdine_);
  const std::string montree = Cbo_CategPCSContrat.Text();
  Cbo_CategPCSContrat.Clear();
  for (const auto& ligne : ListePCS_.Lignes()) Cbo_CategPCSContrat.AddItem(ligne.libelle);
  Cbo_CategPCSContrat.SetText(montree);
}

void NomenclaturePCS::Remplir_FoncPCS(const std::string& categorie) {
  const std::string montree = Cbo_FoncPCSContrat.Text();
  fonction_.Remplir(
      data::ListeCodes::DeSelection(Requete(data::fichier::PCS)
                                        .Avec(data::Cle, "=", citerDebut(categorie))
                                        .Avec(data::Cle, ">", citer(LimiteCategories))
                                        .Par(data::Pcs::Libelle)
                                        .Lire(*session_.Db, {data::Cle, data::Pcs::Libelle})));
  fonction_.Montrer(montree);
}

void NomenclaturePCS::ChoisirCategorie(const std::string& categorie) {
  if (categorie.empty()) return;
  Remplir_FoncPCS(categorie);
  fonction_.Vider();
}

// A category typed in full is one chosen.
void NomenclaturePCS::Cbo_CategPCSContrat_Change() {
  if (ListePCS_.Vide()) Remplir_PCS();
  ChoisirCategorie(ListePCS_.Code(Cbo_CategPCSContrat.Text()));
}

void NomenclaturePCS::Cbo_FoncPCSContrat_DropDown() {
  if (Cbo_FoncPCSContrat.ListCount() > 0) return;
  if (ListePCS_.Vide()) Remplir_PCS();
  const std::string categorie = ListePCS_.Code(Cbo_CategPCSContrat.Text());
  if (!categorie.empty()) Remplir_FoncPCS(categorie);
}

}  // namespace editor
