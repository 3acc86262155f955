// The activities of a contract: what is offered, what is split, what is stored.

#include "editor/paie_essai.h"

namespace {

using screen::Reponse;
namespace C = data::Contrat;

class Activites : public essai::Paie {
 protected:
  // The contract, split in November 2026 and before in July, on file.
  const Attributs Reparti{{C::Statut, "A"},
                          {C::Profil, "P01"},
                          {C::ModePaiement, "2"},
                          {C::PaiementParEntite, "1"},
                          {C::ConstanteB, "B"},
                          {C::ContratPrevoyance, "10"},
                          {C::Activites, multiple("001BUR|001DOM")},
                          {C::PartsActivites, multiple("7500|2500")},
                          {C::PeriodeEffet, "202611"},
                          {C::PeriodesEffetAnterieures, "202607"},
                          {C::ActivitesAnterieures, "001GAR"},
                          {C::PartsAnterieures, "10000"}};
  static constexpr const char* SurFichier = "001BUR|001DOM 7500|2500 202611 202607 001GAR 10000";
  // Whether what is not part of the entry can be used.
  std::string ouverts() {
    std::string etats;
    for (const screen::Field* const champ : std::initializer_list<const screen::Field*>{
             &cmd("OK"), &cmd("Retour"), &editeur->Ong_Contrat, &cdr("Mutuelle"),
             &txt("ProfilContrat"), &cbo("PeriodeEffetAffichage"), &cmd("AjoutePeriodeEffet"),
             &cbo("Activite"), &txt("RepartActContrat"), &cmd("OKActivite")}) {
      etats += champ->Enabled() ? 'o' : 'x';
    }
    return etats;
  }
};

TEST_F(Activites, UneListeDeProductionEstDUnSeulType) {
  article("ACTIVITES", "001MAN", {{1, "Mandat"}, {12, "X"}});
  creerPaie(false);
  EXPECT_EQ(lignes(cbo("Activite")), "Bureau|Domicile|Garde|Mandat");
  for (const int ligne : {1, 2, 1, 3, 0}) choisir(cbo("Activite"), ligne);
  EXPECT_EQ(lignes(lst("ActiviteContrat")), "Domicile|Garde");
  EXPECT_EQ(cbo("Activite").Text(), "");
  EXPECT_FALSE(lst("RepartActContrat").Visible());
  double_(0);
  double_(0);
  choisir(cbo("Activite"), 3);
  EXPECT_EQ(lignes(lst("ActiviteContrat")), "Mandat");
  EXPECT_EQ(editeur->paie.Activites().Type(), "X");
}

// Everything but the entry waits until the total is 100; the road is paie-repartition.scenario's.
TEST_F(Activites, UneRepartitionSeSaisitLigneApresLigne) {
  creerPaie(true);
  EXPECT_EQ(cbo("PeriodeEffetAffichage").Text(), "");
  repartir("Bureau", "33,33");
  // The period of the start.
  EXPECT_EQ(repartition(), "Bureau 33,33 [decembre 2026]");
  EXPECT_EQ(ouverts(), "xxxxxxxoxo");
  repartir("Domicile", "33,33");
  choisir(cbo("Activite"), 0);
  EXPECT_EQ(cbo("Activite").Text(), "") << "an activity twice";
  repartir("Garde", "33,34");
  EXPECT_EQ(ouverts(), "oooooooxxx");
  taper(txt("ProfilContrat"), "P01");
  enregistrer();
  EXPECT_EQ(range(cle()), "001BUR|001DOM|001GAR 3333|3333|3334 202612 - - -");
}

TEST_F(Activites, CeQuiNEstPasUnePartNEntrePas) {
  ouvrirPaie(Reparti);
  const std::string avant = repartition();
  const struct {
    const char* part;
    const char* apres;  // the first line
  } cas[] = {
      {",", "Bureau 75,00"},      {"", "Bureau 75,00"},       {"-5", "Bureau 5,00"},
      {"33,335", "Bureau 33,34"}, {"1000", "Bureau 75,00"},   {"100,01", "Bureau 100,01"},
      {"5,5,5", "Bureau 5,55"},   {"999999", "Bureau 75,00"},
  };
  for (const auto& [part, apres] : cas) {
    double_(0);
    taper(txt("RepartActContrat"), part);
    cliquer(cmd("OKActivite"));
    EXPECT_EQ(repartition().substr(0, repartition().find('|')), apres) << part;
    EXPECT_FALSE(cmd("OK").Enabled()) << part;
    cliquer(cmd("AnnulerActivite"));
    EXPECT_EQ(repartition(), avant) << part;
    EXPECT_TRUE(cmd("OK").Enabled()) << part;
  }
  // Nothing at all takes the line away.
  double_(1);
  taper(txt("RepartActContrat"), "0");
  cliquer(cmd("OKActivite"));
  EXPECT_EQ(repartition(), "Bureau 75,00 [novembre 2026]");
  double_(0);
  taper(txt("RepartActContrat"), "100");
  cliquer(cmd("OKActivite"));
  EXPECT_EQ(editeur->Ong_Contrat.Enabled(), true);
  enregistrer();
  EXPECT_EQ(range(), "001BUR 10000 202611 202607 001GAR 10000");
}

// December is there already: November goes in before July; October comes too late for a contract
// whose first split is November's.
TEST_F(Activites, UnePeriodeAnterieureSInsereOuNeSeGardePas) {
  for (const bool insere : {true, false}) {
    Attributs decembre = Reparti;
    decembre[C::PeriodeEffet] = "202612";
    if (!insere) {
      decembre[C::PeriodesEffetAnterieures] = decembre[C::ActivitesAnterieures] =
          decembre[C::PartsAnterieures] = "";
    }
    ouvrirPaie(decembre);
    cliquer(cmd("AjoutePeriodeEffet"));
    repartir("Domicile", "100");
    EXPECT_EQ(repartition(), insere ? "Domicile 100,00 [novembre 2026]"
                                    : "Bureau 75,00|Domicile 25,00 [decembre 2026]");
    EXPECT_EQ(hote.indications.Prendre().empty(), insere);
    enregistrer();
    EXPECT_EQ(range(), insere ? "001BUR|001DOM 7500|2500 202612 202611|202607 001DOM|001GAR "
                                "10000|10000"
                              : "001BUR|001DOM 7500|2500 202612 - - -");
  }
}

TEST_F(Activites, UnAjoutDePeriodeSeQuitteApresUneQuestion) {
  article("PERIODESPAIE", "1", {{1, "202612"}, {2, "202701"}});
  ouvrirPaie(Reparti);
  cliquer(cmd("AjoutePeriodeEffet"));
  // Two periods are open: one has to be chosen first.
  EXPECT_EQ(lignes(cbo("PeriodeEffetAffichage")), "decembre 2026|janvier 2027");
  choisir(cbo("Activite"), 0);
  EXPECT_EQ(messages(), "La période d'effet des activités est obligatoire.");
  EXPECT_EQ(actif(), "Cbo_PeriodeEffetAffichage");
  choisir(cbo("PeriodeEffetAffichage"), 1);
  repartir("Garde", "50");
  hote.messages.Repondre(Reponse::Non);
  cliquer(cmd("AnnulerActivite"));
  EXPECT_EQ(messages(),
            "Etes-vous sûr de vouloir quitter l'ajout d'une nouvelle période d'effet ?");
  EXPECT_EQ(repartition(), "Garde 50,00 [janvier 2027]");
  EXPECT_FALSE(cmd("OK").Enabled());
  hote.messages.Repondre(Reponse::Oui);
  cliquer(cmd("AnnulerActivite"));
  EXPECT_EQ(repartition(), "Bureau 75,00|Domicile 25,00 [novembre 2026]");
  EXPECT_TRUE(cmd("OK").Enabled() && cmd("AjoutePeriodeEffet").Enabled());
  messages();
  cliquer(cmd("OK"));
  EXPECT_EQ(range(), SurFichier);
}

// What the contract keeps of its splits when its status goes to and fro.
TEST_F(Activites, UnContratDeProductionNARienAPartager) {
  ouvrirPaie(Reparti);
  onglet(editor::Origine);
  cliquer(opt("Production"));
  hote.messages.Repondre(Reponse::Annuler);
  cliquer(cmd("Retour"));
  EXPECT_EQ(parts(c()), "001BUR|001DOM - - - - -");
  cliquer(opt("Administratif"));
  onglet(editor::ElementsPaie);
  EXPECT_EQ(repartition(), "Bureau 75,00|Domicile 25,00 [novembre 2026]");
  messages();
  // As it was: nothing to ask.
  cliquer(cmd("Retour"));
  EXPECT_EQ(parts(c()) + messages(), SurFichier);
  ouvrirPaie(Reparti);
  onglet(editor::Origine);
  cliquer(opt("Production"));
  enregistrer();
  EXPECT_EQ(range(), "001BUR|001DOM - - - - -");
}

// An activity that leaves its file while the contract is open, or was gone before.
TEST_F(Activites, UneActiviteDisparueResteAuContrat) {
  for (const bool administratif : {true, false}) {
    Attributs contratLu = Reparti;
    if (!administratif) {
      contratLu[C::Statut] = "P";
      for (const int a : {C::PartsActivites, C::PeriodeEffet, C::PeriodesEffetAnterieures,
                          C::ActivitesAnterieures, C::PartsAnterieures}) {
        contratLu[a] = "";
      }
    }
    ouvrirPaie(contratLu);
    memoire.Erase("ACTIVITES", "001DOM");
    enregistrer();
    const std::string attendu = administratif ? SurFichier : "001BUR|001DOM - - - - -";
    EXPECT_EQ(range(), attendu);
    ouvrirPaie(contratLu);
    EXPECT_EQ(lst("ActiviteContrat").List(1), "001DOM");
    cliquer(cmd("OK"));
    EXPECT_EQ(range(), attendu);
    article("ACTIVITES", "001DOM", {{1, "Domicile"}, {12, "P"}});
  }
}

// The split that came by itself follows the start of a new contract.
TEST_F(Activites, LaSeuleActiviteDUneEntiteEstEntiere) {
  article("ACTIVITES", "003BUR", {{1, "Bureau"}, {12, "A"}});
  article("ASSOCIATION", "003", {{1, "Une seule"}});
  article("ETABLISSEMENT", "003001", {{1, "Siège"}});
  session.W_Droits = &droits;
  creer();
  cliquer(opt("Administratif"));
  taper(txt("ConvColContrat"), "01");
  editeur->origine.Remplir_Combos();
  taper(txt("AssocContrat"), "003");
  remplir(txt("DatDebContrat"), "15/12/2026");
  caracteriser();
  onglet(editor::ElementsPaie);
  EXPECT_EQ(repartition(), "Bureau 100 [decembre 2026]");
  taper(txt("ProfilContrat"), "P01");
  onglet(editor::Origine);
  remplir(txt("DatDebContrat"), "04/01/2027");
  enregistrer();
  EXPECT_EQ(range(cle()), "003BUR 10000 202701 - - -");
}

// Of the employer's activities, those of private employers that are open on the start. Days are
// counted from the start, 01/12/2026.
TEST_F(Activites, UnParticulierASesActivites) {
  article("ACTIVITES", "001MEN", {{1, "Ménage"}, {12, "M"}});
  const auto autour = [](int jours) { return std::to_string(21520 + jours); };
  const std::string avant = autour(-300), debut = autour(0);
  const struct {
    const char* codes;
    std::string debuts, fins;
    const char *lignes, *offertes;
  } cas[] = {
      {"001MEN|001DOM", avant + "|" + avant, "", "Ménage", "Ménage"},
      {"001MEN|001MAN", avant + "|" + autour(1), "", "Ménage", "Ménage"},
      {"001MEN|001MAN", avant + "|" + debut, autour(-1), "Mandat", "Mandat"},
      {"001MEN|001MAN", avant + "|" + debut, debut, "", "Ménage|Mandat"},
      {"001MEN|001ZZZ|001MAN", avant + "|" + avant + "|" + avant, "", "Ménage", "Ménage"},
      {"001MEN|001MAN", "", "", "", "Mandat|Ménage"},
  };
  for (const auto& [codes, debuts, fins, prises, offertes] : cas) {
    article("ACTIVITESAIDE", "00007",
            {{1, multiple(codes)}, {2, multiple(debuts)}, {3, multiple(fins)}});
    origine("01/12/2026", "02", "00007");
    for (const int visite : {editor::ElementsPaie, editor::Origine, editor::ElementsPaie}) {
      onglet(visite);
    }
    EXPECT_EQ(lignes(lst("ActiviteContrat")), prises) << codes << debuts << fins;
    EXPECT_EQ(lignes(cbo("Activite")), offertes) << codes << debuts << fins;
    // Among several the clerk chooses.
    EXPECT_EQ(cbo("Activite").Disponible(), *prises == '\0');
    quitter(Reponse::Oui);
  }
}

}  // namespace
