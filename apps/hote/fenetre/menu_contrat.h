#pragma once
// The menu of the contract list, in the menu bar and, by a right click or the menu key, at a row:
// what the list can do, with the keys that do it, and the list on paper, in the clipboard and in a
// file.

#include <QMenu>
#include <QPointer>
#include <functional>

class ContratWidget;

namespace hote {

class Bureau;

class MenuContrat : public QMenu {
  Q_OBJECT

 public:
  MenuContrat(Bureau& bureau, QWidget* parent);

  // The screen that the entries are about; nullptr, and they do nothing, when no carer is open.
  void Viser(ContratWidget* ecran);

 signals:
  // What was done, in a sentence for the status line.
  void annonce(const QString& texte);

 private:
  // Adds an entry that acts on the screen, and can be chosen while `possible`.
  using Acte = std::function<void(ContratWidget&)>;
  using Possible = std::function<bool(const ContratWidget&)>;
  QAction* Ajouter(QMenu& menu, const QString& texte, const QKeySequence& touche,
                   const Possible& possible, const Acte& acte);
  void FaireActes();
  void FaireFiltres();
  void FaireCopies();
  void FaireFrise();
  void Preparer();

  void Exporter(const ContratWidget& ecran);
  void Imprimer(const ContratWidget& ecran);

  Bureau& bureau_;
  QPointer<ContratWidget> ecran_;
  QList<std::pair<QAction*, Possible>> entrees_;
  QAction* frise_ = nullptr;
};

}  // namespace hote
