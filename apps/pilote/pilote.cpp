#include "pilote/pilote.h"

#include "pilote/commandes.h"
#include "pilote/proprietes.h"

namespace pilote {

using screen::Acte;
using screen::Field;
using screen::Form;

Pilote::Pilote(screen::headless::Hote& hote, data::Db& base, std::ostream& sortie)
    : hote_(hote), base_(base), sortie_(sortie) {
  hote_.modales.SetPompe([this](Form& form) { Pomper(form); });
}

Pilote::~Pilote() {
  hote_.modales.SetPompe({});
}

std::optional<Echec> Pilote::Jouer(const Scenario& scenario, Form& racine,
                                   const std::function<void()>& ouvrir) {
  scenario_ = &scenario;
  pile_.push_back({&racine, racine.Vie()});
  try {
    JouerTout(ouvrir);
  } catch (const Arret&) {
    // What stopped it stands in echec_, or it was the end.
  } catch (const screen::headless::QuestionInattendue& question) {
    if (suivante_ == debut_) throw;
    Noter(Courante(), "une réponse prévue par repondre", question.what());
  } catch (const std::exception& erreur) {
    if (suivante_ == debut_) throw;
    Noter(Courante(), "une commande sans erreur", erreur.what());
  }
  VerifierReponses();
  return echec_;
}

void Pilote::JouerTout(const std::function<void()>& ouvrir) {
  PrevoirDebut();
  ouvrir();
  while (Avancer()) {
  }
}

void Pilote::PrevoirDebut() {
  const auto& commandes = scenario_->commandes;
  while (suivante_ < commandes.size() && commandes[suivante_].definition->jouer == repondre) {
    Avancer();
  }
  debut_ = suivante_;
}

void Pilote::Pomper(Form& form) {
  if (arrete_) throw Arret{};
  const auto vie = form.Vie();
  const std::size_t hauteur = pile_.size();
  pile_.push_back({&form, vie});
  // The pile falls back to its height, whatever ends the show.
  struct Fin {
    std::vector<Ouverte>& pile;
    std::size_t hauteur;
    ~Fin() { pile.resize(hauteur, Ouverte{}); }
  } const fin{pile_, hauteur};
  while (!vie.expired() && form.Visible()) {
    if (Avancer()) continue;
    arrete_ = true;
    throw Arret{};
  }
}

bool Pilote::Avancer() {
  if (arrete_) throw Arret{};
  if (suivante_ == scenario_->commandes.size()) return false;
  const Commande& commande = scenario_->commandes[suivante_++];
  commande.definition->jouer(*this, commande);
  // A handler may have swallowed the stop, or the question.
  if (arrete_) throw Arret{};
  if (Messages().Inattendues() > 0) {
    Echouer("une réponse prévue par repondre", Messages().Tous().back().texte);
  }
  return true;
}

void Pilote::VerifierReponses() {
  const std::size_t restantes = hote_.messages.ReponsesRestantes().size();
  if (echec_ || restantes == 0) return;
  Noter(*reponses_[reponses_.size() - restantes], "une question à laquelle répondre",
        "aucune jusqu'à la fin du scénario");
}

void Pilote::Noter(const Commande& commande, std::string attendu, std::string trouve) {
  arrete_ = true;
  if (echec_) return;
  echec_ = Echec{commande.ligne, commande.source, std::move(attendu), std::move(trouve)};
}

void Pilote::Echouer(std::string attendu, std::string trouve) {
  Noter(Courante(), std::move(attendu), std::move(trouve));
  throw Arret{};
}

Form& Pilote::Sommet() {
  const Ouverte& ouverte = pile_.back();
  if (ouverte.vie.expired() || !ouverte.forme->Visible()) {
    Echouer("une forme ouverte", "aucune : l'écran des contrats est fermé");
  }
  return *ouverte.forme;
}

Field& Pilote::Champ(const std::string& nom) {
  Form& forme = Sommet();
  Field* const champ = forme.Find(nom);
  if (champ == nullptr) {
    Echouer("un champ " + nom + " dans " + forme.Nom(), "aucun champ de ce nom");
  }
  return *champ;
}

Field& Pilote::ChampAccessible(const std::string& nom) {
  Field& champ = Champ(nom);
  if (!champ.Accessible()) Echouer(nom + " accessible", raisonInaccessible(champ));
  return champ;
}

void Pilote::Exiger(Acte acte, const Field& champ) {
  if (acte == Acte::Inaccessible) RefuserGenre(champ);
}

void Pilote::RefuserGenre(const Field& champ) {
  Echouer("un champ qui accepte cet acte",
          champ.Nom() + " est de genre " + std::string(nomDuGenre(champ.Genre())));
}

void Pilote::Prevoir(screen::Reponse reponse) {
  hote_.messages.Repondre(reponse);
  reponses_.push_back(&Courante());
}

}  // namespace pilote
