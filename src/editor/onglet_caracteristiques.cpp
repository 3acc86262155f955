#include "editor/onglet_caracteristiques.h"

#include <algorithm>

#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "data/requete.h"
#include "editor/editeur.h"

namespace editor {

namespace {

// Row n is stored as n + 1.
constexpr const char* Frequences[] = {"Hebdo", "Quatorzaine", "Mensuelle", "Annuelle"};

constexpr std::string_view ConventionsDroitPublic[] = {"07", "08", "09"};

// The profession proposed: home help, for an entity or for a private employer.
constexpr const char* CategoriePCS = "56";
constexpr const char* FonctionEntite = "563b";
constexpr const char* FonctionParticulier = "563c";

}  // namespace

OngletCaracteristiques::OngletCaracteristiques(Frm_ElementsContrat& editeur)
    : Onglet(editeur, Caracteristiques, "Cdr_Ong2") {
  for (const char* frequence : Frequences) Cbo_FreqWContrat.AddItem(frequence);
  Page.SetEnabled(false);
}

void OngletCaracteristiques::Afficher_Ong2() {
  Cmd_AjoutAvenant.SetVisible(!Creation() && Session().DroitComplet());
  Cmd_AjoutAvenant.SetEnabled(!Creation());
  Cmd_SuiviAnnuel.SetEnabled(!Creation());
  if (Creation()) {
    Bdh_Avenant.SetValue(0);
    Cbo_GrilleContrat.Clear();
  } else {
    Remplir_Grilles(editeur_.origine.Convention());
  }
}

void OngletCaracteristiques::SelonDroits(bool complet) {
  Cmd_OKAvenant.SetVisible(complet);
  if (!complet) Cmd_AjoutAvenant.SetVisible(false);
}

void OngletCaracteristiques::Vider_Ong() {
  screen::Activer({&Etq_DepartGrilContrat, &Txt_DepartGrilContrat}, false);
  screen::Activer(
      {&Etq_CoefNivContrat, &Txt_CoefNivContrat, &Etq_TauxHorContrat, &Txt_TauxHorContrat}, true);
  Cbo_FoncPCSContrat.Clear();
  Bdh_Avenant.SetValue(0);
}

void OngletCaracteristiques::SelonConvention(const std::string& convention) {
  const auto* const fin = std::end(ConventionsDroitPublic);
  Cmd_ElemDrtPub.SetVisible(std::find(std::begin(ConventionsDroitPublic), fin, convention) != fin);
}

void OngletCaracteristiques::ProposerSelonConvention(const std::string& convention) {
  const session::Sourdine::Silence silence(sourdine_);
  const data::DbFile pcs = Session().Db->OpenFile(data::fichier::PCS);
  data::CItem categorie;
  pcs.Lire(CategoriePCS, categorie);
  Cbo_CategPCSContrat.SetText(categorie.Vue(data::Pcs::Libelle));
  const std::string code =
      convention == data::ConventionParticuliers ? FonctionParticulier : FonctionEntite;
  data::CItem fonction;
  Txt_CodPCSContrat.SetText(pcs.Lire(code, fonction) ? code : "");
  Cbo_FoncPCSContrat.SetText(fonction.Vue(data::Pcs::Libelle));
  Remplir_Grilles(convention);
}

void OngletCaracteristiques::Remplir_Grilles(const std::string& convention) {
  using namespace data;
  const CItem grilles = Requete(fichier::GRILLESCC)
                            .Avec(Cle, "=", citerDebut(convention))
                            .Par(GrillesCC::Libelle)
                            .Lire(*Session().Db, {Cle, GrillesCC::Libelle});
  Cbo_GrilleContrat.Clear();
  for (int i = 1; i <= grilles.DCount(); ++i) Cbo_GrilleContrat.AddItem(grilles.Vue(i, 2));
}

void OngletCaracteristiques::SelonSalaire(bool mensuel, bool production) {
  if (!mensuel) Cac_Lissage.SetValue(0);
  screen::Montrer({&Cdr_Lissage, &Cmd_SuiviAnnuel}, mensuel && production);
}

// The contract in hand answers for a box that shows nothing.
std::optional<long> OngletCaracteristiques::DepartAnciennete() const {
  namespace C = data::Contrat;
  const auto& lib = Session().Lib;
  auto depart = lib.LireDate(Txt_DateAnciennete.Text());
  if (!depart) depart = lib.LireDate(lib.DateFromInternal(Contrat().Vue(C::DateAnciennete)));
  if (!depart) depart = editeur_.origine.Debut();
  if (!depart) return std::nullopt;
  const std::string& saisis = Txt_JourSuspAnc.Text();
  return *depart +
         static_cast<long>(saisis.empty()
                               ? data::entier(Contrat().Vue(C::JoursSuspensionAnciennete)) / 100
                               : data::entier(saisis));
}

void OngletCaracteristiques::DebuterLe(const std::string& date) {
  Txt_DatEffetContrat.SetText(date);
  Txt_DatEffetContrat.SetEnabled(false);
  Txt_AvenantContrat.SetText("0");
}

}  // namespace editor
