// bench_serveur: the store on a server beside raw libpq over the same socket, over a line of 1 ms
// as a clerk's acts go, and what stations cost the server. A private server is started for it.

#include <benchmark/benchmark.h>
#include <libpq-fe.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>

#include "control/ctr_contrat.h"
#include "data/cles.h"
#include "data/layouts/contrat.h"
#include "data/layouts/recherches.h"
#include "data/layouts/voisins.h"
#include "demo/generateur.h"
#include "rapports.h"
#include "screen/headless/hote.h"
#include "screen/user.h"
#include "storage/postgres.h"
#include "support/relais.h"
#include "support/serveur.h"

namespace {

constexpr int Aidants = 2500;  // 10,000 contracts
constexpr const char* Vingt = "90020";
constexpr const char* Tous = "90999";

const data::Poste& poste() {
  static const data::PosteFixe fixe(21511);
  return fixe;
}

support::Serveur& serveur() {
  static support::Serveur serveur(1100);
  return serveur;
}

void multiplier(data::Storage& stockage, const std::string& aidant, int nombre) {
  std::vector<std::string> modeles;
  stockage.Scan("CONTRAT", data::KeyRange::Tout(), [&](auto, std::string_view texte) {
    data::CItem contrat(texte);
    for (const int a :
         {data::Contrat::CongesReportesSur, data::Contrat::CongesReprisDe, data::Contrat::Annule}) {
      contrat.Set(a, "");
    }
    modeles.push_back(contrat.Text());
    return modeles.size() < 60;
  });
  data::CItem carer;
  carer.Set(data::CivilAidant::Nom, "BENOIT");
  carer.Set(data::CivilAidant::DernierNumero, data::numeroContrat(nombre));
  stockage.Put("CIVILAIDANT", aidant, carer.Text());
  for (int n = 1; n <= nombre; ++n) {
    stockage.Put("CONTRAT", data::cleContrat(aidant, n),
                 modeles[static_cast<std::size_t>(n) % modeles.size()]);
  }
}

const std::string& adresse() {
  static const std::string base = [] {
    std::string nouvelle = serveur().NouvelleBase();
    const auto stockage = storage::PostgresStorage::Creer(nouvelle, poste());
    stockage->EnUnBloc([&] {
      demo::OptionsDemo options;
      options.aidants = Aidants;
      demo::genererDemo(*stockage, options);
      multiplier(*stockage, Vingt, 20);
      multiplier(*stockage, Tous, 999);
    });
    stockage->Compacter();
    return nouvelle;
  }();
  return base;
}

storage::PostgresStorage& stockage() {
  static const auto ouvert = storage::PostgresStorage::Ouvrir(adresse(), poste());
  return *ouvert;
}

// libpq without anything of ours.
class Brut {
 public:
  Brut() : connexion_(PQconnectdb(adresse().c_str())) {
    if (PQstatus(connexion_) != CONNECTION_OK) throw std::runtime_error("no server");
    // What the store asks of the planner, so that both sides run the same plans.
    Executer("SET enable_seqscan = off");
    Executer("SET jit = off");
    Preparer("lire", "SELECT texte FROM contrats.article WHERE fichier = $1 AND cle = $2");
    Preparer("plage",
             "SELECT cle, texte FROM contrats.article WHERE fichier = $1 AND cle >= $2 AND "
             "cle < $3 ORDER BY cle");
    Preparer("index",
             "SELECT a.cle, a.texte FROM contrats.entree e JOIN contrats.article a ON "
             "a.fichier = $1 AND a.cle = e.cle WHERE e.indice = 2 AND e.valeur >= $2 AND "
             "e.valeur < $3 ORDER BY a.cle");
    Preparer("ecrire",
             "INSERT INTO contrats.article(fichier, cle, texte, controle) VALUES($1, $2, $3, 0) "
             "ON CONFLICT (fichier, cle) DO UPDATE SET texte = excluded.texte");
  }
  ~Brut() { PQfinish(connexion_); }
  Brut(const Brut&) = delete;
  Brut& operator=(const Brut&) = delete;

