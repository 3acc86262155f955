#include "fenetre/captures_liste.h"

#include <QLineEdit>

#include "control/ctr_contrat.h"
#include "fenetre/album.h"
#include "fenetre/fenetre_hote.h"
#include "fenetre/menu_contrat.h"
#include "widget/contrat_widget.h"

namespace hote {

void capturerEtatsListe(Album& album, FenetreHote& fenetre) {
  ContratWidget& ecran = *fenetre.Ecran();
  ecran.Montrer(ContratWidget::Filtre::Tous);
  ecran.Controle().Lst_DatDebContrat.SetListIndex(0);
  ecran.Rechercher();
  album.Prendre(fenetre, "liste-choisie");

  auto* const menu = fenetre.findChild<MenuContrat*>();
  menu->popup(fenetre.mapToGlobal(QPoint(fenetre.width() / 2, fenetre.height() / 3)));
  album.Prendre(*menu, "menu-contrat");
  menu->hide();

  auto* const saisie = fenetre.findChild<QLineEdit*>("rechercheAidant");
  saisie->setText("mar");
  album.Prendre(fenetre, "recherche");
  saisie->clear();

  // Some choice leaves nothing of whoever has no contract of each kind.
  for (const auto& [type, validite] :
       {std::pair("M", "A"), std::pair("M", "H"), std::pair("P", "H"), std::pair("P", "A")}) {
    ecran.Affiche(type, "", validite);
    if (ecran.Controle().Lst_Type.ListCount() == 0) break;
  }
  album.Prendre(fenetre, "liste-vide");

  fenetre.ChangerDroits(1);
  album.Prendre(fenetre, "liste-consultation");
  fenetre.ChangerDroits(session::Droit::Plein);
}

}  // namespace hote
