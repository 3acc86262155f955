#pragma once
// The model's texts are UTF-8, Qt's are UTF-16.

#include <QString>
#include <string>
#include <string_view>

namespace hote {

inline QString versQt(std::string_view texte) {
  return QString::fromUtf8(texte.data(), static_cast<qsizetype>(texte.size()));
}
inline std::string versModele(const QString& texte) {
  return texte.toStdString();
}

}  // namespace hote
