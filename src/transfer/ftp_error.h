#pragma once

#include <cstdint>
#include <exception>
#include <filesystem>
#include <string>

namespace tarnel {

// The failure of every remote operation. A libcurl code travels unchanged up to the moment the
// error is shown; only then does it become advice. Made through the static factories.
class FTPError : public std::exception {
public:
    enum class Kind {
        curlExitCode,
        downloadFailed,
        deleteFailed,
        parseFailed,
        sizeMismatch,
        checksumMismatch,
        emptyFile,
        localFolderNotWritable,
        insufficientDiskSpace,
        bookmarkExpired,
    };

    static FTPError curlExitCode(int code, std::string text);
    // Code 60 over SFTP: the server's host key differs from the one recorded in
    // `knownHostsFile`. Kind and code stay those of libcurl; only the words differ.
    static FTPError hostKeyChanged(const std::string& host,
                                   const std::filesystem::path& knownHostsFile);
    static FTPError downloadFailed(std::string text);
    static FTPError deleteFailed(std::string text);
    static FTPError parseFailed(std::string text);
    static FTPError sizeMismatch(std::int64_t expected, std::int64_t got);
    // The server's own digest of the file (`algorithm`, a name such as "SHA-256") differs from
    // that of the bytes received.
    static FTPError checksumMismatch(const std::string& algorithm, const std::string& server,
                                     const std::string& local);
    static FTPError emptyFile(std::string name);
    static FTPError localFolderNotWritable(std::string path);
    static FTPError insufficientDiskSpace(double availableGB);
    static FTPError bookmarkExpired(std::string path);

    Kind kind() const { return kind_; }
    // The libcurl code of a `curlExitCode` error, 0 for every other kind.
    int curlCode() const { return curlCode_; }
    // The payload text as given (libcurl's message, a name, a path); empty where there is none.
    const std::string& text() const { return text_; }

    // The sentence users read, already passed through the localisation lookup.
    std::string errorDescription() const { return description_; }
    const char* what() const noexcept override { return description_.c_str(); }

private:
    FTPError(Kind kind, int curlCode, std::string text, std::string description);

    Kind kind_;
    int curlCode_;
    std::string text_;
    std::string description_;
};

}  // namespace tarnel
