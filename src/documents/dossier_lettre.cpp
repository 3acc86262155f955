#include "documents/dossier_lettre.h"

#include "data/cles.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/texte.h"

namespace documents {

namespace {

using namespace data;
namespace C = data::Contrat;

CItem lire(Db& db, std::string_view fichier, const std::string& cle) {
  CItem item;
  db.OpenFile(fichier).Lire(cle, item);
  return item;
}

std::vector<std::string> personnesRemplacees(Db& db, const CItem& contrat) {
  std::vector<std::string> noms;
  for (int v = 1; v <= contrat.DCount(C::PersonnesRemplacees); ++v) {
    noms.push_back(contrat(C::PersonnesRemplacees, v));
  }
  for (int v = 1; v <= contrat.DCount(C::AidantsRemplaces); ++v) {
    const CItem aidant = lire(db, fichier::CIVILAIDANT, contrat(C::AidantsRemplaces, v));
    noms.push_back(sansBlancs(aidant(CivilAidant::Prenom) + " " + aidant(CivilAidant::Nom)));
  }
  std::erase(noms, "");
  return noms;
}

}  // namespace

bool DossierLettre::Particuliers() const {
  return estParticulierEmployeur(contrat);
}

int DossierLettre::Etat() const {
  if (avenant.empty()) return 1;
  for (int v = 2; v <= contrat.DCount(C::Avenant); ++v) {
    if (contrat.Vue(C::Avenant, v) == avenant) return v;
  }
  return 0;
}

DossierLettre lireDossierLettre(Db& db, const std::string& cle, const std::string& avenant,
                                long aujourdhui) {
  DossierLettre d;
  d.cle = cle;
  d.avenant = avenant;
  d.contrat = db.OpenFile(fichier::CONTRAT).Read(cle);
  const std::string employeur = d.contrat(C::Employeur);
  d.association = lire(db, fichier::ASSOCIATION, d.contrat(C::Association));
  if (d.Particuliers()) {
    d.aide = lire(db, fichier::CIVILAIDE, employeur);
    d.reference = lire(db, fichier::ELTSPARTEMP, employeur);
  } else {
    d.etablissement = lire(db, fichier::ETABLISSEMENT, employeur);
  }
  d.aidant = lire(db, fichier::CIVILAIDANT, cle.substr(0, LongueurCodeAidant));
  d.convention = lire(db, fichier::CONVENTIONCOL, d.contrat(C::Convention));
  d.prevoyance = lire(db, fichier::CONTRATSPREV, d.contrat(C::ContratPrevoyance));
  d.natures = lire(db, fichier::TABLES, Tables::NatureContrat);
  d.motifs = lire(db, fichier::TABLES, Tables::MotifEmbauche);
  d.naturesVoie = lire(db, fichier::TABLES, Tables::NatureVoie);
  d.remplaces = personnesRemplacees(db, d.contrat);
  d.aujourdhui = aujourdhui;
  return d;
}

}  // namespace documents
