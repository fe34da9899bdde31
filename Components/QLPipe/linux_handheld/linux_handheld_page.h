#pragma once
// The page of Linux handhelds: the settings of the project, the user's own connection, and its test.
#include "Add-in/platform/event_loop.h"
#include "Components/QLPipe/linux_handheld/connection_test.h"
#include "Components/QLPipe/settings/settings_page.h"
#include <functional>

namespace qlpipe {

class LinuxHandheldPage final : public SettingsPage, public std::enable_shared_from_this<LinuxHandheldPage> {
public:
    /// `target` makes the connection of the values in the fields, and throws TransferError if it cannot.
    LinuxHandheldPage(fernwick::Interaction& user, fernwick::EventLoop& loop,
                      std::function<SshTarget(const SettingValues&)> target);
    fernwick::Label lblIgnored{this, "lblIgnored"};
    fernwick::Label lblTest{this, "lblTest"};
    fernwick::CommandButton btnTest;

    /// Shows which settings of the project are ignored; "" for none.
    void showIgnored(const std::string& names);
    void leave() override { endTest(); }

private:
    void btnTest_Click();
    void startTest(const SshTarget& target);
    void endTest();
    void examineTest();
    void reportTest(const SshTarget& target, const ConnectionResult& result);
    /// Returns whether the user trusts the key and it was stored.
    bool acceptsKey(const SshTarget& target, const UnknownHostKey& key);
    void say(const std::string& text, int icon) { user_.MsgBox(text, icon, "Fernwick"); }

    fernwick::EventLoop& loop_;
    std::function<SshTarget(const SettingValues&)> target_;
    std::unique_ptr<ConnectionTest> test_;
    fernwick::Subscription turn_;
};

} // namespace qlpipe
