#pragma once
// Bytes that go to a device, one chunk after the other.
#include <cstdint>
#include <span>
#include <string>

namespace qlpipe {

/// What is in memory of a file at one time.
inline constexpr std::size_t kChunkBytes = 256 * 1024;

class ByteReader {
public:
    virtual ~ByteReader() = default;
    /// Fills the buffer from its beginning; 0 at the end. Throws TransferError.
    virtual std::size_t read(std::span<char> buffer) = 0;
};

/// Bytes of a file on the development machine. Throws TransferError for what is no file that can be sent.
std::int64_t sizeOfLocalFile(const std::string& path);

/// A file on the development machine, which had `size` bytes when it was listed: one that has more or fewer by now is
/// refused.
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
