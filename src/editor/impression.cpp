#include "editor/impression.h"

#include <utility>

#include "dialogs/frm_impression_a4.h"
#include "documents/dossier_declaration.h"
#include "editor/annonces.h"
#include "editor/editeur.h"
#include "screen/attente.h"

namespace editor {

namespace {

namespace C = data::Contrat;

constexpr const char* ControleSignature = "Ctr_Signature";
constexpr const char* CheminSignature = "W_Chemin";

constexpr const char* ControleLettres = "Ctr_Edit";
constexpr const char* SansControleLettres =
    "La lettre ne peut pas être imprimée ici : l'éditeur de documents n'est pas installé sur ce "
    "poste. Imprimez-la depuis un poste qui en dispose.";
// Letters have named fields that the control fills.
constexpr const char* DocumentVariable = "1";

// The word processor of the workstation, as its settings store knows it.
bool traitementDeTexte(const screen::Reglages& reglages) {
  const std::string chemin = reglages.Lire("Office", "Word/Chemin", "Aucun");
  const std::string version = reglages.Lire("Office", "Version", "Aucune");
  return (chemin != "Aucun" || version == "97") && !chemin.empty();
}

}  // namespace

struct Impression::Lettre {
  const char* sansTraitement;
  // An amendment's number; a contract has none.
  std::string avenant;
};

void Impression::Declaration() {
  const session::Dossier& dossier = editeur_.Dossier();
  data::Route route(dossier.Session.Db->Stockage());
  AnnoncerDeclaration(dossier, route);
  documents::DossierDeclaration declaration = documents::lireDossierDeclaration(
      dossier.Session, dossier.CleContratCourant, dossier.ItemContrat);
  declaration.dossierImages = editeur_.Services().aide.Dossier();
  declaration.signature = Signature();
  const auto copies = Demander();
  if (!copies) return;

  std::string panne;
  {
    screen::Attente attente(editeur_);
    try {
      const bool particuliers = editeur_.origine.Particuliers();
      documents::imprimer(documents::pagesDeclaration(declaration, particuliers),
                          editeur_.Services().imprimante, *copies);
      NoterDeclaration();
    } catch (const screen::ErreurImpression& erreur) {
      panne = erreur.what();
    }
    attente.Finir();
  }
  if (!panne.empty()) {
    editeur_.MessageBox(panne, screen::Boutons::Ok, screen::Icone::Exclamation);
  }
}

void Impression::Contrat() {
  Imprimer({"Pour pouvoir lancer l'impression des contrats, vous devez posséder Word.", ""});
}

void Impression::Avenant(const std::string& numero) {
  Imprimer({"Pour pouvoir lancer l'impression des avenants, vous devez posséder Word.", numero});
}

void Impression::Imprimer(const Lettre& lettre) {
  using screen::Boutons, screen::Icone;
  if (!traitementDeTexte(editeur_.Services().reglages)) {
    editeur_.MessageBox(lettre.sansTraitement, Boutons::Ok, Icone::Information);
    return;
  }
  screen::ControleHeberge* const edition = editeur_.Services().controles.Trouver(ControleLettres);
  if (edition == nullptr) {
    editeur_.MessageBox(SansControleLettres, Boutons::Ok, Icone::Exclamation);
    return;
  }
  // The save clears the screen.
  const session::Session& session = editeur_.Session();
  const std::string cle = editeur_.origine.Convention() + session.CodeAidant;
  const std::string nature = editeur_.origine.Nature();
  if (session.DroitComplet() && !editeur_.Confirmer(lettre.avenant.empty())) return;

  const data::CItem& contrat = editeur_.Dossier().ItemContrat;
  const std::pair<const char*, std::string> contexte[] = {
      {"TheDatabase", "Db"},
      {"TheClient", "LeClient"},
      {"DroitsUtilisateur", "W_Droits"},
      {"W_Document",
       lettre.avenant.empty() ? contrat(C::Convention) : lettre.avenant + contrat(C::Association)},
      {"W_Cle", cle},
      {"W_Nature", nature},
      {"W_DocVariable", DocumentVariable},
      // Agreement and carer alone do not tell one contract from another.
      {"W_CodeContrat", editeur_.Dossier().CleContratCourant}};
  for (const auto& [propriete, valeur] : contexte) edition->Regler(propriete, valeur);
  try {
    edition->Appeler("Imprimer");
  } catch (const screen::ErreurImpression& erreur) {
    editeur_.MessageBox(erreur.what(), Boutons::Ok, Icone::Exclamation);
  }
}

// The copies, on the printer that was chosen.
std::optional<int> Impression::Demander() const {
  dialogs::Frm_ImpressionA4 demande(editeur_.Services());
  demande.ShowModal();
  if (demande.ImpressionAnnulee) return std::nullopt;
  return demande.NbCopies;
}

std::string Impression::Signature() const {
  screen::ControleHeberge* const controle =
      editeur_.Services().controles.Trouver(ControleSignature);
  if (controle == nullptr) return "";
  controle->Regler("TheDatabase", "Db");
  controle->Regler("TheClient", "LeClient");
  return controle->Lire(CheminSignature);
}

// On the record as it is on file: what is being changed on the screen is not saved by a printing.
void Impression::NoterDeclaration() const {
  session::Dossier& dossier = editeur_.Dossier();
  const std::string jour = dossier.Session.Lib.DateToInternal(dossier.Session.Poste.Aujourdhui());
  dossier.Session.Db->Stockage().EnUnBloc([&] {
    data::CItem contrat;
    if (!dossier.Session.F_CONTRAT.Lire(dossier.CleContratCourant, contrat)) return;
    contrat.Set(C::DateDeclaration, jour);
    contrat.DBWriteU();
    data::Route route(dossier.Session.Db->Stockage());
    AnnoncerSuite(dossier, dossier.CleContratCourant, route);
  });
  for (data::CItem* const item : {&dossier.ItemContrat, &dossier.Initial, &dossier.SurFichier}) {
    item->Set(C::DateDeclaration, jour);
  }
}

}  // namespace editor
