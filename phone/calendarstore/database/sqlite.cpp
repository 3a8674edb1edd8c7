#include "phone/calendarstore/database/sqlite.h"

#include <cerrno>
#include <cstring>
#include <new>
#include <sys/stat.h>

namespace phone {

namespace {

constexpr int kLockPatienceMilliseconds = 10'000;

/// What the operating system said last about the database's file, or else to SQLite's last call of it.
std::string systemReason(sqlite3* connection) {
  int number = 0;
  sqlite3_file_control(connection, "main", SQLITE_FCNTL_LAST_ERRNO, &number);
  if (number == 0) number = sqlite3_system_errno(connection);
  return number == 0 ? "" : std::string(" (") + std::strerror(number) + ")";
}

std::string reasonOf(sqlite3* connection) {
  switch (sqlite3_errcode(connection)) {
    case SQLITE_NOTADB:
      return "this is no calendar database; move the file away and import the calendars again";
    case SQLITE_CORRUPT:
      // SQLite takes a disk that cannot be read for a damaged file. Nobody should move a good one away.
      if (const std::string reason = systemReason(connection); !reason.empty()) {
        return "the calendar database cannot be read" + reason;
      }
      return "the calendar database is damaged; move the file away and import the calendars again";
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return "another process keeps the calendar database locked; try again when it is done";
    case SQLITE_FULL:
      return "the calendar database cannot grow: there is no space left on the disk";
    case SQLITE_READONLY:
      return "the calendar database may not be written; check the permissions of the file and its folder";
    case SQLITE_CANTOPEN:
      return "the calendar database, or a file that belongs to it in its folder, cannot be opened" +
             systemReason(connection);
    case SQLITE_IOERR:
      return "the calendar database cannot be read or written" + systemReason(connection);
    case SQLITE_NOMEM:
      return "there is no memory left for the calendar database";
    case SQLITE_TOOBIG:
      return "a text is too long for the calendar database";
    case SQLITE_ERROR:
    case SQLITE_SCHEMA:
      return "this is no calendar database of this version of the phone; move the file away and import the "
             "calendars again";
    default:
      return "the calendar database failed (code " + std::to_string(sqlite3_extended_errcode(connection)) +
             ")";
  }
}

[[noreturn]] void fail(sqlite3* connection) {
  throw DatabaseError(sqlite3_db_filename(connection, "main") + (": " + reasonOf(connection)));
}

/// SQLite would wait at a pipe, and has no words for a folder.
void requirePlainFile(const std::filesystem::path& file) {
  struct stat status {};
  if (stat(file.c_str(), &status) != 0) {
    throw DatabaseError(file.string() + ": the calendar database cannot be opened (" + std::strerror(errno) +
                        ")");
  }
  if (S_ISREG(status.st_mode)) return;
  throw DatabaseError(file.string() + ": here lies " +
                      (S_ISDIR(status.st_mode) ? "a folder" : "no plain file") +
                      " where the calendar database should be; move it away");
}

void check(sqlite3* connection, int code) {
  if (code != SQLITE_OK) fail(connection);
}

}  // namespace

Statement::Statement(sqlite3* connection, const char* sql) {
  sqlite3_stmt* prepared = nullptr;
  check(connection, sqlite3_prepare_v3(connection, sql, -1, SQLITE_PREPARE_PERSISTENT, &prepared, nullptr));
  statement_.reset(prepared);
}

Statement& Statement::bind(int parameter, std::int64_t value) {
  sqlite3_bind_int64(statement_.get(), parameter, value);
  return *this;
}

Statement& Statement::bind(int parameter, std::string_view text) {
  // An empty view may have no address, which SQLite would take for NULL.
  const char* const start = text.data() == nullptr ? "" : text.data();
  sqlite3_bind_text64(statement_.get(), parameter, start, text.size(), SQLITE_STATIC, SQLITE_UTF8);
  return *this;
}

Statement& Statement::bindNull(int parameter) {
  sqlite3_bind_null(statement_.get(), parameter);
  return *this;
}

bool Statement::step() {
  const int code = sqlite3_step(statement_.get());
  if (code == SQLITE_ROW) return true;
  if (code == SQLITE_DONE) return false;
  try {
    fail(sqlite3_db_handle(statement_.get()));
  } catch (...) {
    sqlite3_reset(statement_.get());
    throw;
  }
}

void Statement::run() {
  step();
  reset();
}

std::string Statement::text(int column) {
  const auto* const start = reinterpret_cast<const char*>(sqlite3_column_text(statement_.get(), column));
  if (start == nullptr) {
    // NULL and missing memory look the same.
    sqlite3* const connection = sqlite3_db_handle(statement_.get());
    if (sqlite3_errcode(connection) == SQLITE_NOMEM) fail(connection);
    return {};
  }
  return {start, static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column))};
}

Connection::Connection(const std::filesystem::path& file) {
  requirePlainFile(file);
  sqlite3* opened = nullptr;
  const int code =
      sqlite3_open_v2(file.c_str(), &opened, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
  handle_.reset(opened);
  if (opened == nullptr) throw std::bad_alloc();
  if (code != SQLITE_OK) throw DatabaseError(file.string() + ": " + reasonOf(opened));
  sqlite3_busy_timeout(opened, kLockPatienceMilliseconds);
}

void Connection::execute(const char* sql) {
  check(handle_.get(), sqlite3_exec(handle_.get(), sql, nullptr, nullptr, nullptr));
}

Snapshot::Snapshot(Connection& connection) : connection_(connection) { connection.execute("BEGIN"); }

Snapshot::~Snapshot() { sqlite3_exec(connection_.handle(), "COMMIT", nullptr, nullptr, nullptr); }

Transaction::Transaction(Connection& connection, std::function<void()> beforeCommit)
    : connection_(connection), beforeCommit_(std::move(beforeCommit)) {
  connection.execute("BEGIN IMMEDIATE");
}

Transaction::~Transaction() {
  // A failed statement may have rolled the transaction back already; there is nothing left to do then.
  if (open_) sqlite3_exec(connection_.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void Transaction::commit() {
  if (beforeCommit_) beforeCommit_();
  connection_.execute("COMMIT");
  open_ = false;
}

}  // namespace phone
