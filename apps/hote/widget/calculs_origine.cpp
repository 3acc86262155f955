#include "widget/calculs_origine.h"

#include <QDate>
#include <QLabel>
#include <QLineEdit>

#include "data/echeances.h"
#include "data/jour.h"
#include "liaison/textes_qt.h"
#include "rules/durees.h"

namespace hote {

namespace {

// As far as a date stands there: it may be half typed.
std::optional<long> jourDe(const QLineEdit& ligne) {
  return data::lireDateSaisie(versModele(ligne.text()), QDate::currentDate().year());
}

struct Calculs {
  QLineEdit& debut;
  QLineEdit& fin;
  QLineEdit& essai;
  QLabel& duree;
  QLabel& finEssai;

  void operator()() const {
    const auto premier = jourDe(debut);
    const auto dernier = jourDe(fin);
    const bool determinee = premier && dernier;
    duree.setText(determinee ? "soit " + versQt(rules::dureeEnClair(*premier, *dernier)) : "");
    const int jours = essai.text().trimmed().toInt();
    finEssai.setText(premier && jours > 0
                         ? "jusqu'au " +
                               versQt(data::dateAffichee(data::dernierJourEssai(*premier, jours)))
                         : "");
  }
};

}  // namespace

void habillerOrigine(QWidget& racine) {
  const auto ligne = [&](const char* nom) { return racine.findChild<QLineEdit*>(nom); };
  const auto etiquette = [&](const char* nom) { return racine.findChild<QLabel*>(nom); };
  const Calculs calculs{*ligne("Txt_DatDebContrat"), *ligne("Txt_DatFinContrat"),
                        *ligne("Txt_PerEssaiContrat"), *etiquette("dureeContrat"),
                        *etiquette("finEssai")};
  for (const QLineEdit* const entree : {&calculs.debut, &calculs.fin, &calculs.essai}) {
    QObject::connect(entree, &QLineEdit::textChanged, &racine, calculs);
  }
}

}  // namespace hote
