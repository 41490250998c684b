#include "engine/gzip_decompression.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <memory>
#include <optional>
#include <system_error>
#include <vector>

#include <zlib.h>

namespace tarnel {

namespace {
constexpr int flagHeaderCRC = 2;
constexpr int flagExtra = 4;
constexpr int flagName = 8;
constexpr int flagComment = 16;
constexpr std::size_t blockSize = 0x10000;

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

GzipFileError fileError(const char* what, const std::filesystem::path& path) {
    return {std::string("Could not ") + what + " '" + path.string() + "': " +
            std::strerror(errno)};
}

File openFile(const std::filesystem::path& path, const char* mode, const char* what) {
    File file(std::fopen(path.c_str(), mode), &std::fclose);
    if (!file) throw fileError(what, path);
    return file;
}

// Reads the gzip header; true when it is whole and a body follows it.
bool skipHeader(std::FILE* in) {
    unsigned char fixed[10];
    if (std::fread(fixed, 1, sizeof fixed, in) != sizeof fixed) return false;
    if (fixed[0] != 0x1F || fixed[1] != 0x8B) return false;
    const int flags = fixed[3];
    if (flags & flagExtra) {
        const int low = std::fgetc(in), high = std::fgetc(in);
        if (high == EOF) return false;
        for (int n = low + 256 * high; n > 0; --n)
            if (std::fgetc(in) == EOF) return false;
    }
    for (const int textFlag : {flagName, flagComment}) {
        if (!(flags & textFlag)) continue;
        for (int c = std::fgetc(in); c != 0; c = std::fgetc(in))
            if (c == EOF) return false;
    }
    if (flags & flagHeaderCRC)
        if (std::fgetc(in) == EOF || std::fgetc(in) == EOF) return false;
    const int first = std::fgetc(in);
    if (first == EOF) return false;
    std::ungetc(first, in);
    return true;
}

// Inflates the raw deflate stream of `in` into `out`; the bytes written, or nothing when the
// data is corrupt. Input that runs out before the stream's end is taken as its end.
std::optional<std::uint64_t> inflateBody(std::FILE* in, std::FILE* out,
                                         const std::filesystem::path& source,
                                         const std::filesystem::path& target) {
    z_stream stream{};
    if (inflateInit2(&stream, -MAX_WBITS) != Z_OK) return std::nullopt;
    std::unique_ptr<z_stream, int (*)(z_stream*)> end(&stream, &inflateEnd);
    std::vector<unsigned char> input(blockSize), output(blockSize);
    std::uint64_t written = 0;
    bool inputEnded = false;
    while (true) {
        if (stream.avail_in == 0 && !inputEnded) {
            const auto n = std::fread(input.data(), 1, input.size(), in);
            if (std::ferror(in)) throw fileError("read", source);
            inputEnded = n == 0;
            stream.next_in = input.data();
            stream.avail_in = static_cast<uInt>(n);
        }
        stream.next_out = output.data();
        stream.avail_out = static_cast<uInt>(output.size());
        const int status = inflate(&stream, Z_NO_FLUSH);
        if (status != Z_OK && status != Z_STREAM_END && status != Z_BUF_ERROR) return std::nullopt;
        const std::size_t produced = output.size() - stream.avail_out;
        if (produced > 0 && std::fwrite(output.data(), 1, produced, out) != produced)
            throw fileError("write", target);
        written += produced;
        if (status == Z_STREAM_END) return written;
        if (inputEnded && stream.avail_in == 0 && produced == 0) return written;
    }
}
}  // namespace

bool gunzipFile(const std::filesystem::path& source, const std::filesystem::path& target) {
    File in = openFile(source, "rb", "read");
    if (!skipHeader(in.get())) {
        if (std::ferror(in.get())) throw fileError("read", source);
        return false;
    }
    File out = openFile(target, "wb", "write");
    std::optional<std::uint64_t> written;
    try {
        written = inflateBody(in.get(), out.get(), source, target);
        // A full disk may only show when the buffer is flushed.
        if (std::fflush(out.get()) != 0) throw fileError("write", target);
    } catch (const GzipFileError&) {
        out.reset();
        std::error_code ignored;
        std::filesystem::remove(target, ignored);
        throw;
    }
    out.reset();
    if (written.value_or(0) > 0) return true;
    std::error_code ignored;
    std::filesystem::remove(target, ignored);
    return false;
}

}  // namespace tarnel
