#pragma once
// One opening of one contract: what the editor, its dialogs, documents and follow-up share about it
// and nothing else. A new opening is a new dossier, so that nothing of a former contract lingers.
//
// The dialogs change ItemContrat in memory; only the editor's save writes it.

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "data/citem.h"
#include "data/cles.h"
#include "data/layouts/contrat.h"
#include "session/session.h"

namespace session {

// What an attempt to save a new contract has stored. A later attempt, and giving the contract up,
// take it back first, so that each starts from the records as they were.
struct Tentative {
  // The number under which the contract is stored, "" before that.
  std::string numero;
  // The contract whose leave was taken over, as it stood before, and the texts of the events of
  // both contracts before, without one where there was none.
  struct Lien {
    std::string cle;
    data::CItem contrat;
  };
  struct Evenement {
    std::string cle;
    std::optional<std::string> texte;
  };
  std::optional<Lien> precedent;
  std::vector<Evenement> evenements;
  // Private employers: CONTRATINV key that holds the number; the carer's first hire was set.
  std::string inverse;
  bool premiereEmbauche = false;
  // Index file that holds the entry.
  std::string index;
};

struct Dossier {
  explicit Dossier(session::Session& s) : Session(s) {}

  session::Session& Session;

  bool ModeCreation = false;
  // The contract in hand, and its key: "" for a new one until it is stored.
  data::CItem ItemContrat;
  std::string CleContratCourant;
  // The contract as it was opened, an empty item for a new one.
  data::CItem Initial;
  // The contract on file as this opening last read or wrote it: anything else there is somebody
  // else's work.
  data::CItem SurFichier;
  // One attribute for each amendment added: its key in the index of amendments.
  data::CItem ClesAvenants;
  // The follow-up of the year in hand, to be stored with the contract when it has a key.
  data::CItem ItemAidantTte;
  // The follow-up was changed: worth saving even where the text is the same.
  bool SuiviModifie = false;
  Tentative Tente;

  bool Modifie() const { return SuiviModifie || ItemContrat.Text() != Initial.Text(); }
  bool Particuliers() const { return data::estParticulierEmployeur(ItemContrat); }
  std::string NumeroContrat() const {
    return CleContratCourant.substr(
        std::min<std::size_t>(CleContratCourant.size(), data::LongueurCodeAidant));
  }
};

}  // namespace session
