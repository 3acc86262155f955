#pragma once
// The last tab on a contract of 01/03/2024, with the verbs that its tests share.

#include "editor/editeur_essai.h"

namespace essai {

class Fin : public Editeur {
 protected:
  Fin() {
    // Dismissal, negotiated termination, fault, resignation; "60" is not used any more.
    data::CItem motifs = db.OpenFile("TABLES").NewItem("FINCONTRAT");
    motifs.Set(2, valeurs("11|43|92|59|60"));
    motifs.Set(3, valeurs("Licenciement|Rupture conventionnelle|Faute|Démission|Ancien"));
    motifs.Set(5, valeurs("||||O"));
    motifs.DBWrite();
  }

  // The contract on file from 01/03/2024, and the last tab.
  void ouvrirFin(Attributs autres = {}) {
    autres.merge(Attributs{{C::DateDebut, jour("01/03/2024")},
                           {C::DateEffet, jour("01/03/2024")},
                           {C::OrganismeRetraite, "001A"}});
    ouvrirContrat(complet(autres));
    onglet(editor::FinContrat);
  }
  // An end of which all stands on file: a dismissal with two months paid.
  static Attributs Licencie() {
    return {{C::DateFin, jour("14/10/2026")},
            {C::MotifFin, "11"},
            {C::DateNotification, jour("15/08/2026")},
            {C::DernierJourTravaille, jour("15/08/2026")},
            {C::PreavisPayeDu, jour("15/08/2026")},
            {C::PreavisPayeAu, jour("14/10/2026")},
            {C::DernierBulletin, "202608"},
            {C::PrimePrecarite, "0"},
            {C::CalculLicenciement, "1"}};
  }
  // Types the notification and chooses the reason of that label.
  void notifier(const std::string& date, const std::string& motif) {
    remplir(txt("DatNotifContrat"), date);
    auto& liste = cbo("MotifFinContrat");
    screen::User(*editeur).Derouler(liste);
    const auto& lignes = liste.Rows();
    choisir(liste,
            static_cast<int>(std::find(lignes.begin(), lignes.end(), motif) - lignes.begin()));
  }
  // "end, paid from-to, last payslip".
  std::string fin() {
    return txt("DateFinContrat").Text() + ", " + (opt("Paye").Value() ? "payé " : "") +
           txt("DebPayeContrat").Text() + "-" + txt("FinPayeContrat").Text() + ", " +
           txt("DernBullContrat").Text();
  }
  // Those attributes of the contract in hand, each before a blank.
  std::string lu(const std::vector<int>& attributs) {
    std::string texte;
    for (const int a : attributs) texte += c()(a) + " ";
    return texte;
  }
};

}  // namespace essai
