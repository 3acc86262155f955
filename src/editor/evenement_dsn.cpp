#include "editor/evenement_dsn.h"

#include "data/layouts/voisins.h"

namespace editor {

namespace {

namespace C = data::Contrat;
using data::DsnEvenement::EtatInitial, data::DsnEvenement::FinContrat;

bool nonEnvoye(const data::CItem& evenement) {
  return evenement.Vue(EtatInitial).empty();
}

void ecrireFin(data::CItem& evenement, std::string_view valeur) {
  evenement.Set(FinContrat, valeur);
  evenement.DBWrite();
}

// The contract's own event. False when nothing more is to be done.
bool majFin(const data::DbFile& evenements, const std::string& cle, bool annule) {
  data::CItem evenement;
  const bool existe = evenements.Lire(cle, evenement);
  if (annule && !existe) return false;
  if (annule && nonEnvoye(evenement)) {
    evenements.DeleteItem(cle);
    return true;
  }
  if (!existe) evenement = evenements.NewItem(cle);
  ecrireFin(evenement, "1");
  return true;
}

// The contract linked to this one by `lien` links back by `retour` and is of that type.
bool lieEnRetour(const session::Dossier& dossier, const std::string& lien, const std::string& cle,
                 int retour, std::string_view type) {
  data::CItem lie;
  return dossier.Session.F_CONTRAT.Lire(lien, lie) && lie.Vue(retour) == cle &&
         lie.Vue(C::Type) == type;
}

}  // namespace

void Maj_EvenementDSN(const session::Dossier& dossier, const std::string& cle,
                      const data::CItem& contrat) {
  if (data::estParticulierEmployeur(contrat)) return;
  const data::DbFile& evenements = dossier.Session.F_DSNEVENEMENT;
  const bool annule = contrat.Vue(C::Annule) == C::MarqueAnnule;
  const bool finChangee = contrat.Vue(C::DateFin) != dossier.Initial.Vue(C::DateFin);
  if ((annule || finChangee) && !majFin(evenements, cle, annule)) return;

  // A fixed term followed by an open-ended contract that takes over its leave is no end to declare.
  const std::string suivant = contrat(C::CongesReportesSur);
  const std::string precedent = contrat(C::CongesReprisDe);
  const auto type = contrat.Vue(C::Type);
  data::CItem evenement;
  if (!suivant.empty() && type == "D") {
    if (annule || !finChangee || !lieEnRetour(dossier, suivant, cle, C::CongesReprisDe, "I") ||
        !evenements.Lire(cle, evenement)) {
      return;
    }
    nonEnvoye(evenement) ? evenements.DeleteItem(cle) : ecrireFin(evenement, "");
    return;
  }
  if (!dossier.ModeCreation || precedent.empty() || type != "I" ||
      !lieEnRetour(dossier, precedent, cle, C::CongesReportesSur, "D")) {
    return;
  }
  if (!evenements.Lire(precedent, evenement)) {
    if (!annule) return;
    evenement = evenements.NewItem(precedent);
    ecrireFin(evenement, "1");
  } else if (!annule && nonEnvoye(evenement)) {
    evenements.DeleteItem(precedent);
  } else {
    ecrireFin(evenement, "1");
  }
}

}  // namespace editor
