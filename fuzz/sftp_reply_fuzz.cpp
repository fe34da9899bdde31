// Replies of an untrusted handheld, parsed as each kind of reply.
#include "Components/QLPipe/linux_handheld/sftp_packets.h"
#include <cstddef>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string_view reply(reinterpret_cast<const char*>(bytes), size);
    qlpipe::PacketReader names{reply};
    for (auto count = names.number(); count > 0 && names.isWhole(); --count) {
        if (names.text().size() + names.text().size() > size) std::abort();
        (void)names.attributes();
    }
    qlpipe::PacketReader status{reply};
    status.number();
    if (status.text().size() > size) std::abort();
    qlpipe::PacketReader room{reply};
    while (room.isWhole() && !room.isAtEnd()) room.number64();
    return 0;
}
