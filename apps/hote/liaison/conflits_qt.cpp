#include "liaison/conflits_qt.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "liaison/bureau.h"
#include "liaison/fenetre.h"
#include "liaison/services_qt.h"
#include "liaison/textes_qt.h"

namespace hote {

namespace {

using screen::Tranche;

constexpr QSize Taille{760, 420};

struct Choix {
  Tranche tranche;
  const char* texte;
  const char* explication;
};

constexpr Choix Reponses[] = {
    {Tranche::Remplacer, "Re&mplacer par le vôtre", "Ce qui a été enregistré ailleurs est perdu"},
    {Tranche::Garder, "&Garder le leur", "Votre saisie est abandonnée, l'écran se ferme"},
    {Tranche::Revenir, "Revenir à la &saisie", "Rien n'est enregistré pour l'instant"},
};

QTableWidget* faireTable(const std::vector<screen::Conflit::Ecart>& ecarts) {
  auto* const table = new QTableWidget(static_cast<int>(ecarts.size()), 3);
  table->setHorizontalHeaderLabels({"Zone", "Dans le fichier (le leur)", "À l'écran (le vôtre)"});
  table->verticalHeader()->hide();
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setSelectionMode(QAbstractItemView::NoSelection);
  table->setTabKeyNavigation(false);
  int ligne = 0;
  for (const auto& ecart : ecarts) {
    int colonne = 0;
    for (const std::string& texte : {ecart.legende, ecart.surFichier, ecart.ici}) {
      auto* const case_ = new QTableWidgetItem(texte.empty() ? "(vide)" : versQt(texte));
      case_->setToolTip(case_->text());
      if (texte.empty()) case_->setForeground(table->palette().brush(QPalette::PlaceholderText));
      table->setItem(ligne, colonne++, case_);
    }
    ++ligne;
  }
  table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  return table;
}

}  // namespace

Tranche ConflitsQt::Trancher(const screen::Conflit& conflit) {
  bureau_.PousserTout();
  const CurseurQt::Levee levee(curseur_);
  const QPointer<QWidget> dessous = bureau_.FenetreCourante();
  QDialog boite(dessous);
  boite.setObjectName("Conflit");
  boite.setWindowTitle(versQt(screen::TitreMessage));
  auto* const disposition = new QVBoxLayout(&boite);
  const QString auteur = conflit.auteur.empty() ? "" : " (" + versQt(conflit.auteur) + ")";
  auto* const texte =
      new QLabel("Pendant votre saisie, " + versQt(conflit.article) + " a été enregistré ailleurs" +
                 auteur + ". Voici ce qui diffère ; lequel doit rester ?");
  texte->setTextFormat(Qt::PlainText);
  texte->setWordWrap(true);
  disposition->addWidget(texte);
  disposition->addWidget(faireTable(conflit.ecarts));
  auto* const boutons = new QDialogButtonBox;
  Tranche tranche = Tranche::Revenir;
  for (const Choix& choix : Reponses) {
    const bool prudent = choix.tranche == Tranche::Revenir;
    QPushButton* const bouton = boutons->addButton(
        choix.texte, prudent ? QDialogButtonBox::RejectRole : QDialogButtonBox::AcceptRole);
    bouton->setToolTip(choix.explication);
    bouton->setAutoDefault(prudent);
    bouton->setDefault(prudent);
    if (prudent) bouton->setFocus();
    QObject::connect(bouton, &QPushButton::clicked, &boite, [&tranche, &boite, &choix] {
      tranche = choix.tranche;
      boite.accept();
    });
  }
  disposition->addWidget(boutons);
  donnerTaille(boite, Taille);
  boite.exec();
  if (dessous) dessous->activateWindow();
  return tranche;
}

}  // namespace hote
