#pragma once
// The pay tab on its records: profiles of both kinds, charge headings, bank details, open pay
// periods November and December 2026, four activities in entity 001.

#include "editor/editeur_essai.h"

namespace essai {

class Paie : public Editeur {
 protected:
  Paie() {
    article("PERIODESPAIE", "1", {{1, "202611"}, {2, "202612"}});
    article("ACTIVITES", "001GAR", {{1, "Garde"}, {12, "P"}});
    article("ACTIVITES", "001BUR", {{1, "Bureau"}, {12, "A"}});
    article("PROFIL", "P03", {{1, "Horaire"}, {3, valeurs("R01|R28")}, {4, "0"}});
    article("RUBCHARGE", "R28", {{1, "Abattement"}, {28, "1"}});
    article("TABLES", "CARTEORANGE", {{2, valeurs("1|2")}, {3, valeurs("Zones 1 et 2|Zone 3")}});
  }

  // The contract 00001001, shown on the pay tab.
  void ouvrirPaie(const Attributs& autres = {}) {
    ouvrirContrat(autres);
    onglet(editor::ElementsPaie);
  }
  // A new contract of entity 001, shown on the pay tab.
  void creerPaie(bool administratif, const char* debut = "01/12/2026") {
    creer();
    if (administratif) cliquer(opt("Administratif"));
    taper(txt("ConvColContrat"), "01");
    taper(txt("AssocContrat"), "001");
    taper(txt("EmplEtabContrat"), "001");
    remplir(txt("DatDebContrat"), debut);
    caracteriser();
    onglet(editor::ElementsPaie);
  }
  void double_(int ligne) { screen::User(*editeur).DoubleCliquer(lst("ActiviteContrat"), ligne); }
  // An activity, its share, OK.
  void repartir(const std::string& activite, const std::string& part) {
    const auto& lignes = cbo("Activite").Rows();
    for (int i = 0; i < cbo("Activite").ListCount(); ++i) {
      if (lignes[static_cast<std::size_t>(i)] == activite) choisir(cbo("Activite"), i);
    }
    taper(txt("RepartActContrat"), part);
    cliquer(cmd("OKActivite"));
  }
  // "Domicile 60,00|Garde 40,00 [décembre 2026]"
  std::string repartition() {
    std::string texte;
    for (int i = 0; i < lst("ActiviteContrat").ListCount(); ++i) {
      texte += (i > 0 ? "|" : "") + lst("ActiviteContrat").List(i) + " " +
               lst("RepartActContrat").List(i);
    }
    return texte + " [" + cbo("PeriodeEffetAffichage").Text() + "]";
  }
  // The six attributes of the splits as they stand in the contract in hand after a copy, or stored.
  static std::string parts(const data::CItem& item) {
    std::string texte;
    for (const int a :
         {C::Activites, C::PartsActivites, C::PeriodeEffet, C::PeriodesEffetAnterieures,
          C::ActivitesAnterieures, C::PartsAnterieures}) {
      std::string attribut = item(a).empty() ? "-" : item(a);
      for (char& c : attribut) {
        c = c == data::SepValeur ? '|' : c == data::SepSousValeur ? ',' : c;
      }
      texte += (texte.empty() ? "" : " ") + attribut;
    }
    return texte;
  }
  std::string range(const std::string& cleContrat = "00001001") {
    return parts(db.OpenFile("CONTRAT").Read(cleContrat));
  }
  static std::string multiple(std::string texte) {
    for (char& c : texte) c = c == '|' ? data::SepValeur : c == ',' ? data::SepSousValeur : c;
    return texte;
  }
};

}  // namespace essai
