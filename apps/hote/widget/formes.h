#pragma once
// The windows of the component's forms.

namespace hote {

class Bureau;

// Makes the desk know the window of every form.
void enregistrerFormes(Bureau& bureau);

}  // namespace hote
