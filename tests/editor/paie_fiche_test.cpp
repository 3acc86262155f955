// The pay tab: what it shows, refuses and stores.

#include "dialogs/frm_rub_saisie.h"
#include "editor/paie_essai.h"
#include "screen/touches.h"

namespace {

using essai::jour, essai::valeurs;
using screen::Reponse, screen::User;
namespace C = data::Contrat;

constexpr const char* SansRib =
    "Vous ne pouvez pas sélectionner le mode de paiement virement\r\ncar l'aidant ne possède pas "
    "de RIB.";

class FichePaie : public essai::Paie {
 protected:
  // A sound contract of the pay tab.
  static Attributs sain(Attributs autres) {
    autres.merge(Attributs{{C::Profil, "P01"},
                           {C::ModePaiement, "2"},
                           {C::ConstanteB, "B"},
                           {C::PaiementParEntite, "1"},
                           {C::Activites, "001DOM"},
                           {C::ContratPrevoyance, "10"}});
    return autres;
  }
  // Attributes 26 to 36, 61, 64, 66, 94 and 103.
  std::string paie(const data::CItem& item) {
    std::string texte;
    for (const int a : {26, 64, 27, 28, 29, 30, 31, 32, 33, 61, 34, 35, 66, 103, 94}) {
      texte += (a == 26 ? "" : " ") + (item(a).empty() ? "-" : item(a));
    }
    return texte;
  }
  std::string paieRangee() { return paie(fiche()); }
  // Both pairs, and whether the second can be used.
  std::string profils() {
    return txt("ProfilContrat").Text() + " " + cbo("LibProfilContrat").Text() + " / " +
           txt("ProfilContrat2").Text() + " " + cbo("LibProfilContrat2").Text() +
           (txt("ProfilContrat2").Enabled() ? " o" : " x");
  }
};

TEST_F(FichePaie, MontreCeQuiEstSurFichierEtLEcritAutrement) {
  article("RUBCHARGE", "810", {{1, "Mutuelle"}, {11, "Montant"}, {16, "08"}});
  article("RIBAIDANT", essai::Aidant, {{3, "123"}});
  ouvrirPaie(sain({{C::ModePaiement, "1"},
                   {C::Profil2, "P03"},
                   {C::CongesAuMois, "1"},
                   {C::MutuelleSalariale, "1250"},
                   {C::MutuellePatronale, "900"},
                   {C::ChargeMutuelle, "810"},
                   {C::IdentificationCRC, "CRC"},
                   {C::ZoneTransport, "2"},
                   {C::PlafondSecu, "342800"},
                   {C::AssietteSecu, "99"}}));
  EXPECT_EQ(profils(), "P01 Intervenant / P03 Horaire o");
  EXPECT_EQ(cbo("ModPaieContrat").Text() + "|" + txt("MutSalContrat").Text() + "|" +
                txt("MutPatContrat").Text() + "|" + cbo("ChargMutContrat").Text() + "|" +
                cbo("CartOrangContrat").Text() + "|" + txt("PlafSecu").Text() + "|" +
                txt("AssietteSecu").Text() + "|" + cbo("LibPrevContrat").Text(),
            "Virement bancaire|   12,50|    9,00|Mutuelle|Zone 3|3 428,00|0,99|Cadres");
  EXPECT_FALSE(cac("PaieSalContrat").Visible() || cac("ProvCP").Visible());
  choisir(cbo("ModPaieContrat"), 2);
  remplir(txt("MutSalContrat"), "");
  remplir(txt("PlafSecu"), "12345,6");
  EXPECT_EQ(txt("PlafSecu").Text(), "12 345,60");
  remplir(txt("AssietteSecu"), "");
  User(*editeur).Derouler(cbo("CartOrangContrat"));
  choisir(cbo("CartOrangContrat"), 0);
  cliquer(cac("CPMoisContrat"));
  enregistrer();
  EXPECT_EQ(paieRangee(), "P01 P03 3 1 10 B 0 0 900 810 CRC 1 1234560 - -");
}

// What is wrong or gone stays as it is, as long as nobody touches it.
TEST_F(FichePaie, UnChampIntactGardeSonAttribut) {
  const Attributs abime = sain({{C::Profil, "ZZZ"},
                                {C::Profil2, "P02"},
                                {C::ModePaiement, "9"},
                                {C::CongesAuMois, "x"},
                                {C::MutuelleSalariale, "abc"},
                                {C::ChargeMutuelle, "999"},
                                {C::ZoneTransport, "7"},
                                {C::PlafondSecu, "0012"},
                                {C::AssietteSecu, "1.5"},
                                {C::ContratPrevoyance, "77"}});
  ouvrirPaie(abime);
  const std::string avant = paieRangee();
  EXPECT_EQ(profils(), "ZZZ  / P02 Mandataire o");
  onglet(editor::Origine);
  sortir();
  EXPECT_EQ(paieRangee(), avant);
}

TEST_F(FichePaie, LesControlesDansLeurOrdre) {
  article("CONVENTIONCOL", "01", {{1, "Branche"}, {44, "1"}});
  article("RUBCHARGE", "810", {{1, "Mutuelle"}, {15, "Montant"}, {16, "08"}});
  creerPaie(false);
  choisir(cbo("ModPaieContrat"), 0);
  txt("MutPatContrat").SetText("5,00");
  const struct {
    std::string message;
    const char* focus;
    std::function<void()> corriger;
  } cas[] = {
      {"La rubrique de charge liée à la mutuelle est obligatoire.", "Txt_ChargMutContrat",
       [&] { taper(txt("ChargMutContrat"), "810"); }},
      {"Le profil est obligatoire.", "Txt_ProfilContrat",
       [&] { taper(txt("ProfilContrat"), "P03"); }},
      {"Au moins une activité est obligatoire.", "Cbo_Activite",
       [&] { choisir(cbo("Activite"), 1); }},
      {"Le choix d'un contrat de prévoyance dans la liste est obligatoire.", "",
       [&] { taper(txt("PrevContrat"), "10"); }},
      {SansRib, "Cbo_ModPaieContrat", [&] { choisir(cbo("ModPaieContrat"), 1); }},
  };
  for (const auto& [message, focus, corriger] : cas) {
    onglet(editor::Origine);
    refuse(message);
    EXPECT_EQ(editeur->Ong_Contrat.Tab(), editor::ElementsPaie) << message;
    if (*focus != '\0') {
      EXPECT_EQ(actif(), focus);
    }
    corriger();
  }
  enregistrer();
  EXPECT_EQ(paie(fiche(cle())), "P03 - 2 1 10 B 0 0 500 810 - - - - 0");

  ouvrirPaie({{C::Profil, "P01"}});
  cliquer(cmd("OK"));
  EXPECT_EQ(messages() + actif(), "Le mode de paiement est obligatoire.Cbo_ModPaieContrat");
  creerPaie(true);
  taper(txt("ProfilContrat"), "P01");
  taper(txt("PrevContrat"), "10");
  onglet(editor::Origine);
  cliquer(opt("Production"));
  onglet(editor::ElementsPaie);
  choisir(cbo("Activite"), 0);
  onglet(editor::Origine);
  cliquer(opt("Administratif"));
  cliquer(cmd("OK"));
  EXPECT_EQ(messages(), "Le total de la répartition des activités est différent de 100.");
}

// The profile rule holds for a tab that was never shown.
TEST_F(FichePaie, UnMensuelDeProductionNAPasDeProfilAideADomicile) {
  const std::string interdit =
      "Pour un salarié Production - Mensualisé, la saisie d'un profil comportant une rubrique de "
      "type aide à domicile est impossible, veuillez saisir un nouveau profil.";
  const struct {
    const char *convention, *salaire, *statut, *profil, *profil2;
    std::string refus;  // message, and the field that takes the focus
  } cas[] = {
      {"01", "M", "P", "P03", "", interdit + "Txt_ProfilContrat"},
      {"01", "M", "P", "P01", "P03", interdit + "Txt_ProfilContrat2"},
      {"01", "H", "P", "P03", "", ""},
      {"01", "M", "P", "P01", "", ""},
      {"01", "M", "A", "P03", "", ""},
      {"02", "M", "P", "P01", "", "Vous devez entrer un profil mandataire.Txt_ProfilContrat"},
      {"02", "M", "P", "P02", "", ""},
  };
  for (const auto& [convention, salaire, statut, profil, profil2, refus] : cas) {
    const bool particulier = std::string(convention) == "02";
    ouvrirContrat({{C::Convention, convention},
                   {C::Employeur, particulier ? "00007" : "001001"},
                   {C::Salaire, salaire},
                   {C::Statut, statut},
                   {C::Profil, profil},
                   {C::Profil2, profil2}});
    cliquer(cmd("OK"));
    EXPECT_EQ(messages() + (refus.empty() ? "" : actif()), refus);
    if (!refus.empty()) {
      EXPECT_EQ(txt("ProfilContrat").Text(), particulier ? "" : profil);
    }
  }
}

TEST_F(FichePaie, UnProfilSeChoisitSelonLEmployeur) {
  const struct {
    const char* convention;
    const char* surFichier;
    const char* tape;
    const char* message;
  } cas[] = {
      {"01", "P01", "P03", ""},
      {"01", "P01", "P09", "Ce profil n'existe pas."},
      {"01", "P01", "P02",
       "Ce profil ne peut être saisi car il n'est pas en relation avec la convention collective "
       "sélectionnée."},
      {"01", "P02", "P02", ""},
      {"02", "P02", "P01",
       "Ce profil n'est pas un profil mandataire, veuillez en choisir un autre."},
      {"02", "P01", "P01", ""},
  };
  for (const auto& [convention, surFichier, tape, message] : cas) {
    Attributs autres{{C::Profil, surFichier}, {C::Convention, convention}};
    if (convention == std::string("02")) autres[C::Employeur] = "00007";
    ouvrirPaie(autres);
    EXPECT_EQ(txt("ProfilContrat").Text(), surFichier);
    taper(txt("ProfilContrat"), "");
    EXPECT_EQ(profils(), "  /   x");
    taper(txt("ProfilContrat"), tape);
    EXPECT_EQ(messages(), message) << convention << tape;
    EXPECT_EQ(txt("ProfilContrat").Text(), *message == '\0' ? tape : "");
    if (*message != '\0') {
      EXPECT_EQ(actif(), "Txt_ProfilContrat");
    }
  }
  ouvrirPaie({{C::Profil, "P01"}});
  taper(txt("ProfilContrat2"), "P03");
  taper(txt("ProfilContrat"), "P03");
  EXPECT_EQ(messages(), "Les 2 profils doivent être differents, veuillez ressaisir le premier.");
  EXPECT_EQ(lignes(cbo("LibProfilContrat")), "Horaire|Intervenant");
  choisir(cbo("LibProfilContrat"), 1);
  EXPECT_EQ(profils(), "P01 Intervenant /   o");
  // What the list no longer offers is there for the contract that has it.
  ouvrirPaie({{C::Profil, "P02"}});
  EXPECT_EQ(lignes(cbo("LibProfilContrat")), "Horaire|Intervenant|Mandataire");
}

TEST_F(FichePaie, LeModeDePaiementSePropose) {
  const struct {
    const char* convention;
    const char* parVirement;  // of agreement "02"
    const char* compte;       // nullptr: no bank details
    const char* mode;
  } cas[] = {
      {"01", "", nullptr, "Chèque"},           {"01", "", "", "Chèque"},
      {"01", "", "123", "Virement bancaire"},  {"02", "", "123", "Chèque"},
      {"02", "1", "123", "Virement bancaire"}, {"02", "1", nullptr, "Chèque"},
  };
  for (const auto& [convention, parVirement, compte, mode] : cas) {
    article("CONVENTIONCOL", "02", {{1, "Particuliers"}, {22, parVirement}});
    memoire.Erase("RIBAIDANT", essai::Aidant);
    if (compte != nullptr) article("RIBAIDANT", essai::Aidant, {{2, "x"}, {3, compte}});
    creer();
    taper(txt("ConvColContrat"), convention);
    onglet(editor::ElementsPaie);
    EXPECT_EQ(cbo("ModPaieContrat").Text(), mode) << convention << parVirement;
    // What the clerk chooses stays.
    choisir(cbo("ModPaieContrat"), 2);
    onglet(editor::Origine);
    onglet(editor::ElementsPaie);
    EXPECT_EQ(cbo("ModPaieContrat").Text(), "Espèces");
    quitter(Reponse::Oui);
  }
}

// Both spellings of the word, by the road.
TEST_F(FichePaie, UnVirementSansRibEstRefuseParToutesLesRoutes) {
  const std::string enQuittant =
      "Vous ne pouvez pas sélectionner le mode de paiment virement\r\ncar l'aidant ne possède pas "
      "de RIB.";
  const std::string question =
      "Voulez-vous enregistrer les modifications apportées à cet article ?|";
  const struct {
    const char* surFichier;
    Reponse reponse;  // Ok: unchanged, and not asked
    std::string messages;
  } cas[] = {{"1", Reponse::Ok, enQuittant},
             {"2", Reponse::Non, question + enQuittant},
             {"2", Reponse::Oui, question + SansRib}};
  for (const auto& [surFichier, reponse, attendus] : cas) {
    ouvrirPaie(sain({{C::ModePaiement, surFichier}}));
    if (reponse != Reponse::Ok) {
      choisir(cbo("ModPaieContrat"), 0);
      hote.messages.Repondre(reponse);
    }
    onglet(editor::Origine);
    cliquer(cmd("Retour"));
    EXPECT_EQ(messages() + actif(), attendus + "Cbo_ModPaieContrat");
    EXPECT_TRUE(editeur->Visible());
    refuse(SansRib);
    EXPECT_EQ(fiche()(C::ModePaiement), surFichier);
    remplir(cbo("ModPaieContrat"), "Troc");
    EXPECT_EQ(messages(), "Le mode de paiement saisi n'existe pas, veuillez le ressaisir.");
    remplir(cbo("ModPaieContrat"), "Espèces");
    enregistrer();
    EXPECT_EQ(fiche()(C::ModePaiement), "3");
  }
}

// An entry heading whose activity leaves the contract, by OK and by leaving.
TEST_F(FichePaie, UneRubriqueGardeSonActivite) {
  const std::string refus =
      "Les activités des rubriques de saisie ne sont pas en correspondance avec les activités du "
      "contrat.";
  ouvrirPaie(sain({{C::Activites, multiple("001DOM|001GAR")},
                   {C::RubriqueCode, multiple("000|000")},
                   {C::RubriqueActivite, multiple("001DOM|001GAR")}}));
  double_(1);
  for (const bool ok : {true, false}) {
    confirmer(ok);
    EXPECT_TRUE(messages().ends_with(refus) && editeur->Visible()) << ok;
  }
  // The dialog is given the activities that are left.
  hote.modales.Prevoir([](screen::Form& forme) {
    auto& rubriques = dynamic_cast<dialogs::Frm_RubSaisie&>(forme);
    EXPECT_EQ(lignes(rubriques.Cbo_Activite), "Domicile");
    User(forme).Cliquer(rubriques.Cmd_Annuler);
  });
  cliquer(cmd("RubSaisie"));
  choisir(cbo("Activite"), 2);
  enregistrer();
  EXPECT_EQ(range(), "001DOM|001GAR - - - - -");
}

TEST_F(FichePaie, UneRubriqueDeMutuelleEstUnMontant) {
  article("RUBCHARGE", "810", {{1, "Mutuelle A"}, {11, "Montant"}, {16, "08"}});
  article("RUBCHARGE", "820", {{1, "Mutuelle B"}, {15, valeurs("Montant|Brut")}, {16, "08"}});
  article("RUBCHARGE", "830", {{1, "En second"}, {11, valeurs("Brut|Montant")}, {16, "08"}});
  article("RUBCHARGE", "840", {{1, "Inactive"}, {11, "Montant"}, {16, "08"}, {30, "1"}});
  article("RUBCHARGE", "850", {{1, "Autre famille"}, {11, "Montant"}, {16, "07"}});
  ouvrirPaie(sain({}));
  User(*editeur).Derouler(cbo("ChargMutContrat"));
  EXPECT_EQ(lignes(cbo("ChargMutContrat")), "Mutuelle A|Mutuelle B");
  choisir(cbo("ChargMutContrat"), 1);
  EXPECT_EQ(txt("ChargMutContrat").Text(), "820");
  for (const char* refusee : {"830", "840", "850", "999"}) {
    taper(txt("ChargMutContrat"), refusee);
    EXPECT_EQ(messages(),
              "La rubrique de charge n'existe pas ou ne répond pas aux critères, veuillez la "
              "ressaisir.")
        << refusee;
    EXPECT_EQ(txt("ChargMutContrat").Text() + cbo("ChargMutContrat").Text(), "");
  }
  taper(txt("PrevContrat"), "20");
  EXPECT_EQ(messages(), "Ce régime de prévoyance n'existe pas.");
}

// A private employer's contract: his provident scheme whatever is shown, and leave provisioned
// unless it is paid monthly.
TEST_F(FichePaie, LeContratDUnParticulier) {
  article("ELTSPARTEMP", "00007", {{12, "P02"}, {13, "20"}});
  origine("01/12/2026", "02", "00007");
  caracteriser();
  onglet(editor::ElementsPaie);
  EXPECT_EQ(profils(), "P02 Mandataire /   o");
  EXPECT_EQ(txt("PrevContrat").Text() + cbo("LibPrevContrat").Text(), "20Employés");
  EXPECT_TRUE(cac("PaieSalContrat").Value() == 1 && cac("ProvCP").Disponible());
  cliquer(cac("ProvCP"));
  cliquer(cac("CPMoisContrat"));
  EXPECT_FALSE(cac("ProvCP").Visible() || cac("ProvCP").Value() == 1);
  cliquer(cac("CPMoisContrat"));
  cliquer(cac("ProvCP"));
  cliquer(cac("PaieSalContrat"));
  enregistrer();
  EXPECT_EQ(paie(fiche(cle())), "P02 - 2 0 20 B 0 0 0 - - - - - 1");

  // The scheme begins after today: it is kept, and not shown.
  article("ELTSPARTEMP", "00007", {{6, jour("01/01/2027")}, {13, "20"}});
  ouvrir(std::string(cle()));
  onglet(editor::ElementsPaie);
  EXPECT_EQ(txt("PrevContrat").Text(), "");
  sortir();
}

TEST_F(FichePaie, LaTelegestionDemandeDAbordLOrigine) {
  article("ASSOCIATION", "001", {{1, "Aide du Val"}, {38, "VESPARIO"}});
  creer();
  onglet(editor::ElementsPaie);
  const auto dit = [&](const char* saisi, const char* texte) {
    onglet(editor::Origine);
    if (*saisi != '\0') taper(txt(saisi), texte);
    onglet(editor::ElementsPaie);
    cliquer(cmd("Telegestion"));
    return messages();
  };
  EXPECT_EQ(dit("", ""), "Vous devez renseigner la convention sur l'onglet 'Origine'.");
  EXPECT_EQ(dit("ConvColContrat", "01"),
            "Vous devez renseigner l'employeur sur l'onglet 'Origine'.");
  EXPECT_EQ(dit("AssocContrat", "001"), "Vous devez renseigner les activités du contrat.");
  choisir(cbo("Activite"), 1);
  auto& controle = hote.controles.Ajouter("Ctr_Vespamoi");
  hote.modales.Prevoir([&](screen::Form& forme) {
    controle.Regler("W_Sortir", "-1");
    EXPECT_TRUE(forme.Close());
  });
  cliquer(cmd("Telegestion"));
  EXPECT_EQ(messages(), "");
  EXPECT_EQ(controle.Lire("W_StrAct"), "001DOM");
  // A contract on file has the button of its own entity.
  for (const auto& [entite, utilisee] : {std::pair{"002", false}, {"001", true}}) {
    ouvrirContrat({{C::Association, entite}});
    EXPECT_EQ(cmd("Telegestion").Visible(), utilisee) << entite;
  }
}

// A visit that a read interrupts is made anew, and leaves nothing half shown behind.
TEST_F(FichePaie, UneVisiteInterrompueSeReprend) {
  const Attributs reparti = sain({{C::Statut, "A"},
                                  {C::Profil2, "P02"},
                                  {C::ChargeMutuelle, "999"},
                                  {C::Activites, multiple("001BUR|001ZZZ")},
                                  {C::PartsActivites, multiple("7500|2500")},
                                  {C::PeriodeEffet, "202611"}});
  for (int n = 1;; ++n) {
    ouvrirContrat(reparti);
    const std::string avant = range() + paieRangee();
    stockage->EchouerAppel(n);
    bool interrompue = false;
    try {
      onglet(editor::ElementsPaie);
    } catch (const data::StoreError&) {
      interrompue = true;
    }
    stockage->EchouerAppel(0);
    if (!interrompue) {
      EXPECT_GT(n, 5);
      break;
    }
    onglet(editor::Origine);
    onglet(editor::ElementsPaie);
    EXPECT_EQ(repartition(), "Bureau 75,00|001ZZZ 25,00 [novembre 2026]") << n;
    EXPECT_EQ(profils(), "P01 Intervenant / P02 Mandataire o") << n;
    cliquer(cmd("Retour"));
    EXPECT_EQ(messages(), "") << n;
    EXPECT_FALSE(editeur->Visible()) << n;
    EXPECT_EQ(range() + paieRangee(), avant) << n;
  }
}

}  // namespace
