#include "records/journal.h"

#include <cerrno>
#include <chrono>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include "platform/private_folder.h"

namespace tarnel {

namespace {

const char* const schema = R"(
CREATE TABLE IF NOT EXISTS downloaded(
    connection_id TEXT NOT NULL,
    entry TEXT NOT NULL,
    PRIMARY KEY(connection_id, entry)) WITHOUT ROWID;
CREATE TABLE IF NOT EXISTS history(
    seq INTEGER PRIMARY KEY,
    id TEXT NOT NULL,
    timestamp REAL NOT NULL,
    filename TEXT NOT NULL,
    final_filename TEXT NOT NULL,
    size_bytes INTEGER NOT NULL,
    source_host TEXT NOT NULL,
    source_path TEXT NOT NULL,
    destination_path TEXT NOT NULL,
    connection_name TEXT NOT NULL,
    status TEXT NOT NULL,
    error_message TEXT);
CREATE TABLE IF NOT EXISTS migrated(
    store TEXT PRIMARY KEY) WITHOUT ROWID;
)";

// One record per connection and remote path: two connections may fetch the same path at once.
const char* const partialsColumns = R"(
    remote_path TEXT NOT NULL,
    local_temp_path TEXT NOT NULL,
    expected_size INTEGER NOT NULL,
    downloaded_bytes INTEGER NOT NULL,
    connection_id TEXT NOT NULL,
    started_at REAL NOT NULL,
    last_resumed_at REAL NOT NULL,
    resume_attempts INTEGER NOT NULL,
    placed_path TEXT NOT NULL,
    PRIMARY KEY(connection_id, remote_path)) WITHOUT ROWID;
)";

// The layout of the tables, in PRAGMA user_version: 0 had one partial record per remote path.
constexpr int layoutVersion = 1;

const std::filesystem::path inMemory = ":memory:";

void check(sqlite3* db, int rc, const char* what) {
    if (rc != SQLITE_OK && rc != SQLITE_ROW && rc != SQLITE_DONE)
        throw JournalError(std::string(what) + ": " + (db ? sqlite3_errmsg(db) : sqlite3_errstr(rc)));
}

void execute(sqlite3* db, const char* sql) {
    check(db, sqlite3_exec(db, sql, nullptr, nullptr, nullptr), sql);
}

int userVersion(sqlite3* db) {
    sqlite3_stmt* version = nullptr;
    check(db, sqlite3_prepare_v2(db, "PRAGMA user_version", -1, &version, nullptr), "version");
    const int stepped = sqlite3_step(version);
    const int value = stepped == SQLITE_ROW ? sqlite3_column_int(version, 0) : 0;
    sqlite3_finalize(version);
    check(db, stepped, "version");
    return value;
}

// Brings the tables of an older layout to this one in one transaction (rows kept), so that a
// crash midway leaves the old layout to be upgraded again.
void upgradeLayout(sqlite3* db) {
    if (userVersion(db) >= layoutVersion) return;
    const std::string upgrade =
        std::string("BEGIN IMMEDIATE;"
                    "CREATE TABLE IF NOT EXISTS partials(") + partialsColumns +
        "CREATE TABLE partials_keyed(" + partialsColumns +
        "INSERT INTO partials_keyed SELECT remote_path, local_temp_path, expected_size, "
        "downloaded_bytes, connection_id, started_at, last_resumed_at, resume_attempts, "
        "placed_path FROM partials;"
        "DROP TABLE partials;"
        "ALTER TABLE partials_keyed RENAME TO partials;"
        "PRAGMA user_version = " + std::to_string(layoutVersion) + ";"
        "COMMIT;";
    try {
        tarnel::execute(db, upgrade.c_str());
    } catch (const JournalError&) {
        sqlite3_exec(db, "ROLLBACK", nullptr, nullptr, nullptr);
        throw;
    }
}

