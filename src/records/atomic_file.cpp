#include "records/atomic_file.h"

#include <fstream>
#include <iterator>
#include <system_error>

namespace tarnel {

bool replaceFileAtomically(const std::filesystem::path& file, std::string_view contents) {
    std::error_code ec;
    std::filesystem::create_directories(file.parent_path(), ec);
    auto temporary = file;
    temporary += ".tmp";
    {
        std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
        out.write(contents.data(), static_cast<std::streamsize>(contents.size()));
        out.close();
        if (!out) {
            std::filesystem::remove(temporary, ec);
            return false;
        }
    }
    std::filesystem::rename(temporary, file, ec);
    if (ec) {
        std::error_code ignored;
        std::filesystem::remove(temporary, ignored);
        return false;
    }
    return true;
}

std::optional<std::string> readWholeFile(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in)
        return std::nullopt;
    std::string contents{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    if (in.bad())
        return std::nullopt;
    return contents;
}

}  // namespace tarnel
