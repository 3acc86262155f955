#include "liaison/bureau.h"

#include <QApplication>
#include <QMessageBox>
#include <algorithm>

#include "data/store_error.h"
#include "liaison/conflits_qt.h"
#include "liaison/imprimantes_qt.h"
#include "liaison/liaison.h"
#include "liaison/services_qt.h"
#include "liaison/textes_qt.h"

namespace hote {

struct Bureau::Services {
  Services(Bureau& bureau, const data::Poste* posteDonne, std::unique_ptr<QSettings> donnes)
      : magasin(donnes ? std::move(donnes)
                       : std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                                     "KORVALDIS", "contrats")),
        curseur(bureau),
        messages(bureau, curseur),
        indications(bureau),
        conflits(bureau, curseur),
        modales(bureau, curseur),
        imprimante(bureau, curseur),
        reglages(*magasin),
        aide(bureau),
        platform{messages,  indications,
                 conflits,  modales,
                 curseur,   imprimante,
                 reglages,  aide,
                 controles, posteDonne != nullptr ? *posteDonne : systeme} {}

  data::PosteSysteme systeme;
  std::unique_ptr<QSettings> magasin;
  CurseurQt curseur;
  MessagesQt messages;
  IndicationsQt indications;
  ConflitsQt conflits;
  ModalesQt modales;
  ImprimantesQt imprimante;
  ReglagesQt reglages;
  AideQt aide;
  ControlesQt controles;
  screen::Platform platform;
};

Bureau::Bureau(const data::Poste* poste, std::unique_ptr<QSettings> reglages)
    : services_(std::make_unique<Services>(*this, poste, std::move(reglages))) {}

Bureau::~Bureau() = default;

screen::Platform& Bureau::Plateforme() {
  return services_->platform;
}

QSettings& Bureau::Reglages() {
  return *services_->magasin;
}

void Bureau::Heberger(const std::string& nom, screen::ControleHeberge& controle) {
  services_->controles.Ajouter(nom, controle);
}

void Bureau::Congedier(const screen::ControleHeberge& controle) {
  services_->controles.Oter(controle);
}

void Bureau::ProposerReglage(const QString& cle, std::function<QString()> trouver) {
  services_->reglages.Proposer(cle, std::move(trouver));
}

void Bureau::Enregistrer(const std::string& forme, Fabrique fabrique) {
  fabriques_.try_emplace(forme, std::move(fabrique));
}

std::unique_ptr<QWidget> Bureau::Construire(const std::string& forme) const {
  const auto trouve = fabriques_.find(forme);
  if (trouve == fabriques_.end()) throw std::logic_error("no window is known for form " + forme);
  return trouve->second();
}

void Bureau::Retirer(Liaison& liaison) {
  liaisons_.erase(std::remove(liaisons_.begin(), liaisons_.end(), &liaison), liaisons_.end());
}

screen::Form* Bureau::FormeCourante() const {
  const auto trouvee = std::find_if(liaisons_.rbegin(), liaisons_.rend(),
                                    [](const Liaison* l) { return l->Forme().Visible(); });
  return trouvee == liaisons_.rend() ? nullptr : &(*trouvee)->Forme();
}

QWidget* Bureau::FenetreCourante() const {
  const auto trouvee = std::find_if(liaisons_.rbegin(), liaisons_.rend(),
                                    [](const Liaison* l) { return l->Racine().isVisible(); });
  return trouvee == liaisons_.rend() ? QApplication::activeWindow() : (*trouvee)->Racine().window();
}

// A push can end a form's show, and with it its binder: the list is walked by place.
void Bureau::PousserTout() {
  for (std::size_t i = 0; i < liaisons_.size(); ++i) liaisons_[i]->Pousser();
}

bool Bureau::Proteger(const std::function<void()>& partie) {
  try {
    partie();
    return true;
  } catch (const data::StoreError& erreur) {
    MontrerErreur(versQt(erreur.what()), Repere(erreur));
  } catch (const std::exception& erreur) {
    MontrerErreur("Une erreur imprévue a interrompu l'opération.", versQt(erreur.what()));
  }
  return false;
}

QString Bureau::Repere(const data::StoreError& erreur) {
  QString repere = QString("Erreur n° %1").arg(static_cast<long>(erreur.Numero()));
  if (!erreur.Fichier().empty()) repere += ", fichier " + versQt(erreur.Fichier());
  if (!erreur.Cle().empty()) repere += ", clé « " + versQt(erreur.Cle()) + " »";
  return repere + ".";
}

void Bureau::MontrerErreur(const QString& texte, const QString& detail) {
  const QString conseil =
      "L'opération n'a pas été menée à son terme. Ce que vous avez saisi est resté à l'écran : "
      "réessayez, et prévenez votre administrateur si l'erreur revient.";
  services_->messages.Montrer({versModele(texte + "\n\n" + conseil + "\n\n" + detail),
                               screen::Boutons::Ok, screen::Icone::Arret, screen::TitreMessage});
}

}  // namespace hote
