#include "records/store_migration.h"

#include <functional>
#include <system_error>

#include "records/atomic_file.h"

namespace tarnel {

std::filesystem::path migratedBackup(std::filesystem::path oldStore) {
    oldStore += ".migrated";
    return oldStore;
}

bool migrateStoreFile(Journal& journal, const std::filesystem::path& oldFile,
                      const std::function<bool(Journal&, const std::string& text)>& import) {
    const auto text = readWholeFile(oldFile);
    if (!text)
        return true;  // nothing (left) to move
    // A store moved before a crash that left it in place is not moved twice: the journal
    // remembers each one by its name and contents.
    const std::string store = oldFile.filename().string() + " " + std::to_string(text->size()) +
                              " " + std::to_string(std::hash<std::string>{}(*text));
    const bool moved = journal.transaction([&](Journal& j) {
        if (j.statement("SELECT 1 FROM migrated WHERE store = ?1").bind(1, store).step())
            return true;
        j.statement("INSERT INTO migrated(store) VALUES(?1)").bind(1, store).step();
        return import(j, *text);
    });
    if (!moved)
        return false;
    std::error_code ec;
    std::filesystem::rename(oldFile, migratedBackup(oldFile), ec);
    return !ec;
}

}  // namespace tarnel
