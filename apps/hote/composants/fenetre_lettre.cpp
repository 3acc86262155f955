#include "composants/fenetre_lettre.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTextDocument>
#include <QVBoxLayout>

#include "lettres/apercu.h"
#include "lettres/archive_zip.h"
#include "liaison/fenetre.h"

namespace hote {

namespace {

constexpr QSize Taille{760, 680};

// A letter that does not show here may show well in the word processor.
QString apercu(const QString& fichier) {
  QFile lettre(fichier);
  try {
    if (lettre.open(QIODevice::ReadOnly)) return apercuHtml(lettre.readAll());
  } catch (const ArchiveIllisible&) {
    return "<p>La lettre ne s'affiche pas ici. Ouvrez-la dans le traitement de texte.</p>";
  }
  return "<p>La lettre ne se relit pas.</p>";
}

// As the user's own folders are spoken of.
QString montre(const QString& fichier) {
  const QString maison = QDir::homePath() + "/";
  return fichier.startsWith(maison) ? "~/" + fichier.mid(maison.size()) : fichier;
}

QLabel* etiquette(const QString& texte, QWidget* parente) {
  auto* const label = new QLabel(texte, parente);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return label;
}

}  // namespace

FenetreLettre::FenetreLettre(const LettreOdt& lettre, QWidget* parente) : QDialog(parente) {
  setObjectName("Lettres");  // its help page
  setWindowTitle("Lettre");
  auto* const colonne = new QVBoxLayout(this);
  colonne->addWidget(
      etiquette("La lettre est prête, dans le fichier « " + montre(lettre.fichier) + " ».", this));
  const QString reserves = lettre.Reserves();
  if (!reserves.isEmpty()) {
    QLabel* const attention = etiquette("Attention. " + reserves, this);
    QFont grasse = font();
    grasse.setBold(true);
    attention->setFont(grasse);
    attention->setObjectName("reserves");
    colonne->addWidget(attention);
  }
  auto* const texte = new QTextBrowser(this);
  texte->setOpenLinks(false);
  texte->document()->setDocumentMargin(24);
  remplirApercu(*texte->document(), apercu(lettre.fichier));
  texte->moveCursor(QTextCursor::Start);
  colonne->addWidget(texte, 1);
  auto* const boutons = new QDialogButtonBox(this);
  const struct {
    const char* texte;
    const char* nom;
    QDialogButtonBox::ButtonRole role;
    Suite suite;
  } offerts[] = {{"&Ouvrir dans le traitement de texte", "ouvrir", QDialogButtonBox::AcceptRole,
                  Suite::Ouvrir},
                 {"Enregistrer aussi en &PDF", "pdf", QDialogButtonBox::ActionRole, Suite::Pdf},
                 {"&Fermer", "fermer", QDialogButtonBox::RejectRole, Suite::Fermer}};
  for (const auto& offert : offerts) {
    QPushButton* const bouton = boutons->addButton(offert.texte, offert.role);
    bouton->setObjectName(offert.nom);
    connect(bouton, &QPushButton::clicked, this, [this, suite = offert.suite] {
      choix_ = suite;
      accept();
    });
  }
  colonne->addWidget(boutons);
  donnerTaille(*this, Taille);
}

}  // namespace hote
