#include "records/store_migration.h"

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
    if (!journal.transaction([&](Journal& j) { return import(j, *text); }))
        return false;
    std::error_code ec;
    std::filesystem::rename(oldFile, migratedBackup(oldFile), ec);
    return !ec;
}

}  // namespace tarnel
