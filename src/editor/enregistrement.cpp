#include "editor/enregistrement.h"

#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "data/requete.h"
#include "dialogs/frm_reprise.h"
#include "editor/annonces.h"
#include "editor/editeur.h"
#include "editor/evenement_dsn.h"
#include "rules/reprise.h"

namespace editor {

namespace {

namespace C = data::Contrat;
using screen::Boutons, screen::Icone;

constexpr const char* FinSansBulletin =
    "Une date de fin de contrat a été créée, veuillez arrêter de travailler sur cet ordinateur et "
    "merci d'appeler KORVALDIS.";

// Reads an item, or obtains it when there is none. True when it stood already.
bool lireOuObtenir(const data::DbFile& fichier, const std::string& cle, data::CItem& item) {
  if (fichier.Lire(cle, item)) return true;
  item = fichier.NewItem(cle);
  return false;
}

std::string nomIndex(std::string_view prefixe, const data::CItem& contrat) {
  return std::string(prefixe) + contrat(C::Association) + contrat(C::Convention);
}

}  // namespace

Avis Enregistrement::Ecrire_Donnees() {
  if (const Avis avis = gardes_.AvantEcriture(); avis != Avis::Passe) return avis;
  if (editeur_.Dossier().ModeCreation) return Ecrire_Nouveau();
  const Avis avis = Ecrire_Existant();
  // What is on file stays as written when it does not read back soundly: the user has been told.
  if (avis == Avis::Passe) Relire();
  return avis;
}

Avis Enregistrement::Ecrire_Nouveau() {
  const BlocCreation::Reprise reprise = Proposer_Reprise();
  BlocCreation bloc(editeur_.Dossier(), editeur_.Portee(), editeur_.Dates());
  if (!bloc.Stocker(reprise)) {
    if (bloc.Refus().empty()) return gardes_.Chevauchement(bloc.Voisins());
    editeur_.MessageBox(bloc.Refus(), Boutons::Ok, Icone::Exclamation);
    return Avis::Reste;
  }
  if (!bloc.Avis().empty()) editeur_.MessageBox(bloc.Avis(), Boutons::Ok, Icone::Information);
  data::Route route(editeur_.Session().Db->Stockage());
  RelireSuite(editeur_.Dossier(), route);
  Marquer_Suivi();
  Ecrire_Tte();
  if (!Relire()) return Avis::Passe;
  Maj_PremiereEmbauche();
  if (editeur_.Dossier().Particuliers()) editeur_.Papiers().Declaration();
  return Avis::Passe;
}

// Replaces the contract on file by the one in hand. False, with nothing written, when it is not the
// one that the user has seen: `surFichier` is.
bool Enregistrement::RemplacerEnBloc(data::CItem& surFichier) {
  const session::Dossier& dossier = editeur_.Dossier();
  data::Route route(dossier.Session.Db->Stockage());
  bool remplace = false;
  dossier.Session.Db->Stockage().EnUnBloc([&] {
    AnnoncerModification(dossier, route);
    surFichier = data::CItem();
    dossier.Session.F_CONTRAT.Lire(dossier.CleContratCourant, surFichier);
    remplace = surFichier.Text() == dossier.SurFichier.Text();
    if (!remplace) return;
    RompreEnRetour(dossier);
    Maj_EvenementDSN(dossier, dossier.CleContratCourant, dossier.ItemContrat);
    dossier.ItemContrat.DBWriteU();
    AnnoncerSuite(dossier, dossier.CleContratCourant, route);
  });
  return remplace;
}

Avis Enregistrement::Ecrire_Existant() {
  session::Dossier& dossier = editeur_.Dossier();
  editeur_.conges.EcrireLiens();
  const auto rompus = RompreParBulletin(dossier);
  data::CItem surFichier;
  while (!RemplacerEnBloc(surFichier)) {
    if (const Avis avis = gardes_.Remplacement(surFichier); avis != Avis::Passe) return avis;
  }
  data::Route route(dossier.Session.Db->Stockage());
  dossier.SurFichier = dossier.ItemContrat;
  for (const auto& rompu : rompus) editeur_.MessageBox(rompu, Boutons::Ok, Icone::Information);
  RelireSuite(dossier, route);
  Marquer_Suivi();
  Ecrire_Tte();
  return Avis::Passe;
}

// The latest contract that ended before the new one starts, with the same employer.
std::optional<data::CItem> Enregistrement::Chercher_ContratPrecedent() const {
  using namespace data;
  const session::Dossier& dossier = editeur_.Dossier();
  const CItem& contrat = dossier.ItemContrat;
  const CItem lignes = Requete(fichier::CONTRAT, "SELECT")
                           .Avec(C::Convention, "<>", citer(ConventionParticuliers))
                           .Avec(C::DateFin, "<>", citer(""))
                           .Et("<", citer(contrat.Vue(C::DateDebut)))
                           .Avec(C::Annule, "=", citer(""))
                           .Avec(C::Employeur, "=", citer(contrat.Vue(C::Employeur)))
                           .Avec(Cle, "=", citerDebut(dossier.Session.CodeAidant))
                           .ParDecr(C::DateFin)
                           .Lire(*dossier.Session.Db, {Cle});
  CItem precedent;
  if (lignes.Vide() || !dossier.Session.F_CONTRAT.Lire(lignes(1, 1), precedent)) {
    return std::nullopt;
  }
  return precedent;
}

// Shows the previous contract, if any, and what the user takes over of it.
BlocCreation::Reprise Enregistrement::Proposer_Reprise() {
  session::Dossier& dossier = editeur_.Dossier();
  session::Session& s = dossier.Session;
  if (dossier.Particuliers()) return {};
  const auto precedent = Chercher_ContratPrecedent();
  if (!precedent) return {};
  const rules::Reprise r = rules::proposerReprise(*precedent, dossier.ItemContrat,
                                                  editeur_.caracteristiques.GrilleChoisie());
  const auto date = [&](const std::string& jour) { return s.Lib.DateFromInternal(jour); };
  dialogs::DonneesReprise d;
  d.aidant = "Aidant : " + s.CodeAidant + " " + s.NomPrenomAidant;
  d.debut = date((*precedent)(C::DateDebut));
  d.fin = date((*precedent)(C::DateFin));
  d.determinee = precedent->Vue(C::Type) == "D";
  d.departGrille = date(r.grille.jour);
  d.joursGrille = r.grille.suspension;
  d.referenceGrille = date(r.grille.reference);
  d.departAnciennete = date(r.anciennete.jour);
  d.joursAnciennete = r.anciennete.suspension;
  d.referenceAnciennete = date(r.anciennete.reference);
  d.congesAuMois = precedent->Vue(C::CongesAuMois) == "1";
  d.avecGrille = r.avecGrille;
  d.grilleProposee = date(r.grille.propose);
  d.ancienneteProposee = date(r.anciennete.propose);
  data::CItem calcul;
  d.congesReprenables =
      s.F_DETAILCALCUL.Lire((*precedent)(0) + (*precedent)(C::DernierBulletin), calcul);

  dialogs::Frm_Reprise reprise(editeur_.Services(), dossier);
  reprise.Afficher(d);
  reprise.ShowModal();
  if (reprise.RepriseRefusee) return {};
  return {reprise.RepriseCalcul == "O" ? (*precedent)(0) : "",
          s.Lib.DateToInternal(reprise.NouvelleDateGrille),
          s.Lib.DateToInternal(reprise.NouvelleDateAnciennete)};
}

void Enregistrement::Abandonner() {
  session::Dossier& dossier = editeur_.Dossier();
  if (dossier.Tente.numero.empty()) return;
  try {
    BlocCreation(dossier, editeur_.Portee(), editeur_.Dates()).Annuler();
  } catch (const data::StoreError& erreur) {
    editeur_.MessageBox("Le contrat " + dossier.Tente.numero +
                            " a été enregistré en partie et n'a pas pu être annulé. Il reste dans "
                            "la liste des contrats : supprimez-le quand l'enregistrement "
                            "fonctionnera de nouveau.\r\n\r\n" +
                            erreur.what(),
                        Boutons::Ok, Icone::Exclamation);
  }
}

// That the carer stands in the file is the whole information: the follow-up must be refreshed.
void Enregistrement::Marquer_Suivi() {
  const session::Dossier& dossier = editeur_.Dossier();
  if (dossier.Particuliers()) return;
  data::CItem marque;
  if (!lireOuObtenir(dossier.Session.F_ACTUSUIVICONTRAT, dossier.Session.CodeAidant, marque)) {
    marque.DBWrite();
  }
}

void Enregistrement::Ecrire_Tte() {
  session::Dossier& dossier = editeur_.Dossier();
  const data::CItem& suivi = dossier.ItemAidantTte;
  if (suivi.Vue(0).empty()) return;
  data::CItem ecriture;
  lireOuObtenir(dossier.Session.F_AIDANTTTE, suivi(0), ecriture);
  ecriture.SetText(suivi.Text());
  ecriture.DBWrite();
  dossier.ItemAidantTte = data::CItem();
}

// What was stored is what counts: an end date without the period of the last payslip is never
// sound.
bool Enregistrement::Relire() {
  const session::Dossier& dossier = editeur_.Dossier();
  const data::CItem relu = dossier.Session.F_CONTRAT.Read(dossier.CleContratCourant);
  if (!relu.Vue(C::DernierBulletin).empty() || relu.Vue(C::DateFin).empty()) return true;
  editeur_.MessageBox(FinSansBulletin, Boutons::Ok, Icone::Aucune, "");
  return false;
}

void Enregistrement::Maj_PremiereEmbauche() {
  session::Dossier& dossier = editeur_.Dossier();
  if (!dossier.Particuliers()) return;
  dossier.Session.Db->Stockage().EnUnBloc([&] {
    data::CItem aidant = dossier.Session.F_CIVILAIDANT.Read(dossier.Session.CodeAidant);
    if (!aidant.Vue(data::CivilAidant::PremiereEmbauche02).empty()) return;
    dossier.Tente.premiereEmbauche = true;
    aidant.Set(data::CivilAidant::PremiereEmbauche02, dossier.ItemContrat.Vue(C::DateDebut));
    aidant.DBWriteU();
  });
}

// The missions for the contract's entity end with it. False when none of them is to be changed.
bool Enregistrement::FinirMissions(data::CItem& missions, long fin) const {
  using namespace data;
  const session::Dossier& dossier = editeur_.Dossier();
  if (!dossier.Session.F_MISSIONSAIDANT.Lire(dossier.Session.CodeAidant, missions)) return false;
  const std::string avant = missions.Text();
  for (int v = 1; !missions.Vue(MissionsAidant::Associations, v).empty(); ++v) {
    const std::string finMission = missions(MissionsAidant::Fins, v);
    if (missions.Vue(MissionsAidant::Associations, v) == dossier.ItemContrat.Vue(C::Association) &&
        (finMission.empty() || entier(finMission) > fin)) {
      missions.Set(MissionsAidant::Fins, v, std::to_string(fin));
    }
  }
  return missions.Text() != avant;
}

void Enregistrement::Maj_Missions() {
  const session::Dossier& dossier = editeur_.Dossier();
  const auto fin = editeur_.fin.DateFin();
  data::CItem missions;
  if (!fin || dossier.ItemContrat.Vue(C::Type) != "I" || !FinirMissions(missions, *fin)) return;
  dossier.Session.Db->Stockage().EnUnBloc([&] {
    if (FinirMissions(missions, *fin)) missions.DBWriteU();
  });
}

void Enregistrement::Maj_Index(bool sansLiens) {
  if (editeur_.Dossier().ModeCreation) {
    Maj_IndexCreation(sansLiens);
  } else {
    Maj_IndexAvenants();
  }
}

void Enregistrement::Maj_IndexCreation(bool sansLiens) {
  session::Dossier& dossier = editeur_.Dossier();
  session::Session& s = dossier.Session;
  const data::CItem& contrat = dossier.ItemContrat;
  data::Route route(s.Db->Stockage());
  if (dossier.Particuliers()) {
    route.AnnoncerBloc();
    RelireSuite(dossier, route);
    dossier.Tente.inverse = s.CodeAidant + contrat(C::Employeur);
    s.Db->Stockage().EnUnBloc([&] {
      data::CItem inverse;
      lireOuObtenir(s.F_CONTRATINV, dossier.Tente.inverse, inverse);
      const int nombre = inverse.DCount(data::ContratInv::Numeros);
      int place = 1;
      while (place <= nombre &&
             inverse.Vue(data::ContratInv::Numeros, place) != dossier.Tente.numero) {
        ++place;
      }
      inverse.Set(data::ContratInv::Numeros, place, dossier.Tente.numero);
      inverse.DBWriteU();
      AnnoncerSuite(dossier, dossier.CleContratCourant, route);
    });
  }
  if (sansLiens) return;
  const std::string index = nomIndex(data::fichier::PrefixeContrats, contrat);
  CreationLien(data::fichier::LIENCONTRAT, index);
  CreationLien(data::fichier::LIENAVENANT, nomIndex(data::fichier::PrefixeAvenants, contrat));
  dossier.Tente.index = index;
  s.Db->OpenFile(index).NewItem(dossier.CleContratCourant).DBWrite();
}

void Enregistrement::Maj_IndexAvenants() {
  const session::Dossier& dossier = editeur_.Dossier();
  const data::CItem& cles = dossier.ClesAvenants;
  if (cles.Vue(1).empty()) return;
  const std::string index = nomIndex(data::fichier::PrefixeAvenants, dossier.ItemContrat);
  CreationLien(data::fichier::LIENAVENANT, index);
  const data::DbFile fichier = dossier.Session.Db->OpenFile(index);
  for (int i = 1; !cles.Vue(i).empty(); ++i) fichier.NewItem(cles(i)).DBWrite();
}

// Says once that the index file of that name exists.
void Enregistrement::CreationLien(std::string_view fichier, const std::string& index) {
  data::CItem lien;
  if (!lireOuObtenir(editeur_.Session().Db->OpenFile(fichier), index, lien)) lien.DBWrite();
}

}  // namespace editor
