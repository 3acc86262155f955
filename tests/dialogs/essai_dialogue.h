#pragma once
// A session on a store in memory and a host without a display, with the few verbs that the tests of
// the dialogs speak: records in, a user on a shown dialog, message boxes out as short texts.

#include <gtest/gtest.h>

#include <functional>

#include "screen/headless/hote.h"
#include "screen/user.h"
#include "session/dossier.h"
#include "storage/memory.h"
#include "support/faulty_storage.h"
#include "support/table.h"

namespace dialogs {

using screen::Acte;
using screen::Reponse;

class EssaiDialogue : public ::testing::Test {
 protected:
  EssaiDialogue() {
    article("PERIODESPAIE", "1", "1=202611");
    session.Db = &db;
    session.OuvrirFichiers();
  }

  // Attributes are written "1=a^b; 12=c".
  static std::string lisible(std::string texte) {
    for (char& c : texte) c = c == data::SepValeur ? '^' : c;
    return texte;
  }
  void article(const char* fichier, const std::string& cle, const std::string& attributs) {
    data::CItem item = db.OpenFile(fichier).NewItem(cle);
    for (const auto& [a, texte] : support::attributs(attributs)) item.Set(a, texte);
    item.DBWrite();
  }
  // The records of a table of dialogues.md.
  void articles(const char* titre) {
    for (const auto& [fichier, cle, attributs] : support::table<3>("dialogs/dialogues.md", titre)) {
      article(fichier.c_str(), cle, attributs);
    }
  }
  void contrat(const std::string& attributs) {
    dossier.ItemContrat = data::CItem();
    for (const auto& [a, texte] : support::attributs(attributs)) dossier.ItemContrat.Set(a, texte);
  }
  // Those attributes of the contract in hand, "9=a^b 113=B".
  std::string lu(const std::vector<int>& attributs) {
    std::string texte;
    for (const int a : attributs) {
      if (dossier.ItemContrat.Vue(a).empty()) continue;
      texte +=
          (texte.empty() ? "" : " ") + std::to_string(a) + "=" + lisible(dossier.ItemContrat(a));
    }
    return texte;
  }

  // Shows the form to a user who must leave it closed.
  void montrer(screen::Form& form, const std::function<void(screen::User&)>& actes) {
    hote.modales.Prevoir([&](screen::Form& montree) {
      screen::User user(montree);
      actes(user);
    });
    form.ShowModal();
  }
  // The oldest box not seen yet: its icon's first letter, its buttons when it asks, its text.
  std::string message() {
    const auto boite = hote.messages.Prendre();
    if (!boite) return "";
    EXPECT_EQ(boite->titre.empty(), boite->texte == sansTitre);
    EXPECT_TRUE(boite->titre.empty() || boite->titre == "Message KORVALDIS");
    const char icone = "-IQEA"[static_cast<int>(boite->icone)];
    const char* const boutons[] = {"", "OA", "ON", "ONA"};
    return icone + std::string(boutons[static_cast<int>(boite->boutons)]) + " " + boite->texte;
  }
  // Clicks, and gives the box that this has shown.
  std::string clic(screen::User& user, screen::Field& champ) {
    user.Cliquer(champ);
    return message();
  }
  static std::string actif(const screen::Form& form) {
    return form.Active() != nullptr ? form.Active()->Nom() : "-";
  }

  // The one box without a title; "" for none.
  std::string sansTitre = "Etes-vous sûr de vouloir quitter cette création ?";

  // 22/11/2026.
  screen::headless::Hote hote{21511};
  storage::MemoryStorage memoire{hote.poste};
  std::shared_ptr<support::FaultyStorage> store = std::make_shared<support::FaultyStorage>(memoire);
  data::Db db{store};
  session::Session session{hote.poste};
  session::Dossier dossier{session};
  session::DroitsUniformes droits{2};
  session::DroitsUniformes lecture{1};
};

}  // namespace dialogs
