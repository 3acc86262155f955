// What the editor prints, and what printing leaves in the contract.

#include <algorithm>

#include "editor/editeur_essai.h"

namespace {

using essai::Acte;
namespace C = data::Contrat;

class Declaration : public essai::Editeur {
 protected:
  std::string declaree(const std::string& cle = "00001001") {
    return fiche(cle)(C::DateDeclaration);
  }
  std::size_t imprimes() const { return hote.imprimante.Documents().size(); }
  // The pages of the last document and whether that text stands on one of them.
  std::size_t pages() const { return hote.imprimante.Documents().back().pages.size(); }
  bool porte(const std::string& texte) const {
    const auto lignes = hote.imprimante.Documents().back().Lignes();
    return std::any_of(lignes.begin(), lignes.end(),
                       [&](const std::string& ligne) { return ligne.ends_with(" : " + texte); });
  }
};

// An entity's declaration is declaration.scenario's.
TEST_F(Declaration, CelleDUnParticulierTientSurUnePageEtDateLeContrat) {
  ouvrirContrat({{C::Convention, "02"}, {C::Employeur, "00007"}});
  EXPECT_EQ(cmd("DPAE").Libelle(), "D.E.F.");
  EXPECT_EQ(cliquer(cmd("DPAE")), Acte::Fait);
  EXPECT_EQ(pages(), 1U);
  EXPECT_TRUE(porte("MARTIN") && porte("DURAND"));
  EXPECT_EQ(declaree(), "21511");
  // Nothing is left to be saved.
  sortir();
}

// What was given up, or did not come onto paper, is not declared; the next try is a document of its
// own.
TEST_F(Declaration, CeQuiNEstPasImprimeNEstPasDeclare) {
  ouvrirContrat();
  hote.modales.Prevoir(
      [](screen::Form& form) { screen::User(form).Cliquer(*form.Find("Cmd_Annuler")); });
  cliquer(cmd("DPAE"));
  EXPECT_EQ(imprimes(), 0U);
  EXPECT_EQ(declaree(), "");
  hote.imprimante.panne = "Le document ne peut pas être écrit : Impression.pdf.";
  cliquer(cmd("DPAE"));
  EXPECT_EQ(messages(), "Le document ne peut pas être écrit : Impression.pdf.");
  EXPECT_EQ(declaree(), "");
  EXPECT_TRUE(rendu());
  cliquer(cmd("DPAE"));
  EXPECT_EQ(pages(), 2U);
  EXPECT_EQ(declaree(), "21511");
}

// A new contract of a private employer declares itself; that its printing fails does not undo it.
TEST_F(Declaration, UnParticulierEmployeurDeclareALEnregistrement) {
  for (const char* const panne : {"", "Plus de papier."}) {
    creerContrat("01/12/2026", "02", *panne == '\0' ? "00007" : "00008", "5");
    EXPECT_FALSE(cmd("DPAE").Visible());
    hote.imprimante.panne = panne;
    cliquer(cmd("OK"));
    EXPECT_EQ(messages(), panne);
    EXPECT_TRUE(editeur->Cree());
    EXPECT_EQ(declaree(cle()), *panne == '\0' ? "21511" : "");
    EXPECT_EQ(imprimes(), 1U);
    EXPECT_TRUE(porte("MARTIN"));
  }
  creerContrat("01/12/2027", "01", "001", "5");
  enregistrer();
  EXPECT_EQ(imprimes(), 1U);
}

TEST_F(Declaration, LaSignatureVientDuControleDeLaSuite) {
  auto& controle = hote.controles.Ajouter("Ctr_Signature");
  controle.Regler("W_Chemin", "signatures/001.png");
  ouvrirContrat();
  cliquer(cmd("DPAE"));
  EXPECT_EQ(controle.Journal(), (std::vector<std::string>{"W_Chemin=signatures/001.png",
                                                          "TheDatabase=Db", "TheClient=LeClient"}));
  EXPECT_TRUE(porte("signatures/001.png"));
}

class Lettre : public essai::Editeur {
 protected:
  // The settings of a workstation with a word processor, and the suite's control.
  screen::headless::ControleEnregistre& equiper() {
    hote.reglages.Ecrire("Office", "Word/Chemin", "traitement");
    return hote.controles.Ajouter("Ctr_Edit");
  }
  static std::string journal(const screen::headless::ControleEnregistre& controle) {
    std::string texte;
    for (const auto& ligne : controle.Journal()) texte += (texte.empty() ? "" : " ") + ligne;
    return texte;
  }
};

TEST_F(Lettre, ElleDemandeUnTraitementDeTexte) {
  const struct {
    const char* chemin;
    const char* version;
    bool present;
  } cas[] = {{"Aucun", "Aucune", false},
             {"Aucun", "97", true},
             {"", "97", false},
             {"", "Aucune", false},
             {"soffice", "Aucune", true}};
  ouvrirContrat();
  for (const auto& c : cas) {
    hote.reglages.Ecrire("Office", "Word/Chemin", c.chemin);
    hote.reglages.Ecrire("Office", "Version", c.version);
    cliquer(editeur->Cmd_ImpContrat);
    EXPECT_EQ(messages().starts_with("La lettre ne peut pas être imprimée ici"), c.present)
        << c.chemin << " " << c.version;
  }
  hote.reglages.Ecrire("Office", "Word/Chemin", "Aucun");
  hote.reglages.Ecrire("Office", "Version", "Aucune");
  cliquer(editeur->Cmd_ImpContrat);
  EXPECT_EQ(messages(), "Pour pouvoir lancer l'impression des contrats, vous devez posséder Word.");
  editeur->Papiers().Avenant("01");
  EXPECT_EQ(messages(), "Pour pouvoir lancer l'impression des avenants, vous devez posséder Word.");
  EXPECT_TRUE(editeur->Visible());
}

// The new contract is saved, its letter printed, and the indexes left to the next save.
TEST_F(Lettre, UnNouveauContratEstEnregistrePuisImprime) {
  auto& controle = equiper();
  creer();
  cliquer(editeur->Cmd_ImpContrat);
  EXPECT_NE(messages(), "");
  EXPECT_EQ(journal(controle), "");
  taper(txt("ConvColContrat"), "01");
  taper(txt("AssocContrat"), "001");
  taper(txt("EmplEtabContrat"), "001");
  remplir(txt("DatDebContrat"), "01/12/2026");
  caracteriser();
  payer();
  cliquer(editeur->Cmd_ImpContrat);
  EXPECT_EQ(messages(), "");
  EXPECT_TRUE(editeur->Cree());
  EXPECT_EQ(journal(controle),
            "TheDatabase=Db TheClient=LeClient DroitsUtilisateur=W_Droits W_Document=01 "
            "W_Cle=0100001 W_Nature= W_DocVariable=1 W_CodeContrat=" +
                this->cle() + " Imprimer()");
  data::CItem lien;
  EXPECT_FALSE(db.OpenFile("LIENCONTRAT").Lire("CONTRAT00101", lien));
}

TEST_F(Lettre, UnAvenantDonneSonNumeroEtSonEntite) {
  auto& controle = equiper();
  ouvrirContrat();
  editeur->Papiers().Avenant("02");
  EXPECT_EQ(messages(), "");
  EXPECT_FALSE(editeur->Visible());
  EXPECT_TRUE(journal(controle).ends_with(
      "W_Document=02001 W_Cle=0100001 W_Nature=Normal W_DocVariable=1 W_CodeContrat=00001001 "
      "Imprimer()"))
      << journal(controle);
}

// What stands is the save; the letter can be asked for again.
TEST_F(Lettre, UneLettreManqueeEstDite) {
  equiper().SurAppel = [](const std::string&) {
    throw screen::ErreurImpression("Le modèle « cdi.odt » ne peut pas servir.");
  };
  ouvrirContrat();
  remplir(txt("PerEssaiContrat"), "30");
  cliquer(editeur->Cmd_ImpContrat);
  EXPECT_EQ(messages(), "Le modèle « cdi.odt » ne peut pas servir.");
  EXPECT_EQ(db.OpenFile("CONTRAT").Read("00001001")(C::PeriodeEssai), "30");
}

// Who may only read prints what is on file.
TEST_F(Lettre, UneConsultationNEnregistreRien) {
  auto& controle = equiper();
  droits = session::DroitsUniformes(1);
  ouvrirContrat();
  taper(txt("PerEssaiContrat"), "30");
  cliquer(editeur->Cmd_ImpContrat);
  EXPECT_TRUE(journal(controle).ends_with("Imprimer()"));
  EXPECT_EQ(fiche()(C::PeriodeEssai), "");
}

}  // namespace
