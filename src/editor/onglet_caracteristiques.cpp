#include "editor/onglet_caracteristiques.h"

#include <algorithm>

#include "data/layouts/contrat.h"
#include "data/nombre.h"
#include "dialogs/frm_contrat_annuel.h"
#include "dialogs/frm_elem_droit_public.h"
#include "editor/editeur.h"
#include "screen/attente.h"

namespace editor {

namespace {

namespace C = data::Contrat;

// Row n is stored as n + 1.
constexpr const char* Frequences[] = {"Hebdo", "Quatorzaine", "Mensuelle", "Annuelle"};

constexpr std::string_view ConventionsDroitPublic[] = {"07", "08", "09"};

}  // namespace

OngletCaracteristiques::OngletCaracteristiques(Frm_ElementsContrat& editeur)
    : Onglet(editeur, Caracteristiques, "Cdr_Ong2"),
      anciennete_(Session(), Txt_DateAnciennete, Txt_JourSuspAnc, Txt_DatReferenceAnc,
                  C::JoursSuspensionAnciennete, [this] { return editeur_.origine.DateDebut(); }),
      zones_({session::nombre(Txt_DureeWContrat, C::DureeTravail, Duree, 2).ParAvenant(),
              session::ligne(Cbo_FreqWContrat, C::Frequence).ParAvenant(),
              session::jour(Txt_DateAnciennete, C::DateAnciennete),
              session::texte(Txt_Commentaire, C::Commentaire1).ParAvenant(),
              session::texte(Txt_Commentaire2, C::Commentaire2).ParAvenant(),
              session::texte(Txt_NormCrc, C::NormeCRC).ParAvenant(),
              session::drapeau(Cac_ChgtSitAdm, C::ChangementSituation).ParAvenant(),
              session::texte(Txt_CodePop, C::PopulationPrevoyance).ParAvenant()}) {
  for (const char* frequence : Frequences) Cbo_FreqWContrat.AddItem(frequence);
  zones_.Lier(Session());
  Cmd_ElemDrtPub.Click = [this] { Cmd_ElemDrtPub_Click(); };
  modulation_.SurSuiviAnnuel([this] { Cmd_SuiviAnnuel_Click(); });
  Txt_DateAnciennete.LostFocus = [this] { anciennete_.QuitterDepart(); };
}

// Display.

// What the files say is read first: then showing a state, and walking to another, cannot fail
// half-way.
void OngletCaracteristiques::Afficher_Ong2() {
  tempsQuittes_.clear();
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
  DureeFreqInitiale_ = DureeFreq();
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
  DureeFreqInitiale_.clear();
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

void OngletCaracteristiques::Cmd_SuiviAnnuel_Click() {
  const auto& origine = editeur_.origine;
  dialogs::Frm_ContratAnnuel(editeur_.Services(), Dossier(),
                             {origine.Convention(), origine.Entite(), origine.Employeur()})
      .ShowModal();
}

void OngletCaracteristiques::Cmd_ElemDrtPub_Click() {
  dialogs::Frm_ElemDroitPublic(editeur_.Services(), Dossier(), avenants_.RangAvenant()).ShowModal();
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
  if (DureeFreq() != DureeFreqInitiale_) tempsQuittes_[avenants_.Rang()] = Temps();
  Contrat() = std::move(change);
  return true;
}

void OngletCaracteristiques::ExigerDateEffet() {
  Refuser({Verifications[0].message, Verifications[0].icone, Verifications[0].champ});
}

// Legal hours.

rules::TempsTravail OngletCaracteristiques::Temps() const {
  return {data::enUnites(Txt_DureeWContrat.Text(), 2).value_or(0), Cbo_FreqWContrat.ListIndex() + 1,
          Session().Lib.LireDate(avenants_.DateEffet()).value_or(0),
          editeur_.origine.Debut().value_or(0)};
}

bool OngletCaracteristiques::HeuresPermises(const rules::TempsTravail& temps) {
  std::optional<rules::AvisHeures> avis;
  {
    screen::Attente attente(editeur_);
    avis = rules::Verif_NbHeures(*Session().Db, Session().CodeAidant, Dossier().NumeroContrat(),
                                 temps);
    attente.Finir();
  }
  if (!avis) return true;
  return editeur_.MessageBox(avis->texte,
                             avis->question ? screen::Boutons::OuiNon : screen::Boutons::Ok,
                             screen::Icone::Exclamation) == screen::Reponse::Oui;
}

bool OngletCaracteristiques::Verif_NbHeures() {
  auto temps = tempsQuittes_;
  const bool changees = Creation()
                            ? !Txt_DureeWContrat.Text().empty() && !Cbo_FreqWContrat.Text().empty()
                            : Charge() && DureeFreq() != DureeFreqInitiale_;
  if (changees) temps[avenants_.Rang()] = Temps();
  return std::all_of(temps.begin(), temps.end(),
                     [this](const auto& etat) { return HeuresPermises(etat.second); });
}

// The contract in hand answers for a box that shows nothing.
std::optional<long> OngletCaracteristiques::DepartAnciennete() const {
  const auto& lib = Session().Lib;
  auto depart = lib.LireDate(Txt_DateAnciennete.Text());
  if (!depart) depart = lib.LireDate(lib.DateFromInternal(Contrat().Vue(C::DateAnciennete)));
  if (!depart) depart = editeur_.origine.Debut();
  if (!depart) return std::nullopt;
  const auto saisis = data::enUnites(Txt_JourSuspAnc.Text(), 2);
  const long long centiemes =
      saisis.value_or(data::entier(Contrat().Vue(C::JoursSuspensionAnciennete)));
  return *depart + static_cast<long>(centiemes / 100);
}

}  // namespace editor
