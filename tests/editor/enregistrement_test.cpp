// What a confirmed editor stores, in what order, and what it leaves when a write fails.

#include <functional>

#include "data/texte.h"
#include "dialogs/frm_reprise.h"
#include "editor/editeur_essai.h"

namespace {

using essai::Acte, essai::jour, essai::valeurs;
using screen::Reponse;
namespace C = data::Contrat;

class Enregistre : public essai::Editeur {
 protected:
  std::string attribut(const std::string& fichier, const std::string& cle, int a) {
    return db.OpenFile(fichier).Read(cle)(a);
  }
  // No fault, no editor and no contract.
  void vider() {
    stockage->EchouerEcriture(0);
    editeur.reset();
    for (const char* fichier : {"CONTRAT", "CONTRATINV", "ACTUSUIVICONTRAT", "LIENCONTRAT",
                                "LIENAVENANT", "CONTRAT00101", "CONTRAT00102", "DSNEVENEMENT"}) {
      std::vector<std::string> cles;
      memoire.Scan(fichier, data::KeyRange::Tout(), [&](auto cle, auto) {
        cles.emplace_back(cle);
        return true;
      });
      for (const auto& cle : cles) memoire.Erase(fichier, cle);
    }
    article("CIVILAIDANT", "00001", {{2, "DURAND"}, {41, "001"}});
  }
  // The fixed-term contract 001 alone, over before the new one, whose leave can be taken over.
  void precedent(const std::string& fin, Attributs autres = {}) {
    vider();
    autres.merge(Attributs{{C::Type, "D"},
                           {C::DateDebut, jour("01/01/2025")},
                           {C::DateFin, jour(fin)},
                           {C::DernierBulletin, "202605"},
                           {C::PrimePrecarite, "1"}});
    contrat("00001001", autres);
    article("DETAILCALCUL", "00001001202605", {{1, "F"}});
  }
  // The user of the restart dialog.
  void repondreReprise(const std::function<void(dialogs::Frm_Reprise&)>& utilisateur) {
    hote.modales.Prevoir([utilisateur](screen::Form& form) {
      utilisateur(dynamic_cast<dialogs::Frm_Reprise&>(form));
    });
  }
  void accepterReprise(bool conges) {
    repondreReprise([conges](dialogs::Frm_Reprise& f) {
      screen::User user(f);
      if (conges) user.Cliquer(f.Cac_CpPerenne);
      user.Cliquer(f.Cmd_Ok);
    });
  }
};

// Counter and free numbers; contracts on file, "-" for cancelled ones; the number taken, counter
// and free numbers afterwards, and what is told.
TEST_F(Enregistre, ChoisitLeNumero) {
  const struct {
    const char *dernier, *libres, *presents, *numero, *apres, *message;
  } cas[] = {
      {"", "", "", "001", "001^", ""},
      {"009", "", "", "010", "010^", ""},
      {"009", "005|007", "", "005", "009^007", ""},
      // The record of a cancelled contract does not keep its number from being given back; the
      // counter's own numbers never fall on a record.
      {"009", "005", "005-", "005", "009^", ""},
      {"009", "005|007", "005", "007", "009^",
       "Un contrat de cet aidant porte déjà le numéro 005 : le nouveau contrat prend le numéro "
       "007."},
      {"009", "005", "005 010-", "011", "011^",
       "Des contrats de cet aidant portent déjà les numéros 005, 010 : le nouveau contrat prend le "
       "numéro 011."},
      // What was given back is a number, however it was written.
      {"009", "x|5", "", "005", "009^", ""},
      {"999", "", "", "", "999^",
       "Cet aidant n'a plus de numéro de contrat libre : 999 ont été donnés."},
  };
  for (const auto& [dernier, libres, presents, numero, apres, message] : cas) {
    vider();
    article("CIVILAIDANT", "00001", {{2, "DURAND"}, {41, dernier}, {42, valeurs(libres)}});
    for (const std::string& present : data::mots(presents)) {
      contrat("00001" + present.substr(0, 3), {{C::Annule, present.ends_with('-') ? "O" : ""},
                                               {C::Association, "002"},
                                               {C::Employeur, "002001"}});
    }
    creerContrat("01/12/2026");
    cliquer(cmd("OK"));
    EXPECT_EQ(messages(), message) << dernier << libres;
    EXPECT_EQ(attribut("CIVILAIDANT", "00001", 41) + "^" + attribut("CIVILAIDANT", "00001", 42),
              apres);
    if (*numero != '\0') {
      EXPECT_EQ(cle(), "00001" + std::string(numero));
      EXPECT_EQ(lisible(fiche(cle()), {C::DateDebut, C::Annule}), "21520 ");
    }
    for (const std::string& present : data::mots(presents)) {
      if (present.substr(0, 3) == numero) continue;
      EXPECT_EQ(fiche("00001" + present.substr(0, 3))(C::Employeur), "002001");
    }
  }
}

TEST_F(Enregistre, ProposeCeQuiVientDuContratPrecedent) {
  const struct {
    const char* fin;
    const char* anciennete;  // proposed
    const char* prime;       // of the previous contract, afterwards
  } cas[] = {
      // Seniority from 01/06/2024, 2,5 suspended days (2 whole ones) and the gap.
      {"30/11/2026", "03/06/2024", "0"},
      {"28/11/2026", "05/06/2024", "0"},
      {"27/11/2026", "", "1"},
  };
  for (const auto& [fin, anciennete, prime] : cas) {
    precedent(fin,
              {{C::DateAnciennete, jour("01/06/2024")}, {C::JoursSuspensionAnciennete, "250"}});
    creerContrat("01/12/2026");
    std::string montre;
    repondreReprise([&](dialogs::Frm_Reprise& f) {
      montre = f.Txt_DateDeb.Text() + " " + f.Txt_DateFin.Text() + " " + f.Txt_DebAnc.Text() + " " +
               f.Txt_JoursSuspAnc.Text() + " " + f.Txt_DateRefAnc.Text();
      EXPECT_EQ(f.Txt_DebAncRecalc.Text(), anciennete) << fin;
      EXPECT_TRUE(f.Opt_Cdd.Value());
      screen::User user(f);
      EXPECT_EQ(user.Cliquer(f.Cac_CpPerenne), Acte::Fait);
      user.Cliquer(f.Cmd_Ok);
    });
    enregistrer();
    EXPECT_EQ(montre, "01/01/2025 " + std::string(fin) + " 01/06/2024 2,5 03/06/2024");
    EXPECT_EQ(lisible(fiche("00001002"), {C::DateAnciennete, C::CongesReprisDe}),
              jour(anciennete) + " 00001001");
    EXPECT_EQ(stocke({C::CongesReportesSur, C::PrimePrecarite}), "00001002 " + std::string(prime));
  }
}

// Refusing it altogether is tried after a fault, below; an event that was not sent yet goes away in
// a scenario.
TEST_F(Enregistre, LaRepriseSeLimiteAuxDatesOuPrendLesConges) {
  for (const bool conges : {false, true}) {
    precedent("30/11/2026");
    article("DSNEVENEMENT", "00001001", {{1, "E"}, {2, "1"}});
    creerContrat("01/12/2026");
    accepterReprise(conges);
    cliquer(cmd("OK"));
    EXPECT_EQ(lisible(fiche("00001002"), {C::DateAnciennete, C::CongesReprisDe}),
              jour("01/01/2025") + (conges ? " 00001001" : " "));
    EXPECT_EQ(stocke({C::CongesReportesSur, C::PrimePrecarite}), conges ? "00001002 0" : " 1");
    EXPECT_EQ(texteDe("DSNEVENEMENT", "00001001"), "E^1");
  }
}

TEST_F(Enregistre, LEvenementSuitLaFinEtLesLiens) {
  // The event of contract 001 before and after: "-" none, else attributes 1 and 2.
  const Attributs particulier{{C::Convention, "02"}, {C::Employeur, "00007"}};
  const Attributs annule{{C::Annule, "O"}};
  const Attributs reporte{{C::Type, "D"}, {C::CongesReportesSur, "00001002"}};
  const Attributs reprend{{C::CongesReprisDe, "00001001"}};
  const Attributs reprendDetermine{{C::CongesReprisDe, "00001001"}, {C::Type, "D"}};
  const struct {
    const char* nom;
    Attributs contrat;
    bool finChangee;
    Attributs lie;  // contract 002
    std::string avant;
    std::string apres;
  } cas[] = {
      {"nothing changed", {}, false, {}, "-", "-"},
      {"an end", {}, true, {}, "-", "^1"},
      {"an end, event known", {}, true, {}, "E", "E^1"},
      {"private employers declare elsewhere", particulier, true, {}, "-", "-"},
      {"cancelled, none", annule, false, {}, "-", "-"},
      {"cancelled, not sent", annule, false, {}, "^1", "-"},
      {"cancelled, sent", annule, false, {}, "E", "E^1"},
      {"fixed term carried over", reporte, true, reprend, "-", "-"},
      {"the same, sent", reporte, true, reprend, "E^1", "E"},
      {"to a contract that does not link back", reporte, true, {}, "-", "^1"},
      {"to another fixed term", reporte, true, reprendDetermine, "-", "^1"},
  };
  for (const auto& [nom, attributs, finChangee, lie, avant, apres] : cas) {
    vider();
    Attributs complet = attributs;
    complet.merge(Attributs{{C::DateFin, jour("30/06/2026")},
                            {C::DernierBulletin, "202606"},
                            {C::MotifEmbauche, "01"},
                            {C::DateFinPresumee, jour("30/06/2026")}});
    contrat("00001001", complet);
    Attributs suivant = lie;
    suivant.merge(Attributs{{C::DateDebut, jour("01/07/2026")}});
    contrat("00001002", suivant);
    if (avant != "-") {
      const auto place = avant.find('^');
      article("DSNEVENEMENT", "00001001",
              {{1, avant.substr(0, place)},
               {2, place == std::string::npos ? "" : avant.substr(place + 1)}});
    }
    ouvrir("00001001");
    if (finChangee) editeur->Dossier().Initial.Set(C::DateFin, "");
    enregistrer(nom);
    EXPECT_EQ(texteDe("DSNEVENEMENT", "00001001"), apres) << nom;
  }
}

// The missions have no end, an earlier one, a later one, and one of another entity.
TEST_F(Enregistre, UneFinSansDernierBulletinSeDitEtFinitLesMissions) {
  article("MISSIONSAIDANT", "00001",
          {{3, valeurs("|21000|22000|22000")}, {13, valeurs("001|001|001|002")}});
  ouvrirContrat({{C::DateFin, jour("30/06/2026")}});
  cliquer(cmd("OK"));
  EXPECT_EQ(messages(),
            "Une date de fin de contrat a été créée, veuillez arrêter de travailler sur cet "
            "ordinateur et merci d'appeler KORVALDIS.");
  EXPECT_EQ(hote.messages.Tous().back().titre, "");
  const std::string fin = jour("30/06/2026");
  EXPECT_EQ(texteDe("MISSIONSAIDANT", "00001").substr(2),
            fin + "|21000|" + fin + "|22000^^^^^^^^^^001|001|001|002");
}

// The two answers to an overlap of a new contract are played as a whole road by a scenario.
TEST_F(Enregistre, UnChevauchementRetientUnContratSurFichier) {
  contrat("00001001", {{C::DateFin, jour("31/12/2026")}, {C::DernierBulletin, "202612"}});
  contrat("00001002", {{C::DateDebut, jour("01/01/2027")}});
  const std::string avant = tout();
  ouvrir("00001002");
  remplir(txt("DatDebContrat"), "31/12/2026");
  cliquer(cmd("OK"));
  EXPECT_TRUE(editeur->Visible() && editeur->Enabled());
  EXPECT_FALSE(hote.curseur.EnAttente());
  EXPECT_EQ(tout(), avant);
}

// The writes of a road, each failed in turn: the error names file and key, nothing later is there
// and nothing at all while the contract itself does not stand, the screen is the user's again, and
// saving again ends as if nothing had happened.
class Panne : public Enregistre {
 protected:
  void eprouver(const std::function<void()>& preparer, const std::function<void()>& dialogues) {
    preparer();
    dialogues();
    stockage->EchouerEcriture(0);
    cliquer(cmd("OK"));
    const int ecritures = stockage->Ecritures();
    const std::string attendu = tout();
    ASSERT_GT(ecritures, 3);
    for (int n = 1; n <= ecritures; ++n) {
      preparer();
      const std::string saisie = txt("DatDebContrat").Text();
      const std::string avant = tout();
      dialogues();
      stockage->EchouerEcriture(n);
      try {
        cliquer(cmd("OK"));
        FAIL() << "write " << n << " did not fail";
      } catch (const data::StoreError& e) {
        EXPECT_FALSE(e.Fichier().empty() || e.Cle().empty()) << n;
        const std::string dit = e.what();
        EXPECT_EQ(dit.find("Rien n'a été enregistré") != dit.npos, tout() == avant) << dit;
        EXPECT_EQ(dit.find("Enregistrez de nouveau") != dit.npos, tout() != avant) << dit;
      }
      EXPECT_EQ(stockage->Ecritures(), n) << "written after the failure";
      EXPECT_EQ(tout() == avant, cle().empty()) << "half a contract after write " << n;
      EXPECT_TRUE(editeur->Visible() && editeur->Enabled()) << n;
      EXPECT_FALSE(hote.curseur.EnAttente()) << n;
      EXPECT_EQ(txt("DatDebContrat").Text(), saisie) << n;
      stockage->EchouerEcriture(0);
      dialogues();
      enregistrer(n);
      EXPECT_EQ(tout(), attendu) << n;
    }
  }
  // A new contract of the entity, next day to a fixed term whose end is to be declared.
  void saisirUneSuite() {
    precedent("30/11/2026");
    article("DSNEVENEMENT", "00001001", {{2, "1"}});
    creerContrat("01/12/2026");
  }
};

TEST_F(Panne, CreationPourUneEntiteApresUnContrat) {
  eprouver([&] { saisirUneSuite(); }, [&] { accepterReprise(true); });
}

// What an interrupted save has stored is cancelled when the user gives the contract up, and a
// takeover that is refused on the second try is undone.
TEST_F(Panne, ApresUnePanneLeContratSAbandonneOuSeReprendSansConges) {
  for (const bool abandonner : {true, false}) {
    saisirUneSuite();
    const std::string avant = texteDe("CONTRAT", "00001001");
    accepterReprise(true);
    // Previous contract, its event, the contract and the counter; then the mark of the follow-up.
    stockage->EchouerEcriture(5);
    EXPECT_THROW(cliquer(cmd("OK")), data::StoreError);
    EXPECT_NE(texteDe("CONTRAT", "00001001"), avant);
    stockage->EchouerEcriture(0);
    if (abandonner) {
      quitter(screen::Reponse::Oui);
    } else {
      repondreReprise([](dialogs::Frm_Reprise& f) { screen::User(f).Cliquer(f.Cmd_Annuler); });
      cliquer(cmd("OK"));
    }
    EXPECT_FALSE(editeur->Visible());
    EXPECT_EQ(fiche("00001002")(C::Annule), abandonner ? "O" : "");
    EXPECT_EQ(fiche("00001002")(C::CongesReprisDe), "");
    EXPECT_EQ(attribut("CIVILAIDANT", "00001", 41), "002");
    EXPECT_EQ(texteDe("CONTRAT", "00001001"), avant);
    EXPECT_EQ(texteDe("DSNEVENEMENT", "00001001"), "^1");
  }
}

TEST_F(Enregistre, UnAutrePostePrendLeNumeroPendantLaReprise) {
  precedent("30/11/2026");
  creerContrat("01/12/2026");
  repondreReprise([&](dialogs::Frm_Reprise& f) {
    contrat("00001002", {{C::Association, "002"}, {C::Employeur, "002001"}});
    article("CIVILAIDANT", "00001", {{2, "DURAND-PETIT"}, {41, "002"}});
    EXPECT_FALSE(hote.curseur.EnAttente());
    screen::User(f).Cliquer(f.Cmd_Annuler);
  });
  cliquer(cmd("OK"));
  EXPECT_EQ(cle(), "00001003");
  EXPECT_EQ(fiche("00001002")(C::Association), "002");
  EXPECT_EQ(attribut("CIVILAIDANT", "00001", 2), "DURAND-PETIT");
}

// The test of the other contracts is made once more with the write.
TEST_F(Enregistre, UnAutrePosteCreeLeMemeContratPendantLaReprise) {
  precedent("30/11/2026");
  creerContrat("01/12/2026");
  std::string avant;
  repondreReprise([&](dialogs::Frm_Reprise& f) {
    contrat("00001002", {{C::DateDebut, jour("01/12/2026")}});
    avant = tout();
    screen::User(f).Cliquer(f.Cmd_Ok);
  });
  hote.messages.Repondre(Reponse::Ok);
  cliquer(cmd("OK"));
  EXPECT_EQ(messages().substr(0, 25), "Création impossible car ");
  EXPECT_EQ(tout(), avant);
}

// Another station that writes between the guards of a save and its block.
class EntreDeux : public support::RelaisStorage {
 public:
  using RelaisStorage::RelaisStorage;
  std::function<void()> avantUnBloc;
  void EnUnBloc(const std::function<void()>& travail) override {
    if (const auto ecrire = std::exchange(avantUnBloc, nullptr)) ecrire();
    RelaisStorage::EnUnBloc(travail);
  }
};

TEST_F(Enregistre, UnAutrePosteEcritEntreLaQuestionEtLEcriture) {
  const auto entreDeux = std::make_shared<EntreDeux>(*stockage);
  data::Db poste(entreDeux);
  session.Db = &poste;
  session.OuvrirFichiers();
  const struct {
    screen::Tranche reponse;
    bool visible;
    std::string essai;
  } cas[] = {{screen::Tranche::Revenir, true, "45"},
             {screen::Tranche::Garder, false, "45"},
             {screen::Tranche::Remplacer, false, "30"}};
  for (const bool ok : {true, false}) {
    for (const auto& [reponse, visible, essai] : cas) {
      ouvrirContrat();
      taper(txt("PerEssaiContrat"), "30");
      entreDeux->avantUnBloc = [&] { contrat("00001001", {{C::PeriodeEssai, "45"}}); };
      hote.conflits.Repondre(reponse);
      confirmer(ok);
      EXPECT_EQ(stocke({C::PeriodeEssai}), essai);
      EXPECT_EQ(editeur->Visible(), visible);
      const auto conflit = hote.conflits.Prendre();
      ASSERT_TRUE(conflit && conflit->ecarts.size() == 1);
      EXPECT_EQ(conflit->ecarts[0].surFichier + " " + conflit->ecarts[0].ici, "45 30");
      EXPECT_FALSE(hote.conflits.Prendre()) << "asked once";
      messages();
    }
  }
}

// What the steps before have put into the contract stays, unless the user takes over a date.
TEST_F(Enregistre, LaRepriseRefuseeNeRetireRien) {
  for (const bool acceptee : {false, true}) {
    precedent("30/11/2026", {{C::DateAnciennete, jour("01/02/2024")}});
    creerContrat("01/12/2026");
    onglet(editor::Caracteristiques);
    choisir(cbo("GrilleContrat"), 0);
    remplir(txt("DepartGrilContrat"), "05/01/2026");
    remplir(txt("DateAnciennete"), "06/01/2026");
    editeur->Dossier().ItemContrat.Set(C::CongesReprisDe, "00001009");
    repondreReprise([&](dialogs::Frm_Reprise& f) {
      screen::User(f).Cliquer(acceptee ? f.Cmd_Ok : f.Cmd_Annuler);
    });
    cliquer(cmd("OK"));
    EXPECT_EQ(fiche("00001002")(C::DepartGrille), jour("05/01/2026"));
    EXPECT_EQ(fiche("00001002")(C::DateAnciennete),
              acceptee ? jour("01/02/2024") : jour("06/01/2026"));
    EXPECT_EQ(fiche("00001002")(C::CongesReprisDe), "00001009");
  }
}

// Every attempt starts from the records as they were before the first one.
TEST_F(Panne, UneSecondeTentativeOublieLaPremiere) {
  saisirUneSuite();
  article("ETABLISSEMENT", "001002", {{1, "Annexe"}});
  const std::string avant = texteDe("CONTRAT", "00001001") + texteDe("DSNEVENEMENT", "00001001");
  accepterReprise(true);
  stockage->EchouerEcriture(5);
  EXPECT_THROW(cliquer(cmd("OK")), data::StoreError);
  stockage->EchouerEcriture(0);
  EXPECT_NE(texteDe("CONTRAT", "00001001") + texteDe("DSNEVENEMENT", "00001001"), avant);
  // Another establishment has no contract before.
  remplir(txt("EmplEtabContrat"), "002");
  enregistrer();
  EXPECT_EQ(texteDe("CONTRAT", "00001001") + texteDe("DSNEVENEMENT", "00001001"), avant);
  EXPECT_EQ(fiche("00001002")(C::Employeur), "001002");
  EXPECT_EQ(fiche("00001002")(C::CongesReprisDe), "");
}

// A contract of a private employer given up after its last write failed: but for its own record,
// which is a cancelled one, nothing of it is left. While the store goes on failing, the user is
// told what stands, and gets out.
TEST_F(Panne, UneCreationAMoitieSeQuitte) {
  const auto preparer = [&] {
    vider();
    article("CONTRATINV", "0000100007", {{1, "001"}});
    creerContrat("01/12/2026", "02", "00007");
  };
  preparer();
  stockage->EchouerEcriture(0);
  cliquer(cmd("OK"));
  const int derniere = stockage->Ecritures();
  for (const bool encore : {false, true}) {
    preparer();
    stockage->EchouerEcriture(derniere);
    EXPECT_THROW(cliquer(cmd("OK")), data::StoreError);
    EXPECT_EQ(attribut("CIVILAIDANT", "00001", 40), jour("01/12/2026"));
    // A write whose answer is lost may have reached the file.
    if (!encore) memoire.Put("CONTRAT00102", "00001002", "");
    stockage->EchouerEcriture(encore ? 1 : 0);
    quitter(Reponse::Oui);
    EXPECT_FALSE(editeur->Visible());
    const std::string vus = messages();
    EXPECT_EQ(vus.find("Le contrat 002 a été enregistré en partie") != std::string::npos, encore);
    EXPECT_EQ(fiche("00001002")(C::Annule), encore ? "" : "O");
    EXPECT_EQ(attribut("CIVILAIDANT", "00001", 40), encore ? jour("01/12/2026") : "");
    EXPECT_EQ(texteDe("CONTRATINV", "0000100007"), encore ? "001|002" : "001");
    EXPECT_EQ(texteDe("CONTRAT00102", "00001002"), "-");
  }
}

TEST_F(Panne, CreationPourUnParticulier) {
  eprouver(
      [&] {
        vider();
        creerContrat("01/12/2026", "02", "00007");
      },
      [] {});
}

}  // namespace
