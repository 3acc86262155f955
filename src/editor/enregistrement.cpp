#include "editor/enregistrement.h"

#include <vector>

#include "data/cles.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "editor/editeur.h"

namespace editor {

namespace {

constexpr const char* FinSansBulletin =
    "Une date de fin de contrat a été créée, veuillez arrêter de travailler sur cet ordinateur et "
    "merci d'appeler KORVALDIS.";

// Takes the next contract number of a carer: one given back before, else the one after the highest.
// What stands among those given back and is no number is passed over.
std::string prendreNumero(data::CItem& aidant) {
  using namespace data::CivilAidant;
  while (!aidant.Vue(NumerosLibres, 1).empty()) {
    const long long libre = data::entier(aidant.Vue(NumerosLibres, 1));
    aidant.Delete(NumerosLibres, 1);
    if (libre >= 1 && libre <= data::DernierNumeroPossible) {
      return data::numeroContrat(static_cast<long>(libre));
    }
  }
  std::string numero =
      data::numeroContrat(static_cast<long>(data::entier(aidant.Vue(DernierNumero))) + 1);
  aidant.Set(DernierNumero, numero);
  return numero;
}

// The number is taken, whichever way it was given.
void compterNumero(data::CItem& aidant, const std::string& numero) {
  using namespace data::CivilAidant;
  for (int v = aidant.DCount(NumerosLibres); v >= 1; --v) {
    if (aidant.Vue(NumerosLibres, v) == numero) aidant.Delete(NumerosLibres, v);
  }
  if (data::entier(aidant.Vue(DernierNumero)) < data::entier(numero)) {
    aidant.Set(DernierNumero, numero);
  }
}

std::string enumere(const std::vector<std::string>& numeros) {
  std::string texte;
  for (const auto& numero : numeros) texte += (texte.empty() ? "" : ", ") + numero;
  return texte;
}

// Reads an item, or obtains it when there is none. True when it stood already.
bool lireOuObtenir(const data::DbFile& fichier, const std::string& cle, data::CItem& item) {
  if (fichier.Lire(cle, item)) return true;
  item = fichier.NewItem(cle);
  return false;
}

}  // namespace

void Enregistrement::Commencer() {
  reprise_.reset();
  numeroEcrit_.clear();
  numeroTente_.clear();
  texteTente_.clear();
}

bool Enregistrement::Ecrire_Donnees() {
  session::Session& s = editeur_.Session();
  const auto fin = editeur_.Dates().fin;
  const std::string finEcran = fin ? std::to_string(*fin) : "";
  editeur_.DateFinRefusee = false;
  if (finEcran != s.ItemContrat.Vue(data::Contrat::DateFin) && !editeur_.AccepterDateFin()) {
    return false;
  }
  if (!editeur_.origine.Ecrire_Ong1()) return false;
  if (s.ModeCreation) return Ecrire_Nouveau();
  // What is on file stays as written when it does not read back soundly: the user has been told.
  Ecrire_Existant();
  s.CleContratCourant = editeur_.Etq_CodeAidant.Libelle() + editeur_.origine.Txt_NumContrat.Text();
  return true;
}

bool Enregistrement::Ecrire_Nouveau() {
  session::Session& s = editeur_.Session();
  const std::string clePrecedent = Proposer_Reprise();
  // Chosen after the dialog, which may stand for long: other stations give numbers meanwhile.
  const std::string numero = Choisir_Numero();
  if (numero.empty()) return false;
  const std::string cle = editeur_.Etq_CodeAidant.Libelle() + numero;
  if (reprise_ && reprise_->cle != clePrecedent) Defaire_Reprise();
  if (!clePrecedent.empty()) Reporter_Conges(clePrecedent, cle);
  Maj_EvenementDSN(cle);
  Ecrire_Contrat(cle);
  numeroEcrit_ = numero;
  s.CleContratCourant = cle;
  Marquer_Suivi();
  s.ItemCivilAidant.DBWriteU();
  Ecrire_Tte();
  if (!Relire(cle)) return true;
  if (data::estParticulierEmployeur(s.ItemContrat) &&
      s.ItemCivilAidant.Vue(data::CivilAidant::PremiereEmbauche02).empty()) {
    s.ItemCivilAidant.Set(data::CivilAidant::PremiereEmbauche02,
                          s.ItemContrat.Vue(data::Contrat::DateDebut));
    s.ItemCivilAidant.DBWriteU();
  }
  return true;
}

bool Enregistrement::Ecrire_Existant() {
  session::Session& s = editeur_.Session();
  const std::string cle =
      editeur_.Etq_CodeAidant.Libelle() + editeur_.origine.Txt_NumContrat.Text();
  Maj_EvenementDSN(cle);
  s.ItemContrat.DBWriteU();
  Marquer_Suivi();
  Ecrire_Tte();
  s.CreationAbandonnee = false;
  s.ConflitContrat = false;
  return Relire(cle);
}

std::string Enregistrement::Choisir_Numero() {
  session::Session& s = editeur_.Session();
  data::CItem& aidant = s.ItemCivilAidant;
  if (!s.F_CIVILAIDANT.Lire(editeur_.Etq_CodeAidant.Libelle(), aidant)) {
    editeur_.MessageBox("Cet aidant n'existe pas.", screen::Boutons::Ok,
                        screen::Icone::Exclamation);
    return {};
  }
  if (!numeroEcrit_.empty()) {
    compterNumero(aidant, numeroEcrit_);
    return numeroEcrit_;
  }
  std::vector<std::string> pris;
  std::string numero = prendreNumero(aidant);
  while (numero.size() <= data::LongueurNumero && !NumeroLibre(numero)) {
    pris.push_back(numero);
    numero = prendreNumero(aidant);
  }
  if (numero.size() > data::LongueurNumero) {
    editeur_.MessageBox("Cet aidant n'a plus de numéro de contrat libre : 999 ont été donnés.",
                        screen::Boutons::Ok, screen::Icone::Exclamation);
    return {};
  }
  if (!pris.empty()) {
    editeur_.MessageBox("Un contrat de cet aidant porte déjà le numéro " + enumere(pris) +
                            " : le nouveau contrat prend le numéro " + numero + ".",
                        screen::Boutons::Ok, screen::Icone::Information);
  }
  return numero;
}

bool Enregistrement::NumeroLibre(const std::string& numero) const {
  data::CItem contrat;
  const std::string cle = editeur_.Etq_CodeAidant.Libelle() + numero;
  if (!editeur_.Session().F_CONTRAT.Lire(cle, contrat)) return true;
  return numero == numeroTente_ && contrat.Text() == texteTente_;
}

void Enregistrement::Ecrire_Contrat(const std::string& cle) {
  session::Session& s = editeur_.Session();
  const std::string numero = cle.substr(data::LongueurCodeAidant);
  data::CItem ecriture = s.F_CONTRAT.NewItem(cle);
  ecriture.SetText(s.ItemContrat.Text());
  // Test and write in one block: a contract that another station has just stored stays.
  s.Db->Stockage().EnUnBloc([&] {
    if (numero != numeroEcrit_ && !NumeroLibre(numero)) {
      throw data::StoreError(data::NumeroErreur::Occupe,
                             "Un autre poste vient de donner le numéro " + numero +
                                 " à un contrat de cet aidant. Validez de nouveau.",
                             s.F_CONTRAT.Nom(), cle);
    }
    numeroTente_ = numero;
    texteTente_ = ecriture.Text();
    ecriture.DBWriteU();
  });
}

void Enregistrement::Abandonner() {
  session::Session& s = editeur_.Session();
  if (reprise_) Defaire_Reprise();
  const std::string code = editeur_.Etq_CodeAidant.Libelle();
  data::CItem contrat;
  if (numeroTente_.empty() || !s.F_CONTRAT.Lire(code + numeroTente_, contrat)) return;
  if (numeroTente_ != numeroEcrit_ && contrat.Text() != texteTente_) return;
  contrat.Set(data::Contrat::Annule, "O");
  contrat.Set(data::Contrat::CongesReprisDe, "");
  s.ItemContrat = contrat;
  Maj_EvenementDSN(contrat(0));
  contrat.DBWriteU();
  if (s.F_CIVILAIDANT.Lire(code, s.ItemCivilAidant)) {
    compterNumero(s.ItemCivilAidant, numeroTente_);
    s.ItemCivilAidant.DBWriteU();
  }
}

// That the carer stands in the file is the whole information: the follow-up must be refreshed.
void Enregistrement::Marquer_Suivi() {
  session::Session& s = editeur_.Session();
  if (data::estParticulierEmployeur(s.ItemContrat)) return;
  if (!lireOuObtenir(s.F_ACTUSUIVICONTRAT, editeur_.Etq_CodeAidant.Libelle(),
                     s.ItemActuSuiviContrat)) {
    s.ItemActuSuiviContrat.DBWrite();
  }
}

void Enregistrement::Ecrire_Tte() {
  session::Session& s = editeur_.Session();
  if (s.ItemAidantTte.Vue(0).empty()) return;
  data::CItem ecriture;
  lireOuObtenir(s.F_AIDANTTTE, s.ItemAidantTte(0), ecriture);
  ecriture.SetText(s.ItemAidantTte.Text());
  ecriture.DBWrite();
  s.ItemAidantTte = data::CItem();
}

// What was stored is what counts: an end date without the period of the last payslip is never
// sound.
bool Enregistrement::Relire(const std::string& cle) {
  session::Session& s = editeur_.Session();
  s.ItemContrat = s.F_CONTRAT.Read(cle);
  if (!s.ItemContrat.Vue(data::Contrat::DernierBulletin).empty() ||
      s.ItemContrat.Vue(data::Contrat::DateFin).empty()) {
    return true;
  }
  editeur_.MessageBox(FinSansBulletin, screen::Boutons::Ok, screen::Icone::Aucune, "");
  return false;
}

void Enregistrement::Maj_Missions() {
  session::Session& s = editeur_.Session();
  const auto fin = editeur_.Dates().fin;
  if (!fin || s.ItemContrat.Vue(data::Contrat::Type) != "I") return;
  data::CItem& missions = s.ItemMissionsAidant;
  if (!s.F_MISSIONSAIDANT.Lire(editeur_.Etq_CodeAidant.Libelle(), missions)) return;
  const std::string avant = missions.Text();
  for (int v = 1; !missions.Vue(data::MissionsAidant::Associations, v).empty(); ++v) {
    const std::string finMission = missions(data::MissionsAidant::Fins, v);
    if (missions.Vue(data::MissionsAidant::Associations, v) ==
            s.ItemContrat.Vue(data::Contrat::Association) &&
        (finMission.empty() || data::entier(finMission) > *fin)) {
      missions.Set(data::MissionsAidant::Fins, v, std::to_string(*fin));
    }
  }
  if (missions.Text() != avant) missions.DBWriteU();
}

void Enregistrement::Maj_IndexCreation() {
  session::Session& s = editeur_.Session();
  const data::CItem& contrat = s.ItemContrat;
  const std::string code = editeur_.Etq_CodeAidant.Libelle();
  if (data::estParticulierEmployeur(contrat)) {
    data::CItem& inverse = s.ItemContratInv;
    lireOuObtenir(s.F_CONTRATINV, code + contrat(data::Contrat::Employeur), inverse);
    const int nombre = inverse.DCount(data::ContratInv::Numeros);
    bool present = false;
    for (int v = 1; v <= nombre && !present; ++v) {
      present = inverse.Vue(data::ContratInv::Numeros, v) == numeroEcrit_;
    }
    if (!present) inverse.Set(data::ContratInv::Numeros, nombre + 1, numeroEcrit_);
    inverse.DBWriteU();
  }
  if (editeur_.LiensDejaCrees) return;
  const std::string portee =
      contrat(data::Contrat::Association) + contrat(data::Contrat::Convention);
  const std::string index = std::string(data::fichier::PrefixeContrats) + portee;
  CreationLien(data::fichier::LIENCONTRAT, index);
  CreationLien(data::fichier::LIENAVENANT, std::string(data::fichier::PrefixeAvenants) + portee);
  s.Db->OpenFile(index).NewItem(code + numeroEcrit_).DBWrite();
}

void Enregistrement::Maj_IndexAvenants() {
  session::Session& s = editeur_.Session();
  const data::CItem& cles = editeur_.ClesAvenants;
  if (cles.Vue(1).empty()) return;
  const std::string index = std::string(data::fichier::PrefixeAvenants) +
                            s.ItemContrat(data::Contrat::Association) +
                            s.ItemContrat(data::Contrat::Convention);
  CreationLien(data::fichier::LIENAVENANT, index);
  const data::DbFile fichier = s.Db->OpenFile(index);
  for (int i = 1; !cles.Vue(i).empty(); ++i) fichier.NewItem(cles(i)).DBWrite();
}

// Says once that the index file of that name exists.
void Enregistrement::CreationLien(std::string_view fichier, const std::string& nomIndex) {
  data::CItem lien;
  if (!lireOuObtenir(editeur_.Session().Db->OpenFile(fichier), nomIndex, lien)) lien.DBWrite();
}

}  // namespace editor
