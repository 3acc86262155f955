#include "dialogs/frm_motif_cdd.h"

#include "data/texte.h"
#include "dialogs/ligne_remplace.h"
#include "essai_dialogue.h"

namespace dialogs {
namespace {

const std::vector<int> Motif{9, 10, 113, 114, 115, 137};
// 01/03/2026 is day 21245, 01/02/2026 day 21217, 15/03/2026 day 21259.
constexpr const char* Debut = "01/03/2026";
const std::string Martin = "00002|MARTIN Hélène|Maladie du 01/02/26 au 15/03/26|000020921217";
const std::string MartinConges =
    "00002|MARTIN Hélène|Congés payés du 26/03/26 au 05/04/26|000020521270";

class MotifCDD : public EssaiDialogue {
 protected:
  MotifCDD() { articles("Les articles du motif d'embauche"); }

  std::unique_ptr<Frm_MotifCDD> creer(const session::Droits& d, const std::string& debut = Debut,
                                      const std::string& convention = "01") {
    session.CodeAidant = "00001";
    session.W_Droits = &d;
    return std::make_unique<Frm_MotifCDD>(hote.platform, dossier, debut,
                                          ContexteMotif{convention, "001", "00007"});
  }
  static std::string saisie(const Frm_MotifCDD& f) {
    return f.Txt_CodeAidant.Text() + "|" + f.Cbo_AidantRemplace.Text() + "|" +
           f.Cbo_Absence.Text() + "|" + f.Txt_CodeAbs.Text();
  }
  // List, Ajouter, OK, Retour / code, name, absence, Supprimer, Ok, Annuler.
  static std::string mode(const Frm_MotifCDD& f) {
    std::string texte;
    for (const screen::Field* champ : std::initializer_list<const screen::Field*>{
             &f.Lst_AidantRemplace, &f.Cmd_AjouterAidant, &f.Cmd_OK, &f.Cmd_Retour,
             &f.Txt_CodeAidant, &f.Cbo_AidantRemplace, &f.Cbo_Absence, &f.Cmd_SupprimerAidant,
             &f.Cmd_OkAidant, &f.Cmd_AnnulerAidant}) {
      texte += champ->Enabled() ? '1' : '0';
    }
    return texte.insert(4, "/");
  }
  static std::string lignes(const Frm_MotifCDD& f) {
    std::string texte;
    for (const auto& ligne : f.Lst_AidantRemplace.Rows()) {
      const LigneRemplace l = LireLigne(ligne);
      texte += "[" + l.code + "|" + l.nom + "|" + l.absence + "|" + l.cleAbsence + "]";
    }
    return texte;
  }
  // Gives up the row being added.
  void abandonner(screen::User& user, Frm_MotifCDD& f) {
    hote.messages.Repondre(Reponse::Oui);
    clic(user, f.Cmd_AnnulerAidant);
  }
  // Adds a carer with the absence of that row, -1 for none.
  void ajouter(screen::User& user, Frm_MotifCDD& f, const char* code, int absence) {
    user.Cliquer(f.Cmd_AjouterAidant);
    user.Taper(f.Txt_CodeAidant, code);
    if (absence < 0) user.Taper(f.Cbo_Absence, "");
    if (absence >= 0) user.Choisir(f.Cbo_Absence, absence);
    user.Cliquer(f.Cmd_OkAidant);
  }
};

TEST_F(MotifCDD, UnCodeNEstPrisQuAvecUnContratAuDebut) {
  auto cas = support::table<5>("dialogs/dialogues.md", "L'aidant remplacé, par son code");
  cas.push_back(
      {"\x01\x02" + std::string(10000, '\''), Debut, "01", "E Cet aidant n'existe pas.", "+++"});
  for (const auto& [code, debut, convention, attendue, attendu] : cas) {
    const auto f = creer(lecture, debut, convention);
    montrer(*f, [&, &c = code, &m = attendue, &a = attendu](screen::User& user) {
      user.Cliquer(f->Cmd_AjouterAidant);
      EXPECT_EQ(actif(*f), "Txt_CodeAidant");
      user.Taper(f->Txt_CodeAidant, c);
      user.Touche(f->Txt_CodeAidant, screen::ToucheEntree);
      EXPECT_EQ(message(), m) << c;
      std::string vu = saisie(*f);
      std::replace(vu.begin(), vu.end(), '|', '+');
      EXPECT_EQ(vu, a) << c;
      EXPECT_EQ(actif(*f), "Txt_CodeAidant") << c;
      abandonner(user, *f);
      user.Cliquer(f->Cmd_Retour);
    });
  }
}

TEST_F(MotifCDD, UnNomSeChercheParSonDebut) {
  const auto f = creer(lecture);
  const std::string rien = "E La saisie d'au moins un caractère est nécessaire pour la recherche.";
  montrer(*f, [&](screen::User& user) {
    user.Cliquer(f->Cmd_AjouterAidant);
    // Of "[\"\"" nothing is left that could be searched.
    for (const auto& [nom, attendu] :
         {std::pair<const char*, std::string>{"", rien},
          {"[\"\"", rien},
          {"x\" OR = \"", "I Aucun aidant commençant par X\" OR = \"."},
          {"hélène", "I Aucun aidant commençant par HÉLÈNE."},
          {"martin", ""}}) {
      user.Taper(f->Cbo_AidantRemplace, nom);
      user.Touche(f->Cbo_AidantRemplace, screen::ToucheEntree);
      EXPECT_EQ(message(), attendu);
    }
    // Deleted the day before the start: out. Deleted the day after: in.
    EXPECT_EQ(
        f->Cbo_AidantRemplace.Rows(),
        (std::vector<std::string>{"MARTIN Hélène", "MARTIN Jean", "MARTINEAU-DESCHAMPS Marie"}));
    EXPECT_EQ(saisie(*f), Martin);
    EXPECT_EQ(f->Cbo_Absence.ListCount(), 2);
    user.Choisir(f->Cbo_AidantRemplace, 2);
    EXPECT_EQ(saisie(*f).substr(0, 32), "00006|MARTINEAU-DESCHAMPS Marie|");

    // Code and name never part: the code brings its name, a name not searched goes.
    user.Taper(f->Txt_CodeAidant, "00002");
    EXPECT_EQ(saisie(*f), Martin);
    user.Taper(f->Cbo_AidantRemplace, "MARCHAND");
    user.Taper(f->Cbo_Absence, "Vacances");
    user.Focus(f->Cmd_AnnulerAidant);
    EXPECT_EQ(saisie(*f), "00002|MARTIN Hélène||");
    user.Taper(f->Cbo_AidantRemplace, "");
    EXPECT_EQ(saisie(*f), "|||");
    abandonner(user, *f);
    user.Cliquer(f->Cmd_Retour);
  });
}

TEST_F(MotifCDD, MontreLeContratEtLeRecrit) {
  contrat(
      "9=Remplacement^suite; 10=Mme Avant^^M. Nom de plus de trente-quatre caractères; 113=B; "
      "114=00002^00003^99999; 115=000020921217^^999990200001; 137=02; 12=1");
  const auto f = creer(droits);
  montrer(*f, [&](screen::User& user) {
    EXPECT_EQ(f->Cbo_MotifCDD.Text(), "02 - CDD d'usage");
    EXPECT_EQ(f->Cbo_MotifEmbauche.Text(), "Surcroît");
    EXPECT_EQ(lignes(*f), "[|Mme Avant||][|M. Nom de plus de trente-quatre caract||][" + Martin +
                              "][00003|MARCHAND Luc||][99999|||999990200001]");
    EXPECT_EQ(mode(*f), "1111/000000");
    user.Choisir(f->Cbo_MotifCDD, 0);
    user.Taper(f->Txt_MotifEmbContrat_0, "");
    user.Cliquer(f->Cmd_OK);
  });
  // The free texts close up and keep 34 characters; a missing second absence keeps its place.
  EXPECT_EQ(lu({9, 10, 12, 113, 114, 115, 137}),
            "9=^suite 10=Mme Avant^M. Nom de plus de trente-quatre ca 12=1 113=B "
            "114=00002^00003^99999 115=000020921217^^999990200001 137=01");
}

// What a carer's absences allow, row by row, is played by the scenario nouveau-cdd.
TEST_F(MotifCDD, LaListeSeModifieLigneParLigne) {
  contrat("10=Mme Avant; 114=00002; 115=000020921217");
  const auto f = creer(droits);
  montrer(*f, [&](screen::User& user) {
    // A free text only goes away.
    user.DoubleCliquer(f->Lst_AidantRemplace, 0);
    EXPECT_EQ(saisie(*f) + mode(*f), "|Mme Avant||0000/000101");
    hote.messages.Repondre(Reponse::Oui);
    EXPECT_EQ(clic(user, f->Cmd_SupprimerAidant),
              "EON Etes-vous sûr de vouloir supprimer cette ligne ?");
    EXPECT_EQ(mode(*f), "1111/000000");
    for (const int absence : {0, -1}) {  // the same absence, and none
      ajouter(user, *f, "00002", absence);
      EXPECT_EQ(message(), "I Cet aidant a déjà été ajouté à la liste.");
      EXPECT_EQ(mode(*f), "0000/111011");
      abandonner(user, *f);
    }
    ajouter(user, *f, "00002", 1);
    user.DoubleCliquer(f->Lst_AidantRemplace, 0);
    EXPECT_EQ(mode(*f), "0000/001111");
    user.Cliquer(f->Cmd_OkAidant);
    EXPECT_EQ(lignes(*f), "[" + Martin + "][" + MartinConges + "]");

    user.Cliquer(f->Cmd_AjouterAidant);
    user.Taper(f->Txt_CodeAidant, "00001");
    message();
    EXPECT_EQ(clic(user, f->Cmd_OkAidant), "I L'aidant ne peut pas se remplacer lui-même.");
    // Past 30 characters of a name the same absence is not recognised.
    user.Taper(f->Txt_CodeAidant, "00006");
    user.Cliquer(f->Cmd_OkAidant);
    ajouter(user, *f, "00006", 0);
    EXPECT_EQ(f->Lst_AidantRemplace.ListCount(), 4);
    user.Taper(f->Cbo_MotifEmbauche, "Inconnu");
    EXPECT_EQ(clic(user, f->Cmd_OK), "E La saisie d'un motif d'embauche est obligatoire.");
    EXPECT_EQ(actif(*f), "Txt_MotifEmbContrat(0)");
    user.Taper(f->Cbo_MotifEmbauche, "Surcroît");
    user.Cliquer(f->Cmd_OK);
  });
  EXPECT_EQ(lu(Motif),
            "113=B 114=00002^00002^00006^00006 "
            "115=000020921217^000020521270^000060921217^000060921217 137=03");
}

TEST_F(MotifCDD, RetourDemandeQuandIlYAAPerdre) {
  const struct {
    const session::Droits& droits;
    const char* tape;
    Reponse reponse;  // Ok: nothing is asked
  } cas[] = {{droits, "", Reponse::Ok},
             {droits, "et plus", Reponse::Oui},
             {droits, "et plus", Reponse::Non},
             {droits, "et plus", Reponse::Annuler},
             {lecture, "et plus", Reponse::Ok}};
  for (const auto& c : cas) {
    contrat("9=Motif; 10=Mme Avant; 137=03");
    const auto f = creer(c.droits);
    EXPECT_EQ(f->Cmd_OK.Visible(), &c.droits == &droits);
    montrer(*f, [&](screen::User& user) {
      user.Taper(f->Txt_MotifEmbContrat_1, c.tape);
      if (c.reponse != Reponse::Ok) hote.messages.Repondre(c.reponse);
      EXPECT_EQ(clic(user, f->Cmd_Retour).empty(), c.reponse == Reponse::Ok);
      EXPECT_EQ(f->Visible(), c.reponse == Reponse::Annuler);
      EXPECT_EQ(lu(Motif), c.reponse == Reponse::Oui ? "9=Motif^et plus 10=Mme Avant 137=03"
                                                     : "9=Motif 10=Mme Avant 137=03");
      if (!f->Visible()) return;
      // What the refused leaving had gathered is forgotten.
      user.DoubleCliquer(f->Lst_AidantRemplace, 0);
      hote.messages.Repondre(Reponse::Oui);
      clic(user, f->Cmd_SupprimerAidant);
      user.Cliquer(f->Cmd_OK);
      EXPECT_EQ(lu(Motif), "9=Motif^et plus 137=03");
    });
  }
  EXPECT_EQ(hote.curseur.Bips(), 3);  // with each question
}

// The three reads behind a code: the carer, the contracts, the absences.
TEST_F(MotifCDD, UnePanneRendLEcranEtNeLaisseRienDeNonVerifie) {
  for (int appel = 1; appel <= 3; ++appel) {
    contrat("9=Motif; 114=00001; 137=03");
    const auto f = creer(droits);
    montrer(*f, [&](screen::User& user) {
      store->EchouerAppel(appel);
      EXPECT_THROW(user.DoubleCliquer(f->Lst_AidantRemplace, 0), data::StoreError);
      EXPECT_EQ(mode(*f), "1111/000000") << appel;
      user.Cliquer(f->Cmd_AjouterAidant);
      store->EchouerAppel(appel);
      EXPECT_THROW(user.Taper(f->Txt_CodeAidant, "00002"), data::StoreError);
      EXPECT_TRUE(f->Enabled() && !hote.curseur.EnAttente());
      store->EchouerAppel(0);
      user.Cliquer(f->Cmd_OkAidant);
      EXPECT_EQ(lignes(*f), "[00001|DURAND Anne||][" + Martin + "]") << appel;
      user.Cliquer(f->Cmd_OK);
    });
    EXPECT_EQ(message(), "");
  }
}

TEST_F(MotifCDD, LaTableDesMotifsSeTientAilleurs) {
  contrat("113=B");
  const auto f = creer(droits);
  montrer(*f, [&](screen::User& user) {
    user.Cliquer(f->Cmd_MotifsEmbauche);
    EXPECT_NE(message().find("n'est pas installé"), std::string::npos);
    auto& controle = hote.controles.Ajouter("Ctr_ParamTable");
    hote.modales.Prevoir([&](screen::Form& table) {
      EXPECT_EQ(controle.Journal().back(), "Mode=PARAMAUTREINTERVAIDE");
      article("TABLES", "MOTIFEMBAUCHE", "1=B^C; 2=Surcroît d'activité^Saison");
      controle.Regler("W_Sortir", "0");
      EXPECT_EQ(screen::User(table).Fermer(), Acte::Avale);
      controle.Regler("W_Sortir", "1");
      EXPECT_EQ(screen::User(table).Fermer(), Acte::Fait);
    });
    user.Cliquer(f->Cmd_MotifsEmbauche);
    const auto& journal = controle.Journal();
    EXPECT_EQ(std::vector<std::string>(journal.begin(), journal.begin() + 6),
              (std::vector<std::string>{"TheDatabase=Db", "TheClient=LeClient",
                                        "TheCle=MOTIFEMBAUCHE", "W_Droits=MOTIFS EMBAUCHE",
                                        "DroitsUtilisateur=W_Droits", "init()"}));
    EXPECT_EQ(f->Cbo_MotifEmbauche.Text(), "Surcroît d'activité");
    user.Choisir(f->Cbo_MotifEmbauche, 1);
    user.Cliquer(f->Cmd_OK);
  });
  EXPECT_EQ(lu(Motif), "113=C 137=03");
}

// Cut by characters, one too many on each side. Columns 38 to 97 are compared: a name's end, then
// the label from its column 46.
TEST(LigneRemplace, VaEtVientDansSesColonnes) {
  const auto repete = [](const char* texte, int n) {
    std::string resultat;
    while (n-- > 0) resultat += texte;
    return resultat;
  };
  const std::string nom = repete("é", 35), absence = repete("à", 60);
  const std::string ligne = FaireLigne({"00002", nom + "X", absence + "X", "K"});
  EXPECT_EQ(LireLigne(ligne), (LigneRemplace{"00002", nom, absence, "K"})) << ligne;
  EXPECT_EQ(data::milieu(ligne, 126), "K");
  EXPECT_EQ(AbsenceComparee(ligne), repete("é", 5) + "   " + repete("à", 52));
}

}  // namespace
}  // namespace dialogs
