#include "bases.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>

#include "data/cles.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "demo/generateur.h"

namespace bench {

namespace {

// Contracts of a carer in the demonstration data, on average, rounded down.
constexpr long ContratsParAidant = 4;

void verifier(int code) {
  if (code == SQLITE_OK) return;
  std::fprintf(stderr, "SQLite: %s\n", sqlite3_errstr(code));
  std::exit(2);
}

void ajouterAidantCharge(data::Storage& stockage) {
  std::string modele;
  stockage.Scan(data::fichier::CONTRAT, data::KeyRange::Tout(), [&](auto, std::string_view texte) {
    modele = texte;
    return false;
  });
  data::CItem aidant;
  aidant.Set(data::CivilAidant::Nom, "BENOIT");
  aidant.Set(data::CivilAidant::DernierNumero, "999");
  stockage.Put(data::fichier::CIVILAIDANT, AidantCharge, aidant.Text());
  for (int numero = 1; numero <= 999; ++numero) {
    data::CItem contrat(modele);
    contrat.Set(data::Contrat::Annule, "");
    // Scattered start dates, so that rows are inserted all over the list.
    contrat.Set(data::Contrat::DateDebut, std::to_string(15000 + numero * 617 % 5000));
    contrat.Set(data::Contrat::DateFin, numero % 3 == 0 ? "" : "21600");
    stockage.Put(data::fichier::CONTRAT, data::cleContrat(AidantCharge, numero), contrat.Text());
  }
}

void ajouterChoix(data::Storage& stockage) {
  data::CItem activite;
  for (int i = 0; i < Activites; ++i) {
    activite.Set(data::Activites::Libelle, "Activité " + lettres(i));
    activite.Set(data::Activites::Genre, "P");
    stockage.Put(data::fichier::ACTIVITES, "001" + lettres(i), activite.Text());
  }
  data::CItem profil;
  for (int i = 0; i < Profils; ++i) {
    profil.Set(data::Profil::Libelle, "Profil " + lettres(i));
    profil.Set(data::Profil::Mandataire, "0");
    stockage.Put(data::fichier::PROFIL, std::to_string(PremierProfil + i), profil.Text());
  }
}

// The first carer from `debut` on with as many contracts as in every other file.
void choisirAidant(Base& b, const std::string& debut) {
  constexpr int contratsVoulus = 5;
  int suite = 0;
  b.stockage->Scan(data::fichier::CONTRAT, data::KeyRange::Tout(), [&](std::string_view cle, auto) {
    ++b.contrats;
    if (!b.aidant.empty() || cle < debut) return true;
    suite = cle.ends_with("001") ? 1 : suite + 1;
    std::string texte;
    const std::string aidant(cle.substr(0, data::LongueurCodeAidant));
    if (suite == contratsVoulus &&
        !b.stockage->Get(data::fichier::CONTRAT, aidant + "006", texte)) {
      b.aidant = aidant;
    }
    return true;
  });
}

}  // namespace

Base ouvrirBase(const std::string& nom, const std::function<void(data::Storage&)>& remplir) {
  Base b;
  std::filesystem::create_directories(dossier());
  b.chemin = dossier() + "/" + nom + ".contrats";
  if (!std::filesystem::exists(b.chemin)) {
    std::fprintf(stderr, "%s...\n", b.chemin.c_str());
    const std::string enCours = b.chemin + ".encours";
    std::filesystem::remove(enCours);
    auto neuf = storage::SqliteStorage::Creer(enCours, poste());
    neuf->EnUnBloc([&] { remplir(*neuf); });
    neuf.reset();
    std::filesystem::rename(enCours, b.chemin);
  }
  b.stockage = storage::SqliteStorage::Ouvrir(b.chemin, poste());
  b.db = std::make_unique<data::Db>(b.stockage);
  return b;
}

namespace {

Base ouvrir(const std::string& nom, long contrats, bool charge) {
  Base b = ouvrirBase(nom, [&](data::Storage& stockage) {
    demo::OptionsDemo options;
    options.aidants = static_cast<int>(contrats / ContratsParAidant);
    demo::genererDemo(stockage, options);
    if (charge) ajouterAidantCharge(stockage);
  });
  choisirAidant(b, demo::codePersonne(static_cast<int>(contrats / ContratsParAidant / 2)));
  return b;
}

}  // namespace

std::string& dossier() {
  static std::string chemin = "build/bench";
  return chemin;
}

const data::Poste& poste() {
  static const data::PosteFixe fixe(21511);
  return fixe;
}

Base& base(long contrats) {
  static std::map<long, Base> bases;
  const auto trouve = bases.find(contrats);
  if (trouve != bases.end()) return trouve->second;
  return bases[contrats] = ouvrir("demo-" + std::to_string(contrats), contrats, false);
}

Base& baseAidantCharge() {
  static Base chargee = ouvrir("demo-charge", 10'000, true);
  return chargee;
}

std::string lettres(int rang) {
  std::string code;
  for (int i = 0; i < 3; ++i, rang /= 26) code.insert(0, 1, static_cast<char>('A' + rang % 26));
  return code;
}

Base& baseChoix() {
  static Base choix = ouvrirBase("choix", [](data::Storage& stockage) {
    demo::genererDemo(stockage, demo::OptionsDemo());
    ajouterChoix(stockage);
  });
  return choix;
}

std::string contratChoix() {
  const data::CItem lignes = baseChoix().db->Selectionner(
      "SSELECT CONTRAT AVEC 1 <> \"02\" AND AVEC 2 = \"001\" AND AVEC 6 = \"P\" AND AVEC 65 = \"\"",
      "CONTRAT", "0");
  return lignes(1, 1);
}

Brut::Brut(const std::string& chemin) {
  verifier(sqlite3_open_v2(chemin.c_str(), &db_, SQLITE_OPEN_READONLY, nullptr));
  verifier(sqlite3_exec(db_, "PRAGMA cache_size=-16384", nullptr, nullptr, nullptr));
  verifier(sqlite3_prepare_v2(db_, "SELECT texte FROM article WHERE fichier=? AND cle=?", -1,
                              &lecture_, nullptr));
  verifier(sqlite3_prepare_v2(
      db_, "SELECT cle, texte FROM article WHERE fichier=? AND cle>=? AND cle<? ORDER BY cle", -1,
      &parcours_, nullptr));
}

Brut::~Brut() {
  sqlite3_finalize(lecture_);
  sqlite3_finalize(parcours_);
  sqlite3_close(db_);
}

// Beside the data file, so that its seals stay whole: another file of the same shape.
EcritureBrute::EcritureBrute(const std::string& chemin) {
  verifier(sqlite3_open((chemin + ".brut").c_str(), &db_));
  verifier(sqlite3_exec(db_,
                        "PRAGMA page_size=8192; PRAGMA journal_mode=WAL; PRAGMA synchronous=FULL;"
                        "CREATE TABLE IF NOT EXISTS article(fichier TEXT, cle TEXT, texte TEXT,"
                        " PRIMARY KEY(fichier, cle)) WITHOUT ROWID",
                        nullptr, nullptr, nullptr));
  verifier(sqlite3_prepare_v2(db_, "INSERT OR REPLACE INTO article VALUES(?,?,?)", -1, &ecriture_,
                              nullptr));
}

EcritureBrute::~EcritureBrute() {
  sqlite3_finalize(ecriture_);
  sqlite3_close(db_);
}

void EcritureBrute::ecrire(const std::string& fichier, const std::string& cle,
                           const std::string& texte) {
  const std::string* const valeurs[] = {&fichier, &cle, &texte};
  for (int i = 0; i < 3; ++i) {
    sqlite3_bind_text(ecriture_, i + 1, valeurs[i]->data(), static_cast<int>(valeurs[i]->size()),
                      SQLITE_STATIC);
  }
  if (sqlite3_step(ecriture_) != SQLITE_DONE) verifier(sqlite3_errcode(db_));
  sqlite3_reset(ecriture_);
}

int Brut::lire(const std::string& fichier, const std::string& cle) {
  sqlite3_bind_text(lecture_, 1, fichier.data(), static_cast<int>(fichier.size()), SQLITE_STATIC);
  sqlite3_bind_text(lecture_, 2, cle.data(), static_cast<int>(cle.size()), SQLITE_STATIC);
  int longueur = -1;
  if (sqlite3_step(lecture_) == SQLITE_ROW) {
    benchmark::DoNotOptimize(sqlite3_column_text(lecture_, 0));
    longueur = sqlite3_column_bytes(lecture_, 0);
  }
  sqlite3_reset(lecture_);
  return longueur;
}

long Brut::parcourir(const std::string& fichier, const std::string& debut, const std::string& fin) {
  sqlite3_bind_text(parcours_, 1, fichier.data(), static_cast<int>(fichier.size()), SQLITE_STATIC);
  sqlite3_bind_text(parcours_, 2, debut.data(), static_cast<int>(debut.size()), SQLITE_STATIC);
  sqlite3_bind_text(parcours_, 3, fin.data(), static_cast<int>(fin.size()), SQLITE_STATIC);
  long somme = 0;
  while (sqlite3_step(parcours_) == SQLITE_ROW) {
    const unsigned char* texte = sqlite3_column_text(parcours_, 1);
    const int longueur = sqlite3_column_bytes(parcours_, 1);
    for (int i = 0; i < longueur; ++i) somme += texte[i];
  }
  sqlite3_reset(parcours_);
  return somme;
}

}  // namespace bench
