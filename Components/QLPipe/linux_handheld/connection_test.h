#pragma once
// Tests a connection while the user's window stays alive.
#include "Components/QLPipe/linux_handheld/connection_probe.h"
#include "Components/QLPipe/linux_handheld/ssh_session.h"
#include <memory>
#include <optional>
#include <string>

namespace qlpipe {

struct ConnectionResult {
    bool succeeded = false;
    /// What the user should know.
    std::string text;
    /// Set if the test failed because the handheld is not known yet.
    std::optional<UnknownHostKey> unknownKey;
};

/// One test, in a thread of its own, which it never waits for. Destroying it cancels the test.
class ConnectionTest {
public:
    /// The longest test.
    static constexpr std::chrono::milliseconds kPatience{10'000};

    explicit ConnectionTest(SshTarget target, std::chrono::milliseconds patience = kPatience);
    ConnectionTest(const ConnectionTest&) = delete;
    ~ConnectionTest();

    const SshTarget& target() const { return target_; }
    /// Returns nothing while the test runs. After `patience` it is cancelled, and the result is that no answer came.
    [[nodiscard]] std::optional<ConnectionResult> result();

private:
    struct State;
    static void run(const std::shared_ptr<State>& state, const SshTarget& target, std::chrono::milliseconds patience);

    SshTarget target_;
    std::chrono::milliseconds patience_;
    std::chrono::steady_clock::time_point end_;
    std::shared_ptr<State> state_;
};

} // namespace qlpipe
