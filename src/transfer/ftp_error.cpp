#include "transfer/ftp_error.h"

#include <cstdio>
#include <utility>

#include <curl/curl.h>

#include "platform/localized.h"
#include "records/byte_count_format.h"
#include "transfer/text_lines.h"

namespace tarnel {
namespace {

// The partial-file sentence sits on CURLE_FTP_COULDNT_RETR_FILE, not on CURLE_PARTIAL_FILE:
// a pairing users have long read, kept as it is.
std::string curlCodeDescription(int code, const std::string& text) {
    switch (code) {
        case CURLE_COULDNT_RESOLVE_HOST:
            return localized(
                "Could not resolve host. Check that the hostname is correct and your DNS is "
                "working.");
        case CURLE_COULDNT_CONNECT:
            return localized(
                "Could not connect to server. Check the host, port, and that the server is "
                "running.");
        case CURLE_REMOTE_ACCESS_DENIED:
            return localized(
                "Access denied to the remote folder. Check that the path exists and you have "
                "read permission.");
        case CURLE_FTP_COULDNT_RETR_FILE:
            return localized(
                "Partial file received. The transfer was interrupted. It will retry "
                "automatically.");
        case CURLE_QUOTE_ERROR:
            return localized(
                "FTP quote command failed. Check the remote path or delete permissions.");
        case CURLE_UPLOAD_FAILED:
            return localized(
                "Upload/store failed. The server rejected the operation. Check write "
                "permissions on the server.");
        case CURLE_OPERATION_TIMEDOUT:
            return localized(
                "Connection timed out. The server is too slow or unreachable. Try increasing "
                "the timeout or check your network.");
        case CURLE_SSL_CONNECT_ERROR:
            return localized(
                "SSL/TLS handshake failed. The server may not support FTPS, or the certificate "
                "is invalid.");
        case CURLE_PEER_FAILED_VERIFICATION:
            return localized(
                "SSL certificate verification failed. The server certificate may be "
                "self-signed or expired.");
        case CURLE_LOGIN_DENIED:
            return localized("Authentication failed. Check your username and password.");
        default: {
            // The test is on the untrimmed text: blanks alone still give empty brackets.
            const std::string detail = text.empty() ? "" : " (" + std::string(trimmed(text)) + ")";
            return localizedFormat("Connection error (code %lld)%@. Check your connection settings.",
                                   {std::to_string(code), detail});
        }
    }
}

}  // namespace

FTPError::FTPError(Kind kind, int curlCode, std::string text, std::string description)
    : kind_(kind),
      curlCode_(curlCode),
      text_(std::move(text)),
      description_(std::move(description)) {}

FTPError FTPError::curlExitCode(int code, std::string text) {
    std::string description = curlCodeDescription(code, text);
    return FTPError(Kind::curlExitCode, code, std::move(text), std::move(description));
}

FTPError FTPError::hostKeyChanged(const std::string& host,
                                  const std::filesystem::path& knownHostsFile) {
    std::string description = localizedFormat(
        "The SFTP server's host key has changed since the last connection to %@. This can mean "
        "someone is intercepting the connection. If the change is expected (the server was "
        "reinstalled or its key replaced), remove the line for %@ from %@ and connect again.",
        {host, host, knownHostsFile.string()});
    return FTPError(Kind::curlExitCode, CURLE_PEER_FAILED_VERIFICATION, host,
                    std::move(description));
}

FTPError FTPError::downloadFailed(std::string text) {
    std::string description = localizedFormat("Download failed: %@", {text});
    return FTPError(Kind::downloadFailed, 0, std::move(text), std::move(description));
}

FTPError FTPError::deleteFailed(std::string text) {
    std::string description = localizedFormat("Delete failed: %@", {text});
    return FTPError(Kind::deleteFailed, 0, std::move(text), std::move(description));
}

FTPError FTPError::parseFailed(std::string text) {
    std::string description = localizedFormat("Parse error: %@", {text});
    return FTPError(Kind::parseFailed, 0, std::move(text), std::move(description));
}

FTPError FTPError::sizeMismatch(std::int64_t expected, std::int64_t got) {
    return FTPError(
        Kind::sizeMismatch, 0, {},
        localizedFormat("Size mismatch: expected %@, got %@. The file may still be uploading.",
                        {formatFileByteCount(expected), formatFileByteCount(got)}));
}

FTPError FTPError::checksumMismatch(const std::string& algorithm, const std::string& server,
                                    const std::string& local) {
    return FTPError(Kind::checksumMismatch, 0, algorithm,
                    localizedFormat("%@ checksum mismatch: the server says %@, the download gives "
                                    "%@. The file was not placed and stays on the server; it "
                                    "will be downloaded again.",
                                    {algorithm, server, local}));
}

FTPError FTPError::emptyFile(std::string name) {
    std::string description =
        localizedFormat("Downloaded file '%@' is empty. The remote file may be corrupted or still "
                        "being written.",
                        {name});
    return FTPError(Kind::emptyFile, 0, std::move(name), std::move(description));
}

FTPError FTPError::localFolderNotWritable(std::string path) {
    std::string description =
        localizedFormat("Cannot write to '%@'. Check the folder's permissions in the file manager.", {path});
    return FTPError(Kind::localFolderNotWritable, 0, std::move(path), std::move(description));
}

FTPError FTPError::insufficientDiskSpace(double availableGB) {
    char figure[64];
    std::snprintf(figure, sizeof figure, "%.1f", availableGB);
    return FTPError(Kind::insufficientDiskSpace, 0, {},
                    localizedFormat("Only %@ GB of disk space remaining. Free up space to "
                                    "continue downloading.",
                                    {figure}));
}

FTPError FTPError::bookmarkExpired(std::string path) {
    std::string description =
        localizedFormat("Access to '%@' has expired. Please re-select the folder in Settings.", {path});
    return FTPError(Kind::bookmarkExpired, 0, std::move(path), std::move(description));
}

}  // namespace tarnel
