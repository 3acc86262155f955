#pragma once
// The data files opened last, the latest first, kept in the user's settings.

#include <QStringList>

class QSettings;

namespace hote {

class FichiersRecents {
 public:
  static constexpr int Nombre = 8;

  explicit FichiersRecents(QSettings& reglages) : reglages_(reglages) {}

  QStringList Chemins() const;
  // Puts the file first, by its absolute path.
  void Noter(const QString& chemin);
  void Oublier(const QString& chemin);

 private:
  QSettings& reglages_;
};

}  // namespace hote
