#pragma once
// Second tab, "Caractéristiques": what an amendment can change. Qualification, P.C.S., grid,
// working time, modulation; and seniority; each in a file of its own (caracteristiques_*.h). It
// shows one state of the contract at a time, the one of Bdh_Avenant; a state that was changed goes
// into the contract in hand when another one is shown.

#include <string>

#include "editor/avenants.h"
#include "editor/caracteristiques_anciennete.h"
#include "editor/caracteristiques_duree.h"
#include "editor/caracteristiques_grille.h"
#include "editor/caracteristiques_modulation.h"
#include "editor/caracteristiques_pcs.h"
#include "editor/caracteristiques_qualif.h"
#include "editor/onglet.h"

namespace editor {

class OngletCaracteristiques : public Onglet {
 public:
  explicit OngletCaracteristiques(Frm_ElementsContrat& editeur);

  void Afficher_Ong2();
  void Ecrire_Ong2();
  bool Verif_Ong2();
  void Entrer() override;
  void SelonConvention(const std::string& convention) override;
  // What an agreement just chosen proposes: the profession of home help, and its grids.
  void ProposerSelonConvention(const std::string& convention);
  // Hours that are paid as they are worked are not evened out, nor are those of administrative
  // staff.
  void SelonSalaire(bool mensuel, bool production);
  // A new contract starts on that displayed day: so does its first state.
  void DebuterLe(const std::string& date) { avenants_.DebuterLe(date); }
  bool GrilleChoisie() const { return grille_.Choisie(); }
  // What a notice looks at: the day from which seniority counts, its whole days of suspension
  // added; nothing when none is given.
  std::optional<long> DepartAnciennete() const { return anciennete_.Depart(); }
  Modulation& AccordModulation() { return modulation_; }
  std::vector<std::string> ClesPCS() const { return pcs_.Cles(); }
  // The legal hours, wherever the working time was changed: false when the user, asked, refuses
  // them, or when they cannot be weighed; and the same for the state on the screen.
  bool Verif_NbHeures() { return duree_.Verif_NbHeures(); }
  bool HeuresPermises() { return duree_.HeuresPermises(); }

  // For the amendments: shows the state of the bar, or the last one; takes the one on the screen
  // into the contract in hand, false when it is not fit to be left; asks for an effect date.
  void Montrer_Etat(bool dernier);
  bool QuitterEtat();
  void ExigerDateEffet();

 private:
  static const rules::Verification<OngletCaracteristiques> Verifications[];

  void Afficher_Ong() override { Afficher_Ong2(); }
  bool Verif_Ong() override { return Verif_Ong2(); }
  void Ecrire_Ong() override { Ecrire_Ong2(); }
  void Vider_Ong() override;
  void SelonDroits(bool complet) override { avenants_.SelonDroits(complet); }

  void AfficherNouveau();
  void Ecrire_Etat(data::CItem& contrat, const rules::Debut& debut) const;
  rules::Debut DebutContrat() const;

  Avenants avenants_{editeur_, *this, Page, sourdine_};
  Qualification qualification_{editeur_, Page, sourdine_};
  NomenclaturePCS pcs_{Session(), Page, sourdine_};

  DureeTravail duree_{editeur_, avenants_, Page};
  Modulation modulation_{editeur_, Page, sourdine_};
  GrilleCarriere grille_{editeur_, Page, sourdine_};
  Anciennete anciennete_{editeur_, Page};

  // Comments and declarations.
  screen::Label Etq_Commentaire{Page, "Etq_Commentaire", "Commentaires"};
  screen::TextField Txt_Commentaire{Page, "Txt_Commentaire", 0};
  screen::TextField Txt_Commentaire2{Page, "Txt_Commentaire2", 0};
  screen::Label Etq_NormCrc{Page, "Etq_NormCrc", "Numéro de rattachement retraite DADS-U"};
  screen::TextField Txt_NormCrc{Page, "Txt_NormCrc", 0};
  screen::CheckBox Cac_ChgtSitAdm{Page, "Cac_ChgtSitAdm", "Changement de situation administrative"};
  screen::Label Etq_CodePop{Page, "Etq_CodePop", "Code population rattachement prévoyance"};
  screen::TextField Txt_CodePop{Page, "Txt_CodePop", 0};
  screen::Button Cmd_ElemDrtPub{Page, "Cmd_ElemDrtPub", "Eléments droit public"};

  session::Zones zones_;
};

}  // namespace editor
