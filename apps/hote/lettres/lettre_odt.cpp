#include "lettres/lettre_odt.h"

#include <QDir>
#include <QFile>

#include "data/jour.h"
#include "lettres/modele_odt.h"
#include "liaison/ecriture.h"
#include "liaison/textes_qt.h"
#include "screen/platform.h"

namespace hote {

namespace {

[[noreturn]] void echouer(const QString& texte) {
  throw screen::ErreurImpression(versModele(texte));
}

// Digits and capitals alone: what a key is made of, and what any program takes for a file's name.
QString pourNom(const std::string& texte) {
  QString nom;
  for (const char c : texte) {
    if ((c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z')) nom += QLatin1Char(c);
  }
  return nom;
}

QString nomLibre(const QDir& dossier, const documents::DossierLettre& contrat) {
  const data::Date jour = data::dateDe(contrat.aujourdhui);
  QString nom = "Contrat " + pourNom(contrat.cle);
  if (!contrat.avenant.empty()) nom += " avenant " + pourNom(contrat.avenant);
  nom += " du " + QDate(jour.annee, jour.mois, jour.jour).toString("yyyy-MM-dd");
  QString essai = nom;
  for (int n = 2; QFile::exists(dossier.filePath(essai + ".odt")); ++n) {
    essai = nom + QString(" (%1)").arg(n);
  }
  return dossier.filePath(essai + ".odt");
}

ModeleOdt lireModele(const QString& fichier) {
  QFile modele(fichier);
  if (!modele.open(QIODevice::ReadOnly)) {
    echouer("Le modèle de lettre « " + fichier + " » ne se lit pas : " + modele.errorString());
  }
  try {
    return ModeleOdt(modele.readAll());
  } catch (const ArchiveIllisible& erreur) {
    echouer("Le modèle de lettre « " + fichier +
            " » ne peut pas servir : " + versQt(erreur.what()) +
            ". Corrigez-le, ou renommez-le : un modèle neuf prendra sa place.");
  }
}

QStringList noms(const std::vector<std::string>& champs) {
  QStringList liste;
  for (const std::string& champ : champs) {
    const documents::ChampLettre* const connu = documents::champLettre(champ);
    liste << (connu == nullptr ? versQt(champ)
                               : versQt(champ) + " (" + QString::fromUtf8(connu->sens) + ")");
  }
  return liste;
}

}  // namespace

QString LettreOdt::Reserves() const {
  QStringList reserves;
  if (!inconnus.isEmpty()) {
    reserves << "Le modèle « " + modele +
                    " » nomme des champs qui n'existent pas : " + inconnus.join(", ") +
                    ". Leur place est restée vide : corrigez le modèle.";
  }
  if (!vides.isEmpty()) {
    reserves << "Le contrat n'a rien pour ces champs, dont la place est restée vide :\n– " +
                    vides.join("\n– ");
  }
  return reserves.join("\n\n");
}

LettreOdt ecrireLettre(const documents::DossierLettre& contrat, const DossierModeles& modeles,
                       const QString& dossier) {
  LettreOdt lettre;
  lettre.modele = modeles.Fichier(documents::modeleLettre(contrat).fichier);
  const ModeleOdt modele = lireModele(lettre.modele);
  try {
    const documents::Fusion fusion = documents::fusionner(modele.Champs(), contrat);
    const QByteArray octets = modele.Fusionner([&](const std::string& nom) {
      const auto trouvee = fusion.valeurs.find(nom);
      return trouvee == fusion.valeurs.end() ? std::string() : trouvee->second;
    });
    lettre.inconnus = noms(fusion.inconnus);
    lettre.vides = noms(fusion.vides);
    QDir().mkpath(dossier);
    lettre.fichier = nomLibre(QDir(dossier), contrat);
    if (!ecrireFichier(lettre.fichier, octets)) {
      echouer("La lettre « " + lettre.fichier +
              " » ne peut pas être écrite. Vérifiez la place sur le disque et vos droits sur ce "
              "dossier.");
    }
  } catch (const ArchiveIllisible& erreur) {
    echouer("Le modèle de lettre « " + lettre.modele +
            " » ne peut pas servir : " + versQt(erreur.what()) + ".");
  }
  return lettre;
}

}  // namespace hote
