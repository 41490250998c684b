#include "shell/editor/remote_folders.h"

#include "transfer/ftp_error.h"

namespace tarnel {

namespace {

std::string serverPath(const ConnectionConfig& config, const std::string& id) {
    if (id.empty()) return config.remotePath;
    std::string base = config.remotePath;
    if (!base.ends_with('/')) base += '/';
    return base + id;
}

}  // namespace

std::vector<RemoteFolderNode> listRemoteFolders(FTPService& service, const std::string& id) {
    std::vector<RemoteFolderNode> folders;
    for (const auto& entry : service.listFiles(serverPath(service.config(), id))) {
        if (!entry.isDirectory || entry.name == "." || entry.name == "..") continue;
        RemoteFolderNode node{id.empty() ? entry.name : id + "/" + entry.name, entry.name, {}, 0, 0};
        try {
            for (const auto& inside : service.listFiles(serverPath(service.config(), node.id))) {
                if (inside.isDirectory) continue;
                ++node.fileCount;
                node.totalSize += inside.size;
            }
        } catch (const FTPError&) {
        }
        folders.push_back(std::move(node));
    }
    return folders;
}

}  // namespace tarnel
