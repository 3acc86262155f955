#pragma once
// What the screens share as long as the contract list stands: the open files, the carer, the rights
// and the workstation. One Session lives in one list control, from init to its release, and is
// handed by reference to every screen above it. Nothing of a contract is kept here: what one
// opening of a contract shares is its dossier (session/dossier.h), and the records of neighbour
// files are read where they are needed.

#include <array>
#include <string>
#include <string_view>

#include "data/citem.h"
#include "data/db.h"
#include "data/layouts/fichiers.h"
#include "data/lib.h"
#include "session/droits.h"

namespace session {

// The host's client object. The component only keeps it and hands it on to the suite's hosted
// controls.
class Client {
 public:
  virtual ~Client() = default;
};

struct Session {
  explicit Session(const data::Poste& donne) : Poste(donne), Lib(donne) {}

  const data::Poste& Poste;

  // What the host gave. Both outlive the session.
  data::Db* Db = nullptr;
  Client* LeClient = nullptr;

  data::Lib Lib;

  data::DbFile F_CONTRAT, F_ETABLISSEMENT, F_CIVILAIDANT, F_TABLES, F_MISSIONSAIDANT,
      F_CONTRATSPREV, F_CONVENTIONCOL, F_PROFIL, F_RUBCHARGE, F_ASSOCIATION, F_ACTIVITESAIDE,
      F_ACTIVITES, F_CIVILAIDE, F_HISTORINDEM, F_PERIODESPAIE, F_RIBAIDANT, F_CONTRATINV,
      F_DETAILCALCUL, F_GRILLESCC, F_AIDANTTTE, F_LIENAVENANT, F_TPSSANSCONTRAT, F_ACTUSUIVICONTRAT,
      F_DSNEVENEMENT, F_TPSEXCEPTIONS, F_INFOSAIDANT;

  data::CItem ItemPeriodesPaie1;

  // The carer. The code is the left part of every contract key.
  std::string CodeAidant;
  std::string NomPrenomAidant;
  // The carer is in the deleted state.
  bool EtatSuppAidant = false;

  const Droits* W_Droits = &SansDroits;
  bool DroitComplet() const { return W_Droits->Lookup(DroitContrat).Complet(); }

  // Planning checks are in force.
  bool OptionCompteur999 = false;

  // Opens the files of the session in their fixed order and reads the current pay period. A
  // StoreError rises to the host; the files opened before it stay open until Liberer.
  void OuvrirFichiers();
  // Drops every file, and last the database. Writes nothing.
  void Liberer();

  // The current pay period.
  std::string PeriodePaie() const;
};

struct FichierSession {
  std::string_view nom;
  data::DbFile Session::*fichier;
};

// The files that stay open for the session, in the order in which they are opened.
inline constexpr std::array<FichierSession, 26> FichiersSession{{
    {data::fichier::CONTRAT, &Session::F_CONTRAT},
    {data::fichier::ETABLISSEMENT, &Session::F_ETABLISSEMENT},
    {data::fichier::CIVILAIDANT, &Session::F_CIVILAIDANT},
    {data::fichier::TABLES, &Session::F_TABLES},
    {data::fichier::MISSIONSAIDANT, &Session::F_MISSIONSAIDANT},
    {data::fichier::CONTRATSPREV, &Session::F_CONTRATSPREV},
    {data::fichier::CONVENTIONCOL, &Session::F_CONVENTIONCOL},
    {data::fichier::PROFIL, &Session::F_PROFIL},
    {data::fichier::RUBCHARGE, &Session::F_RUBCHARGE},
    {data::fichier::ASSOCIATION, &Session::F_ASSOCIATION},
    {data::fichier::ACTIVITESAIDE, &Session::F_ACTIVITESAIDE},
    {data::fichier::ACTIVITES, &Session::F_ACTIVITES},
    {data::fichier::CIVILAIDE, &Session::F_CIVILAIDE},
    {data::fichier::HISTORINDEM, &Session::F_HISTORINDEM},
    {data::fichier::PERIODESPAIE, &Session::F_PERIODESPAIE},
    {data::fichier::RIBAIDANT, &Session::F_RIBAIDANT},
    {data::fichier::CONTRATINV, &Session::F_CONTRATINV},
    {data::fichier::DETAILCALCUL, &Session::F_DETAILCALCUL},
    {data::fichier::GRILLESCC, &Session::F_GRILLESCC},
    {data::fichier::AIDANTTTE, &Session::F_AIDANTTTE},
    {data::fichier::LIENAVENANT, &Session::F_LIENAVENANT},
    {data::fichier::TPSSANSCONTRAT, &Session::F_TPSSANSCONTRAT},
    {data::fichier::ACTUSUIVICONTRAT, &Session::F_ACTUSUIVICONTRAT},
    {data::fichier::DSNEVENEMENT, &Session::F_DSNEVENEMENT},
    {data::fichier::TPSEXCEPTIONS, &Session::F_TPSEXCEPTIONS},
    {data::fichier::INFOSAIDANT, &Session::F_INFOSAIDANT},
}};

}  // namespace session
