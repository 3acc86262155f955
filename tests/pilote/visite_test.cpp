// Looking is not changing: a contract that is opened, looked at on every tab and in every state,
// and left is the one on file, byte for byte, but for what stands in the table below.

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <set>

#include "data/layouts/contrat.h"
#include "demo/generateur.h"
#include "editor/editeur.h"
#include "screen/headless/hote.h"
#include "screen/user.h"
#include "storage/memory.h"

namespace {

namespace C = data::Contrat;

constexpr long Aujourdhui = 21511;  // 22/11/2026

// Attributes that a visit rewrites on purpose.
const std::map<int, const char*> Reecrits = {
    {C::PopulationEmploi, "the public-law elements go on up to the last amendment"},
    {C::StatutJuridique, "the same"},
    {C::EmploiStatutaire, "the same"},
    {C::Echelon, "the same"},
    {C::CategorieStatutaire, "the same"},
    {C::IndiceBrut, "the same"},
    {C::IndiceMajore, "the same"},
    {C::PointsNBI, "the same"},
    {C::Lissage, "pay by the hour is not evened out"},
    {C::Modulation, "what is not evened out has no modulation"},
    {C::PaiementParEntite, "the entity pays, unless the employer is a private one"},
    {C::ConstanteB, "a constant that the hiring declaration reads"},
    {C::PartsActivites, "production staff do not split their time"},
    {C::PeriodeEffet, "the same"},
    {C::PeriodesEffetAnterieures, "the same"},
    {C::ActivitesAnterieures, "the same"},
    {C::PartsAnterieures, "the same"},
};

class Visite : public ::testing::Test {
 protected:
  void preparer(int aidants) {
    demo::genererDemo(memoire, {.aidants = aidants, .graine = 1, .aujourdhui = Aujourdhui});
    session.Db = &db;
    session.OuvrirFichiers();
    // A clerk without full rights leaves without a question; what is on the screen is copied alike.
    session.W_Droits = &droits;
    editeur = std::make_unique<editor::Frm_ElementsContrat>(hote.platform, session);
  }
  // Opens, walks, leaves; the attributes that differ then.
  std::set<int> visiter(const std::string& cle) {
    session.CodeAidant = cle.substr(0, 5);
    editeur->Ouvrir(cle);
    editeur->Show();
    const data::CItem avant = editeur->Dossier().Initial;
    screen::User user(*editeur);
    const int onglets = static_cast<int>(editeur->Onglets().size());
    for (int n = 1; n < onglets; ++n) user.Onglet(editeur->Ong_Contrat, n);
    user.Onglet(editeur->Ong_Contrat, editor::Caracteristiques);
    auto& barre = dynamic_cast<screen::UpDown&>(*editeur->Find("Bdh_Avenant"));
    for (int n = 0; n <= barre.Max(); ++n) user.Barre(barre, n);
    user.Onglet(editeur->Ong_Contrat, editor::Origine);
    user.Cliquer(editeur->Cmd_Retour);
    EXPECT_FALSE(editeur->Visible()) << cle;
    const data::CItem& apres = editeur->Dossier().ItemContrat;
    std::set<int> differents;
    if (apres.Text() == avant.Text()) return differents;
    for (int a = 1; a <= std::max(avant.DCount(), apres.DCount()); ++a) {
      if (avant.Vue(a) != apres.Vue(a)) differents.insert(a);
    }
    return differents;
  }
  static std::string valeurs(std::string texte) {
    for (char& c : texte) c = c == '|' ? data::SepValeur : c;
    return texte;
  }

