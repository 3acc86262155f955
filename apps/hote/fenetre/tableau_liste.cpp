#include "fenetre/tableau_liste.h"

#include <QMimeData>
#include <QRegularExpression>
#include <algorithm>

#include "control/ctr_contrat.h"
#include "data/cles.h"
#include "data/jour.h"
#include "liaison/textes_qt.h"

namespace hote {

namespace {

using control::Ctr_Contrat;

struct Colonne {
  screen::Label Ctr_Contrat::*titre;
  screen::ListBox Ctr_Contrat::*lignes;
};
constexpr Colonne Colonnes[] = {{&Ctr_Contrat::Etq_Debut, &Ctr_Contrat::Lst_DatDebContrat},
                                {&Ctr_Contrat::Etq_Fin, &Ctr_Contrat::Lst_DatFinContrat},
                                {&Ctr_Contrat::Etq_Type, &Ctr_Contrat::Lst_Type},
                                {&Ctr_Contrat::Etq_Employeur, &Ctr_Contrat::Lst_EmplEtabContrat},
                                {&Ctr_Contrat::Etq_Qualification, &Ctr_Contrat::Lst_QualifContrat}};

// The option of a frame that is on, under the frame's caption.
QString filtre(const Ctr_Contrat& liste, const screen::Frame& cadre) {
  for (const screen::Field* const champ : liste.Fields()) {
    if (champ->Cadre() != &cadre || champ->Genre() != screen::Kind::Option) continue;
    if (!static_cast<const screen::OptionButton*>(champ)->Value()) continue;
    return versQt(cadre.Libelle()).trimmed() + " : " + versQt(champ->Libelle());
  }
  return {};
}

QString filtres(const Ctr_Contrat& liste) {
  const QString entite = versQt(liste.Cbo_Association.Text());
  return QStringList{
      versQt(liste.Cdr_Association.Libelle()) + " : " + (entite.isEmpty() ? "toutes" : entite),
      filtre(liste, liste.Cdr_Validite), filtre(liste, liste.Cdr_Type),
      filtre(liste, liste.Cdr_TriContrat)}
      .join("; ");
}

// What a spreadsheet would compute stays the text that it is.
QString sansFormule(const QString& texte) {
  static const QString Amorces = "=+-@\t\r";
  return !texte.isEmpty() && Amorces.contains(texte.front()) ? "'" + texte : texte;
}

QString celluleCsv(const QString& texte) {
  static const QRegularExpression aCiter("[;\"\r\n]");
  QString cellule = sansFormule(texte);
  if (!cellule.contains(aCiter)) return cellule;
  return "\"" + cellule.replace("\"", "\"\"") + "\"";
}

QString celluleTexte(const QString& texte) {
  static const QRegularExpression blancs("[\t\r\n]+");
  return sansFormule(QString(texte).replace(blancs, " "));
}

template <typename Cellule>
QString lignes(const Tableau& tableau, const QString& separateur, Cellule cellule) {
  QString texte;
  for (const QStringList& rangee : QList<QStringList>{tableau.colonnes} + tableau.rangees) {
    QStringList cellules;
    for (const QString& valeur : rangee) cellules << cellule(valeur);
    texte += cellules.join(separateur) + "\r\n";
  }
  return texte;
}

QString enHtml(const Tableau& tableau) {
  QString html = "<meta charset=\"utf-8\"><table>";
  const auto ajouter = [&](const QStringList& rangee, const QString& balise) {
    html += "<tr>";
    for (const QString& valeur : rangee) {
      html += "<" + balise + ">" + sansFormule(valeur).toHtmlEscaped() + "</" + balise + ">";
    }
    html += "</tr>";
  };
  ajouter(tableau.colonnes, "th");
  for (const QStringList& rangee : tableau.rangees) ajouter(rangee, "td");
  return html + "</table>";
}

}  // namespace

Tableau tableauDe(const Ctr_Contrat& liste) {
  Tableau tableau;
  tableau.titre = "Contrats de " + versQt(liste.Etq_CodeAidant.Libelle()) + " " +
                  versQt(liste.Etq_NomPrenomAidant.Libelle());
  tableau.filtres = filtres(liste);
  tableau.jour = versQt(data::dateAffichee(liste.Services().poste.Aujourdhui()));
  tableau.colonnes << "N°";
  for (const Colonne& colonne : Colonnes) {
    tableau.colonnes << versQt((liste.*colonne.titre).Libelle());
  }
  for (int i = 0; i < liste.Lst_DatDebContrat.ListCount(); ++i) {
    QStringList rangee{versQt(liste.ClesContrats()(i + 1)).mid(data::LongueurCodeAidant)};
    for (const Colonne& colonne : Colonnes) {
      rangee << versQt((liste.*colonne.lignes).List(i));
    }
    tableau.rangees << rangee;
  }
  return tableau;
}

Tableau tableauDe(const Ctr_Contrat& liste, int ligne) {
  Tableau tableau = tableauDe(liste);
  tableau.rangees = tableau.rangees.mid(ligne, 1);
  return tableau;
}

QByteArray enCsv(const Tableau& tableau) {
  return "\xEF\xBB\xBF" + lignes(tableau, ";", celluleCsv).toUtf8();
}

QMimeData* pourPressePapiers(const Tableau& tableau) {
  auto* const contenu = new QMimeData;
  contenu->setText(lignes(tableau, "\t", celluleTexte));
  contenu->setHtml(enHtml(tableau));
  return contenu;
}

QString nomFichier(const Ctr_Contrat& liste) {
  static const QRegularExpression interdits("[\\\\/:*?\"<>|\\x00-\\x1f]+");
  const data::Date jour = data::dateDe(liste.Services().poste.Aujourdhui());
  const QString nom = "Contrats " + versQt(liste.Etq_CodeAidant.Libelle()) + " " +
                      versQt(liste.Etq_NomPrenomAidant.Libelle()) +
                      QString(" %1-%2-%3")
                          .arg(jour.annee, 4, 10, QChar('0'))
                          .arg(jour.mois, 2, 10, QChar('0'))
                          .arg(jour.jour, 2, 10, QChar('0'));
  return QString(nom).replace(interdits, "-").simplified();
}

}  // namespace hote
