// Questions that an index answers, beside a peer: the same question over columns with an index of
// their own, and over JSON columns without one.

#include <benchmark/benchmark.h>

#include <stdexcept>

#include "bases.h"
#include "colonnes.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/texte.h"

namespace {

using bench::Base, bench::Colonnes, bench::TableColonnes;
using data::CItem;

constexpr long Moyenne = 200'000;
constexpr long Grande = 1'000'000;
constexpr long Contrats20000Aidants = 80'000;

// Every side of a comparison must find the same rows, and some.
void exiger(int trouvees, int attendues) {
  if (trouvees != attendues || trouvees == 0) {
    throw std::runtime_error(std::to_string(trouvees) + " rows instead of " +
                             std::to_string(attendues));
  }
}

auto attribut(int numero) {
  return [numero](std::string_view, const CItem& item) { return item(numero); };
}

void demander(benchmark::State& state, Base& base, const std::string& question, const char* fichier,
              const char* champs) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(base.db->Selectionner(question, fichier, champs).DCount());
  }
}

void demander(benchmark::State& state, Colonnes& colonnes, const std::vector<std::string>& valeurs,
              int attendues) {
  exiger(colonnes.demander(valeurs), attendues);
  for (auto _ : state) benchmark::DoNotOptimize(colonnes.demander(valeurs));
}

// The links of a contract: the question, the key that it asks for, the rows that it finds.
struct Liens {
  explicit Liens(Base& b) : base(b) {
    b.stockage->Scan("CONTRAT", {b.aidant, {}, true}, [&](auto, std::string_view texte) {
      cle = CItem(texte)(data::Contrat::CongesReportesSur);
      return cle.empty();
    });
    question = "SELECT CONTRAT AVEC 116 = \"" + cle + "\" OR AVEC 117 = \"" + cle + "\"";
    rangees = b.db->Selectionner(question, "CONTRAT", "0").DCount();
  }
  Base& base;
  std::string cle;
  std::string question;
  int rangees = 0;
};

TableColonnes tableContrats(bool json) {
  return {"CONTRAT",
          {{"reportes_sur", attribut(data::Contrat::CongesReportesSur)},
           {"repris_de", attribut(data::Contrat::CongesReprisDe)}},
          {"reportes_sur", "repris_de"},
          json};
}

void liens(benchmark::State& state, long contrats) {
  const Liens l(bench::base(contrats));
  exiger(l.rangees, l.rangees);
  demander(state, l.base, l.question, "CONTRAT", "0");
}

void liensColonnes(benchmark::State& state, long contrats) {
  const Liens l(bench::base(contrats));
  Colonnes colonnes(l.base, tableContrats(contrats == Moyenne),
                    "SELECT cle FROM CONTRAT WHERE reportes_sur = ?1 OR repris_de = ?1 "
                    "ORDER BY cle");
  demander(state, colonnes, {l.cle}, l.rangees);
}

void liensMoyenne(benchmark::State& state) {
  liens(state, Moyenne);
}
void liensGrande(benchmark::State& state) {
  liens(state, Grande);
}
void colonnesLiensMoyenne(benchmark::State& state) {
  liensColonnes(state, Moyenne);
}
void colonnesLiensGrande(benchmark::State& state) {
  liensColonnes(state, Grande);
}

// Attribute n stands at place n - 1 of the array.
void jsonLiens(benchmark::State& state) {
  const Liens l(bench::base(Moyenne));
  Colonnes colonnes(l.base, tableContrats(true),
                    "SELECT cle FROM CONTRAT WHERE item ->> 115 = ?1 OR item ->> 116 = ?1");
  demander(state, colonnes, {l.cle}, l.rangees);
}

constexpr const char* NomCherche = "MART";

const TableColonnes& tableAidants() {
  using namespace data::CivilAidant;
  static const TableColonnes table{
      "CIVILAIDANT",
      {{"nom", attribut(Nom)},
       {"prenom", attribut(Prenom)},
       {"fin", attribut(DateFin)},
       {"recherche",
        [](auto, const CItem& item) { return data::plier(item(Nom) + ' ' + item(Prenom)); }}},
      {"recherche"}};
  return table;
}

std::string questionNom() {
  return std::string("SSELECT CIVILAIDANT AVEC NomPrenomAidant = \"") + NomCherche +
         "]\" PAR 2 PAR 3";
}

int aidantsTrouves() {
  return bench::base(Contrats20000Aidants)
      .db->Selectionner(questionNom(), "CIVILAIDANT", "0 2 3 36")
      .DCount();
}

