#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace lurkwell {

/// A prepared statement of a Database, which outlives it. Values are taken by their places, from 0.
class Statement {
 public:
  Statement(sqlite3* database, std::string_view sql);

  /// Both give the statement, so that calls follow one another. A blob has to stay until the
  /// statement has been run.
  Statement& Bind(std::int64_t number);
  Statement& Bind(std::string_view bytes);

  /// Goes to the next row; false at the end, and after a failure, which Database::Result tells.
  bool Step();
  /// Runs one that gives no rows, and makes it ready for the next time; false after a failure.
  bool Run();

  std::int64_t Number(int place) const;
  /// Until the next step.
  std::string_view Bytes(int place) const;

 private:
  struct Finalizing {
    void operator()(sqlite3_stmt* statement) const;
  };

  std::unique_ptr<sqlite3_stmt, Finalizing> mStatement;
  int mPlace = 0;
  int mResult = 0;
};

/// An SQLite database in a file; what it says of functions and views is not trusted. One thread at
/// a time.
class Database {
 public:
  enum class Use {
    kWrite,
    kRead,
    /// For a file beside which nothing can be made: nobody may write to it meanwhile.
    kReadAlone,
  };

  /// Opening is lazy: that the file is none turns out at the
  /// first statement.
  Database(const std::string& path, Use use);

  bool IsOpen() const { return mDatabase != nullptr; }
  bool Run(const std::string& sql);
  Statement Prepare(std::string_view sql) { return {mDatabase.get(), sql}; }
  /// Of a statement that gives one number; `fallback` where it gives none.
  std::int64_t NumberOf(std::string_view sql, std::int64_t fallback = 0);

  /// What the last call came to, without the details.
  int Result() const;
  bool IsFull() const;
  bool IsDamaged() const;
  /// The system lets it open or make no file.
  bool IsRefused() const;
  /// The same for people; says what the system said where it did.
  std::string Words() const;

 private:
  struct Closing {
    void operator()(sqlite3* database) const;
  };

  std::unique_ptr<sqlite3, Closing> mDatabase;
};

/// Everything until Commit, or nothing.
class Transaction {
 public:
  explicit Transaction(Database& database);
  ~Transaction();
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;

  bool HasBegun() const { return mIsOpen; }
  bool Commit();

 private:
  Database& mDatabase;
  bool mIsOpen;
};

}  // namespace lurkwell
