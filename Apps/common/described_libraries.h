#pragma once
// The contents of the libraries of the installation, for the compiler.
#include "Components/Language/library.h"
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace apps {

/// Reads the descriptions on first use.
class DescribedLibraries {
public:
    explicit DescribedLibraries(std::string installation) : installation_(std::move(installation)) {}

    /// Returns the library with this GUID (in braces, in either case), or null if the installation does not describe it.
    const language::Library* find(const std::string& guid);

private:
    void read();

    std::string installation_;
    bool isRead_ = false;
    std::map<std::string, language::Library> libraries_; // by folded GUID
};

/// The files in which an installation describes libraries, sorted.
[[nodiscard]] std::vector<std::string> libraryDescriptions(const std::string& installation);

/// True for the libraries that every program has: of the language, of forms, and of their fonts and pictures.
[[nodiscard]] bool isLanguageLibrary(const std::string& guid);

} // namespace apps
