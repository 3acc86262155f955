#include "data/routines.h"

#include <algorithm>
#include <charconv>

#include "data/db.h"
#include "data/jour.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/requete.h"
#include "data/texte.h"

namespace data {

namespace {

constexpr std::string_view premierAppel = "AFAIRE";
constexpr std::string_view effacerListe = "EFFACER-LISTE";
constexpr std::string_view jours[] = {"Lundi",    "Mardi",  "Mercredi", "Jeudi",
                                      "Vendredi", "Samedi", "Dimanche"};

[[noreturn]] void refuse(const std::string& message) {
  throw StoreError(NumeroErreur::Question, message);
}

// A whole number, and nothing else, in the whole text.
bool lireEntier(std::string_view texte, long& nombre) {
  const char* fin = texte.data() + texte.size();
  const auto [arret, erreur] = std::from_chars(texte.data(), fin, nombre);
  return erreur == std::errc() && arret == fin;
}

struct Demande {
  std::string intervention;
  long debut = 0;
  long fin = 0;
  bool premier = false;
};

Demande lireDemande(const ListesSauvees& listes, const CItem& parametres) {
  Demande demande;
  demande.intervention = parametres(1);
  if (demande.intervention.empty() ||
      demande.intervention.find_first_of("\"[]") != std::string::npos) {
    refuse("REMPLRECURSIF : « " + demande.intervention +
           " » (attribut 1) n'est pas une clé d'intervention.");
  }
  long avant = 0;
  long apres = 0;
  for (const auto& [attribut, jour] : {std::pair{2, &avant}, std::pair{3, &apres}}) {
    if (!lireEntier(parametres.Vue(attribut), *jour)) {
      refuse("REMPLRECURSIF : « " + parametres(attribut) + " » (attribut " +
             std::to_string(attribut) + ") n'est pas une date interne.");
    }
  }
  demande.debut = std::min(avant, apres);
  demande.fin = avant < apres ? apres - 1 : avant;
  demande.premier = parametres.Vue(4) == premierAppel;
  if (!demande.premier && !listes.Existe(parametres.Vue(4))) {
    refuse("REMPLRECURSIF : la liste « " + parametres(4) +
           " » (attribut 4) n'existe pas. Le premier appel d'une série se fait avec AFAIRE.");
  }
  return demande;
}

std::string nomComplet(Db& db, std::string_view fichier, std::string_view code) {
  CItem personne;
  if (!db.OpenFile(fichier).Lire(code, personne)) return std::string(code);
  return sansBlancs(personne(CivilAide::Nom) + ' ' + personne(CivilAide::Prenom));
}

// "08h30" or, where times are kept as they are, "08,50".
std::string heure(std::string_view chiffres, bool enCentiemes) {
  const std::string heures(chiffres.substr(0, 2));
  const std::string_view reste = chiffres.substr(heures.size());
  long centiemes = 0;
  if (!enCentiemes || !lireEntier(reste, centiemes)) return heures + ',' + std::string(reste);
  const std::string minutes = std::to_string((centiemes * 60 + 50) / 100);
  return heures + 'h' + completeAGauche(minutes, 2, '0');
}

std::string ligne(Db& db, std::string_view cleException, const std::string& aide,
                  bool enCentiemes) {
  // Carer 1 to 5, day 6 to 10, time 11 to 14.
  const std::string cle = completeADroite(cleException, 14);
  std::string texte;
  long jour = 0;
  if (lireEntier(std::string_view(cle).substr(5, 5), jour)) {
    texte = jours[jourDeSemaine(jour)];
    texte += ' ' + dateAffichee(jour);
  }
  texte += " à " + heure(std::string_view(cle).substr(10, 4), enCentiemes);
  texte += " : " + nomComplet(db, fichier::CIVILAIDANT, cle.substr(0, 5));
  return texte + " chez " + aide;
}

// As keys hold it.
std::string jourEnCle(long jour) {
  return completeAGauche(std::to_string(jour), 5, '0');
}

CItem remplacements(Db& db, ListesSauvees& listes, const CItem& parametres) {
  const Demande demande = lireDemande(listes, parametres);
  const CItem trouvees = Requete(fichier::TPSEXCEPTIONS)
                             .Avec(TpsExceptions::Intervention, "=", citer(demande.intervention))
                             .Avec("DateDebExcep", ">=", citer(jourEnCle(demande.debut)))
                             .Et("<=", citer(jourEnCle(demande.fin)))
                             .Par("DateDebExcep")
                             .Par(Cle)
                             .Lire(db, {Cle});

  CItem tpsParam;
  db.OpenFile(fichier::TPSPARAM).Lire(TpsParam::Cle, tpsParam);
  const bool enCentiemes = tpsParam.Vue(TpsParam::Notation) == "2";
  const std::string codeAide = milieu(demande.intervention, TpsDetailsInterv::PosAide, 5);
  const std::string aide = nomComplet(db, fichier::CIVILAIDE, codeAide);

  CItem reponse;
  if (demande.premier) reponse.Append(listes.Creer());
  for (int i = 1; i <= trouvees.DCount(); ++i) {
    reponse.Append(ligne(db, trouvees.Vue(i, 1), aide, enCentiemes));
  }
  return reponse;
}

}  // namespace

std::string ListesSauvees::Creer() {
  std::string nom = "REMPL" + std::to_string(++derniere_);
  noms_.insert(nom);
  return nom;
}

void ListesSauvees::Oublier(std::string_view nom) {
  const auto place = noms_.find(nom);
  if (place != noms_.end()) noms_.erase(place);
}

CItem appelerRoutine(Db& db, ListesSauvees& listes, std::string_view nom, const CItem& parametres) {
  if (nom == "REMPLRECURSIF") return remplacements(db, listes, parametres);
  refuse("La routine « " + std::string(nom) + " » n'existe pas. La seule est REMPLRECURSIF.");
}

void executerCommande(ListesSauvees& listes, std::string_view commande) {
  const auto parties = mots(commande);
  if (parties.size() != 2 || parties.front() != effacerListe) {
    refuse("La commande « " + std::string(commande) +
           " » n'est pas comprise : EFFACER-LISTE et un nom de liste sont attendus.");
  }
  listes.Oublier(parties.back());
}

}  // namespace data
