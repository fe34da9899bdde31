#include "Apps/common/checked_program.h"
#include "Components/Language/foreign.h"
#include <algorithm>
#include <thread>

namespace apps {

qltoolkit::ProgramOptions programOf(const CheckedProject& project, DescribedLibraries& libraries, bool isWhole) {
    qltoolkit::ProgramOptions program;
    program.projectName = project.name;
    program.threads = std::max(1U, std::thread::hardware_concurrency());
    program.warnsOfDevices = project.isForDevices;
    program.lacksFiles = !isWhole;
    for (const auto& guid : project.libraries) {
        if (isLanguageLibrary(guid)) continue;
        const auto* library = libraries.find(guid);
        program.isIncomplete |= !library;
        // Of well-known libraries the classes of controls are known at least.
        if (!library) library = language::foreignLibrary(guid);
        if (library) program.libraries.push_back(library);
    }
    return program;
}

} // namespace apps
