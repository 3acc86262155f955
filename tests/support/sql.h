#pragma once
// SQL on a data file behind the store's back, through the layer of sealed pages.

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <cstdlib>
#include <string>

#include "storage/sqlite_pages.h"

namespace support {

// The first number of the first row, 0 without one.
inline long sql(const std::string& chemin, const std::string& requete) {
  const auto premier = [](void* nombre, int, char** textes, char**) {
    *static_cast<long*>(nombre) = std::atol(textes[0]);
    return 0;
  };
  long nombre = 0;
  sqlite3* db = nullptr;
  EXPECT_EQ(sqlite3_open_v2(chemin.c_str(), &db, SQLITE_OPEN_READWRITE, storage::nomVfsPages()),
            SQLITE_OK);
  EXPECT_EQ(sqlite3_exec(db, requete.c_str(), premier, &nombre, nullptr), SQLITE_OK)
      << sqlite3_errmsg(db);
  sqlite3_close(db);
  return nombre;
}

}  // namespace support
