#include "documents/dossier_declaration.h"

#include "data/cles.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "documents/declaration_formulaire.h"
#include "documents/declaration_matricielle.h"

namespace documents {

namespace {

using namespace data;
namespace C = data::Contrat;

// The code of a centre or an entity at the head of a longer one.
constexpr std::size_t LongueurCode = 3;

constexpr double cm(int twips) {
  return static_cast<double>(twips) / screen::TwipsParCentimetre;
}

CItem lire(const DbFile& fichier, const std::string& cle) {
  CItem item;
  fichier.Lire(cle, item);
  return item;
}

// Files that are open for the job only.
CItem lire(const session::Session& session, std::string_view fichier, const std::string& cle) {
  return lire(session.Db->OpenFile(fichier), cle);
}

}  // namespace

DossierDeclaration lireDossierDeclaration(const session::Session& s, const std::string& cle,
                                          const CItem& contrat) {
  const std::string aidant = cle.substr(0, LongueurCodeAidant);
  const std::string employeur = contrat(C::Employeur);
  DossierDeclaration d;
  d.contrat = contrat;
  d.association = lire(s.F_ASSOCIATION, contrat(C::Association));
  d.aide = lire(s.F_CIVILAIDE, employeur);
  d.part = lire(s, fichier::ELTSPARTEMP, employeur);
  d.centre = lire(s, fichier::CENTREURSSAF, d.part(EltsPartEmp::CentreUrssaf));
  d.aidant = lire(s.F_CIVILAIDANT, aidant);
  d.paysNationalite = lire(s, fichier::PAYS, d.aidant(CivilAidant::PaysNationalite));
  d.paysNaissance = lire(s, fichier::PAYS, d.aidant(CivilAidant::CodePaysNaissance));
  d.etranger = lire(s, fichier::ETRANGER, aidant);
  d.titres = lire(s.F_TABLES, Tables::TitresSejour);
  d.naturesVoie = lire(s.F_TABLES, Tables::NatureVoie);
  d.etablissement = lire(s.F_ETABLISSEMENT, employeur);
  const std::string declarant = d.etablissement(Etablissement::Association).substr(0, LongueurCode);
  d.declarant = lire(s.F_ASSOCIATION, declarant);
  d.codeCentreMedical = d.aidant(CivilAidant::CentreEtCivilite).substr(0, LongueurCode);
  d.centreMedical = lire(s, fichier::CENTREMEDICAL, d.codeCentreMedical);
  d.aujourdhui = s.Poste.Aujourdhui();
  return d;
}

std::vector<Page> pagesDeclaration(const DossierDeclaration& d, bool particuliers) {
  std::vector<Page> pages;
  if (!particuliers) pages.push_back(declarationMatricielle(d));
  pages.push_back(declarationFormulaire(d));
  return pages;
}

Image fond(const DossierDeclaration& d, const char* fichier) {
  return {0, 0, cm(11800), cm(16895), d.dossierImages + "/" + fichier};
}

void signer(Page& page, const DossierDeclaration& d) {
  if (d.signature.empty()) return;
  page.elements.emplace_back(Image{cm(6500), cm(15500), cm(3000), cm(1000), d.signature});
}

}  // namespace documents
