#pragma once
// What a result depends on, as one number.
#include <cstdint>
#include <string>
#include <string_view>

namespace cli {

/// Collects values; their order counts.
class KeyText {
public:
    void add(std::string_view text);
    void add(std::uint64_t number);
    /// Adds what changes when a file is replaced, without reading it.
    void addStateOf(const std::string& path);
    [[nodiscard]] std::uint64_t digest() const;

private:
    std::string text_;
};

} // namespace cli
