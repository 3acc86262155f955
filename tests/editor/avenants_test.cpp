// Amendments on the second tab: walking through them, entering one, the legal hours on every way
// out, and the indexes.

#include "editeur_essai.h"

namespace {

using essai::jour, essai::valeurs;
namespace C = essai::C;
using screen::Reponse, screen::User;

constexpr const char* Depassement =
    "Le nombre d'heures cumulées tous contrats confondus est supérieur au nombre d'heures légal "
    "autorisé, voulez-vous continuer ?";

class Avenant : public essai::Editeur {
 protected:
  // A contract from 01/03/2026 with one amendment on 01/06/2026, of 35 then 20 hours a week.
  static Attributs deuxEtats(Attributs autres = {}) {
    autres.merge(Attributs{{C::Avenant, valeurs("0|01")},
                           {C::DateEffet, valeurs(jour("01/03/2026") + "|" + jour("01/06/2026"))},
                           {C::Qualification, valeurs("Agent|Cadre")},
                           {C::CodePCS, valeurs("563b|563b")},
                           {C::CategoriePCS, valeurs("Services|Services")},
                           {C::FonctionPCS, valeurs("Aide à domicile|Aide à domicile")},
                           {C::TauxHoraire, valeurs("12000|13000")},
                           {C::DureeTravail, valeurs("3500|2000")},
                           {C::Frequence, valeurs("1|1")}});
    return autres;
  }
  static Attributs unEtat(Attributs autres = {}) {
    autres.merge(Attributs{{C::TauxHoraire, "12000"}, {C::DureeTravail, "3500"}});
    return complet(std::move(autres));
  }
  void visiter(const Attributs& attributs) {
    ouvrirContrat(attributs);
    onglet(editor::Caracteristiques);
  }
  void aller(int avenant) { User(*editeur).Barre(champ<screen::UpDown>("Bdh_Avenant"), avenant); }
  std::string vu() {
    return txt("AvenantContrat").Text() + " " + txt("DatEffetContrat").Text() + " " +
           cbo("QualifContrat").Text() + " " + txt("DureeWContrat").Text();
  }
  // A new amendment from that day, of so many hours; not confirmed yet.
  void saisir(const char* effet, const char* duree) {
    cliquer(cmd("AjoutAvenant"));
    remplir(txt("DatEffetContrat"), effet);
    remplir(txt("DureeWContrat"), duree);
  }
};

// The copy that a leaving given up again has made of the moved start does not undo what is typed
// afterwards in the state that it moved.
TEST_F(Avenant, UnDebutDeplaceNEffacePasCeQuiEstSaisiEnsuite) {
  visiter(deuxEtats({{C::Grille, valeurs("01A|01A")},
                     {C::DepartGrille, valeurs(jour("01/03/2026") + "|" + jour("01/06/2026"))},
                     {C::PeriodeTraitee, "202602"}}));
  onglet(editor::Origine);
  remplir(txt("DatDebContrat"), "02/03/2026");
  quitter(Reponse::Annuler);
  messages();
  onglet(editor::Caracteristiques);
  aller(0);
  remplir(txt("DepartGrilContrat"), "10/03/2026");
  aller(1);
  enregistrer();
  EXPECT_EQ(stocke({C::DateEffet, C::DepartGrille}), jour("02/03/2026") + "|" + jour("01/06/2026") +
                                                         " " + jour("10/03/2026") + "|" +
                                                         jour("01/06/2026"));
}

// A tab that could not be read is not loaded: it is shown anew, and nothing of it is written. Once
// it stands, walking reads nothing.
TEST_F(Avenant, UneErreurDeLectureNeMontrePasUnMelange) {
  contrat("00001001", deuxEtats());
  ouvrir("00001001");
  int lectures = 0;
  for (bool lu = false; !lu;) {
    stockage->EchouerAppel(++lectures);
    try {
      onglet(editor::Caracteristiques);
      lu = true;
    } catch (const data::StoreError&) {
      EXPECT_FALSE(editeur->caracteristiques.Charge());
      onglet(editor::Origine);
    }
  }
  EXPECT_GT(lectures, 3);
  EXPECT_EQ(vu(), "01 01/06/2026 Cadre    20,00");
  stockage->EchouerAppel(1);
  aller(0);
  EXPECT_EQ(vu(), "0 01/03/2026 Agent    35,00");
  stockage->EchouerAppel(0);
}

// A state that came incomplete from the file and was not touched can be left.
TEST_F(Avenant, UnEtatIncompletSurFichierSeQuitte) {
  visiter(deuxEtats({{C::Qualification, valeurs("|Cadre")}}));
  aller(0);
  aller(1);
  EXPECT_EQ(messages() + cbo("QualifContrat").Text(), "Cadre");
}

TEST_F(Avenant, LePremierEstLe01EtSEnregistreEnQuittant) {
  for (const bool numero : {true, false}) {
    visiter(unEtat(
        {{C::Avenant, numero ? "0" : ""}, {C::DateEffet, numero ? jour("01/03/2026") : ""}}));
    // The day of the start is not too early.
    saisir("01/03/2026", "30");
    cliquer(cmd("OKAvenant"));
    quitter(Reponse::Oui);
    EXPECT_EQ(messages(), "Voulez-vous enregistrer les modifications apportées à cet article ?");
    EXPECT_EQ(stocke({C::Avenant, C::DateEffet, C::DureeTravail}),
              "0|01 " + jour("01/03/2026") + "|" + jour("01/03/2026") + " 3500|3000");
    EXPECT_TRUE(existe("AVENANT00101", "0000100101"));
    memoire.Erase("AVENANT00101", "0000100101");
  }
}

TEST_F(Avenant, UneDateDEffetRefuseeSeVide) {
  const char* const precedent =
      "La date d'effet doit être supérieure à la date d'effet de l'avenant précédent.";
  const struct {
    bool enSaisie;  // else the amendment shown is held against the one before it
    const char *date, *message;
  } cas[] = {{false, "28/02/2026", precedent},
             {false, "01/03/2026", ""},
             {true, "31/05/2026", precedent},
             {true, "01/06/2026", ""}};
  for (const auto& [enSaisie, date, message] : cas) {
    visiter(deuxEtats());
    if (enSaisie) cliquer(cmd("AjoutAvenant"));
    taper(txt("DatEffetContrat"), date);
    User(*editeur).Focus(txt("Commentaire"));
    EXPECT_EQ(messages(), message) << date;
    EXPECT_EQ(txt("DatEffetContrat").Text() + actif(),
              *message == '\0' ? date + std::string("Txt_Commentaire") : "Txt_DatEffetContrat");
  }
}

TEST_F(Avenant, UnContratSansDebutNAPasDAvenant) {
  contrat("00001001", unEtat());
  ouvrir("00001001");
  taper(txt("DatDebContrat"), "");
  onglet(editor::Caracteristiques);
  cliquer(cmd("AjoutAvenant"));
  EXPECT_EQ(messages(), "Vous devez renseigner la date de début du contrat.");
  EXPECT_EQ(actif(), "Txt_DatDebContrat");
  EXPECT_TRUE(editeur->Ong_Contrat.Enabled() && cmd("OK").Enabled());
}

// The time changed in a state that is no longer shown is weighed too, and an untouched one is not.
TEST_F(Avenant, SeuleUneDureeChangeeSePese) {
  article("CONSTANTESPAIE", "1", {{10, "100"}});
  visiter(deuxEtats());
  remplir(txt("Commentaire"), "a");
  remplir(txt("DureeWContrat"), "20");
  enregistrer();
  visiter(deuxEtats());
  remplir(txt("DureeWContrat"), "21");
  aller(0);
  hote.messages.Repondre(Reponse::Non);
  cliquer(cmd("OK"));
  EXPECT_EQ(messages(), Depassement);
  EXPECT_EQ(stocke({C::DureeTravail}), "3500|2000");
}

TEST_F(Avenant, SansConstantesUneCreationEstAbandonnee) {
  db.OpenFile("CONSTANTESPAIE").DeleteItem("1");
  creerContrat("01/12/2026");
  cliquer(cmd("OK"));
  EXPECT_EQ(messages(),
            "La création d'un contrat de travail est impossible tant que les constantes de paie "
            "ne sont pas renseignées.");
  EXPECT_FALSE(editeur->Visible() || editeur->Cree() || existe("CONTRAT", "00001002"));
}

// A creation that a fault interrupted after its contract was stored is cancelled by the refusal.
TEST_F(Avenant, UnRefusAnnuleLeContratDejaStocke) {
  contrat("00001001", {{C::Association, "002"},
                       {C::Employeur, "002001"},
                       {C::DureeTravail, "3000"},
                       {C::Frequence, "1"}});
  creerContrat("01/12/2026", "01", "001", "18");
  // Contract and counter, then the mark of the follow-up.
  stockage->EchouerEcriture(3);
  EXPECT_THROW(cliquer(cmd("OK")), data::StoreError);
  stockage->EchouerEcriture(0);
  EXPECT_EQ(fiche("00001002")(C::Annule), "");
  onglet(editor::Caracteristiques);
  remplir(txt("DureeWContrat"), "18,01");
  hote.messages.Repondre(Reponse::Non);
  cliquer(cmd("OK"));
  EXPECT_EQ(messages(), Depassement);
  EXPECT_EQ(fiche("00001002")(C::Annule), "O");
  EXPECT_FALSE(editeur->Visible() || editeur->Cree());
}

// Contract, follow-up, mark of the index, and the two amendments, each failed in turn.
TEST_F(Avenant, LesIndexSEcriventEnEntierApresUnePanne) {
  constexpr int Ecritures = 5;
  for (int n = 1; n <= Ecritures + 1; ++n) {
    for (const char* fichier : {"LIENAVENANT", "AVENANT00101", "ACTUSUIVICONTRAT"}) {
      for (const char* cle : {"AVENANT00101", "0000100102", "0000100103", "00001"}) {
        memoire.Erase(fichier, cle);
      }
    }
    visiter(deuxEtats());
    for (const char* effet : {"01/09/2026", "01/10/2026"}) {
      saisir(effet, "20");
      cliquer(cmd("OKAvenant"));
    }
    const std::string avant = stocke({C::Avenant});
    stockage->EchouerEcriture(n);
    if (n <= Ecritures) {
      EXPECT_THROW(cliquer(cmd("OK")), data::StoreError) << n;
      EXPECT_EQ(stocke({C::Avenant}), n == 1 ? avant : "0|01|02|03") << n;
      EXPECT_TRUE(rendu()) << n;
      stockage->EchouerEcriture(0);
    }
    enregistrer(n);
    EXPECT_EQ(stocke({C::Avenant}), "0|01|02|03") << n;
    EXPECT_TRUE(existe("LIENAVENANT", "AVENANT00101") && existe("AVENANT00101", "0000100102") &&
                existe("AVENANT00101", "0000100103"))
        << n;
  }
}

// One set for each amendment: one that has none goes on from the one before.
TEST_F(Avenant, LeDroitPublicAUnJeuParAvenant) {
  visiter(deuxEtats({{C::Convention, "07"},
                     {C::PopulationEmploi, valeurs("40|43")},
                     {C::Echelon, valeurs("001|002")}}));
  const auto echelon = [&](const char* attendu, const char* saisi) {
    hote.modales.Prevoir([&, attendu, saisi](screen::Form& f) {
      auto& champ = dynamic_cast<screen::TextField&>(*f.Find("Txt_CodeEche"));
      EXPECT_EQ(champ.Text(), attendu);
      User(f).Taper(champ, saisi);
      User(f).Cliquer(*f.Find("Cmd_Ok"));
    });
    cliquer(cmd("ElemDrtPub"));
  };
  echelon("002", "012");
  aller(0);
  echelon("001", "011");
  saisir("01/09/2026", "30");
  echelon("012", "013");
  hote.messages.Repondre(Reponse::Oui);
  cliquer(cmd("AnnulerAvenant"));
  EXPECT_EQ(lisible(c(), {C::Echelon}), "011|012") << "given up with its amendment";
  saisir("01/09/2026", "30");
  cliquer(cmd("OKAvenant"));
  cliquer(cmd("OK"));
  EXPECT_EQ(stocke({C::PopulationEmploi, C::Echelon}), "40|43|43 011|012|012");
}

// Without full rights the amendments are looked at.
TEST_F(Avenant, LaConsultationParcourtSansAjouter) {
  droits = session::DroitsUniformes(1);
  visiter(deuxEtats());
  EXPECT_FALSE(cmd("AjoutAvenant").Visible() || cmd("OKAvenant").Visible());
  aller(0);
  EXPECT_EQ(vu().substr(0, 1), "0");
  sortir();
}

}  // namespace
