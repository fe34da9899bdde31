// Sends one file to a Linux handheld like a pipe. Usage: sftp_upload PORT KEY KNOWN_HOSTS FOLDER FILE
#include "Components/QLPipe/linux_handheld/ssh_storage.h"
#include "Components/QLPipe/linux_handheld/user_account.h"
#include <cstdio>
#include <fstream>
#include <vector>

namespace {

void upload(qlpipe::DeviceStorage& device, const char* path) {
    std::ifstream file(path, std::ios::binary);
    std::vector<char> chunk(256 * 1024);
    device.makeFolder("bench");
    device.remove("bench/file");
    const auto target = device.create("bench/file");
    while (file.read(chunk.data(), std::streamsize(chunk.size())) || file.gcount() > 0)
        target->write({chunk.data(), std::size_t(file.gcount())});
    target->close();
}

} // namespace

int main(int count, char** arguments) {
    if (count != 6) return std::fprintf(stderr, "usage: sftp_upload PORT KEY KNOWN_HOSTS FOLDER FILE\n"), 2;
    try {
        qlpipe::SshStorage device{{"127.0.0.1", std::uint16_t(std::atoi(arguments[1])), qlpipe::userName(),
                                   arguments[2], arguments[4], arguments[3], false}};
        upload(device, arguments[5]);
        return 0;
    } catch (const qlpipe::TransferError& error) {
        std::fprintf(stderr, "%s\n", error.text.c_str());
        return 1;
    }
}
