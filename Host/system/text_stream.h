#pragma once
// Text files in Windows-1252, read and written by lines.
#include "Add-in/platform/files.h"
#include <string>
#include <string_view>

namespace host {

class TextReader : public fernwick::TextStream {
public:
    explicit TextReader(std::string bytes) : bytes_(std::move(bytes)), rest_(bytes_) {}

    bool AtEndOfStream() const override { return rest_.empty(); }
    std::string ReadLine() override;
    void WriteLine(const std::string& line) override;
    void Close() override { rest_ = {}; }

private:
    std::string bytes_;
    std::string_view rest_;
};

/// Buffers its lines and writes the file atomically when it is closed.
class TextWriter : public fernwick::TextStream {
public:
    explicit TextWriter(std::string path) : path_(std::move(path)) {}
    ~TextWriter() override;

    bool AtEndOfStream() const override;
    std::string ReadLine() override;
    /// Error 5, without a change, if Windows-1252 lacks a character.
    void WriteLine(const std::string& line) override;
    void Close() override;

private:
    std::string path_, bytes_;
    bool open_ = true;
};

} // namespace host
