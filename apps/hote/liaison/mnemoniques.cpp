#include "liaison/mnemoniques.h"

#include <algorithm>

#include "liaison/textes_qt.h"
#include "screen/form.h"

namespace hote {

namespace {

// Who gets a letter first.
enum Tour { Confirmer, HorsPages, SurPages };

bool utilisable(QChar lettre) {
  return lettre.toLower() >= u'a' && lettre.toLower() <= u'z';
}

// The first letters of the words, then the others.
QString candidates(const QString& libelle) {
  QString debuts;
  QString autres;
  bool debut = true;
  for (const QChar c : libelle) {
    if (utilisable(c)) (debut ? debuts : autres) += c.toLower();
    debut = !c.isLetter();
  }
  return debuts + autres;
}

// The page on which a field stands, where the form has tabs; nullptr beside them.
const screen::Frame* pageDe(const screen::Field& champ, bool onglets) {
  const screen::Frame* page = nullptr;
  for (const screen::Frame* cadre = champ.Cadre(); cadre != nullptr; cadre = cadre->Cadre()) {
    page = cadre;
  }
  return onglets ? page : nullptr;
}

}  // namespace

Mnemoniques::Mnemoniques(const screen::Form& forme, const QSet<QChar>& pris) {
  const auto& champs = forme.Fields();
  const bool onglets = std::any_of(champs.begin(), champs.end(), [](const screen::Field* champ) {
    return champ->Genre() == screen::Kind::Onglets;
  });
  std::map<const screen::Frame*, QSet<QChar>> prises{{nullptr, pris}};
  const auto donner = [&](const screen::Field& champ) {
    QSet<QChar>& ici = prises[pageDe(champ, onglets)];
    for (const QChar lettre : candidates(versQt(champ.Libelle()))) {
      if (ici.contains(lettre) || prises[nullptr].contains(lettre)) continue;
      ici.insert(lettre);
      lettres_[&champ] = lettre;
      return;
    }
  };
  // The form's own OK first, then what stands beside the tabs, in view with every page.
  for (const int tour : {Confirmer, HorsPages, SurPages}) {
    for (const screen::Field* const champ : champs) {
      if (champ->Genre() != screen::Kind::Bouton || lettres_.contains(champ)) continue;
      const bool ok = champ->Nom() == "Cmd_OK" || champ->Nom() == "Cmd_Ok";
      const bool page = pageDe(*champ, onglets) != nullptr;
      if (tour == (ok ? Confirmer : page ? SurPages : HorsPages)) donner(*champ);
    }
  }
}

QString Mnemoniques::Libelle(const screen::Field& bouton) const {
  const QString libelle = versQt(bouton.Libelle());
  const auto lettre = lettres_.find(&bouton);
  qsizetype place = -1;
  if (lettre != lettres_.end()) {
    for (qsizetype i = 0; i < libelle.size() && place < 0; ++i) {
      const bool debut = i == 0 || !libelle[i - 1].isLetter();
      if (debut && libelle[i].toLower() == lettre->second) place = i;
    }
    if (place < 0) place = libelle.indexOf(lettre->second, 0, Qt::CaseInsensitive);
  }
  QString marque;
  for (qsizetype i = 0; i < libelle.size(); ++i) {
    if (i == place || libelle[i] == u'&') marque += u'&';
    marque += libelle[i];
  }
  return marque;
}

}  // namespace hote
