#include "Components/QLPipe/linux_handheld/connection_test.h"
#include "Components/QLPipe/base/ssh_messages.h"
#include <atomic>
#include <exception>
#include <mutex>
#include <thread>

namespace qlpipe {

/// Shared with the thread, which may end after the test: looking up a name cannot be interrupted.
struct ConnectionTest::State {
    std::atomic<bool> isCancelled = false;
    std::mutex guard;
    std::optional<ConnectionResult> result;
};

namespace {

ConnectionResult resultOf(const SshTarget& target, const SshTimeouts& timeouts) {
    try {
        return {true, probeConnection(target, timeouts), {}};
    } catch (const UnknownHostKey& key) { return {false, key.text, key}; } catch (const TransferError& error) {
        return {false, error.text, {}};
    } catch (const ConnectionCancelled&) { return {}; } catch (const std::exception& error) {
        return {false, error.what(), {}};
    }
}

} // namespace

void ConnectionTest::run(const std::shared_ptr<State>& state, const SshTarget& target,
                         std::chrono::milliseconds patience) {
    auto result = resultOf(target, {patience, patience, patience, &state->isCancelled});
    const std::lock_guard lock{state->guard};
    state->result = std::move(result);
}

ConnectionTest::ConnectionTest(SshTarget target, std::chrono::milliseconds patience)
    : target_(std::move(target)),
      patience_(patience),
      end_(std::chrono::steady_clock::now() + patience),
      state_(std::make_shared<State>()) {
    std::thread{[state = state_, to = target_, patience] { run(state, to, patience); }}.detach();
}

ConnectionTest::~ConnectionTest() { state_->isCancelled = true; }

std::optional<ConnectionResult> ConnectionTest::result() {
    {
        const std::lock_guard lock{state_->guard};
        if (state_->result) return state_->result;
    }
    if (std::chrono::steady_clock::now() < end_) return {};
    state_->isCancelled = true;
    return ConnectionResult{
        false,
        sshError(SshMessage::NoAnswer, {{"handheld", target_.address()}, {"seconds", secondsText(patience_)}}).text,
        {}};
}

} // namespace qlpipe
