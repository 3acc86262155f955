#pragma once
// Help with typing a date, in the fields whose widget has the property "date": Ctrl+; is today, +
// and - go on or back by a day, F4 and Alt+Down open a calendar. A date that is still being typed
// keeps its own "-".

#include <QString>
#include <functional>
#include <optional>

class QKeyEvent;
class QLineEdit;

namespace hote {

inline constexpr const char* ProprieteDate = "date";
inline constexpr const char* ConseilDate =
    "Ctrl+; aujourd'hui, + et - un jour de plus ou de moins, F4 calendrier";

// The text that the key makes of what the field holds; nothing for a key that is none of these.
std::optional<QString> dateParTouche(const QKeyEvent& evenement, const QString& texte,
                                     long aujourdhui);
bool ouvreCalendrier(const QKeyEvent& evenement);
// Below the field, at its date or today; closed by a choice, Esc or a click elsewhere.
void montrerCalendrier(QLineEdit& ligne, long aujourdhui,
                       const std::function<void(const QString&)>& choisir);

}  // namespace hote
