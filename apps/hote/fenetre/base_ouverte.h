#pragma once
// A data file in use by the host: the store, the database on it, and a watch on the file's name.

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>

#include "data/db.h"
#include "data/poste.h"

namespace hote {

class BaseOuverte : public QObject {
  Q_OBJECT

 public:
  // A data::StoreError rises when the file cannot be opened. `poste` outlives the object.
  BaseOuverte(const QString& chemin, const data::Poste& poste);

  const QString& Chemin() const { return chemin_; }
  QString Nom() const;
  data::Db& Db() { return db_; }

 signals:
  // The file no longer stands under its name. Sent once.
  void disparue();

 private:
  void Regarder();

  QString chemin_;
  data::Db db_;
  QFileSystemWatcher veille_;
};

}  // namespace hote
