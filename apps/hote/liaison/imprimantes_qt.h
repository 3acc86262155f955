#pragma once
// The printers of the workstation: a PDF document, which is always there, then those of the system.

#include "liaison/services_qt.h"

class QPrinter;

namespace hote {

// The unit of all that is put on a page.
inline constexpr double TwipsParPouce = 1440;

class ImprimantesQt : public screen::Imprimante {
 public:
  static constexpr int DocumentPdf = 0;

  ImprimantesQt(Bureau& bureau, CurseurQt& curseur);
  ~ImprimantesQt() override;

  // The system is asked anew each time: printers come and go.
  std::vector<std::string> Noms() const override;
  std::string Port(int imprimante) const override;
  // The system's own, where it has one.
  int ParDefaut() const override;
  // An index without a printer is a std::out_of_range. The choice stands until another is made.
  void Choisir(int imprimante) override;
  void Police(const std::string& nom, double points, bool gras) override;
  void Texte(int x, int y, const std::string& texte, int largeur = 0) override;
  void Image(int x, int y, int largeur, int hauteur, const std::string& fichier) override;
  void FinPage() override;
  void FinDocument() override;

 private:
  QPainter& Pinceau();
  void Abandonner();
  // Gives the document up and raises a screen::ErreurImpression: what the printer did.
  [[noreturn]] void Echouer(const char* panne);

  ImprimantePdf pdf_;
  // "" for the PDF document.
  QString choisie_{};
  std::unique_ptr<QPrinter> imprimante_;
  std::unique_ptr<QPainter> pinceau_;
  bool pageFinie_ = false;
  QFont police_ = policeImprimee("Courier New", 10, false);
};

}  // namespace hote
