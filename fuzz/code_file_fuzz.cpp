// Any bytes are written back unchanged as a source file, and its lines map to the lines of the code window.
#include "Host/files/code_file.h"
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const auto parts = host::splitSource(bytes);
    host::CodeText code(parts.code, basic::CodePage::windows1252(), host::ownLineEnd(bytes));
    if (std::string(parts.designer) + std::string(parts.attributes) + code.bytes() != bytes) std::abort();
    host::attributeValue(parts.attributes, "VB_Name");
    for (std::size_t line = 1; line <= code.count(); ++line)
        if (code.windowLine(code.physicalLine(line)) != line) std::abort();
    const auto count = code.count();
    code.insert(1, "inserted");
    if (code.count() != count + 1 || code.line(1) != "inserted") std::abort();
    code.remove(1, code.count());
    return code.count() == 0 ? 0 : (std::abort(), 1);
}
