#include "data/texte.h"
#include "editeur_essai.h"

namespace {

using essai::Acte, essai::jour, essai::valeurs;
namespace C = essai::C;
using screen::User;

class Fiche : public essai::Editeur {
 protected:
  // Leaves, says no to leaving, and so has the fields copied to the contract in hand.
  void copier() {
    quitter(screen::Reponse::Annuler);
    EXPECT_TRUE(hote.messages.ReponsesRestantes().empty()) << "nothing was changed";
  }
  void nouveau(const char* convention, const char* entite) {
    creer();
    taper(txt("ConvColContrat"), convention);
    taper(txt("AssocContrat"), entite);
  }
  void determine(const char* fin) {
    cliquer(opt("Determine"));
    remplir(txt("DatFinContrat"), fin);
  }
  void debuter(const char* debut) { remplir(txt("DatDebContrat"), debut); }
};

// Acts: agreement "c", entity "e", fixed term to "t", start "d", signature "s", trial "p", payslip
// of a period computed "k" or not any more "K"; "+" for a new contract.
TEST_F(Fiche, VerifieDansLOrdre) {
  const char* const calcule =
      "Impossible de modifier la date de début : un bulletin a déjà été calculé pour ce contrat.";
  const char* const incorrecte = "La date saisie est incorrecte, veuillez la ressaisir.";
  const char *const debut = "Txt_DatDebContrat", *const fin = "Txt_DatFinContrat";
  const Attributs cdd{{C::MotifEmbauche, "1"}}, futur{{C::DateDebut, jour("01/12/2026")}};
  const Attributs avenant{{C::DepartGrille, valeurs("|" + jour("01/06/2026"))},
                          {C::PeriodeTraitee, "202602"}};
  const Attributs traite{{C::PeriodeTraitee, "202603"}};
  const struct {
    const char* nom;
    Attributs contrat;
    std::string actes;
    const char* message;  // "" when the contract is saved
    const char* actif;
  } cas[] = {
      {"1", {}, "+", "La convention collective est obligatoire.", "Txt_ConvColContrat"},
      {"2", {}, "+ c01", "L'entité juridique est obligatoire.", "Txt_AssocContrat"},
      {"3", {}, "+ c01 e002", "L'employeur est obligatoire.", "Cbo_LibEmplEtabContrat"},
      {"4", {}, "+ c01 e001", "La date de début de contrat est obligatoire.", debut},
      {"5", {{C::DateDebut, "abc"}}, "", incorrecte, debut},
      {"6",
       {},
       "s1/1/26",
       "Le numéro de référence est obligatoire si la date de signature convention emploi aidé est "
       "renseignée.",
       "Txt_NumRef"},
      {"7", {{C::Type, "D"}, {C::DateFinPresumee, "abc"}}, "", incorrecte, fin},
      {"8",
       {},
       "t28/02/2026",
       "La date de fin de contrat présumée doit être supérieure ou égale à la date de début de "
       "contrat.",
       fin},
      {"8 same day", cdd, "t01/03/2026", "", ""},
      {"9", {}, "t", "La date de fin présumée est obligatoire pour un CDD.", fin},
      {"12", avenant, "d02/06/2026",
       "La date de début de contrat ne peut être supérieure à la date d'effet du second avenant, "
       "veuillez supprimer le contrat et le recréer pour effectuer votre modification.",
       debut},
      {"12 same day", avenant, "d01/06/2026", "", ""},
      {"13", futur, "d31/10/2026",
       "La date de début de contrat ne peut être antérieure au 01/11/2026.", debut},
      {"13 first day", futur, "d01/11/2026", "", ""},
      {"14", futur, "k202611 d02/12/2026", calcule, debut},
      {"14 next month", futur, "K202611 k202612 d02/12/2026", calcule, debut},
      {"14 unmoved", futur, "p30", "", ""},
      {"15", traite, "d01/04/2026", calcule, debut},
      {"15 before", avenant, "d01/04/2026", "", ""},
  };
  const std::map<char, std::function<void(const std::string&)>> actes{
      {'c', [&](auto& texte) { taper(txt("ConvColContrat"), texte); }},
      {'e', [&](auto& texte) { taper(txt("AssocContrat"), texte); }},
      {'t', [&](auto& texte) { determine(texte.c_str()); }},
      {'d', [&](auto& texte) { debuter(texte.c_str()); }},
      {'s', [&](auto& texte) { remplir(txt("DateSignConvEmplAide"), texte); }},
      {'p', [&](auto& texte) { remplir(txt("PerEssaiContrat"), texte); }},
      {'k',
       [&](auto& mois) {
         article("DETAILCALCUL", "00001001" + mois, {{1, "x"}});
       }},
      {'K', [&](auto& mois) { db.OpenFile("DETAILCALCUL").DeleteItem("00001001" + mois); }},
      {'+', [&](auto&) { creer(); }},
  };
  for (const auto& [nom, attributs, suite, message, focus] : cas) {
    editeur.reset();
    if (suite[0] != '+') ouvrirContrat(attributs);
    for (const std::string& acte : data::mots(suite)) actes.at(acte[0])(acte.substr(1));
    messages();
    cliquer(cmd("OK"));
    EXPECT_EQ(messages() + actif(), message + std::string(focus)) << nom;
    EXPECT_EQ(editeur->Visible(), *message != '\0') << nom;
  }
}

TEST_F(Fiche, UnMotifSaisiAussitotSuffitUneConventionDeStageNon) {
  const std::string motif = "La saisie d'un motif d'embauche est obligatoire.";
  ouvrirContrat({{C::Nature, "STG"}});
  determine("31/12/2026");
  hote.messages.Repondre(screen::Reponse::Non);
  hote.modales.Prevoir([](screen::Form& f) { User(f).Cliquer(*f.Find("Cmd_Retour")); });
  cliquer(cmd("OK"));
  EXPECT_EQ(hote.messages.Prendre()->texte, motif);
  messages();

  const auto saisir = [this](const std::vector<const char*>& champs) {
    hote.modales.Prevoir([champs](screen::Form& f) {
      for (const char* champ : champs) User(f).Taper(*f.Find(champ), "3");
      User(f).Cliquer(*f.Find("Cmd_OK"));
    });
  };
  saisir({"Txt_MotifEmbContrat(0)"});
  saisir({"Txt_Etab", "Txt_SujetStage", "Txt_Tuteur", "Txt_Service", "Txt_Seuil"});
  cliquer(cmd("OK"));
  EXPECT_EQ(messages(), motif + "|La saisie du détail de la convention de stage est obligatoire.");
  EXPECT_TRUE(editeur->Visible());
  cliquer(cmd("OK"));
  EXPECT_FALSE(editeur->Visible());
  EXPECT_EQ(fiche()(C::StageEcole), "3");
}

TEST_F(Fiche, CeQuiEstMontreEtNonTouchePasseSansQuestion) {
  const Attributs avec{{C::Type, "D"},
                       {C::Salaire, "M"},
                       {C::Statut, "A"},
                       {C::DateFinPresumee, jour("31/12/2026")},
                       {C::PeriodeEssai, "60"},
                       {C::EssaiRenouvelable, "1"},
                       {C::DureeMinimale, "6 mois"},
                       {C::Nature, "OLD"},
                       {C::DateConventionAidee, jour("15/02/2026")},
                       {C::ReferenceConventionAidee, "R1"},
                       {C::ContrepartieInterruption, "3"}};
  const Attributs particulier{{C::Convention, "02"}, {C::Employeur, "00007"}};
  const Attributs perdus{{C::Convention, "55"},
                         {C::Association, "999"},
                         {C::Employeur, "999888"},
                         {C::DateDebut, "abc"},
                         {C::Nature, "XXX"}};
  const Attributs vides{{C::Type, ""},
                        {C::Salaire, ""},
                        {C::Statut, ""},
                        {C::PeriodeEssai, "2 mois"},
                        {C::EssaiRenouvelable, ""},
                        {C::ReferenceConventionAidee, "sans date"},
                        {C::ContrepartieInterruption, "9"}};
  for (const Attributs& autres : {Attributs{}, avec, particulier, perdus, avec, vides}) {
    ouvrirContrat(autres);  // the same editor, over what the contract before has left
    User(*editeur).Derouler(cbo("NatureContrat"));
    EXPECT_EQ(lignes(cbo("NatureContrat")),
              autres == avec ? "Normal|Stagiaire|Ancien" : "Normal|Stagiaire");
    EXPECT_FALSE(cdr("Lissage").Visible());  // hourly or administrative
    const bool rose = autres == particulier;
    EXPECT_EQ(cac("PaieSalContrat").Visible(), rose);
    EXPECT_EQ(cbo("LibEmplEtabContrat").Text(), rose               ? "MARTIN Rose"
                                                : autres == perdus ? ""
                                                                   : "Siège");
    sortir();
  }
}

TEST_F(Fiche, UnNouveauContratNeGardeRienDuPrecedent) {
  ouvrirContrat({{C::EssaiRenouvelable, "1"}, {C::DateConventionAidee, "20000"}});
  cliquer(cmd("Retour"));
  nouveau("02", "001");
  taper(txt("EmplEtabContrat"), "00007");
  quitter(screen::Reponse::Oui);
  creer();
  EXPECT_FALSE(txt("AssocContrat").Enabled() || txt("NumRef").Enabled() ||
               cmd("DetailEmpl").Visible() || cac("PaieSalContrat").Visible() ||
               cac("RenouvEssaiContrat").Value() == 1 || !cdr("RegimePrev").Enabled());
  EXPECT_EQ(actif() + lignes(cbo("LibPrevContrat")) + lignes(cbo("OrgRetraite")),
            "Txt_ConvColContrat");
}

TEST_F(Fiche, EcritChaqueChampASaPlace) {
  ouvrirContrat();
  determine("31122027");
  cliquer(opt("Mensuel"));
  cliquer(opt("Administratif"));
  remplir(txt("PerEssaiContrat"), "2x1");
  EXPECT_EQ(txt("PerEssaiContrat").Text(), "21");
  User(*editeur).Coller(txt("PerEssaiContrat"), "2 mois");
  cliquer(cac("RenouvEssaiContrat"));
  remplir(txt("DureeMinContrat"), "6 mois");
  User(*editeur).Derouler(cbo("NatureContrat"));
  choisir(cbo("NatureContrat"), 1);
  remplir(txt("DateSignConvEmplAide"), "15-2-26");
  remplir(txt("NumRef"), "R1");
  choisir(cbo("Contrepartie"), 2);
  copier();
  EXPECT_EQ(
      lu({C::Employeur, C::Type, C::Salaire, C::Statut, C::PeriodeEssai, C::EssaiRenouvelable,
          C::DureeMinimale, C::Nature, C::ReferenceConventionAidee, C::ContrepartieInterruption,
          C::DateFinPresumee, C::DateConventionAidee}),
      "001001 D M A 2 mois 1 6 mois STG R1 3 " + jour("31/12/2027") + " " + jour("15/02/2026"));
  remplir(txt("DateSignConvEmplAide"), "");  // takes the reference along
  copier();
  EXPECT_EQ(lu({C::ReferenceConventionAidee, C::DateConventionAidee}), " ");
}

TEST_F(Fiche, CeQuUneCopieARetireRevientAvecLesChamps) {
  ouvrirContrat({{C::Type, "D"},
                 {C::DateFinPresumee, jour("31/12/2026")},
                 {C::Nature, "STG"},
                 {C::StageEcole, "Lycée"},
                 {C::StageSeuil, "375"}});
  EXPECT_TRUE(cmd("Stage").Visible());
  remplir(cbo("NatureContrat"), "Ancien");  // on file, but no longer offered
  EXPECT_EQ(messages() + actif(),
            "La nature saisie n'existe pas, veuillez la ressaisir.Cbo_NatureContrat");
  remplir(cbo("NatureContrat"), "Normal");
  EXPECT_FALSE(cmd("Stage").Visible());
  cliquer(opt("Indetermine"));
  for (int copie = 1; copie <= 2; ++copie) {
    copier();
    EXPECT_EQ(lu({C::Nature, C::StageEcole, C::StageSeuil, C::DateFinPresumee}) +
                  txt("DatFinContrat").Text(),
              "CDI   ");
  }
  messages();
  remplir(cbo("NatureContrat"), "Stagiaire");
  hote.modales.Prevoir([](screen::Form& f) { User(f).Cliquer(*f.Find("Cmd_Retour")); });
  cliquer(cmd("Stage"));
  EXPECT_EQ(c()(C::StageEcole), "Lycée");
  cliquer(opt("Determine"));
  sortir();
}

TEST_F(Fiche, UnDebutDeplaceEntraineLeContratSigne) {
  const std::string mars = jour("01/03/2026"), avril = jour("01/04/2026"), mai = jour("01/05/2026"),
                    juin = jour("01/06/2026");
  for (const std::string& depart : {mars, mai, std::string()}) {
    ouvrirContrat({{C::DateEffet, valeurs(mars + "|" + juin)},
                   {C::DepartGrille, valeurs(depart + "|" + juin)}});
    for (const std::string& debut : {avril, mai, mars, avril}) {
      debuter(session.Lib.DateFromInternal(debut).c_str());
      remplir(txt("PerEssaiContrat"), debut == mars ? "1" : "2");
      copier();
      EXPECT_EQ(
          lu({C::DateDebut, C::DateEffet, C::DepartGrille}),
          debut + " " + debut + "|" + juin + " " + (depart == mars ? debut : depart) + "|" + juin);
    }
    debuter("01/06/2026");
    EXPECT_EQ(messages().substr(0, 60),
              "Voulez-vous enregistrer les modifications apportées à cet ");
    EXPECT_EQ(txt("DatDebContrat").Text(), "");
    quitter(screen::Reponse::Non);
    messages();
  }
}

// The copy made on leaving is in the contract in hand already when the checks run; an emptied start
// is the first tab's to refuse.
TEST_F(Fiche, QuitterEnEnregistrantCompareAuDebutSurFichier) {
  const std::string question =
      "Voulez-vous enregistrer les modifications apportées à cet article ?|";
  const struct {
    Attributs contrat;
    const char* debut;
    std::string message;
  } cas[] = {
      {{{C::PeriodeTraitee, "202603"}},
       "01/05/2026",
       "Impossible de modifier la date de début : un bulletin a déjà été calculé pour ce contrat."},
      {{{C::DateFin, jour("30/06/2026")}}, "", "La date de début de contrat est obligatoire."}};
  // Without a start, the end reaches back over an earlier contract.
  contrat("00001002", {{C::DateDebut, jour("01/01/2025")}, {C::DateFin, jour("31/12/2025")}});
  for (const auto& [attributs, debut, message] : cas) {
    ouvrirContrat(attributs);
    debuter(debut);
    quitter(screen::Reponse::Oui);
    EXPECT_EQ(messages() + actif(), question + message + "Txt_DatDebContrat");
    EXPECT_TRUE(editeur->Visible());
    EXPECT_EQ(fiche()(C::DateDebut), jour("01/03/2026"));
  }
}

// Term, minimum length, insecurity bonus open and ticked; modulation shown and ticked; shares.
TEST_F(Fiche, LesOptionsMontrentCeQuiLesConcerne) {
  ouvrirContrat();
  const auto apres = [&](screen::OptionButton& option) {
    cliquer(option);
    const screen::CheckBox& precarite = cac("PrecaLibContrat");
    std::string etats;
    for (const bool etat : {txt("DatFinContrat").Visible(), txt("DureeMinContrat").Visible(),
                            precarite.Enabled(), precarite.Value() == 1, cdr("Lissage").Visible(),
                            cac("Lissage").Value() == 1, lst("RepartActContrat").Visible()}) {
      etats += etat ? '1' : '0';
    }
    return etats;
  };
  EXPECT_EQ(apres(opt("Determine")), "1111000");
  EXPECT_EQ(apres(opt("Indetermine")), "0000000");
  EXPECT_EQ(apres(opt("Mensuel")), "0000100");
  EXPECT_EQ(apres(opt("Administratif")), "0000101");  // modulation follows the pay basis
  EXPECT_EQ(apres(opt("Production")), "0000100");
  cac("Lissage").SetValue(1);
  EXPECT_EQ(apres(opt("Horaire")), "0000000");
}

TEST_F(Fiche, LesActivitesSuiventConventionStatutEtDebut) {
  // Period, activities, group, OK, Annuler, shares: "o" open, "x" disabled, "-" hidden.
  const auto groupe = [&] {
    onglet(editor::ElementsPaie);
    std::string etats;
    for (const screen::Field* champ : std::initializer_list<const screen::Field*>{
             &cbo("PeriodeEffetAffichage"), &cbo("Activite"), &cdr("AffectActiv"),
             &cmd("OKActivite"), &cmd("AnnulerActivite"), &lst("RepartActContrat")}) {
      etats += !champ->Visible() ? '-' : champ->Enabled() ? 'o' : 'x';
    }
    onglet(editor::Origine);
    return etats;
  };
  nouveau("01", "001");
  cliquer(opt("Administratif"));
  EXPECT_EQ(groupe(), "xxxxxo");
  debuter("05/01/2027");
  EXPECT_EQ(groupe(), "oooxxo");
  const Attributs administratif{{C::Statut, "A"}};
  const struct {
    Attributs contrat;
    int droit;
    const char* attendu;
  } cas[] = {{{{C::Convention, "02"}, {C::Employeur, "00007"}}, 2, "-oo--- Mandat"},
             {{{C::Convention, "02"}, {C::Employeur, "00007"}, {C::Activites, "001MAN"}},
              2,
              "------ Mandat"},
             {{}, 2, "-oooo- Domicile"},
             {administratif, 1, "ooo-oo Domicile|Mandat"},
             {administratif, 2, "oooooo Domicile|Mandat"}};
  for (const auto& [autres, droit, attendu] : cas) {
    if (droit == 1) editeur.reset();
    droits = session::DroitsUniformes(droit);
    ouvrirContrat(autres);
    const std::string etats = groupe();
    EXPECT_EQ(etats + " " + lignes(cbo("Activite")), attendu);
  }
}

TEST_F(Fiche, UneErreurDeLectureNeLaissePasDeCodeNonVerifie) {
  nouveau("02", "001");
  for (int appel = 1; appel <= 3; ++appel) {
    stockage->EchouerAppel(appel);
    EXPECT_THROW(taper(txt("EmplEtabContrat"), "00007"), data::StoreError) << appel;
    EXPECT_EQ(txt("EmplEtabContrat").Text() + cbo("LibEmplEtabContrat").Text() +
                  txt("PrevContrat").Text(),
              "");
  }
  taper(cbo("LibEmplEtabContrat"), "mar");
  stockage->EchouerAppel(1);
  EXPECT_THROW(User(*editeur).Touche(cbo("LibEmplEtabContrat"), screen::ToucheEntree),
               data::StoreError);
  EXPECT_TRUE(editeur->Enabled() && !hote.curseur.EnAttente());
}

}  // namespace
