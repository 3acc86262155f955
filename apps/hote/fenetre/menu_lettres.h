#pragma once
// The menu of the letters: their folders, their templates, the word processor.

class QMenuBar;

namespace hote {

class Bureau;

// `bureau` outlives the menu.
void ajouterMenuLettres(QMenuBar& menus, Bureau& bureau);

}  // namespace hote
