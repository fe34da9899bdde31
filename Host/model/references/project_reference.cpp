#include "Host/model/references/project_reference.h"
#include "Host/files/native_path.h"
#include "Host/model/errors/host_errors.h"
#include <unistd.h>

namespace host {
namespace {

/// The IDE caches the description of a control library next to it, under this extension.
constexpr std::string_view kCachedDescription = ".oca";

} // namespace

ProjectReference::ProjectReference(LibraryReference line, std::string path, std::string name, bool builtIn, bool known)
    : line_(std::move(line)), path_(std::move(path)), name_(std::move(name)), builtIn_(builtIn), known_(known) {}

void ProjectReference::check() const {
    if (removed_) throwRemoved();
}

std::string ProjectReference::Name() const {
    check();
    return name_;
}

std::string ProjectReference::Guid() const {
    check();
    return line_.guid;
}

int ProjectReference::Major() const {
    check();
    return int(line_.major);
}

int ProjectReference::Minor() const {
    check();
    return int(line_.minor);
}

std::string ProjectReference::FullPath() const {
    check();
    return line_.kind == LibraryReference::Kind::Control ? withExtension(path_, kCachedDescription) : path_;
}

std::string ProjectReference::Description() const {
    check();
    return line_.description;
}

bool ProjectReference::BuiltIn() const {
    check();
    return builtIn_;
}

bool ProjectReference::IsBroken() const {
    check();
    return !known_ && ::access(path_.c_str(), F_OK) != 0;
}

} // namespace host
