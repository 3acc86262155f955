#include "data/texte.h"

#include <algorithm>

namespace data {

namespace {

unsigned byteAt(std::string_view texte, std::size_t i) {
  return static_cast<unsigned char>(texte[i]);
}

// Bounds of the second byte of a sequence, by its first byte; they exclude overlong forms,
// surrogates and what lies above U+10FFFF. Further bytes are 0x80 to 0xBF.
struct Sequence {
  std::size_t taille;
  unsigned secondMin;
  unsigned secondMax;
};

Sequence sequenceOf(unsigned premier) {
  if (premier < 0x80) return {1, 0, 0};
  if (premier < 0xC2 || premier > 0xF4) return {0, 0, 0};
  if (premier < 0xE0) return {2, 0x80, 0xBF};
  if (premier < 0xF0) return {3, premier == 0xE0 ? 0xA0u : 0x80u, premier == 0xED ? 0x9Fu : 0xBFu};
  return {4, premier == 0xF0 ? 0x90u : 0x80u, premier == 0xF4 ? 0x8Fu : 0xBFu};
}

// Bytes of the character at i, a stray byte counting as one.
std::size_t stepAt(std::string_view texte, std::size_t i) {
  return std::max<std::size_t>(1, octetsCaractere(texte, i));
}

// Byte offset after n characters counted from `depart`, at most the end of the text.
std::size_t offsetAfter(std::string_view texte, std::size_t depart, int n) {
  std::size_t i = depart;
  for (; n > 0 && i < texte.size(); --n) i += stepAt(texte, i);
  return i;
}

std::string padding(std::string_view texte, int largeur, char remplissage) {
  const int present = longueur(texte);
  return std::string(static_cast<std::size_t>(std::max(largeur, present) - present), remplissage);
}

// Code point of a two-byte character and back.
unsigned decodeTwo(std::string_view texte, std::size_t i) {
  return ((byteAt(texte, i) & 0x1Fu) << 6) | (byteAt(texte, i + 1) & 0x3Fu);
}

void appendUpTo7FF(std::string& texte, unsigned point) {
  if (point < 0x80) {
    texte += static_cast<char>(point);
  } else {
    texte += static_cast<char>(0xC0u | (point >> 6));
    texte += static_cast<char>(0x80u | (point & 0x3Fu));
  }
}

// Upper case of a code point from U+0080 to U+07FF.
unsigned upper(unsigned point) {
  const bool impair = (point & 1u) != 0;
  if (point >= 0xE0 && point <= 0xFE) return point == 0xF7 ? point : point - 0x20;
  if (point == 0xFF) return 0x178;
  if (point == 0x131) return 'I';  // the dotless i
  if (point == 0x138 || point == 0x149 || point == 0x178 || point == 0x17F) return point;
  // Latin Extended-A goes by pairs; in two stretches the small letter is the even one.
  const bool petitePaire = (point >= 0x139 && point <= 0x148) || (point >= 0x179 && point <= 0x17E);
  if (point >= 0x100 && point <= 0x17E && impair != petitePaire) return point - 1;
  return point;
}

// Letters in capitals with the ASCII that they are looked up by.
struct Base {
  unsigned premier;
  unsigned dernier;
  std::string_view texte;
};
constexpr Base bases[] = {
    {0xC0, 0xC5, "A"},    {0xC6, 0xC6, "AE"},  {0xC7, 0xC7, "C"},    {0xC8, 0xCB, "E"},
    {0xCC, 0xCF, "I"},    {0xD0, 0xD0, "D"},   {0xD1, 0xD1, "N"},    {0xD2, 0xD6, "O"},
    {0xD8, 0xD8, "O"},    {0xD9, 0xDC, "U"},   {0xDD, 0xDD, "Y"},    {0xDE, 0xDE, "TH"},
    {0xDF, 0xDF, "SS"},   {0x100, 0x105, "A"}, {0x106, 0x10D, "C"},  {0x10E, 0x111, "D"},
    {0x112, 0x11B, "E"},  {0x11C, 0x123, "G"}, {0x124, 0x127, "H"},  {0x128, 0x131, "I"},
    {0x132, 0x133, "IJ"}, {0x134, 0x135, "J"}, {0x136, 0x138, "K"},  {0x139, 0x142, "L"},
    {0x143, 0x14B, "N"},  {0x14C, 0x151, "O"}, {0x152, 0x153, "OE"}, {0x154, 0x159, "R"},
    {0x15A, 0x161, "S"},  {0x162, 0x167, "T"}, {0x168, 0x173, "U"},  {0x174, 0x175, "W"},
    {0x176, 0x178, "Y"},  {0x179, 0x17E, "Z"}, {0x17F, 0x17F, "S"},  {0x218, 0x219, "S"},
    {0x21A, 0x21B, "T"},  {0x300, 0x36F, ""},  // accents that stand for themselves
};

const Base* baseOf(unsigned point) {
  for (const Base& base : bases) {
    if (point >= base.premier && point <= base.dernier) return &base;
  }
  return nullptr;
}

void replaceAll(std::string& texte, std::string_view ancien, std::string_view neuf) {
  for (auto i = texte.find(ancien); i != std::string::npos; i = texte.find(ancien, i)) {
    texte.replace(i, ancien.size(), neuf);
    i += neuf.size();
  }
}

}  // namespace

std::size_t octetsCaractere(std::string_view texte, std::size_t i) {
  const Sequence s = sequenceOf(byteAt(texte, i));
  if (s.taille < 2) return s.taille;
  if (i + s.taille > texte.size()) return 0;
  const unsigned second = byteAt(texte, i + 1);
  if (second < s.secondMin || second > s.secondMax) return 0;
  for (std::size_t k = 2; k < s.taille; ++k) {
    if ((byteAt(texte, i + k) & 0xC0u) != 0x80u) return 0;
  }
  return s.taille;
}

bool utf8Valide(std::string_view texte) {
  for (std::size_t i = 0; i < texte.size();) {
    const std::size_t taille = octetsCaractere(texte, i);
    if (taille == 0) return false;
    i += taille;
  }
  return true;
}

int longueur(std::string_view texte) {
  int n = 0;
  for (std::size_t i = 0; i < texte.size(); i += stepAt(texte, i)) ++n;
  return n;
}

std::string gauche(std::string_view texte, int n) {
  return std::string(texte.substr(0, offsetAfter(texte, 0, n)));
}

std::string droite(std::string_view texte, int n) {
  const int present = longueur(texte);
  return milieu(texte, present - std::clamp(n, 0, present) + 1);
}

std::string milieu(std::string_view texte, int debut, int n) {
  const std::size_t i = offsetAfter(texte, 0, std::max(debut, 1) - 1);
  return std::string(texte.substr(i, offsetAfter(texte, i, n) - i));
}

std::string milieu(std::string_view texte, int debut) {
  return std::string(texte.substr(offsetAfter(texte, 0, std::max(debut, 1) - 1)));
}

int position(std::string_view texte, std::string_view partie) {
  if (partie.empty()) return 0;
  const auto i = texte.find(partie);
  return i == std::string_view::npos ? 0 : longueur(texte.substr(0, i)) + 1;
}

std::string completeADroite(std::string_view texte, int largeur, char remplissage) {
  return std::string(texte) + padding(texte, largeur, remplissage);
}

std::string completeAGauche(std::string_view texte, int largeur, char remplissage) {
  return padding(texte, largeur, remplissage).append(texte);
}

std::string colonne(std::string_view texte, int largeur) {
  return completeADroite(gauche(texte, largeur), largeur);
}

std::string sansBlancsAGauche(std::string_view texte) {
  return std::string(texte.substr(std::min(texte.find_first_not_of(' '), texte.size())));
}

std::string sansBlancsADroite(std::string_view texte) {
  return std::string(texte.substr(0, texte.find_last_not_of(' ') + 1));
}

std::string sansBlancs(std::string_view texte) {
  return sansBlancsAGauche(texte.substr(0, texte.find_last_not_of(' ') + 1));
}

std::string sansAucunBlanc(std::string_view texte) {
  std::string resultat(texte);
  resultat.erase(std::remove(resultat.begin(), resultat.end(), ' '), resultat.end());
  return resultat;
}

std::string sansControles(std::string_view texte) {
  std::string resultat;
  resultat.reserve(texte.size());
  for (std::size_t i = 0; i < texte.size();) {
    const std::size_t pas = stepAt(texte, i);
    const unsigned point = pas == 2 ? decodeTwo(texte, i) : byteAt(texte, i);
    const bool controle =
        pas <= 2 && (point < 0x20 || point == 0x7F || (pas == 2 && point >= 0x80 && point <= 0x9F));
    if (!controle) resultat.append(texte.substr(i, pas));
    i += pas;
  }
  return resultat;
}

std::string majuscules(std::string_view texte) {
  std::string resultat;
  resultat.reserve(texte.size());
  for (std::size_t i = 0; i < texte.size();) {
    const std::size_t pas = stepAt(texte, i);
    if (pas == 2) {
      appendUpTo7FF(resultat, upper(decodeTwo(texte, i)));
    } else if (pas == 1 && texte[i] >= 'a' && texte[i] <= 'z') {
      resultat += static_cast<char>(texte[i] - 'a' + 'A');
    } else {
      resultat.append(texte.substr(i, pas));
    }
    i += pas;
  }
  return resultat;
}

std::string sansAccents(std::string_view texte) {
  std::string capitales = majuscules(texte);
  const bool ascii = std::all_of(capitales.begin(), capitales.end(), [](char c) { return c > 0; });
  if (ascii) return capitales;
  std::string resultat;
  resultat.reserve(capitales.size());
  for (std::size_t i = 0; i < capitales.size();) {
    const std::size_t pas = stepAt(capitales, i);
    const Base* const base = pas == 2 ? baseOf(decodeTwo(capitales, i)) : nullptr;
    resultat.append(base != nullptr ? base->texte : std::string_view(capitales).substr(i, pas));
    i += pas;
  }
  return resultat;
}

std::string plier(std::string_view nom) {
  std::string resultat = sansAccents(nom);
  for (const char* signe :
       {"'", "\"", "[", "]", "\u2019", "\u02BC", "-", "\u2010", "\u2011", "\u2013"}) {
    replaceAll(resultat, signe, "");
  }
  return resultat;
}

int ordreDictionnaire(std::string_view a, std::string_view aPlie, std::string_view b,
                      std::string_view bPlie) {
  const int ordre = aPlie.compare(bPlie);
  return ordre != 0 ? ordre : a.compare(b);
}

std::string blancsSimples(std::string_view texte) {
  std::string resultat(texte);
  for (const char* blanc : {"\u00A0", "\u202F", "\u2009"}) replaceAll(resultat, blanc, " ");
  return resultat;
}

std::vector<std::string> mots(std::string_view texte) {
  std::vector<std::string> resultat;
  std::size_t debut = texte.find_first_not_of(' ');
  while (debut != std::string_view::npos) {
    const std::size_t fin = std::min(texte.find(' ', debut), texte.size());
    resultat.emplace_back(texte.substr(debut, fin - debut));
    debut = texte.find_first_not_of(' ', fin);
  }
  return resultat;
}

}  // namespace data
