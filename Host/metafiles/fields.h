#pragma once
// The little-endian fields of a record.
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace host {

/// Reads one field after another. Fields beyond the end are 0, and the record is no longer whole.
class Fields {
public:
    explicit Fields(std::string_view bytes) : rest_(bytes) {}

    std::uint8_t u8() { return number<std::uint8_t>(); }
    std::uint16_t u16() { return number<std::uint16_t>(); }
    std::int16_t i16() { return number<std::int16_t>(); }
    std::uint32_t u32() { return number<std::uint32_t>(); }
    std::int32_t i32() { return number<std::int32_t>(); }
    float f32() { return number<float>(); }

    std::string_view bytes(std::size_t count) {
        isWhole_ = isWhole_ && count <= rest_.size();
        const auto taken = rest_.substr(0, isWhole_ ? count : 0);
        rest_.remove_prefix(taken.size());
        return taken;
    }
    void skip(std::size_t count) { bytes(count); }
    std::string_view rest() const { return rest_; }
    /// Whether as many entries of this size may follow.
    bool hasRoomFor(std::size_t count, std::size_t size) const { return isWhole_ && count <= rest_.size() / size; }
    bool isWhole() const { return isWhole_; }

private:
    template <class Number>
    Number number() {
        Number value{};
        const auto taken = bytes(sizeof value);
        if (isWhole_) std::memcpy(&value, taken.data(), sizeof value);
        return value;
    }

    std::string_view rest_;
    bool isWhole_ = true;
};

} // namespace host
