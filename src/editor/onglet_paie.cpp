#include "editor/onglet_paie.h"

#include "data/layouts/voisins.h"
#include "editor/editeur.h"

namespace editor {

namespace C = data::Contrat;

OngletPaie::OngletPaie(Frm_ElementsContrat& editeur)
    : Onglet(editeur, ElementsPaie, "Cdr_Ong3"),
      zones_(session::reunir({profils_.Zones(),
                              paiement_.Zones(),
                              cotisations_.Zones(),
                              transport_.Zones(),
                              {session::texte(Txt_IdentCRCContrat, C::IdentificationCRC),
                               session::nombre(Txt_PlafSecu, C::PlafondSecu, Plafond, 2),
                               session::nombre(Txt_AssietteSecu, C::AssietteSecu, Plafond, 2)}})) {
  zones_.Lier(Session());
}

// Display.

void OngletPaie::Afficher_Ong3() {
  if (!Charge()) transport_.Preparer();
  Creation() ? AfficherNouveau() : AfficherExistant();
}

void OngletPaie::AfficherNouveau() {
  const auto& origine = editeur_.origine;
  if (!Charge()) {
    cotisations_.OublierPrevoyance();
    paiement_.Oublier();
    zones_.Oublier();
  }
  if (origine.Particuliers()) profils_.Proposer(origine.Employeur());
  paiement_.ProposerMode();
  activites_.AfficherNouveau();
}

void OngletPaie::AfficherExistant() {
  zones_.Montrer(Session().Lib, Contrat());
  profils_.Afficher();
  cotisations_.Afficher();
  activites_.Afficher();
  paiement_.MontrerProvision();
  zones_.Retenir(Contrat());
}

void OngletPaie::Entrer() {
  profils_.ProfilContrat();
  activites_.Activer();
}

void OngletPaie::Vider_Ong() {
  activites_.Oublier();
  cotisations_.Vider();
}

void OngletPaie::SelonConvention(const std::string& convention) {
  const bool particuliers = convention == data::ConventionParticuliers;
  cotisations_.SelonConvention(particuliers);
  paiement_.SelonConvention(particuliers);
}

void OngletPaie::ProposerSelonConvention(const std::string& convention) {
  const session::Sourdine::Silence silence(sourdine_);
  if (Creation()) paiement_.ProposerSelonConvention(convention);
  profils_.ChangerConvention();
  if (convention != data::ConventionParticuliers) cotisations_.Proposer(convention);
}

// A contract on file that has the other status is shown anew, as a contract of that status.
void OngletPaie::ChangerStatut() {
  const std::string statut = editeur_.origine.Genre().Administratif() ? "A" : "P";
  if (!Creation() && Charge() && Contrat().Vue(C::Statut) != statut) {
    profils_.ProfilContrat();
    Afficher();
  } else {
    activites_.ChangerStatut();
  }
}

// Writing.

void OngletPaie::Ecrire_Ong3() {
  const session::Sourdine::Silence silence(sourdine_);
  cotisations_.CompleterParts();
  data::CItem& contrat = Contrat();
  zones_.Ecrire(Session().Lib, contrat);
  if (editeur_.origine.Particuliers()) {
    contrat.Set(C::ContratPrevoyance, cotisations_.ContratPrevoyance());
  } else {
    contrat.Set(C::PaiementParEntite, "1");
  }
  contrat.Set(C::ConstanteB, "B");
  activites_.Ecrire(contrat);
}

}  // namespace editor
