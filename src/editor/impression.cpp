#include "editor/impression.h"

#include "documents/dossier_declaration.h"
#include "editor/editeur.h"
#include "screen/attente.h"

namespace editor {

namespace {

namespace C = data::Contrat;

constexpr const char* ControleSignature = "Ctr_Signature";
constexpr const char* CheminSignature = "W_Chemin";

}  // namespace

void Impression::Declaration() {
  const session::Dossier& dossier = editeur_.Dossier();
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

std::optional<int> Impression::Demander() const {
  return 1;
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
  });
  for (data::CItem* const item : {&dossier.ItemContrat, &dossier.Initial}) {
    item->Set(C::DateDeclaration, jour);
  }
}

}  // namespace editor
