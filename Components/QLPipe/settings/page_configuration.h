#pragma once
// The configuration object of a family with a page.
#include "Add-in/platform/pipes.h"
#include "Components/QLPipe/base/pipe_services.h"
#include "Components/QLPipe/settings/settings_page.h"

namespace qlpipe {

class PageConfiguration : public IQLPipeConfiguration {
public:
    PageConfiguration(const PipeServices& services, std::string family, const char* pageType,
                      const PipeSettings& settings)
        : services_(services), family_(std::move(family)), pageType_(pageType), settings_(settings) {}
    ~PageConfiguration() override { release(); }

    basic::Ref<fernwick::Form> CreatePage(const basic::Ref<vbide::VBProject>& project, std::int32_t,
                                          std::int32_t) override;
    void ShowPage() override;
    void HidePage() override;
    bool ValidatePage() override;
    void ApplyPage() override;
    void ClosePage() override { release(); }
    bool HasPage() override { return true; }
    std::string PageName() override { return settings_.page; }

protected:
    virtual std::shared_ptr<SettingsPage> makePage();
    /// Called when the page shows the stored values.
    virtual void pageShown(SettingsPage&) {}
    /// Returns the stored values of all settings.
    virtual SettingValues stored();
    /// Stores the values that changed, or none. Errors go to the caller.
    virtual void store(const SettingValues& before, const SettingValues& values);

    PipeServices& services() { return services_; }
    const PipeSettings& settings() const { return settings_; }
    const basic::Ref<vbide::VBProject>& project() const { return project_; }
    /// The design target whose limits apply.
    const std::string& device() const { return device_; }

private:
    void release();
    std::string problems() const { return problemsOf(settings_, page_->typed(), limits_); }
    void refuse(const std::string& what, const std::string& why);

    PipeServices services_;
    std::string family_;
    const char* pageType_;
    const PipeSettings& settings_;
    basic::Ref<vbide::VBProject> project_;
    std::string device_;
    TargetLimits limits_;
    /// What the fields had when they were last read or stored.
    SettingValues shown_;
    std::shared_ptr<SettingsPage> page_;
};

} // namespace qlpipe
