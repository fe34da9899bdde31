#pragma once
// The objects of a device family's pipe.
#include "Add-in/platform/object.h"
#include <string>

namespace qlpipe {

/// Registered under the pipe's ProgID followed by ".Validation".
class IQLPipeValidation : public fernwick::Object {
public:
    /// Whether devices of this design target key can be served here.
    virtual bool IsDeviceSupported(const std::string& key) = 0;
};

} // namespace qlpipe
