#include "storage/postgres_index.h"

#include <algorithm>
#include <set>

#include "storage/controle.h"
#include "storage/signature_index.h"

namespace storage {

namespace {

constexpr Acte kControle{"Contrôle de"};
constexpr Acte kIndexation{"Indexation de"};
constexpr int kPage = 2000;

// By file and key, after the place given; former texts after their number, too.
constexpr Ordre kArticles{"tous_articles",
                          "SELECT fichier, cle, 0::int8, texte, controle FROM contrats.article "
                          "WHERE (fichier, cle) > ($1::bytea, $2::bytea) AND $3::int8 = 0 "
                          "ORDER BY fichier, cle LIMIT $4::int8"};
constexpr Ordre kAnciens{"tous_anciens",
                         "SELECT fichier, cle, numero, texte, controle FROM contrats.ancien "
                         "WHERE (fichier, cle, numero) > ($1::bytea, $2::bytea, $3::int8) "
                         "ORDER BY fichier, cle, numero LIMIT $4::int8"};
constexpr Ordre kDuFichier{"du_fichier",
                           "SELECT cle, texte, controle FROM contrats.article "
                           "WHERE fichier = $1::bytea AND cle > $2::bytea "
                           "ORDER BY cle LIMIT $3::int8"};
constexpr Ordre kEntrees{"entrees_cles",
                         "SELECT indice, valeur, cle FROM contrats.entree "
                         "WHERE indice = ANY($1::int8[]) AND cle > $2::bytea AND cle <= $3::bytea"};
constexpr Ordre kHorsTable{
    "", "SELECT count(*) FROM contrats.entree WHERE indice < 0 OR indice >= $1::int8"};
constexpr Ordre kSignature{"signature", "SELECT signature FROM contrats.etat"};
constexpr Ordre kNoter{"noter_signature", "UPDATE contrats.etat SET signature = $1::int8"};
constexpr Ordre kOterTout{"", "DELETE FROM contrats.entree"};

constexpr std::string_view kFinDeTout = "\xFF";

}  // namespace

struct PostgresStorage::Controleur::Page {
  Rangs rangs;
  std::string derniere;  // the last key that the page covers, above all of them for the last page
  bool finale = false;
};

void PostgresStorage::Controleur::Table(const Ordre& ordre, bool anciens,
                                        const std::function<void(const Dommage&)>& signaler,
                                        const std::function<void(long)>& avance, long& lus) {
  std::string fichier;
  std::string cle;
  std::int64_t numero = 0;
  for (bool encore = true; encore;) {
    const auto reponses = moteur_.Interroger(kControle, 1, [&] {
      moteur_.LaLigne().Envoyer(
          ordre, Parametres().Texte(fichier).Texte(cle).Nombre(numero).Nombre(kPage), kControle);
    });
    const Reponse& page = reponses.front();
    encore = page.Lignes() == kPage;
    for (int i = 0; i < page.Lignes(); ++i) {
      fichier = page.Texte(i, 0);
      cle = page.Texte(i, 1);
      numero = page.Nombre(i, 2);
      if (page.Nombre(i, 4) == controleArticle(fichier, cle, page.Texte(i, 3))) continue;
      std::string message =
          anciens ? "L'ancien texte " + std::to_string(numero) + " de l'article" : "L'article";
      message.append(" « ").append(cle).append(" » du fichier ").append(fichier);
      signaler({fichier, cle, message += " ne se relit pas tel qu'il a été écrit."});
    }
    lus += page.Lignes();
    if (avance) avance(lus);
  }
}

void PostgresStorage::Controleur::Textes(const std::function<void(const Dommage&)>& signaler,
                                         const std::function<void(long)>& avance) {
  moteur_.EnUnEtat(kControle, [&] {
    long lus = 0;
    Table(kArticles, false, signaler, avance, lus);
    Table(kAnciens, true, signaler, avance, lus);
  });
}

bool PostgresStorage::Controleur::Tenus() {
  const auto reponses = moteur_.Interroger(
      kControle, 1, [&] { moteur_.LaLigne().Envoyer(kSignature, {}, kControle); });
  return reponses.front().Nombre(0, 0) == signatureIndex();
}

// Records that do not read back are told by the check of the texts.
PostgresStorage::Controleur::Page PostgresStorage::Controleur::Lire(std::string_view fichier,
                                                                    const std::string& apres) {
  const auto reponses = moteur_.Interroger(kControle, 1, [&] {
    moteur_.LaLigne().Envoyer(kDuFichier, Parametres().Texte(fichier).Texte(apres).Nombre(kPage),
                              kControle);
  });
  const Reponse& reponse = reponses.front();
  Page page;
  page.finale = reponse.Lignes() < kPage;
  for (int i = 0; i < reponse.Lignes(); ++i) {
    const std::string_view cle = reponse.Texte(i, 0);
    const std::string_view texte = reponse.Texte(i, 1);
    if (reponse.Nombre(i, 2) == controleArticle(fichier, cle, texte)) {
      page.rangs.emplace_back(cle, texte);
    }
    page.derniere = cle;
  }
  if (page.finale) page.derniere = kFinDeTout;
  return page;
}

void PostgresStorage::Controleur::Comparer(std::string_view fichier, const Page& page,
                                           const std::string& apres,
                                           const std::function<void(const Dommage&)>& signaler) {
  using Place = std::pair<std::string, data::EntreeIndex>;
  std::set<Place> attendues;
  for (const auto& [cle, texte] : page.rangs) {
    for (auto& entree : data::entreesDe(fichier, cle, texte)) attendues.emplace(cle, entree);
  }
  const auto reponses = moteur_.Interroger(kControle, 1, [&] {
    moteur_.LaLigne().Envoyer(
        kEntrees, Parametres().Nombres(indicesDe(fichier)).Texte(apres).Texte(page.derniere),
        kControle);
  });
  const auto dire = [&](const Place& place, const char* quoi) {
    signaler({std::string(fichier), place.first,
              "l'index " + data::champIndex(*place.second.index) + quoi + place.second.valeur +
                  " » : la commande reparer refait les index"});
  };
  const Reponse& tenues = reponses.front();
  for (int i = 0; i < tenues.Lignes(); ++i) {
    const data::EntreeIndex entree{&data::IndexTenus[tenues.Nombre(i, 0)],
                                   std::string(tenues.Texte(i, 1))};
    const Place place(std::string(tenues.Texte(i, 2)), entree);
    if (attendues.erase(place) == 0) {
      dire(place, " mène à cet article par une valeur qu'il n'a pas, « ");
    }
  }
  for (const Place& place : attendues) dire(place, " ne mène pas à cet article par « ");
}

bool PostgresStorage::Controleur::Index(const std::function<void(const Dommage&)>& signaler,
                                        const std::function<void(long)>& avance) {
  bool tenus = false;
  moteur_.EnUnEtat(kControle, [&] {
    tenus = Tenus();
    if (!tenus) return;
    long lus = 0;
    for (const std::string_view fichier : data::fichiersIndexes()) {
      std::string apres;
      for (bool encore = true; encore;) {
        const Page page = Lire(fichier, apres);
        Comparer(fichier, page, apres, signaler);
        encore = !page.finale;
        apres = page.derniere;
        lus += static_cast<long>(page.rangs.size());
        if (avance) avance(lus);
      }
    }
    const auto reponses = moteur_.Interroger(kControle, 1, [&] {
      moteur_.LaLigne().Envoyer(
          kHorsTable, Parametres().Nombre(static_cast<std::int64_t>(std::size(data::IndexTenus))),
          kControle);
    });
    if (reponses.front().Nombre(0, 0) == 0) return;
    signaler({{},
              {},
              "Les index tiennent des valeurs qui ne sont d'aucun d'eux : la commande reparer les "
              "refait."});
  });
  return tenus;
}

void PostgresStorage::Controleur::Refaire(const std::function<void(long)>& avance) {
  moteur_.EnUnBloc([&] {
    long lus = 0;
    moteur_.Ecrire(kIndexation, 2, [&] {
      moteur_.LaLigne().Envoyer(kNoter, Parametres().Nombre(signatureIndex()), kIndexation);
      moteur_.LaLigne().Envoyer(kOterTout, {}, kIndexation);
    });
    for (const std::string_view fichier : data::fichiersIndexes()) {
      std::string apres;
      for (bool encore = true; encore;) {
        const Page page = Lire(fichier, apres);
        for (const auto& [cle, texte] : page.rangs) {
          const auto entrees = data::entreesDe(fichier, cle, texte);
          if (entrees.empty()) continue;
          moteur_.Ecrire(kIndexation, 3, [&, &c = cle] {
            moteur_.EnvoyerEntrees({kIndexation.nom, fichier, c}, entrees);
          });
        }
        encore = !page.finale;
        apres = page.derniere;
        lus += static_cast<long>(page.rangs.size());
        if (avance) avance(lus);
      }
    }
  });
}

}  // namespace storage
