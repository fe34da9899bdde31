#pragma once
// Reads the bytes for a device in chunks.
#include <cstdint>
#include <span>
#include <string>

namespace qlpipe {

/// Size of the chunks in which files are read.
inline constexpr std::size_t kChunkBytes = 256 * 1024;

class ByteReader {
public:
    virtual ~ByteReader() = default;
    /// Reads into the buffer and returns the number of bytes, or 0 at the end. Throws TransferError.
    virtual std::size_t read(std::span<char> buffer) = 0;
};

/// Returns the size of a file on the development machine. Throws TransferError for anything but a readable regular
/// file.
std::int64_t sizeOfLocalFile(const std::string& path);

/// Opens a file on the development machine. Throws TransferError if it no longer has `size` bytes, its size when it was
/// listed.
class LocalFile final : public ByteReader {
public:
    LocalFile(std::string path, std::int64_t size);
    LocalFile(const LocalFile&) = delete;
    LocalFile& operator=(const LocalFile&) = delete;
    ~LocalFile() override;
    std::size_t read(std::span<char> buffer) override;

private:
    std::string path_;
    std::int64_t left_;
    int descriptor_;
};

} // namespace qlpipe
