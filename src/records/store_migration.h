#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "records/journal.h"

namespace tarnel {

// Moves an older store into the journal, all or nothing: `import` writes its rows and checks
// that they are there, in one transaction. Only once that is committed does the old store go,
// kept beside itself with the suffix ".migrated". A migration cut short by a crash left the old
// store in place and is done again at the next start; one that a crash cut after its commit is
// not done twice.
// Returns false when the rows could not be moved (the old store stays and is tried again).
bool migrateStoreFile(Journal& journal, const std::filesystem::path& oldFile,
                      const std::function<bool(Journal&, const std::string& text)>& import);

// Where an older store is kept once its rows are in the journal: its name + ".migrated".
std::filesystem::path migratedBackup(std::filesystem::path oldStore);

}  // namespace tarnel
