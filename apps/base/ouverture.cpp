#include "base/ouverture.h"

#include "base/progres.h"

namespace base {

storage::OptionsOuverture optionsStockage(const Arguments& arguments) {
  storage::OptionsOuverture options;
  options.reseauAdmis = arguments.Donne("--meme-en-reseau");
  return options;
}

Base::Base(Contexte& contexte, const Arguments& arguments, Acces acces) {
  const std::string chemin = arguments.Texte("BASE");
  storage::OptionsOuverture options = optionsStockage(arguments);
  options.lecture = acces == Acces::Lecture;
  Progres progres(contexte.erreurs, contexte.terminal, "Index, articles lus");
  options.avanceIndex = [&](long lus) { progres.Avance(lus); };
  stockage_ = storage::ouvrir(chemin, poste_, options);
  progres.Efface();
  if (!stockage_->Avis().empty()) contexte.erreurs << stockage_->Avis() << '\n';
}

}  // namespace base
