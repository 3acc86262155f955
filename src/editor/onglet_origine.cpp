// The first tab as a whole: showing and writing it, and what its parts lead to elsewhere.

#include "editor/onglet_origine.h"

#include "data/cles.h"
#include "data/texte.h"
#include "dialogs/frm_motif_cdd.h"
#include "editor/editeur.h"

namespace editor {

namespace {

namespace C = data::Contrat;

constexpr const char* Contreparties[] = {"Amplitude journée limitée à 11 heures",
                                         "2 jours de repos", "Paiement des inter-vacations"};
// The agreement that gives something in return for an interrupted day.
constexpr std::string_view ConventionContrepartie = "01";

}  // namespace

OngletOrigine::OngletOrigine(Frm_ElementsContrat& editeur)
    : Onglet(editeur, Origine, "Cdr_Ong1"),
      zones_(session::reunir({genre_.Zones(),
                              duree_.Zones(),
                              nature_.Zones(),
                              emploiAide_.Zones(),
                              {session::ligne(Cbo_Contrepartie, C::ContrepartieInterruption)}})) {
  Txt_NumContrat.SetEnabled(false);
  for (const char* contrepartie : Contreparties) Cbo_Contrepartie.AddItem(contrepartie);
  nature_.Vider();
  zones_.Lier(Session());
  genre_.SurType = [this] { SelonType(); };
  duree_.Lier();
  Cmd_MotifCDD.Click = [this] { Cmd_MotifCDD_Click(); };
}

// Display.

void OngletOrigine::Afficher_Ong1() {
  duree_.Preparer();
  nature_.Preparer();
  if (Creation()) {
    zones_.Oublier();
    Txt_NumContrat.SetText("");
    codes_.AfficherNouveau();
    editeur_.AnnoncerConvention();
  } else {
    Txt_NumContrat.SetText(data::milieu(Contrat()(0), data::LongueurCodeAidant + 1));
    codes_.AfficherExistant();
    zones_.Montrer(Session().Lib, Contrat());
  }
  duree_.Ouvrir();
  genre_.Annoncer();
  nature_.MontrerStage();
  emploiAide_.Adapter();
  if (!Creation()) zones_.Retenir(Contrat());
}

void OngletOrigine::Vider_Ong() {
  genre_.Vider();
  nature_.Vider();
}

void OngletOrigine::SelonConvention(const std::string& convention) {
  codes_.SelonConvention();
  const bool contrepartie = convention == ConventionContrepartie;
  screen::Montrer({&Etq_Contrepartie, &Cbo_Contrepartie}, contrepartie);
  if (!contrepartie) Cbo_Contrepartie.SetListIndex(-1);
  genre_.AnnoncerStatut();
}

void OngletOrigine::SelonType() {
  duree_.SelonType(genre_.Determine());
  editeur_.fin.SelonType(genre_.Determine());
}

void OngletOrigine::DemanderDebut() {
  Refuser({"Vous devez renseigner la date de début du contrat.", screen::Icone::Exclamation,
           "Txt_DatDebContrat"});
}

void OngletOrigine::Cmd_MotifCDD_Click() {
  dialogs::Frm_MotifCDD(editeur_.Services(), Dossier(), DateDebut(),
                        {Convention(), Entite(), Employeur()})
      .ShowModal();
}

// Writing.

void OngletOrigine::Ecrire_Ong1() {
  if (Creation()) codes_.Ecrire(Contrat());
  zones_.Ecrire(Session().Lib, Contrat());
  duree_.Ecrire(Contrat(), genre_.Determine());
  nature_.EcrireStage();
}

}  // namespace editor
