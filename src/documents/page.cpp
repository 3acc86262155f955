#include "documents/page.h"

#include <cmath>

namespace documents {

namespace {

int twips(double centimetres) {
  return static_cast<int>(std::lround(centimetres * screen::TwipsParCentimetre));
}

struct Traceur {
  screen::Imprimante& imprimante;

  void operator()(const Texte& t) const {
    imprimante.Police(t.police.nom, t.police.points, t.police.gras);
    imprimante.Texte(twips(t.x), twips(t.y), t.texte, twips(t.largeur));
  }
  void operator()(const Image& i) const {
    imprimante.Image(twips(i.x), twips(i.y), twips(i.largeur), twips(i.hauteur), i.fichier);
  }
};

}  // namespace

void imprimer(const std::vector<Page>& pages, screen::Imprimante& imprimante, int copies) {
  for (int copie = 0; copie < copies; ++copie) {
    for (const Page& page : pages) {
      for (const auto& element : page.elements) std::visit(Traceur{imprimante}, element);
      imprimante.FinPage();
    }
  }
  imprimante.FinDocument();
}

}  // namespace documents
