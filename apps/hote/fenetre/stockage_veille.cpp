#include "fenetre/stockage_veille.h"

#include <filesystem>
#include <utility>

#include "data/store_error.h"

namespace hote {

namespace {

using Etat = FichierSuivi::Etat;

constexpr const char* SuffixeJournal = "-wal";
constexpr const char* SuffixeMemoire = "-shm";  // the log's index, made anew when it is absent

const char* defaut(Etat etat) {
  switch (etat) {
    case Etat::EnPlace:
      return "";
    case Etat::Absent:
      return " a été déplacé ou supprimé. Remettez-le à sa place, puis recommencez.";
    case Etat::Remplace:
      return " a été remplacé par un autre. Notez votre saisie en cours, fermez le contrat ouvert, "
             "puis ouvrez le fichier à nouveau.";
    case Etat::Inaccessible:
      return " n'est plus accessible. Vérifiez le dossier, vos droits et le réseau, puis "
             "recommencez.";
  }
  return "";
}

}  // namespace

StockageVeille::StockageVeille(FichierSuivi fichier, std::unique_ptr<data::Storage> dessous)
    : fichier_(std::move(fichier)),
      journal_(fichier_.Chemin() + SuffixeJournal),
      dessous_(std::move(dessous)) {
  Exiger();
}

std::string StockageVeille::Defaut() const {
  const Etat etat = fichier_.Regarder();
  if (etat != Etat::EnPlace) {
    return "Le fichier de données « " + fichier_.Chemin() + " »" + defaut(etat);
  }
  if (!journal_.Existait() || journal_.Regarder() == Etat::EnPlace) return {};
  return "Le journal « " + journal_.Chemin() +
         " », qui accompagne le fichier de données, a été supprimé ou remplacé. Notez votre saisie "
         "en cours, fermez toutes les fenêtres ouvertes sur ce fichier, puis ouvrez-le à nouveau.";
}

std::string StockageVeille::EcarterJournal() const {
  namespace fs = std::filesystem;
  if (fichier_.Regarder() != Etat::Remplace || !journal_.Existait() ||
      journal_.Regarder() != Etat::EnPlace) {
    return {};
  }
  std::error_code code;
  std::string nom;
  for (int n = 1; nom.empty() || fs::exists(nom, code); ++n) {
    nom = journal_.Chemin() + ".ancien" + std::to_string(n);
  }
  fs::rename(journal_.Chemin(), nom, code);
  if (code) return {};
  fs::remove(fichier_.Chemin() + SuffixeMemoire, code);
  return nom;
}

void StockageVeille::Exiger(std::string_view fichier, std::string_view cle) const {
  const std::string texte = Defaut();
  if (texte.empty()) return;
  throw data::StoreError(data::NumeroErreur::EntreeSortie,
                         texte + " Rien n'y est enregistré d'ici là.", std::string(fichier),
                         std::string(cle));
}

bool StockageVeille::Get(std::string_view fichier, std::string_view cle, std::string& texte) {
  return dessous_->Get(fichier, cle, texte);
}

void StockageVeille::Put(std::string_view fichier, std::string_view cle, std::string_view texte) {
  Exiger(fichier, cle);
  dessous_->Put(fichier, cle, texte);
  Exiger(fichier, cle);
}

bool StockageVeille::Erase(std::string_view fichier, std::string_view cle) {
  Exiger(fichier, cle);
  const bool efface = dessous_->Erase(fichier, cle);
  Exiger(fichier, cle);
  return efface;
}

void StockageVeille::Scan(std::string_view fichier, const data::KeyRange& cles,
                          const Visiteur& visiteur) {
  dessous_->Scan(fichier, cles, visiteur);
}

std::vector<data::FichierCompte> StockageVeille::Fichiers() {
  return dessous_->Fichiers();
}

std::vector<data::AncienTexte> StockageVeille::Historique(std::string_view fichier,
                                                          std::string_view cle) {
  return dessous_->Historique(fichier, cle);
}

void StockageVeille::EnUnBloc(const std::function<void()>& travail) {
  Exiger();
  dessous_->EnUnBloc([&] {
    travail();
    Exiger();
  });
  Exiger();
}

}  // namespace hote
