#pragma once
// The editor on a small set of records, driven as a user does. Two entities, agreements "01" to
// "03" and "07", two private employers; the day is 22/11/2026 and the pay period November 2026.
//
//   creer();                               a new contract, as from the list's Ajouter
//   taper(txt("ConvColContrat"), "01");
//   EXPECT_EQ(messages(), "");             the boxes shown since, parted by "|"
//   contrat("00001001", {{...}});          a stored contract: the basic one with other attributes
//   ouvrir("00001001");                    as from a double click
//   ouvrirContrat({{...}});                both, for 00001001
//   quitter(Reponse::Non);                 the button that leaves, and what its question is told

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <vector>

#include "data/jour.h"
#include "data/layouts/contrat.h"
#include "editor/editeur.h"
#include "screen/headless/hote.h"
#include "screen/user.h"
#include "storage/memory.h"
#include "support/faulty_storage.h"

namespace essai {

namespace C = data::Contrat;
using screen::Acte;

inline constexpr long Aujourdhui = 21511;
inline constexpr const char* Aidant = "00001";

// Internal day of a displayed date; "" stays.
inline std::string jour(const std::string& affichee) {
  return affichee.empty() ? "" : std::to_string(data::lireDateAffichee(affichee).value());
}

// A text of several values, written "a|b".
inline std::string valeurs(std::string texte) {
  std::replace(texte.begin(), texte.end(), '|', data::SepValeur);
  return texte;
}

class Editeur : public ::testing::Test {
 protected:
  using Attributs = std::map<int, std::string>;

  Editeur() {
    session.Db = &db;
    article("COMPTEUR", "999", {{18, "1"}});
    article("PERIODESPAIE", "1", {{1, "202611"}});
    article("CONSTANTESPAIE", "1", {{10, "4800"}});
    article("CIVILAIDANT", Aidant, {{2, "DURAND"}, {3, "Anne"}, {41, "001"}});
    libelles("ASSOCIATION", {{"001", "Aide du Val"}, {"002", "Bien Chez Soi"}});
    libelles("CONVENTIONCOL", {{"01", "Branche"}, {"03", "Collectif"}, {"07", "Public"}});
    article("CONVENTIONCOL", "02", {{1, "Particuliers"}, {77, "1"}});
    libelles("ETABLISSEMENT", {{"001001", "Siège"}, {"002001", "Nord"}, {"002002", "Est"}});
    article("ACTIVITES", "001DOM", {{1, "Domicile"}, {12, "P"}});
    article("ACTIVITES", "001MAN", {{1, "Mandat"}, {12, "M"}});
    article("ACTIVITES", "002DOM", {{1, "Domicile"}, {12, "P"}});
    article("ACTIVITES", "002GAR", {{1, "Garde"}, {12, "P"}});
    libelles("GRILLESCC", {{"01B", "Grille B"}, {"01A", "Grille A"}, {"03A", "Grille C"}});
    article("CONTRATSPREV", "10", {{1, "Cadres"}, {2, "x"}, {3, "01"}});
    article("CONTRATSPREV", "20", {{1, "Tous"}, {2, "Employés"}, {3, "03"}});
    article("CONTRATSPREV", "11", {{1, "Autres"}, {3, "01"}});
    article("CONTRATSPREV", "99", {{1, "Aucun"}, {3, "03"}});
    article("ORGANISMESOCIAL", "001B", {{1, "Retraite B"}, {3, "03"}});
    article("ORGANISMESOCIAL", "001A", {{1, "Retraite A"}, {3, "03"}});
    article("ORGANISMESOCIAL", "001M", {{1, "A la mutuelle"}, {3, "01"}});
    article("CIVILAIDE", "00007", {{2, "MARTIN"}, {3, "Rose"}});
    article("CIVILAIDE", "00008", {{2, "MARTINEZ"}, {3, "Luc"}});
    article("CIVILAIDE", "00009", {{3, "Sans nom"}});
    article("ELTSPARTEMP", "00007", {{13, "20"}});
    article("ELTSPARTEMP", "00008", {{2, "R"}});
    article("PROFIL", "P01", {{1, "Intervenant"}, {4, "0"}});
    article("PROFIL", "P02", {{1, "Mandataire"}, {4, "1"}});
    libelles("PCS",
             {{"56", "Services"}, {"563b", "Aide à domicile"}, {"563c", "Employé de maison"}});
    article("TABLES", "QUALIF", {{2, valeurs("Agent|Secrétaire|Cadre")}, {4, valeurs("10|20")}});
    article("TABLES", "REGROUPBUDGET", {{2, valeurs("20|10")}, {3, valeurs("Siège|Terrain")}});
    data::CItem natures = db.OpenFile("TABLES").NewItem("NATURECONTRAT");
    const char* const lignes[][3] = {
        {"CDI", "Normal", "O"}, {"STG", "Stagiaire", "O"}, {"OLD", "Ancien", ""}};
    for (int v = 1; const auto& [code, libelle, choisissable] : lignes) {
      natures.Set(2, v, code);
      natures.Set(3, v, libelle);
      natures.Set(6, v++, choisissable);
    }
    natures.DBWrite();
    session.OuvrirFichiers();
    // Whoever is asked for a printer takes the one that is offered.
    hote.modales.SetPompe([](screen::Form& form) {
      if (form.Nom() != "Frm_ImpressionA4") {
        throw screen::headless::FenetreInattendue("fenêtre inattendue : " + form.Nom());
      }
      screen::User(form).Cliquer(*form.Find("Cmd_Ok"));
    });
  }

