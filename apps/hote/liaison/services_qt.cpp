#include "liaison/services_qt.h"

#include <QApplication>
#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QSettings>
#include <QTimer>
#include <QToolTip>

#include "liaison/bureau.h"
#include "liaison/textes_qt.h"
#include "screen/field.h"

namespace hote {

namespace {

using screen::Boutons;
using screen::Reponse;

constexpr int DureeIndication = 15000;  // milliseconds

struct BoutonMessage {
  Boutons boutons;
  Reponse reponse;
  const char* texte;
  QMessageBox::ButtonRole role;
  bool echappe;  // what Esc and the close box answer
};

constexpr BoutonMessage BoutonsMessages[] = {
    {Boutons::Ok, Reponse::Ok, "OK", QMessageBox::AcceptRole, true},
    {Boutons::OkAnnuler, Reponse::Ok, "OK", QMessageBox::AcceptRole, false},
    {Boutons::OkAnnuler, Reponse::Annuler, "Annuler", QMessageBox::RejectRole, true},
    {Boutons::OuiNon, Reponse::Oui, "&Oui", QMessageBox::YesRole, false},
    {Boutons::OuiNon, Reponse::Non, "&Non", QMessageBox::NoRole, true},
    {Boutons::OuiNonAnnuler, Reponse::Oui, "&Oui", QMessageBox::YesRole, false},
    {Boutons::OuiNonAnnuler, Reponse::Non, "&Non", QMessageBox::NoRole, false},
    {Boutons::OuiNonAnnuler, Reponse::Annuler, "Annuler", QMessageBox::RejectRole, true},
};

// What a window's frame puts beside its title: icon and buttons, in pixels.
constexpr int LargeurBoutons = 140;

QMessageBox::Icon iconeQt(screen::Icone icone) {
  switch (icone) {
    case screen::Icone::Aucune:
      return QMessageBox::NoIcon;
    case screen::Icone::Information:
      return QMessageBox::Information;
    case screen::Icone::Question:
      return QMessageBox::Question;
    case screen::Icone::Exclamation:
      return QMessageBox::Warning;
    case screen::Icone::Arret:
      return QMessageBox::Critical;
  }
  return QMessageBox::NoIcon;
}

}  // namespace

void CurseurQt::Attente(bool attente) {
  if (attente == attente_) return;
  attente_ = attente;
  if (attente) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QGuiApplication::restoreOverrideCursor();
  }
}

void CurseurQt::TraiterEvenements() {
  bureau_.PousserTout();
  QCoreApplication::processEvents();
}

void CurseurQt::Bip() {
  QApplication::beep();
}

CurseurQt::Levee::Levee(CurseurQt& curseur) : curseur_(curseur), attente_(curseur.attente_) {
  curseur_.Attente(false);
}

CurseurQt::Levee::~Levee() {
  curseur_.Attente(attente_);
}

Reponse MessagesQt::Montrer(const screen::Message& message) {
  bureau_.PousserTout();
  const CurseurQt::Levee levee(curseur_);
  const QPointer<QWidget> dessous = bureau_.FenetreCourante();
  QMessageBox boite(dessous);
  boite.setTextFormat(Qt::PlainText);
  // Qt would show the program's name where there is no title.
  boite.setWindowTitle(message.titre.empty() ? " " : versQt(message.titre));
  boite.setText(versQt(message.texte));
  boite.setIcon(iconeQt(message.icone));
  Reponse echappe = Reponse::Ok;
  std::vector<std::pair<QAbstractButton*, Reponse>> boutons;
  for (const BoutonMessage& b : BoutonsMessages) {
    if (b.boutons != message.boutons) continue;
    QPushButton* const bouton = boite.addButton(b.texte, b.role);
    const bool prudent = message.prudente == b.reponse;
    if (boutons.empty() || prudent) boite.setDefaultButton(bouton);
    boutons.emplace_back(bouton, b.reponse);
    if (message.prudente ? !prudent : !b.echappe) continue;
    boite.setEscapeButton(bouton);
    echappe = b.reponse;
  }
  // Wide enough for the title, which Qt leaves out of account.
  if (auto* const grille = qobject_cast<QGridLayout*>(boite.layout())) {
    const int largeur = boite.fontMetrics().horizontalAdvance(boite.windowTitle()) + LargeurBoutons;
    grille->addItem(new QSpacerItem(largeur, 0), grille->rowCount(), 0, 1, grille->columnCount());
  }
  boite.exec();
  if (dessous) dessous->activateWindow();
  for (const auto& [bouton, reponse] : boutons) {
    if (bouton == boite.clickedButton()) return reponse;
  }
  return echappe;
}

void IndicationsQt::Montrer(const screen::Field& champ, const std::string& texte) {
  QWidget* const fenetre = bureau_.FenetreCourante();
  auto* const widget =
      fenetre == nullptr ? nullptr : fenetre->findChild<QWidget*>(nomDuWidget(champ.Nom()));
  if (widget == nullptr) return;
  // The focus that comes back to the field takes away what stands beside it.
  QTimer::singleShot(0, widget, [widget, texte = versQt(texte)] {
    if (auto* const ligne = qobject_cast<QLineEdit*>(widget)) ligne->selectAll();
    if (auto* const combo = qobject_cast<QComboBox*>(widget); combo && combo->lineEdit()) {
      combo->lineEdit()->selectAll();
    }
    QToolTip::showText(widget->mapToGlobal(QPoint(0, widget->height())), texte, widget, {},
                       DureeIndication);
  });
}

std::string ReglagesQt::Lire(const std::string& section, const std::string& cle,
                             const std::string& defaut) const {
  const QString entiere = versQt(section + "/" + cle);
  if (reglages_.contains(entiere)) return versModele(reglages_.value(entiere).toString());
  const auto proposition = propositions_.find(entiere);
  const QString trouve = proposition == propositions_.end() ? QString() : proposition->second();
  return trouve.isEmpty() ? defaut : versModele(trouve);
}

void ReglagesQt::Ecrire(const std::string& section, const std::string& cle,
                        const std::string& valeur) {
  reglages_.setValue(versQt(section + "/" + cle), versQt(valeur));
}

std::string AideQt::Dossier() const {
  return versModele(QCoreApplication::applicationDirPath());
}

void AideQt::Appeler(const std::string& fichier, int commande) {
  if (bureau_.SurAide) bureau_.SurAide(fichier, commande);
}

void ControlesQt::Oter(const screen::ControleHeberge& controle) {
  std::erase_if(controles_, [&](const auto& entree) { return entree.second == &controle; });
}

screen::ControleHeberge* ControlesQt::Trouver(const std::string& nom) {
  for (const auto& [sien, controle] : controles_) {
    if (sien == nom) return controle;
  }
  return nullptr;
}

}  // namespace hote
