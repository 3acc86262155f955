#pragma once
// A base in use by the host: the store, the database on it, and a watch on a data file's name.

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <functional>
#include <memory>

#include "data/db.h"
#include "data/poste.h"
#include "storage/veille.h"

namespace hote {

// How the store in a data file is opened. A data::StoreError when it cannot be.
using Ouvreur = std::function<std::unique_ptr<data::Storage>(const std::string& chemin,
                                                             const data::Poste& poste)>;
// A data file, or the address of a base on a server. A write waits for another program 2 seconds at
// most: the window waits too.
std::unique_ptr<data::Storage> ouvrirBase(const std::string& chemin, const data::Poste& poste);
// The same in a network folder, too, for who knows that one station alone opens it.
std::unique_ptr<data::Storage> ouvrirBaseEnReseau(const std::string& chemin,
                                                  const data::Poste& poste);

// Whether that is the address of a base on a server.
bool surServeur(const QString& chemin);
// What is given for a base, without its password.
QString aMontrer(const QString& chemin);

class BaseOuverte : public QObject {
  Q_OBJECT

 public:
  // A data::StoreError rises when the file cannot be opened. `poste` outlives the object.
  BaseOuverte(const QString& chemin, const data::Poste& poste, const Ouvreur& ouvrir);

  // To be shown and kept: an address holds no password.
  const QString& Chemin() const { return chemin_; }
  QString Nom() const;
  data::Db& Db() { return db_; }
  // What has become of the file and what its user can do, "" while it stands under its name.
  QString Defaut() const;
  // Another file has taken the name: what is shown is no longer what stands there.
  bool Remplacee() const;
  // See storage::Veille.
  QString EcarterJournal();
  void Veiller();

 signals:
  // The file no longer stands under its name: nothing is written until it is put back. Veiller
  // starts the watch again then.
  void disparue();

 private:
  void Regarder();

  QString chemin_;
  // The store refuses to write into a file that is gone; this tells so before a clerk types for
  // nothing. None on a server.
  std::unique_ptr<storage::Veille> veille_;
  data::Db db_;
  QFileSystemWatcher signaux_;
};

}  // namespace hote
