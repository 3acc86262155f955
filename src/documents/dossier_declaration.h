#pragma once
// What a hiring declaration is made from: the contract, the parties and the code tables, read once
// at the start of the job. A record that does not stand is an empty item, and its places stay
// blank.

#include <string>
#include <vector>

#include "data/citem.h"
#include "documents/page.h"
#include "session/session.h"

namespace documents {

struct DossierDeclaration {
  data::CItem contrat;
  data::CItem association;
  // The private employer, with what the declaration asks of him.
  data::CItem aide, part, centre;
  data::CItem aidant;
  data::CItem paysNationalite, paysNaissance;
  data::CItem etranger, titres, naturesVoie;
  // Other employers: the establishment, and the entity that declares in its place, if any.
  data::CItem etablissement, declarant;
  std::string codeCentreMedical;
  data::CItem centreMedical;

  long aujourdhui = 0;
  // The folder of the background pictures.
  std::string dossierImages;
  // The picture of the signature, "" without one.
  std::string signature;
};

// `cle`: the contract's key, whose left part is the carer.
DossierDeclaration lireDossierDeclaration(const session::Session& session, const std::string& cle,
                                          const data::CItem& contrat);

// The pages of the job: agreements other than the private employers' print two.
std::vector<Page> pagesDeclaration(const DossierDeclaration& dossier, bool particuliers);

// The background over which a page is printed, and the signature under it.
Image fond(const DossierDeclaration& dossier, const char* fichier);
void signer(Page& page, const DossierDeclaration& dossier);

}  // namespace documents
