#pragma once
// A plug-in of the window toolkit that ends the program that it is loaded in as soon as a picture
// is there, so that the shipped program is measured from its start without a hook of its own.
//
//   QT_QPA_GENERIC_PLUGINS=premiere_image:fenetre        a whole window has been painted
//   QT_QPA_GENERIC_PLUGINS=premiere_image:listeAidants   the item view of that name, with rows
//
// The program ends at once, without its own way out, with the code ImageVue; with ImageAbsente
// when the picture does not come.

namespace bench {

constexpr int ImageVue = 42;
constexpr int ImageAbsente = 43;
constexpr int AttenteImageMs = 60'000;
constexpr const char* ImageFenetre = "fenetre";

}  // namespace bench
