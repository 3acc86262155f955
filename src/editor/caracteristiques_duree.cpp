#include "editor/caracteristiques_duree.h"

#include <algorithm>

#include "data/nombre.h"
#include "editor/editeur.h"
#include "screen/attente.h"

namespace editor {

namespace {

namespace C = data::Contrat;

// Row n is stored as n + 1.
constexpr const char* Frequences[] = {"Hebdo", "Quatorzaine", "Mensuelle", "Annuelle"};

}  // namespace

DureeTravail::DureeTravail(Frm_ElementsContrat& editeur, const Avenants& avenants,
                           screen::Frame& page)
    : editeur_(editeur), avenants_(avenants), page_(page) {
  for (const char* frequence : Frequences) Cbo_FreqWContrat.AddItem(frequence);
}

std::vector<session::Zone> DureeTravail::Zones() {
  return {session::nombre(Txt_DureeWContrat, C::DureeTravail, Duree, 2).ParAvenant(),
          session::ligne(Cbo_FreqWContrat, C::Frequence).ParAvenant()};
}

void DureeTravail::Quitter() {
  if (DureeFreq() != DureeFreqInitiale_) tempsQuittes_[avenants_.Rang()] = Temps();
}

bool DureeTravail::Verif_NbHeures() {
  auto temps = tempsQuittes_;
  const bool changees = editeur_.Dossier().ModeCreation ? !DureeManque() && !FrequenceManque()
                                                        : editeur_.caracteristiques.Charge() &&
                                                              DureeFreq() != DureeFreqInitiale_;
  if (changees) temps[avenants_.Rang()] = Temps();
  return std::all_of(temps.begin(), temps.end(),
                     [this](const auto& etat) { return HeuresPermises(etat.second); });
}

rules::TempsTravail DureeTravail::Temps() const {
  return {data::enUnites(Txt_DureeWContrat.Text(), 2).value_or(0), Cbo_FreqWContrat.ListIndex() + 1,
          editeur_.Session().Lib.LireDate(avenants_.DateEffet()).value_or(0),
          editeur_.origine.Debut().value_or(0)};
}

bool DureeTravail::HeuresPermises(const rules::TempsTravail& temps) {
  std::optional<rules::AvisHeures> avis;
  {
    screen::Attente attente(editeur_);
    const session::Session& session = editeur_.Session();
    avis = rules::Verif_NbHeures(*session.Db, session.CodeAidant,
                                 editeur_.Dossier().NumeroContrat(), temps);
    attente.Finir();
  }
  if (!avis) return true;
  return editeur_.MessageBox(avis->texte,
                             avis->question ? screen::Boutons::OuiNon : screen::Boutons::Ok,
                             screen::Icone::Exclamation) == screen::Reponse::Oui;
}

}  // namespace editor
