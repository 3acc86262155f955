#include "pilote/commandes.h"

#include <algorithm>
#include <charconv>

#include "pilote/proprietes.h"
#include "screen/events.h"
#include "screen/headless/messages.h"
#include "screen/touches.h"

namespace pilote {

namespace {

[[noreturn]] void refuser(const Mot& mot, const std::string& attendu) {
  throw Faute{0, mot.colonne, "« " + mot.texte + " » n'est pas " + attendu + "."};
}

void exigerTouche(const Commande& c) {
  if (!touche(c.Texte(1))) refuser(c.mots[1], "Entree, Echap, Retour ou un caractère");
}

void exigerReponse(const Commande& c) {
  if (!reponse(c.Texte(0))) refuser(c.mots[0], "OUI, NON, ANNULER ou OK");
}

void exigerTranche(const Commande& c) {
  if (!tranche(c.Texte(0))) refuser(c.mots[0], "REMPLACER, GARDER ou REVENIR");
}

void exigerRang(const Commande& c) {
  if (c.mots.size() > 1 && !rang(c.mots[1])) refuser(c.mots[1], "une ligne, comme #0");
}

void exigerChoix(const Commande& c) {
  if (!c.mots[1].cite && c.Texte(1).starts_with('#')) exigerRang(c);
}

template <std::size_t I>
void exigerEntier(const Commande& c) {
  if (!entier(c.Texte(I))) refuser(c.mots[I], "un nombre entier");
}

void exigerPropriete(const Commande& c) {
  const Propriete* const propriete = trouverPropriete(c.Texte(1));
  if (propriete == nullptr) refuser(c.mots[1], "une propriété : " + nomsDesProprietes());
  const std::string& attendu = c.Texte(2);
  if (propriete->genre == Attendu::Entier && !entier(attendu)) {
    refuser(c.mots[2], "un nombre entier");
  }
  if (propriete->genre == Attendu::OuiNon && attendu != "oui" && attendu != "non") {
    refuser(c.mots[2], "oui ou non");
  }
}

void exigerCle(const Commande& c) {
  constexpr std::string_view permis = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
  if (c.Texte(0).empty() || c.Texte(0).find_first_not_of(permis) != std::string::npos) {
    refuser(c.mots[0], "un nom de fichier : des capitales et des chiffres");
  }
  if (c.Texte(1).empty()) refuser(c.mots[1], "une clé");
}

void exigerArticle(const Commande& c) {
  exigerCle(c);
  const std::size_t signe = c.mots.size() - 2;
  if (c.mots[signe].cite || c.Texte(signe) != "=") {
    throw Faute{0, c.mots[signe].colonne, "Le signe = est attendu ici, entre deux blancs."};
  }
  for (std::size_t i = 2; i < signe; ++i) {
    if (entier(c.Texte(i)).value_or(0) < 1) refuser(c.mots[i], "un rang à partir de 1");
  }
}

constexpr Definition Definitions[] = {
    {"taper", "taper CHAMP TEXTE", 2, 2, taper},
    {"touche", "touche CHAMP Entree|Echap|Retour|C", 2, 2, appuyer, exigerTouche},
    {"quitter", "quitter", 0, 0, quitter},
    {"cliquer", "cliquer NOM", 1, 1, cliquer},
    {"choisir", "choisir NOM TEXTE, ou choisir NOM #N", 2, 2, choisir, exigerChoix},
    {"double", "double NOM [#N]", 1, 2, doubleCliquer, exigerRang},
    {"onglet", "onglet N", 1, 1, choisirOnglet, exigerEntier<0>},
    {"barre", "barre NOM VALEUR", 2, 2, deplacerBarre, exigerEntier<1>},
    {"fermer", "fermer", 0, 0, fermer},
    {"repondre", "repondre OUI|NON|ANNULER|OK", 1, 1, repondre, exigerReponse},
    {"trancher", "trancher REMPLACER|GARDER|REVENIR", 1, 1, trancher, exigerTranche},
    {"ailleurs", "ailleurs FICHIER CLE A [V [S]] = TEXTE", 5, 7, ecrireAilleurs, exigerArticle},
    {"reglage", "reglage SECTION CLE TEXTE", 3, 3, regler},
    {"controle", "controle NOM", 1, 1, installer},
    {"message", "message \"début du texte\"", 1, 1, verifierMessage},
    {"aucun-message", "aucun-message", 0, 0, verifierAucunMessage},
    {"indication", "indication \"texte\"", 1, 1, verifierIndication},
    {"conflit", "conflit LEGENDE SUR-FICHIER ICI", 3, 3, verifierConflit},
    {"forme", "forme Frm_X", 1, 1, verifierForme},
    {"verifier", "verifier NOM PROPRIETE ATTENDU", 3, 3, verifierChamp, exigerPropriete},
    {"article", "article FICHIER CLE [A [V [S]]] = TEXTE", 4, 7, verifierArticle, exigerArticle},
    {"absent", "absent FICHIER CLE", 2, 2, verifierAbsent, exigerCle},
    {"imprime", "imprime X Y TEXTE", 3, 3, verifierImprime},
    {"transmis", "transmis CONTROLE TEXTE", 2, 2, verifierTransmis},
    {"voir", "voir [NOM]", 0, 1, voir},
};

}  // namespace

const Definition* trouverDefinition(std::string_view nom) {
  const auto trouvee = std::find_if(std::begin(Definitions), std::end(Definitions),
                                    [&](const Definition& d) { return d.nom == nom; });
  return trouvee == std::end(Definitions) ? nullptr : trouvee;
}

// One way of writing each number, so that expected and found compare as texts.
std::optional<int> entier(std::string_view texte) {
  int nombre = 0;
  std::from_chars(texte.data(), texte.data() + texte.size(), nombre);
  if (std::to_string(nombre) != texte) return std::nullopt;
  return nombre;
}

std::optional<char32_t> touche(std::string_view texte) {
  if (texte == "Entree") return screen::ToucheEntree;
  if (texte == "Echap") return screen::ToucheEchap;
  if (texte == "Retour") return screen::ToucheRetour;
  const std::u32string touches = screen::touchesDe(texte);
  if (touches.size() != 1) return std::nullopt;
  return touches.front();
}

std::optional<screen::Reponse> reponse(std::string_view texte) {
  using screen::Reponse;
  for (Reponse r : {Reponse::Oui, Reponse::Non, Reponse::Annuler, Reponse::Ok}) {
    if (screen::headless::nom(r) == texte) return r;
  }
  return std::nullopt;
}

std::optional<screen::Tranche> tranche(std::string_view texte) {
  using screen::Tranche;
  if (texte == "REMPLACER") return Tranche::Remplacer;
  if (texte == "GARDER") return Tranche::Garder;
  if (texte == "REVENIR") return Tranche::Revenir;
  return std::nullopt;
}

std::optional<int> rang(const Mot& mot) {
  if (mot.cite || !mot.texte.starts_with('#')) return std::nullopt;
  return entier(std::string_view(mot.texte).substr(1));
}

}  // namespace pilote
