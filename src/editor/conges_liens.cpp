#include "editor/conges_liens.h"

#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/requete.h"

namespace editor {

namespace {

namespace C = data::Contrat;
using rules::SensLien;

constexpr SensLien Sens[] = {SensLien::Report, SensLien::Reprise};

}  // namespace

LiensConges::LiensConges(screen::Frame& page) : page_(page) {
  for (const Cote& cote : Cotes()) screen::Montrer({&cote.coche, &cote.texte}, false);
}

std::vector<LiensConges::Cote> LiensConges::Cotes() {
  return {{SensLien::Report, Cac_ReportConges, Etq_ReportConges},
          {SensLien::Reprise, Cac_RepriseConges, Etq_RepriseConges}};
}

void LiensConges::Afficher(session::Dossier& dossier) {
  for (const Cote& cote : Cotes()) {
    const int attribut = rules::attributLien(cote.sens);
    const std::string cle = dossier.ItemContrat(attribut);
    data::CItem lie;
    const bool existe = !cle.empty() && dossier.Session.F_CONTRAT.Lire(cle, lie);
    if (!cle.empty() && !existe) {
      dossier.ItemContrat.Set(attribut, "");
      dossier.Initial.Set(attribut, "");
    }
    const bool modifiable = existe && rules::Verif_ReportModifiable(*dossier.Session.Db,
                                                                    dossier.ItemContrat, cote.sens);
    const std::string texte = existe ? rules::texteLien(cote.sens, lie) : "";
    cote.coche.SetLibelle(modifiable ? texte : "");
    cote.texte.SetLibelle(modifiable ? "" : texte);
    cote.coche.SetValue(modifiable ? 1 : 0);
    cote.coche.SetVisible(modifiable);
    cote.texte.SetVisible(existe && !modifiable);
  }
}

void LiensConges::Ecrire(session::Dossier& dossier) const {
  const std::pair<SensLien, const screen::CheckBox*> cotes[] = {
      {SensLien::Report, &Cac_ReportConges}, {SensLien::Reprise, &Cac_RepriseConges}};
  for (const auto& [sens, coche] : cotes) {
    const int attribut = rules::attributLien(sens);
    const bool defait = coche->Visible() && coche->Value() == 0;
    dossier.ItemContrat.Set(attribut, defait ? "" : dossier.Initial.Vue(attribut));
  }
}

std::vector<std::string> RompreParBulletin(session::Dossier& dossier) {
  std::vector<std::string> messages;
  data::CItem& contrat = dossier.ItemContrat;
  if (contrat.Vue(C::DernierBulletin) == dossier.Initial.Vue(C::DernierBulletin)) return messages;
  for (const SensLien sens : Sens) {
    const std::string cle = contrat(rules::attributLien(sens));
    if (cle.empty()) continue;
    data::CItem lie;
    const bool existe = dossier.Session.F_CONTRAT.Lire(cle, lie);
    if (existe && !rules::bulletinRompt(contrat, lie)) continue;
    contrat.Set(rules::attributLien(sens), "");
    if (existe) messages.push_back(rules::texteLienRompu(sens, lie));
  }
  return messages;
}

void RompreEnRetour(const session::Dossier& dossier) {
  for (const SensLien sens : Sens) {
    const std::string cle = dossier.Initial(rules::attributLien(sens));
    if (cle.empty() || dossier.ItemContrat.Vue(rules::attributLien(sens)) == cle) continue;
    data::CItem lie;
    const int retour = rules::attributRetour(sens);
    if (!dossier.Session.F_CONTRAT.Lire(cle, lie) || lie.Vue(retour) != dossier.CleContratCourant) {
      continue;
    }
    lie.Set(retour, "");
    lie.DBWriteU();
  }
}

void Nettoyer_LiensConges(const session::Dossier& dossier, const std::string& cle) {
  const data::CItem lignes = data::Requete(data::fichier::CONTRAT, "SELECT")
                                 .Avec(C::CongesReportesSur, "=", data::citer(cle))
                                 .OuAvec(C::CongesReprisDe, "=", data::citer(cle))
                                 .Lire(*dossier.Session.Db, {data::Cle});
  for (int i = 1; i <= lignes.DCount(); ++i) {
    data::CItem lie;
    if (!dossier.Session.F_CONTRAT.Lire(lignes(i, 1), lie)) continue;
    const bool reporte = lie.Vue(C::CongesReportesSur) == cle;
    lie.Set(reporte ? C::CongesReportesSur : C::CongesReprisDe, "");
    lie.DBWriteU();
  }
}

}  // namespace editor
