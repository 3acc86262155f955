#include "editor/origine_codes.h"

#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/requete.h"
#include "editor/editeur.h"

namespace editor {

namespace {

namespace C = data::Contrat;

}  // namespace

CodesOrigine::CodesOrigine(Frm_ElementsContrat& editeur, screen::Frame& page,
                           session::Sourdine& sourdine)
    : editeur_(editeur), page_(page), sourdine_(sourdine) {}

session::Session& CodesOrigine::Session() const {
  return editeur_.Session();
}

session::RegleCode CodesOrigine::RegleConvention() {
  session::RegleCode regle;
  regle.longueur = LongueurConvention;
  regle.inconnu = "Cette convention collective n'existe pas.";
  regle.avant = [this] { editeur_.AnnoncerConvention(); };
  regle.incomplet = [this] {
    entite_.Vider();
    editeur_.paie.ViderActivites();
    Griser_ComboOng1();
  };
  regle.choisi = [this] { ChoisirConvention(); };
  return regle;
}

session::RegleCode CodesOrigine::RegleEntite() {
  session::RegleCode regle;
  regle.longueur = LongueurEntite;
  regle.inconnu = "Cette entité juridique n'existe pas.";
  regle.avant = [this] { ViderEntite(); };
  regle.choisi = [this] { ChoisirEntite(); };
  // An employer belongs to the entity that he was chosen under.
  regle.avantChoix = [this](const std::string& choisie) {
    if (choisie != Entite()) employeur_.Vider();
  };
  return regle;
}

void CodesOrigine::Remplir_Combos() {
  using namespace data;
  entite_.Remplir(ListeCodes::DeSelection(Requete(fichier::ASSOCIATION)
                                              .Par(Association::Nom)
                                              .Lire(*Session().Db, {Cle, Association::Nom})));
  convention_.Remplir(ListeCodes::DeSelection(
      Requete(fichier::CONVENTIONCOL)
          .Par(ConventionCol::Libelle)
          .Lire(*Session().Db,
                {Cle, ConventionCol::Libelle, ConventionCol::ModeCP, ConventionCol::ModeAnciennete,
                 ConventionCol::PrevoyanceObligatoire})));
}

void CodesOrigine::Activer(bool actifs) {
  screen::Activer({&Txt_AssocContrat, &Cbo_LibAssocContrat}, actifs);
  employeur_.Activer(actifs);
}

void CodesOrigine::AfficherNouveau() {
  screen::Activer({&Txt_ConvColContrat, &Cbo_LibConvColContrat}, true);
  Griser_ComboOng1();
  employeur_.Oublier();
}

// A code that its table has lost stays in its box, without a label, rather than leave the record.
void CodesOrigine::AfficherExistant() {
  const data::CItem& contrat = editeur_.Dossier().ItemContrat;
  convention_.Afficher(contrat.Vue(C::Convention),
                       convention_.Lignes().Libelle(contrat.Vue(C::Convention)));
  entite_.Afficher(contrat.Vue(C::Association),
                   entite_.Lignes().Libelle(contrat.Vue(C::Association)));
  editeur_.AnnoncerConvention();
  employeur_.Afficher();
  screen::Activer({&Txt_ConvColContrat, &Cbo_LibConvColContrat}, false);
  Griser_ComboOng1();
}

data::ListeCodes::Ligne CodesOrigine::Nomme() const {
  if (Particuliers()) return {Employeur(), LibelleEmployeur()};
  return {Entite(), Cbo_LibAssocContrat.Text()};
}

void CodesOrigine::Ecrire(data::CItem& contrat) const {
  contrat.Set(C::Convention, Convention());
  contrat.Set(C::Association, Entite());
  contrat.Set(C::Employeur, (Particuliers() ? "" : Entite()) + Employeur());
}

// All that a known agreement brings with it, then on to the next code.
void CodesOrigine::ChoisirConvention() {
  Degriser_ComboOng1();
  entite_.Vider();
  screen::Activer({&Txt_ConvColContrat, &Cbo_LibConvColContrat}, !Particuliers());
  employeur_.Reprendre();
  editeur_.caracteristiques.ProposerSelonConvention(Convention());
  editeur_.paie.ProposerSelonConvention(Convention());
  if (Txt_AssocContrat.Disponible()) {
    Txt_AssocContrat.SetFocus();
  } else {
    employeur_.SetFocus();
  }
}

// An establishment belongs to its entity; a private employer stays while the entity is typed.
void CodesOrigine::ViderEntite() {
  editeur_.paie.ViderActivites();
  editeur_.fin.Retraite().Vider();
  if (Particuliers()) return;
  employeur_.Vider();
  employeur_.Oublier();
}

void CodesOrigine::ChoisirEntite() {
  if (!editeur_.paie.ChoisirEntite(Entite(), Particuliers())) {
    entite_.Refuser();
    return;
  }
  if (!Particuliers()) employeur_.Remplir_Etablissements();
  editeur_.fin.Retraite().Choisir(Entite(), Particuliers());
}

}  // namespace editor
