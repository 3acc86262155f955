#pragma once
// The multi-value record: the one form of records, requests, results and working lists.
//
//   X.Set(3, "a");         attributes 1 and 2 are "", attribute 3 is "a", DCount() is 3
//   X.Set(3, 2, "b");      attribute 3 has the values "a" and "b"
//   X(3, 2)                "b"; any place that does not exist reads ""
//   X.Insert(1, "k");      what stood at 1 and after moves one place up
//   X.Append("z");         a new attribute after the last; X.Set(-1, "z") is the same
//   X.Text()               the whole item as one text, empty for an empty item
//
// Attributes, values and subvalues are numbered from 1; attribute 0 is the record's key. Content is
// UTF-8 text. The text form is canonical: empty ends are cut at every level, so two items with the
// same content have the same text whatever the order of the sets, and setting a place to what it
// already reads changes nothing. No operation fails for an index that does not exist: reads give
// "", counts 0, deletes do nothing, and places below 1 cannot be set, but for the attribute -1.
//
// An item read from a file, or made by DbFile::NewItem, is attached and can be written. A copy
// keeps the attachment.

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace data {

// ASCII control characters, so that the text form is valid UTF-8 in any store and any export.
inline constexpr char SepAttribut = '\x1e';
inline constexpr char SepValeur = '\x1d';
inline constexpr char SepSousValeur = '\x1c';

// Where an attached item is written.
class Attache {
 public:
  virtual ~Attache() = default;
  virtual void Ecrire(std::string_view cle, std::string_view texte) const = 0;
};

class CItem {
 public:
  CItem() = default;
  // An unattached item of that text form.
  explicit CItem(std::string_view texte) { SetText(texte); }
  // An attached item, as DbFile makes them.
  CItem(std::shared_ptr<const Attache> attache, std::string cle, std::string_view texte);

  // Whole text form, and its set: the key and the attachment stay.
  std::string Text() const;
  void SetText(std::string_view texte);
  bool Vide() const { return DCount() == 0; }

  std::string operator()(int a) const { return std::string(Vue(a)); }
  std::string operator()(int a, int v) const { return std::string(Vue(a, v)); }
  std::string operator()(int a, int v, int s) const { return std::string(Vue(a, v, s)); }
  // The same without a copy; the view lives until the item changes.
  std::string_view Vue(int a) const;
  std::string_view Vue(int a, int v) const;
  std::string_view Vue(int a, int v, int s) const;

  // Each replaces exactly its level. `texte` may hold the separators of lower levels; one of its
  // own level or above would move what stands beside it, and is a programmer's error
  // (std::invalid_argument). The attribute -1 is the one after the last, as for Append; other
  // indexes below 1 do nothing.
  void Set(int a, std::string_view texte);
  void Set(int a, int v, std::string_view texte);
  void Set(int a, int v, int s, std::string_view texte);
  // A new attribute after the last one. Appending "" adds nothing, an empty end being cut: a list
  // whose rows may be empty needs a place of its own for each row, or a column always filled.
  void Append(std::string_view texte) { Set(DCount() + 1, texte); }

  void Insert(int a, std::string_view texte);
  void Insert(int a, int v, std::string_view texte);
  void Insert(int a, int v, int s, std::string_view texte);
  void Delete(int a);
  void Delete(int a, int v);
  void Delete(int a, int v, int s);

  // Number of attributes; number of values of an attribute.
  int DCount() const { return static_cast<int>(avant_.size() + apres_.size()); }
  int DCount(int a) const;

  // Typed forms: (-1, -1, -1) is the whole text, (a, 0, 0) the attribute, (a, v, 0) the value.
  std::string GetText(int a, int v, int s) const;
  void SetField(int a, int v, int s, std::string_view texte);

  // Write the item in its file under its key; both are complete writes. StoreError when unattached.
  void DBWrite() const;
  void DBWriteU() const;

 private:
  std::string& Place(int a);
  const std::string* Lieu(int a) const;
  void Ouvrir(int position);
  void Couper();

  // The attributes are held as a gap buffer: `avant_` in order, then `apres_` in reverse. Edits
  // that walk in one direction, such as filtering a result of 50,000 rows from its end, then cost
  // no quadratic moving.
  std::vector<std::string> avant_;
  std::vector<std::string> apres_;
  std::shared_ptr<const Attache> attache_;
  std::string cle_;
};

}  // namespace data
