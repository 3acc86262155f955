// The acts of a scenario. Each is what a user can do, through the user's own door.

#include <algorithm>

#include "pilote/commandes.h"
#include "pilote/pilote.h"
#include "pilote/proprietes.h"

namespace pilote {

namespace {

using screen::Acte;
using screen::Field;
using screen::Kind;
using screen::RowsField;

RowsField& lignesDe(Pilote& pilote, Field& champ) {
  auto* const lignes = dynamic_cast<RowsField*>(&champ);
  if (lignes == nullptr) pilote.RefuserGenre(champ);
  return *lignes;
}

int exigerLigne(Pilote& pilote, const RowsField& lignes, int ligne) {
  if (ligne < lignes.ListCount()) return ligne;
  pilote.Echouer("une ligne #" + std::to_string(ligne),
                 std::to_string(lignes.ListCount()) + " ligne(s), comptées à partir de #0");
}

// A text names its row only when no other row bears it.
int ligneDeTexte(Pilote& pilote, const RowsField& lignes, const std::string& texte) {
  const auto& toutes = lignes.Rows();
  const auto fois = std::count(toutes.begin(), toutes.end(), texte);
  if (fois == 1) {
    return static_cast<int>(std::find(toutes.begin(), toutes.end(), texte) - toutes.begin());
  }
  const std::string vues = *trouverPropriete("lignes")->lire(lignes);
  if (fois == 0) pilote.Echouer("une ligne « " + texte + " »", vues);
  pilote.Echouer("une seule ligne « " + texte + " », ou son rang #N", vues);
}

int ligneVisee(Pilote& pilote, const RowsField& lignes, const Mot& mot) {
  const auto ligne = rang(mot);
  return ligne ? exigerLigne(pilote, lignes, *ligne) : ligneDeTexte(pilote, lignes, mot.texte);
}

}  // namespace

void taper(Pilote& pilote, const Commande& c) {
  Field& champ = pilote.ChampAccessible(c.Texte(0));
  pilote.Exiger(pilote.Utilisateur().Taper(champ, c.Texte(1)), champ);
}

void appuyer(Pilote& pilote, const Commande& c) {
  Field& champ = pilote.ChampAccessible(c.Texte(0));
  pilote.Exiger(pilote.Utilisateur().Touche(champ, *touche(c.Texte(1))), champ);
}

void quitter(Pilote& pilote, const Commande&) {
  if (pilote.Utilisateur().Quitter() == Acte::Inaccessible) {
    pilote.Echouer("une forme active", pilote.Sommet().Nom() + " est désactivée");
  }
}

void cliquer(Pilote& pilote, const Commande& c) {
  Field& champ = pilote.ChampAccessible(c.Texte(0));
  if (const auto* const lignes = dynamic_cast<const RowsField*>(&champ)) {
    if (lignes->ListIndex() < 0) pilote.Echouer("une ligne choisie", "aucune");
  }
  pilote.Exiger(pilote.Utilisateur().Cliquer(champ), champ);
}

void choisir(Pilote& pilote, const Commande& c) {
  Field& champ = pilote.ChampAccessible(c.Texte(0));
  const RowsField& lignes = lignesDe(pilote, champ);
  screen::User utilisateur = pilote.Utilisateur();
  if (champ.Genre() == Kind::Deroulante) {
    // Its rows may only be filled when it opens.
    const auto vie = champ.Forme().Vie();
    const Acte ouverture = utilisateur.Derouler(static_cast<screen::ComboBox&>(champ));
    if (ouverture != Acte::Fait || vie.expired() || !champ.Accessible()) return;
  }
  const int ligne = ligneVisee(pilote, lignes, c.mots[1]);
  pilote.Exiger(utilisateur.Choisir(champ, ligne), champ);
}

void doubleCliquer(Pilote& pilote, const Commande& c) {
  Field& champ = pilote.ChampAccessible(c.Texte(0));
  const RowsField& lignes = lignesDe(pilote, champ);
  const int ligne =
      c.mots.size() > 1 ? exigerLigne(pilote, lignes, *rang(c.mots[1])) : lignes.ListIndex();
  if (ligne < 0) pilote.Echouer("une ligne choisie, ou #N", "aucune");
  pilote.Exiger(pilote.Utilisateur().DoubleCliquer(champ, ligne), champ);
}

void choisirOnglet(Pilote& pilote, const Commande& c) {
  const auto& champs = pilote.Sommet().Fields();
  const auto trouve = std::find_if(champs.begin(), champs.end(),
                                   [](const Field* f) { return f->Genre() == Kind::Onglets; });
  if (trouve == champs.end()) {
    pilote.Echouer("une forme à onglets", pilote.Sommet().Nom() + ", qui n'en a pas");
  }
  auto& onglets = static_cast<screen::TabStrip&>(pilote.ChampAccessible((*trouve)->Nom()));
  const int onglet = *entier(c.Texte(0));
  const auto nombre = static_cast<int>(onglets.Onglets().size());
  if (onglet < 0 || onglet >= nombre) {
    pilote.Echouer("un onglet de 0 à " + std::to_string(nombre - 1), c.Texte(0));
  }
  pilote.Exiger(pilote.Utilisateur().Onglet(onglets, onglet), onglets);
}

void deplacerBarre(Pilote& pilote, const Commande& c) {
  Field& champ = pilote.ChampAccessible(c.Texte(0));
  auto* const barre = dynamic_cast<screen::RangeField*>(&champ);
  if (barre == nullptr) pilote.RefuserGenre(champ);
  const int valeur = *entier(c.Texte(1));
  const int bas = std::min(barre->Min(), barre->Max());
  const int haut = std::max(barre->Min(), barre->Max());
  if (valeur < bas || valeur > haut) {
    pilote.Echouer("une valeur de " + std::to_string(bas) + " à " + std::to_string(haut),
                   c.Texte(1));
  }
  pilote.Exiger(pilote.Utilisateur().Barre(*barre, valeur), champ);
}

void fermer(Pilote& pilote, const Commande&) {
  if (pilote.Utilisateur().Fermer() == Acte::Inaccessible) {
    pilote.Echouer("une forme active", pilote.Sommet().Nom() + " est désactivée");
  }
}

void repondre(Pilote& pilote, const Commande& c) {
  pilote.Prevoir(*reponse(c.Texte(0)));
}

void trancher(Pilote& pilote, const Commande& c) {
  pilote.Conflits().Repondre(*tranche(c.Texte(0)));
}

void ecrireAilleurs(Pilote& pilote, const Commande& c) {
  data::CItem item;
  if (!pilote.Base().OpenFile(c.Texte(0)).Lire(c.Texte(1), item)) {
    pilote.Echouer("un article " + c.Texte(1), "aucun article sous cette clé");
  }
  int rangs[3] = {0, 0, 0};
  for (std::size_t i = 2; i + 2 < c.mots.size(); ++i) rangs[i - 2] = *entier(c.Texte(i));
  item.SetField(rangs[0], rangs[1], rangs[2], c.mots.back().texte);
  item.DBWrite();
}

}  // namespace pilote