// Opens the file and readies it; throws JournalError on a file that is not a sound journal.
sqlite3* openChecked(const std::filesystem::path& file) {
    // Made for its owner alone before SQLite opens it: its WAL and index files take its mode.
    if (file != inMemory) {
        const int fd = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
        if (fd < 0)
            throw JournalError("open: " + std::system_category().message(errno));
        ::close(fd);
    }
    sqlite3* db = nullptr;
    const int rc = sqlite3_open_v2(file.c_str(), &db,
                                   SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX,
                                   nullptr);
    try {
        check(db, rc, "open");
        sqlite3_busy_timeout(db, 10000);  // the history's connection and the fleet's share it
        sqlite3_stmt* mode = nullptr;
        check(db, sqlite3_prepare_v2(db, "PRAGMA journal_mode=WAL", -1, &mode, nullptr), "WAL");
        check(db, sqlite3_step(mode), "WAL");
        sqlite3_finalize(mode);
        // A commit reaches the file before the call returns (a killed process loses nothing
        // committed); the disk itself is synced at each checkpoint.
        tarnel::execute(db, "PRAGMA synchronous=NORMAL");
        // 8 MiB of pages, where SQLite keeps 2 by default: a batch of a hundred thousand files
        // looks each up and books it, and with the small cache read its pages again and again.
        tarnel::execute(db, "PRAGMA cache_size=-8192");
        sqlite3_stmt* quick = nullptr;
        check(db, sqlite3_prepare_v2(db, "PRAGMA quick_check", -1, &quick, nullptr), "check");
        const int stepped = sqlite3_step(quick);
        const std::string verdict =
            stepped == SQLITE_ROW ? reinterpret_cast<const char*>(sqlite3_column_text(quick, 0))
                                  : std::string(sqlite3_errmsg(db));
        sqlite3_finalize(quick);
        if (verdict != "ok")
            throw JournalError("check: " + verdict);
        tarnel::execute(db, schema);
        upgradeLayout(db);
    } catch (const JournalError&) {
        sqlite3_close_v2(db);
        throw;
    }
    return db;
}

std::string timeStamp() {
    const auto now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    char text[32];
    tm local{};
    localtime_r(&now, &local);
    std::strftime(text, sizeof text, "%Y%m%d-%H%M%S", &local);
    return text;
}

}  // namespace

std::shared_ptr<Journal> Journal::open(const std::filesystem::path& file,
                                       const ErrorReport& reportError) {
    makePrivateFolder(file.parent_path());  // the rows name the user's files and folders
    try {
        return std::shared_ptr<Journal>(new Journal(file, openChecked(file)));
    } catch (const JournalError& e) {
        // Kept for whoever wants to look into it; the program goes on with a new journal.
        auto aside = file;
        aside += ".corrupt-" + timeStamp();
        std::error_code ec;
        std::filesystem::rename(file, aside, ec);
        for (const char* companion : {"-wal", "-shm"}) {
            auto from = file, to = aside;
            from += companion;
            to += companion;
            std::error_code ignored;
            std::filesystem::rename(from, to, ignored);
        }
        const auto report = [&](const std::string& text) {
            if (reportError)
                reportError(text);
        };
        if (!ec)
            report("The transfer journal " + file.string() + " could not be read (" + e.what() +
                   "); it was kept as " + aside.string() +
                   " and a new one started. Files fetched before may be fetched again.");
        try {
            return std::shared_ptr<Journal>(new Journal(file, openChecked(file)));
        } catch (const JournalError& again) {
            report("The transfer journal " + file.string() + " cannot be written (" +
                   again.what() +
                   "); this run keeps it in memory only. Check the folder's permissions and "
                   "free space.");
            return std::shared_ptr<Journal>(new Journal(file, openChecked(inMemory)));
        }
    }
}

Journal::Journal(std::filesystem::path file, sqlite3* db) : file_(std::move(file)), db_(db) {
    // Prepared once: a transaction begins and ends for nearly every file placed.
    check(db_, sqlite3_prepare_v3(db_, "BEGIN IMMEDIATE", -1, SQLITE_PREPARE_PERSISTENT, &begin_,
                                  nullptr),
          "begin");
    check(db_, sqlite3_prepare_v3(db_, "COMMIT", -1, SQLITE_PREPARE_PERSISTENT, &commit_, nullptr),
          "commit");
    committer_ = std::thread([this] { commitWhenDue(); });
}

Journal::~Journal() {
    {
        std::lock_guard lock(mutex_);
        stopping_ = true;
    }
    commitWanted_.notify_one();
    committer_.join();
    std::lock_guard lock(mutex_);
    commitLocked();
    for (auto& [sql, statement] : statements_)
        sqlite3_finalize(statement->statement_);
    sqlite3_finalize(begin_);
    sqlite3_finalize(commit_);
    sqlite3_close_v2(db_);
}

void Journal::resetUsedLocked() {
    for (auto* statement : used_)
        sqlite3_reset(statement->statement_);
    used_.clear();
}

void Journal::beginLocked() {
    if (inTransaction_)
        return;
    const int rc = sqlite3_step(begin_);
    sqlite3_reset(begin_);
    check(db_, rc, "begin");
    inTransaction_ = true;
}

