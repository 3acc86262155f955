// Leaving a field before the act that leaves it: a refusal swallows the act, whatever it is.

#include "essai.h"

namespace {

using essai::Apres;

class Focus : public essai::Essai {
 protected:
  // Acts that leave Txt_Date, the events that follow when the leave is granted, where they lead.
  static auto departs() { return support::table<3>("hote/parcours.md", "Quitter un champ"); }
  // What an act must not have changed.
  std::string etat() {
    const int fleche = w<QSpinBox>("Bdh_N").value();
    return std::to_string(w<QTabWidget>("Ong").currentIndex()) + "/" +
           std::to_string(w<QListWidget>("Lst_A").selectedItems().size()) +
           (w<QRadioButton>("Opt_2").isChecked() ? "o" : "") +
           (w<QCheckBox>("Cac_X").isChecked() ? "c" : "") + (fleche != 0 ? "f" : "") + "/" +
           focus();
  }
};

TEST_F(Focus, RefusedLeaveSwallowsTheAct) {
  aller("Txt_Date");
  taper("?");
  for (const auto& [acte, evenements, arrivee] : departs()) {
    SCOPED_TRACE(acte);
    faire(acte);
    EXPECT_EQ(forme.Prendre(), "-Txt_Date");
    EXPECT_EQ(actif(), "Txt_Date");
    EXPECT_EQ(etat(), "0/0/Txt_Date");
  }
}

// Neither the drag nor the release of a press that was swallowed counts.
TEST_F(Focus, RefusedLeaveSwallowsThePressWhole) {
  // A second click on a row makes the list act on the release.
  for (int i = 0; i < 2; ++i) ligne("Lst_A", 1);
  aller("Txt_Date");
  taper("?");
  auto& a = w<QListWidget>("Lst_A");
  const auto place = [&](int rang) {
    return a.viewport()->mapTo(racine.get(), a.visualItemRect(a.item(rang)).center());
  };
  QWindow* const fenetre = racine->windowHandle();
  for (const int rang : {3, 1}) {
    QTest::mousePress(fenetre, Qt::LeftButton, {}, place(1));
    QTest::mouseMove(fenetre, place(rang));
    QTest::mouseRelease(fenetre, Qt::LeftButton, {}, place(rang));
    QCoreApplication::processEvents();
    EXPECT_EQ(forme.Prendre(), "-Txt_Date");
    EXPECT_EQ(a.currentRow(), 1);
  }
}

// The wait cursor stands for the time of the work, but not over a question.
TEST_F(Focus, WaitCursorMakesRoomForABox) {
  const auto montre = [] {
    const QCursor* const curseur = QGuiApplication::overrideCursor();
    return curseur == nullptr ? Qt::ArrowCursor : curseur->shape();
  };
  screen::Curseur& curseur = bureau.Plateforme().curseur;
  std::vector<Qt::CursorShape> vues;
  const Apres clerc([&](QWidget& boite) {
    vues.push_back(montre());
    boite.close();
  });
  forme.SurOk = [&] {
    curseur.Attente(true);
    vues.push_back(montre());
    forme.MessageBox("Sûr ?");
    vues.push_back(montre());
    curseur.Attente(false);
  };
  cliquer(w("Cmd_OK"));
  vues.push_back(montre());
  EXPECT_EQ(vues, (std::vector{Qt::WaitCursor, Qt::ArrowCursor, Qt::WaitCursor, Qt::ArrowCursor}));
}

// During long work the form takes nothing, and the keyboard is where it was afterwards.
TEST_F(Focus, DisabledFormDropsTheAct) {
  aller("Txt_Date");
  for (const auto& [acte, evenements, arrivee] : departs()) {
    SCOPED_TRACE(acte);
    forme.SetEnabled(false);
    faire(acte);
    taper("z");
    racine->close();
    EXPECT_EQ(forme.Prendre(), "");
    forme.SetEnabled(true);
    liaison->Pousser();
    EXPECT_EQ(actif(), "Txt_Date");
    EXPECT_EQ(etat(), "0/0/Txt_Date");
    EXPECT_EQ(w<QLineEdit>("Txt_Date").text(), "");
  }
}

TEST_F(Focus, GrantedLeaveComesBeforeTheAct) {
  for (const auto& [acte, evenements, arrivee] : departs()) {
    SCOPED_TRACE(acte);
    faire("onglet 0");
    aller("Txt_Date");
    faire(acte);
    EXPECT_EQ(forme.Prendre(), "-Txt_Date" + (evenements.empty() ? "" : " " + evenements));
    EXPECT_EQ(actif(), arrivee);
  }
}

TEST_F(Focus, BoxDuringTheLeaveDropsTheClick) {
  aller("Txt_Date");
  taper("boite");
  Apres clerc([](QWidget& boite) { QTest::keyClick(&boite, Qt::Key_Escape); });
  cliquer(w("Cmd_OK"));
  EXPECT_EQ(clerc.Fois(), 1);
  EXPECT_EQ(forme.Prendre(), "-Txt_Date");
}

TEST_F(Focus, KeysMoveAndPress) {
  for (const char* const titre :
       {"Tab suit l'ordre des champs", "Entrée appuie sur le bouton actif", "Ctrl+Entrée"}) {
    parcourir(titre);
  }
}

TEST_F(Focus, NothingChangesThatCannotBeSaved) {
  parcourir("En consultation");
}

// A field that its own click disables loses the keyboard to another, which the model then enters.
TEST_F(Focus, DisabledFieldHandsTheKeyboardOn) {
  forme.SurOk = [this] { forme.Cmd_OK.SetEnabled(false); };
  cliquer(w("Cmd_OK"));
  EXPECT_FALSE(w("Cmd_OK").isEnabled());
  ASSERT_NE(actif(), "");
  EXPECT_EQ(actif(), focus());
}

TEST_F(Focus, ClosingAsksTheModel) {
  forme.fermable = false;
  aller("Txt_Num");
  for (int i = 0; i < 2; ++i) {
    i == 0 ? touche(Qt::Key_Escape) : static_cast<void>(racine->close());
    EXPECT_TRUE(racine->isVisible());
    EXPECT_EQ(actif(), "Txt_Num");
  }
  forme.fermable = true;
  touche(Qt::Key_Escape);
  EXPECT_FALSE(racine->isVisible());
  EXPECT_FALSE(forme.Visible());
}

// A handler shows a modal form, which shows a box; the rest of the handler runs after both.
TEST_F(Focus, ModalShowBlocksInsideTheHandler) {
  std::string dedans;
  forme.SurOk = [&] {
    forme.SurOk = nullptr;
    essai::Frm_Essai autre(bureau.Plateforme());
    autre.Txt_Date.SetFocus();
    autre.SurOk = [&] {
      const auto reponse = autre.MessageBox("Sûr ?", screen::Boutons::OuiNon);
      if (reponse == screen::Reponse::Non) autre.Hide();
    };
    autre.ShowModal();
    dedans = autre.journal;
  };
  Apres clerc([&](QWidget& fenetre) {
    if (qobject_cast<QMessageBox*>(&fenetre) != nullptr) {
      QTest::keyClick(&fenetre, Qt::Key_Escape);
      return;
    }
    // The form below takes no click.
    option("Cac_X");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_8);
    QTest::keyClick(fenetre.windowHandle(), Qt::Key_V, Qt::AltModifier);
  });
  cliquer(w("Cmd_OK"));
  EXPECT_EQ(clerc.Fois(), 2);
  EXPECT_EQ(dedans, "-Txt_Date Cmd_OK");
  EXPECT_EQ(forme.Prendre(), "-Txt_Date Cmd_OK");
  EXPECT_EQ(QApplication::activeWindow(), racine.get());
}

