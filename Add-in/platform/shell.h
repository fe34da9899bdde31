#pragma once
#include <string>

namespace fernwick {

/// Starts programs and opens documents without waiting for them.
class Shell {
public:
    virtual ~Shell() = default;
    /// Starts a command line. Returns its task, or 0 if its program is not installed. Error 53 if it cannot be started.
    virtual int Start(const std::string& commandLine) = 0;
    /// Opens a document, folder or address with the program registered for it.
    virtual void Open(const std::string& document) = 0;
};

} // namespace fernwick
