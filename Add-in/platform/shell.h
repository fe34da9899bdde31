#pragma once
#include <string>

namespace fernwick {

/// Programs and documents that are started and left alone.
class Shell {
public:
    virtual ~Shell() = default;
    /// A command line. Error 53 when its program is not there.
    virtual void Start(const std::string& commandLine) = 0;
    /// A document, folder or address, with the program that is registered for it.
    virtual void Open(const std::string& document) = 0;
};

} // namespace fernwick
