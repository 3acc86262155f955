// The contract that the carer had before with the same employer: what the new one takes over.

#include "data/cles.h"
#include "data/jour.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/nombre.h"
#include "data/question.h"
#include "dialogs/frm_reprise.h"
#include "editor/editeur.h"

namespace editor {

namespace {

// Seniority is proposed when the new contract starts at most so many days after the end of the
// previous one, both days counted; the end bonus falls within one day less.
constexpr long EcartAnciennete = 4;
constexpr long EcartPrime = 3;

// A departure date of the previous contract with the days during which it was suspended.
struct Depart {
  std::string jour;         // internal day, "" for none
  std::string suspensions;  // hundredths of days

  long long JoursEntiers() const { return data::entier(suspensions) / 100; }
  std::string Affiche() const {
    return jour.empty() ? "" : data::dateAffichee(static_cast<long>(data::entier(jour)));
  }
  std::string Reference() const { return suspensions.empty() ? "" : Decale(0); }
  // Shown: the date, the whole suspended days and `jours` later; "" without a date.
  std::string Decale(long long jours) const {
    if (jour.empty()) return "";
    return data::dateAffichee(static_cast<long>(data::entier(jour) + JoursEntiers() + jours));
  }
};

Depart departGrille(const data::CItem& contrat) {
  using namespace data::Contrat;
  return {contrat(DepartGrille, contrat.DCount(DepartGrille)), contrat(JoursSuspensionGrille)};
}

Depart departAnciennete(const data::CItem& contrat) {
  using namespace data::Contrat;
  const std::string debut = contrat(DateAnciennete);
  return {debut.empty() ? contrat(DateDebut) : debut, contrat(JoursSuspensionAnciennete)};
}

std::string jours(const std::string& centiemes) {
  return centiemes.empty() ? "" : data::Monnaie::DeCentiemes(centiemes).TexteCourt();
}

}  // namespace

// The latest contract that ended before the new one starts, with the same employer.
std::optional<data::CItem> Enregistrement::Chercher_ContratPrecedent() const {
  session::Session& s = editeur_.Session();
  const data::CItem& contrat = s.ItemContrat;
  const data::CItem lignes = s.Db->Selectionner(
      "SELECT CONTRAT AVEC 1 <> \"02\" AND AVEC 8 <> \"\" AND < " +
          data::citer(contrat.Vue(data::Contrat::DateDebut)) +
          " AND AVEC 65 = \"\" AND AVEC 3 = " + data::citer(contrat.Vue(data::Contrat::Employeur)) +
          " AND AVEC 0 = " + data::citerDebut(editeur_.Etq_CodeAidant.Libelle()) + " PAR-DECR 8",
      data::fichier::CONTRAT, "0");
  if (lignes.Vide()) return std::nullopt;
  data::CItem precedent;
  if (!s.F_CONTRAT.Lire(lignes(1, 1), precedent)) return std::nullopt;
  return precedent;
}

std::string Enregistrement::Proposer_Reprise() {
  session::Session& s = editeur_.Session();
  using namespace data::Contrat;
  // An earlier attempt of this creation may have been answered otherwise.
  s.ItemContrat.Set(DepartGrille, 1, "");
  s.ItemContrat.Set(DateAnciennete, "");
  s.ItemContrat.Set(CongesReprisDe, "");
  if (data::estParticulierEmployeur(s.ItemContrat)) return {};
  const auto precedent = Chercher_ContratPrecedent();
  if (!precedent) return {};
  dialogs::Frm_Reprise reprise(editeur_.Services(), s);
  Remplir_Reprise(reprise, *precedent);
  reprise.ShowModal();
  if (reprise.RepriseRefusee) return {};
  s.ItemContrat.Set(DepartGrille, 1, s.Lib.DateToInternal(reprise.NouvelleDateGrille));
  s.ItemContrat.Set(DateAnciennete, s.Lib.DateToInternal(reprise.NouvelleDateAnciennete));
  return reprise.RepriseCalcul == "O" ? (*precedent)(0) : std::string();
}

void Enregistrement::Remplir_Reprise(dialogs::Frm_Reprise& reprise,
                                     const data::CItem& precedent) const {
  session::Session& s = editeur_.Session();
  using namespace data::Contrat;
  const Depart grille = departGrille(precedent);
  const Depart anciennete = departAnciennete(precedent);
  const long long ecart =
      data::entier(s.ItemContrat.Vue(DateDebut)) - data::entier(precedent.Vue(DateFin));

  dialogs::DonneesReprise d;
  d.aidant = "Aidant : " + editeur_.Etq_CodeAidant.Libelle() + " " +
             editeur_.Etq_NomPrenomAidant.Libelle();
  d.debut = s.Lib.DateFromInternal(precedent.Vue(DateDebut));
  d.fin = s.Lib.DateFromInternal(precedent.Vue(DateFin));
  d.determinee = precedent.Vue(Type) == "D";
  d.departGrille = grille.Affiche();
  d.joursGrille = jours(grille.suspensions);
  d.referenceGrille = grille.Reference();
  d.departAnciennete = anciennete.Affiche();
  d.joursAnciennete = jours(anciennete.suspensions);
  d.referenceAnciennete = anciennete.Reference();
  d.congesAuMois = precedent.Vue(CongesAuMois) == "1";
  d.avecGrille =
      !grille.jour.empty() && !editeur_.caracteristiques.Cbo_GrilleContrat.Text().empty();
  if (d.avecGrille) d.grilleProposee = grille.Decale(ecart - 1);
  if (ecart + 1 <= EcartAnciennete) d.ancienneteProposee = anciennete.Decale(ecart - 1);
  const std::string bulletin = precedent(DernierBulletin);
  d.congesReprenables = s.F_DETAILCALCUL.Lire(precedent(0) + bulletin, s.ItemDetailCalcul);
  reprise.Afficher(d);
}

// Links both contracts. The end bonus of a fixed term falls when an open-ended contract follows.
void Enregistrement::Reporter_Conges(const std::string& clePrecedent, const std::string& cle) {
  session::Session& s = editeur_.Session();
  using namespace data::Contrat;
  s.ItemContrat.Set(CongesReprisDe, clePrecedent);
  data::CItem precedent = s.F_CONTRAT.Read(clePrecedent);
  if (!reprise_) {
    reprise_ = Reprise{clePrecedent, precedent.Text(), std::nullopt};
    data::CItem evenement;
    if (s.F_DSNEVENEMENT.Lire(clePrecedent, evenement)) reprise_->evenement = evenement.Text();
  }
  if (data::entier(precedent.Vue(PrimePrecarite)) == 1 &&
      data::entier(precedent.Vue(DateFin)) + EcartPrime >=
          data::entier(s.ItemContrat.Vue(DateDebut)) &&
      precedent.Vue(Type) == "D" && s.ItemContrat.Vue(Type) == "I") {
    precedent.Set(PrimePrecarite, "0");
  }
  precedent.Set(CongesReportesSur, cle);
  precedent.DBWriteU();
}

// Puts the previous contract back as it stood before this creation linked it, its event included.
// What others have changed of it meanwhile stays.
void Enregistrement::Defaire_Reprise() {
  session::Session& s = editeur_.Session();
  using namespace data::Contrat;
  const data::CItem avant(reprise_->contrat);
  data::CItem precedent;
  if (s.F_CONTRAT.Lire(reprise_->cle, precedent)) {
    precedent.Set(CongesReportesSur, avant.Vue(CongesReportesSur));
    precedent.Set(PrimePrecarite, avant.Vue(PrimePrecarite));
    precedent.DBWriteU();
  }
  if (reprise_->evenement) {
    data::CItem evenement = s.F_DSNEVENEMENT.NewItem(reprise_->cle);
    evenement.SetText(*reprise_->evenement);
    evenement.DBWrite();
  }
  reprise_.reset();
}

}  // namespace editor