void nom(benchmark::State& state) {
  demander(state, bench::base(Contrats20000Aidants), questionNom(), "CIVILAIDANT", "0 2 3 36");
}

void colonnesNom(benchmark::State& state) {
  Colonnes colonnes(bench::base(Contrats20000Aidants), tableAidants(),
                    "SELECT cle, nom, prenom, fin FROM CIVILAIDANT "
                    "WHERE recherche >= ?1 AND recherche < ?2 ORDER BY nom, prenom, cle");
  demander(state, colonnes, {NomCherche, data::KeyRange::Prefixe(NomCherche).fin},
           aidantsTrouves());
}

void jsonNom(benchmark::State& state) {
  Colonnes colonnes(bench::base(Contrats20000Aidants), tableAidants(),
                    "SELECT cle, item ->> 1, item ->> 2, item ->> 35 FROM CIVILAIDANT "
                    "WHERE upper(item ->> 1) LIKE ?1 ORDER BY item ->> 1, item ->> 2");
  demander(state, colonnes, {std::string(NomCherche) + '%'}, aidantsTrouves());
}

// 500,000 exceptions of 20,000 interventions, 25 each.
constexpr int Interventions = 20'000;

std::string intervention(int numero) {
  return std::to_string(10'000 + numero) + "0001020000001001" + std::to_string(numero % 7) + "0800";
}

Base& baseExceptions() {
  static Base base = bench::ouvrirBase("exceptions-500000", [](data::Storage& stockage) {
    for (int i = 0; i < Interventions; ++i) {
      for (int jour = 20'010; jour < 20'010 + 25 * 7; jour += 7) {
        CItem exception;
        exception.Set(data::TpsExceptions::Intervention, intervention(i));
        exception.Set(data::TpsExceptions::Intervention + 1, "0930");
        stockage.Put(data::fichier::TPSEXCEPTIONS,
                     std::to_string(10'000 + i) + std::to_string(jour) + "0800", exception.Text());
      }
    }
  });
  return base;
}

const TableColonnes& tableExceptions() {
  static const TableColonnes table{
      "TPSEXCEPTIONS",
      {{"intervention", attribut(data::TpsExceptions::Intervention)},
       {"jour", [](std::string_view cle, auto&) { return std::string(cle.substr(5, 5)); }}},
      {"intervention"}};
  return table;
}

// Those after the tenth: 15 of the 25.
constexpr const char* DernierJour = "20075";
constexpr int Restantes = 15;

std::string questionExceptions() {
  return "SELECT TPSEXCEPTIONS AVEC 1 = \"" + intervention(Interventions / 2) +
         "\" AND AVEC DateDebExcep > \"" + DernierJour + '"';
}

void exceptions(benchmark::State& state) {
  Base& base = baseExceptions();
  exiger(base.db->Selectionner(questionExceptions(), "TPSEXCEPTIONS", "0").DCount(), Restantes);
  demander(state, base, questionExceptions(), "TPSEXCEPTIONS", "0");
}

void colonnesExceptions(benchmark::State& state) {
  Colonnes colonnes(baseExceptions(), tableExceptions(),
                    "SELECT cle FROM TPSEXCEPTIONS WHERE intervention = ?1 AND jour > ?2 "
                    "ORDER BY cle");
  demander(state, colonnes, {intervention(Interventions / 2), DernierJour}, Restantes);
}

void jsonExceptions(benchmark::State& state) {
  Colonnes colonnes(baseExceptions(), tableExceptions(),
                    "SELECT cle FROM TPSEXCEPTIONS WHERE item ->> 0 = ?1 AND "
                    "substr(cle, 6, 5) > ?2");
  demander(state, colonnes, {intervention(Interventions / 2), DernierJour}, Restantes);
}

BENCHMARK(liensMoyenne)->Unit(benchmark::kMicrosecond);
BENCHMARK(colonnesLiensMoyenne)->Unit(benchmark::kMicrosecond);
BENCHMARK(jsonLiens)->Unit(benchmark::kMicrosecond);
BENCHMARK(liensGrande)->Unit(benchmark::kMicrosecond);
BENCHMARK(colonnesLiensGrande)->Unit(benchmark::kMicrosecond);
BENCHMARK(nom)->Unit(benchmark::kMicrosecond);
BENCHMARK(colonnesNom)->Unit(benchmark::kMicrosecond);
BENCHMARK(jsonNom)->Unit(benchmark::kMicrosecond);
BENCHMARK(exceptions)->Unit(benchmark::kMicrosecond);
BENCHMARK(colonnesExceptions)->Unit(benchmark::kMicrosecond);
BENCHMARK(jsonExceptions)->Unit(benchmark::kMicrosecond);

}  // namespace
