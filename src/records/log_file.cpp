#include "records/log_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <system_error>

#include "records/atomic_file.h"

namespace tarnel {

LogFile::LogFile(std::filesystem::path file, std::uintmax_t rotateAtBytes)
    : file_(std::move(file)), rotateAtBytes_(rotateAtBytes) {}

LogFile::~LogFile() {
    close();
}

void LogFile::append(const std::vector<std::string>& lines) {
    reopenIfGone();
    std::string text;
    for (const auto& line : lines) {
        if (size_ + text.size() >= rotateAtBytes_ && size_ + text.size() > 0) {
            write(text);
            text.clear();
            close();
            std::error_code ignored;
            std::filesystem::rename(file_, std::filesystem::path(file_) += ".1", ignored);
            open();
        }
        text += line;
        text += '\n';
    }
    write(text);
}

// One stat a batch of lines, where opening the file for each line cost four calls.
void LogFile::reopenIfGone() {
    struct stat atPath {};
    if (fd_ >= 0 && ::stat(file_.c_str(), &atPath) == 0 && atPath.st_dev == device_ &&
        atPath.st_ino == inode_)
        return;
    close();
    open();
}

void LogFile::open() {
    // Appending creates the file when it is missing, e.g. deleted while we run.
    fd_ = ::open(file_.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
    struct stat opened {};
    if (fd_ < 0 || ::fstat(fd_, &opened) != 0) return;
    ::fchmod(fd_, 0600);  // a log an older version made stays readable by others otherwise
    size_ = static_cast<std::uintmax_t>(opened.st_size);
    device_ = opened.st_dev;
    inode_ = opened.st_ino;
}

void LogFile::close() {
    if (fd_ >= 0) ::close(fd_);
    fd_ = -1;
    size_ = 0;
}

void LogFile::write(const std::string& text) {
    if (fd_ >= 0) size_ += writeAll(fd_, text);
}

}  // namespace tarnel
