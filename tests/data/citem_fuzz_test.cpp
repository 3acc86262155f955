// Random edits against a naive model of three nested lists.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <iterator>
#include <random>

#include "data/citem.h"

namespace data {
namespace {

// One level: a text below it all, or a list of the level under it.
template <int Niveau>
struct Liste {
  static constexpr char separateur = Niveau == 3   ? SepAttribut
                                     : Niveau == 2 ? SepValeur
                                                   : SepSousValeur;
  std::vector<Liste<Niveau - 1>> pieces;

  void Lire(const std::string& texte) {
    pieces.clear();
    std::size_t debut = 0;
    for (std::size_t fin = 0; fin != std::string::npos; debut = fin + 1) {
      fin = texte.find(separateur, debut);
      pieces.emplace_back().Lire(texte.substr(debut, fin - debut));
    }
  }
  std::string Texte() const {
    std::string texte;
    for (const auto& p : pieces) texte += p.Texte() + separateur;
    const auto dernier = texte.find_last_not_of(separateur);
    return texte.substr(0, dernier == std::string::npos ? 0 : dernier + 1);
  }
  int Nombre() const {
    const std::string texte = Texte();
    return texte.empty() ? 0
                         : static_cast<int>(std::count(texte.begin(), texte.end(), separateur)) + 1;
  }
  Liste<Niveau - 1>& Piece(int n) {
    if (n > static_cast<int>(pieces.size())) pieces.resize(static_cast<std::size_t>(n));
    return pieces[static_cast<std::size_t>(n - 1)];
  }
  void Inserer(int n, const std::string& texte) {
    Piece(n);
    pieces.emplace(pieces.begin() + (n - 1))->Lire(texte);
  }
  void Supprimer(int n) {
    if (n <= static_cast<int>(pieces.size())) pieces.erase(pieces.begin() + (n - 1));
  }
};
template <>
struct Liste<0> {
  std::string texte;
  void Lire(const std::string& t) { texte = t; }
  std::string Texte() const { return texte; }
};
using Modele = Liste<3>;

class CItemFuzz : public testing::Test {
 protected:
  int Tire(int n) { return static_cast<int>(hasard_() % static_cast<unsigned>(n)); }

  // A text that may hold the separators below `niveau`, often empty at its ends.
  std::string Texte(int niveau) {
    static const std::string lettres = {'a', 'b', SepSousValeur, SepValeur, SepAttribut};
    std::string texte;
    for (int n = Tire(5); n > 0; --n) texte += lettres[static_cast<std::size_t>(Tire(1 + niveau))];
    return texte;
  }

  const unsigned graine_ = std::random_device{}();
  std::mt19937 hasard_{graine_};
  testing::ScopedTrace trace_{__FILE__, __LINE__, "seed " + std::to_string(graine_)};
};

TEST_F(CItemFuzz, RandomEditsInStepWithAModel) {
  CItem item;
  Modele m;
  int a = 0, v = 0, s = 0;
  std::string t;
  // Three levels of each edit, the deepest last; then what only attributes have.
  const std::function<void()> actes[] = {
      [&] { item.Set(a, t), m.Piece(a).Lire(t); },
      [&] { item.Set(a, v, t), m.Piece(a).Piece(v).Lire(t); },
      [&] { item.Set(a, v, s, t), m.Piece(a).Piece(v).Piece(s).Lire(t); },
      [&] { item.Insert(a, t), m.Inserer(a, t); },
      [&] { item.Insert(a, v, t), m.Piece(a).Inserer(v, t); },
      [&] { item.Insert(a, v, s, t), m.Piece(a).Piece(v).Inserer(s, t); },
      [&] { item.Delete(a), m.Supprimer(a); },
      [&] { item.Delete(a, v), m.Piece(a).Supprimer(v); },
      [&] { item.Delete(a, v, s), m.Piece(a).Piece(v).Supprimer(s); },
      [&] { item.Append(t), m.Piece(m.Nombre() + 1).Lire(t); }};
  for (int pas = 0; pas < 36000; ++pas) {
    if (Tire(120) == 0) t = Texte(4), item.SetText(t), m.Lire(t);
    a = 1 + Tire(7), v = 1 + Tire(4), s = 1 + Tire(3);
    const int acte = Tire(static_cast<int>(std::size(actes)));
    t = Texte(3 - acte % 3);
    actes[acte]();
    ASSERT_EQ(item.Text(), m.Texte()) << "step " << pas << " act " << acte;
    // What the model keeps at its ends beyond the canonical text would count as present.
    m.Lire(m.Texte());
    ASSERT_EQ(item.DCount(), m.Nombre());
    ASSERT_EQ(item.DCount(a), m.Piece(a).Nombre());
    ASSERT_EQ(item(a), m.Piece(a).Texte());
    ASSERT_EQ(item(a, v), m.Piece(a).Piece(v).Texte());
    ASSERT_EQ(item(a, v, s), m.Piece(a).Piece(v).Piece(s).Texte());
  }
}

}  // namespace
}  // namespace data