  // The bytes of all values.
  int Demander(const char* nom, const std::vector<std::string>& valeurs) {
    std::vector<const char*> pointeurs;
    std::vector<int> longueurs;
    for (const std::string& valeur : valeurs) {
      pointeurs.push_back(valeur.data());
      longueurs.push_back(static_cast<int>(valeur.size()));
    }
    const std::vector<int> formats(valeurs.size(), 1);
    PGresult* const r = PQexecPrepared(connexion_, nom, static_cast<int>(valeurs.size()),
                                       pointeurs.data(), longueurs.data(), formats.data(), 1);
    int octets = 0;
    for (int i = 0; i < PQntuples(r); ++i) {
      for (int j = 0; j < PQnfields(r); ++j) octets += PQgetlength(r, i, j);
    }
    PQclear(r);
    return octets;
  }
  void Executer(const char* sql) { PQclear(PQexec(connexion_, sql)); }

 private:
  void Preparer(const char* nom, const char* sql) {
    PQclear(PQprepare(connexion_, nom, sql, 0, nullptr));
  }
  PGconn* connexion_;
};

const std::string& unContrat() {
  static const std::string cle = data::cleContrat(Vingt, 7);
  return cle;
}

void lire(benchmark::State& state) {
  storage::PostgresStorage& s = stockage();
  std::string texte;
  for (auto _ : state) benchmark::DoNotOptimize(s.Get("CONTRAT", unContrat(), texte));
}
void brutLire(benchmark::State& state) {
  Brut brut;
  for (auto _ : state) benchmark::DoNotOptimize(brut.Demander("lire", {"CONTRAT", unContrat()}));
}

void plage(benchmark::State& state) {
  storage::PostgresStorage& s = stockage();
  std::size_t octets = 0;
  for (auto _ : state) {
    s.Scan("CONTRAT", data::KeyRange::Prefixe(Vingt), [&](auto, std::string_view texte) {
      octets += texte.size();
      return true;
    });
  }
  benchmark::DoNotOptimize(octets);
}
void brutPlage(benchmark::State& state) {
  Brut brut;
  for (auto _ : state) {
    benchmark::DoNotOptimize(brut.Demander("plage", {"CONTRAT", "90020", "90021"}));
  }
}

// Persons by the beginning of their names.
void index(benchmark::State& state) {
  storage::PostgresStorage& s = stockage();
  const data::Chemin chemin{&data::IndexTenus[2], data::KeyRange::Prefixe("MARTIN")};
  std::size_t octets = 0;
  for (auto _ : state) {
    s.ScanChemins("CIVILAIDANT", {chemin}, [&](auto, std::string_view texte) {
      octets += texte.size();
      return true;
    });
  }
  if (octets == 0) state.SkipWithError("nobody of that name");
}
void brutIndex(benchmark::State& state) {
  Brut brut;
  for (auto _ : state) {
    benchmark::DoNotOptimize(brut.Demander("index", {"CIVILAIDANT", "MARTIN", "MARTIO"}));
  }
}

// A block of two records and six of their own, as a new contract is saved; other texts each time.
constexpr const char* Ecrits[] = {"A", "B", "C", "D", "E", "F"};

std::string texteDe(int tour) {
  std::string texte(400, 'x');
  return texte + std::to_string(tour);
}

void enregistrer(benchmark::State& state) {
  storage::PostgresStorage& s = stockage();
  static int tour = 0;
  for (auto _ : state) {
    const std::string texte = texteDe(++tour);
    s.EnUnBloc([&] {
      s.Put("ETRANGER", "X", texte);
      s.Put("ETRANGER", "Y", texte);
    });
    for (const char* cle : Ecrits) s.Put("ETRANGER", cle, texte);
  }
}
void brutEnregistrer(benchmark::State& state) {
  Brut brut;
  static int tour = 0;
  const auto ecrire = [&](const char* cle, const std::string& texte) {
    brut.Demander("ecrire", {"PAYSBRUT", cle, texte});
  };
  for (auto _ : state) {
    const std::string texte = texteDe(++tour);
    brut.Executer("BEGIN ISOLATION LEVEL SERIALIZABLE");
    ecrire("X", texte);
    ecrire("Y", texte);
    brut.Executer("COMMIT");
    for (const char* cle : Ecrits) {
      brut.Executer("BEGIN ISOLATION LEVEL SERIALIZABLE");
      ecrire(cle, texte);
      brut.Executer("COMMIT");
    }
  }
}

// A clerk in front of the screens, with the base at that address.
class Clerc {
 public:
  explicit Clerc(const std::string& base)
      : stockage_(storage::PostgresStorage::Ouvrir(base, poste())) {
    hote_.modales.SetPompe([this](screen::Form& form) { acte(form); });
  }

