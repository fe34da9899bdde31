// Increments the revision in a project's file. No verb does that.
#include "Add-in/project/stored/application_info.h"
#include "Basic/runtime_error.h"
#include "Host/system/file_system.h"
#include <cstdio>

int main(int count, char** arguments) {
    if (count != 2) return 2;
    host::FileSystem files;
    const fernwick::ApplicationInfo project{files, arguments[1]};
    const auto failed = basic::attempt([&] {
        if (project.incrementsRevision()) project.incrementRevision();
    });
    if (failed.Number != 0) std::fprintf(stderr, "%s\n", failed.Description.c_str());
    return failed.Number == 0 ? 0 : 1;
}