// The window of a form that follows a box at once still belongs to the form below.
TEST_F(Focus, ModalShowAfterABoxStandsOnItsForm) {
  forme.SurOk = [&] {
    forme.MessageBox("D'abord");
    essai::Frm_Essai(bureau.Plateforme()).ShowModal();
  };
  std::vector<QWindow*> dessous;
  Apres clerc([&](QWidget& fenetre) {
    dessous.push_back(fenetre.windowHandle()->transientParent());
    QTest::keyClick(&fenetre, Qt::Key_Escape);
  });
  cliquer(w("Cmd_OK"));
  EXPECT_EQ(dessous, std::vector<QWindow*>(2, racine->windowHandle()));
}

// The release of the double click comes when the form that it opened has gone.
TEST_F(Focus, ModalShowFromADoubleClick) {
  forme.SurDouble = [&] { essai::Frm_Essai(bureau.Plateforme()).ShowModal(); };
  Apres clerc([](QWidget& fenetre) { QTest::keyClick(&fenetre, Qt::Key_Escape); });
  auto& a = w<QListWidget>("Lst_A");
  const QPoint place = a.viewport()->mapTo(racine.get(), a.visualItemRect(a.item(2)).center());
  QTest::mouseDClick(racine->windowHandle(), Qt::LeftButton, {}, place);
  QCoreApplication::processEvents();
  EXPECT_EQ(clerc.Fois(), 1);
  EXPECT_EQ(forme.Prendre(), "-Txt_Date Lst_A2 Lst_A2 Lst_A!");
  option("Cac_X");
  EXPECT_EQ(forme.Prendre(), "-Lst_A Cac_X");
}

