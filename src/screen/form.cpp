#include "screen/form.h"

#include <algorithm>
#include <stdexcept>

#include "data/storage.h"

namespace screen {

namespace {

// One screen thread: one count for all forms.
unsigned long interruptions = 0;

// A user is asked something: whatever was under way goes on after the answer, with what stands
// then.
void interrompre() {
  ++interruptions;
  data::Route::Interrompre();
}

}  // namespace

// The time in which LostFocus of the active field runs. Ends with the scope, also when an error
// rises from the handler.
class Form::Depart {
 public:
  Depart(Form& form, Field& destination) : form_(form), vie_(form.vie_) {
    form_.destination_ = &destination;
  }
  ~Depart() {
    if (!vie_.expired()) form_.destination_ = nullptr;
  }
  Depart(const Depart&) = delete;
  Depart& operator=(const Depart&) = delete;

 private:
  Form& form_;
  std::weak_ptr<const void> vie_;
};

Form::Form(Platform& platform, std::string nom, std::string titre)
    : platform_(platform), nom_(std::move(nom)), titre_(std::move(titre)) {}

Form::~Form() = default;

void Form::Register(Field& champ) {
  if (Find(champ.Nom()) != nullptr) {
    throw std::logic_error("Form " + nom_ + ": two fields are named " + champ.Nom());
  }
  fields_.push_back(&champ);
}

Field* Form::Find(std::string_view nom) const {
  const auto trouve =
      std::find_if(fields_.begin(), fields_.end(), [&](Field* f) { return f->Nom() == nom; });
  return trouve == fields_.end() ? nullptr : *trouve;
}

void Form::Show() {
  if (visible_) return;
  visible_ = true;
  Activate();
}

void Form::ShowModal() {
  if (visible_) throw std::logic_error("Form " + nom_ + " is shown already");
  // Hides at the end of the show, whatever ended it.
  struct Fin {
    Form& form;
    std::weak_ptr<const void> vie;
    ~Fin() {
      if (!vie.expired()) form.Hide();
    }
  } const fin{*this, vie_};
  visible_ = true;
  interrompre();
  Activate();
  if (!fin.vie.expired() && visible_) platform_.modales.Attendre(*this);
}

void Form::Hide() {
  visible_ = false;
  active_ = nullptr;
}

bool Form::Close() {
  if (!QueryUnload()) return false;
  Hide();
  return true;
}

Reponse Form::MessageBox(const std::string& texte, Boutons boutons, Icone icone,
                         const std::string& titre) {
  interrompre();
  return platform_.messages.Montrer({texte, boutons, icone, titre});
}

Reponse Form::Demander(const std::string& texte, Boutons boutons, Icone icone, Reponse prudente,
                       const std::string& titre) {
  interrompre();
  return platform_.messages.Montrer({texte, boutons, icone, titre, prudente});
}

unsigned long Form::Interruptions() {
  return interruptions;
}

void Form::VerifierActif() {
  if (active_ != nullptr && !active_->Disponible()) active_ = nullptr;
}

bool Form::MoveFocus(Field& champ) {
  if (!champ.Focalisable() || !champ.Disponible()) return false;
  if (destination_ != nullptr) {
    destination_ = &champ;
    return false;
  }
  if (&champ == active_) return true;
  if (!visible_) {
    active_ = &champ;
    return true;
  }
  const auto vie = Vie();
  Field* arrivee = &champ;
  if (Field* const quitte = active_) {
    const Depart depart(*this, champ);
    fire(quitte->LostFocus);
    if (vie.expired() || !visible_) return false;
    arrivee = destination_;
    if (arrivee == active_ || !arrivee->Disponible()) return false;
  }
  active_ = arrivee;
  fire(arrivee->GotFocus);
  return !vie.expired() && arrivee == &champ && active_ == &champ;
}

bool Form::MoveFocusNext() {
  const auto nombre = fields_.size();
  const auto actif = std::find(fields_.begin(), fields_.end(), active_);
  const auto debut = actif == fields_.end() ? 0 : actif - fields_.begin() + 1;
  for (std::size_t i = 0; i < nombre; ++i) {
    Field& champ = *fields_[(static_cast<std::size_t>(debut) + i) % nombre];
    if (champ.Focalisable() && champ.Disponible()) return MoveFocus(champ);
  }
  return false;
}

}  // namespace screen
