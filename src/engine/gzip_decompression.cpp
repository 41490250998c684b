#include "engine/gzip_decompression.h"

#include <algorithm>
#include <limits>

#include <zlib.h>

namespace tarnel {

namespace {
constexpr std::uint8_t flagHeaderCRC = 2;
constexpr std::uint8_t flagExtra = 4;
constexpr std::uint8_t flagName = 8;
constexpr std::uint8_t flagComment = 16;
constexpr std::size_t inflateChunk = 0x10000;

// The position after the zero byte that ends a header text starting at `start`.
std::optional<std::size_t> pastZeroByte(std::span<const std::uint8_t> data, std::size_t start) {
    const auto it = std::find(data.begin() + static_cast<std::ptrdiff_t>(start), data.end(), 0);
    if (it == data.end())
        return std::nullopt;
    return static_cast<std::size_t>(it - data.begin()) + 1;
}
}  // namespace

std::optional<Bytes> gunzip(std::span<const std::uint8_t> data) {
    if (data.size() < 11)
        return std::nullopt;
    if (data[0] != 0x1F || data[1] != 0x8B)
        return std::nullopt;
    const std::uint8_t flags = data[3];
    std::size_t start = 10;
    if (flags & flagExtra) {
        if (data.size() < 12)
            return std::nullopt;
        start = 12 + data[10] + 256 * std::size_t{data[11]};
        if (data.size() < start)
            return std::nullopt;
    }
    for (const std::uint8_t textFlag : {flagName, flagComment}) {
        if (!(flags & textFlag))
            continue;
        const auto next = pastZeroByte(data, start);
        if (!next)
            return std::nullopt;
        start = *next;
    }
    if (flags & flagHeaderCRC) {
        start += 2;
        if (data.size() < start)
            return std::nullopt;
    }
    if (start >= data.size())
        return std::nullopt;
    return inflateRaw(data.subspan(start), inflateChunk);
}

std::optional<Bytes> inflateRaw(std::span<const std::uint8_t> data, std::size_t chunkSize) {
    if (data.empty() || chunkSize == 0)
        return std::nullopt;
    z_stream stream{};
    // zlib only reads the input; its interface is not const-correct.
    stream.next_in = const_cast<Bytef*>(data.data());
    // zlib counts input in 32 bits: a larger file is handed over in pieces.
    std::size_t notYetGiven = data.size();
    const auto topUp = [&] {
        if (stream.avail_in != 0)
            return;
        const auto piece = std::min<std::size_t>(notYetGiven, std::numeric_limits<uInt>::max());
        stream.avail_in = static_cast<uInt>(piece);
        notYetGiven -= piece;
    };
    topUp();
    if (inflateInit2(&stream, -MAX_WBITS) != Z_OK)
        return std::nullopt;

    Bytes buffer(chunkSize);
    Bytes result;
    while (true) {
        topUp();
        stream.next_out = buffer.data();
        stream.avail_out = static_cast<uInt>(chunkSize);
        const int status = inflate(&stream, Z_NO_FLUSH);
        if (status != Z_OK && status != Z_STREAM_END && status != Z_BUF_ERROR) {
            inflateEnd(&stream);
            return std::nullopt;
        }
        const std::size_t produced = chunkSize - stream.avail_out;
        result.insert(result.end(), buffer.begin(),
                      buffer.begin() + static_cast<std::ptrdiff_t>(produced));
        // Input that runs out without the stream's end is taken as the end: a truncated file
        // gives what it held.
        if (status == Z_STREAM_END)
            break;
        if (stream.avail_in == 0 && notYetGiven == 0 && stream.avail_out != 0)
            break;
    }
    inflateEnd(&stream);
    if (result.empty())
        return std::nullopt;
    return result;
}

}  // namespace tarnel
