// Any bytes are written back unchanged as a project file, and settings are read back.
#include "Host/files/library_reference.h"
#include "Host/files/project_file.h"
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const auto page = basic::CodePage::windows1252();
    host::ProjectFile file(bytes, page);
    if (file.bytes() != bytes) std::abort();
    for (const auto& member : file.members()) {
        host::parseReferenceLine(member.content.value);
        host::parseObjectLine(member.content.value);
    }
    file.setSetting("Title", "A \"title\"");
    file.writeProperty("Section", "Key", " = value ");
    const host::ProjectFile again(file.bytes(), page);
    if (again.readProperty("Section", "Key") != " = value ") std::abort();
    return 0;
}
