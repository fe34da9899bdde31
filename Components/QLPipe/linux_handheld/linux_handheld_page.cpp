#include "Components/QLPipe/linux_handheld/linux_handheld_page.h"
#include "Components/QLPipe/base/message_values.h"
#include "Components/QLPipe/linux_handheld/known_hosts_file.h"

namespace qlpipe {

namespace {

constexpr char kTest[] = "&Test Connection", kCancel[] = "Cancel &Test";
constexpr char kAcceptKey[] =
    "The handheld {handheld} is not known yet. Its key is\n\n"
    "{kind} {fingerprint}\n\n"
    "Compare it with the output of this command on the handheld itself:\n\n"
    "ssh-keygen -lf /etc/ssh/ssh_host_{keyFile}_key.pub\n\n"
    "If they differ, another device answers at this address. Do you trust this handheld, and want to store its key in "
    "{knownHosts}?";
constexpr int kTurn = 50; // milliseconds

} // namespace

LinuxHandheldPage::LinuxHandheldPage(fernwick::Interaction& user, fernwick::EventLoop& loop,
                                     std::function<SshTarget(const SettingValues&)> target)
    : SettingsPage(user, "LinuxHandheldPage", kLinuxHandheldSettings),
      btnTest(this, "btnTest", kTest, &LinuxHandheldPage::btnTest_Click),
      loop_(loop),
      target_(std::move(target)) {}

void LinuxHandheldPage::showIgnored(const std::string& names) {
    lblIgnored.Visible(!names.empty());
    lblIgnored.Caption("These settings are yours. The project's own values are ignored:\n" + names);
}

void LinuxHandheldPage::btnTest_Click() {
    if (test_) return endTest();
    if (!isLoaded()) return;
    try {
        startTest(target_(typed()));
    } catch (const TransferError& error) { say(error.text, fernwick::vbExclamation); }
}

/// The page may be released during a turn, by a box that it shows.
void LinuxHandheldPage::startTest(const SshTarget& target) {
    test_ = std::make_unique<ConnectionTest>(target);
    btnTest.Caption(kCancel);
    lblTest.Caption(fillIn("Connecting to {handheld}...", {{"handheld", target.address()}}));
    turn_ = loop_.StartTimer(kTurn, [page = weak_from_this()] {
        if (const auto alive = page.lock()) alive->examineTest();
    });
}

void LinuxHandheldPage::endTest() {
    turn_ = {};
    test_.reset();
    btnTest.Caption(kTest);
    lblTest.Caption("");
}

void LinuxHandheldPage::examineTest() {
    const auto result = test_ ? test_->result() : std::nullopt;
    if (!result) return;
    const auto target = test_->target();
    endTest();
    reportTest(target, *result);
}

void LinuxHandheldPage::reportTest(const SshTarget& target, const ConnectionResult& result) {
    if (!result.unknownKey)
        return say(result.text, result.succeeded ? fernwick::vbInformation : fernwick::vbExclamation);
    if (acceptsKey(target, *result.unknownKey) && isLoaded()) startTest(target);
}

bool LinuxHandheldPage::acceptsKey(const SshTarget& target, const UnknownHostKey& key) {
    const auto question = fillIn(kAcceptKey, {{"handheld", target.address()},
                                              {"kind", key.kind},
                                              {"fingerprint", key.fingerprint},
                                              {"keyFile", key.fileKind},
                                              {"knownHosts", target.knownHosts}});
    constexpr int kYesNo = fernwick::vbYesNo + fernwick::vbExclamation + fernwick::vbDefaultButton2;
    if (user_.MsgBox(question, kYesNo, "Fernwick") != fernwick::vbYes) return false;
    try {
        appendKnownHost(target.knownHosts, key.line);
        return true;
    } catch (const TransferError& error) {
        say(error.text, fernwick::vbExclamation);
        return false;
    }
}

} // namespace qlpipe
