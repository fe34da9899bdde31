#pragma once
// The binary companion of a form: .frx .ctx .pgx .dsx. It has consecutive records and no header; the kind of a record
// is known only from the property that refers to it.
#include "Host/files/text_file.h"
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// A file is not filled up for references that are further beyond its end.
inline constexpr std::size_t kLargestResourceGap = 16 * 1024 * 1024;

/// Records at the end of a resource file that are not on disk yet.
struct UnsavedRecords {
    std::string file; ///< its name
    std::size_t from = 0;
    std::optional<FileStamp> base; ///< of the file on disk as it was read; none for a new one
    std::string bytes;             ///< empty for none
};
/// Returns the whole file: what is on disk, up to the records, and them. Nothing if too much is missing before them.
std::optional<std::string> withRecords(std::string onDisk, const UnsavedRecords& records);

/// The content of a record, or the type's default and the reason why it could not be read.
template <class T>
struct Resource {
    T value{};
    std::string warning; ///< "" if the record is sound
    explicit operator bool() const { return warning.empty(); }
};

/// Reads records from the bytes of a companion. Offsets and lengths come from files that are often stale (a copied
/// form, an older companion), so each is checked against the size of the file and none is used to allocate memory.
/// Texts are in the code page of the project; all views point into this object's bytes. Integers are little-endian.
class ResourceFile {
public:
    explicit ResourceFile(std::string bytes) : bytes_(std::move(bytes)) {}
    const std::string& bytes() const { return bytes_; }

    /// Returns the image file of a picture or icon, "" for an empty picture. There are two layouts: that of built-in
    /// objects (u32 n+8, "lt", u32 n) and that of a property bag (with a CLSID before the "lt").
    Resource<std::string_view> picture(std::size_t offset) const;
    /// The string of a `$"file":offset` reference: u32 length, bytes.
    Resource<std::string_view> string(std::size_t offset) const;
    /// The text of a multi-line text box: u8 length, or 255 and u16 length, bytes.
    Resource<std::string_view> text(std::size_t offset) const;
    /// The items of a list box: u16 count, u16 hint, count times (u16 length, bytes); an empty list may have no
    /// hint. No item is longer than the hint, which distinguishes a list from other bytes.
    Resource<std::vector<std::string_view>> list(std::size_t offset) const;
    /// The numbers of a list box's items: a list of decimal texts.
    Resource<std::vector<std::int32_t>> itemData(std::size_t offset) const;
    /// The property pages of a control: u32 count, count times (u16 length with the NUL, bytes, NUL).
    Resource<std::vector<std::string_view>> propertyPages(std::size_t offset) const;
    /// Any other record: u32 size, bytes.
    Resource<std::string_view> binary(std::size_t offset) const;

private:
    std::string bytes_;
};

// ---- records to append, in the layouts above ------------------------------------------------------------------------
constexpr std::size_t kLongestListItem = 0xFFFF, kMostListItems = 0xFFFF, kLongestText = 0xFFFF;

std::string pictureRecord(std::string_view image, bool ofPropertyBag);
std::string stringRecord(std::string_view text);
/// At most kLongestText bytes.
std::string textRecord(std::string_view text);
/// At most kMostListItems, each with at most kLongestListItem bytes.
std::string listRecord(const std::vector<std::string>& items);
/// As listRecord, of decimal texts.
std::string itemDataRecord(const std::vector<std::string>& numbers);

} // namespace host
