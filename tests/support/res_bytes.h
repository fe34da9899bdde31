#pragma once
// Writes resource files (.res) for tests, as resource compilers do.
#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace test {

class ResBytes {
public:
    /// Begins with the empty entry of files of 32 bits.
    ResBytes() { add("#0", "#0", "", 0); }

    /// "#10" is a number; names are ASCII.
    ResBytes& add(std::string_view type, std::string_view name, std::string_view data, std::uint16_t language = 0x409) {
        std::string identifiers = identifier(type) + identifier(name);
        identifiers.resize((identifiers.size() + 3) / 4 * 4);
        number(data.size(), 4);
        number(8 + identifiers.size() + 16, 4);
        bytes_ += identifiers;
        number(0, 6);
        number(language, 2);
        number(0, 8);
        bytes_ += data;
        bytes_.resize((bytes_.size() + 3) / 4 * 4);
        return *this;
    }

    /// Adds the blocks with texts.
    ResBytes& addTexts(const std::map<std::uint32_t, std::u16string>& texts) {
        std::map<std::uint32_t, std::string> blocks;
        for (const auto& [id, text] : texts) blocks[id / 16];
        for (auto& [block, data] : blocks) {
            for (std::uint32_t place = 0; place < 16; ++place) {
                const auto found = texts.find(block * 16 + place);
                const std::u16string text = found == texts.end() ? std::u16string() : found->second;
                data += littleEndian(text.size(), 2);
                for (const char16_t unit : text) data += littleEndian(unit, 2);
            }
            add("#6", "#" + std::to_string(block + 1), data);
        }
        return *this;
    }

    [[nodiscard]] const std::string& bytes() const { return bytes_; }

private:
    static std::string littleEndian(std::uint64_t value, int count) {
        std::string bytes;
        for (; count > 0; --count, value >>= 8) bytes += static_cast<char>(value & 0xFF);
        return bytes;
    }
    static std::string identifier(std::string_view text) {
        if (text.starts_with('#')) return "\xFF\xFF" + littleEndian(std::stoul(std::string(text.substr(1))), 2);
        std::string bytes;
        for (const char c : text) bytes += littleEndian(static_cast<unsigned char>(c), 2);
        return bytes + std::string(2, '\0');
    }
    void number(std::uint64_t value, int count) { bytes_ += littleEndian(value, count); }

    std::string bytes_;
};

} // namespace test
