// The annual follow-up opened from the second tab: what the editor's save makes of it.

#include "data/layouts/voisins.h"
#include "data/store_error.h"
#include "dialogs/frm_contrat_annuel.h"
#include "editeur_essai.h"

namespace {

namespace C = data::Contrat;
using dialogs::Frm_ContratAnnuel;
using screen::Reponse;

class SuiviDansLEditeur : public essai::Editeur {
 protected:
  SuiviDansLEditeur() {
    // January 2026: 31 - 9 - 1 = 21 days of 7,00 h; 150,00 worked, so 3,00 h beyond.
    article("AIDANTTTE", "000010012026",
            {{1, "202601"}, {2, "700"}, {3, "31"}, {4, "9"}, {5, "1"}, {9, "15000"}, {11, "300"}});
    ouvrirContrat(complet({{C::Salaire, "M"}, {C::Lissage, "1"}}));
    onglet(editor::Caracteristiques);
  }
  // The effective time of January becomes that many hours, and the whole is confirmed.
  void corrigerTte(const char* heures) {
    hote.modales.Prevoir([heures](screen::Form& forme) {
      screen::User user(forme);
      auto& f = dynamic_cast<Frm_ContratAnnuel&>(forme);
      user.Onglet(f.Ong_SuivContrat, 1);
      user.DoubleCliquer(f.tempsEffectif.Lst_TTE, 0);
      user.Taper(f.tempsEffectif.Txt_TTE, heures);
      user.Cliquer(f.Cmd_OK);
      user.Cliquer(f.Cmd_OK);
    });
    cliquer(cmd("SuiviAnnuel"));
  }
  std::string solde() {
    return db.OpenFile("AIDANTTTE").Read("000010012026")(data::AidantTte::Solde);
  }
};

// Effective time alone was changed: the question comes although the contract's text is the same.
// What is tried again after a fault, changed meanwhile, is what stands there in the end.
TEST_F(SuiviDansLEditeur, LeTempsEffectifSEcritUneFoisEtEncoreApresUnePanne) {
  corrigerTte("160");
  quitter(Reponse::Non);
  EXPECT_EQ(messages() + solde(),
            "Voulez-vous enregistrer les modifications apportées à cet article ?300");
  ouvrir("00001001");
  onglet(editor::Caracteristiques);
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
