#include "dialogs/frm_comment_bull.h"

#include <algorithm>

#include "data/jour.h"
#include "data/layouts/contrat.h"
#include "data/layouts/voisins.h"
#include "data/texte.h"

namespace dialogs {

namespace {

namespace C = data::Contrat;
using screen::Icone;

constexpr const char* Incomplet = "La période ainsi que le libellé sont obligatoires.";

// What is no month is shown as it is, so that a wrong record is seen.
std::string libelle(const std::string& periode) {
  const std::string mois = data::majuscules(data::moisAnnee(periode));
  return mois.empty() ? periode : mois;
}

}  // namespace

Frm_CommentBull::Frm_CommentBull(screen::Platform& platform, session::Dossier& dossier)
    : DialogueLignes(platform, dossier, "Frm_CommentBull", "Commentaires sur bulletins") {
  screen::Montrer({&Cmd_Ajouter, &Cmd_OK, &Cmd_Supprimer}, session_.DroitComplet());
  colonnes_.SurDoubleClic = [this](int ligne) { Descendre(ligne); };
  Cmd_Ajouter.Click = [this] { Cmd_Ajouter_Click(); };
  Cmd_Supprimer.Click = [this] { Cmd_Supprimer_Click(); };
  Cmd_OK.Click = [this] { Cmd_Ok_Click(); };
  Cmd_Annuler.Click = [this] { Cmd_Annuler_Click(); };
  Cmd_Sortir.Click = [this] { Cmd_Retour_Click(); };
  Remplir_Donnees();
  Remplir_Periode();
  Finir();
}

void Frm_CommentBull::Remplir_Donnees() {
  const data::CItem& contrat = dossier_.ItemContrat;
  for (int v = 1; v <= contrat.DCount(C::CommentairePeriode); ++v) {
    Inserer({contrat(C::CommentairePeriode, v), contrat(C::CommentaireTexte, v)});
  }
}

void Frm_CommentBull::Remplir_Periode() {
  data::CItem periodes;
  session_.F_PERIODESPAIE.Lire(data::PeriodesPaie::Cle, periodes);
  for (const int a : {data::PeriodesPaie::Courante, data::PeriodesPaie::Seconde}) {
    if (periodes.Vue(a).empty()) continue;
    ouvertes_.push_back(periodes(a));
    Cbo_Periode.AddItem(libelle(ouvertes_.back()));
  }
}

void Frm_CommentBull::Inserer(const Commentaire& commentaire) {
  const auto place = std::find_if(lignes_.begin(), lignes_.end(), [&](const Commentaire& autre) {
    return autre.periode > commentaire.periode;
  });
  colonnes_.Inserer(static_cast<int>(place - lignes_.begin()),
                    {libelle(commentaire.periode), commentaire.texte});
  lignes_.insert(place, commentaire);
}

void Frm_CommentBull::Retirer(int ligne) {
  lignes_.erase(lignes_.begin() + ligne);
  colonnes_.Retirer(ligne);
}

// Entry.

void Frm_CommentBull::Griser(bool saisie) {
  colonnes_.Activer(!saisie);
  screen::Activer({&Cmd_Ajouter, &Cmd_Sortir}, !saisie);
  Cbo_Periode.SetEnabled(enCreation_);
  Txt_Libelle.SetEnabled(saisie);
  Cmd_Supprimer.SetEnabled(saisie && !enCreation_);
}

void Frm_CommentBull::Liberer() {
  Cbo_Periode.SetListIndex(-1);
  Cbo_Periode.SetText("");
  Txt_Libelle.SetText("");
  Griser(false);
}

void Frm_CommentBull::Cmd_Ajouter_Click() {
  enCreation_ = true;
  Griser(true);
  Cbo_Periode.SetFocus();
}

// Only the text of a comment can change.
void Frm_CommentBull::Descendre(int ligne) {
  ligne_ = ligne;
  Cbo_Periode.SetText(Lst_Periode.List(ligne));
  Txt_Libelle.SetText(Lst_Libelle.List(ligne));
  Griser(true);
  Txt_Libelle.SetFocus();
}

// The month of the comment in hand.
const std::string& Frm_CommentBull::Periode() const {
  return enCreation_ ? ouvertes_[static_cast<std::size_t>(Cbo_Periode.ListIndex())]
                     : lignes_[static_cast<std::size_t>(ligne_)].periode;
}

const rules::Verification<Frm_CommentBull> Frm_CommentBull::Verifications[3] = {
    {[](Frm_CommentBull& f) { return f.Cbo_Periode.Text().empty(); }, Incomplet, Icone::Exclamation,
     "Cbo_Periode"},
    {[](Frm_CommentBull& f) { return data::sansBlancs(f.Txt_Libelle.Text()).empty(); }, Incomplet,
     Icone::Exclamation, "Txt_Libelle"},
    {[](Frm_CommentBull& f) {
       return f.enCreation_ &&
              std::any_of(f.lignes_.begin(), f.lignes_.end(),
                          [&](const Commentaire& c) { return c.periode == f.Periode(); });
     },
     "La période sélectionnée est déjà renseignée.", Icone::Exclamation, "Cbo_Periode"},
};

bool Frm_CommentBull::Ranger() {
  if (!Verifier<Frm_CommentBull>(Verifications, *this)) return false;
  const std::string periode = Periode();
  if (!enCreation_) Retirer(ligne_);
  Inserer({periode, Txt_Libelle.Text()});
  return true;
}

void Frm_CommentBull::Cmd_Supprimer_Click() {
  if (SuppressionConfirmee()) Retirer(ligne_);
  Finir();
}

void Frm_CommentBull::Copier_Champs(data::CItem& contrat) const {
  for (const int a : C::GroupeCommentaires) contrat.Set(a, "");
  for (std::size_t i = 0; i < lignes_.size(); ++i) {
    const int v = static_cast<int>(i) + 1;
    contrat.Set(C::CommentairePeriode, v, lignes_[i].periode);
    contrat.Set(C::CommentaireTexte, v, lignes_[i].texte);
  }
}

}  // namespace dialogs
