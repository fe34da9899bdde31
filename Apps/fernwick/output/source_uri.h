#pragma once
#include <string>

namespace cli {

/// Returns the file: URI of an absolute path.
std::string fileUri(const std::string& path);

/// Names files in SARIF: those below the root relative to it, so that a scanner finds them in another checkout.
class SourceRoot {
public:
    /// "" for the current folder.
    explicit SourceRoot(const std::string& folder);
    /// Returns the path from the root as a URI; "" for a file outside.
    std::string relativeUri(const std::string& path) const;
    /// Returns the root's own URI, which ends in "/".
    std::string uri() const;

private:
    std::string folder_;
};

} // namespace cli
