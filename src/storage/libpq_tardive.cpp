// The client library of the server, loaded by the first call: most workstations keep their data in
// a file, and the twenty libraries that it brings are a fifth of the window's start. The calls have
// the library's names, so that the code above is written as if it were linked.

#include <dlfcn.h>
#include <libpq-fe.h>

#include <string>

#include "data/store_error.h"

namespace {

// The number of its interface: another one has other functions.
constexpr const char* Bibliotheque = "libpq.so.5";

[[noreturn]] void refuser(const char* raison) {
  throw data::StoreError(data::NumeroErreur::EntreeSortie,
                         std::string("Ce poste n'a pas ce qu'il faut pour une base sur un serveur "
                                     "(le client de PostgreSQL, libpq) : ") +
                             raison + ". Installez-le, ou ouvrez un fichier de données.");
}

void* bibliotheque() {
  static void* const chargee = [] {
    void* const poignee = dlopen(Bibliotheque, RTLD_NOW | RTLD_LOCAL);
    if (poignee == nullptr) refuser(dlerror());
    return poignee;
  }();
  return chargee;
}

template <typename Fonction>
Fonction trouver(const char* nom) {
  void* const adresse = dlsym(bibliotheque(), nom);
  if (adresse == nullptr) refuser(dlerror());
  return reinterpret_cast<Fonction>(adresse);
}

}  // namespace

extern "C" {

void PQclear(PGresult* res) {
  static const auto vraie = trouver<decltype(&PQclear)>("PQclear");
  return vraie(res);
}

char* PQcmdTuples(PGresult* res) {
  static const auto vraie = trouver<decltype(&PQcmdTuples)>("PQcmdTuples");
  return vraie(res);
}

PostgresPollingStatusType PQconnectPoll(PGconn* conn) {
  static const auto vraie = trouver<decltype(&PQconnectPoll)>("PQconnectPoll");
  return vraie(conn);
}

PGconn* PQconnectStartParams(const char* const* keywords, const char* const* values,
                             int expand_dbname) {
  static const auto vraie = trouver<decltype(&PQconnectStartParams)>("PQconnectStartParams");
  return vraie(keywords, values, expand_dbname);
}

PQconninfoOption* PQconninfo(PGconn* conn) {
  static const auto vraie = trouver<decltype(&PQconninfo)>("PQconninfo");
  return vraie(conn);
}

void PQconninfoFree(PQconninfoOption* connOptions) {
  static const auto vraie = trouver<decltype(&PQconninfoFree)>("PQconninfoFree");
  return vraie(connOptions);
}

PQconninfoOption* PQconninfoParse(const char* conninfo, char** errmsg) {
  static const auto vraie = trouver<decltype(&PQconninfoParse)>("PQconninfoParse");
  return vraie(conninfo, errmsg);
}

int PQconsumeInput(PGconn* conn) {
  static const auto vraie = trouver<decltype(&PQconsumeInput)>("PQconsumeInput");
  return vraie(conn);
}

int PQenterPipelineMode(PGconn* conn) {
  static const auto vraie = trouver<decltype(&PQenterPipelineMode)>("PQenterPipelineMode");
  return vraie(conn);
}

char* PQerrorMessage(const PGconn* conn) {
  static const auto vraie = trouver<decltype(&PQerrorMessage)>("PQerrorMessage");
  return vraie(conn);
}

void PQfinish(PGconn* conn) {
  static const auto vraie = trouver<decltype(&PQfinish)>("PQfinish");
  return vraie(conn);
}

int PQflush(PGconn* conn) {
  static const auto vraie = trouver<decltype(&PQflush)>("PQflush");
  return vraie(conn);
}

PGresult* PQgetResult(PGconn* conn) {
  static const auto vraie = trouver<decltype(&PQgetResult)>("PQgetResult");
  return vraie(conn);
}

int PQgetlength(const PGresult* res, int tup_num, int field_num) {
  static const auto vraie = trouver<decltype(&PQgetlength)>("PQgetlength");
  return vraie(res, tup_num, field_num);
}

char* PQgetvalue(const PGresult* res, int tup_num, int field_num) {
  static const auto vraie = trouver<decltype(&PQgetvalue)>("PQgetvalue");
  return vraie(res, tup_num, field_num);
}

int PQisBusy(PGconn* conn) {
  static const auto vraie = trouver<decltype(&PQisBusy)>("PQisBusy");
  return vraie(conn);
}

int PQntuples(const PGresult* res) {
  static const auto vraie = trouver<decltype(&PQntuples)>("PQntuples");
  return vraie(res);
}

int PQpipelineSync(PGconn* conn) {
  static const auto vraie = trouver<decltype(&PQpipelineSync)>("PQpipelineSync");
  return vraie(conn);
}

char* PQresultErrorField(const PGresult* res, int fieldcode) {
  static const auto vraie = trouver<decltype(&PQresultErrorField)>("PQresultErrorField");
  return vraie(res, fieldcode);
}

ExecStatusType PQresultStatus(const PGresult* res) {
  static const auto vraie = trouver<decltype(&PQresultStatus)>("PQresultStatus");
  return vraie(res);
}

int PQsendPrepare(PGconn* conn, const char* stmtName, const char* query, int nParams,
                  const Oid* paramTypes) {
  static const auto vraie = trouver<decltype(&PQsendPrepare)>("PQsendPrepare");
  return vraie(conn, stmtName, query, nParams, paramTypes);
}

int PQsendQueryParams(PGconn* conn, const char* command, int nParams, const Oid* paramTypes,
                      const char* const* paramValues, const int* paramLengths,
                      const int* paramFormats, int resultFormat) {
  static const auto vraie = trouver<decltype(&PQsendQueryParams)>("PQsendQueryParams");
  return vraie(conn, command, nParams, paramTypes, paramValues, paramLengths, paramFormats,
               resultFormat);
}

int PQsendQueryPrepared(PGconn* conn, const char* stmtName, int nParams,
                        const char* const* paramValues, const int* paramLengths,
                        const int* paramFormats, int resultFormat) {
  static const auto vraie = trouver<decltype(&PQsendQueryPrepared)>("PQsendQueryPrepared");
  return vraie(conn, stmtName, nParams, paramValues, paramLengths, paramFormats, resultFormat);
}

int PQserverVersion(const PGconn* conn) {
  static const auto vraie = trouver<decltype(&PQserverVersion)>("PQserverVersion");
  return vraie(conn);
}

PGVerbosity PQsetErrorVerbosity(PGconn* conn, PGVerbosity verbosity) {
  static const auto vraie = trouver<decltype(&PQsetErrorVerbosity)>("PQsetErrorVerbosity");
  return vraie(conn, verbosity);
}

PQnoticeProcessor PQsetNoticeProcessor(PGconn* conn, PQnoticeProcessor proc, void* arg) {
  static const auto vraie = trouver<decltype(&PQsetNoticeProcessor)>("PQsetNoticeProcessor");
  return vraie(conn, proc, arg);
}

int PQsocket(const PGconn* conn) {
  static const auto vraie = trouver<decltype(&PQsocket)>("PQsocket");
  return vraie(conn);
}

ConnStatusType PQstatus(const PGconn* conn) {
  static const auto vraie = trouver<decltype(&PQstatus)>("PQstatus");
  return vraie(conn);
}

}  // extern "C"
