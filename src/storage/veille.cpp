#include "storage/veille.h"

#include <chrono>
#include <filesystem>
#include <thread>

#include "storage/sqlite_journal.h"

namespace storage {

namespace {

using Etat = FichierSuivi::Etat;

const char* defautDe(Etat etat) {
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

std::string absolu(const std::string& chemin) {
  std::error_code code;
  const std::filesystem::path complet = std::filesystem::absolute(chemin, code);
  return code ? chemin : complet.string();
}

}  // namespace

Veille::Veille(const std::string& chemin) : fichier_(absolu(chemin)) {}

void Veille::SuivreJournal() {
  journal_.emplace(fichier_.Chemin() + "-wal");
}

void Veille::Suivre(const Connexion& connexion) {
  connexion_ = &connexion;
  journal_.emplace(connexion.Journal());
  marque_ = lireMarque(connexion.Fichier()).value_or(Marque{});
}

// A new mark stands beside the log that it names; until that one is begun, beside the former log,
// which it names, too. Others may have begun several logs since the last look.
bool Veille::MarqueTient() const {
  const auto marque = lireMarque(connexion_->Fichier());
  if (!marque) return true;  // damaged: the next read says so
  const auto sels = selsDuJournal(connexion_->Journal());
  if (*marque == marque_) return !sels || marque->Admet(*sels);
  if (sels && marque->journal == *sels) {
    marque_ = *marque;
    return true;
  }
  return marque->precedent == sels.value_or(marque_.journal);
}

bool Veille::Substitue() const {
  constexpr int kEssais = 3;
  if (connexion_ == nullptr || fichier_.Regarder() != Etat::EnPlace) return false;
  for (int essai = 0; essai < kEssais; ++essai) {
    if (MarqueTient()) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return true;
}

bool Veille::Remplace() const {
  return fichier_.Regarder() == Etat::Remplace || Substitue();
}

std::string Veille::Defaut() const {
  const Etat etat = Substitue() ? Etat::Remplace : fichier_.Regarder();
  if (etat != Etat::EnPlace) {
    return "Le fichier de données « " + fichier_.Chemin() + " »" + defautDe(etat);
  }
  if (!journal_ || !journal_->Existait() || journal_->Regarder() == Etat::EnPlace) return {};
  return "Le journal « " + journal_->Chemin() +
         " », qui accompagne le fichier de données, a été supprimé ou remplacé. Notez votre saisie "
         "en cours, fermez toutes les fenêtres ouvertes sur ce fichier, puis ouvrez-le à nouveau.";
}

void Veille::Exiger(const Acte& acte) const {
  const std::string texte = Defaut();
  if (texte.empty()) return;
  throw data::StoreError(data::NumeroErreur::EntreeSortie,
                         texte + " Rien n'y est enregistré d'ici là.", std::string(acte.fichier),
                         std::string(acte.cle));
}

std::string Veille::EcarterJournal() const {
  if (!journal_ || !journal_->Existait() || fichier_.Regarder() != Etat::Remplace ||
      journal_->Regarder() != Etat::EnPlace) {
    return {};
  }
  return ecarterJournal(journal_->Chemin());
}

}  // namespace storage
