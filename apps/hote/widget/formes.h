#pragma once
// The windows of the component's forms.

namespace hote {

class Bureau;

// Makes the desk know the window of every form. A ContratWidget does it for its own desk; a host
// that wants a window of its own for a form registers that one first.
void enregistrerFormes(Bureau& bureau);

}  // namespace hote
