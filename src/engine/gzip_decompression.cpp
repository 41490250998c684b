#include "engine/gzip_decompression.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <memory>
#include <span>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zlib.h>

namespace tarnel {

namespace fs = std::filesystem;

namespace {
constexpr int flagHeaderCRC = 2;
constexpr int flagExtra = 4;
constexpr int flagName = 8;
constexpr int flagComment = 16;
constexpr std::size_t blockSize = 0x10000;
// Ends in the download's temporary suffix, so that one left by a crash is swept at the next
// start like an orphaned download. Of a fixed length: an archive's name near the longest a
// folder allows leaves no room for more.
constexpr const char* temporaryPrefix = "tarnel-inflating-";
constexpr const char* temporarySuffix = ".tarnel-partial";

GzipFileError fileError(const char* what, const fs::path& path) {
    return {std::string("Could not ") + what + " '" + path.string() + "': " +
            std::strerror(errno)};
}

// The compressed file, a block at a time: the headers and trailers are taken a byte at a time
// from the same block whose rest feeds zlib.
class Input {
public:
    explicit Input(const fs::path& path)
        : path_(path), file_(std::fopen(path.c_str(), "rbe"), &std::fclose) {
        if (!file_) throw fileError("read", path);
    }

    // The unread bytes, reading the next block when none are left; empty at the end.
    std::span<const unsigned char> block() {
        if (position_ == end_) {
            end_ = std::fread(buffer_.data(), 1, buffer_.size(), file_.get());
            position_ = 0;
            if (std::ferror(file_.get())) throw fileError("read", path_);
        }
        return {buffer_.data() + position_, end_ - position_};
    }
    void consume(std::size_t n) { position_ += n; }
    int next() {
        const auto bytes = block();
        if (bytes.empty()) return EOF;
        consume(1);
        return bytes[0];
    }
    // The byte `next` would give, left unread.
    int peek() {
        const auto bytes = block();
        return bytes.empty() ? EOF : bytes[0];
    }
    mode_t mode() const {
        struct stat status {};
        return ::fstat(::fileno(file_.get()), &status) == 0 ? status.st_mode & 07777 : 0600;
    }

private:
    fs::path path_;
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> file_;
    std::vector<unsigned char> buffer_ = std::vector<unsigned char>(blockSize);
    std::size_t position_ = 0, end_ = 0;
};

// The inflated data's file, created beside the source under a name nobody else uses, and
// removed again unless it is kept.
class Output {
public:
    explicit Output(const fs::path& source) {
        std::string pattern =
            (source.parent_path() / temporaryPrefix).string() + "XXXXXX" + temporarySuffix;
        fd_ = ::mkostemps(pattern.data(), static_cast<int>(std::strlen(temporarySuffix)),
                          O_CLOEXEC);
        if (fd_ < 0) throw fileError("create a file in", source.parent_path());
        path_ = pattern;
    }
    ~Output() {
        if (fd_ >= 0) ::close(fd_);
        if (!kept_) ::unlink(path_.c_str());
    }
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    void write(const unsigned char* data, std::size_t size) {
        while (size > 0) {
            const ssize_t n = ::write(fd_, data, size);
            if (n < 0 && errno == EINTR) continue;
            if (n < 0) throw fileError("write", path_);
            data += n;
            size -= static_cast<std::size_t>(n);
        }
    }
    // With `mode`, its data on disk and the file closed: from here it outlives this object.
    fs::path keep(mode_t mode) {
        if (::fchmod(fd_, mode) != 0 || ::fdatasync(fd_) != 0) throw fileError("write", path_);
        const int fd = std::exchange(fd_, -1);
        if (::close(fd) != 0) throw fileError("write", path_);
        kept_ = true;
        return path_;
    }

private:
    fs::path path_;
    int fd_ = -1;
    bool kept_ = false;
};

GzipDataError cutShort() {
    return {"the file is cut short"};
}

// Reads a member's header after its two magic bytes; false when it is cut short.
bool skipHeaderRest(Input& in) {
    unsigned char fixed[8];  // method, flags, time, extra flags, system
    for (auto& byte : fixed) {
        const int c = in.next();
        if (c == EOF) return false;
        byte = static_cast<unsigned char>(c);
    }
    const int flags = fixed[1];
    if (flags & flagExtra) {
        const int low = in.next(), high = in.next();
        if (high == EOF) return false;
        for (int n = low + 256 * high; n > 0; --n)
            if (in.next() == EOF) return false;
    }
    for (const int textFlag : {flagName, flagComment}) {
        if (!(flags & textFlag)) continue;
        for (int c = in.next(); c != 0; c = in.next())
            if (c == EOF) return false;
    }
    if (flags & flagHeaderCRC)
        if (in.next() == EOF || in.next() == EOF) return false;
    return true;
}

// True when a gzip member starts here, its header read; false at the end of the data, after
// zero bytes that pad it.
bool startMember(Input& in, int member) {
    const int first = in.next();
    if (first == EOF) return false;
    if (first == 0) {
        for (int c = in.next(); c != EOF; c = in.next())
            if (c != 0) throw GzipDataError{"data that is not gzip follows the last member"};
        return false;
    }
    if (first != 0x1F || in.next() != 0x8B)
        throw GzipDataError{member == 1 ? "not gzip data"
                                        : "data that is not gzip follows the last member"};
    if (!skipHeaderRest(in)) throw cutShort();
    return true;
}

std::uint32_t littleEndian32(Input& in) {
    std::uint32_t value = 0;
    for (int shift = 0; shift < 32; shift += 8) {
        const int c = in.next();
        if (c == EOF) throw cutShort();
        value |= static_cast<std::uint32_t>(c) << shift;
    }
    return value;
}

// Inflates the deflate body of one member into `out` and checks it against the trailer that
// follows; the bytes it inflated to.
std::uint64_t inflateMember(Input& in, Output& out, int member) {
    z_stream stream{};
    if (inflateInit2(&stream, -MAX_WBITS) != Z_OK) throw GzipFileError{"zlib could not start"};
    std::unique_ptr<z_stream, int (*)(z_stream*)> end(&stream, &inflateEnd);
    std::vector<unsigned char> output(blockSize);
    uLong crc = crc32(0, nullptr, 0);
    std::uint64_t length = 0;
    const std::string which = "member " + std::to_string(member);
    int status = Z_OK;
    while (status != Z_STREAM_END) {
        const auto input = in.block();
        if (input.empty()) throw cutShort();
        stream.next_in = const_cast<unsigned char*>(input.data());
        stream.avail_in = static_cast<uInt>(input.size());
        stream.next_out = output.data();
        stream.avail_out = static_cast<uInt>(output.size());
        status = inflate(&stream, Z_NO_FLUSH);
        in.consume(input.size() - stream.avail_in);
        // With input and room for output, anything else means zlib cannot go on.
        if (status != Z_OK && status != Z_STREAM_END)
            throw GzipDataError{"the compressed data of " + which + " is corrupt"};
        const std::size_t produced = output.size() - stream.avail_out;
        crc = crc32(crc, output.data(), static_cast<uInt>(produced));
        length += produced;
        out.write(output.data(), produced);
    }
    if (littleEndian32(in) != crc)
        throw GzipDataError{"the data of " + which + " does not match its CRC-32"};
    if (littleEndian32(in) != static_cast<std::uint32_t>(length))
        throw GzipDataError{"the data of " + which + " does not match its length"};
    return length;
}
}  // namespace

fs::path gunzipBeside(const fs::path& source) {
    Input in(source);
    // A file that is not gzip at all leaves no trace, not even an empty temporary file.
    if (in.peek() != 0x1F) throw GzipDataError{"not gzip data"};
    Output out(source);
    std::uint64_t length = 0;
    for (int member = 1; startMember(in, member); ++member)
        length += inflateMember(in, out, member);
    if (length == 0) throw GzipDataError{"it inflates to nothing"};
    return out.keep(in.mode());
}

}  // namespace tarnel
