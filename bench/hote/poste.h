#pragma once
// A carer's contract list at the screen, as a host shows it, with settings of its own.

#include <QEvent>
#include <QMainWindow>
#include <QTemporaryDir>
#include <memory>
#include <string>

#include "bases.h"
#include "liaison/bureau.h"
#include "session/droits.h"
#include "session/session.h"
#include "widget/contrat_widget.h"

namespace bench {

// Handles what is waiting: pushes, layouts and the paint that they ask for.
void traiterTout();

// Counts the paints of one widget and its parts, so that a measure can show that there was one.
class Peintures : public QObject {
 public:
  explicit Peintures(QWidget& widget);
  int Nombre() const { return nombre_; }
  bool eventFilter(QObject* objet, QEvent* evenement) override;

 private:
  int nombre_ = 0;
};

struct PosteEcran {
  PosteEcran(Base& base, const std::string& aidant);
  PosteEcran(const PosteEcran&) = delete;
  PosteEcran& operator=(const PosteEcran&) = delete;

  // The list's widget of that name; throws without one.
  QWidget& Widget(const char* nom);

  QTemporaryDir dossier;
  hote::Bureau bureau;
  session::Client client;
  session::DroitsUniformes droits{session::Droit::Plein};
  QMainWindow fenetre;
  // Deleted by its window.
  ContratWidget* ecran;
};

}  // namespace bench
