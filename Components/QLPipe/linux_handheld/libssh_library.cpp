#include "Components/QLPipe/linux_handheld/libssh_library.h"

namespace qlpipe {

const LibsshLibrary& libssh() {
    static const LibsshLibrary loaded;
    return loaded;
}

} // namespace qlpipe
