#pragma once
// The heads of description files, each read once while its file stays as it is.
#include "Host/files/text_file.h"
#include "Host/system/type_description.h"
#include <map>
#include <string>

namespace host {

class DescriptionHeads {
public:
    /// As readTypeDescriptionHead. The head is valid until the next call.
    const TypeDescription& of(const std::string& file);

private:
    struct Head {
        FileStamp stamp; ///< without a digest
        TypeDescription description;
    };
    std::map<std::string, Head> read_;
};

} // namespace host