void Journal::commitLocked() {
    if (!inTransaction_)
        return;
    inTransaction_ = false;
    const int rc = sqlite3_step(commit_);
    sqlite3_reset(commit_);
    if (rc != SQLITE_DONE)
        sqlite3_exec(db_, "ROLLBACK", nullptr, nullptr, nullptr);
    for (auto& then : std::exchange(awaitingCommit_, {}))
        then();
}

void Journal::scheduleCommitLocked() {
    // A committer already holding rows back takes this one too; waking it for each row would
    // cost a thread switch a file.
    if (committerWaiting_)
        commitWanted_.notify_one();
}

void Journal::commitWhenDue() {
    std::unique_lock lock(mutex_);
    while (!stopping_) {
        committerWaiting_ = true;
        commitWanted_.wait(lock, [this] { return stopping_ || inTransaction_; });
        committerWaiting_ = false;
        // Rows that come meanwhile share the commit; a commit of the caller's own (a record that
        // must be on disk at once) takes them earlier, and this one then finds nothing to do.
        const auto begun = std::chrono::steady_clock::now();
        commitWanted_.wait_until(lock, begun + commitHold,
                                 [this] { return stopping_ || !awaitingCommit_.empty(); });
        commitWanted_.wait_until(lock, begun + waitedCommitHold, [this] { return stopping_; });
        commitLocked();
    }
}

void Journal::commit() {
    std::lock_guard lock(mutex_);
    commitLocked();
}

void Journal::whenCommitted(std::function<void()> then) {
    std::lock_guard lock(mutex_);
    if (!inTransaction_) {
        then();
        return;
    }
    awaitingCommit_.push_back(std::move(then));
    // The committer learns of the first: it then cuts its hold short.
    if (awaitingCommit_.size() == 1)
        commitWanted_.notify_one();
}

bool Journal::transaction(const std::function<bool(Journal&)>& work) {
    Use use(*this);
    commitLocked();
    bool done = false;
    try {
        beginLocked();
        done = work(*this);
    } catch (const JournalError&) {
    } catch (const std::exception&) {
    }
    resetUsedLocked();
    if (done) {
        commitLocked();
        return true;
    }
    inTransaction_ = false;
    sqlite3_exec(db_, "ROLLBACK", nullptr, nullptr, nullptr);
    return false;
}

Statement& Journal::statement(const char* sql) {
    auto& cached = statements_[sql];
    if (!cached) {
        sqlite3_stmt* prepared = nullptr;
        check(db_, sqlite3_prepare_v3(db_, sql, -1, SQLITE_PREPARE_PERSISTENT, &prepared, nullptr),
              sql);
        cached = std::make_unique<Statement>(prepared);
    }
    sqlite3_reset(cached->statement_);
    sqlite3_clear_bindings(cached->statement_);
    used_.push_back(cached.get());
    return *cached;
}

void Journal::execute(const char* sql) {
    tarnel::execute(db_, sql);
}

std::int64_t Journal::changes() const {
    return sqlite3_changes64(db_);
}

Statement& Statement::bind(int index, std::string_view text) {
    sqlite3_bind_text64(statement_, index, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
    return *this;
}

Statement& Statement::bind(int index, std::int64_t number) {
    sqlite3_bind_int64(statement_, index, number);
    return *this;
}

Statement& Statement::bind(int index, double number) {
    sqlite3_bind_double(statement_, index, number);
    return *this;
}

Statement& Statement::bindNull(int index) {
    sqlite3_bind_null(statement_, index);
    return *this;
}

bool Statement::step() {
    const int rc = sqlite3_step(statement_);
    if (rc == SQLITE_ROW)
        return true;
    if (rc == SQLITE_DONE)
        return false;
    sqlite3* db = sqlite3_db_handle(statement_);
    throw JournalError(std::string("journal: ") + sqlite3_errmsg(db));
}

std::int64_t Statement::integer(int column) const {
    return sqlite3_column_int64(statement_, column);
}

double Statement::real(int column) const {
    return sqlite3_column_double(statement_, column);
}

std::string Statement::text(int column) const {
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
    return bytes ? std::string(bytes, static_cast<std::size_t>(sqlite3_column_bytes(statement_, column)))
                 : std::string();
}

bool Statement::isNull(int column) const {
    return sqlite3_column_type(statement_, column) == SQLITE_NULL;
}

}  // namespace tarnel
