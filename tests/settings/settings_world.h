#pragma once
// The settings dialog over a host in memory, with a pipe that has a page.
#include "tests/lifecycle/lifecycle_world.h"

namespace test {

/// Records what the dialog asks of a pipe's page.
class FakeConfiguration final : public qlpipe::IQLPipeConfiguration {
public:
    FakeConfiguration(Trace& trace, fernwick::Interaction& user, std::string name, const bool& isValid, int& alive)
        : trace_(trace), user_(user), name_(std::move(name)), isValid_(isValid), alive_(alive) {
        ++alive_;
    }
    ~FakeConfiguration() override { --alive_; }

    Ref<fernwick::Form> CreatePage(const Ref<vbide::VBProject>& project, std::int32_t top, std::int32_t left) override {
        trace_.effect("create page of " + (project ? project->Name() : "nothing") + " at " + std::to_string(top) + "," +
                      std::to_string(left));
        page_ = std::make_shared<Page>(user_);
        page_->Load();
        return page_;
    }
    void ShowPage() override {
        trace_.effect("show " + name_);
        page_->Visible(true);
    }
    void HidePage() override {
        trace_.effect("hide " + name_);
        page_->Visible(false);
    }
    bool ValidatePage() override {
        trace_.effect("validate " + name_);
        return isValid_;
    }
    void ApplyPage() override { trace_.effect("apply " + name_); }
    void ClosePage() override {
        trace_.effect("close " + name_);
        page_->Unload();
    }
    bool HasPage() override { return !name_.empty(); }
    std::string PageName() override { return name_; }

private:
    struct Page : fernwick::Form {
        using Form::Form;
        const char* typeName() const override { return "FakePage"; }
    };
    Trace& trace_;
    fernwick::Interaction& user_;
    std::string name_;
    const bool& isValid_;
    int& alive_;
    std::shared_ptr<Page> page_;
};

struct SettingsWorld : ProjectsWorld {
    using Dialog = fernwick::frmQuinloftSettings;

    SettingsWorld() {
        buildInterface();
        targets.known = {"Palm-1", "Palm-2"};
        project = open("Game", "Palm-1");
    }
    /// Gives the pipe of the targets a page; one without a name if the name is empty.
    void givePage(const std::string& name) {
        configuration = classes.RegisterClass("FakePipe.Configuration", [this, name] {
            return basic::make<FakeConfiguration>(trace, user, name, pageIsValid, pagesAlive);
        });
    }
    /// Opens the dialog; `act` is what the user does, who cancels at the end.
    void show(
        const std::string& page, std::function<void()> act = [] {}, bool scan = false) {
        trace.effects.clear();
        user.whenShown["frmQuinloftSettings"] = [this, act](fernwick::Form&) {
            act();
            if (dialog.Visible()) dialog.btnCancel.press();
        };
        dialog.ShowQuinloftSettings(project, page, scan);
    }
    void showAny(std::function<void()> act = [] {}) { show("INVALID DIALOG NAME", std::move(act)); }
    /// Keys of the tree's nodes, those below a root indented.
    std::vector<std::string> nodes() const {
        std::vector<std::string> keys;
        for (const auto& node : dialog.treAvailableSettings.Nodes())
            keys.push_back((node.Parent.empty() ? "" : "  ") + node.Key);
        return keys;
    }
    /// Names of the frames that are visible.
    std::vector<std::string> frames() const {
        std::vector<std::string> names;
        for (const auto* control : dialog.Controls())
            if (dynamic_cast<const fernwick::Frame*>(control) && control->Visible()) names.push_back(control->Name);
        return names;
    }
    std::string stored(const std::string& key, const std::string& section = "Quinloft Global") const {
        const auto found = project->properties.find({section, key});
        return found == project->properties.end() ? "(none)" : found->second;
    }
    void store(const std::string& key, const std::string& value) { set(project, key, value); }

    Dialog& dialog = settingsDialog;
    Ref<TracedProject> project;
    bool pageIsValid = true;
    int pagesAlive = 0;
    std::shared_ptr<void> configuration;
};

} // namespace test
