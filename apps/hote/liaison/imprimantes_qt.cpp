#include "liaison/imprimantes_qt.h"

#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <stdexcept>

#include "liaison/textes_qt.h"

namespace hote {

ImprimantesQt::ImprimantesQt(Bureau& bureau, CurseurQt& curseur) : pdf_(bureau, curseur) {}
ImprimantesQt::~ImprimantesQt() = default;

std::vector<std::string> ImprimantesQt::Noms() const {
  std::vector<std::string> noms = pdf_.Noms();
  for (const QString& nom : QPrinterInfo::availablePrinterNames()) noms.push_back(versModele(nom));
  return noms;
}

std::string ImprimantesQt::Port(int imprimante) const {
  const QStringList noms = QPrinterInfo::availablePrinterNames();
  if (imprimante == DocumentPdf || imprimante > noms.size()) return "Dossier Documents";
  const QPrinterInfo info = QPrinterInfo::printerInfo(noms[imprimante - 1]);
  return versModele(info.location().isEmpty() ? info.description() : info.location());
}

int ImprimantesQt::ParDefaut() const {
  return static_cast<int>(
             QPrinterInfo::availablePrinterNames().indexOf(QPrinterInfo::defaultPrinterName())) +
         1;
}

void ImprimantesQt::Choisir(int imprimante) {
  const QStringList noms = QPrinterInfo::availablePrinterNames();
  if (imprimante < 0 || imprimante > noms.size()) {
    throw std::out_of_range("no printer of index " + std::to_string(imprimante));
  }
  choisie_ = imprimante == DocumentPdf ? QString() : noms[imprimante - 1];
}

void ImprimantesQt::Police(const std::string& nom, double points, bool gras) {
  pdf_.Police(nom, points, gras);
  police_ = policeImprimee(nom, points, gras);
}

QPainter& ImprimantesQt::Pinceau() {
  if (!imprimante_) {
    imprimante_ =
        std::make_unique<QPrinter>(QPrinterInfo::printerInfo(choisie_), QPrinter::HighResolution);
    imprimante_->setFullPage(true);
    pinceau_ = std::make_unique<QPainter>();
    if (!pinceau_->begin(imprimante_.get())) Echouer("ne répond pas");
  } else if (pageFinie_ && !imprimante_->newPage()) {
    Echouer("s'est arrêtée en cours d'impression");
  }
  pageFinie_ = false;
  return *pinceau_;
}

void ImprimantesQt::Texte(int x, int y, const std::string& texte, int largeur) {
  if (choisie_.isEmpty()) return pdf_.Texte(x, y, texte, largeur);
  QPainter& pinceau = Pinceau();
  pinceau.setFont(police_);
  const double echelle = imprimante_->resolution() / TwipsParPouce;
  ecrireLigne(pinceau, QPoint(qRound(x * echelle), qRound(y * echelle)), versQt(texte),
              qRound(largeur * echelle));
}

void ImprimantesQt::Image(int x, int y, int largeur, int hauteur, const std::string& fichier) {
  if (choisie_.isEmpty()) return pdf_.Image(x, y, largeur, hauteur, fichier);
  const QImage image(versQt(fichier));
  if (image.isNull()) return;
  QPainter& pinceau = Pinceau();
  const double echelle = imprimante_->resolution() / TwipsParPouce;
  pinceau.drawImage(QRectF(x * echelle, y * echelle, largeur * echelle, hauteur * echelle), image);
}

void ImprimantesQt::FinPage() {
  if (choisie_.isEmpty()) return pdf_.FinPage();
  Pinceau();
  pageFinie_ = true;
}

void ImprimantesQt::FinDocument() {
  if (!imprimante_) return pdf_.FinDocument();
  const bool fini = pinceau_->end();
  const QPrinter::PrinterState etat = imprimante_->printerState();
  if (!fini || etat == QPrinter::Error || etat == QPrinter::Aborted) {
    Echouer("n'a pas pris le document");
  }
  Abandonner();
}

// The next document begins anew.
void ImprimantesQt::Abandonner() {
  pinceau_.reset();
  imprimante_.reset();
  pageFinie_ = false;
}

void ImprimantesQt::Echouer(const char* panne) {
  if (imprimante_) imprimante_->abort();
  Abandonner();
  throw screen::ErreurImpression("L'imprimante « " + versModele(choisie_) + " » " + panne +
                                 ". Vérifiez qu'elle est allumée, ou choisissez-en une autre.");
}

}  // namespace hote
