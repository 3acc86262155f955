// The store's reads. Each is one trip, and none within a road where its answer came back before.

#include <algorithm>

#include "storage/controle.h"
#include "storage/parcours.h"
#include "storage/postgres_moteur.h"
#include "storage/signature_index.h"

namespace storage {

namespace {

// Records that come in one trip; what has more is read page by page, from one state of the base.
constexpr int kPage = 2000;
// A road by an index of so few places is fetched when it is counted.
constexpr std::size_t kPoignee = 65;

constexpr Acte kAnnonce{"Lecture dans"};

constexpr Ordre kDebutLecture{"", "BEGIN ISOLATION LEVEL REPEATABLE READ READ ONLY"};
constexpr Ordre kFinLecture{"", "COMMIT"};
constexpr Ordre kLire{"lire",
                      "SELECT texte, controle FROM contrats.article "
                      "WHERE fichier = $1::bytea AND cle = $2::bytea"};
constexpr Ordre kLireCles{"lire_cles",
                          "SELECT cle, texte, controle FROM contrats.article "
                          "WHERE fichier = $1::bytea AND cle = ANY($2::bytea[])"};
constexpr Ordre kPlage{"plage",
                       "SELECT cle, texte, controle FROM contrats.article "
                       "WHERE fichier = $1::bytea AND cle >= $2::bytea AND cle < $3::bytea ORDER "
                       "BY cle LIMIT $4::int8"};
// Each with the signature, also where there is no row: only under the right one do entries count.
constexpr Ordre kCompterEntrees{
    "compter_entrees",
    "SELECT (SELECT signature FROM contrats.etat WHERE ligne = 1), (SELECT count(*) FROM (SELECT 1 "
    "FROM "
    "contrats.entree WHERE indice = $1::int8 AND valeur >= $2::bytea AND valeur < $3::bytea "
    "LIMIT $4::int8) e)"};
constexpr Ordre kCompterCles{
    "compter_cles",
    "SELECT (SELECT signature FROM contrats.etat WHERE ligne = 1), (SELECT count(*) FROM (SELECT 1 "
    "FROM "
    "contrats.article WHERE fichier = $1::bytea AND cle >= $2::bytea AND cle < $3::bytea "
    "LIMIT $4::int8) a)"};
constexpr Ordre kPoignees{
    "poignee",
    "SELECT s.signature, e.cle, a.texte, a.controle FROM contrats.etat s "
    "LEFT JOIN (SELECT cle FROM contrats.entree WHERE indice = $2::int8 AND valeur >= $3::bytea "
    "AND valeur < $4::bytea LIMIT $5::int8) e ON true "
    "LEFT JOIN contrats.article a ON a.fichier = $1::bytea AND a.cle = e.cle WHERE s.ligne = 1"};
constexpr Ordre kParValeur{
    "par_valeur",
    "SELECT s.signature, a.cle, a.texte, a.controle FROM contrats.etat s "
    "LEFT JOIN contrats.article a ON a.fichier = $1::bytea AND a.cle = ANY(ARRAY("
    "SELECT e.cle FROM contrats.entree e WHERE e.indice = $2::int8 AND e.valeur >= $3::bytea "
    "AND e.valeur < $4::bytea)) WHERE s.ligne = 1"};
constexpr Ordre kParCle{
    "par_cle",
    "SELECT s.signature, a.cle, a.texte, a.controle FROM contrats.etat s "
    "LEFT JOIN contrats.article a ON a.fichier = $1::bytea AND a.cle >= $2::bytea "
    "AND a.cle < $3::bytea WHERE s.ligne = 1"};

// Above every text that is valid UTF-8.
constexpr std::string_view kFinDeTout = "\xFF";

std::string_view finDe(const data::KeyRange& cles) {
  return cles.sansFin ? kFinDeTout : std::string_view(cles.fin);
}

Parametres parametresPlage(std::string_view fichier, const data::KeyRange& cles) {
  Parametres parametres;
  parametres.Texte(fichier).Texte(cles.debut).Texte(finDe(cles)).Nombre(kPage + 1);
  return parametres;
}

void ordonner(Rangs& rangs) {
  std::sort(rangs.begin(), rangs.end());
  rangs.erase(std::unique(rangs.begin(), rangs.end()), rangs.end());
}

}  // namespace

std::string_view PostgresStorage::Moteur::TexteSain(const Reponse& reponse, int ligne, int colonne,
                                                    const Acte& acte, std::string_view cle) const {
  const std::string_view texte = reponse.Texte(ligne, colonne);
  if (reponse.Nombre(ligne, colonne + 1) != controleArticle(acte.fichier, cle, texte)) {
    throw erreurRelecture(lien_.Adresse(), {"Lecture", acte.fichier, cle});
  }
  return texte;
}

// Of the columns key, text and checksum from that one on; rows without a record are passed over.
std::shared_ptr<const Rangs> PostgresStorage::Moteur::Relire(const Reponse& reponse,
                                                             std::string_view fichier,
                                                             int colonne) const {
  auto rangs = std::make_shared<Rangs>();
  for (int i = 0; i < reponse.Lignes(); ++i) {
    const std::string_view cle = reponse.Texte(i, colonne);
    if (cle.empty()) continue;
    rangs->emplace_back(cle, TexteSain(reponse, i, colonne + 1, {"Lecture", fichier}, cle));
  }
  return rangs;
}

bool PostgresStorage::Moteur::Lire(const Acte& acte, std::string& texte) {
  if (const auto* const connu = route_.Article(acte.fichier, acte.cle)) {
    if (connu->has_value()) texte = **connu;
    return connu->has_value();
  }
  if (Rappeler(acte.fichier, acte.cle)) return Lire(acte, texte);
  const auto reponses = Interroger(acte, 1, [&] {
    lien_.Envoyer(kLire, Parametres().Texte(acte.fichier).Texte(acte.cle), acte);
  });
  const Reponse& reponse = reponses.front();
  if (reponse.Lignes() == 0) {
    route_.Retenir(acte.fichier, acte.cle, std::nullopt);
    return false;
  }
  texte.assign(TexteSain(reponse, 0, 0, acte, acte.cle));
  route_.Retenir(acte.fichier, acte.cle, texte);
  return true;
}

// False when the visitor wants no more.
bool PostgresStorage::Moteur::Servir(const Rangs& rangs, const data::KeyRange& cles,
                                     const Visiteur& visiteur) {
  const Parcours parcours(parcours_);
  for (const auto& [cle, texte] : rangs) {
    if (cles.Contient(cle) && !visiteur(cle, texte)) return false;
  }
  return true;
}

void PostgresStorage::Moteur::Parcourir(const Acte& acte, const data::KeyRange& cles,
                                        const Visiteur& visiteur) {
  if (const auto connus = route_.Plage(acte.fichier, cles)) {
    Servir(*connus, cles, visiteur);
    return;
  }
  if (Rappeler(acte.fichier, cles.debut)) return Parcourir(acte, cles, visiteur);
  const auto reponses = Interroger(
      acte, 1, [&] { lien_.Envoyer(kPlage, parametresPlage(acte.fichier, cles), acte); });
  const Reponse& reponse = reponses.front();
  if (reponse.Lignes() > kPage) {
    EnUnEtat(acte, [&] { Feuilleter(acte, cles, visiteur); });
    return;
  }
  if (route_.Ouverte()) {
    const auto rangs = Relire(reponse, acte.fichier, 0);
    route_.Retenir(acte.fichier, cles, rangs);
    Servir(*rangs, cles, visiteur);
    return;
  }
  const Parcours parcours(parcours_);
  for (int i = 0; i < reponse.Lignes(); ++i) {
    const std::string_view cle = reponse.Texte(i, 0);
    if (!visiteur(cle, TexteSain(reponse, i, 1, acte, cle))) return;
  }
}

void PostgresStorage::Moteur::Feuilleter(const Acte& acte, data::KeyRange cles,
                                         const Visiteur& visiteur) {
  for (bool encore = true; encore;) {
    const auto reponses = Interroger(
        acte, 1, [&] { lien_.Envoyer(kPlage, parametresPlage(acte.fichier, cles), acte); });
    const Reponse& reponse = reponses.front();
    encore = reponse.Lignes() > kPage;
    if (encore) cles.debut.assign(reponse.Texte(kPage, 0));
    const Parcours parcours(parcours_);
    for (int i = 0; i < std::min(reponse.Lignes(), kPage); ++i) {
      const std::string_view cle = reponse.Texte(i, 0);
      if (!visiteur(cle, TexteSain(reponse, i, 1, acte, cle))) return;
    }
  }
}

std::vector<PostgresStorage::Moteur::Demande> PostgresStorage::Moteur::Inconnues(
    const std::vector<data::Annonce>& annonces) {
  std::vector<Demande> demandes;
  for (const data::Annonce& annonce : annonces) {
    Demande cles{annonce.fichier, {}};
    for (const std::string& cle : annonce.cles) {
      if (!cle.empty() && route_.Article(annonce.fichier, cle) == nullptr) cles.cles.push_back(cle);
    }
    if (!cles.cles.empty()) demandes.push_back(std::move(cles));
    for (const data::KeyRange& plage : annonce.plages) {
      if (plage.Vide() || route_.Plage(annonce.fichier, plage)) continue;
      demandes.push_back({annonce.fichier, {}, &plage});
    }
    for (const data::Chemin& chemin : annonce.chemins) {
      if (!route_.Chemin(chemin)) demandes.push_back({annonce.fichier, {}, nullptr, &chemin});
    }
  }
  return demandes;
}

void PostgresStorage::Moteur::EnvoyerDemandes(const std::vector<Demande>& demandes) {
  for (const Demande& d : demandes) {
    if (d.plage != nullptr) {
      lien_.Envoyer(kPlage, parametresPlage(d.fichier, *d.plage), kAnnonce);
    } else if (d.chemin != nullptr) {
      EnvoyerPoignee({kAnnonce.nom, d.fichier}, *d.chemin, kPoignee);
    } else {
      lien_.Envoyer(kLireCles, Parametres().Texte(d.fichier).Textes(d.cles), kAnnonce);
    }
  }
}

void PostgresStorage::Moteur::RetenirDemandes(const std::vector<Demande>& demandes,
                                              const std::vector<Reponse>& reponses) {
  for (std::size_t i = 0; i < demandes.size(); ++i) {
    const Demande& d = demandes[i];
    if (d.chemin != nullptr) {
      RetenirPoignee(reponses[i], *d.chemin, kPoignee);
      continue;
    }
    // What is too much to be kept is read when it is asked for.
    if (d.plage != nullptr && reponses[i].Lignes() > kPage) continue;
    const auto rangs = Relire(reponses[i], d.fichier, 0);
    if (d.plage != nullptr) {
      route_.Retenir(d.fichier, *d.plage, rangs);
      continue;
    }
    for (const std::string_view cle : d.cles) route_.Retenir(d.fichier, cle, std::nullopt);
    for (const auto& [cle, texte] : *rangs) route_.Retenir(d.fichier, cle, texte);
  }
}

void PostgresStorage::Moteur::Annoncer(const std::vector<data::Annonce>& annonces) {
  if (!route_.Ouverte()) return;
  if (!enBloc_) annoncees_.insert(annoncees_.end(), annonces.begin(), annonces.end());
  const std::vector<Demande> demandes = Inconnues(annonces);
  if (demandes.empty()) return;
  RetenirDemandes(demandes,
                  Interroger(kAnnonce, demandes.size(), [&] { EnvoyerDemandes(demandes); }));
}

// True when that read was announced and what came back forgotten: it has come back anew.
bool PostgresStorage::Moteur::Rappeler(std::string_view fichier, std::string_view cle) {
  if (!oubliees_ || enBloc_ || enUnEtat_) return false;
  const bool annoncee = std::any_of(annoncees_.begin(), annoncees_.end(), [&](const auto& a) {
    return a.fichier == fichier &&
           (std::find(a.cles.begin(), a.cles.end(), cle) != a.cles.end() ||
            std::any_of(a.plages.begin(), a.plages.end(),
                        [&](const data::KeyRange& plage) { return plage.Contient(cle); }));
  });
  if (!annoncee) return false;
  oubliees_ = false;
  if (std::exchange(blocOublie_, false)) Promettre();
  Annoncer(std::exchange(annoncees_, {}));
  return true;
}

void PostgresStorage::Moteur::OublierRoute() noexcept {
  route_.Vider();
  oubliees_ = !annoncees_.empty();
  blocOublie_ = blocOublie_ || promis_;
  Renoncer();
}

void PostgresStorage::Moteur::FinirRoute() noexcept {
  route_.Finir();
  if (route_.Ouverte()) return;
  OublierAnnonces();
  Renoncer();
}

void PostgresStorage::Moteur::OublierAnnonces() noexcept {
  annoncees_.clear();
  oubliees_ = false;
  blocOublie_ = false;
}

void PostgresStorage::Moteur::EnvoyerPoignee(const Acte& acte, const data::Chemin& chemin,
                                             std::size_t plafond) {
  lien_.Envoyer(kPoignees,
                Parametres()
                    .Texte(acte.fichier)
                    .Nombre(data::rangIndex(*chemin.index))
                    .Texte(chemin.valeurs.debut)
                    .Texte(finDe(chemin.valeurs))
                    .Nombre(static_cast<std::int64_t>(plafond)),
                acte);
}

// How many there are, at most `plafond`; nothing while the indexes are not those of this program.
std::optional<std::size_t> PostgresStorage::Moteur::RetenirPoignee(const Reponse& reponse,
                                                                   const data::Chemin& chemin,
                                                                   std::size_t plafond) {
  if (reponse.Lignes() == 0 || reponse.Nombre(0, 0) != signatureIndex()) return std::nullopt;
  Rangs rangs = *Relire(reponse, chemin.index->fichier, 1);
  const std::size_t compte = rangs.size();
  ordonner(rangs);
  if (compte < plafond) route_.Retenir(chemin, std::make_shared<Rangs>(std::move(rangs)));
  return compte;
}

// Within a road the few records of a way are fetched with their number: whoever counts them asks
// for them next.
std::optional<std::size_t> PostgresStorage::Moteur::CompterEtRetenir(const Acte& acte,
                                                                     const data::Chemin& chemin,
                                                                     std::size_t plafond) {
  const auto reponses = Interroger(acte, 1, [&] { EnvoyerPoignee(acte, chemin, plafond); });
  return RetenirPoignee(reponses.front(), chemin, plafond);
}

std::optional<std::size_t> PostgresStorage::Moteur::Compter(const Acte& acte,
                                                            const data::Chemin& chemin,
                                                            std::size_t plafond) {
  if (chemin.index == nullptr) {
    if (const auto connus = route_.Plage(acte.fichier, chemin.valeurs)) {
      const auto dedans = std::count_if(connus->begin(), connus->end(), [&](const auto& rang) {
        return chemin.valeurs.Contient(rang.first);
      });
      return std::min(plafond, static_cast<std::size_t>(dedans));
    }
  } else if (const auto connus = route_.Chemin(chemin)) {
    return std::min(plafond, connus->size());
  } else if (route_.Ouverte() && plafond <= kPoignee) {
    return CompterEtRetenir(acte, chemin, plafond);
  }
  const auto reponses = Interroger(acte, 1, [&] {
    Parametres parametres;
    if (chemin.index == nullptr) {
      parametres.Texte(acte.fichier);
    } else {
      parametres.Nombre(data::rangIndex(*chemin.index));
    }
    parametres.Texte(chemin.valeurs.debut).Texte(finDe(chemin.valeurs));
    parametres.Nombre(static_cast<std::int64_t>(plafond));
    lien_.Envoyer(chemin.index == nullptr ? kCompterCles : kCompterEntrees, parametres, acte);
  });
  const Reponse& reponse = reponses.front();
  if (reponse.Nombre(0, 0) != signatureIndex()) return std::nullopt;
  return static_cast<std::size_t>(reponse.Nombre(0, 1));
}

void PostgresStorage::Moteur::EnvoyerChemin(const Acte& acte, const data::Chemin& chemin) {
  Parametres parametres;
  parametres.Texte(acte.fichier);
  if (chemin.index != nullptr) parametres.Nombre(data::rangIndex(*chemin.index));
  parametres.Texte(chemin.valeurs.debut).Texte(finDe(chemin.valeurs));
  lien_.Envoyer(chemin.index == nullptr ? kParCle : kParValeur, parametres, acte);
}

// Nothing while the indexes are not those of this program.
std::optional<Rangs> PostgresStorage::Moteur::LireChemins(
    const Acte& acte, const std::vector<data::Chemin>& chemins) {
  Rangs tous;
  std::vector<data::Chemin> inconnus;
  for (const data::Chemin& chemin : chemins) {
    const auto connus = chemin.index == nullptr ? nullptr : route_.Chemin(chemin);
    if (connus) {
      tous.insert(tous.end(), connus->begin(), connus->end());
    } else {
      inconnus.push_back(chemin);
    }
  }
  bool tenus = true;
  // One order sees one state by itself; several see one in a transaction, which goes with them.
  const bool ensemble = inconnus.size() > 1 && !enBloc_ && !enUnEtat_ && !promis_;
  std::vector<Reponse> reponses;
  if (!inconnus.empty()) {
    reponses = Interroger(acte, inconnus.size() + (ensemble ? 2 : 0), [&] {
      if (ensemble) lien_.Envoyer(kDebutLecture, {}, acte);
      for (const data::Chemin& chemin : inconnus) EnvoyerChemin(acte, chemin);
      if (ensemble) lien_.Envoyer(kFinLecture, {}, acte);
    });
  }
  for (std::size_t i = 0; i < inconnus.size(); ++i) {
    const Reponse& reponse = reponses[i + (ensemble ? 1 : 0)];
    tenus = tenus && reponse.Lignes() > 0 && reponse.Nombre(0, 0) == signatureIndex();
    const auto rangs = Relire(reponse, acte.fichier, 1);
    tous.insert(tous.end(), rangs->begin(), rangs->end());
  }
  if (!tenus) return std::nullopt;
  ordonner(tous);
  return tous;
}

bool PostgresStorage::Moteur::ParcourirChemins(const Acte& acte,
                                               const std::vector<data::Chemin>& chemins,
                                               const Visiteur& visiteur) {
  const auto rangs = LireChemins(acte, chemins);
  if (rangs) Servir(*rangs, data::KeyRange::Tout(), visiteur);
  return rangs.has_value();
}

}  // namespace storage
