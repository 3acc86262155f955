#pragma once
// What the store knows of a carer to be replaced: name, contract at the start date, absences. No
// screen. Days are internal day texts; "" for a start date that is not known yet.

#include <string>
#include <string_view>

#include "data/citem.h"
#include "data/liste_codes.h"
#include "session/session.h"

namespace dialogs {

// The contract as it stands on the editor's screen, which may not be on the record yet.
struct ContexteMotif {
  std::string convention;
  std::string association;
  std::string employeur;  // code of the private employer; used under agreement "02" only
};

std::string NomAidant(const data::CItem& civilAidant);

// The carer counts as deleted for a contract that starts on `jour`: a day of deletion is on file
// and `jour` lies before it. False when either is not known.
bool EstSupprime(const data::CItem& civilAidant, std::string_view jour);

// Whether something is left of a typed name once what would act as a mark in a query is left out.
bool EstCherchable(std::string_view nom);
// The carers whose name begins so, whatever the case, and who are not deleted before `jour` when
// there is one. Rows: code, surname, first name, day of deletion.
data::CItem ChercherAidants(session::Session& session, std::string_view nom, std::string_view jour);

// Whether the carer works on `jour` for the same entity, or under agreement "02" for the same
// employer.
bool AUnContrat(session::Session& session, const ContexteMotif& contexte, std::string_view code,
                std::string_view jour);

// The carer's absences that are under way on `jour` or come after it, in order of their start, but
// for the types of absence that nobody is replaced for. Rows: key, last day.
data::CItem ChercherAbsences(session::Session& session, std::string_view code,
                             std::string_view jour);

// "Maladie du 01/02/26 au 15/02/26". `types`: the table of absence types. A type that it does
// not hold leaves the dates alone.
std::string LibelleAbsence(const data::Lib& lib, const data::ListeCodes& types,
                           std::string_view cle, std::string_view dernierJour);

}  // namespace dialogs
