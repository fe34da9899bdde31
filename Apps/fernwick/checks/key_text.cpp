#include "Apps/fernwick/checks/key_text.h"
#include "Host/files/text_file.h"

namespace cli {

void KeyText::add(std::string_view text) {
    add(text.size()); // so that "ab", "c" is not "a", "bc"
    text_ += text;
}

void KeyText::add(std::uint64_t number) { text_ += std::to_string(number) + '\n'; }

void KeyText::addStateOf(const std::string& path) {
    struct ::stat state {};
    add(path);
    if (::stat(path.c_str(), &state) != 0) return add(std::uint64_t{0});
    const auto stamp = host::stampOf(state, {});
    add(stamp.size);
    add(static_cast<std::uint64_t>(stamp.modifiedSeconds));
    add(static_cast<std::uint64_t>(stamp.modifiedNanoseconds));
    // Of the changes that leave the time of the content, or set it.
    add(stamp.inode);
    add(static_cast<std::uint64_t>(state.st_ctim.tv_sec));
    add(static_cast<std::uint64_t>(state.st_ctim.tv_nsec));
}

std::uint64_t KeyText::digest() const { return host::digestOf(text_); }

} // namespace cli
