#include "editor/onglet_caracteristiques.h"

#include <algorithm>

#include "data/layouts/contrat.h"
#include "dialogs/frm_elem_droit_public.h"
#include "editor/editeur.h"

namespace editor {

namespace {

namespace C = data::Contrat;

constexpr std::string_view ConventionsDroitPublic[] = {"07", "08", "09"};

}  // namespace

OngletCaracteristiques::OngletCaracteristiques(Frm_ElementsContrat& editeur)
    : Onglet(editeur, Caracteristiques, "Cdr_Ong2"),
      zones_(
          session::reunir({duree_.Zones(),
                           anciennete_.Zones(),
                           {session::texte(Txt_Commentaire, C::Commentaire1).ParAvenant(),
                            session::texte(Txt_Commentaire2, C::Commentaire2).ParAvenant(),
                            session::texte(Txt_NormCrc, C::NormeCRC).ParAvenant(),
                            session::drapeau(Cac_ChgtSitAdm, C::ChangementSituation).ParAvenant(),
                            session::texte(Txt_CodePop, C::PopulationPrevoyance).ParAvenant()}})) {
  zones_.Lier(Session());
  anciennete_.Lier();
  Cmd_ElemDrtPub.Click = [this] {
    dialogs::Frm_ElemDroitPublic(editeur_.Services(), Dossier(), avenants_.RangAvenant())
        .ShowModal();
  };
}

// Display.

// What the files say is read first: then showing a state, and walking to another, cannot fail
// half-way.
void OngletCaracteristiques::Afficher_Ong2() {
  duree_.Oublier();
  qualification_.Remplir();
  grille_.Remplir(editeur_.origine.Convention());
  if (Creation()) {
    AfficherNouveau();
  } else {
    Montrer_Etat(true);
  }
  modulation_.Ouvrir(editeur_.origine.Genre().Mensuel() && editeur_.origine.Genre().Production());
}

void OngletCaracteristiques::Montrer_Etat(bool dernier) {
  const session::Sourdine::Silence silence(sourdine_);
  const data::CItem& contrat = Contrat();
  avenants_.Montrer(dernier);
  const int rang = avenants_.Rang();
  qualification_.Montrer(contrat, rang);
  pcs_.Montrer(contrat, rang);
  zones_.Montrer(Session().Lib, contrat, rang);
  modulation_.Montrer(contrat, rang);
  grille_.Montrer(contrat, rang);
  anciennete_.Montrer(contrat);
  duree_.Retenir();
}

void OngletCaracteristiques::AfficherNouveau() {
  avenants_.MontrerNouveau();
  qualification_.MontrerNouveau();
  pcs_.MontrerNouveau();
  zones_.Vider();
  zones_.Oublier();
  modulation_.MontrerNouveau();
  grille_.MontrerNouveau();
  anciennete_.MontrerNouveau();
  duree_.RetenirNouveau();
}

void OngletCaracteristiques::Vider_Ong() {
  grille_.Vider();
  avenants_.Vider();
}

// The first tab may have said since what the staff's pay is.
void OngletCaracteristiques::Entrer() {
  modulation_.Ouvrir(editeur_.origine.Genre().Mensuel() && editeur_.origine.Genre().Production());
}

void OngletCaracteristiques::SelonConvention(const std::string& convention) {
  const auto* const fin = std::end(ConventionsDroitPublic);
  Cmd_ElemDrtPub.SetVisible(std::find(std::begin(ConventionsDroitPublic), fin, convention) != fin);
  qualification_.SelonConvention(convention);
}

void OngletCaracteristiques::ProposerSelonConvention(const std::string& convention) {
  pcs_.Proposer(convention);
  grille_.Remplir(convention);
  grille_.MontrerCategorie();
}

void OngletCaracteristiques::SelonSalaire(bool mensuel, bool production) {
  if (!mensuel) modulation_.Cesser();
  modulation_.Ouvrir(mensuel && production);
}

// Writing.

void OngletCaracteristiques::Ecrire_Ong2() {
  Ecrire_Etat(Contrat(), DebutContrat());
  rules::completerDroitPublic(Contrat());
}

void OngletCaracteristiques::Ecrire_Etat(data::CItem& contrat, const rules::Debut& debut) const {
  const int rang = avenants_.Ecrire(contrat, debut);
  qualification_.Ecrire(contrat, rang);
  pcs_.Ecrire(contrat, rang);
  zones_.Ecrire(Session().Lib, contrat, rang);
  modulation_.Ecrire(contrat, rang);
  grille_.Ecrire(contrat, rang, debut);
  anciennete_.Ecrire(contrat);
}

// The start on file, and the one in the first tab.
rules::Debut OngletCaracteristiques::DebutContrat() const {
  const std::string avant = Dossier().Initial(C::DateDebut);
  const auto debut = editeur_.origine.Debut();
  if (Creation() || !debut) return {avant, avant};
  return {avant, Session().Lib.DateToInternal(*debut)};
}

// The start moves with the save, not with the walk.
bool OngletCaracteristiques::QuitterEtat() {
  data::CItem change = Contrat();
  Ecrire_Etat(change, {});
  if (change.Text() == Contrat().Text()) return true;
  if (!Verif_Ong2()) return false;
  duree_.Quitter();
  Contrat() = std::move(change);
  return true;
}

void OngletCaracteristiques::ExigerDateEffet() {
  Refuser({Verifications[0].message, Verifications[0].icone, Verifications[0].champ});
}

}  // namespace editor
