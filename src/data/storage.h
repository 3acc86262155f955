#pragma once
// What a Db stands on: named files of texts under keys, and nothing else. A text is a record's
// canonical text form (see CItem). Implementations stand in storage/; the query language, the
// dictionary and the routines are above.
//
// Every write is whole, durable and final when it returns. Every failure is a StoreError that names
// the file and the key; no call passes over a damaged record.

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace data {

// Keys from `debut` on and before `fin`, in byte order. `sansFin` lifts the upper bound.
struct KeyRange {
  std::string debut;
  std::string fin;
  bool sansFin = true;

  static KeyRange Tout() { return {}; }
  // All keys that begin with `prefixe`.
  static KeyRange Prefixe(std::string_view prefixe);
  static KeyRange Une(std::string_view cle);

  bool Vide() const { return !sansFin && fin <= debut; }
  bool Contient(std::string_view cle) const { return cle >= debut && (sansFin || cle < fin); }
  bool EstUneCle() const;
  // The keys that both ranges hold.
  KeyRange Avec(const KeyRange& autre) const;
};

// A former text of a record. `numero` grows with time within one record, from 1. `horodatage` and
// `utilisateur` tell when and by whom it was replaced; `supprime` that it was replaced by nothing.
struct AncienTexte {
  long numero = 0;
  std::string texte;
  std::string horodatage;
  std::string utilisateur;
  bool supprime = false;
};

struct FichierCompte {
  std::string nom;
  long articles = 0;
};

struct Index;

// A road to records: the keys that hold a value of `valeurs` in an index, or without an index the
// keys of `valeurs` themselves.
struct Chemin {
  const Index* index = nullptr;  // of data/layouts/recherches.h
  KeyRange valeurs;
};

// Reads that a road is about to make in one file.
struct Annonce {
  std::string_view fichier;  // of data/layouts/fichiers.h
  std::vector<std::string> cles;
  std::vector<KeyRange> plages;
  std::vector<Chemin> chemins = {};  // by an index, to few records
};

class Storage {
 public:
  // Called for each record in ascending byte order of the keys; the views live until it returns.
  // False stops the scan. It may read the same Storage, and must not write to it.
  using Visiteur = std::function<bool(std::string_view cle, std::string_view texte)>;

  virtual ~Storage() = default;

  // False, and `texte` untouched, when there is no such record.
  virtual bool Get(std::string_view fichier, std::string_view cle, std::string& texte) = 0;
  // Replaces or creates. The former text, if it differs, goes to the history.
  virtual void Put(std::string_view fichier, std::string_view cle, std::string_view texte) = 0;
  // False when there was no such record. The former text goes to the history.
  virtual bool Erase(std::string_view fichier, std::string_view cle) = 0;
  virtual void Scan(std::string_view fichier, const KeyRange& cles, const Visiteur& visiteur) = 0;

  // Roads to records, where the store keeps indexes. One that keeps none, or cannot trust them now,
  // answers nothing and false, and is scanned instead.
  //
  // How many places of the road there are, at most `plafond`: one for each pair of value and key.
  virtual std::optional<std::size_t> Compter(std::string_view /*fichier*/, const Chemin& /*chemin*/,
                                             std::size_t /*plafond*/) {
    return std::nullopt;
  }
  // A scan of the records to which one of the roads leads: each once, in ascending order of the
  // keys, all from one state of the store.
  virtual bool ScanChemins(std::string_view /*fichier*/, const std::vector<Chemin>& /*chemins*/,
                           const Visiteur& /*visiteur*/) {
    return false;
  }

  // The files that hold at least one record, by name.
  virtual std::vector<FichierCompte> Fichiers() = 0;
  // Former texts of one record, oldest first; empty when it was never overwritten.
  virtual std::vector<AncienTexte> Historique(std::string_view fichier, std::string_view cle) = 0;

  // Runs `travail` so that all its writes stand when this returns, or none does when it throws. Not
  // to be nested.
  //
  // A store that several stations share may run `travail` again from its beginning, when another
  // station got in between: nothing of the former run stands then, and `travail` keeps nothing of
  // it.
  virtual void EnUnBloc(const std::function<void()>& travail) = 0;

  // For Route alone. A store on this machine answers a read as fast as it would keep it.
  virtual bool ALaLigne() const { return false; }
  virtual void DebuterRoute() {}
  virtual void FinirRoute() noexcept {}
  virtual void OublierRoute() noexcept {}
  virtual void Annoncer(const std::vector<Annonce>& /*annonces*/) {}
  virtual void AnnoncerBloc() {}
  virtual void AnnoncerSuite(const std::vector<Annonce>& /*annonces*/) {}
};

// A road: the reads between one act of the user and its answer. While it lasts, a store across a
// line fetches what is announced in one trip, and answers the same read twice without a second one.
// What this station writes meanwhile is read back as written; what others write may be seen later,
// in a block never: it sees nothing of what was read before it, unless that belongs to it
// (AnnoncerBloc). Nothing is kept once the road ends, or over a question to the user; what was
// announced before it is then fetched anew when the first of it is asked for. Roads may nest: the
// outer one counts. A program has one store with roads at a time.
class Route {
 public:
  explicit Route(Storage& storage);
  ~Route();
  Route(const Route&) = delete;
  Route& operator=(const Route&) = delete;

  // Whether announcing gains anything: no need to put keys together where it does not.
  bool Utile() const { return storage_.ALaLigne(); }
  void Annoncer(const std::vector<Annonce>& annonces) { storage_.Annoncer(annonces); }
  // A block comes next: what is read from here on belongs to it, so that it need not read again
  // what was read for the decision to write. It is checked with the block, which another station's
  // write has run again, from its beginning, on what stands then. A write before it, a question to
  // the user or the road's end gives that up.
  void AnnoncerBloc() { storage_.AnnoncerBloc(); }
  // In a block: what will be read once it stands comes back with the word that it does, and belongs
  // to a block that may come next.
  void AnnoncerSuite(const std::vector<Annonce>& annonces) { storage_.AnnoncerSuite(annonces); }
  // What came back so far is asked for again: a user is about to be asked something, and others
  // may write before the answer.
  static void Interrompre() noexcept;

 private:
  Storage& storage_;
  Storage* dehors_;
};

// Whether a file can bear that name: upper-case ASCII letters and digits.
bool estNomDeFichier(std::string_view nom);

// Refuses, by a StoreError, a file name that is not upper-case ASCII letters and digits, an empty
// key, a key with a control character, and a key or text that is not valid UTF-8 or holds a zero
// byte. Every backend calls it before a write.
void VerifierEcriture(std::string_view fichier, std::string_view cle, std::string_view texte);

}  // namespace data
