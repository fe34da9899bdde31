#include "Apps/fernwick/output/source_uri.h"
#include <filesystem>
#include <fmt/format.h>

namespace cli {

namespace {

std::string encoded(std::string_view path) {
    std::string uri;
    for (const unsigned char c : path) {
        const bool plain = std::isalnum(c) != 0 || std::string_view("-._~/").find(char(c)) != std::string_view::npos;
        uri += plain ? std::string(1, char(c)) : fmt::format("%{:02X}", c);
    }
    return uri;
}

/// Absolute and without symbolic links; as given if that fails.
std::string resolved(const std::string& path) {
    std::error_code failed;
    const auto real = std::filesystem::weakly_canonical(std::filesystem::absolute(path, failed), failed);
    return failed ? path : real.string();
}

} // namespace

std::string fileUri(const std::string& path) { return "file://" + encoded(path); }

SourceRoot::SourceRoot(const std::string& folder) : folder_(resolved(folder.empty() ? "." : folder)) {
    if (!folder_.ends_with('/')) folder_ += '/';
}

std::string SourceRoot::relativeUri(const std::string& path) const {
    const auto real = resolved(path);
    return real.starts_with(folder_) ? encoded(std::string_view(real).substr(folder_.size())) : std::string();
}

std::string SourceRoot::uri() const { return fileUri(folder_); }

} // namespace cli
