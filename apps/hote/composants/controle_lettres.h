#pragma once
// The document-edit control of this host: merges a letter, says where it went and what it lacks,
// and opens it or makes a PDF file of it.

#include <QSettings>
#include "composants/controle_suite.h"

#include "lettres/lettre_odt.h"

namespace hote {

class ControleLettres : public ControleSuite {
 public:
  static constexpr const char* Nom = "Ctr_Edit";

  ControleLettres(Bureau& bureau, const ObjetsSuite& objets) : bureau_(bureau), objets_(objets) {}
  // "Imprimer" with the key of a contract in W_CodeContrat, and its amendment at the head of
  // W_Document. screen::ErreurImpression when no letter comes about.
  void Appeler(const std::string& methode) override;

 private:
  void Annoncer(const LettreOdt& lettre);
  void EnPdf(const QString& fichier);
  void EnPdfSimple(const QString& fichier);

  Bureau& bureau_;
  const ObjetsSuite& objets_;
};

// Where the templates and the letters of a workstation stand. The settings may name another folder
// for the templates, so that several stations share them.
inline constexpr const char* CleDossierModeles = "Lettres/Modeles";
QString dossierModeles(const QSettings& reglages);
QString dossierLettres();

}  // namespace hote
