#include "control/lecteur_lignes.h"

#include "data/cles.h"
#include "data/layouts/contrat.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"

namespace control {

LigneContrat LecteurLignes::Lire(const data::CItem& contrat) {
  LireEmployeur(contrat);
  const session::Session& s = session_;
  data::CItem convention;
  s.F_CONVENTIONCOL.Lire(contrat.Vue(data::Contrat::Convention), convention);
  LigneContrat ligne;
  ligne.cle = contrat(0);
  ligne.debut = s.Lib.DateFromInternal(contrat.Vue(data::Contrat::DateDebut));
  ligne.fin = s.Lib.DateFromInternal(contrat.Vue(data::Contrat::DateFin));
  ligne.type = contrat(data::Contrat::Type);
  ligne.employeur = employeur_;
  ligne.convention = convention(data::ConventionCol::Libelle);
  ligne.jourDebut = data::entier(contrat.Vue(data::Contrat::DateDebut));
  return ligne;
}

void LecteurLignes::LireEmployeur(const data::CItem& contrat) {
  if (data::estParticulierEmployeur(contrat)) {
    data::CItem aide;
    if (session_.F_CIVILAIDE.Lire(contrat.Vue(data::Contrat::Employeur), aide)) {
      employeur_ = aide(data::CivilAide::Nom) + " " + aide(data::CivilAide::Prenom);
    }
  } else {
    data::CItem association;
    if (session_.F_ASSOCIATION.Lire(contrat.Vue(data::Contrat::Association), association)) {
      employeur_ = association(data::Association::Nom);
    }
  }
}

}  // namespace control