// The host's own widgets take the keyboard without an event of the form, which goes on later.
TEST_F(Focus, HostKeepsItsOwnWidgets) {
  QWidget hote;
  QVBoxLayout disposition(&hote);
  QLineEdit recherche;
  disposition.addWidget(racine.get());
  disposition.addWidget(&recherche);
  hote.show();
  hote.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&hote));
  const auto cliquerHote = [&](QWidget& widget) {
    QTest::mouseClick(hote.windowHandle(), Qt::LeftButton, {},
                      widget.mapTo(&hote, widget.rect().center()));
    QCoreApplication::processEvents();
  };
  cliquerHote(w("Txt_Date"));
  taper("?");
  forme.Prendre();
  cliquerHote(recherche);
  taper("dur");
  liaison->Pousser();
  EXPECT_TRUE(recherche.hasFocus());
  EXPECT_EQ(recherche.text(), "dur");
  EXPECT_EQ(forme.Prendre() + actif(), "Txt_Date");
  cliquerHote(w("Cmd_OK"));
  EXPECT_EQ(forme.Prendre() + "/" + focus(), "-Txt_Date/Txt_Date");
  forme.Txt_Date.SetText("");
  forme.Cmd_OK.SetFocus();
  liaison->Pousser();
  QTest::keyClick(hote.windowHandle(), Qt::Key_Tab);
  EXPECT_TRUE(recherche.hasFocus());
  racine->setParent(nullptr);
}

TEST_F(Focus, SharedAccessKeyOnlyMovesTheFocus) {
  forme.Cac_X.SetLibelle("&Vrai");
  liaison->Pousser();
  aller("Txt_Date");
  touche(Qt::Key_V, Qt::AltModifier);
  EXPECT_EQ(forme.Prendre(), "-Txt_Date");
  EXPECT_EQ(actif(), focus());
}

// The first Esc gives back what the field held when it was entered; the form stays.
TEST_F(Focus, EscapePutsBackWhatTheFieldHeld) {
  aller("Txt_Num");
  taper("12");
  aller("Txt_Date");
  aller("Txt_Num");
  taper("345");
  EXPECT_NE(w<QLineEdit>("Txt_Num").text(), "12");
  touche(Qt::Key_Escape);
  EXPECT_EQ(w<QLineEdit>("Txt_Num").text(), "12");
  EXPECT_TRUE(forme.Visible());
  EXPECT_EQ(actif(), "Txt_Num");
}

// Esc and Enter on a question give the answer that loses nothing, where the screen names one.
TEST_F(Focus, HastyAnswersLoseNothing) {
  using screen::Boutons, screen::Icone, screen::Reponse;
  const struct {
    std::optional<Reponse> prudente;
    Reponse echap, entree;
  } cas[] = {{std::nullopt, Reponse::Non, Reponse::Oui},
             {Reponse::Non, Reponse::Non, Reponse::Non},
             {Reponse::Oui, Reponse::Oui, Reponse::Oui}};
  for (const auto& [prudente, echap, entree] : cas) {
    for (const auto& [cle, attendue] :
         {std::pair(Qt::Key_Escape, echap), {Qt::Key_Return, entree}}) {
      Apres clerc([cle = cle](QWidget& boite) { QTest::keyClick(&boite, cle); });
      const Reponse reponse =
          prudente ? forme.Demander("Quitter ?", Boutons::OuiNon, Icone::Question, *prudente)
                   : forme.MessageBox("Quitter ?", Boutons::OuiNon, Icone::Question);
      EXPECT_EQ(reponse, attendue);
    }
  }
}

TEST_F(Focus, StoreErrorIsToldAndTheFormGoesOn) {
  forme.SurOk = [] {
    throw data::StoreError(data::NumeroErreur::DisquePlein, "Le disque est plein.", "CONTRAT",
                           "00001001");
  };
  aller("Txt_Num");
  taper("12");
  forme.Prendre();
  QString texte;
  Apres clerc([&](QWidget& boite) {
    texte = static_cast<QMessageBox&>(boite).text();
    QTest::keyClick(&boite, Qt::Key_Return);
  });
  cliquer(w("Cmd_OK"));
  EXPECT_TRUE(texte.startsWith("Le disque est plein.")) << texte.toStdString();
  EXPECT_TRUE(texte.contains("CONTRAT") && texte.contains("00001001"));
  EXPECT_EQ(w<QLineEdit>("Txt_Num").text(), "12");
  forme.SurOk = nullptr;
  cliquer(w("Cmd_OK"));
  EXPECT_EQ(forme.Prendre(), "-Txt_Num Cmd_OK Cmd_OK");
}

TEST_F(Focus, RightClickShowsTheMenuOfTheForm) {
  Apres clerc([](QWidget& menu) {
    QTest::keyClick(&menu, Qt::Key_Down);
    QTest::keyClick(&menu, Qt::Key_Return);
  });
  cliquer(w("Etq_Nom"), {}, Qt::RightButton);
  EXPECT_EQ(forme.Prendre(), "Mnu_Sommaire");
  EXPECT_EQ(clerc.Fois(), 1);
}

}  // namespace
