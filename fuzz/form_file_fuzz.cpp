// Forms: any bytes are preserved, and edits are read back.
#include "Host/files/form_file.h"
#include "Host/files/property_value.h"
#include <cstdlib>

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

void readLiterals(const host::FormBlock& block) {
    block.eachProperty([&](std::string_view key, std::string_view literal) {
        require(host::parsePropertyValue(literal).text == literal);
        require(block.literal(key).has_value() || block.properties(key) != nullptr);
    });
    for (const auto& inner : block.objects()) readLiterals(*inner);
}

void edit(host::FormFile& form) {
    const auto root = form.root();
    const std::string key = root->properties("Tag") ? "Other" : "Tag";
    if (root->properties(key)) return;
    root->set(key, "\"fuzz\"");
    const auto again = host::FormFile::parse(form.text());
    require(again.root() && again.root()->literal(key) == "\"fuzz\"");
    require(again.code() == form.code());
    root->remove(key);
    require(!root->literal(key) || *root->literal(key) != "\"fuzz\"");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    auto form = host::FormFile::parse(text);
    require(form.text() == text);
    form.objects();
    form.version();
    form.firstCodeLine();
    if (!form.root()) return 0;
    readLiterals(*form.root());
    edit(form);
    return 0;
}
