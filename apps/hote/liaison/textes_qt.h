#pragma once
// The model's texts are UTF-8, Qt's are UTF-16.

#include <QString>
#include <QStringList>
#include <string>
#include <string_view>
#include <vector>

namespace hote {

inline QString versQt(std::string_view texte) {
  return QString::fromUtf8(texte.data(), static_cast<qsizetype>(texte.size()));
}
inline QStringList versQt(const std::vector<std::string>& textes) {
  QStringList resultat;
  resultat.reserve(static_cast<qsizetype>(textes.size()));
  for (const auto& texte : textes) resultat << versQt(std::string_view(texte));
  return resultat;
}
inline std::string versModele(const QString& texte) {
  return texte.toStdString();
}

// The name of the widget that shows a field: "Txt_X(0)", one of a row, is "Txt_X_0" in a form file.
inline QString nomDuWidget(std::string_view champ) {
  return versQt(champ).replace("(", "_").remove(")");
}

}  // namespace hote
