// The annual follow-up opened from the second tab: what the editor's save makes of it.

#include "data/layouts/voisins.h"
#include "data/store_error.h"
#include "dialogs/frm_contrat_annuel.h"
#include "editeur_essai.h"

namespace {

namespace C = data::Contrat;
using dialogs::Frm_ContratAnnuel;
using screen::Reponse;

constexpr const char* Question =
    "Voulez-vous enregistrer les modifications apportées à cet article ?";

class SuiviDansLEditeur : public essai::Editeur {
 protected:
  SuiviDansLEditeur() {
    // January 2026: 31 - 9 - 1 = 21 days of 7,00 h; 150,00 worked, so 3,00 h beyond.
    article("AIDANTTTE", "000010012026",
            {{1, "202601"}, {2, "700"}, {3, "31"}, {4, "9"}, {5, "1"}, {9, "15000"}, {11, "300"}});
    article("AIDANTTTE", "000010012025", {{1, "202512"}, {2, "700"}});
    ouvrirContrat({{C::Salaire, "M"},
                   {C::Statut, "P"},
                   {C::Qualification, "Agent"},
                   {C::CodePCS, "563b"},
                   {C::CategoriePCS, "Services"},
                   {C::FonctionPCS, "Aide à domicile"},
                   {C::Coefficient, "270000"},
                   {C::TauxHoraire, "12020"},
                   {C::DureeTravail, "3500"},
                   {C::Frequence, "1"},
                   {C::Lissage, "1"},
                   {C::ChangementSituation, "0"},
                   {C::SuiviPeriode, "202601"},
                   {C::SuiviHeures, "15167"},
                   {C::SuiviReel, "15167"}});
    screen::User(*editeur).Onglet(editeur->Ong_Contrat, 1);
    avant = texte("CONTRAT", "00001001");
  }
  std::string texte(const char* fichier, const std::string& cle) {
    data::CItem item;
    return db.OpenFile(fichier).Lire(cle, item) ? item.Text() : "absent";
  }
  void suivre(const std::function<void(Frm_ContratAnnuel&, screen::User&)>& actes) {
    hote.modales.Prevoir([&](screen::Form& forme) {
      screen::User user(forme);
      actes(dynamic_cast<Frm_ContratAnnuel&>(forme), user);
    });
    cliquer(cmd("SuiviAnnuel"));
  }
  // The effective time of January becomes that many hours, and the whole is confirmed.
  void corrigerTte(const char* heures) {
    suivre([&](Frm_ContratAnnuel& f, screen::User& user) {
      user.Onglet(f.Ong_SuivContrat, 1);
      user.DoubleCliquer(f.tempsEffectif.Lst_TTE, 0);
      user.Taper(f.tempsEffectif.Txt_TTE, heures);
      user.Cliquer(f.Cmd_OK);
      user.Cliquer(f.Cmd_OK);
    });
  }
  std::string solde() {
    return db.OpenFile("AIDANTTTE").Read("000010012026")(data::AidantTte::Solde);
  }

  std::string avant;
};

// Changed there alone: the question comes although the contract's text is the same.
TEST_F(SuiviDansLEditeur, EffectiveTimeIsStoredUnderItsKey) {
  corrigerTte("160");
  EXPECT_EQ(solde(), "300");
  quitter(Reponse::Non);
  EXPECT_EQ(messages(), Question);
  EXPECT_EQ(solde(), "300");
  ouvrir("00001001");
  screen::User(*editeur).Onglet(editeur->Ong_Contrat, 1);
  corrigerTte("160,5");
  quitter(Reponse::Oui);
  EXPECT_EQ(messages(), Question);
  EXPECT_EQ(solde(), "1350");
  EXPECT_EQ(texte("AIDANTTTE", "000010012025"),
            data::CItem(std::string("202512") + data::SepAttribut + "700").Text());
}

TEST_F(SuiviDansLEditeur, PaidHoursAreStoredWithTheContract) {
  suivre([&](Frm_ContratAnnuel& f, screen::User& user) {
    user.Cliquer(f.Cmd_Ajouter);
    user.Choisir(f.remunere.Cbo_Periode, 1);
    user.Taper(f.remunere.Txt_HresParContrat, "140,25");
    user.Cliquer(f.Cmd_OK);
    user.Cliquer(f.Cmd_OK);
  });
  EXPECT_EQ(texte("CONTRAT", "00001001"), avant);
  quitter(Reponse::Oui);
  const data::CItem contrat = db.OpenFile("CONTRAT").Read("00001001");
  EXPECT_EQ(contrat(C::SuiviPeriode), essai::valeurs("202601|202602"));
  EXPECT_EQ(contrat(C::SuiviHeures), essai::valeurs("15167|14025"));
  EXPECT_EQ(solde(), "300");
}

// A look writes nothing at all, and asks nothing.
TEST_F(SuiviDansLEditeur, AVisitChangesNothing) {
  suivre([&](Frm_ContratAnnuel& f, screen::User& user) {
    user.Onglet(f.Ong_SuivContrat, 1);
    user.Cliquer(f.Opt_Precedent);
    user.Cliquer(f.Cmd_Retour);
  });
  stockage->EchouerEcriture(0);
  cliquer(editeur->Cmd_Retour);
  EXPECT_EQ(messages(), "");
  EXPECT_EQ(stockage->Ecritures(), 0);
  EXPECT_EQ(texte("CONTRAT", "00001001"), avant);
}

// The follow-up's record cannot be written: what is tried again afterwards, changed meanwhile, is
// what stands there in the end.
TEST_F(SuiviDansLEditeur, AFailedWriteIsTriedAgain) {
  corrigerTte("160");
  // The contract, the mark of the carer, then the follow-up.
  stockage->EchouerEcriture(3);
  EXPECT_THROW(quitter(Reponse::Oui), data::StoreError);
  EXPECT_EQ(solde(), "300");
  corrigerTte("170");
  quitter(Reponse::Oui);
  EXPECT_EQ(solde(), "2300");
}

}  // namespace
