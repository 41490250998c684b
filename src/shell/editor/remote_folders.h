#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "transfer/ftp_service.h"

namespace tarnel {

// A folder on the server as the editor's tree shows it. `id` is the folder's path below the
// connection's remote folder ("Shoots/2024"), the form the record's selected paths take.
struct RemoteFolderNode {
    std::string id;
    std::string name;
    std::vector<RemoteFolderNode> children;
    int fileCount = 0;
    std::int64_t totalSize = 0;
};

// The folders directly inside `id` ("" for the remote folder itself), each listed once more for
// its files. BLOCKS; throws FTPError when `id` itself cannot be listed. A subfolder that
// refuses its listing shows no files rather than hiding its siblings.
std::vector<RemoteFolderNode> listRemoteFolders(FTPService& service, const std::string& id);

}  // namespace tarnel
