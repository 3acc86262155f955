#include "editor/bloc_creation.h"

#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "editor/annonces.h"
#include "editor/evenement_dsn.h"
#include "rules/reprise.h"

namespace editor {

namespace {

namespace C = data::Contrat;
using namespace data::CivilAidant;

// The number is taken, whichever way it was given.
void compter(data::CItem& aidant, const std::string& numero) {
  for (int v = aidant.DCount(NumerosLibres); v >= 1; --v) {
    if (aidant.Vue(NumerosLibres, v) == numero) aidant.Delete(NumerosLibres, v);
  }
  if (data::entier(aidant.Vue(DernierNumero)) < data::entier(numero)) {
    aidant.Set(DernierNumero, numero);
  }
}

std::string enumere(const std::vector<std::string>& numeros) {
  std::string texte;
  for (const auto& numero : numeros) texte += (texte.empty() ? "" : ", ") + numero;
  return texte;
}

}  // namespace

bool BlocCreation::Stocker(const Reprise& reprise) {
  session::Session& s = dossier_.Session;
  const session::Tentative avant = dossier_.Tente;
  bool stocke = false;
  try {
    s.Db->Stockage().EnUnBloc([&] {
      // From the beginning, each time that another station got in between.
      dossier_.Tente = avant;
      pris_.clear();
      data::Route route(s.Db->Stockage());
      AnnoncerCreation(dossier_, route);
      Reprendre();
      data::CItem aidant;
      if (!s.F_CIVILAIDANT.Lire(s.CodeAidant, aidant)) {
        refus_ = "Cet aidant n'existe pas.";
        throw Rien();
      }
      if (!ChoisirNumero(aidant)) throw Rien();
      portee_.numero = numero_;
      voisins_ = rules::VerifContratExist(*s.Db, portee_, dates_);
      if (voisins_.conflit) throw Rien();

      const std::string cle = s.CodeAidant + numero_;
      data::CItem contrat = s.F_CONTRAT.NewItem(cle);
      contrat.SetText(dossier_.ItemContrat.Text());
      if (!reprise.departGrille.empty()) contrat.Set(C::DepartGrille, 1, reprise.departGrille);
      if (!reprise.anciennete.empty()) contrat.Set(C::DateAnciennete, reprise.anciennete);
      if (!reprise.cle.empty()) Lier(contrat, reprise.cle, cle);
      Noter(cle);
      Maj_EvenementDSN(dossier_, cle, contrat);
      contrat.DBWriteU();
      aidant.DBWriteU();
      AnnoncerSuite(dossier_, cle, route);
      stocke = true;
    });
  } catch (const Rien&) {
    stocke = false;
  } catch (...) {
    dossier_.Tente = avant;
    throw;
  }
  if (!stocke) {
    dossier_.Tente = avant;
    return false;
  }
  dossier_.Tente.numero = numero_;
  dossier_.CleContratCourant = s.CodeAidant + numero_;
  return true;
}

void BlocCreation::Annuler() {
  session::Session& s = dossier_.Session;
  const std::string numero = dossier_.Tente.numero;
  const session::Tentative avant = dossier_.Tente;
  s.Db->Stockage().EnUnBloc([&] {
    dossier_.Tente = avant;
    Reprendre();
    data::CItem contrat;
    if (!s.F_CONTRAT.Lire(s.CodeAidant + numero, contrat)) return;
    contrat.Set(C::Annule, C::MarqueAnnule);
    contrat.Set(C::CongesReprisDe, "");
    Maj_EvenementDSN(dossier_, contrat(0), contrat);
    contrat.DBWriteU();
  });
}

// Takes back what the last attempt did beside the contract itself. What others have changed
// meanwhile stays.
void BlocCreation::Reprendre() {
  session::Session& s = dossier_.Session;
  session::Tentative& tente = dossier_.Tente;
  data::CItem item;
  if (tente.precedent && s.F_CONTRAT.Lire(tente.precedent->cle, item)) {
    for (const int a : {C::CongesReportesSur, C::PrimePrecarite}) {
      item.Set(a, tente.precedent->contrat.Vue(a));
    }
    item.DBWriteU();
  }
  for (const auto& evenement : tente.evenements) {
    if (!evenement.texte) {
      s.F_DSNEVENEMENT.DeleteItem(evenement.cle);
      continue;
    }
    item = s.F_DSNEVENEMENT.NewItem(evenement.cle);
    item.SetText(*evenement.texte);
    item.DBWrite();
  }
  if (tente.premiereEmbauche && s.F_CIVILAIDANT.Lire(s.CodeAidant, item)) {
    item.Set(PremiereEmbauche02, "");
    item.DBWriteU();
  }
  if (!tente.inverse.empty() && s.F_CONTRATINV.Lire(tente.inverse, item)) {
    for (int v = item.DCount(data::ContratInv::Numeros); v >= 1; --v) {
      if (item.Vue(data::ContratInv::Numeros, v) == tente.numero) {
        item.Delete(data::ContratInv::Numeros, v);
      }
    }
    item.Vide() ? s.F_CONTRATINV.DeleteItem(tente.inverse) : item.DBWriteU();
  }
  if (!tente.index.empty()) {
    s.Db->OpenFile(tente.index).DeleteItem(s.CodeAidant + tente.numero);
  }
  const std::string numero = tente.numero;
  tente = {};
  tente.numero = numero;
}

// The next number of the carer: one given back before, else the one after the highest. A number
// under which a contract stands is passed over; a cancelled one does not keep its number from being
// given back. What stands among those given back and is no number is passed over in silence.
bool BlocCreation::ChoisirNumero(data::CItem& aidant) {
  numero_ = dossier_.Tente.numero;
  if (!numero_.empty()) {
    compter(aidant, numero_);
    return true;
  }
  while (!aidant.Vue(NumerosLibres, 1).empty()) {
    const long long rendu = data::entier(aidant.Vue(NumerosLibres, 1));
    aidant.Delete(NumerosLibres, 1);
    if (rendu < 1 || rendu > data::DernierNumeroPossible) continue;
    numero_ = data::numeroContrat(static_cast<long>(rendu));
    if (Libre(numero_, true)) return true;
    pris_.push_back(numero_);
  }
  long numero = static_cast<long>(data::entier(aidant.Vue(DernierNumero)));
  while (++numero <= data::DernierNumeroPossible) {
    numero_ = data::numeroContrat(numero);
    if (Libre(numero_, false)) {
      aidant.Set(DernierNumero, numero_);
      return true;
    }
    pris_.push_back(numero_);
  }
  refus_ = "Cet aidant n'a plus de numéro de contrat libre : 999 ont été donnés.";
  return false;
}

bool BlocCreation::Libre(const std::string& numero, bool rendu) const {
  const session::Session& s = dossier_.Session;
  data::CItem contrat;
  if (!s.F_CONTRAT.Lire(s.CodeAidant + numero, contrat)) return true;
  return rendu && contrat.Vue(C::Annule) == C::MarqueAnnule;
}

// Links both contracts.
void BlocCreation::Lier(data::CItem& contrat, const std::string& clePrecedent,
                        const std::string& cle) {
  contrat.Set(C::CongesReprisDe, clePrecedent);
  data::CItem precedent = dossier_.Session.F_CONTRAT.Read(clePrecedent);
  dossier_.Tente.precedent = session::Tentative::Lien{clePrecedent, precedent};
  Noter(clePrecedent);
  if (rules::primeTombe(precedent, contrat)) precedent.Set(C::PrimePrecarite, "0");
  precedent.Set(C::CongesReportesSur, cle);
  precedent.DBWriteU();
}

void BlocCreation::Noter(const std::string& cleEvenement) {
  data::CItem evenement;
  std::optional<std::string> texte;
  if (dossier_.Session.F_DSNEVENEMENT.Lire(cleEvenement, evenement)) texte = evenement.Text();
  dossier_.Tente.evenements.push_back({cleEvenement, texte});
}

std::string BlocCreation::Avis() const {
  if (pris_.empty()) return {};
  const std::string suite = " : le nouveau contrat prend le numéro " + numero_ + ".";
  return pris_.size() == 1
             ? "Un contrat de cet aidant porte déjà le numéro " + pris_.front() + suite
             : "Des contrats de cet aidant portent déjà les numéros " + enumere(pris_) + suite;
}

}  // namespace editor
