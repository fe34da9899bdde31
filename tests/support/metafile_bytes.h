#pragma once
// Metafiles made record by record.
#include <cstdint>
#include <initializer_list>
#include <string>

namespace test {

template <class Number>
std::string fieldOf(std::int64_t value) {
    std::string bytes;
    for (std::size_t byte = 0; byte < sizeof(Number); ++byte) bytes += char(value >> (8 * byte) & 0xFF);
    return bytes;
}
inline std::string words(std::initializer_list<std::int64_t> values) {
    std::string bytes;
    for (const auto value : values) bytes += fieldOf<std::uint16_t>(value);
    return bytes;
}
inline std::string longs(std::initializer_list<std::int64_t> values) {
    std::string bytes;
    for (const auto value : values) bytes += fieldOf<std::uint32_t>(value);
    return bytes;
}

/// As the files store colours.
inline constexpr std::uint32_t kRed = 0x0000FF, kGreen = 0x00FF00, kBlue = 0xFF0000;

/// A bitmap of 24 bits, its lowest line first: a red and a green pixel over a blue and a white one.
inline std::string fourPixels() {
    const std::string red("\0\0\xFF", 3), green("\0\xFF\0", 3), blue("\xFF\0\0", 3), white("\xFF\xFF\xFF", 3);
    const std::string end(2, '\0');
    return longs({40, 2, 2}) + words({1, 24}) + longs({0, 16, 0, 0, 0, 0}) + blue + white + end + red + green + end;
}

/// The 16-bit format.
class WindowsRecords {
public:
    WindowsRecords& add(std::uint16_t function, const std::string& fields) {
        const auto padded = fields + std::string(fields.size() % 2, '\0');
        records_ +=
            fieldOf<std::uint32_t>(std::int64_t(padded.size() + 6) / 2) + fieldOf<std::uint16_t>(function) + padded;
        return *this;
    }
    WindowsRecords& brush(std::uint32_t colour) { return add(0x02FC, words({0}) + longs({colour}) + words({0})); }
    WindowsRecords& pen(int style, std::uint32_t colour) { return add(0x02FA, words({style, 1, 0}) + longs({colour})); }
    WindowsRecords& select(int number) { return add(0x012D, words({number})); }
    WindowsRecords& remove(int number) { return add(0x01F0, words({number})); }
    WindowsRecords& rectangle(int left, int top, int right, int bottom) {
        return add(0x041B, words({bottom, right, top, left}));
    }

    /// With its end.
    std::string plain() const {
        const auto records = records_ + longs({3}) + words({0});
        return words({1, 9, 0x0300}) + longs({std::int64_t(records.size() + 18) / 2}) + words({16}) + longs({0}) +
               words({0}) + records;
    }
    /// A placeable one with this width and height, of one inch for 960 units.
    std::string file(int width, int height) const {
        return longs({0x9AC6CDD7}) + words({0, 0, 0, width, height, 960}) + longs({0}) + words({0}) + plain();
    }

private:
    std::string records_;
};

/// The 32-bit format, on a device with 96 pixels in an inch.
class EnhancedRecords {
public:
    EnhancedRecords& add(std::uint32_t type, const std::string& fields) {
        const auto padded = fields + std::string((4 - fields.size() % 4) % 4, '\0');
        records_ += longs({type, std::int64_t(padded.size()) + 8}) + padded;
        return *this;
    }
    EnhancedRecords& brush(int number, std::uint32_t colour) { return add(39, longs({number, 0, colour, 0})); }
    EnhancedRecords& select(std::int64_t number) { return add(37, longs({number})); }
    EnhancedRecords& rectangle(int left, int top, int right, int bottom) {
        return add(43, longs({left, top, right, bottom}));
    }

    std::string file(int inchesAcross, int inchesDown) const {
        constexpr int kInch = 2540;
        const auto end = longs({14, 20, 0, 0, 20});
        const auto header = longs({1, 88, 0, 0, 0, 0, 0, 0, inchesAcross * kInch, inchesDown * kInch}) + " EMF" +
                            longs({0x10000, std::int64_t(88 + records_.size() + end.size()), 3}) + words({16, 0}) +
                            longs({0, 0, 0, 960, 960, 254, 254});
        return header + records_ + end;
    }

private:
    std::string records_;
};

inline constexpr std::int64_t kNoPen = 0x80000008, kNoBrush = 0x80000005;

} // namespace test
