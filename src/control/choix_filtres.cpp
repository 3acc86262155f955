#include "control/choix_filtres.h"

#include "control/ctr_contrat.h"
#include "data/jour.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/requete.h"

namespace control {

void ChoixFiltres::Lier() {
  auto& association = liste_.Cbo_Association;
  association.Click = [this] { Cbo_Association_Click(); };
  association.Change = [this] {
    if (liste_.Cbo_Association.Text().empty()) codeAssocFiltre_.clear();
  };
}

void ChoixFiltres::Remplir_Association() {
  auto& association = liste_.Cbo_Association;
  associations_ = data::ListeCodes::DeSelection(
      data::Requete(data::fichier::ASSOCIATION)
          .Lire(*liste_.Etat().Db, {data::Cle, data::Association::Nom}));
  for (const auto& ligne : associations_.Lignes()) association.AddItem(ligne.libelle);
  // The filter itself stays open then, which makes no difference.
  if (association.ListCount() == 1 && !association.List(0).empty()) {
    association.SetText(association.List(0));
  }
}

void ChoixFiltres::ParDefaut() {
  liste_.Opt_Actif.SetValue(true);
  liste_.Opt_TousType.SetValue(true);
  liste_.Opt_TriDecroiss.SetValue(true);
}

void ChoixFiltres::Prendre(std::string_view typeAct, std::string_view codeAsso,
                           std::string_view actifs) {
  auto& type = typeAct == "P"   ? liste_.Opt_Autres
               : typeAct == "M" ? liste_.Opt_PartEmpl
                                : liste_.Opt_TousType;
  type.SetValue(true);
  for (int r = 0; r < associations_.Nombre() && !codeAsso.empty(); ++r) {
    if (associations_.A(r).code == codeAsso) liste_.Cbo_Association.SetListIndex(r);
  }
  auto& validite = actifs == "A"   ? liste_.Opt_Actif
                   : actifs == "H" ? liste_.Opt_Historique
                                   : liste_.Opt_TousValid;
  validite.SetValue(true);
}

void ChoixFiltres::Activer(bool actifs) {
  screen::Activer(
      {&liste_.Cbo_Association, &liste_.Cdr_Validite, &liste_.Cdr_Type, &liste_.Cdr_TriContrat},
      actifs);
}

FiltreContrats ChoixFiltres::Filtre() const {
  FiltreContrats filtre;
  filtre.validite = liste_.Opt_Actif.Value()        ? FiltreContrats::Actifs
                    : liste_.Opt_Historique.Value() ? FiltreContrats::Historiques
                                                    : FiltreContrats::TousValid;
  filtre.type = liste_.Opt_PartEmpl.Value() ? FiltreContrats::ParticuliersEmployeurs
                : liste_.Opt_Autres.Value() ? FiltreContrats::Autres
                                            : FiltreContrats::TousType;
  filtre.association = codeAssocFiltre_;
  filtre.debutPeriode = data::premierJour(liste_.Etat().PeriodePaie()).value_or(0);
  filtre.aujourdhui = liste_.Services().poste.Aujourdhui();
  return filtre;
}

Tri ChoixFiltres::TriChoisi() const {
  if (liste_.Opt_TriEmpl.Value()) return Tri::Employeur;
  return liste_.Opt_TriCroiss.Value() ? Tri::AncienneteCroissante : Tri::AncienneteDecroissante;
}

void ChoixFiltres::Cbo_Association_Click() {
  codeAssocFiltre_ = associations_.A(liste_.Cbo_Association.ListIndex()).code;
}

}  // namespace control
