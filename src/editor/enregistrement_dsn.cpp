// The event of the monthly declaration. An event that the declaration side has not sent yet (its
// first state is empty) is withdrawn when the end of the contract no longer has to be declared.

#include "data/cles.h"
#include "data/layouts/contrat.h"
#include "data/layouts/voisins.h"
#include "editor/editeur.h"

namespace editor {

namespace {

using data::DsnEvenement::EtatInitial, data::DsnEvenement::FinContrat;

bool nonEnvoye(const data::CItem& evenement) {
  return evenement.Vue(EtatInitial).empty();
}

void ecrireFin(data::CItem& evenement, std::string_view valeur) {
  evenement.Set(FinContrat, valeur);
  evenement.DBWrite();
}

}  // namespace

void Enregistrement::Maj_EvenementDSN(const std::string& cle) {
  session::Session& s = editeur_.Session();
  const data::CItem& contrat = s.ItemContrat;
  if (data::estParticulierEmployeur(contrat)) return;
  const bool annule = contrat.Vue(data::Contrat::Annule) == "O";
  const bool finChangee = contrat.Vue(data::Contrat::DateFin) != s.DateFinInitiale;
  if ((annule || finChangee) && !Maj_FinDSN(cle, annule)) return;
  Maj_LienDSN(cle, annule, finChangee);
}

// The contract's own event. False when nothing more is to be done.
bool Enregistrement::Maj_FinDSN(const std::string& cle, bool annule) {
  session::Session& s = editeur_.Session();
  data::CItem& evenement = s.ItemDsnEvenement;
  const bool existe = s.F_DSNEVENEMENT.Lire(cle, evenement);
  if (annule && !existe) return false;
  if (annule && nonEnvoye(evenement)) {
    s.F_DSNEVENEMENT.DeleteItem(cle);
    return true;
  }
  if (!existe) evenement = s.F_DSNEVENEMENT.NewItem(cle);
  ecrireFin(evenement, "1");
  return true;
}

// A fixed term followed by an open-ended contract that takes over its leave is no end to declare.
void Enregistrement::Maj_LienDSN(const std::string& cle, bool annule, bool finChangee) {
  session::Session& s = editeur_.Session();
  const data::CItem& contrat = s.ItemContrat;
  const std::string suivant = contrat(data::Contrat::CongesReportesSur);
  const std::string precedent = contrat(data::Contrat::CongesReprisDe);
  const auto type = contrat.Vue(data::Contrat::Type);
  data::CItem& evenement = s.ItemDsnEvenement;
  data::CItem lie;
  if (!suivant.empty() && type == "D") {
    if (annule || !finChangee || !s.F_CONTRAT.Lire(suivant, lie)) return;
    if (lie.Vue(data::Contrat::CongesReprisDe) != cle || lie.Vue(data::Contrat::Type) != "I")
      return;
    if (!s.F_DSNEVENEMENT.Lire(cle, evenement)) return;
    if (nonEnvoye(evenement)) {
      s.F_DSNEVENEMENT.DeleteItem(cle);
    } else {
      ecrireFin(evenement, "");
    }
    return;
  }
  if (!s.ModeCreation || precedent.empty() || type != "I") return;
  if (!s.F_CONTRAT.Lire(precedent, lie)) return;
  if (lie.Vue(data::Contrat::CongesReportesSur) != cle || lie.Vue(data::Contrat::Type) != "D")
    return;
  if (!s.F_DSNEVENEMENT.Lire(precedent, evenement)) {
    if (!annule) return;
    evenement = s.F_DSNEVENEMENT.NewItem(precedent);
    ecrireFin(evenement, "1");
  } else if (!annule && nonEnvoye(evenement)) {
    s.F_DSNEVENEMENT.DeleteItem(precedent);
  } else {
    ecrireFin(evenement, "1");
  }
}

}  // namespace editor
