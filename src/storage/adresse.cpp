#include "storage/adresse.h"

#include <libpq-fe.h>

#include <map>
#include <memory>
#include <string_view>

namespace storage {

namespace {

constexpr std::string_view kSchemas[] = {"postgresql://", "postgres://"};
// What an address in libpq's other form begins with.
constexpr std::string_view kDebuts[] = {
    "host=", "hostaddr=", "dbname=", "port=", "user=", "service="};
constexpr std::string_view kSecrets[] = {"password", "sslpassword"};

// For a place in a URI. What a name of the trade holds is left readable.
std::string encoder(std::string_view texte) {
  constexpr std::string_view kChiffres = "0123456789ABCDEF";
  std::string encode;
  for (const char c : texte) {
    const auto octet = static_cast<unsigned char>(c);
    const bool libre = (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
                       std::string_view("-._~/,").find(c) != std::string_view::npos;
    if (libre) {
      encode += c;
    } else {
      encode.append("%").append(1, kChiffres[octet >> 4]).append(1, kChiffres[octet & 0xF]);
    }
  }
  return encode;
}

using Valeurs = std::map<std::string, std::string>;

std::string prendre(Valeurs& valeurs, const char* nom) {
  const auto noeud = valeurs.extract(nom);
  return noeud ? noeud.mapped() : std::string();
}

std::string enUri(Valeurs valeurs) {
  std::string uri = "postgresql://";
  const std::string utilisateur = prendre(valeurs, "user");
  if (!utilisateur.empty()) uri += encoder(utilisateur) + "@";
  // A folder, where the server's socket stands, is no host of a URI; nor are several hosts here.
  const auto hote = valeurs.find("host");
  if (hote != valeurs.end() && hote->second.find_first_of("/,:") == std::string::npos) {
    uri += encoder(prendre(valeurs, "host"));
    const std::string port = prendre(valeurs, "port");
    if (!port.empty()) uri += ":" + encoder(port);
  }
  uri += "/" + encoder(prendre(valeurs, "dbname"));
  char lien = '?';
  for (const auto& [nom, valeur] : valeurs) {
    uri.append(1, lien).append(nom).append("=").append(encoder(valeur));
    lien = '&';
  }
  return uri;
}

}  // namespace

bool estAdresseServeur(const std::string& base) {
  for (const std::string_view schema : kSchemas) {
    if (base.starts_with(schema)) return true;
  }
  for (const std::string_view debut : kDebuts) {
    if (base.starts_with(debut)) return true;
  }
  return false;
}

std::string adresseServeur(const std::string& serveur, const std::string& base,
                           const std::string& compte) {
  Valeurs valeurs{{"host", serveur}, {"dbname", base}, {"user", compte}};
  // One colon: an address in numbers has several, and a port of its own parameter.
  const std::size_t port = serveur.find(':');
  if (port != std::string::npos && port == serveur.rfind(':') && serveur.front() != '/') {
    valeurs["host"] = serveur.substr(0, port);
    valeurs["port"] = serveur.substr(port + 1);
  }
  return enUri(std::move(valeurs));
}

std::string sansMotDePasse(const std::string& base) {
  if (!estAdresseServeur(base)) return base;
  const std::unique_ptr<PQconninfoOption, decltype(&PQconninfoFree)> lues(
      PQconninfoParse(base.c_str(), nullptr), PQconninfoFree);
  if (lues == nullptr) return kAdresseIllisible;
  Valeurs valeurs;
  for (const PQconninfoOption* option = lues.get(); option->keyword != nullptr; ++option) {
    if (option->val != nullptr) valeurs[option->keyword] = option->val;
  }
  for (const std::string_view secret : kSecrets) valeurs.erase(std::string(secret));
  return enUri(std::move(valeurs));
}

}  // namespace storage
