#include "Components/QLPipe/base/late_library.h"
#include "Components/QLPipe/base/pipe_messages.h"
#include <dlfcn.h>

namespace qlpipe {

LateLibrary::LateLibrary(const char* fileName, const char* package)
    : fileName_(fileName), package_(package), library_(::dlopen(fileName, RTLD_NOW | RTLD_LOCAL)) {
    if (!library_) throw transferError(kLibraryMissing, {{"library", fileName_}, {"package", package_}});
}

LateLibrary::Symbol LateLibrary::operator[](const char* function) const {
    void* const address = ::dlsym(library_, function);
    if (!address) throw transferError(kLibraryMissing, {{"library", fileName_}, {"package", package_}});
    return Symbol{address};
}

} // namespace qlpipe
