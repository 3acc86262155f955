#include "fenetre/aide.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QMainWindow>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "liaison/fenetre.h"
#include "widget/apparence.h"

// The pages stand in a static library: its resources are linked by name.
static void chargerPages() {
  Q_INIT_RESOURCE(aide);
}

namespace hote {

namespace {

constexpr QSize Taille{620, 640};

FenetreAide* ouverte(const QWidget* parente) {
  for (QWidget* const fenetre : QApplication::topLevelWidgets()) {
    auto* const aide = dynamic_cast<FenetreAide*>(fenetre);
    if (aide != nullptr && aide->parentWidget() == parente) return aide;
  }
  return nullptr;
}

}  // namespace

FenetreAide::FenetreAide(QWidget* parente) : QDialog(parente), texte_(new QTextBrowser(this)) {
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle("Aide");
  auto* const disposition = new QVBoxLayout(this);
  disposition->addWidget(texte_);
  auto* const boutons = new QDialogButtonBox(this);
  QPushButton* const sommaire = boutons->addButton("&Sommaire", QDialogButtonBox::ActionRole);
  QPushButton* const fermer = boutons->addButton("&Fermer", QDialogButtonBox::RejectRole);
  disposition->addWidget(boutons);
  texte_->document()->setDocumentMargin(14);
  texte_->setFrameShape(QFrame::NoFrame);
  connect(sommaire, &QPushButton::clicked, this, [this] { Montrer(Accueil); });
  connect(fermer, &QPushButton::clicked, this, &QDialog::close);
  donnerTaille(*this, Taille);
  Colorer();
}

// The pages name no colour. The palette's own for links is made for a light ground.
void FenetreAide::Colorer() {
  const QColor fond = texte_->palette().color(QPalette::Base);
  const QColor lien = texte_->palette().color(QPalette::Link);
  const bool lisible = contraste(lien, fond) >= ContrasteLisible;
  const QColor couleur = lisible ? lien : texte_->palette().color(QPalette::Text);
  texte_->document()->setDefaultStyleSheet("a { color: " + couleur.name() + "; }");
  if (!texte_->source().isEmpty()) texte_->reload();
}

void FenetreAide::changeEvent(QEvent* evenement) {
  QDialog::changeEvent(evenement);
  if (evenement->type() == QEvent::PaletteChange) Colorer();
}

QString FenetreAide::Page(const QString& forme) {
  chargerPages();
  const QString fichier = ":/aide/" + forme + ".html";
  return QFile::exists(fichier) ? "qrc" + fichier : Page(Accueil);
}

void FenetreAide::Montrer(const QString& forme) {
  texte_->setSource(QUrl(Page(forme)));
  show();
  raise();
  activateWindow();
}

void FenetreAide::Appeler(const QString& defaut) {
  QWidget* active = QApplication::activeModalWidget();
  if (active == nullptr) active = QApplication::activeWindow();
  if (auto* const aide = dynamic_cast<FenetreAide*>(active)) active = aide->parentWidget();
  const bool principale = active == nullptr || qobject_cast<QMainWindow*>(active) != nullptr;
  // A message box is about the form below it.
  QString forme = principale ? defaut : active->objectName();
  if (forme.isEmpty() && active->parentWidget() != nullptr) {
    const QWidget* const dessous = active->parentWidget()->window();
    forme = qobject_cast<const QMainWindow*>(dessous) != nullptr ? defaut : dessous->objectName();
  }
  FenetreAide* aide = ouverte(active);
  if (aide == nullptr) aide = new FenetreAide(active);
  aide->Montrer(forme);
}

void FenetreAide::Fermer() {
  for (QWidget* const fenetre : QApplication::topLevelWidgets()) {
    if (dynamic_cast<FenetreAide*>(fenetre) != nullptr) fenetre->close();
  }
}

}  // namespace hote