  screen::headless::Hote hote{Aujourdhui};
  storage::MemoryStorage memoire{hote.poste};
  data::Db db{std::shared_ptr<data::Storage>(&memoire, [](auto*) {})};
  session::Session session{hote.poste};
  session::DroitsUniformes droits{1};
  std::unique_ptr<editor::Frm_ElementsContrat> editeur;
};

TEST_F(Visite, LaisseChaqueContratTelQuel) {
  preparer(2000);
  std::vector<std::string> cles;
  memoire.Scan("CONTRAT", data::KeyRange::Tout(), [&](auto cle, auto) {
    cles.emplace_back(cle);
    return true;
  });
  ASSERT_GT(cles.size(), 4000U);
  for (const auto& cle : cles) {
    for (const int a : visiter(cle)) {
      EXPECT_TRUE(Reecrits.contains(a)) << "attribute " << a << " of " << cle;
    }
    if (HasFailure()) break;
  }
}

// Records that no clerk would have made: what is wrong in them stays as it is, and each line of the
// table has one that needs it.
TEST_F(Visite, NeChangeAucunContratBizarreHorsDeLaTable) {
  preparer(1);
  using Attributs = std::map<int, std::string>;
  const struct {
    const char* nom;
    Attributs attributs;
    std::set<int> reecrits;
  } cas[] = {
      {"nothing but a start", {}, {}},
      {"payment that nobody gave",
       {{C::PaiementParEntite, ""}, {C::ConstanteB, ""}},
       {C::PaiementParEntite, C::ConstanteB}},
      {"a production contract that splits its time",
       {{C::Activites, "001DOM"},
        {C::PartsActivites, "10000"},
        {C::PeriodeEffet, "202601"},
        {C::PeriodesEffetAnterieures, "202501"},
        {C::ActivitesAnterieures, "001DOM"},
        {C::PartsAnterieures, "10000"}},
       {C::PartsActivites, C::PeriodeEffet, C::PeriodesEffetAnterieures, C::ActivitesAnterieures,
        C::PartsAnterieures}},
      {"no amendment number", {{C::Avenant, ""}, {C::DateEffet, ""}, {C::TauxHoraire, ""}}, {}},
      {"codes that no table knows",
       {{C::Qualification, "Autre"},
        {C::CodePCS, "1"},
        {C::CategoriePCS, "Rien"},
        {C::FonctionPCS, "Rien non plus"},
        {C::Grille, "ZZ"},
        {C::DepartGrille, "demain"},
        {C::Frequence, "9"}},
       {}},
      {"numbers that are none",
       {{C::Coefficient, "abc"},
        {C::TauxHoraire, "12,5x"},
        {C::DureeTravail, "99999999999999999999"},
        {C::JoursSuspensionGrille, "deux"},
        {C::JoursSuspensionAnciennete, "00"},
        {C::DateAnciennete, "31/02/2020"}},
       {}},
      {"a grid that has no date and a category by hand",
       {{C::Grille, "01A1"}, {C::Categorie, "K"}, {C::TauxHoraire, ""}, {C::DepartGrille, ""}},
       {}},
      {"empty flags", {{C::Lissage, ""}, {C::ChangementSituation, ""}}, {}},
      {"evened out, paid by the hour",
       {{C::Lissage, "1"}, {C::Modulation, "C"}},
       {C::Lissage, C::Modulation}},
      {"evened out, monthly", {{C::Salaire, "M"}, {C::Lissage, "1"}, {C::Modulation, "X"}}, {}},
      {"public law that stops before the last amendment",
       {{C::Convention, "07"},
        {C::Avenant, valeurs("0|01|02")},
        {C::DateEffet, valeurs("21000|21100|21200")},
        {C::PopulationEmploi, "40"},
        {C::StatutJuridique, "011"},
        {C::EmploiStatutaire, "0123010007"},
        {C::Echelon, "001"},
        {C::CategorieStatutaire, "30"},
        {C::IndiceBrut, "367"},
        {C::IndiceMajore, "340"},
        {C::PointsNBI, "1000"},
        {C::Grade, "Agent"}},
       {std::begin(C::GroupeDroitPublic), std::end(C::GroupeDroitPublic)}},
  };
  std::set<int> rencontres;
  for (const auto& [nom, attributs, reecrits] : cas) {
    data::CItem contrat = db.OpenFile("CONTRAT").NewItem("00001900");
    Attributs tous = attributs;
    tous.merge(Attributs{{C::Convention, "01"},
                         {C::Association, "001"},
                         {C::Employeur, "001001"},
                         {C::Type, "I"},
                         {C::Salaire, "H"},
                         {C::Statut, "P"},
                         {C::DateDebut, "21000"},
                         {C::PaiementParEntite, "1"},
                         {C::ConstanteB, "B"},
                         {C::Avenant, "0"},
                         {C::DateEffet, "21000"}});
    for (const auto& [a, texte] : tous) contrat.Set(a, texte);
    contrat.DBWrite();
    const std::set<int> differents = visiter("00001900");
    EXPECT_EQ(differents, reecrits) << nom;
    rencontres.insert(differents.begin(), differents.end());
  }
  for (const auto& [attribut, raison] : Reecrits) {
    EXPECT_TRUE(rencontres.contains(attribut)) << attribut << ": " << raison;
  }
}

}  // namespace
