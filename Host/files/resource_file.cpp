#include "Host/files/resource_file.h"
#include <algorithm>
#include <charconv>
#include <fmt/core.h>

namespace host {
namespace {

constexpr std::string_view kPictureMark{"lt\0\0", 4};
/// {0BE35204-8F91-11CE-9DE3-00AA004BB851}, the class of a standard picture.
constexpr std::string_view kPictureClass{"\x04\x52\xE3\x0B\x91\x8F\xCE\x11\x9D\xE3\x00\xAA\x00\x4B\xB8\x51", 16};

/// Reads integers and bytes from a record. A read beyond the end marks the record as bad and returns nothing.
class RecordReader {
public:
    RecordReader(std::string_view bytes, std::size_t offset) : good_(offset < bytes.size()) {
        if (good_) rest_ = bytes.substr(offset);
    }
    bool good() const { return good_; }
    void fail() { good_ = false; }

    std::size_t integer(std::size_t size) {
        std::size_t value = 0;
        const auto bytes = take(size);
        for (std::size_t i = bytes.size(); i-- > 0;) value = value << 8 | static_cast<unsigned char>(bytes[i]);
        return value;
    }
    std::string_view take(std::size_t size) {
        good_ = good_ && size <= rest_.size();
        if (!good_) return {};
        const auto taken = rest_.substr(0, size);
        rest_.remove_prefix(size);
        return taken;
    }

private:
    std::string_view rest_;
    bool good_;
};

/// The value if the record is sound, otherwise the default with a warning.
template <class T>
Resource<T> resourceRead(const RecordReader& reader, T value, const char* kind, std::size_t offset) {
    if (reader.good()) return {std::move(value), {}};
    return {T{}, fmt::format("There is no {} at {:04X} of the resource file.", kind, offset)};
}

std::vector<std::string_view> takeList(RecordReader& reader) {
    std::vector<std::string_view> items;
    const auto count = reader.integer(2);
    if (!reader.good() || count == 0) return items;
    const auto longest = reader.integer(2);
    while (reader.good() && items.size() < count) {
        const auto length = reader.integer(2);
        if (length > longest) reader.fail();
        items.push_back(reader.take(length));
    }
    return items;
}

/// The name of a property page ends with NUL.
std::string_view takePage(RecordReader& reader) {
    auto page = reader.take(reader.integer(2));
    if (page.empty() || page.back() != '\0') {
        reader.fail();
        return {};
    }
    page.remove_suffix(1);
    return page;
}

std::string integerBytes(std::size_t value, std::size_t size) {
    std::string bytes;
    for (; size > 0; --size, value >>= 8) bytes += static_cast<char>(value & 0xFF);
    return bytes;
}

std::string itemsRecord(const std::vector<std::string>& items, std::size_t extra) {
    auto record = integerBytes(items.size(), 2);
    if (items.empty()) return record;
    std::size_t longest = 0;
    for (const auto& item : items) longest = std::max(longest, item.size());
    record += integerBytes(std::min(longest + extra, kLongestListItem), 2);
    for (const auto& item : items) record += integerBytes(item.size(), 2) + item;
    return record;
}

std::int32_t itemNumber(std::string_view text, RecordReader& reader) {
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || end != text.data() + text.size()) reader.fail();
    return number;
}

} // namespace

Resource<std::string_view> ResourceFile::picture(std::size_t offset) const {
    RecordReader reader(bytes_, offset);
    const auto size = reader.integer(4);
    auto mark = reader.take(4);
    std::size_t head = 8;
    if (mark == kPictureClass.substr(0, 4)) {
        if (reader.take(12) != kPictureClass.substr(4)) reader.fail();
        mark = reader.take(4);
        head = 24;
    }
    const auto length = reader.integer(4);
    if (mark != kPictureMark || size != length + head) reader.fail();
    return resourceRead(reader, reader.take(length), "picture", offset);
}

Resource<std::string_view> ResourceFile::string(std::size_t offset) const {
    RecordReader reader(bytes_, offset);
    const auto value = reader.take(reader.integer(4));
    return resourceRead(reader, value, "string", offset);
}

Resource<std::string_view> ResourceFile::text(std::size_t offset) const {
    RecordReader reader(bytes_, offset);
    auto length = reader.integer(1);
    if (length == 255) length = reader.integer(2);
    const auto value = reader.take(length);
    return resourceRead(reader, value, "text", offset);
}

Resource<std::vector<std::string_view>> ResourceFile::list(std::size_t offset) const {
    RecordReader reader(bytes_, offset);
    auto items = takeList(reader);
    return resourceRead(reader, std::move(items), "list", offset);
}

Resource<std::vector<std::int32_t>> ResourceFile::itemData(std::size_t offset) const {
    RecordReader reader(bytes_, offset);
    std::vector<std::int32_t> numbers;
    for (const auto text : takeList(reader)) numbers.push_back(itemNumber(text, reader));
    return resourceRead(reader, std::move(numbers), "list of numbers", offset);
}

Resource<std::vector<std::string_view>> ResourceFile::propertyPages(std::size_t offset) const {
    RecordReader reader(bytes_, offset);
    std::vector<std::string_view> pages;
    const auto count = reader.integer(4);
    while (reader.good() && pages.size() < count) pages.push_back(takePage(reader));
    return resourceRead(reader, std::move(pages), "list of property pages", offset);
}

Resource<std::string_view> ResourceFile::binary(std::size_t offset) const {
    RecordReader reader(bytes_, offset);
    const auto value = reader.take(reader.integer(4));
    return resourceRead(reader, value, "data", offset);
}

std::string pictureRecord(std::string_view image, bool ofPropertyBag) {
    std::string picture(ofPropertyBag ? kPictureClass : std::string_view());
    picture.append(kPictureMark).append(integerBytes(image.size(), 4)).append(image);
    return stringRecord(picture);
}

std::string stringRecord(std::string_view text) { return integerBytes(text.size(), 4).append(text); }

std::string textRecord(std::string_view text) {
    constexpr std::size_t kLongLength = 255;
    const bool isShort = text.size() < kLongLength;
    const auto length = isShort ? integerBytes(text.size(), 1) : "\xFF" + integerBytes(text.size(), 2);
    return length + std::string(text);
}

std::string listRecord(const std::vector<std::string>& items) { return itemsRecord(items, 0); }

/// The designer reserves two characters more than the longest number has.
std::string itemDataRecord(const std::vector<std::string>& numbers) { return itemsRecord(numbers, 2); }

std::optional<std::string> withRecords(std::string onDisk, const UnsavedRecords& records) {
    if (records.from > onDisk.size() && records.from - onDisk.size() > kLargestResourceGap) return {};
    onDisk.resize(records.from);
    return onDisk + records.bytes;
}

} // namespace host
