#include "phone/eventkit/sqlite.h"

#include <system_error>

namespace phone {

namespace {

constexpr int kLockPatienceMilliseconds = 10'000;

[[noreturn]] void fail(sqlite3* connection) {
  const char* const file = sqlite3_db_filename(connection, "main");
  std::string text = file == nullptr ? "" : std::string(file) + ": ";
  switch (sqlite3_errcode(connection)) {
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
      text += "the calendar database is damaged (" + std::string(sqlite3_errmsg(connection)) +
              "); move the file away and import the calendars again";
      break;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      text += "another process keeps the calendar database locked; try again when it is done";
      break;
    default:
      text += sqlite3_errmsg(connection);
  }
  throw DatabaseError(text);
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
  if (start == nullptr) return {};
  return {start, static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column))};
}

Connection::Connection(const std::filesystem::path& file, OpenMode mode) {
  const int flags = SQLITE_OPEN_READWRITE | (mode == OpenMode::kCreate ? SQLITE_OPEN_CREATE : 0);
  sqlite3* opened = nullptr;
  const int code = sqlite3_open_v2(file.c_str(), &opened, flags | SQLITE_OPEN_NOMUTEX, nullptr);
  handle_.reset(opened);
  if (code != SQLITE_OK) {
    throw DatabaseError(file.string() + ": the calendar database cannot be opened (" +
                        (opened == nullptr ? sqlite3_errstr(code) : sqlite3_errmsg(opened)) + ")");
  }
  sqlite3_busy_timeout(opened, kLockPatienceMilliseconds);
}

void Connection::execute(const char* sql) {
  check(handle_.get(), sqlite3_exec(handle_.get(), sql, nullptr, nullptr, nullptr));
}

Snapshot::Snapshot(Connection& connection) : connection_(connection) { connection.execute("BEGIN"); }

Snapshot::~Snapshot() { sqlite3_exec(connection_.handle(), "COMMIT", nullptr, nullptr, nullptr); }

Transaction::Transaction(Connection& connection) : connection_(connection) {
  connection.execute("BEGIN IMMEDIATE");
}

Transaction::~Transaction() {
  // A failed statement may have rolled the transaction back already; there is nothing left to do then.
  if (open_) sqlite3_exec(connection_.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void Transaction::commit() {
  connection_.execute("COMMIT");
  open_ = false;
}

}  // namespace phone
