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
    return 0;
}
