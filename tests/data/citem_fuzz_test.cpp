// Random edits and random texts against a naive model of three nested lists.

#include <gtest/gtest.h>

#include <algorithm>
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
  for (int tour = 0; tour < 300; ++tour) {
    CItem item;
    Modele modele;
    for (int pas = 0; pas < 120; ++pas) {
      const int a = 1 + Tire(7), v = 1 + Tire(4), s = 1 + Tire(3);
      const int acte = Tire(11);
      const std::string t = Texte(acte == 10 ? 4 : 3 - acte % 3);
      switch (acte) {
        case 0:
          item.Set(a, t), modele.Piece(a).Lire(t);
          break;
        case 1:
          item.Set(a, v, t), modele.Piece(a).Piece(v).Lire(t);
          break;
        case 2:
          item.Set(a, v, s, t), modele.Piece(a).Piece(v).Piece(s).Lire(t);
          break;
        case 3:
          item.Insert(a, t), modele.Inserer(a, t);
          break;
        case 4:
          item.Insert(a, v, t), modele.Piece(a).Inserer(v, t);
          break;
        case 5:
          item.Insert(a, v, s, t), modele.Piece(a).Piece(v).Inserer(s, t);
          break;
        case 6:
          item.Delete(a), modele.Supprimer(a);
          break;
        case 7:
          item.Delete(a, v), modele.Piece(a).Supprimer(v);
          break;
        case 8:
          item.Delete(a, v, s), modele.Piece(a).Piece(v).Supprimer(s);
          break;
        case 9:
          item.Append(t), modele.Piece(modele.Nombre() + 1).Lire(t);
          break;
        default:
          if (Tire(10) == 0) item.SetText(t), modele.Lire(t);
      }
      ASSERT_EQ(item.Text(), modele.Texte())
          << "turn " << tour << " step " << pas << " act " << acte;
      // What the model keeps at its ends beyond the canonical text would count as present.
      modele.Lire(modele.Texte());
      ASSERT_EQ(item.DCount(), modele.Nombre());
      ASSERT_EQ(item.DCount(a), modele.Piece(a).Nombre());
      ASSERT_EQ(item(a), modele.Piece(a).Texte());
      ASSERT_EQ(item(a, v), modele.Piece(a).Piece(v).Texte());
      ASSERT_EQ(item(a, v, s), modele.Piece(a).Piece(v).Piece(s).Texte());
    }
  }
}

TEST_F(CItemFuzz, AnyBytesSettleInOneRoundTrip) {
  for (int tour = 0; tour < 4000; ++tour) {
    std::string texte;
    for (int n = Tire(40); n > 0; --n) {
      texte += Tire(2) == 0 ? Texte(3) : std::string(1, static_cast<char>(Tire(256)));
    }
    const CItem item(texte);
    Modele modele;
    modele.Lire(texte);
    ASSERT_EQ(item.Text(), modele.Texte());
    ASSERT_EQ(CItem(item.Text()).Text(), item.Text());
  }
}

}  // namespace
}  // namespace data
