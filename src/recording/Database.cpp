#include "recording/Database.h"

#include <sqlite3.h>

#include <cerrno>
#include <cstring>
#include <system_error>

namespace lurkwell {
namespace {

/// A reader may hold the file for a moment.
constexpr int kPatience = 2000;

std::string AsAddress(const std::string& path) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::string address = "file:";
  for (const char c : path) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte > ' ' && byte < 0x7F && std::strchr("%?#\"<>\\", c) == nullptr) {
      address += c;
    } else {
      address += {'%', kDigits[byte >> 4], kDigits[byte & 15]};
    }
  }
  return address;
}

}  // namespace

Statement::Statement(sqlite3* database, std::string_view sql) {
  sqlite3_stmt* statement = nullptr;
  if (database == nullptr) {
    mResult = SQLITE_MISUSE;
    return;
  }
  mResult =
      sqlite3_prepare_v2(database, sql.data(), static_cast<int>(sql.size()), &statement, nullptr);
  mStatement.reset(statement);
}

void Statement::Finalizing::operator()(sqlite3_stmt* statement) const {
  sqlite3_finalize(statement);
}

Statement& Statement::Bind(std::int64_t number) {
  if (mStatement != nullptr) sqlite3_bind_int64(mStatement.get(), ++mPlace, number);
  return *this;
}

Statement& Statement::Bind(std::string_view bytes) {
  if (mStatement != nullptr)
    sqlite3_bind_blob64(mStatement.get(), ++mPlace, bytes.data(), bytes.size(), SQLITE_STATIC);
  return *this;
}

bool Statement::Step() {
  if (mStatement == nullptr) return false;
  mResult = sqlite3_step(mStatement.get());
  return mResult == SQLITE_ROW;
}

bool Statement::Run() {
  if (mStatement == nullptr) return false;
  while (Step()) {
  }
  const bool isDone = mResult == SQLITE_DONE;
  // Its own result is that of the step before.
  sqlite3_reset(mStatement.get());
  mPlace = 0;
  return isDone;
}

std::int64_t Statement::Number(int place) const {
  return sqlite3_column_int64(mStatement.get(), place);
}

std::string_view Statement::Bytes(int place) const {
  const auto* bytes = static_cast<const char*>(sqlite3_column_blob(mStatement.get(), place));
  const int size = sqlite3_column_bytes(mStatement.get(), place);
  return bytes == nullptr ? std::string_view()
                          : std::string_view(bytes, static_cast<std::size_t>(size));
}

void Database::Closing::operator()(sqlite3* database) const {
  sqlite3_close_v2(database);
}

Database::Database(const std::string& path, Use use) {
  const int flags = SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_PRIVATECACHE |
                    (use == Use::kWrite ? SQLITE_OPEN_READWRITE : SQLITE_OPEN_READONLY);
  const auto address = AsAddress(path) + (use == Use::kReadAlone ? "?immutable=1" : "");
  sqlite3* database = nullptr;
  sqlite3_open_v2(address.c_str(), &database, flags, nullptr);
  mDatabase.reset(database);
  if (database == nullptr) return;
  sqlite3_busy_timeout(database, kPatience);
  sqlite3_db_config(database, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  sqlite3_db_config(database, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  sqlite3_db_config(database, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
  sqlite3_db_config(database, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
}

bool Database::Run(const std::string& sql) {
  return sqlite3_exec(mDatabase.get(), sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
}

std::int64_t Database::NumberOf(std::string_view sql, std::int64_t fallback) {
  auto statement = Prepare(sql);
  return statement.Step() ? statement.Number(0) : fallback;
}

int Database::Result() const {
  return sqlite3_errcode(mDatabase.get()) & 0xFF;
}

bool Database::IsFull() const {
  if (Result() == SQLITE_FULL) return true;
  const int error = sqlite3_system_errno(mDatabase.get());
  return Result() == SQLITE_IOERR && (error == ENOSPC || error == EDQUOT || error == EFBIG);
}

bool Database::IsDamaged() const {
  return Result() == SQLITE_CORRUPT || Result() == SQLITE_NOTADB;
}

bool Database::IsRefused() const {
  return Result() == SQLITE_CANTOPEN || Result() == SQLITE_READONLY;
}

std::string Database::Words() const {
  if (mDatabase == nullptr) return "there is not enough memory";
  const int error = sqlite3_system_errno(mDatabase.get());
  const bool isOfSystem =
      Result() == SQLITE_IOERR || Result() == SQLITE_CANTOPEN || Result() == SQLITE_FULL;
  if (isOfSystem && error != 0) return std::generic_category().message(error);
  return sqlite3_errstr(Result());
}

Transaction::Transaction(Database& database)
    : mDatabase(database), mIsOpen(database.Run("BEGIN IMMEDIATE")) {}

Transaction::~Transaction() {
  if (mIsOpen) mDatabase.Run("ROLLBACK");
}

bool Transaction::Commit() {
  if (!mIsOpen || !mDatabase.Run("COMMIT")) return false;
  mIsOpen = false;
  return true;
}

}  // namespace lurkwell
