#include "editor/caracteristiques_qualif.h"

#include "data/layouts/voisins.h"
#include "dialogs/frm_qualif_pro.h"
#include "editor/editeur.h"

namespace editor {

namespace {

namespace C = data::Contrat;
namespace T = data::Tables;

}  // namespace

Qualification::Qualification(Frm_ElementsContrat& editeur, screen::Frame& page,
                             session::Sourdine& sourdine)
    : editeur_(editeur),
      sourdine_(sourdine),
      Etq_QualifContrat(page, "Etq_QualifContrat", "Qualif. Prof."),
      Cbo_QualifContrat(page, "Cbo_QualifContrat", true, LongueurLibelle),
      Cmd_QualifPro(page, "Cmd_QualifPro", "Ajouter Qualification"),
      Etq_RegroupBudget(page, "Etq_RegroupBudget", "Regroup. budget"),
      Txt_RegroupBudget(page, "Txt_RegroupBudget"),
      zones_({session::texte(Cbo_QualifContrat, C::Qualification).ParAvenant()}) {
  Txt_RegroupBudget.SetEnabled(false);
  Cbo_QualifContrat.DropDown = [this] { Remplir(); };
  Cbo_QualifContrat.Click = Cbo_QualifContrat.Change =
      sourdine.SiAudible([this] { MontrerRegroupement(); });
  Cmd_QualifPro.Click = [this] { Cmd_QualifPro_Click(); };
}

void Qualification::Montrer(const data::CItem& contrat, int rang) {
  Remplir();
  zones_.Montrer(editeur_.Session().Lib, contrat, rang);
  MontrerRegroupement();
}

void Qualification::MontrerNouveau() {
  Remplir();
  zones_.Vider();
  zones_.Oublier();
  Txt_RegroupBudget.SetText("");
}

void Qualification::Ecrire(data::CItem& contrat, int rang) const {
  zones_.Ecrire(editeur_.Session().Lib, contrat, rang);
}

void Qualification::SelonConvention(const std::string& convention) {
  screen::Montrer({&Etq_RegroupBudget, &Txt_RegroupBudget},
                  convention != data::ConventionParticuliers);
  MontrerRegroupement();
}

void Qualification::Remplir() {
  ItemQualif_ = data::CItem();
  editeur_.Session().F_TABLES.Lire(T::Qualif, ItemQualif_);
  const std::string montree = Cbo_QualifContrat.Text();
  Cbo_QualifContrat.Clear();
  for (int v = 1; v <= ItemQualif_.DCount(T::QualifLibelles); ++v) {
    Cbo_QualifContrat.AddItem(ItemQualif_(T::QualifLibelles, v));
  }
  const session::Sourdine::Silence silence(sourdine_);
  Cbo_QualifContrat.SetText(montree);
}

// The label of the group whose code the qualification bears.
void Qualification::MontrerRegroupement() {
  Txt_RegroupBudget.SetText("");
  const std::string& libelle = Cbo_QualifContrat.Text();
  if (editeur_.origine.Particuliers() || libelle.empty()) return;
  int v = ItemQualif_.DCount(T::QualifLibelles);
  while (v > 0 && ItemQualif_.Vue(T::QualifLibelles, v) != libelle) --v;
  if (v == 0 || ItemQualif_.Vue(T::QualifRegroupements, v).empty()) return;
  data::CItem groupes;
  editeur_.Session().F_TABLES.Lire(T::RegroupBudget, groupes);
  Txt_RegroupBudget.SetText(
      data::ListeCodes::DeTable(groupes).Libelle(ItemQualif_(T::QualifRegroupements, v)));
}

void Qualification::Cmd_QualifPro_Click() {
  dialogs::Frm_QualifPro(editeur_.Services()).Ouvrir(editeur_);
  Remplir();
}

}  // namespace editor
