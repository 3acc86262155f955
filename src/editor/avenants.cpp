#include "editor/avenants.h"

#include "data/nombre.h"
#include "editor/editeur.h"
#include "session/saisie.h"

namespace editor {

namespace {

namespace C = data::Contrat;
using screen::Icone;

constexpr const char* NumeroInitial = "0";

// A button without a work of its own yet stays closed.
void ouvrir(screen::Button& bouton, bool ouvert) {
  bouton.SetEnabled(ouvert && bouton.Click);
}

}  // namespace

Avenants::Avenants(Frm_ElementsContrat& editeur, OngletCaracteristiques& onglet,
                   screen::Frame& page, session::Sourdine& sourdine)
    : editeur_(editeur), onglet_(onglet), page_(page), sourdine_(sourdine) {
  Txt_AvenantContrat.SetEnabled(false);
  screen::Activer({&Cmd_OKAvenant, &Cmd_AnnulerAvenant, &Cmd_ImpAvenant}, false);
  Cmd_AjoutAvenant.Click = [this] { Cmd_AjoutAvenant_Click(); };
  Cmd_OKAvenant.Click = [this] { Cmd_OKAvenant_Click(); };
  Cmd_AnnulerAvenant.Click = [this] { Cmd_AnnulerAvenant_Click(); };
  Cmd_ImpAvenant.Click = [this] { editeur_.Papiers().Avenant(Txt_AvenantContrat.Text()); };
  Bdh_Avenant.Change = sourdine_.SiAudible([this] { Bdh_Avenant_Change(); });
  Txt_DatEffetContrat.LostFocus = [this] { Txt_DatEffetContrat_LostFocus(); };
}

data::CItem& Avenants::Contrat() const {
  return editeur_.Dossier().ItemContrat;
}

// Display.

void Avenants::Montrer(bool dernier) {
  const data::CItem& contrat = Contrat();
  Bdh_Avenant.SetMax(rules::etatsContrat(contrat) - 1);
  if (dernier) Bdh_Avenant.SetValue(Bdh_Avenant.Max());
  Bdh_Avenant.SetEnabled(true);
  montre_ = Bdh_Avenant.Value();
  const std::string numero = contrat(C::Avenant, Rang());
  Txt_AvenantContrat.SetText(numero.empty() ? NumeroInitial : numero);
  const bool sansEffet = contrat.Vue(C::DateEffet).empty();
  Txt_DatEffetContrat.SetText(editeur_.Session().Lib.DateFromInternal(
      sansEffet ? contrat(C::DateDebut) : contrat(C::DateEffet, Rang())));
  Txt_DatEffetContrat.SetEnabled(Txt_AvenantContrat.Text() != NumeroInitial);
  effetMontre_ = Txt_DatEffetContrat.Text();
  effetSurFichier_ = contrat(C::DateEffet, Rang());
  AdapterBoutons();
  Situer();
}

void Avenants::MontrerNouveau() {
  Bdh_Avenant.SetMax(0);
  Bdh_Avenant.SetEnabled(false);
  montre_ = 0;
  effetMontre_.clear();
  DebuterLe("");
  AdapterBoutons();
  Etq_RangAvenant.SetLibelle("");
}

// A new contract has no amendments before it is stored.
void Avenants::AdapterBoutons() {
  const bool creation = editeur_.Dossier().ModeCreation;
  Cmd_AjoutAvenant.SetVisible(!creation && editeur_.Session().DroitComplet());
  ouvrir(Cmd_AjoutAvenant, !creation);
  ouvrir(Cmd_ImpAvenant, !creation && Txt_AvenantContrat.Text() != NumeroInitial);
}

void Avenants::Situer() {
  const int avenants = Bdh_Avenant.Max();
  const std::string total = std::to_string(avenants);
  Etq_RangAvenant.SetLibelle(
      avenants == 0  ? "Aucun avenant"
      : montre_ == 0 ? "Contrat d'origine, " + total + (avenants > 1 ? " avenants" : " avenant")
                     : "Avenant " + std::to_string(montre_) + " sur " + total);
}

void Avenants::DebuterLe(const std::string& date) {
  Txt_DatEffetContrat.SetText(date);
  Txt_DatEffetContrat.SetEnabled(false);
  Txt_AvenantContrat.SetText(NumeroInitial);
}

void Avenants::Vider() {
  if (avenantEnCreation_) EnSaisie(false);
  avantSaisie_ = data::CItem();
  Bdh_Avenant.SetValue(0);
}

void Avenants::SelonDroits(bool complet) {
  Cmd_OKAvenant.SetVisible(complet);
  if (!complet) Cmd_AjoutAvenant.SetVisible(false);
}

int Avenants::RangAvenant() const {
  if (Contrat().Vue(C::Avenant).empty() && !avenantEnCreation_) return 1;
  return static_cast<int>(data::entier(Txt_AvenantContrat.Text())) + 1;
}

// Number and effect date. On file they stay as they are while they are shown untouched, and a
// number never changes.
int Avenants::Ecrire(data::CItem& contrat, const rules::Debut& debut) const {
  const data::Lib& lib = editeur_.Session().Lib;
  const bool nouveau = editeur_.Dossier().ModeCreation;
  const int rang = avenantEnCreation_ ? rules::ouvrirAvenant(contrat) : Rang();
  if (nouveau || avenantEnCreation_) contrat.Set(C::Avenant, rang, Txt_AvenantContrat.Text());
  const auto jour = lib.LireDate(Txt_DatEffetContrat.Text());
  const std::string saisi = jour ? lib.DateToInternal(*jour) : "";
  const std::string suivi = debut.Suivre(saisi);
  const bool intact = !nouveau && !avenantEnCreation_ && Txt_DatEffetContrat.Text() == effetMontre_;
  contrat.Set(C::DateEffet, rang, suivi != saisi ? suivi : intact ? effetSurFichier_ : saisi);
  return rang;
}

// Walking.

void Avenants::AllerA(int rang) {
  {
    const session::Sourdine::Silence silence(sourdine_);
    Bdh_Avenant.SetValue(rang);
  }
  onglet_.Montrer_Etat(false);
}

void Avenants::Bdh_Avenant_Change() {
  const int choisi = Bdh_Avenant.Value();
  {
    const session::Sourdine::Silence silence(sourdine_);
    Bdh_Avenant.SetValue(montre_);
  }
  if (onglet_.QuitterEtat()) AllerA(choisi);
}

// Entry of a new one.

// It begins as a copy of the last one, which it follows, but for the date.
void Avenants::Cmd_AjoutAvenant_Click() {
  if (editeur_.origine.DateDebut().empty()) {
    editeur_.origine.DemanderDebut();
    return;
  }
  if (montre_ != Bdh_Avenant.Max()) {
    if (!onglet_.QuitterEtat()) return;
    AllerA(Bdh_Avenant.Max());
  }
  avantSaisie_ = Contrat();
  Txt_AvenantContrat.SetText(rules::numeroAvenant(Contrat()));
  Txt_DatEffetContrat.SetText("");
  EnSaisie(true);
  Etq_RangAvenant.SetLibelle("Nouvel avenant");
  Txt_DatEffetContrat.SetFocus();
}

void Avenants::EnSaisie(bool saisie) {
  avenantEnCreation_ = saisie;
  editeur_.ReserverSaisie(saisie);
  screen::Activer({&Cmd_OKAvenant, &Cmd_AnnulerAvenant}, saisie);
  Bdh_Avenant.SetEnabled(!saisie);
  if (!saisie) return;
  screen::Activer({&Cmd_AjoutAvenant, &Cmd_ImpAvenant}, false);
  Txt_DatEffetContrat.SetEnabled(true);
}

// Hours that are refused take the entry back at once.
void Avenants::Cmd_OKAvenant_Click() {
  if (Txt_DatEffetContrat.Text().empty()) {
    onglet_.ExigerDateEffet();
    return;
  }
  if (!onglet_.HeuresPermises()) {
    Reprendre();
    return;
  }
  if (!onglet_.Ecrire(true)) return;
  const session::Dossier& dossier = editeur_.Dossier();
  editeur_.Dossier().ClesAvenants.Append(dossier.CleContratCourant + Txt_AvenantContrat.Text());
  EnSaisie(false);
  onglet_.Montrer_Etat(true);
  Cmd_AjoutAvenant.SetFocus();
}

void Avenants::Cmd_AnnulerAvenant_Click() {
  if (!avenantEnCreation_) return;
  editeur_.Services().curseur.Bip();
  if (editeur_.Demander("Etes-vous sûr de vouloir quitter cette création ?",
                        screen::Boutons::OuiNon, Icone::Exclamation,
                        screen::Reponse::Non) != screen::Reponse::Oui) {
    return;
  }
  Reprendre();
}

// The contract is what it was before the entry.
void Avenants::Reprendre() {
  Contrat() = avantSaisie_;
  EnSaisie(false);
  onglet_.Montrer_Etat(false);
  Cmd_AjoutAvenant.SetFocus();
}

// The date is held against the amendment before: the one shown when another is entered.
void Avenants::Txt_DatEffetContrat_LostFocus() {
  if (!Txt_DatEffetContrat.Enabled()) return;
  const auto debut = editeur_.origine.Debut();
  if (!debut) {
    Txt_DatEffetContrat.SetText("");
    editeur_.origine.DemanderDebut();
    return;
  }
  if (Txt_DatEffetContrat.Text().empty()) return;
  if (!session::QuitterDate(editeur_.Session(), Txt_DatEffetContrat)) return;
  const int precedent = Bdh_Avenant.Value() + (avenantEnCreation_ ? 1 : 0);
  const std::string_view refus =
      rules::refusDateEffet(editeur_.Session().Lib.LireDate(Txt_DatEffetContrat.Text()).value_or(0),
                            Contrat().Vue(C::DateEffet, precedent), *debut);
  if (!refus.empty()) RefuserDateEffet(refus);
}

void Avenants::RefuserDateEffet(std::string_view texte) {
  editeur_.MessageBox(std::string(texte), screen::Boutons::Ok, Icone::Exclamation);
  Txt_DatEffetContrat.SetText("");
  Txt_DatEffetContrat.SetFocus();
}

}  // namespace editor
