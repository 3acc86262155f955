#pragma once
// Third tab, "Elements de paie": how the contract is paid. Its ceilings stand here; what else the
// tab holds has a file of its own each: profiles, payment, contributions, transport, activities,
// and the dialogs that it opens (paie_*.h).

#include "editor/onglet.h"
#include "editor/paie_activites.h"
#include "editor/paie_cotisations.h"
#include "editor/paie_dialogues.h"
#include "editor/paie_fermeture.h"
#include "editor/paie_paiement.h"
#include "editor/paie_profils.h"
#include "editor/paie_transport.h"

namespace editor {

class OngletPaie : public Onglet {
 public:
  explicit OngletPaie(Frm_ElementsContrat& editeur);

  void Afficher_Ong3();
  void Ecrire_Ong3();
  bool Verif_Ong3();
  void Entrer() override;
  void SelonConvention(const std::string& convention) override;
  void ProposerSelonConvention(const std::string& convention);
  // Administrative staff alone split their time over activities by share and period.
  void SelonStatut(bool administratif, bool particuliers) {
    activites_.SelonStatut(administratif, particuliers);
  }
  // The user has given the contract the other status.
  void ChangerStatut();
  void MontrerParts() { activites_.MontrerParts(); }
  // A new contract begins anew on every visit, by what the first tab says meanwhile.
  bool AReafficher() const override { return Onglet::AReafficher() || Creation(); }
  // Remote time-tracking is in use in the entity of the contract.
  void SelonTelegestion(bool utilisee) { dialogues_.SelonTelegestion(utilisee); }

  bool ChoisirEntite(const std::string& entite, bool particuliers) {
    return activites_.ChoisirEntite(entite, particuliers);
  }
  void ViderActivites() { activites_.Oublier(); }

  std::vector<std::string> ClesProfils() const { return profils_.Cles(); }
  const PaieActivites& Activites() const { return activites_; }
  PaiePaiement& Paiement() { return paiement_; }
  PaieCotisations& Cotisations() { return cotisations_; }

 private:
  // Ceilings, in euros a month.
  static constexpr session::FormeNombre Plafond{
      .avant = 5, .apres = 2, .affichage = session::FormeNombre::Milliers};

  static const rules::Verification<OngletPaie> Verifications[];

  void Afficher_Ong() override { Afficher_Ong3(); }
  bool Verif_Ong() override { return Verif_Ong3(); }
  bool VerifFerme() override { return profils_.Verif_Profil(); }
  bool Ecrivable_Ong() override;
  void Ecrire_Ong() override { Ecrire_Ong3(); }
  void Vider_Ong() override;
  void SelonDroits(bool complet) override { activites_.SelonDroits(complet); }

  void AfficherNouveau();
  void AfficherExistant();

  PaieProfils profils_{editeur_, Page, sourdine_};
  PaiePaiement paiement_{editeur_, Page, sourdine_};
  PaieCotisations cotisations_{editeur_, Page, sourdine_};
  screen::Label Etq_IdentCRCContrat{Page, "Etq_IdentCRCContrat", "Identification CRC"};
  screen::TextField Txt_IdentCRCContrat{Page, "Txt_IdentCRCContrat", LongueurTexte};
  PaieTransport transport_{editeur_, Page};
  screen::Label Etq_PlafSecu{Page, "Etq_PlafSecu", "Plaf. sécu. mensuel individualisé"};
  screen::TextField Txt_PlafSecu{Page, "Txt_PlafSecu", 10};
  screen::Label Etq_AssietteSecu{Page, "Etq_AssietteSecu", "Assiette sécurité sociale"};
  screen::TextField Txt_AssietteSecu{Page, "Txt_AssietteSecu", 10};
  PaieFermeture fermeture_{editeur_};
  PaieActivites activites_{editeur_, Page, sourdine_,
                           [this](bool actif) { fermeture_.GriserSaufActivite(actif); }};
  PaieDialogues dialogues_{editeur_, Page, activites_, cotisations_};

  session::Zones zones_;
};

}  // namespace editor
