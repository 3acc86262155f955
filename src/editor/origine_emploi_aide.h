#pragma once
// The agreement of a subsidised employment: the date of its signature, and its number, which there
// is only with the date.

#include <vector>

#include "data/layouts/contrat.h"
#include "screen/field.h"
#include "session/sourdine.h"
#include "session/zones.h"

namespace editor {

class EmploiAideOrigine {
 public:
  // The fields stand on `page`; `sourdine` is their tab's.
  EmploiAideOrigine(screen::Frame& page, session::Sourdine& sourdine) : page_(page) {
    Txt_DateSignConvEmplAide.Change = sourdine.SiAudible([this] { Adapter(); });
  }

  std::vector<session::Zone> Zones() {
    return {session::jour(Txt_DateSignConvEmplAide, data::Contrat::DateConventionAidee),
            session::texte(Txt_NumRef, data::Contrat::ReferenceConventionAidee)};
  }
  // Without its date there is nothing to refer to.
  void Adapter() {
    if (!Signe()) Txt_NumRef.SetText("");
    screen::Activer({&Etq_NumRef, &Txt_NumRef}, Signe());
  }
  bool ReferenceManque() const { return Signe() && Txt_NumRef.Text().empty(); }

 private:
  bool Signe() const { return !Txt_DateSignConvEmplAide.Text().empty(); }

  screen::Frame& page_;
  screen::Label Etq_DateSignConvEmplAide{page_, "Etq_DateSignConvEmplAide",
                                         "Date signature convention emploi aidé"};
  screen::TextField Txt_DateSignConvEmplAide{page_, "Txt_DateSignConvEmplAide", 10};
  screen::Label Etq_NumRef{page_, "Etq_NumRef", "N° de référence"};
  screen::TextField Txt_NumRef{page_, "Txt_NumRef", 30};
};

}  // namespace editor
