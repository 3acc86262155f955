#include "dialogs/frm_impression_a4.h"

#include "data/nombre.h"
#include "data/texte.h"
#include "dialogs/imprimantes.h"
#include "screen/touches.h"

namespace dialogs {

Frm_ImpressionA4::Frm_ImpressionA4(screen::Platform& platform)
    : Form(platform, "Frm_ImpressionA4", "Impression") {
  Cbo_ImpSelect.SetVisible(false);
  Bdh_NbCopies.SetMax(CopiesMax);
  Bdh_NbCopies.SetMin(1);
  Bdh_NbCopies.SetValue(1);
  Txt_NbCopies.SetText("1");
  Cbo_Imprimante.Click = [this] { Cbo_Imprimante_Click(); };
  Txt_NbCopies.KeyPress = screen::chiffresSeuls;
  Txt_NbCopies.Change = [this] { Txt_NbCopies_Change(); };
  Bdh_NbCopies.Change = [this] { Txt_NbCopies.SetText(std::to_string(Bdh_NbCopies.Value())); };
  Cmd_Ok.Click = [this] { Cmd_Ok_Click(); };
  Cmd_Annuler.Click = [this] { Sortir(true); };
  Remplir();
}

// The workstation's own printer comes first where it prints pages.
void Frm_ImpressionA4::Remplir() {
  const auto noms = Services().imprimante.Noms();
  const auto parDefaut = static_cast<std::size_t>(Services().imprimante.ParDefaut());
  const bool connue = parDefaut < noms.size();
  ImprimanteMatricielle = connue && estMatricielle(noms[parDefaut]);
  if (connue && !ImprimanteMatricielle) NomImprimante = noms[parDefaut];
  int choisie = 0;
  for (std::size_t i = 0; i < noms.size(); ++i) {
    if (estMatricielle(noms[i])) continue;
    if (NomImprimante.empty()) NomImprimante = noms[i];
    if (noms[i] == NomImprimante) choisie = Cbo_Imprimante.ListCount();
    Cbo_Imprimante.AddItem(noms[i]);
    Cbo_ImpSelect.AddItem(std::to_string(i));
  }
  Cbo_Imprimante.SetListIndex(choisie);
  Cmd_Ok.SetEnabled(Cbo_Imprimante.ListCount() > 0);
}

void Frm_ImpressionA4::Activate() {
  prete_ = true;
  Cmd_Ok.SetFocus();
}

void Frm_ImpressionA4::Cbo_Imprimante_Click() {
  if (Cbo_Imprimante.ListIndex() < 0) return;
  const int place = static_cast<int>(data::entier(Cbo_ImpSelect.List(Cbo_Imprimante.ListIndex())));
  Services().imprimante.Choisir(place);
  NomImprimante = Cbo_Imprimante.Text();
  Etq_LibOu.SetLibelle(Services().imprimante.Port(place));
  Etq_LibEtat.SetLibelle(place == Services().imprimante.ParDefaut() ? "Imprimante par défaut" : "");
  if (prete_) Cmd_Ok.SetFocus();
}

// The bar goes along with what is typed.
void Frm_ImpressionA4::Txt_NbCopies_Change() {
  const long long copies = data::entier(Txt_NbCopies.Text());
  if (copies >= 1 && copies <= CopiesMax) Bdh_NbCopies.SetValue(static_cast<int>(copies));
}

void Frm_ImpressionA4::Cmd_Ok_Click() {
  const long long copies = data::entier(Txt_NbCopies.Text());
  if (copies < 1 || copies > CopiesMax) {
    Services().indications.Montrer(Txt_NbCopies, "Donnez un nombre de copies de 1 à 99.");
    Txt_NbCopies.SetFocus();
    return;
  }
  NbCopies = static_cast<int>(copies);
  Cbo_Imprimante_Click();
  Sortir(false);
}

void Frm_ImpressionA4::Sortir(bool annulee) {
  ImpressionAnnulee = annulee;
  sortieAutorisee_ = true;
  Close();
}

}  // namespace dialogs
