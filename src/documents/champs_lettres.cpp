// The fields of the letters: one table, in the words of who edits a template.

#include <initializer_list>

#include "data/jour.h"
#include "data/layouts/contrat.h"
#include "data/layouts/voisins.h"
#include "data/liste_codes.h"
#include "data/nombre.h"
#include "data/texte.h"
#include "documents/lettre.h"
#include "documents/zones.h"

namespace documents {

namespace {

using namespace data;
namespace C = data::Contrat;
namespace P = data::CivilAidant;  // CIVILAIDE has its places at the same numbers
namespace E = data::Etablissement;
using Dossier = DossierLettre;

std::string joindre(std::initializer_list<std::string> parties, const char* entre) {
  std::string texte;
  for (const std::string& partie : parties) {
    if (!sansBlancs(partie).empty()) texte += (texte.empty() ? "" : entre) + partie;
  }
  return texte;
}

std::string date(const std::string& interne) {
  return interne.empty() ? "" : dateAffichee(static_cast<long>(entier(interne)));
}

// Whole numbers of a record as amounts and durations: "151,67", "12,02".
std::string montant(std::string_view texte, int echelle, int decimales) {
  if (!estNombre(texte)) return std::string(texte);
  const Monnaie valeur = echelle == 3 ? Monnaie::DeMilliemes(texte) : Monnaie::DeCentiemes(texte);
  return decimales < 0 ? valeur.TexteCourt() : valeur.Texte(decimales);
}

template <CItem Dossier::*Item, int Attribut>
std::string lu(const Dossier& d) {
  return (d.*Item)(Attribut);
}
template <CItem Dossier::*Item, int Attribut>
std::string luDate(const Dossier& d) {
  return date((d.*Item)(Attribut));
}
// Of the amendment group, as the letter's amendment has it, or the state before that one.
template <int Attribut, int Recul = 0>
std::string etat(const Dossier& d) {
  return d.contrat(Attribut, d.Etat() - Recul);
}
template <int Attribut, int Recul = 0>
std::string etatDate(const Dossier& d) {
  return date(etat<Attribut, Recul>(d));
}

// The parties.

// One line, or one line each, of a letter's head.
constexpr const char* EnLigne = ", ";
constexpr const char* EnLignes = "\n";

std::string adresse(const Dossier& d, const CItem& p, const char* entre) {
  const std::string nature = p(P::VoieNature);
  return joindre({joindre({p(P::VoieNumero), p(P::VoieBis),
                           libelle(d.naturesVoie, nature).value_or(nature), p(P::VoieNom)},
                          " "),
                  p(P::AdresseComplement), joindre({p(P::CodePostal), p(P::Ville)}, " ")},
                 entre);
}
// Of an entity or an establishment.
std::string adresse(const CItem& lieu, const char* entre) {
  return joindre({lieu(E::Adresse1), lieu(E::Adresse2), lieu(E::Adresse3),
                  joindre({lieu(E::CodePostal), lieu(E::Ville)}, " ")},
                 entre);
}
std::string employeurNom(const Dossier& d) {
  return d.Particuliers() ? joindre({d.aide(P::Prenom), d.aide(P::Nom)}, " ")
                          : d.association(Association::Nom);
}
template <const auto& Entre>
std::string employeurAdresse(const Dossier& d) {
  return d.Particuliers() ? adresse(d, d.aide, Entre) : adresse(d.association, Entre);
}
std::string employeurVille(const Dossier& d) {
  return d.Particuliers() ? d.aide(P::Ville) : d.association(Association::Ville);
}
// The registration of an entity, the reference of a private employer.
std::string employeurNumero(const Dossier& d) {
  return d.Particuliers() ? d.reference(EltsPartEmp::Reference)
                          : d.association(Association::NumeroEmployeur);
}
// Where the carer works from: a private employer's home, or the establishment.
std::string lieuNom(const Dossier& d) {
  return d.Particuliers() ? employeurNom(d) : d.etablissement(E::Libelle);
}
std::string lieuAdresse(const Dossier& d) {
  return d.Particuliers() ? adresse(d, d.aide, EnLigne) : adresse(d.etablissement, EnLigne);
}

std::string civilite(const Dossier& d) {
  static constexpr std::pair<const char*, const char*> Civilites[] = {
      {"MR", "Monsieur"}, {"MME", "Madame"}, {"MLE", "Mademoiselle"}};
  const std::string titre = milieu(d.aidant(P::CentreEtCivilite), 4);
  for (const auto& [code, mot] : Civilites) {
    if (titre == code) return mot;
  }
  return "";
}
std::string salarieSecu(const Dossier& d) {
  return joindre({d.aidant(P::NumeroSecu), d.aidant(P::CleSecu)}, " ");
}
template <const auto& Entre>
std::string salarieAdresse(const Dossier& d) {
  return adresse(d, d.aidant, Entre);
}

// The contract.

std::string numero(const Dossier& d) {
  return milieu(d.cle, 6);
}
std::string nature(const Dossier& d) {
  return libelle(d.natures, d.contrat.Vue(C::Nature)).value_or(d.contrat(C::Nature));
}
std::string type(const Dossier& d) {
  const auto code = d.contrat.Vue(C::Type);
  if (code == "D") return "à durée déterminée";
  return code == "I" ? "à durée indéterminée" : "";
}
// The end that is foreseen, or else the one that came.
std::string fin(const Dossier& d) {
  const std::string presumee = d.contrat(C::DateFinPresumee);
  return date(presumee.empty() ? d.contrat(C::DateFin) : presumee);
}
std::string essai(const Dossier& d) {
  const long long jours = entier(d.contrat(C::PeriodeEssai));
  if (jours <= 0) return "Le contrat ne comporte pas de période d'essai.";
  return "Le contrat débute par une période d'essai de " + std::to_string(jours) +
         (jours > 1 ? " jours" : " jour") +
         (d.contrat.Vue(C::EssaiRenouvelable) == "1" ? ", renouvelable une fois." : ".");
}
std::string recours(const Dossier& d) {
  const auto table = ListeCodes::DeTable(d.motifs, Tables::MotifCodes, Tables::MotifLibelles);
  return joindre({table.Libelle(d.contrat.Vue(C::MotifEmbauche)),
                  d.contrat(C::MotifEmbaucheTexte, 1), d.contrat(C::MotifEmbaucheTexte, 2)},
                 "\n");
}
std::string remplaces(const Dossier& d) {
  std::string noms;
  for (const std::string& nom : d.remplaces) noms += (noms.empty() ? "" : ", ") + nom;
  return noms.empty() ? "néant" : noms;
}
std::string paiement(const Dossier& d) {
  static constexpr const char* Modes[] = {"virement bancaire", "chèque", "espèces"};
  const long long mode = entier(d.contrat(C::ModePaiement));
  return mode >= 1 && mode <= 3 ? Modes[mode - 1] : "";
}
std::string salaire(const Dossier& d) {
  const auto code = d.contrat.Vue(C::Salaire);
  if (code == "H") return "horaire";
  return code == "M" ? "mensuel" : "";
}
std::string contrepartie(const Dossier& d) {
  static constexpr const char* Contreparties[] = {
      "Amplitude journée limitée à 11 heures", "2 jours de repos", "Paiement des inter-vacations"};
  const long long choix = entier(d.contrat(C::ContrepartieInterruption));
  return choix >= 1 && choix <= 3 ? Contreparties[choix - 1] : "";
}
std::string prevoyance(const Dossier& d) {
  return d.prevoyance(d.Particuliers() ? ContratsPrev::LibelleParticulier : ContratsPrev::Libelle);
}

// "151,67 heures par mois"
template <int Recul>
std::string duree(const Dossier& d) {
  static constexpr const char* Frequences[] = {"par semaine", "par quinzaine", "par mois",
                                               "par an"};
  const std::string heures = etat<C::DureeTravail, Recul>(d);
  if (heures.empty()) return "";
  const long long frequence = entier(etat<C::Frequence, Recul>(d));
  return montant(heures, 2, -1) + " heures" +
         (frequence >= 1 && frequence <= 4 ? std::string(" ") + Frequences[frequence - 1] : "");
}
// A rate of "0" is none; most have no more than two decimals.
template <int Recul>
std::string taux(const Dossier& d) {
  const std::string milliemes = etat<C::TauxHoraire, Recul>(d);
  if (entier(milliemes) == 0) return "";
  return montant(milliemes, 3, milliemes.ends_with('0') ? 2 : 3) + " €";
}
std::string coefficient(const Dossier& d) {
  return montant(etat<C::Coefficient>(d), 3, -1);
}
std::string commentaire(const Dossier& d) {
  const std::string lignes = joindre({etat<C::Commentaire1>(d), etat<C::Commentaire2>(d)}, "\n");
  return lignes.empty() ? "Néant." : lignes;
}
std::string numeroAvenant(const Dossier& d) {
  return d.avenant;
}
std::string seuilStage(const Dossier& d) {
  const std::string seuil = d.contrat(C::StageSeuil);
  return seuil.empty() ? "" : montant(seuil, 2, 2) + " €";
}

std::string aujourdhui(const Dossier& d) {
  return dateAffichee(d.aujourdhui);
}

}  // namespace

const std::vector<ThemeLettre>& champsLettres() {
  using D = Dossier;
  static const std::vector<ThemeLettre> Themes{
      {"L'employeur",
       {{"employeur_nom", "l'entité juridique, ou le prénom et le nom du particulier employeur",
         employeurNom},
        {"employeur_adresse", "son adresse, sur une ligne", employeurAdresse<EnLigne>},
        {"employeur_adresse_lignes", "son adresse, une ligne sous l'autre",
         employeurAdresse<EnLignes>},
        {"employeur_ville", "sa ville", employeurVille},
        {"employeur_siret", "le numéro SIRET de l'entité", lu<&D::association, Association::Siret>},
        {"employeur_ape", "le code APE de l'entité", lu<&D::association, Association::CodeApe>},
        {"employeur_numero",
         "le numéro d'employeur de l'entité, ou la référence du particulier employeur",
         employeurNumero},
        {"entite_nom", "l'entité juridique, aussi quand elle agit pour un particulier",
         lu<&D::association, Association::Nom>},
        {"entite_ville", "sa ville", lu<&D::association, Association::Ville>},
        {"lieu_nom", "l'établissement, ou le particulier chez qui l'on travaille", lieuNom},
        {"lieu_adresse", "son adresse, sur une ligne", lieuAdresse}}},
      {"Le salarié",
       {{"salarie_civilite", "Monsieur, Madame ou Mademoiselle", civilite},
        {"salarie_nom", "le nom d'usage", lu<&D::aidant, P::Nom>},
        {"salarie_prenom", "le prénom", lu<&D::aidant, P::Prenom>},
        {"salarie_nom_naissance", "le nom de naissance", lu<&D::aidant, P::NomNaissance>, true},
        {"salarie_adresse", "l'adresse, sur une ligne", salarieAdresse<EnLigne>},
        {"salarie_adresse_lignes", "l'adresse, une ligne sous l'autre", salarieAdresse<EnLignes>},
        {"salarie_secu", "le numéro de sécurité sociale et sa clé", salarieSecu, true},
        {"salarie_naissance_date", "la date de naissance", luDate<&D::aidant, P::DateNaissance>},
        {"salarie_naissance_lieu", "le lieu de naissance", lu<&D::aidant, P::LieuNaissance>},
        {"salarie_nationalite", "la nationalité", lu<&D::aidant, P::Nationalite>}}},
      {"Le contrat",
       {{"contrat_numero", "le numéro du contrat, sur trois chiffres", numero},
        {"contrat_type", "« à durée indéterminée » ou « à durée déterminée »", type},
        {"contrat_nature", "la nature du contrat", nature},
        {"contrat_debut", "le premier jour", luDate<&D::contrat, C::DateDebut>},
        {"contrat_fin", "la fin prévue d'un contrat à durée déterminée, ou sa fin", fin},
        {"contrat_duree_minimale", "la durée minimale", lu<&D::contrat, C::DureeMinimale>, true},
        {"contrat_essai", "une phrase entière sur la période d'essai, aussi quand il n'y en a pas",
         essai},
        {"contrat_anciennete", "la date d'ancienneté", luDate<&D::contrat, C::DateAnciennete>,
         true},
        {"convention", "la convention collective", lu<&D::convention, ConventionCol::Libelle>},
        {"salaire_mode", "« horaire » ou « mensuel »", salaire},
        {"paiement_mode", "le mode de paiement", paiement},
        {"prevoyance", "le contrat de prévoyance", prevoyance, true},
        {"contrepartie", "la contrepartie aux interruptions", contrepartie, true},
        {"recours_motif", "pourquoi le contrat est à durée déterminée", recours},
        {"recours_remplaces", "les personnes remplacées, ou « néant »", remplaces}}},
      {"L'emploi, au contrat ou à l'avenant que la lettre concerne",
       {{"emploi_qualification", "la qualification professionnelle", etat<C::Qualification>},
        {"emploi_pcs", "le code P.C.S.", etat<C::CodePCS>},
        {"emploi_categorie", "la catégorie", etat<C::CategoriePCS>},
        {"emploi_fonction", "la fonction", etat<C::FonctionPCS>},
        {"emploi_coefficient", "le coefficient", coefficient, true},
        {"emploi_taux", "le taux horaire, en euros", taux<0>},
        {"emploi_duree", "la durée du travail : « 151,67 heures par mois »", duree<0>}}},
      {"L'avenant",
       {{"avenant_numero", "le numéro de l'avenant", numeroAvenant},
        {"avenant_effet", "sa date d'effet", etatDate<C::DateEffet>},
        {"avenant_commentaire", "les deux lignes de commentaire, ou « Néant. »", commentaire},
        {"avant_qualification", "la qualification d'avant", etat<C::Qualification, 1>},
        {"avant_taux", "le taux horaire d'avant", taux<1>},
        {"avant_duree", "la durée du travail d'avant", duree<1>}}},
      {"Le stage",
       {{"stage_ecole", "l'école", lu<&D::contrat, C::StageEcole>},
        {"stage_sujet", "le sujet", lu<&D::contrat, C::StageSujet>},
        {"stage_tuteur", "le tuteur", lu<&D::contrat, C::StageTuteur>},
        {"stage_service", "le service", lu<&D::contrat, C::StageService>},
        {"stage_seuil", "l'indemnité horaire, en euros", seuilStage, true}}},
      {"La lettre", {{"date_du_jour", "la date du jour", aujourdhui}}},
  };
  return Themes;
}

}  // namespace documents
