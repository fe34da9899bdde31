#include "Components/Tamarik/library/file_function.h"

namespace tamarik {

OpenFile& fileToRead(Session& session, std::int32_t number) {
    OpenFile& file = session.files.at(number);
    const bool isFit = file.traits().mode == FileMode::Input || file.traits().mode == FileMode::Binary;
    if (!isFit || !file.traits().reads) throw basic::RuntimeError(basic::kBadFileMode);
    return file;
}

OpenFile& fileToPrint(Session& session, std::int32_t number) {
    OpenFile& file = session.files.at(number);
    if (file.traits().mode != FileMode::Output && file.traits().mode != FileMode::Append)
        throw basic::RuntimeError(basic::kBadFileMode);
    return file;
}

} // namespace tamarik
