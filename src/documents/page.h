#pragma once
// A printed page as a value: texts and pictures at their places, in the order in which they are
// drawn. Pages are made by pure functions from records; imprimer() alone knows a printer.

#include <string>
#include <variant>
#include <vector>

#include "screen/platform.h"

namespace documents {

struct Police {
  std::string nom = "Courier New";
  double points = 10;
  bool gras = false;
};

// Places and sizes are centimetres from the page's top left corner.
struct Texte {
  double x = 0;
  double y = 0;
  std::string texte;
  Police police;
  double largeur = 0;  // what the place can hold; 0 without a bound
};

struct Image {
  double x = 0;
  double y = 0;
  double largeur = 0;
  double hauteur = 0;
  std::string fichier;
};

struct Page {
  std::vector<std::variant<Texte, Image>> elements;
};

// Widths of a fixed-pitch character, in parts of the font's size.
inline constexpr double ChasseFixe = 0.6;
inline constexpr double PointsParCentimetre = 72 / 2.54;

// The pages, `copies` times one after another, as one document of the printer that stands chosen.
// Raises screen::ErreurImpression when it did not come onto paper.
void imprimer(const std::vector<Page>& pages, screen::Imprimante& imprimante, int copies = 1);

}  // namespace documents
