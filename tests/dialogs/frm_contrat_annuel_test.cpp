// The annual follow-up: its acts on both tabs, what they leave in the dossier, and that giving up
// leaves nothing.

#include "dialogs/frm_contrat_annuel.h"

#include <random>

#include "data/texte.h"
#include "essai_dialogue.h"

namespace dialogs {

namespace {

constexpr const char* SupprimerLigne = "EON Etes-vous sûr de vouloir supprimer cette ligne ?";

class SuiviAnnuel : public EssaiDialogue {
 protected:
  SuiviAnnuel() {
    sansTitre = "";
    session.CodeAidant = "00001";
    session.NomPrenomAidant = "MARTIN Rose";
    session.W_Droits = &droits;
    dossier.CleContratCourant = "00001002";
    article("ASSOCIATION", "001", "25=0");
    article("ETABLISSEMENT", "001001", "24=12");
    article("CONVENTIONCOL", "01", "1=Branche");
    article("CONVENTIONCOL", "03", "45=T");
    // January: 8,33 h beyond; February: 4,67 h missing, 2 h regularised. 2025: 1,50 h missing.
    contrat(
        "1=01; 3=001001; 71=202512; 72=10000; 74=9850; 75=-150; 76=202601^202602; 77=15167^15167; "
        "78=0^700; 79=16000^14000; 80=833^-467; 100=0^200");
  }
  std::string texteDe(const char* fichier, const std::string& cle) {
    data::CItem item;
    return db.OpenFile(fichier).Lire(cle, item) ? item.Text() : "absent";
  }

  // Opens the follow-up to a user who leaves it closed.
  void ouvrir(const std::function<void(Frm_ContratAnnuel&, screen::User&)>& actes,
              const EmployeurSuivi& employeur = {"01", "001", "001001"}) {
    Frm_ContratAnnuel forme(hote.platform, dossier, employeur);
    montrer(forme, [&](screen::User& user) { actes(forme, user); });
    EXPECT_EQ(message(), "");
  }
  void repondre(std::initializer_list<Reponse> reponses) {
    for (const Reponse reponse : reponses) hote.messages.Repondre(reponse);
  }

  // No answer, and no box, is left over.
  void oublierReponses() {
    while (!hote.messages.ReponsesRestantes().empty()) {
      hote.messages.Montrer({"", screen::Boutons::OuiNon, screen::Icone::Aucune, ""});
    }
    while (hote.messages.Prendre()) {
    }
  }

