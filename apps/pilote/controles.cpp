// The checks of a scenario, and what it shows.

#include <nlohmann/json.hpp>

#include "data/store_error.h"
#include "pilote/commandes.h"
#include "pilote/pilote.h"
#include "pilote/proprietes.h"

namespace pilote {

namespace {

// The separators of a record as a scenario writes them. Where a record's own text holds one of
// these characters, a backslash stands before it.
std::string enClair(std::string_view texte) {
  constexpr std::pair<char, char> Signes[] = {
      {data::SepAttribut, '^'}, {data::SepValeur, '|'}, {data::SepSousValeur, '~'}};
  std::string clair;
  for (char c : texte) {
    if (c == '^' || c == '|' || c == '~' || c == '\\') clair += '\\';
    for (const auto& [separateur, signe] : Signes) {
      if (c == separateur) c = signe;
    }
    clair += c;
  }
  return clair;
}

std::string ecart(const std::string& legende, const std::string& surFichier,
                  const std::string& ici) {
  return "[" + legende + " : " + surFichier + " / " + ici + "]";
}

// Nothing for an absent record.
std::optional<data::CItem> lireArticle(Pilote& pilote, const Commande& c) {
  data::CItem item;
  if (!pilote.Base().OpenFile(c.Texte(0)).Lire(c.Texte(1), item)) return std::nullopt;
  return item;
}

}  // namespace

void verifierMessage(Pilote& pilote, const Commande& c) {
  const auto message = pilote.Messages().Prendre();
  if (!message) pilote.Echouer("un message « " + c.Texte(0) + " »", "aucun message");
  if (!message->texte.starts_with(c.Texte(0))) pilote.Echouer(c.Texte(0), message->texte);
}

void verifierAucunMessage(Pilote& pilote, const Commande&) {
  if (const auto message = pilote.Messages().Prendre()) {
    pilote.Echouer("aucun message", message->texte);
  }
}

// The last hint since the one before was checked.
void verifierIndication(Pilote& pilote, const Commande& c) {
  const auto notees = pilote.Indications().Prendre();
  const std::string derniere = notees.empty() ? "aucune indication" : notees.back();
  if (derniere.find(c.Texte(0)) == std::string::npos) pilote.Echouer(c.Texte(0), derniere);
}

// The oldest conflict not checked yet: that field differs, with these two values.
void verifierConflit(Pilote& pilote, const Commande& c) {
  const auto conflit = pilote.Conflits().Prendre();
  if (!conflit) pilote.Echouer("un conflit sur « " + c.Texte(0) + " »", "aucun conflit");
  std::string trouves;
  for (const auto& [legende, surFichier, ici] : conflit->ecarts) {
    if (legende == c.Texte(0) && surFichier == c.Texte(1) && ici == c.Texte(2)) return;
    trouves += ecart(legende, surFichier, ici);
  }
  pilote.Echouer(ecart(c.Texte(0), c.Texte(1), c.Texte(2)), trouves);
}

void verifierForme(Pilote& pilote, const Commande& c) {
  const std::string& nom = pilote.Sommet().Nom();
  if (nom != c.Texte(0)) pilote.Echouer(c.Texte(0), nom);
}

void verifierChamp(Pilote& pilote, const Commande& c) {
  const screen::Field& champ = pilote.Champ(c.Texte(0));
  const auto trouve = trouverPropriete(c.Texte(1))->lire(champ);
  if (!trouve) {
    pilote.Echouer("un champ qui a la propriété " + c.Texte(1),
                   champ.Nom() + " est de genre " + std::string(nomDuGenre(champ.Genre())));
  }
  if (*trouve != c.Texte(2)) pilote.Echouer(c.Texte(2), *trouve);
}

void verifierArticle(Pilote& pilote, const Commande& c) {
  const auto item = lireArticle(pilote, c);
  const std::string& attendu = c.mots.back().texte;
  if (!item) pilote.Echouer(attendu, "aucun article sous cette clé");
  // The words between the key and the sign: attribute, value, subvalue.
  int rangs[3] = {-1, 0, 0};
  for (std::size_t i = 2; i + 2 < c.mots.size(); ++i) rangs[i - 2] = *entier(c.Texte(i));
  if (rangs[0] < 0) rangs[1] = rangs[2] = -1;
  const std::string trouve = enClair(item->GetText(rangs[0], rangs[1], rangs[2]));
  if (trouve != attendu) pilote.Echouer(attendu, trouve);
}

void verifierAbsent(Pilote& pilote, const Commande& c) {
  if (const auto item = lireArticle(pilote, c)) {
    pilote.Echouer("aucun article sous cette clé", enClair(item->Text()));
  }
}

// The last document, on any of its pages; a place is in centimetres, two decimals.
void verifierImprime(Pilote& pilote, const Commande& c) {
  const auto& documents = pilote.Imprimante().Documents();
  if (documents.empty()) pilote.Echouer(c.Texte(2), "aucun document imprimé");
  const std::string place = " : " + c.Texte(0) + " " + c.Texte(1) + " ";
  std::string trouve = "rien à cette place";
  for (const std::string& ligne : documents.back().Lignes()) {
    if (ligne.find(place) == std::string::npos) continue;
    if (ligne.ends_with(" : " + c.Texte(2))) return;
    trouve = ligne;
  }
  pilote.Echouer(c.Texte(2), trouve);
}

void voir(Pilote& pilote, const Commande& c) {
  const auto json = c.mots.empty() ? enJson(pilote.Sommet()) : enJson(pilote.Champ(c.Texte(0)));
  // A record damaged before it came on the screen may hold bytes that are no text.
  constexpr auto remplacer = nlohmann::ordered_json::error_handler_t::replace;
  pilote.Sortie() << json.dump(-1, ' ', false, remplacer) << std::endl;
}

}  // namespace pilote
