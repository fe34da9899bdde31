#pragma once
// An open file of a program.
#include "Components/Tamarik/ports/file_store.h"
#include <memory>
#include <string>
#include <string_view>

namespace tamarik {

/// As the compiler passes them.
enum class FileMode : std::uint8_t { Random, Input, Output, Append, Binary };
enum class FileAccess : std::uint8_t { Default, Read, Write, ReadWrite };

/// Reads and writes at a place, which moves; small pieces are collected.
class OpenFile {
public:
    struct Traits {
        std::string path;
        FileMode mode = FileMode::Input;
        bool reads = false, writes = false;
        std::uint32_t recordLength = 0; ///< of Random
    };

    OpenFile(std::unique_ptr<StoredFile> file, Traits traits) : file_(std::move(file)), traits_(std::move(traits)) {}
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    /// Writes what was collected; errors are lost, see flush.
    ~OpenFile();

    [[nodiscard]] const Traits& traits() const { return traits_; }
    [[nodiscard]] bool isRandom() const { return traits_.mode == FileMode::Random; }

    [[nodiscard]] std::uint64_t size();
    [[nodiscard]] std::uint64_t position() const { return position_; }
    void seek(std::uint64_t position) { position_ = position; }

    /// The next byte, or -1 at the end.
    [[nodiscard]] int peek();
    int next();
    /// Reads at most so many bytes.
    std::string read(std::size_t count);
    void write(std::string_view bytes);
    void flush();

    std::uint32_t column = 0, width = 0; ///< of Print; a width of 0 is without end
    bool hasItems = false;               ///< Write has begun a line
    bool wasShort = false;               ///< the last Get met the end
    std::uint64_t lastRecord = 0;        ///< of Random, from 1

private:
    bool fill();

    std::unique_ptr<StoredFile> file_;
    Traits traits_;
    std::uint64_t position_ = 0;
    std::string cache_, pending_;
    std::uint64_t cacheAt_ = 0, pendingAt_ = 0;
};

} // namespace tamarik
