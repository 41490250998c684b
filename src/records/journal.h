#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>
#include <unordered_map>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace tarnel {

struct JournalError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// A prepared statement of the journal, kept for the life of its connection and reset before
// each use. Valid only inside Journal::read() or Journal::write().
class Statement {
public:
    explicit Statement(sqlite3_stmt* statement) : statement_(statement) {}

    Statement& bind(int index, std::string_view text);
    Statement& bind(int index, std::int64_t number);
    Statement& bind(int index, double number);
    Statement& bindNull(int index);

    // Moves to the next row: false when there is none (or the statement wrote).
    bool step();
    std::int64_t integer(int column) const;
    double real(int column) const;
    std::string text(int column) const;
    bool isNull(int column) const;

private:
    friend class Journal;
    sqlite3_stmt* statement_;
};

// The database that holds what the program remembers per file: the downloaded sets, the
// partial-download records and the transfer history (SQLite, WAL). A change costs a row.
//
// One connection, used from any thread under one mutex. Writes go into a transaction that stays
// open until the journal's committer thread commits it, `commitHold` after the first of them: a
// burst of rows shares one commit, and reads on the same connection see every row written before
// them, committed or not. A commit survives a crash of the process; what was not committed is
// lost with it, which is why a record that a restart must find is committed (or waited for with
// whenCommitted()) before what it stands for is done. Any commit takes every row written before
// it along, so a row that stands in for another (a placed file's record for its booking) may be
// removed once the row it stands for is written.
class Journal {
public:
    using ErrorReport = std::function<void(const std::string&)>;

    // Opens `file`, or starts it. A journal that cannot be opened or fails its check is renamed
    // aside (".corrupt-" + a time stamp), reported through `reportError`, and a new one started:
    // the program goes on without the rows it held. When not even a new file can be made, the
    // journal lives in memory for this run, and that is reported too.
    static std::shared_ptr<Journal> open(const std::filesystem::path& file,
                                         const ErrorReport& reportError = {});
    ~Journal();  // commits what is written

    // How long the committer lets rows gather before it commits them, while nobody waits.
    static constexpr std::chrono::milliseconds commitHold{50};
    // How long it holds them once someone waits for their commit (whenCommitted()): the files of a
    // batch placed close together share one commit, and none waits long.
    static constexpr std::chrono::milliseconds waitedCommitHold{5};

    Journal(const Journal&) = delete;
    Journal& operator=(const Journal&) = delete;

    // Runs `work(journal)` now, inside the open transaction (begun if none), and has the
    // transaction committed by the committer thread; with `commitNow`, commits it before
    // returning (a record that a restart must find). Storage errors are swallowed: the stores
    // never report a failure to write. Returns false after one.
    template <typename Work>
    bool write(Work&& work, bool commitNow = false) {
        Use use(*this);
        try {
            beginLocked();
            work(*this);
        } catch (const JournalError&) {
            return false;
        }
        if (!commitNow) {
            scheduleCommitLocked();
            return true;
        }
        resetUsedLocked();
        commitLocked();
        return true;
    }
    // Reads, seeing every row written before. Errors reach the caller as JournalError.
    template <typename Work>
    auto read(Work&& work) {
        Use use(*this);
        return work(*this);
    }
    // Commits the open transaction before returning.
    void commit();
    // Calls `then` once every row written before has been committed (or failed to be): at once
    // when nothing waits to be committed, else from whichever thread commits next, within
    // `waitedCommitHold`. It runs under the journal's lock and must not use the journal.
    void whenCommitted(std::function<void()> then);
    // Runs `work` in a transaction of its own, committed when it returns true and rolled back
    // when it returns false or throws (the migration of an older store: all or nothing).
    bool transaction(const std::function<bool(Journal&)>& work);

    // Only inside read(), write() or transaction().
    Statement& statement(const char* sql);
    void execute(const char* sql);
    std::int64_t changes() const;

    const std::filesystem::path& file() const { return file_; }

private:
    // The connection, held for one read or write: statements used meanwhile are reset when it
    // ends, so that none keeps a read snapshot open.
    struct Use {
        explicit Use(Journal& journal) : journal(journal), lock(journal.mutex_) {}
        ~Use() { journal.resetUsedLocked(); }
        Journal& journal;
        std::lock_guard<std::mutex> lock;
    };

    Journal(std::filesystem::path file, sqlite3* db);
    void resetUsedLocked();
    void beginLocked();
    void commitLocked();
    void scheduleCommitLocked();
    void commitWhenDue();

    std::filesystem::path file_;
    sqlite3* db_;
    std::mutex mutex_;
    std::unordered_map<const char*, std::unique_ptr<Statement>> statements_;
    std::vector<Statement*> used_;
    sqlite3_stmt* begin_ = nullptr;
    sqlite3_stmt* commit_ = nullptr;
    bool inTransaction_ = false;
    std::vector<std::function<void()>> awaitingCommit_;  // called by the next commit
    // The committer: asleep until a write asks for a commit, then commits after the hold.
    std::condition_variable commitWanted_;
    bool committerWaiting_ = false;
    bool stopping_ = false;
    std::thread committer_;  // last: it starts once everything else is there
};

}  // namespace tarnel