  static std::string joint(std::initializer_list<const screen::ListBox*> listes, int ligne) {
    std::string texte;
    for (const auto* const liste : listes) {
      texte += (texte.empty() ? "" : "|") + data::sansBlancs(liste->List(ligne));
    }
    return texte + "\n";
  }
  static std::string lignes(const Frm_ContratAnnuel& f) {
    const SuiviEnRemunere& p = f.remunere;
    std::string texte;
    for (int i = 0; i < p.Lst_Solde.ListCount(); ++i) {
      texte += joint({&p.Lst_Periode, &p.Lst_HresParContrat, &p.Lst_HresAbs, &p.Lst_HresForfait,
                      &p.Lst_HresReel, &p.Lst_Difference, &p.Lst_CopieDiff, &p.Lst_DiffCumul,
                      &p.Lst_Regul, &p.Lst_Solde},
                     i);
    }
    return texte;
  }
  static std::string lignesTte(const Frm_ContratAnnuel& f) {
    const SuiviEnTempsEffectif& p = f.tempsEffectif;
    std::string texte;
    for (int i = 0; i < p.Lst_SoldeTTE.ListCount(); ++i) {
      texte += joint({&p.Lst_PeriodeTTE, &p.Lst_HresParContratTTE, &p.Lst_MoisTTE, &p.Lst_SDTTE,
                      &p.Lst_FerieTTE, &p.Lst_CongeTTE, &p.Lst_MalTTE, &p.Lst_AutreTTE,
                      &p.Lst_PotentielJrsTTE, &p.Lst_PotentielHresTTE, &p.Lst_TTE,
                      &p.Lst_DiffMoisTTE, &p.Lst_DiffCumulTTE, &p.Lst_RegulTTE, &p.Lst_SoldeTTE},
                     i);
    }
    return texte;
  }
  // The buttons and fields that take an act, by the ends of their names.
  static std::string accessibles(const Frm_ContratAnnuel& f) {
    std::string texte;
    for (const screen::Field* const champ : f.Fields()) {
      const std::string prefixe = champ->Nom().substr(0, 4);
      const bool compte = prefixe == "Cmd_" || prefixe == "Txt_" || prefixe == "Cbo_" ||
                          prefixe == "Opt_" || prefixe == "Ong_" || champ->Nom() == "Lst_Periode" ||
                          champ->Nom() == "Lst_PeriodeTTE";
      if (compte && champ->Focalisable() && champ->Accessible()) {
        texte += (texte.empty() ? "" : " ") + champ->Nom().substr(4);
      }
    }
    return texte;
  }
};

TEST_F(SuiviAnnuel, CeQuOuvreChaqueMode) {
  const char* const tout = "EnCours Precedent SuivContrat Periode Ajouter Supprimer OK Retour";
  const char* const lu = "EnCours Precedent SuivContrat Periode Retour";
  const char* const ligne = "HresParContrat HresAbs HresReel Difference Regul Supprimer OK Annuler";
  const struct {
    const session::Droits& droits;
    bool precedent;
    const char *repos, *ligne;
  } cas[] = {
      {droits, false, tout, ligne}, {droits, true, lu, "Annuler"}, {lecture, false, lu, "Annuler"}};
  const std::string avant = dossier.ItemContrat.Text();
  for (const auto& c : cas) {
    session.W_Droits = &c.droits;
    ouvrir([&](Frm_ContratAnnuel& f, screen::User& user) {
      if (c.precedent) user.Cliquer(f.Opt_Precedent);
      EXPECT_EQ(accessibles(f), c.repos);
      user.DoubleCliquer(f.remunere.Lst_DiffCumul, 0);
      EXPECT_EQ(accessibles(f), c.ligne);
      user.Cliquer(f.Cmd_Annuler);
      EXPECT_EQ(accessibles(f), c.repos);
      EXPECT_EQ(user.Fermer(), Acte::Avale);
      user.Cliquer(f.Cmd_Retour);
    });
  }
  EXPECT_FALSE(dossier.SuiviModifie);
  EXPECT_EQ(dossier.ItemContrat.Text(), avant);
}

// What is no number of the field keeps the user there, with a hint.
TEST_F(SuiviAnnuel, NImporteQuoiDansLaLigne) {
  ouvrir([&](Frm_ContratAnnuel& f, screen::User& user) {
    SuiviEnRemunere& p = f.remunere;
    user.DoubleCliquer(p.Lst_Periode, 1);
    EXPECT_EQ(p.Txt_Difference.Text(), "-4,67");
    for (screen::TextField* const champ : {&p.Txt_HresParContrat, &p.Txt_HresAbs, &p.Txt_HresReel,
                                           &p.Txt_Difference, &p.Txt_Regul}) {
      const std::string avant = champ->Text();
      for (const char* const texte : {"abc", "1,2,3", "12345", "--1"}) {
        user.Coller(*champ, texte);
        EXPECT_EQ(user.Cliquer(f.Cmd_OK), Acte::Avale) << champ->Nom() << " " << texte;
        EXPECT_EQ(actif(f), champ->Nom()) << texte;
      }
      user.Coller(*champ, avant);
    }
    // Keys: a sign only in front, and only where one is taken.
    user.Taper(p.Txt_HresAbs, "-1-2x,5,5");
    EXPECT_EQ(p.Txt_HresAbs.Text(), "12,55");
    user.Taper(p.Txt_Regul, "-1-2,5");
    EXPECT_EQ(p.Txt_Regul.Text(), "-12,5");
    // A negative difference stays as typed, another is put in form; emptied fields are 0.
    user.Taper(p.Txt_Difference, "-3,5");
    user.Focus(p.Txt_HresReel);
    EXPECT_EQ(p.Txt_Difference.Text(), "-3,5");
    user.Taper(p.Txt_Difference, "3,5");
    user.Taper(p.Txt_HresAbs, "");
    EXPECT_EQ(p.Txt_Difference.Text(), "   3,50");
    user.Focus(p.Txt_Regul);
    EXPECT_EQ(p.Txt_HresAbs.Text() + " " + p.Txt_HresForfait.Text(), "0,00   151,67");
    user.Cliquer(f.Cmd_Annuler);
    EXPECT_EQ(user.Cliquer(f.Cmd_Retour), Acte::Fait);
  });
}

// The answer is No first; leaving with Yes stores.
TEST_F(SuiviAnnuel, SupprimerUneLigneEtLeTout) {
  dossier.SuiviModifie = true;
  ouvrir([&](Frm_ContratAnnuel& f, screen::User& user) {
    user.DoubleCliquer(f.remunere.Lst_Periode, 0);
    repondre({Reponse::Non, Reponse::Oui, Reponse::Non, Reponse::Oui});
    EXPECT_EQ(clic(user, f.Cmd_Supprimer), SupprimerLigne);
    EXPECT_EQ(f.remunere.Txt_HresReel.Text(), "160,00");
    EXPECT_EQ(clic(user, f.Cmd_Supprimer), SupprimerLigne);
    EXPECT_EQ(lignes(f),
              "FÉVRIER 2026|151,67|7,00|144,67|140,00|-  4,67|-  4,67|-  4,67|2,00|-  6,67\n");
    EXPECT_EQ(clic(user, f.Cmd_Supprimer),
              "EON Etes-vous sûr de vouloir supprimer ce suivi de contrat ?");
    EXPECT_EQ(f.remunere.Lst_Periode.ListCount(), 1);
    clic(user, f.Cmd_Supprimer);
    EXPECT_EQ(clic(user, f.Cmd_Supprimer), "");
    EXPECT_EQ(lu({76}), "76=202601^202602");
    repondre({Reponse::Oui});
    clic(user, f.Cmd_Retour);
  });
  EXPECT_EQ(lu({76, 77, 78, 79, 80, 100, 71}), "71=202512");
  EXPECT_FALSE(dossier.SuiviModifie);
}

TEST_F(SuiviAnnuel, UnParticulierClotSonAnnee) {
  dossier.ItemContrat.Set(1, "02");
  article("ETABLISSEMENT", "00100007", "24=08");
  ouvrir(
      [&](Frm_ContratAnnuel& f, screen::User& user) {
        const auto& mois = f.remunere.Cbo_Periode;
        EXPECT_EQ(std::to_string(mois.ListCount()) + " " + mois.List(0) + " " + mois.List(3),
                  "4 SEPTEMBRE 2026 DÉCEMBRE 2026");
        EXPECT_EQ(user.Onglet(f.Ong_SuivContrat, 1), Acte::Inaccessible);
        user.Cliquer(f.Cmd_OK);
      },
      {"02", "001", "00007"});
  EXPECT_EQ(dossier.ItemAidantTte(0), "");
}

// Effective time.

class SuiviTte : public SuiviAnnuel {
 protected:
  SuiviTte() {
    dossier.ItemContrat.Set(1, "03");
    // January: 31 - 10 - 1 = 20 days of 7,00 h, 150,00 worked, 3,00 regularised.
    // March: 31 - 9 - 0,5 = 21,5 days of 7,00 h, 150,00 worked.
    article("AIDANTTTE", "000010022026",
            "1=202601^202603; 2=700^700; 3=31^31; 4=10^9; 5=1^0; 6=0^50; 7=0^0; 8=0^0; "
            "9=15000^15000; 10=300^0; 11=700^650");
  }
  static void saisir(Frm_ContratAnnuel& f, screen::User& user,
                     std::initializer_list<const char*> textes) {
    SuiviEnTempsEffectif& p = f.tempsEffectif;
    screen::TextField* const champs[] = {
        &p.Txt_HresParContratTTE, &p.Txt_SDTTE, &p.Txt_FerieTTE, &p.Txt_CongeTTE, &p.Txt_MalTTE,
        &p.Txt_AutreTTE,          &p.Txt_TTE,   &p.Txt_RegulTTE};
    std::size_t i = 0;
    for (const char* const texte : textes) user.Taper(*champs[i++], texte);
  }
};

constexpr const char* Janvier =
    "JANVIER 2026|7,00|31|10|1|0,0|0|0,0|20,00|140,00|150,00|10,00|10,00|3,00|7,00\n";
constexpr const char* Mars =
    "MARS 2026|7,00|31|9|0|0,5|0|0,0|21,50|150,50|150,00|-  0,50|9,50|0,00|6,50\n";

TEST_F(SuiviTte, UnMoisSInsereParmiLesAutres) {
  const std::string avant = dossier.ItemContrat.Text();
  ouvrir([&](Frm_ContratAnnuel& f, screen::User& user) {
    SuiviEnTempsEffectif& p = f.tempsEffectif;
    EXPECT_EQ(lignesTte(f), std::string(Janvier) + Mars);
    user.Cliquer(f.Cmd_Ajouter);
    EXPECT_EQ(accessibles(f),
              "PeriodeTTE HresParContratTTE SDTTE FerieTTE CongeTTE MalTTE AutreTTE TTE RegulTTE "
              "OK Annuler");
    user.Choisir(p.Cbo_PeriodeTTE, 1);
    // 28 - 8 - 2 - 0,5 = 17,5 days of 7,50 h: 131,25. Worked 130: -1,25. While it is typed, January
    // gives 10,00 + 3,00 and February takes off 1,25 and 2,00.
    saisir(f, user, {"7,5", "8", "", "2", "", "0,5", "130", "2"});
    user.Focus(p.Txt_AutreTTE);
    EXPECT_EQ(p.Txt_DiffCumulTTE.Text() + "|" + p.Txt_SoldeTTE.Text(), "8,75|9,75");
    user.Cliquer(f.Cmd_OK);
    EXPECT_EQ(
        lignesTte(f),
        std::string(Janvier) +
            "FÉVRIER 2026|7,50|28|8|0|2,0|0|0,5|17,50|131,25|130,00|-  1,25|8,75|2,00|3,75\n" +
            "MARS 2026|7,00|31|9|0|0,5|0|0,0|21,50|150,50|150,00|-  0,50|8,25|0,00|3,25\n");
    user.Cliquer(f.Cmd_OK);
  });
  // A glance keeps what is to be stored.
  ouvrir([](Frm_ContratAnnuel& f, screen::User& user) { user.Cliquer(f.Cmd_Retour); });
  EXPECT_EQ(dossier.ItemContrat.Text(), avant);
  EXPECT_TRUE(dossier.SuiviModifie);
  EXPECT_EQ(dossier.ItemAidantTte(0) + " " + lisible(dossier.ItemAidantTte(6)) + " " +
                lisible(dossier.ItemAidantTte(8)) + " " + lisible(dossier.ItemAidantTte(11)),
            "000010022026 0^200^50 0^50^0 700^375^325");
}

// The whole goes, but for its key: that is what is to be erased.
TEST_F(SuiviTte, SupprimeTouteLAnnee) {
  ouvrir([&](Frm_ContratAnnuel& f, screen::User& user) {
    user.DoubleCliquer(f.tempsEffectif.Lst_TTE, 0);
    EXPECT_EQ(accessibles(f),
              "HresParContratTTE SDTTE FerieTTE CongeTTE MalTTE AutreTTE TTE RegulTTE Supprimer OK "
              "Annuler");
    user.Cliquer(f.Cmd_Annuler);
    repondre({Reponse::Oui});
    clic(user, f.Cmd_Supprimer);
    user.Cliquer(f.Cmd_OK);
  });
  EXPECT_EQ(dossier.ItemAidantTte(0) + dossier.ItemAidantTte.Text(), "000010022026");
  EXPECT_TRUE(dossier.SuiviModifie);
}

// Any acts, sensible or not, then No: the dossier is what it was, byte for byte, and so are the
// files. Each failure names its seed.
TEST_F(SuiviTte, RenoncerNeLaisseRien) {
  dossier.ItemContrat.Set(78, "abc");  // ragged and wrong
  const std::string avant = dossier.ItemContrat.Text();
  const std::string article = texteDe("AIDANTTTE", "000010022026");
  for (unsigned graine = 0; graine < 60; ++graine) {
    std::mt19937 alea(graine);
    const auto tirer = [&](std::size_t n) {
      return std::uniform_int_distribution<std::size_t>(0, n - 1)(alea);
    };
    ouvrir([&](Frm_ContratAnnuel& f, screen::User& user) {
      static constexpr const char* Textes[] = {"12",  "151,67", "-3",    "0,005", "",
                                               "abc", "99999",  "7,125", "-",     "31"};
      for (int acte = 0; acte < 150; ++acte) {
        screen::Field& champ = *f.Fields()[tirer(f.Fields().size())];
        if (champ.Nom() == "Cmd_Retour" || (champ.Nom() == "Cmd_OK" && f.Cmd_Retour.Enabled())) {
          continue;
        }
        if (hote.messages.ReponsesRestantes().empty()) repondre({Reponse::Oui});
        switch (champ.Genre()) {
          case screen::Kind::Texte:
            user.Coller(champ, Textes[tirer(std::size(Textes))]);
            break;
          case screen::Kind::Liste:
          case screen::Kind::Deroulante:
            user.DoubleCliquer(champ, static_cast<int>(tirer(4)));
            user.Choisir(champ, static_cast<int>(tirer(12)));
            break;
          case screen::Kind::Onglets:
            user.Onglet(f.Ong_SuivContrat, static_cast<int>(tirer(2)));
            break;
          case screen::Kind::Menu:
            break;
          default:
            user.Cliquer(champ);
        }
      }
      // Whatever holds the focus is emptied, and the line in hand is given up.
      if (f.Active() != nullptr && f.Active()->Genre() == screen::Kind::Texte) {
        user.Taper(*f.Active(), "");
      }
      repondre({Reponse::Oui});
      if (f.Cmd_Annuler.Enabled()) user.Cliquer(f.Cmd_Annuler);
      oublierReponses();
      repondre({Reponse::Non});
      user.Cliquer(f.Cmd_Retour);
      EXPECT_FALSE(f.Visible()) << "seed " << graine;
      oublierReponses();
    });
    ASSERT_EQ(dossier.ItemContrat.Text(), avant) << "seed " << graine;
    ASSERT_EQ(dossier.ItemAidantTte(0), "") << "seed " << graine;
    ASSERT_FALSE(dossier.SuiviModifie) << "seed " << graine;
    ASSERT_EQ(texteDe("AIDANTTTE", "000010022026"), article) << "seed " << graine;
  }
  // Most of them had something to give up.
  EXPECT_GT(hote.curseur.Bips(), 30);
}

}  // namespace

}  // namespace dialogs
