#pragma once

#include <filesystem>

namespace tarnel {

// Makes `folder` (and its parents) when missing and leaves it for its owner's eyes alone (0700),
// also one an older version made open to all. A shared folder (sticky, like /tmp, or another
// user's) is left as it is: a store placed there must not close it to everyone else.
void makePrivateFolder(const std::filesystem::path& folder);

}  // namespace tarnel