  void article(const char* fichier, const std::string& cle, const Attributs& attributs) {
    data::CItem item = db.OpenFile(fichier).NewItem(cle);
    for (const auto& [a, texte] : attributs) item.Set(a, texte);
    item.DBWrite();
  }
  // Records of a label alone.
  void libelles(const char* fichier, const std::map<std::string, std::string>& parCle) {
    for (const auto& [cle, libelle] : parCle) article(fichier, cle, {{1, libelle}});
  }
  // An open-ended hourly contract of entity 001 from 01/03/2026, but for `autres`.
  void contrat(const std::string& cle, Attributs autres = {}) {
    autres.merge(Attributs{{C::Convention, "01"},
                           {C::Association, "001"},
                           {C::Employeur, "001001"},
                           {C::Type, "I"},
                           {C::Salaire, "H"},
                           {C::Statut, "P"},
                           {C::DateDebut, jour("01/03/2026")},
                           {C::EssaiRenouvelable, "0"},
                           {C::Nature, "CDI"},
                           {C::Avenant, "0"},
                           {C::DateEffet, jour("01/03/2026")}});
    article("CONTRAT", cle, autres);
  }
  // What the second and third tab of a contract on file need for its OK.
  static Attributs complet(Attributs autres = {}) {
    autres.merge(Attributs{{C::Qualification, "Agent"},
                           {C::CodePCS, "563b"},
                           {C::CategoriePCS, "Services"},
                           {C::FonctionPCS, "Aide à domicile"},
                           {C::DureeTravail, "2000"},
                           {C::Frequence, "1"},
                           {C::TauxHoraire, "12020"},
                           {C::Profil, "P01"},
                           {C::ModePaiement, "2"},
                           {C::PaiementParEntite, "1"},
                           {C::ConstanteB, "B"},
                           {C::Activites, "001DOM"}});
    return autres;
  }

  void creer() {
    if (!editeur) charger();
    editeur->Creer();
    editeur->Show();
  }
  void ouvrir(const std::string& cle) {
    if (!editeur) charger();
    editeur->Ouvrir(cle);
    editeur->Show();
  }

  void ouvrirContrat(const Attributs& autres = {}) {
    contrat("00001001", autres);
    ouvrir("00001001");
  }
  void onglet(int numero) { screen::User(*editeur).Onglet(editeur->Ong_Contrat, numero); }
  // A new contract of entity 001: the codes and the start alone, or all that its OK needs.
  void origine(const std::string& debut, const char* convention = "01",
               const char* employeur = "001") {
    creer();
    taper(txt("ConvColContrat"), convention);
    taper(txt("AssocContrat"), "001");
    taper(txt("EmplEtabContrat"), employeur);
    remplir(txt("DatDebContrat"), debut);
  }
  void creerContrat(const std::string& debut, const char* convention = "01",
                    const char* employeur = "001", const char* duree = "20") {
    origine(debut, convention, employeur);
    caracteriser(duree);
    payer();
  }
  // What the second tab of a new contract needs for its OK; the agreement gives the profession.
  void caracteriser(const std::string& duree = "20") {
    onglet(editor::Caracteristiques);
    choisir(cbo("QualifContrat"), 0);
    remplir(txt("DureeWContrat"), duree);
    choisir(cbo("FreqWContrat"), 0);
    remplir(txt("TauxHorContrat"), "12,02");
    onglet(editor::Origine);
  }
  void quitter(screen::Reponse reponse) {
    hote.messages.Repondre(reponse);
    cliquer(editeur->Cmd_Retour);
  }

  // What a new contract needs on the pay tab, which proposes the rest.
  void payer() {
    onglet(editor::ElementsPaie);
    taper(txt("ProfilContrat"), editeur->origine.Particuliers() ? "P02" : "P01");
    onglet(editor::Origine);
  }
  // OK stores, and Retour leaves, without a word; OK is refused with that message.
  template <class Cas = const char*>
  void enregistrer(const Cas& cas = "") {
    cliquer(cmd("OK"));
    EXPECT_EQ(messages(), "") << cas;
    EXPECT_FALSE(editeur->Visible()) << cas;
  }
  template <class Cas = const char*>
  void sortir(const Cas& cas = "") {
    cliquer(cmd("Retour"));
    EXPECT_EQ(messages(), "") << cas;
    EXPECT_FALSE(editeur->Visible()) << cas;
  }
  void refuse(const std::string& message) {
    cliquer(cmd("OK"));
    EXPECT_EQ(messages(), message);
    EXPECT_TRUE(editeur->Visible()) << message;
  }
  // The two roads to the store: OK, or Retour and Yes.
  void confirmer(bool ok) {
    if (ok) cliquer(cmd("OK"));
    if (!ok) quitter(screen::Reponse::Oui);
  }
  // The wait is over and the screen is the user's again.
  bool rendu() const {
    return editeur->Visible() && editeur->Enabled() && !hote.curseur.EnAttente();
  }

