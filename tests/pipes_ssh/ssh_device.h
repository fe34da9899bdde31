#pragma once
// A handheld for tests: this computer, accessed by SSH.
#include "Components/QLPipe/base/ssh_messages.h"
#include "Components/QLPipe/linux_handheld/ssh_storage.h"
#include "tests/pipes_ssh/ssh_server.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace test {

/// Returns the error thrown by a step, or number 0.
template <class Step>
qlpipe::TransferError transferErrorOf(Step&& step) {
    try {
        step();
        return {0, "no error"};
    } catch (const qlpipe::TransferError& error) { return error; }
}

/// Expects an error of this row whose text contains `words`.
inline void expectError(const qlpipe::TransferError& error, qlpipe::SshMessage message,
                        const std::vector<std::string>& words = {}) {
    EXPECT_EQ(error.number, std::int32_t(message)) << error.text;
    for (const auto& word : words) EXPECT_THAT(error.text, testing::HasSubstr(word));
    EXPECT_EQ(error.text.find_first_of("{}"), error.text.npos) << "a placeholder was left in: " << error.text;
}

/// A test with its own SSH server.
class SshDevice : public testing::Test {
protected:
    qlpipe::SshTarget target() const { return targetAt(server.port); }
    qlpipe::SshTarget targetAt(std::uint16_t port) const {
        return {"127.0.0.1",
                port,
                qlpipe::userName(),
                server.folder / "user_key",
                server.folder / "device",
                server.folder / "known_hosts",
                false};
    }
    /// Generous timeouts for busy machines.
    static qlpipe::SshTimeouts patient() {
        using namespace std::chrono_literals;
        return {30s, 30s, 30s};
    }
    std::unique_ptr<qlpipe::SshStorage> connect() const {
        return std::make_unique<qlpipe::SshStorage>(target(), patient());
    }
    qlpipe::TransferError refusal(const qlpipe::SshTarget& to) const {
        return transferErrorOf([&] { qlpipe::SshStorage{to, patient()}; });
    }
    std::string onDevice(const std::string& name) const { return server.folder.read("device/" + name); }
    bool isOnDevice(const std::string& name) const {
        return std::filesystem::exists(server.folder / ("device/" + name));
    }

    SshServer server;
};

inline void put(qlpipe::DeviceStorage& device, const std::string& name, std::string_view bytes) {
    const auto file = device.create(name);
    file->write(bytes);
    file->close();
}

/// Deploys an application of two files, replacing an existing one.
inline void deploy(qlpipe::DeviceStorage& device, const std::string& content) {
    device.remove("incoming");
    device.makeFolder("incoming/data");
    device.makeFolder("applications");
    put(device, "incoming/Game.qlx", content);
    put(device, "incoming/data/levels.txt", content + " levels");
    device.replaceFolder("incoming", "applications/Game");
}

} // namespace test
