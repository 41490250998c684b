#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace tarnel {

using Bytes = std::vector<std::uint8_t>;

// The body of the first member of a gzip file. The header is read here; only the deflate body
// goes to zlib. The CRC and length trailer are not checked, so a file cut short gives what its
// body held up to the cut. Nothing for what is no gzip data or whose deflate data is corrupt.
std::optional<Bytes> gunzip(std::span<const std::uint8_t> data);

// Raw deflate (no header) inflated `chunkSize` bytes at a time. Input that runs out before the
// stream's end gives what has been inflated so far; nothing when that is empty or the data is
// corrupt.
std::optional<Bytes> inflateRaw(std::span<const std::uint8_t> data, std::size_t chunkSize);

}  // namespace tarnel
