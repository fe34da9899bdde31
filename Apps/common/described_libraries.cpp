#include "Apps/common/described_libraries.h"
#include "Basic/case_folding.h"
#include "Basic/runtime_error.h"
#include "Host/model/references/described_library.h"
#include "Host/system/type_description.h"
#include <algorithm>
#include <array>
#include <filesystem>
#include <string_view>

namespace apps {

namespace {

constexpr std::array<std::string_view, 4> kLanguageLibraries{
    "{00020430-0000-0000-C000-000000000046}", // OLE Automation
    "{000204EF-0000-0000-C000-000000000046}", // Visual Basic For Applications
    "{EA544A21-C82D-11D1-A3E4-00A0C90AEA82}", // Visual Basic runtime objects and procedures
    "{FCFB3D2E-A0FA-1068-A738-08002B3371B5}", // Visual Basic objects and procedures
};

} // namespace

const language::Library* DescribedLibraries::find(const std::string& guid) {
    if (!isRead_) read();
    const auto found = libraries_.find(basic::foldCase(guid));
    return found == libraries_.end() ? nullptr : &found->second;
}

void DescribedLibraries::read() {
    isRead_ = true;
    for (const auto& path : libraryDescriptions(installation_)) {
        // An invalid description counts as none; doctor reports it.
        (void)basic::attempt([&] {
            const auto description = host::readTypeDescription(path);
            libraries_[basic::foldCase(description.guid)] = host::libraryOf(description);
        });
    }
}

std::vector<std::string> libraryDescriptions(const std::string& installation) {
    std::vector<std::string> paths;
    for (const auto* folder : {"/tavlets", "/libraries"}) {
        std::error_code unreadable;
        for (const auto& entry : std::filesystem::directory_iterator(installation + folder, unreadable))
            if (entry.path().extension() == ".toml") paths.push_back(entry.path().string());
    }
    std::sort(paths.begin(), paths.end());
    return paths;
}

bool isLanguageLibrary(const std::string& guid) {
    return std::any_of(kLanguageLibraries.begin(), kLanguageLibraries.end(),
                       [&](std::string_view each) { return basic::equalNoCase(each, guid); });
}

} // namespace apps
