#include "dialogs/frm_rub_saisie.h"

#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/monnaie.h"
#include "data/nombre.h"
#include "data/requete.h"

namespace dialogs {

namespace {

namespace C = data::Contrat;
using screen::Icone;

constexpr const char* Inconnue = "Cette rubrique de saisie n'existe pas.";

enum { Base, TauxNombre, MontantNombre };

// Columns of a heading that follow its label: the kind of base, rate and amount, then what the
// heading itself gives: rate, amount, coefficient.
enum Suite : std::size_t { GenreBase, GenreTaux, GenreMontant, Taux, Montant, Coefficient };

}  // namespace

long long MontantCalcule(long long base, long long taux) {
  constexpr long long DemiCentieme = 5000;  // both in millionths
  constexpr long long Centieme = 10000;
  return (base * taux + DemiCentieme) / Centieme;
}

const Frm_RubSaisie::Nombre Frm_RubSaisie::Nombres[3] = {
    {&Ligne::base, C::RubriqueBase, 2, Frm_RubSaisie::Montant},
    {&Ligne::taux, C::RubriqueTaux, 4, Frm_RubSaisie::Taux},
    {&Ligne::montant, C::RubriqueMontant, 2, Frm_RubSaisie::Montant},
};

Frm_RubSaisie::Frm_RubSaisie(screen::Platform& platform, session::Dossier& dossier,
                             ContexteRubriques contexte)
    : DialogueLignes(platform, dossier, "Frm_RubSaisie", "Rubriques de saisie"),
      contexte_(std::move(contexte)) {
  Etq_Aidant.SetLibelle("Aidant : " + session_.CodeAidant + " " + session_.NomPrenomAidant);
  screen::Montrer({&Cmd_Ajouter, &Cmd_OK, &Cmd_Supprimer}, session_.DroitComplet());
  for (const auto& activite : contexte_.activites) Cbo_Activite.AddItem(activite.libelle);
  Lier();
  Remplir_RubSaisie();
  Afficher_Donnees();
  Finir();
}

void Frm_RubSaisie::Lier() {
  Txt_Code.KeyPress = [this](char32_t& touche) {
    if (touche == screen::ToucheEntree) rubrique_.Completer();
  };
  for (const int n : {Base, TauxNombre, MontantNombre}) {
    session::LierNombre(
        session_, Saisie(n), Nombres[n].forme,
        n == Base ? screen::Handler([this] { Txt_Base_LostFocus(); }) : screen::Handler());
  }
  colonnes_.SurDoubleClic = [this](int ligne) { Descendre_Liste(ligne); };
  Cmd_Ajouter.Click = [this] { Cmd_Ajouter_Click(); };
  Cmd_Supprimer.Click = [this] { Cmd_Supprimer_Click(); };
  Cmd_OK.Click = [this] { Cmd_Ok_Click(); };
  Cmd_Annuler.Click = [this] { Cmd_Annuler_Click(); };
  Cmd_Retour.Click = [this] { Cmd_Retour_Click(); };
}

session::RegleCode Frm_RubSaisie::RegleRubrique() {
  session::RegleCode regle;
  regle.longueur = LongueurCode;
  regle.completee = session::RegleCode::ADroite;
  regle.inconnu = Inconnue;
  regle.icone = Icone::Exclamation;
  regle.tape = session::RegleCode::Nomme;
  regle.choisi = [this] { AppliquerGenres(); };
  return regle;
}

// Display.

void Frm_RubSaisie::Remplir_RubSaisie() {
  using namespace data;
  rubrique_.Remplir(ListeCodes::DeSelection(
      Requete(fichier::RUBSAISIE)
          .Avec(RubSaisie::Filtre, "=", citer("0"))
          .Avec(RubSaisie::Exclue, "<>", citer("1"))
          .Par(RubSaisie::Libelle)
          .Lire(*session_.Db, {Cle, RubSaisie::Libelle, RubSaisie::GenreBase, RubSaisie::GenreTaux,
                               RubSaisie::GenreMontant, RubSaisie::Taux, RubSaisie::Montant,
                               RubSaisie::Coefficient})));
}

screen::TextField& Frm_RubSaisie::Saisie(int nombre) {
  return nombre == Base ? Txt_Base : nombre == TauxNombre ? Txt_Taux : Txt_Montant;
}

// What is no number stays as it is, so that a wrong record is seen.
std::string Frm_RubSaisie::Afficher(const std::string& valeur, int nombre) const {
  if (!data::enUnites(valeur, 0)) return valeur;
  const auto& [champ, attribut, echelle, forme] = Nombres[nombre];
  const data::Monnaie montant =
      echelle == 2 ? data::Monnaie::DeCentiemes(valeur) : data::Monnaie::DeDixMilliemes(valeur);
  const std::string texte = montant.Texte(forme.apres, session_.Lib.DecimalSeparator());
  return session::formater(session_.Lib, texte, forme).value_or(texte);
}

void Frm_RubSaisie::Afficher_Donnees() {
  const data::CItem& contrat = dossier_.ItemContrat;
  const data::DbFile rubriques = session_.Db->OpenFile(data::fichier::RUBSAISIE);
  for (int v = 1; !contrat.Vue(C::RubriqueCode, v).empty(); ++v) {
    Ligne ligne{contrat(C::RubriqueCode, v), contrat(C::RubriqueBase, v),
                contrat(C::RubriqueTaux, v), contrat(C::RubriqueMontant, v)};
    data::CItem rubrique;
    data::CItem activite;
    rubriques.Lire(ligne.code, rubrique);
    const std::string code = contrat(C::RubriqueActivite, v);
    if (!contexte_.administratif) session_.F_ACTIVITES.Lire(code, activite);
    colonnes_.Ajouter({ligne.code, rubrique(data::RubSaisie::Libelle), Afficher(ligne.base, Base),
                       Afficher(ligne.taux, TauxNombre), Afficher(ligne.montant, MontantNombre),
                       activite(data::Activites::Libelle)});
    lignes_.push_back(std::move(ligne));
    Lst_CodeActSelect_.push_back(code);
  }
}

// Kinds.

std::string Frm_RubSaisie::Genre(int nombre) const {
  const auto* const rubrique = rubrique_.Lignes().ParCode(Txt_Code.Text());
  if (rubrique == nullptr) return {};
  constexpr std::size_t Colonnes[] = {GenreBase, GenreTaux, GenreMontant};
  return rubrique->suite[Colonnes[nombre]];
}

// To the first field that is typed.
void Frm_RubSaisie::AppliquerGenres() {
  baseCalculee_.clear();
  for (const int n : {Base, TauxNombre, MontantNombre}) AppliquerGenre(n);
  for (const int n : {Base, TauxNombre, MontantNombre}) {
    if (!Saisie(n).Enabled()) continue;
    Saisie(n).SetFocus();
    return;
  }
}

void Frm_RubSaisie::AppliquerGenre(int nombre) {
  const auto& suite = rubrique_.Lignes().ParCode(Txt_Code.Text())->suite;
  screen::TextField& champ = Saisie(nombre);
  const std::string genre = Genre(nombre);
  const auto fermer = [&](const std::string& valeur) {
    champ.SetEnabled(false);
    champ.SetText(valeur);
  };
  if (genre == "0") {
    champ.SetEnabled(true);
  } else if (genre == "1" && nombre == Base) {
    champ.SetEnabled(true);
    champ.SetText("");
  } else if (genre == "1") {
    fermer(Afficher(suite[nombre == TauxNombre ? Suite::Taux : Suite::Montant], nombre));
  } else if (nombre == Base || (nombre == TauxNombre && genre == "3")) {
    fermer(Afficher("0", nombre));
  } else if (nombre == TauxNombre && genre == "2") {
    fermer("0");
  } else if (nombre == MontantNombre && genre == "2") {
    champ.SetEnabled(false);
  }
}

// A base of kind 1 is a quantity, which the heading turns into its own unit. What it has made is
// not made again when the field is left once more.
void Frm_RubSaisie::Txt_Base_LostFocus() {
  if (!enCreation_ || Genre(Base) != "1" || Txt_Base.Text().empty()) return;
  if (Txt_Base.Text() == baseCalculee_) return;
  const long long quantite = data::enUnites(Txt_Base.Text(), 0).value_or(0);
  const auto* const rubrique = rubrique_.Lignes().ParCode(Txt_Code.Text());
  const long long coefficient = data::entier(rubrique->suite[Coefficient]);
  Txt_Base.SetText(Afficher(std::to_string(coefficient * quantite), Base));
  baseCalculee_ = Txt_Base.Text();
}

// Entry.

void Frm_RubSaisie::Griser_Liste(bool saisie) {
  colonnes_.Activer(!saisie);
  screen::Activer({&Txt_Code, &Cbo_LibRub}, enCreation_);
  screen::Activer({&Txt_Base, &Txt_Taux, &Txt_Montant, &Cbo_Activite}, saisie);
  screen::Activer({&Cmd_Ajouter, &Cmd_Retour}, !saisie);
  Cmd_Supprimer.SetEnabled(saisie && !enCreation_);
}

void Frm_RubSaisie::Vider_Texte() {
  const session::Sourdine::Silence silence(sourdine_);
  rubrique_.Vider();
  for (const int n : {Base, TauxNombre, MontantNombre}) Saisie(n).SetText("");
  Cbo_Activite.SetListIndex(-1);
  baseCalculee_.clear();
}

void Frm_RubSaisie::Liberer() {
  Vider_Texte();
  Griser_Liste(false);
}

void Frm_RubSaisie::Cmd_Ajouter_Click() {
  enCreation_ = true;
  Vider_Texte();
  Griser_Liste(true);
  const bool seule = contexte_.activites.size() == 1 && !contexte_.administratif;
  if (seule) Cbo_Activite.SetListIndex(0);
  Cbo_Activite.SetEnabled(!seule && !contexte_.administratif);
  Txt_Code.SetFocus();
}

// A heading that can no longer be chosen leaves the contract with its line.
void Frm_RubSaisie::Descendre_Liste(int ligne) {
  const std::string code = lignes_[static_cast<std::size_t>(ligne)].code;
  const auto* const rubrique = rubrique_.Lignes().ParCode(code);
  if (rubrique == nullptr) {
    colonnes_.Retirer(ligne);
    lignes_.erase(lignes_.begin() + ligne);
    Lst_CodeActSelect_.erase(Lst_CodeActSelect_.begin() + ligne);
    return;
  }
  ligne_ = ligne;
  Griser_Liste(true);
  rubrique_.Afficher(code, rubrique->libelle);
  AppliquerGenres();
  const auto textes = colonnes_.A(ligne);
  for (const int n : {Base, TauxNombre, MontantNombre}) {
    Saisie(n).SetText(textes[static_cast<std::size_t>(n) + 2]);
  }
  for (std::size_t a = 0; a < contexte_.activites.size(); ++a) {
    if (contexte_.activites[a].code == Lst_CodeActSelect_[static_cast<std::size_t>(ligne)]) {
      Cbo_Activite.SetListIndex(static_cast<int>(a));
    }
  }
  Cbo_Activite.SetEnabled(!contexte_.administratif && contexte_.activites.size() > 1);
}

const rules::Verification<Frm_RubSaisie> Frm_RubSaisie::Verifications[5] = {
    {[](Frm_RubSaisie& f) {
       return f.rubrique_.Lignes().ParLibelle(f.Cbo_LibRub.Text()) == nullptr;
     },
     "La rubrique de saisie n'existe pas, veuillez la ressaisir.", Icone::Exclamation, "Cbo_LibRub",
     [](Frm_RubSaisie& f) { f.Cbo_LibRub.SetText(""); }},
    {[](Frm_RubSaisie& f) { return f.Txt_Base.Enabled() && f.Txt_Base.Text().empty(); },
     "La base de la rubrique de saisie est obligatoire.", Icone::Exclamation, "Txt_Base"},
    {[](Frm_RubSaisie& f) { return f.Txt_Taux.Enabled() && f.Txt_Taux.Text().empty(); },
     "Le taux de la rubrique de saisie est obligatoire.", Icone::Exclamation, "Txt_Taux"},
    {[](Frm_RubSaisie& f) { return f.Txt_Montant.Enabled() && f.Txt_Montant.Text().empty(); },
     "Le montant de la rubrique de saisie est obligatoire.", Icone::Exclamation, "Txt_Montant"},
    {[](Frm_RubSaisie& f) { return !f.contexte_.administratif && f.Cbo_Activite.Text().empty(); },
     "L'activité est obligatoire.", Icone::Exclamation, "Cbo_Activite"},
};

// The line in hand goes into the lists; a number that was not touched stays as it is on file.
bool Frm_RubSaisie::Ranger() {
  if (!Verifier<Frm_RubSaisie>(Verifications, *this)) return false;
  if (enCreation_ && Genre(MontantNombre) == "2") {
    const long long montant =
        MontantCalcule(data::enUnites(Txt_Base.Text(), Nombres[Base].echelle).value_or(0),
                       data::enUnites(Txt_Taux.Text(), Nombres[TauxNombre].echelle).value_or(0));
    Txt_Montant.SetText(Afficher(std::to_string(montant), MontantNombre));
  }
  Ligne ligne = enCreation_ ? Ligne() : lignes_[static_cast<std::size_t>(ligne_)];
  ligne.code = Txt_Code.Text();
  std::vector<std::string> textes{Txt_Code.Text(), Cbo_LibRub.Text()};
  for (const int n : {Base, TauxNombre, MontantNombre}) {
    const auto& [champ, attribut, echelle, forme] = Nombres[n];
    if (enCreation_ || Saisie(n).Text() != Afficher(ligne.*champ, n)) {
      const auto unites = data::enUnites(Saisie(n).Text(), echelle);
      ligne.*champ = unites ? std::to_string(*unites) : std::string();
    }
    textes.push_back(Afficher(ligne.*champ, n));
  }
  textes.push_back(Cbo_Activite.Text());
  const int choisie = Cbo_Activite.ListIndex();
  const std::string activite =
      choisie < 0 ? "" : contexte_.activites[static_cast<std::size_t>(choisie)].code;
  if (enCreation_) {
    lignes_.push_back(ligne);
    Lst_CodeActSelect_.resize(lignes_.size());
    Lst_CodeActSelect_.back() = activite;
    colonnes_.Ajouter(textes);
  } else {
    lignes_[static_cast<std::size_t>(ligne_)] = ligne;
    if (!contexte_.administratif) Lst_CodeActSelect_[static_cast<std::size_t>(ligne_)] = activite;
    colonnes_.Remplacer(ligne_, textes);
  }
  return true;
}

// The activities stay where they are, on purpose: each line below takes that of the line above it,
// and the clerk looks them through.
void Frm_RubSaisie::Cmd_Supprimer_Click() {
  if (!SuppressionConfirmee()) return;
  colonnes_.Retirer(ligne_);
  lignes_.erase(lignes_.begin() + ligne_);
  Finir();
}

void Frm_RubSaisie::Copier_Champs(data::CItem& contrat) const {
  for (const int a : C::GroupeRubriques) contrat.Set(a, "");
  for (std::size_t i = 0; i < lignes_.size(); ++i) {
    const int v = static_cast<int>(i) + 1;
    contrat.Set(C::RubriqueCode, v, lignes_[i].code);
    for (const Nombre& nombre : Nombres) {
      contrat.Set(nombre.attribut, v, lignes_[i].*nombre.champ);
    }
    contrat.Set(C::RubriqueActivite, v, Lst_CodeActSelect_[i]);
  }
}

}  // namespace dialogs
