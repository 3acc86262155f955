#include "dialogs/frm_motif_cdd.h"

#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/texte.h"
#include "dialogs/frm_motifs_embauche.h"

namespace dialogs {

namespace {

namespace C = data::Contrat;

// The reasons for recourse, in row order.
struct MotifRecours {
  const char* code;
  const char* libelle;
};
constexpr MotifRecours MotifsRecours[] = {
    {"01", "01 - Accroissement temporaire d'activité"},
    {"02", "02 - CDD d'usage"},
    {"03", "03 - Autres motifs de recours (remplacement)"},
};
// A contract that names none, or another, is a replacement.
constexpr int RecoursParDefaut = 2;

// Most persons in free text that a contract holds.
constexpr int TextesLibres = 5;

int ligneDuRecours(std::string_view code) {
  for (int r = 0; r < RecoursParDefaut; ++r) {
    if (code == MotifsRecours[r].code) return r;
  }
  return RecoursParDefaut;
}

}  // namespace

Frm_MotifCDD::Frm_MotifCDD(screen::Platform& platform, session::Dossier& dossier,
                           const std::string& dateDebut, ContexteMotif contexte)
    : DialogueContrat(platform, dossier, "Frm_MotifCDD", "Motif C.D.D.", QuestionArticle),
      contexte_(std::move(contexte)),
      zones_({session::texte(Txt_MotifEmbContrat_0, C::MotifEmbaucheTexte, 1),
              session::texte(Txt_MotifEmbContrat_1, C::MotifEmbaucheTexte, 2),
              session::code(Cbo_MotifEmbauche, C::MotifEmbauche, motifs_)}) {
  if (const auto jour = session_.Lib.LireDate(dateDebut)) debut_ = std::to_string(*jour);
  Etq_CodeAidant.SetLibelle(session_.CodeAidant);
  Etq_NomPrenomAidant.SetLibelle(session_.NomPrenomAidant);
  Cmd_OK.SetVisible(session_.DroitComplet());
  screen::Montrer({&Txt_CodeAbs, &Txt_AidantRemplContrat}, false);
  for (const MotifRecours& motif : MotifsRecours) Cbo_MotifCDD.AddItem(motif.libelle);
  Cmd_MotifsEmbauche.Click = [this] { Cmd_MotifsEmbauche_Click(); };
  Cmd_OK.Click = [this] { Cmd_Ok_Click(); };
  Cmd_Retour.Click = [this] { Cmd_Retour_Click(); };
  LierAidant();
  Afficher_Donnees();
}

void Frm_MotifCDD::Afficher_Donnees() {
  Remplir_MotifEmbauche();
  zones_.Montrer(session_.Lib, dossier_.ItemContrat);
  Remplir_ListeAidant();
  Cbo_MotifCDD.SetListIndex(ligneDuRecours(dossier_.ItemContrat.Vue(C::MotifRecours)));
}

void Frm_MotifCDD::Remplir_MotifEmbauche() {
  data::CItem item;
  session_.F_TABLES.Lire(data::Tables::MotifEmbauche, item);
  motifs_ = data::ListeCodes::DeTable(item, data::Tables::MotifCodes, data::Tables::MotifLibelles);
  Cbo_MotifEmbauche.Clear();
  for (const auto& motif : motifs_.Lignes()) Cbo_MotifEmbauche.AddItem(motif.libelle);
}

void Frm_MotifCDD::Remplir_ListeAidant() {
  const data::CItem& contrat = dossier_.ItemContrat;
  Grise_Liste();
  Lst_AidantRemplace.Clear();
  data::CItem item;
  session_.F_TABLES.Lire(data::Tables::Absences, item);
  absences_ = data::ListeCodes::DeTable(item);
  const data::DbFile absencesAidant = session_.Db->OpenFile(data::fichier::ABSENCESAIDANT);
  for (int v = 1; v <= TextesLibres; ++v) {
    const std::string_view texte = contrat.Vue(C::PersonnesRemplacees, v);
    if (!texte.empty()) Lst_AidantRemplace.AddItem(FaireLigneLibre(texte));
  }
  for (int v = 1; v <= contrat.DCount(C::AidantsRemplaces); ++v) {
    LigneRemplace ligne;
    ligne.code = contrat(C::AidantsRemplaces, v);
    ligne.cleAbsence = contrat(C::AbsencesRemplacees, v);
    if (ligne.code.empty()) continue;
    if (session_.F_CIVILAIDANT.Lire(ligne.code, item)) ligne.nom = NomAidant(item);
    if (absencesAidant.Lire(ligne.cleAbsence, item)) {
      ligne.absence = LibelleAbsence(session_.Lib, absences_, ligne.cleAbsence,
                                     item.Vue(data::AbsencesAidant::DateFin));
    }
    Lst_AidantRemplace.AddItem(FaireLigne(ligne));
  }
}

// The user may have changed labels or codes: what the contract holds is shown again.
void Frm_MotifCDD::Cmd_MotifsEmbauche_Click() {
  if (!Frm_MotifsEmbauche(Services()).Ouvrir(*this)) return;
  Remplir_MotifEmbauche();
  Cbo_MotifEmbauche.SetText(motifs_.Libelle(dossier_.ItemContrat.Vue(C::MotifEmbauche)));
}

const rules::Verification<Frm_MotifCDD> Frm_MotifCDD::Verifications[1] = {
    {[](Frm_MotifCDD& f) {
       return data::sansBlancs(f.Txt_MotifEmbContrat_0.Text()).empty() &&
              f.motifs_.Code(f.Cbo_MotifEmbauche.Text()).empty();
     },
     "La saisie d'un motif d'embauche est obligatoire.", screen::Icone::Exclamation,
     "Txt_MotifEmbContrat(0)"},
};

void Frm_MotifCDD::Cmd_Ok_Click() {
  if (!Verifier<Frm_MotifCDD>(Verifications, *this)) return;
  MAJ_TabDyn();
  Sortir();
}

void Frm_MotifCDD::Copier_Champs(data::CItem& contrat) const {
  zones_.Ecrire(session_.Lib, contrat);
  for (const int a : {C::PersonnesRemplacees, C::AidantsRemplaces, C::AbsencesRemplacees}) {
    contrat.Set(a, "");
  }
  int libres = 0;
  int aidants = 0;
  for (const std::string& texte : Lst_AidantRemplace.Rows()) {
    const LigneRemplace ligne = LireLigne(texte);
    if (ligne.code.empty()) {
      const std::string libre = TexteLibre(texte);
      if (!libre.empty()) contrat.Set(C::PersonnesRemplacees, ++libres, libre);
      continue;
    }
    contrat.Set(C::AidantsRemplaces, ++aidants, ligne.code);
    contrat.Set(C::AbsencesRemplacees, aidants, ligne.cleAbsence);
  }
  const int recours = Cbo_MotifCDD.ListIndex();
  contrat.Set(C::MotifRecours, recours < 0 ? "" : MotifsRecours[recours].code);
}

}  // namespace dialogs