  const data::CItem& c() { return editeur->Dossier().ItemContrat; }
  // Key of the contract that stands on the screen, or was just created.
  const std::string& cle() { return editeur->Dossier().CleContratCourant; }

  data::CItem fiche(const std::string& cleContrat = "00001001") {
    return db.OpenFile("CONTRAT").Read(cleContrat);
  }
  bool existe(const char* fichier, const std::string& cleArticle) {
    data::CItem item;
    return db.OpenFile(fichier).Lire(cleArticle, item);
  }
  // Attributes parted by blanks, their values by "|": of a stored contract, of the one in hand.
  static std::string lisible(const data::CItem& item, const std::vector<int>& attributs) {
    std::string texte;
    for (const int a : attributs) texte += (a == attributs.front() ? "" : " ") + item(a);
    std::replace(texte.begin(), texte.end(), data::SepValeur, '|');
    return texte;
  }
  std::string stocke(const std::vector<int>& attributs) { return lisible(fiche(), attributs); }
  std::string lu(const std::vector<int>& attributs) { return lisible(c(), attributs); }
  // The record's text with visible separators, "-" for none.
  std::string texteDe(const std::string& fichier, const std::string& cle) {
    std::string texte;
    if (!memoire.Get(fichier, cle, texte)) return "-";
    for (char& c : texte) {
      if (c == data::SepAttribut) c = '^';
      if (c == data::SepValeur) c = '|';
    }
    return texte;
  }
  // Every record, one a line.
  std::string tout() {
    std::string lignes;
    for (const auto& fichier : memoire.Fichiers()) {
      const std::string& nom = fichier.nom;
      memoire.Scan(nom, data::KeyRange::Tout(), [&](auto cle, auto) {
        lignes += nom + " " + std::string(cle) + " " + texteDe(nom, std::string(cle)) + "\n";
        return true;
      });
    }
    return lignes;
  }

  // Fields by name; one that does not exist ends the test.
  template <class Champ>
  Champ& champ(const std::string& nom) {
    return dynamic_cast<Champ&>(*editeur->Find(nom));
  }
  screen::TextField& txt(const std::string& nom) { return champ<screen::TextField>("Txt_" + nom); }
  screen::ComboBox& cbo(const std::string& nom) { return champ<screen::ComboBox>("Cbo_" + nom); }
  screen::OptionButton& opt(const std::string& nom) {
    return champ<screen::OptionButton>("Opt_" + nom);
  }
  screen::CheckBox& cac(const std::string& nom) { return champ<screen::CheckBox>("Cac_" + nom); }
  screen::Button& cmd(const std::string& nom) { return champ<screen::Button>("Cmd_" + nom); }
  screen::ListBox& lst(const std::string& nom) { return champ<screen::ListBox>("Lst_" + nom); }
  screen::Field& etq(const std::string& nom) { return champ<screen::Field>("Etq_" + nom); }
  screen::Frame& cdr(const std::string& nom) { return champ<screen::Frame>("Cdr_" + nom); }
  Acte taper(screen::Field& champ, const std::string& texte) {
    return screen::User(*editeur).Taper(champ, texte);
  }
  Acte cliquer(screen::Field& champ) { return screen::User(*editeur).Cliquer(champ); }
  Acte choisir(screen::Field& champ, int ligne) {
    return screen::User(*editeur).Choisir(champ, ligne);
  }
  // Types, then leaves by Tab.
  void remplir(screen::Field& champ, const std::string& texte) {
    taper(champ, texte);
    screen::User(*editeur).Quitter();
  }
  std::string messages() {
    std::string textes;
    while (const auto message = hote.messages.Prendre()) {
      textes += (textes.empty() ? "" : "|") + message->texte;
    }
    return textes;
  }
  std::string actif() const { return editeur->Active() == nullptr ? "" : editeur->Active()->Nom(); }
  static std::string lignes(const screen::RowsField& liste) {
    std::string texte;
    for (const auto& ligne : liste.Rows()) texte += (texte.empty() ? "" : "|") + ligne;
    return texte;
  }

  screen::headless::Hote hote{Aujourdhui};
  storage::MemoryStorage memoire{hote.poste};
  std::shared_ptr<support::FaultyStorage> stockage =
      std::make_shared<support::FaultyStorage>(memoire);
  data::Db db{stockage};
  session::Session session{hote.poste};
  session::DroitsUniformes droits{2};
  std::unique_ptr<editor::Frm_ElementsContrat> editeur;

 private:
  void charger() {
    session.W_Droits = &droits;
    session.CodeAidant = Aidant;
    session.NomPrenomAidant = "DURAND Anne";
    editeur = std::make_unique<editor::Frm_ElementsContrat>(hote.platform, session);
  }
};

}  // namespace essai
