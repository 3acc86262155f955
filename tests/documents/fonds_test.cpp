// The background pictures are drawn from a list of boxes: every text falls into one of them, and
// none lies on another, however long the names are.

#include <fstream>
#include <sstream>

#include "data/texte.h"
#include "documents/declaration_formulaire.h"
#include "documents/declaration_matricielle.h"
#include "essai_declaration.h"

namespace {

using essai::item;
using Dossier = documents::DossierDeclaration;

struct Rectangle {
  double x, y, largeur, hauteur;
  bool Contient(const Rectangle& r) const {
    return r.x >= x && r.y >= y && r.x + r.largeur <= x + largeur && r.y + r.hauteur <= y + hauteur;
  }
  bool Croise(const Rectangle& r) const {
    return r.x < x + largeur && x < r.x + r.largeur && r.y < y + hauteur && y < r.y + r.hauteur;
  }
};

std::vector<Rectangle> boites(const char* fond) {
  std::ifstream fichier(std::string(CONTRATS_SOURCE_DIR "/apps/hote/formulaires/") + fond);
  std::vector<Rectangle> lues;
  for (std::string ligne; std::getline(fichier, ligne);) {
    std::istringstream mots(ligne);
    std::string mot;
    Rectangle r{};
    if (mots >> mot >> r.x >> r.y >> r.largeur >> r.hauteur && mot == "case") lues.push_back(r);
  }
  return lues;
}

struct Morceau {
  std::string texte;
  Rectangle encre;
};

// The pieces of the page's texts that wide blanks part, and where their letters are: capitals
// stand below the place's top and leave a little of their width free.
std::vector<Morceau> morceaux(const documents::Page& page) {
  std::vector<Morceau> lus;
  for (const auto& element : page.elements) {
    const auto* const t = std::get_if<documents::Texte>(&element);
    if (t == nullptr) continue;
    const double chasse = documents::ChasseFixe * t->police.points / documents::PointsParCentimetre;
    const int longueur = data::longueur(t->texte);
    double serre = 1;
    if (t->largeur > 0) serre = std::min(1.0, t->largeur / (longueur * chasse));
    for (int debut = 1; debut <= longueur;) {
      if (data::milieu(t->texte, debut, 1) == " ") {
        ++debut;
        continue;
      }
      int fin = debut;
      while (fin <= longueur && data::sansBlancs(data::milieu(t->texte, fin, 3)) != "") ++fin;
      const double corps = t->police.points / documents::PointsParCentimetre;
      const std::string texte = data::sansBlancsADroite(data::milieu(t->texte, debut, fin - debut));
      lus.push_back({texte,
                     {t->x + (debut - 0.9) * chasse * serre, t->y + 0.2 * corps,
                      (data::longueur(texte) - 0.2) * chasse * serre, 0.75 * corps}});
      debut = fin;
    }
  }
  return lus;
}

void verifier(const documents::Page& page, const char* fond, const char* qui) {
  const auto cases = boites(fond);
  ASSERT_GT(cases.size(), 20U);
  const auto textes = morceaux(page);
  ASSERT_GT(textes.size(), 20U);
  for (std::size_t i = 0; i < textes.size(); ++i) {
    const auto& [texte, encre] = textes[i];
    EXPECT_TRUE(std::any_of(cases.begin(), cases.end(),
                            [&](const Rectangle& c) { return c.Contient(encre); }))
        << qui << ", " << fond << " : " << texte << " at " << encre.x << " " << encre.y << " + "
        << encre.largeur;
    for (std::size_t j = 0; j < i; ++j) {
      EXPECT_FALSE(encre.Croise(textes[j].encre))
          << qui << ", " << fond << " : " << texte << " over " << textes[j].texte;
    }
  }
}

TEST(Fonds, EveryTextFallsIntoABoxOfItsOwn) {
  Dossier francaise = essai::declaration();
  Dossier sansNumero = francaise;
  sansNumero.aidant.Set(17, "");
  Dossier communaute = sansNumero;
  communaute.aidant.Set(19, "ITALIE");
  communaute.paysNationalite = item("1=République italienne; 2=C");
  communaute.paysNaissance = item("1=Libye");
  Dossier titre = communaute;
  titre.paysNationalite.Set(2, "");
  titre.etranger = item("1=1; 3=9912345678");
  titre.part.Set(9, "00");
  Dossier longs = titre;
  for (const int a : {2, 3, 4}) {
    longs.aidant.Set(a, "Wilhelmine-Maximilienne-Fréd");
    longs.aide.Set(a, "Marie-Antoinette Villeneuve d'Ascq du Bocage");
  }
  for (data::CItem* const personne : {&longs.aidant, &longs.aide}) {
    personne->Set(8, "du Général de Gaulle et des Anciens Combattants d'Indochine");
    personne->Set(9, "Résidence des Peupliers, bâtiment C, escalier 12");
    personne->Set(11, "Saint-Remy-en-Bouzemont-Saint-Genest-et-Isson");
  }
  longs.aidant.Set(3, std::string(90, 'W'));
  longs.association.Set(9, std::string(60, 'W'));
  longs.etablissement.Set(9, std::string(60, 'W'));
  longs.association.Set(1, "Association départementale pour le maintien à domicile des aînés");
  longs.contrat.Set(4, "D");
  longs.contrat.Set(60, "22000");
  longs.contrat.Set(16, "Technicien de l'intervention sociale et familiale");
  longs.contrat.Set(19, std::string(200, 'W'));
  const struct {
    const char* qui;
    const Dossier& dossier;
  } cas[] = {{"French", francaise},
             {"French without number", sansNumero},
             {"Community", communaute},
             {"permit", titre},
             {"long names", longs}};
  for (const auto& c : cas) {
    verifier(documents::declarationFormulaire(c.dossier), "URSSAF.txt", c.qui);
    verifier(documents::declarationMatricielle(c.dossier), "DUE.txt", c.qui);
  }
}

}  // namespace
