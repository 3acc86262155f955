#include "control/vue_contrats.h"

#include "essai_liste.h"

namespace {

namespace C = data::Contrat;
using control::EtatContrat;
using essai::jour;

class Vue : public essai::Liste {
 protected:
  // A carer with one contract of each state, the day being 22/11/2026: 001 ended, 002 runs with a
  // presumed end, 003 is cancelled, 004 is to come and ends, 005 runs for ever.
  void remplir() {
    compteur("005");
    contrat(1, "01/01/2020", "21/11/2026", {});
    contrat(2, "01/02/2026", "", {{C::DateFinPresumee, jour("24/01/2027")}});
    contrat(3, "01/01/2026", "", {{C::Annule, "O"}, {C::DateFinPresumee, jour("30/11/2026")}});
    contrat(4, "01/12/2026", "23/01/2028", {});
    contrat(5, "01/01/2024", "", {});
  }
  // What the list shows and says: filter, selected key, words of an empty list, how many it hides.
  std::string dire(const control::VueContrats& vue) const {
    const auto& c = *controle;
    const char* const filtre = c.Opt_Actif.Value() ? "A" : c.Opt_Historique.Value() ? "H" : "T";
    return filtre + std::to_string(c.Lst_Type.ListCount()) + " " + vue.Choisi() + " " +
           vue.DireVide() + "+" + std::to_string(vue.Masques());
  }
};

TEST_F(Vue, CompteEtMeneAChaqueContrat) {
  remplir();
  control::VueContrats vue(ouvrir());
  controle->Affiche("M", "", "A");
  EXPECT_EQ(dire(vue), "A0  Aucun contrat sous ces filtres.+4");
  const control::Compte compte = vue.Compter();
  EXPECT_EQ(compte.enCours * 1000 + compte.aVenir * 100 + compte.termines * 10 + compte.annules,
            2111);
  ASSERT_TRUE(compte.prochaine);
  EXPECT_EQ(data::dateAffichee(compte.prochaine->jour) + compte.prochaine->cle,
            "24/01/202700001002");
  const struct {
    EtatContrat etat;
    const char* attendu;
  } cas[] = {{EtatContrat::EnCours, "A4 00001002 +0"},
             {EtatContrat::AVenir, "A4 00001004 +0"},
             {EtatContrat::Termine, "H1 00001001 +3"}};
  for (const auto& [etat, attendu] : cas) {
    vue.Montrer(etat);
    EXPECT_EQ(dire(vue), attendu);
  }
  // A contract that the filters hide lifts them; a cancelled one has no row.
  EXPECT_TRUE(vue.Choisir("00001005"));
  EXPECT_EQ(dire(vue), "T4 00001005 +0");
  EXPECT_FALSE(vue.Choisir("00001003"));
}

TEST_F(Vue, DecritUnContratParSesLibelles) {
  compteur("003");
  article("ETABLISSEMENT", "001001", {{1, "Siège"}});
  article("CIVILAIDE", "00007", {{2, "MARTIN"}, {3, "Rose"}});
  article("TABLES", "NATURECONTRAT", {{2, "REM"}, {3, "Remplacement"}});
  contrat(1, "01/11/2026", "",
          {{C::Nature, "REM"},
           {C::DateFinPresumee, jour("24/01/2027")},
           {C::PeriodeEssai, "14"},
           {C::EssaiRenouvelable, "1"}});
  contrat(2, "01/12/2026", "", {{C::Convention, "02"}, {C::Employeur, "00007"}});
  contrat(3, "01/12/2025", "31/12/2025", {{C::Employeur, "001009"}, {C::Nature, "ZZ"}});
  const control::VueContrats vue(ouvrir());
  const std::pair<const char*, const char*> cas[] = {
      {"00001001",
       "Contrat 001, en cours\nDates : depuis le 01/11/2026\nÉtablissement : Siège\n"
       "Nature : Remplacement\nFin présumée : 24/01/2027\nFin de l'essai : 14/11/2026 "
       "(renouvelable)"},
      {"00001002", "Contrat 002, à venir\nDates : à partir du 01/12/2026\nEmployeur : MARTIN Rose"},
      {"00001003",
       "Contrat 003, terminé\nDates : du 01/12/2025 au 31/12/2025\nÉtablissement : 001009\n"
       "Nature : ZZ"},
      {"00001004", ""}};
  for (const auto& [cle, attendu] : cas) EXPECT_EQ(vue.Decrire(cle), attendu);
}

TEST_F(Vue, UneListeVideDitPourquoi) {
  control::VueContrats vue(ouvrir());
  EXPECT_EQ(vue.DireVide(), "Choisissez les filtres, puis Recherche (F5).");
  const struct {
    bool supprime;
    int niveau;
    const char* suite;
  } cas[] = {{false, 2, "Ajouter (Inser) en crée un."},
             {true, 2, "Aidant supprimé : aucun contrat ne peut être ajouté."},
             {false, 1, "Consultation : vos droits ne permettent ni ajout ni modification."}};
  for (const auto& [supprime, niveau, suite] : cas) {
    const session::DroitsUniformes essayes(niveau);
    controle->DroitsUtilisateur(essayes);
    controle->W_EtatSuppAidant = supprime;
    controle->Affiche("", "", "");
    EXPECT_EQ(vue.DireVide(), std::string("Cet aidant n'a aucun contrat. ") + suite);
    controle->DroitsUtilisateur(droits);
  }
  // A search that the store breaks off does not say that there is none.
  stockage->EchouerAppel(1);
  EXPECT_THROW(controle->Affiche("", "", ""), data::StoreError);
  stockage->EchouerAppel(0);
  EXPECT_EQ(vue.DireVide(), "Les contrats n'ont pas pu être lus.");
}

}  // namespace
