#include "dialogs/frm_elem_droit_public.h"

#include <algorithm>

#include "data/nombre.h"
#include "data/texte.h"
#include "screen/touches.h"

namespace dialogs {

namespace {

namespace C = data::Contrat;
using screen::Icone;

// What the lists offer. An entry is shown with its code in front; `population`: the only one that
// it is offered to, `sauf`: the only one that it is not offered to, nullptr for no such limit.
struct Entree {
  const char* libelle;
  const char* population = nullptr;
  const char* sauf = nullptr;
};

constexpr const char* Fonctionnaire = "40";
constexpr const char* NonFonctionnaire = "43";

constexpr Entree Populations[] = {
    {"40 - Fonctionnaire ou ouvrier d'état"},
    {"43 - Agent de droit public non fonctionnaire"},
};
constexpr Entree Statuts[] = {
    {"011 - Titulaire", Fonctionnaire},
    {"012 - Stagiaire", Fonctionnaire},
    {"030 - Non titulaire", NonFonctionnaire},
    {"054 - Non titulaire sur emploi particulier", NonFonctionnaire},
    {"060 - Emploi aidé de droit public", NonFonctionnaire},
};
constexpr Entree Categories[] = {
    {"10 - A+"}, {"11 - A"}, {"20 - B"}, {"30 - C"}, {"90 - Non concerné", nullptr, Fonctionnaire},
};

constexpr std::string_view FinCode = " - ";

constexpr long long IndiceMin = 100;
constexpr long long IndiceMax = 2500;
constexpr long long PointsMax = 80000;  // x100

data::ListeCodes liste(std::span<const Entree> entrees, const std::string& population) {
  std::vector<data::ListeCodes::Ligne> lignes;
  for (const Entree& e : entrees) {
    if (e.population != nullptr && population != e.population) continue;
    if (e.sauf != nullptr && population == e.sauf) continue;
    const std::string libelle = e.libelle;
    lignes.push_back({libelle.substr(0, libelle.find(FinCode)), libelle});
  }
  return data::ListeCodes(std::move(lignes));
}

void remplir(screen::ComboBox& champ, const data::ListeCodes& codes) {
  champ.Clear();
  for (const auto& ligne : codes.Lignes()) champ.AddItem(ligne.libelle);
}

bool lettre(char32_t touche) {
  return (touche >= U'a' && touche <= U'z') || (touche >= U'A' && touche <= U'Z');
}

// Control keys pass: what the host hands over of them edits or leaves the field.
void chiffresEtLettres(char32_t& touche) {
  if (touche >= U' ' && !screen::estChiffre(touche) && !lettre(touche)) touche = 0;
}

bool horsIndice(const screen::TextField& champ) {
  if (champ.Text().empty()) return false;
  const auto indice = data::enUnites(champ.Text(), 0);
  return !indice || *indice < IndiceMin || *indice > IndiceMax;
}

bool longueurFausse(const screen::TextField& champ, int longueur) {
  return !champ.Text().empty() && data::longueur(champ.Text()) != longueur;
}

}  // namespace

Frm_ElemDroitPublic::Frm_ElemDroitPublic(screen::Platform& platform, session::Dossier& dossier,
                                         int rangAvenant)
    : Dialogue(platform, dossier, "Frm_ElemDroitPublic",
               "Eléments spécifiques fonction publique ou collectivités"),
      rang_(std::max(rangAvenant, 1)),
      rangLu_(rang_),
      populations_(liste(Populations, "")),
      zones_({session::code(Cbo_CodePopEmp, C::PopulationEmploi, populations_).ParAvenant(),
              session::code(Cbo_CodeStaJur, C::StatutJuridique, statuts_).ParAvenant(),
              session::code(Cbo_CodeCatSta, C::CategorieStatutaire, categories_).ParAvenant(),
              session::texte(Txt_CodeEche, C::Echelon).ParAvenant(),
              session::texte(Txt_IndBrut, C::IndiceBrut).ParAvenant(),
              session::texte(Txt_IndMaj, C::IndiceMajore).ParAvenant(),
              session::nombre(Txt_NbPtsNBI, C::PointsNBI, Points, 2).ParAvenant(),
              session::texte(Txt_Grade, C::Grade).ParAvenant(),
              session::texte(Txt_Echelle, C::Echelle).ParAvenant()}) {
  Etq_CodeAidant.SetLibelle(session_.CodeAidant);
  Etq_NomPrenomAidant.SetLibelle(session_.NomPrenomAidant);
  Cmd_Ok.SetVisible(session_.DroitComplet());
  Lier();
  Montrer();
}

void Frm_ElemDroitPublic::Lier() {
  zones_.Lier(session_);
  Cbo_CodePopEmp.Click = Cbo_CodePopEmp.Change =
      sourdine_.SiAudible([this] { Cbo_CodePopEmp_Change(); });
  for (screen::TextField* const champ :
       {&Txt_CodeCorps, &Txt_CodeGrade, &Txt_CodeEmploi, &Txt_CodeEche}) {
    champ->KeyPress = chiffresEtLettres;
  }
  Txt_IndBrut.KeyPress = Txt_IndMaj.KeyPress = screen::chiffresSeuls;
  Txt_NbPtsNBI.KeyPress = [this](char32_t& touche) {
    session_.Lib.FilterKey(Txt_NbPtsNBI.HorsSelection(), touche, false);
    if (touche != screen::ToucheEntree) return;
    touche = 0;
    Cmd_Ok.SetFocus();
    if (Active() == &Cmd_Ok) Cmd_Ok_Click();
  };
  Txt_NbPtsNBI.LostFocus = [this] { Txt_NbPtsNBI_LostFocus(); };
  Cmd_Ok.Click = [this] { Cmd_Ok_Click(); };
  Cmd_Annuler.Click = [this] { Sortir(); };
  Cmd_Retour.Click = [this] { Cmd_Retour_Click(); };
}

// The population decides what the other lists offer, so it is shown first.
void Frm_ElemDroitPublic::Montrer() {
  remplir(Cbo_CodePopEmp, populations_);
  Cbo_CodePopEmp.AddItem("");
  Cbo_CodePopEmp_Change();
  const data::CItem& contrat = dossier_.ItemContrat;
  if (contrat.DCount(C::PopulationEmploi) < rang_) rangLu_ = std::max(rang_ - 1, 1);
  zones_.Montrer(session_.Lib, contrat, rangLu_);
  {
    const session::Sourdine::Silence silence(sourdine_);
    for (screen::ComboBox* const champ : {&Cbo_CodePopEmp, &Cbo_CodeStaJur, &Cbo_CodeCatSta}) {
      session::ChoisirTexte(*champ);
    }
  }
  const std::string emploi = contrat(C::EmploiStatutaire, rangLu_);
  Txt_CodeCorps.SetText(data::gauche(emploi, LongueurCorps));
  Txt_CodeGrade.SetText(data::milieu(emploi, LongueurCorps + 1, LongueurGrade));
  Txt_CodeEmploi.SetText(data::milieu(emploi, LongueurCorps + LongueurGrade + 1, LongueurEmploi));
  data::CItem sauvegarde = contrat;
  Ecrire(sauvegarde);
  ItemSauvegarde_ = sauvegarde.Text();
}

void Frm_ElemDroitPublic::Cbo_CodePopEmp_Change() {
  const std::string population = populations_.Code(Cbo_CodePopEmp.Text());
  const bool connue = !population.empty();
  statuts_ = connue ? liste(Statuts, population) : data::ListeCodes();
  categories_ = connue ? liste(Categories, population) : data::ListeCodes();
  remplir(Cbo_CodeStaJur, statuts_);
  remplir(Cbo_CodeCatSta, categories_);
  if (connue) {
    Cbo_CodeStaJur.SetListIndex(0);
    Cbo_CodeCatSta.SetListIndex(0);
  }
  screen::Activer({&Etq_CodeStaJur, &Cbo_CodeStaJur, &Etq_CodeCatSta, &Cbo_CodeCatSta}, connue);
}

void Frm_ElemDroitPublic::Txt_NbPtsNBI_LostFocus() {
  if (Txt_NbPtsNBI.Text().empty()) return;
  if (const auto texte = session::formater(session_.Lib, Txt_NbPtsNBI.Text(), Points)) {
    Txt_NbPtsNBI.SetText(*texte);
    return;
  }
  MessageBox("Erreur dans la saisie.", screen::Boutons::Ok, Icone::Exclamation);
  Txt_NbPtsNBI.SetFocus();
}

const rules::Verification<Frm_ElemDroitPublic> Frm_ElemDroitPublic::Verifications[7] = {
    {[](Frm_ElemDroitPublic& f) { return longueurFausse(f.Txt_CodeCorps, LongueurCorps); },
     "Le code corps doit être sur 4 caractères.", Icone::Exclamation, "Txt_CodeCorps"},
    {[](Frm_ElemDroitPublic& f) { return longueurFausse(f.Txt_CodeGrade, LongueurGrade); },
     "Le code grade doit être sur 2 caractères.", Icone::Exclamation, "Txt_CodeGrade"},
    {[](Frm_ElemDroitPublic& f) { return longueurFausse(f.Txt_CodeEmploi, LongueurEmploi); },
     "Le code emploi doit être sur 4 caractères.", Icone::Exclamation, "Txt_CodeEmploi"},
    {[](Frm_ElemDroitPublic& f) { return longueurFausse(f.Txt_CodeEche, LongueurEchelon); },
     "Le code échelon doit être sur 3 caractères.", Icone::Exclamation, "Txt_CodeEche"},
    {[](Frm_ElemDroitPublic& f) { return horsIndice(f.Txt_IndBrut); },
     "L'indice brut doit être compris entre 100 et 2500", Icone::Exclamation, "Txt_IndBrut"},
    {[](Frm_ElemDroitPublic& f) { return horsIndice(f.Txt_IndMaj); },
     "L'indice majoré doit être compris entre 100 et 2500", Icone::Exclamation, "Txt_IndMaj"},
    {[](Frm_ElemDroitPublic& f) {
       return data::enUnites(f.Txt_NbPtsNBI.Text(), 2).value_or(0) > PointsMax;
     },
     "Le nombre mensuel de points N.B.I. doit être inférieur ou égal à 800,00", Icone::Exclamation,
     "Txt_NbPtsNBI"},
};

// One of the three codes asks for the other two.
void Frm_ElemDroitPublic::CompleterEmploi() {
  if (Emploi().empty()) return;
  const std::pair<screen::TextField*, int> parties[] = {{&Txt_CodeCorps, LongueurCorps},
                                                        {&Txt_CodeGrade, LongueurGrade},
                                                        {&Txt_CodeEmploi, LongueurEmploi}};
  for (const auto& [champ, longueur] : parties) {
    if (champ->Text().empty()) champ->SetText(data::completeAGauche("", longueur, '0'));
  }
}

std::string Frm_ElemDroitPublic::Emploi() const {
  return Txt_CodeCorps.Text() + Txt_CodeGrade.Text() + Txt_CodeEmploi.Text();
}

void Frm_ElemDroitPublic::Ecrire(data::CItem& contrat) const {
  zones_.Ecrire(session_.Lib, contrat, rang_);
  contrat.Set(C::EmploiStatutaire, rang_, Emploi());
}

void Frm_ElemDroitPublic::Cmd_Ok_Click() {
  CompleterEmploi();
  if (!Verifier<Frm_ElemDroitPublic>(Verifications, *this)) return;
  Ecrire(dossier_.ItemContrat);
  Sortir();
}

void Frm_ElemDroitPublic::Cmd_Retour_Click() {
  data::CItem ecrit = dossier_.ItemContrat;
  Ecrire(ecrit);
  if (session_.DroitComplet() && ecrit.Text() != ItemSauvegarde_ &&
      MessageBox("Souhaitez-vous valider les modifications ?", screen::Boutons::OuiNon,
                 Icone::Question) == screen::Reponse::Oui) {
    Cmd_Ok_Click();
    return;
  }
  Sortir();
}

}  // namespace dialogs
