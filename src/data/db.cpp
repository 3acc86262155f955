#include "data/db.h"

#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/query.h"
#include "data/routines.h"
#include "data/select.h"

namespace data {

namespace {

// The entity and the agreement of a new contract name its index files, which are written after it
// and after its carer's counter: a code that no name can hold is refused before anything is stored.
void exigerNomsIndex(Storage& storage, std::string_view cle, std::string_view texte) {
  std::string avant;
  const CItem contrat(texte);
  for (const auto& [attribut, quoi] : {std::pair{Contrat::Association, "l'entité"},
                                       std::pair{Contrat::Convention, "la convention"}}) {
    const std::string_view code = contrat.Vue(attribut);
    if (code.empty() || estNomDeFichier(code)) continue;
    if (storage.Get(fichier::CONTRAT, cle, avant)) return;
    throw StoreError(NumeroErreur::TexteRefuse,
                     std::string("Le code « ").append(code) + " » de " + quoi +
                         " ne peut pas entrer dans le nom d'un fichier index, qui se compose de "
                         "lettres majuscules sans accent et de chiffres. Le contrat n'est pas "
                         "enregistré : donnez un autre code à " +
                         quoi + ".",
                     std::string(fichier::CONTRAT), std::string(cle));
  }
}

}  // namespace

// An open file, shared by every item that was made by it.
class DbFile::Ouvert : public Attache, public std::enable_shared_from_this<Ouvert> {
 public:
  Ouvert(std::shared_ptr<Storage> storage, std::string nom)
      : storage_(std::move(storage)), nom_(std::move(nom)) {}

  void Ecrire(std::string_view cle, std::string_view texte) const override {
    if (nom_ == fichier::CONTRAT) exigerNomsIndex(*storage_, cle, texte);
    storage_->Put(nom_, cle, texte);
  }

  CItem Article(std::string_view cle, std::string_view texte) const {
    return CItem(shared_from_this(), std::string(cle), texte);
  }
  // An empty key is never in a file.
  bool Trouver(std::string_view cle, std::string& texte) const {
    return !cle.empty() && storage_->Get(nom_, cle, texte);
  }
  Storage& Stockage() const { return *storage_; }
  const std::string& Nom() const { return nom_; }

 private:
  std::shared_ptr<Storage> storage_;
  std::string nom_;
};

const DbFile::Ouvert& DbFile::Exige() const {
  if (ouvert_ == nullptr) {
    throw StoreError(NumeroErreur::NonAttache,
                     "Ce fichier n'est pas ouvert : il faut l'ouvrir avant d'y lire ou écrire.");
  }
  return *ouvert_;
}

const std::string& DbFile::Nom() const {
  return Exige().Nom();
}

CItem DbFile::Read(std::string_view cle) const {
  const Ouvert& ouvert = Exige();
  std::string texte;
  if (!ouvert.Trouver(cle, texte)) {
    throw StoreError(
        NumeroErreur::NonTrouve,
        "L'article « " + std::string(cle) + " » n'existe pas dans le fichier " + Nom() + '.', Nom(),
        std::string(cle));
  }
  return ouvert.Article(cle, texte);
}

bool DbFile::Lire(std::string_view cle, CItem& item) const {
  const Ouvert& ouvert = Exige();
  std::string texte;
  if (!ouvert.Trouver(cle, texte)) return false;
  item = ouvert.Article(cle, texte);
  return true;
}

CItem DbFile::NewItem(std::string_view cle) const {
  return Exige().Article(cle, {});
}

void DbFile::DeleteItem(std::string_view cle) const {
  const Ouvert& ouvert = Exige();
  if (!cle.empty()) ouvert.Stockage().Erase(Nom(), cle);
}

DbFile Db::OpenFile(std::string_view nom) {
  VerifierEcriture(nom, "1", {});  // the file's name alone is in question
  return DbFile(std::make_shared<const DbFile::Ouvert>(storage_, std::string(nom)));
}

CItem Db::Select(std::string_view requete, std::string_view, long& statut) {
  const CItem demande(requete);
  statut = 0;
  return Selectionner(demande.Vue(1), demande.Vue(2), demande.Vue(3));
}

CItem Db::Execute(std::string_view requete, std::string_view, long& statut) {
  executerCommande(listes_, CItem(requete).Vue(1));
  statut = 0;
  return CItem();
}

CItem Db::CallRoutine(std::string_view nom, long& statut, std::string_view requete) {
  statut = 0;
  return appelerRoutine(*this, listes_, nom, CItem(requete));
}

CItem Db::Selectionner(std::string_view question, std::string_view fichier,
                       std::string_view champs) {
  const Query query = parseQuery(question);
  if (query.file != fichier) {
    throw StoreError(NumeroErreur::Question,
                     "La requête « " + std::string(question) + " » porte sur le fichier " +
                         std::string(query.file) + ", mais la demande annonce le fichier « " +
                         std::string(fichier) + " ».",
                     std::string(fichier));
  }
  // What is counted to plan the query is what is read next.
  const Route route(*storage_);
  return runQuery(*storage_, query, parseFieldList(query.file, champs),
                  planQuery(*storage_, query));
}

}  // namespace data
