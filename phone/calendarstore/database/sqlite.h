// SQLite with owned handles, typed columns and errors as exceptions.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <sqlite3.h>
#include <stdexcept>
#include <string>
#include <string_view>

namespace phone {

/// What went wrong with the calendar database: file and reason, in words for people.
class DatabaseError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// One prepared statement. Parameters count from 1, columns from 0.
class Statement {
 public:
  Statement(sqlite3* connection, const char* sql);

  /// Texts must live until the statement is reset.
  Statement& bind(int parameter, std::int64_t value);
  Statement& bind(int parameter, std::string_view text);
  Statement& bindNull(int parameter);

  /// Goes to the next row; false after the last. Throws DatabaseError.
  bool step();
  /// Runs a statement that gives no rows, and makes it ready for the next run.
  void run();
  /// Makes the statement ready for the next run and gives its locks back.
  void reset() { sqlite3_reset(statement_.get()); }

  std::int64_t integer(int column) { return sqlite3_column_int64(statement_.get(), column); }
  /// Empty for NULL. Throws DatabaseError when there is no memory for it.
  std::string text(int column);
  bool isNull(int column) { return sqlite3_column_type(statement_.get(), column) == SQLITE_NULL; }

 private:
  struct Finalize {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
  };
  std::unique_ptr<sqlite3_stmt, Finalize> statement_;
};

/// Resets a statement at the end of the scope, however it is left.
class StatementScope {
 public:
  explicit StatementScope(Statement& statement) : statement_(statement) {}
  ~StatementScope() { statement_.reset(); }
  StatementScope(const StatementScope&) = delete;
  StatementScope& operator=(const StatementScope&) = delete;

 private:
  Statement& statement_;
};

class Connection {
 public:
  /// Opens a database that is there. Throws DatabaseError.
  explicit Connection(const std::filesystem::path& file);

  sqlite3* handle() const { return handle_.get(); }
  void execute(const char* sql);
  std::int64_t lastInsertedRow() const { return sqlite3_last_insert_rowid(handle_.get()); }
  int changedRows() const { return sqlite3_changes(handle_.get()); }

 private:
  struct Close {
    void operator()(sqlite3* handle) const { sqlite3_close_v2(handle); }
  };
  std::unique_ptr<sqlite3, Close> handle_;
};

/// Everything read within the scope is of one moment. Also spares the file locks of each single statement.
class Snapshot {
 public:
  explicit Snapshot(Connection& connection);
  ~Snapshot();
  Snapshot(const Snapshot&) = delete;
  Snapshot& operator=(const Snapshot&) = delete;

 private:
  Connection& connection_;
};

/// Everything between begin and commit happens whole or not at all; without a commit, not at all.
class Transaction {
 public:
  /// `beforeCommit` is what is left to do once everything else is done.
  explicit Transaction(Connection& connection, std::function<void()> beforeCommit = {});
  ~Transaction();
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;

  void commit();

 private:
  Connection& connection_;
  std::function<void()> beforeCommit_;
  bool open_ = true;
};

}  // namespace phone