  void Choisir(const std::string& aidant) {
    controle_ = std::make_unique<control::Ctr_Contrat>(hote_.platform);
    controle_->TheDatabase(db_);
    controle_->W_Code = aidant;
    controle_->DroitsUtilisateur(droits_);
    controle_->init();
    controle_->Show();
    controle_->Opt_TousValid.SetValue(true);
  }
  void Lister() { controle_->Recherche_Contrat(); }
  void Ouvrir(const std::string& contrat) {
    controle_->W_CodeContrat = contrat;
    controle_->Appel_Contrat();
  }
  long Voyages() const { return stockage_->Voyages(); }
  storage::PostgresStorage& Stockage() { return *stockage_; }

  std::function<void(screen::Form&)> acte = [](screen::Form& form) { form.Hide(); };

 private:
  std::shared_ptr<storage::PostgresStorage> stockage_;
  screen::headless::Hote hote_{21511};
  data::Db db_{stockage_};
  session::DroitsUniformes droits_{session::Droit::Plein};
  std::unique_ptr<control::Ctr_Contrat> controle_;
};

// Over a line on which each trip takes a millisecond.
struct Loin {
  Loin() : relais(dossier.Dossier().string(), la(), std::chrono::milliseconds(1)) {}
  static std::string la() {
    const std::string base = adresse();
    return base.substr(base.find("host=") + 5);
  }
  std::string Adresse() const {
    std::string base = adresse();
    const std::size_t hote = base.find("host=") + 5;
    return base.replace(hote, std::string::npos, dossier.Dossier().string());
  }
  support::TempDir dossier;
  support::Relais relais;
};

void aLaLigne(benchmark::State& state, const char* aidant,
              const std::function<void(Clerc&)>& unActe) {
  static const Loin loin;
  Clerc clerc(loin.Adresse());
  clerc.Choisir(aidant);
  unActe(clerc);
  const long avant = clerc.Voyages();
  for (auto _ : state) unActe(clerc);
  state.counters["voyages"] = benchmark::Counter(static_cast<double>(clerc.Voyages() - avant) /
                                                 static_cast<double>(state.iterations()));
}
void loinLister20(benchmark::State& state) {
  aLaLigne(state, Vingt, [](Clerc& c) { c.Lister(); });
}
void loinLister999(benchmark::State& state) {
  aLaLigne(state, Tous, [](Clerc& c) { c.Lister(); });
}
void loinOuvrir(benchmark::State& state) {
  aLaLigne(state, Vingt, [](Clerc& c) { c.Ouvrir(unContrat()); });
}
void loinLire(benchmark::State& state) {
  aLaLigne(state, Vingt, [](Clerc& c) {
    std::string texte;
    c.Stockage().Get("CONTRAT", unContrat(), texte);
  });
}

BENCHMARK(lire)->UseRealTime();
BENCHMARK(brutLire)->UseRealTime();
BENCHMARK(plage)->UseRealTime();
BENCHMARK(brutPlage)->UseRealTime();
BENCHMARK(index)->UseRealTime();
BENCHMARK(brutIndex)->UseRealTime();
BENCHMARK(enregistrer)->UseRealTime();
BENCHMARK(brutEnregistrer)->UseRealTime();
BENCHMARK(loinLire)->UseRealTime();
BENCHMARK(loinLister20)->UseRealTime();
BENCHMARK(loinLister999)->UseRealTime();
BENCHMARK(loinOuvrir)->UseRealTime();

const std::vector<bench::Rapport> Rapports{
    {"one record / raw prepared statement", "lire", "brutLire", 1.5},
    {"the 20 contracts of a carer / raw key range", "plage", "brutPlage", 1.5},
    {"carers by the beginning of a name / raw join", "index", "brutIndex", 1.5},
    {"a save of 8 records / raw transactions", "enregistrer", "brutEnregistrer", 1.5},
    {"1 ms away: list of 20 contracts / one read", "loinLister20", "loinLire", 6},
    {"1 ms away: list of 999 contracts / one read", "loinLister999", "loinLire", 0},
    {"1 ms away: a contract opened / one read", "loinOuvrir", "loinLire", 15},
};

// What each of the server's processes has used so far: nanoseconds of processor.
using Processeur = std::map<std::string, double>;

template <typename Visite>
void parcourirServeur(const Visite& visite) {
  for (const auto& entree : std::filesystem::directory_iterator("/proc")) {
    std::ifstream stat(entree.path() / "stat");
    std::string ligne;
    if (std::getline(stat, ligne) && ligne.find("(postgres)") != std::string::npos) {
      visite(entree.path());
    }
  }
}

Processeur processeur() {
  Processeur par;
  parcourirServeur([&](const std::filesystem::path& processus) {
    std::ifstream(processus / "schedstat") >> par[processus.string()];
  });
  return par;
}

// Milliseconds since then, of the processes that still live.
double depuis(const Processeur& avant) {
  double total = 0;
  for (const auto& [processus, temps] : processeur()) {
    const auto debut = avant.find(processus);
    total += temps - (debut == avant.end() ? 0 : debut->second);
  }
  return total / 1e6;
}

// Megabytes of their own, which they share with nobody.
double memoire() {
  double total = 0;
  parcourirServeur([&](const std::filesystem::path& processus) {
    std::ifstream resume(processus / "smaps_rollup");
    for (std::string ligne; std::getline(resume, ligne);) {
      if (ligne.starts_with("Pss_Anon:")) total += std::stod(ligne.substr(9)) / 1024;
    }
  });
  return total;
}

// A clerk's day: so many lists, openings and saves in seven hours.
struct Acte {
  const char* nom;
  int parJour;
  std::function<void(Clerc&)> faire;
};

// `postes` connections, each with its share of acts one after the other: the processor that an act
// costs the server, and the memory that a station holds.
void simuler(int postes) {
  const Acte actes[] = {{"liste", 120, [](Clerc& c) { c.Lister(); }},
                        {"ouverture", 80, [](Clerc& c) { c.Ouvrir(unContrat()); }},
                        {"enregistrement", 40, [](Clerc& c) {
                           static int tour = 0;
                           const std::string texte = texteDe(++tour);
                           c.Stockage().EnUnBloc([&] {
                             c.Stockage().Put("ETRANGER", "X", texte);
                             c.Stockage().Put("ETRANGER", "Y", texte);
                           });
                           for (const char* cle : Ecrits) c.Stockage().Put("ETRANGER", cle, texte);
                         }}};
  const double vide = memoire();
  std::vector<std::unique_ptr<Clerc>> clercs;
  for (int i = 0; i < postes; ++i) {
    clercs.push_back(std::make_unique<Clerc>(adresse()));
    clercs.back()->Choisir(Vingt);
    clercs.back()->Lister();
    clercs.back()->Ouvrir(unContrat());
  }
  double parJour = 0;
  for (const Acte& acte : actes) {
    constexpr int Fois = 2000;
    const Processeur avant = processeur();
    const auto debut = std::chrono::steady_clock::now();
    for (int i = 0; i < Fois; ++i) {
      acte.faire(*clercs[static_cast<std::size_t>(i) % clercs.size()]);
    }
    const double un = depuis(avant) / Fois;
    const std::chrono::duration<double, std::milli> duree =
        std::chrono::steady_clock::now() - debut;
    parJour += un * acte.parJour;
    std::printf("%4d postes, %-14s : %.3f ms de processeur du serveur, %.3f ms en tout\n", postes,
                acte.nom, un, duree.count() / Fois);
  }
  constexpr double Journee = 7 * 3600 * 1e3;
  std::printf("%4d postes : %.1f Mo par poste, %.3f %% d'un processeur en journée\n", postes,
              (memoire() - vide) / postes, 100 * postes * parJour / Journee);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc > 1 && std::string(argv[1]) == "--journee") {
    adresse();
    for (const int postes : {10, 100, 1000}) simuler(postes);
    return 0;
  }
  std::vector<char*> arguments(argv, argv + argc);
  std::string repetitions = "--benchmark_repetitions=5";
  arguments.push_back(repetitions.data());
  int nombre = static_cast<int>(arguments.size());
  benchmark::Initialize(&nombre, arguments.data());
  bench::Rapporteur rapporteur(Rapports);
  benchmark::RunSpecifiedBenchmarks(&rapporteur);
  return rapporteur.Tenus() ? 0 : 1;
}
