#pragma once
// The contract screen of one carer as a widget, for any Qt host. The host calls it in this order:
//
//   hote::Bureau bureau;                       // one for the application
//   auto* ecran = new ContratWidget(bureau, parent);
//   ecran->TheDatabase(db);
//   ecran->W_Code = "00042";                   // and W_NomPrenom, W_EtatSuppAidant, W_CodeContrat
//   ecran->DroitsUtilisateur(droits);
//   connect(ecran, &ContratWidget::sortie, fenetre, &QWidget::close);
//   ecran->init();
//   ecran->Affiche("", "", "A");               // if it wants filters preset
//
// The desk gets to know the windows of the forms with the first widget, those left out that the
// host has registered before. A widget without a parent is a window, which closes when the user
// leaves.
//
// For another carer the host makes another widget: one control at a time is assumed. The desk, the
// database, the client and the rights outlive the widget. A data::StoreError rises from init and
// Affiche to the host; one that a user's act meets is shown to the user.

#include <QWidget>
#include <memory>
#include <string>
#include <string_view>

namespace control {
class Ctr_Contrat;
}
namespace data {
class Db;
}
namespace session {
class Client;
class Droits;
}  // namespace session
namespace hote {
class Bureau;
}

class ContratWidget : public QWidget {
  Q_OBJECT

 public:
  explicit ContratWidget(hote::Bureau& bureau, QWidget* parent = nullptr);
  ~ContratWidget() override;

  // The carer's code, 5 characters, and the name to show.
  std::string W_Code;
  std::string W_NomPrenom;
  // The carer is in the deleted state: no contract can be added.
  bool W_EtatSuppAidant = false;
  // The key of one contract to open straight away, or "".
  std::string W_CodeContrat;
  // 1 when the user has left by Retour.
  int W_Sortir() const;

  void TheDatabase(data::Db& db);
  void TheClient(session::Client& client);
  void DroitsUtilisateur(const session::Droits& droits);
  // Opens the session's files and shows the carer. Called once. With W_CodeContrat it returns when
  // the editor of that contract has been closed.
  void init();
  // Presets the filters and searches. `typeAct`: "P" entity contracts, "M" private employers, else
  // both. `codeAsso`: legal entity or "". `actifs`: "A" active, "H" ended, else all.
  void Affiche(std::string_view typeAct, std::string_view codeAsso, std::string_view actifs);

  // What the user can do from menus of the host, as by the screen's own buttons and keys. Nothing
  // happens where a button is off, or no row is selected.
  void OuvrirChoisi();
  void Ajouter();
  // With the filters as they stand; a list that is shown is read again and keeps its row.
  void Rechercher();
  void ChoisirFiltres();
  enum class Filtre { EnCours, AVenir, Termines, Tous };
  void Montrer(Filtre filtre);
  // The strip of time over the list; the choice is kept in the desk's settings.
  bool FriseVisible() const;
  void MontrerFrise(bool visible);

  // A handler, init or Affiche is under way, a box or an editor open: the widget must not be
  // deleted now.
  bool Occupe() const;
  // The screen itself, for a host that drives it further and for tests.
  control::Ctr_Contrat& Controle() const;

 signals:
  // W_Sortir has become 1. No handler is under way: the slot may delete the widget.
  void sortie();
  // What the user may like to know: "Contrat 061 enregistré". The host shows it without a box.
  void annonce(const QString& texte);
  // A row was clicked with the right button, or the list was asked for its menu: the row is
  // selected, the menu's place is on the screen.
  void menuDemande(const QPoint& place);

 protected:
  // Stays open while it is busy.
  void closeEvent(QCloseEvent* evenement) override;

 private:
  void Annoncer();

  struct Prive;
  std::unique_ptr<Prive> prive_;
};
