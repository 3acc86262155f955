#pragma once
// The host window's own messages, in a box above whatever is open.

#include <QString>
#include <exception>

namespace hote {

void informer(const QString& texte);
void avertir(const QString& texte);
// A document stands in that file: says where, and opens it if the user wants to see it.
void annoncerDocument(const QString& fichier);
// `texte`, what the error says of itself, and for a store's error its number and place.
void avertirErreur(const QString& texte, const std::exception& erreur);

}  // namespace hote
