// Resource files: for any bytes and offset, a record is within the bytes.
#include "Host/files/resource_file.h"
#include <cstdlib>

namespace {

void within(const host::ResourceFile& file, std::string_view view) {
    if (view.empty()) return;
    const auto& bytes = file.bytes();
    if (view.data() < bytes.data() || view.data() + view.size() > bytes.data() + bytes.size()) std::abort();
}

void within(const host::ResourceFile& file, const std::vector<std::string_view>& views) {
    for (const auto view : views) within(file, view);
    if (views.size() > file.bytes().size()) std::abort();
}

/// A record that is appended to any bytes is read back, and all bytes before it stay.
void checkAppended(const std::string& before, const std::string& content) {
    const auto at = before.size();
    const auto with = [&](const std::string& record) { return host::ResourceFile(before + record); };
    const auto check = [](bool good) {
        if (!good) std::abort();
    };
    const auto number = std::to_string(at);
    check(with(host::pictureRecord(content, true)).picture(at).value == content);
    check(with(host::pictureRecord(content, false)).picture(at).value == content);
    check(with(host::stringRecord(content)).string(at).value == content);
    if (content.size() <= host::kLongestText) check(with(host::textRecord(content)).text(at).value == content);
    const auto numbers = with(host::itemDataRecord({number, "-1"}));
    check(numbers.itemData(at).value == std::vector{std::int32_t(at), -1});
    if (content.size() > host::kLongestListItem) return;
    const auto list = with(host::listRecord({content, "", number}));
    check(list.list(at).value == std::vector<std::string_view>{content, "", number});
    check(list.bytes().substr(0, at) == before);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) return 0;
    const std::size_t offset = data[0] | std::size_t(data[1]) << 8;
    const host::ResourceFile file(std::string(reinterpret_cast<const char*>(data) + 2, size - 2));
    within(file, file.picture(offset).value);
    within(file, file.string(offset).value);
    within(file, file.text(offset).value);
    within(file, file.binary(offset).value);
    within(file, file.list(offset).value);
    within(file, file.propertyPages(offset).value);
    if (file.itemData(offset).value.size() > file.bytes().size()) std::abort();
    const auto half = file.bytes().size() / 2;
    checkAppended(file.bytes().substr(0, half), file.bytes().substr(half));
    return 0;
}
