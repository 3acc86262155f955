#include "dialogs/frm_motif_cdd.h"

#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/texte.h"
#include "dialogs/frm_motifs_embauche.h"

namespace dialogs {

namespace {

constexpr const char* QuestionSortie =
    "Voulez-vous enregistrer les modifications apportées à cet article ?";
constexpr const char* MotifObligatoire = "La saisie d'un motif d'embauche est obligatoire.";

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

Frm_MotifCDD::Frm_MotifCDD(screen::Platform& platform, session::Session& session)
    : DialogueContrat(platform, session, "Frm_MotifCDD", "Motif C.D.D.",
                      data::Contrat::GroupeMotifCDD, QuestionSortie) {
  Txt_CodeAbs.SetVisible(false);
  Txt_AidantRemplContrat.SetVisible(false);
  for (const MotifRecours& motif : MotifsRecours) Cbo_MotifCDD.AddItem(motif.libelle);
  Cmd_MotifsEmbauche.Click = [this] { Cmd_MotifsEmbauche_Click(); };
  Cmd_OK.Click = [this] { Cmd_Ok_Click(); };
  Cmd_Retour.Click = [this] { Cmd_Retour_Click(); };
  LierAidant();
  Afficher_Donnees();
}

void Frm_MotifCDD::init() {
  Cmd_OK.SetVisible(DroitComplet());
  ligneAidant_ = -1;
}

void Frm_MotifCDD::Afficher_Donnees() {
  const data::CItem& contrat = session_.ItemContrat;
  Txt_MotifEmbContrat_0.SetText(contrat.Vue(data::Contrat::MotifEmbaucheTexte, 1));
  Txt_MotifEmbContrat_1.SetText(contrat.Vue(data::Contrat::MotifEmbaucheTexte, 2));
  Remplir_MotifEmbauche();
  Remplir_ListeAidant();
  Cbo_MotifCDD.SetListIndex(ligneDuRecours(contrat.Vue(data::Contrat::MotifRecours)));
}

void Frm_MotifCDD::Remplir_MotifEmbauche() {
  using namespace data::Tables;
  motifs_.SetText("");
  session_.F_TABLES.Lire(data::Tables::MotifEmbauche, motifs_);
  const std::string_view code = session_.ItemContrat.Vue(data::Contrat::MotifEmbauche);
  int choisi = -1;
  Cbo_MotifEmbauche.Clear();
  for (int v = 1; v <= motifs_.DCount(MotifLibelles); ++v) {
    Cbo_MotifEmbauche.AddItem(motifs_.Vue(MotifLibelles, v));
    if (!code.empty() && choisi < 0 && motifs_.Vue(MotifCodes, v) == code) choisi = v - 1;
  }
  Cbo_MotifEmbauche.SetListIndex(choisi);
}

void Frm_MotifCDD::Remplir_ListeAidant() {
  using namespace data::Contrat;
  const data::CItem& contrat = session_.ItemContrat;
  Grise_Liste();
  Lst_AidantRemplace.Clear();
  session_.F_TABLES.Lire(data::Tables::Absences, absences_);
  const data::DbFile absencesAidant = session_.Db->OpenFile(data::fichier::ABSENCESAIDANT);
  for (int v = 1; v <= TextesLibres; ++v) {
    const std::string_view texte = contrat.Vue(PersonnesRemplacees, v);
    if (!texte.empty()) Lst_AidantRemplace.AddItem(FaireLigneLibre(texte));
  }
  for (int v = 1; v <= contrat.DCount(AidantsRemplaces); ++v) {
    LigneRemplace ligne;
    ligne.code = contrat(AidantsRemplaces, v);
    ligne.cleAbsence = contrat(AbsencesRemplacees, v);
    if (ligne.code.empty()) continue;
    data::CItem item;
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
  Frm_MotifsEmbauche table(Services(), session_);
  if (!table.Demarrer()) return;
  table.ShowModal();
  Remplir_MotifEmbauche();
}

void Frm_MotifCDD::Cmd_Ok_Click() {
  if (data::sansBlancs(Txt_MotifEmbContrat_0.Text()).empty() && CodeMotif().empty()) {
    MessageBox(MotifObligatoire, screen::Boutons::Ok, screen::Icone::Exclamation);
    Txt_MotifEmbContrat_0.SetFocus();
    return;
  }
  MAJ_TabDyn();
  Sortir();
}

void Frm_MotifCDD::Copier_Champs(data::CItem& item) const {
  using namespace data::Contrat;
  item.Set(MotifEmbaucheTexte, 1, Txt_MotifEmbContrat_0.Text());
  item.Set(MotifEmbaucheTexte, 2, Txt_MotifEmbContrat_1.Text());
  item.Set(data::Contrat::MotifEmbauche, CodeMotif());
  int libres = 0;
  int aidants = 0;
  for (const std::string& texte : Lst_AidantRemplace.Rows()) {
    const LigneRemplace ligne = LireLigne(texte);
    if (ligne.code.empty()) {
      const std::string libre = TexteLibre(texte);
      if (!libre.empty()) item.Set(PersonnesRemplacees, ++libres, libre);
      continue;
    }
    item.Set(AidantsRemplaces, ++aidants, ligne.code);
    item.Set(AbsencesRemplacees, aidants, ligne.cleAbsence);
  }
  const int recours = Cbo_MotifCDD.ListIndex();
  if (recours >= 0) item.Set(data::Contrat::MotifRecours, MotifsRecours[recours].code);
}

std::string Frm_MotifCDD::CodeMotif() const {
  using namespace data::Tables;
  if (Cbo_MotifEmbauche.Text().empty()) return {};
  if (Cbo_MotifEmbauche.ListIndex() >= 0) {
    return motifs_(MotifCodes, Cbo_MotifEmbauche.ListIndex() + 1);
  }
  for (int v = 1; v <= motifs_.DCount(MotifLibelles); ++v) {
    if (motifs_.Vue(MotifLibelles, v) == Cbo_MotifEmbauche.Text()) return motifs_(MotifCodes, v);
  }
  return {};
}

std::string Frm_MotifCDD::DebutInterne() const {
  const auto jour = session_.Lib.LireDate(DateDebut);
  return jour ? std::to_string(*jour) : std::string();
}

}  // namespace dialogs
