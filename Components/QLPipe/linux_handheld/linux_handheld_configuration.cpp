#include "Components/QLPipe/linux_handheld/linux_handheld.h"
#include "Components/QLPipe/linux_handheld/linux_handheld_page.h"
#include "Components/QLPipe/settings/page_configuration.h"

namespace qlpipe {

namespace {

constexpr auto& kRows = kLinuxHandheldRows;

/// The values of the page: the project's, and the user's own for those that a project cannot have.
class LinuxHandheldConfiguration final : public PageConfiguration {
public:
    explicit LinuxHandheldConfiguration(const PipeServices& services)
        : PageConfiguration(services, "LinuxHandheld", "LinuxHandheldPage", kLinuxHandheldSettings) {}

private:
    std::shared_ptr<SettingsPage> makePage() override;
    void pageShown(SettingsPage& page) override;
    SettingValues stored() override;
    void store(const SettingValues& before, const SettingValues& values) override;
    static LinuxHandheldSettings changed(LinuxHandheldSettings user, const SettingValues& before,
                                         const SettingValues& values);
    void storeOwn(const LinuxHandheldSettings& user);
    LinuxHandheldSettings own() { return readUserSettings(services().registry, device()); }
    SshTarget targetOf(const SettingValues& values);
};

std::shared_ptr<SettingsPage> LinuxHandheldConfiguration::makePage() {
    return std::make_shared<LinuxHandheldPage>(services().user, services().loop,
                                               [this](const SettingValues& values) { return targetOf(values); });
}

void LinuxHandheldConfiguration::pageShown(SettingsPage& page) {
    static_cast<LinuxHandheldPage&>(page).showIgnored(ignoredProjectSettings(project()));
}

SettingValues LinuxHandheldConfiguration::stored() {
    auto values = readProjectValues(settings(), project());
    const auto user = own();
    for (std::size_t i = 0; i < values.size(); ++i)
        if (kRows[i].isOfUser) values[i] = user.*kRows[i].connection;
    return values;
}

LinuxHandheldSettings LinuxHandheldConfiguration::changed(LinuxHandheldSettings user, const SettingValues& before,
                                                          const SettingValues& values) {
    for (std::size_t i = 0; i < values.size(); ++i)
        if (kRows[i].isOfUser && values[i] != before[i]) user.*kRows[i].connection = values[i];
    return user;
}

void LinuxHandheldConfiguration::storeOwn(const LinuxHandheldSettings& user) {
    if (user != own()) writeUserSettings(services().registry, device(), user);
}

void LinuxHandheldConfiguration::store(const SettingValues& before, const SettingValues& values) {
    const auto old = own();
    const auto restore = [&] { (void)basic::attempt([&] { storeOwn(old); }); };
    if (const auto failed = basic::attempt([&] { storeOwn(changed(old, before, values)); }); failed.Number != 0) {
        restore();
        throw basic::RuntimeError(failed.Number, "Your settings of the connection could not be stored.");
    }
    const auto failed = basic::attempt([&] { PageConfiguration::store(before, values); });
    if (failed.Number == 0) return;
    restore();
    throw basic::RuntimeError(failed.Number, failed.Description);
}

/// The connection that a transfer would use if the fields were stored.
SshTarget LinuxHandheldConfiguration::targetOf(const SettingValues& values) {
    auto user = own();
    LinuxHandheldSettings ofProject;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (!kRows[i].connection) continue;
        (kRows[i].isOfUser ? user : ofProject).*kRows[i].connection = values[i];
    }
    return sshTarget(layered(ofProject, user), device());
}

} // namespace

basic::Ref<IQLPipeConfiguration> configureLinuxHandheld(const PipeServices& services) {
    return basic::make<LinuxHandheldConfiguration>(services);
}

} // namespace qlpipe
