#pragma once

#include <filesystem>
#include <string>

#include <unistd.h>

namespace tarnel {

// A fresh folder under the system's temporary directory, removed again at the end of the test.
class TestDir {
public:
    explicit TestDir(const std::string& name)
        : path_(std::filesystem::temp_directory_path() /
                ("tarnel-" + name + "-" + std::to_string(::getpid()))) {
        std::filesystem::remove_all(path_);
        std::filesystem::create_directories(path_);
    }
    ~TestDir() { std::filesystem::remove_all(path_); }

    std::filesystem::path operator/(const std::string& name) const { return path_ / name; }
    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

}  // namespace tarnel
