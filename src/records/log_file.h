#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <sys/types.h>
#include <vector>

namespace tarnel {

// The log file as its writer thread keeps it: open between writes, reopened when somebody
// deleted or replaced it, and turned into "<name>.1" once it has reached `rotateAtBytes`.
class LogFile {
public:
    LogFile(std::filesystem::path file, std::uintmax_t rotateAtBytes);
    ~LogFile();
    LogFile(const LogFile&) = delete;
    LogFile& operator=(const LogFile&) = delete;

    // Appends each line and a newline. Failures to write the log are never reported.
    void append(const std::vector<std::string>& lines);

private:
    void reopenIfGone();
    void open();
    void close();
    void write(const std::string& text);

    std::filesystem::path file_;
    std::uintmax_t rotateAtBytes_;
    int fd_ = -1;
    std::uintmax_t size_ = 0;
    dev_t device_ = 0;
    ino_t inode_ = 0;
};

}  // namespace tarnel
