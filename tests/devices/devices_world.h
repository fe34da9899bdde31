#pragma once
// Design targets, classes and type libraries defined by the test.
#include "tests/support/add_in_world.h"
#include "tests/support/scripted_user.h"
#include <set>

namespace test {

struct ListedTarget : designtargetaccess::IQLDesignTarget {
    explicit ListedTarget(std::string k) : key(std::move(k)) {}
    std::string key, platform = "Palm OS", name = "&Palm OS", pipe = "QLPipePalmOS";
    std::string color = "16777215", fontSize = "12", width = "160", height = "160", fontName = "QLPalm", style = "1";
    std::map<std::string, std::string> options;
    std::vector<std::string> clsids, categories, references;

    std::string Key() const override { return key; }
    std::string PlatformName() const override { return platform; }
    std::string Name() const override { return name; }
    std::string RequiredPipeProgID() const override { return pipe; }
    std::string DefaultFormColor() const override { return color; }
    std::string DefaultFontSize() const override { return fontSize; }
    std::string DefaultFormWidth() const override { return width; }
    std::string DefaultFormHeight() const override { return height; }
    std::string DefaultFontName() const override { return fontName; }
    std::string TavletStyleID() const override { return style; }
    bool GetOption(const std::string& option, std::string& value) const override {
        if (!options.contains(option)) return false;
        value = options.at(option);
        return true;
    }
    void GetSupportedTavlets(std::vector<std::string>& ids, std::vector<std::string>&,
                             std::vector<std::string>& groups) const override {
        ids = clsids;
        groups = categories;
    }
    std::int32_t NumSupportedTavlets() const override { return std::int32_t(clsids.size()); }
    void GetSupportedReferences(std::vector<std::string>& guids) const override { guids = references; }
    std::int32_t NumSupportedReferences() const override { return std::int32_t(references.size()); }
    designtargetaccess::ReferenceValidity ValidateReference(const std::string&) const override { return {}; }
    bool FindModule(const std::string&) const override { return false; }
    bool IsTabStopOff(const std::string&) const override { return false; }
    void GetPropertyDefaults(std::vector<std::string>&, std::vector<std::string>&) const override {}
    std::int32_t NumPropertyDefaults() const override { return 0; }
    std::string VBPTemplate() const override { return "/templates/" + key + ".vbp"; }
    std::string FormTemplate() const override { return "/templates/" + key + ".frm"; }
    std::string ModuleTemplate() const override { return "/templates/" + key + ".bas"; }
    std::string ClassModuleTemplate() const override { return "/templates/" + key + ".cls"; }
};

struct ListedTargets : designtargetaccess::IQLDesignTargetMgr {
    std::vector<basic::Ref<ListedTarget>> list;
    int initialized = 0;
    /// The index whose target cannot be had, and whether counting fails and questions for a key.
    int failingIndex = -1;
    bool countFails = false, keysFail = false;

    std::int32_t Count() const override {
        if (countFails) throw basic::RuntimeError(70);
        return std::int32_t(list.size());
    }
    void Initialize() override { ++initialized; }
    bool GetDesignTarget(const std::string& key,
                         basic::Ref<designtargetaccess::IQLDesignTarget>& target) const override {
        if (keysFail) throw basic::RuntimeError(70);
        for (const auto& candidate : list)
            if (candidate && candidate->key == key) target = candidate;
        return bool(target);
    }
    bool FindDesignTarget(const std::string& key, std::int32_t&) const override {
        basic::Ref<designtargetaccess::IQLDesignTarget> target;
        return found.contains(key) || GetDesignTarget(key, target);
    }
    /// Keys that are found although they have no target.
    std::set<std::string> found;
    basic::Ref<designtargetaccess::IQLDesignTarget> GetDesignTargetByIndex(std::int16_t index) const override {
        if (index == failingIndex) throw basic::RuntimeError(70);
        return list.at(std::size_t(index));
    }
};

struct FixedValidation : qlpipe::IQLPipeValidation {
    explicit FixedValidation(bool s) : supported(s) {}
    bool supported;
    bool IsDeviceSupported(const std::string&) override { return supported; }
    bool ValidateFiles(const basic::Ref<vbide::VBProject>&, const qlpipe::ProjectFiles&) override { return true; }
    void SetEventSink(qlpipe::IQLPipeEvents&) override {}
    void SetDevice(const std::string&) override {}
};

struct DevicesPlatform : TracedPlatform {
    ScriptedUser user;
    fernwick::Platform platform{
        user,      loop,  registry, files,   processes, classes,   environment,
        clipboard, shell, screen,   windows, clock,     resources, TracedPlatform::platform.app};
};

template <class Machine>
class DevicesTestOver : public ::testing::Test, protected AddInWorld<Machine> {
protected:
    DevicesTestOver() {
        manager_ = this->classes.RegisterClass("DesignTargetAccess.QLDesignTargetMgr", [this] { return targets; });
        offerPipe("QLPipePalmOS", true);
    }
    ~DevicesTestOver() override { EXPECT_EQ(this->registry.openKeys(), 0U) << "a registry key stayed open"; }

    void offerPipe(const std::string& pipe, bool supports) {
        pipes_.push_back(this->classes.RegisterClass(pipe + ".Validation",
                                                     [supports] { return basic::make<FixedValidation>(supports); }));
    }
    basic::Ref<ListedTarget> addTarget(const std::string& key) {
        targets->list.push_back(basic::make<ListedTarget>(key));
        return targets->list.back();
    }
    void withoutManager() { manager_.reset(); }
    const std::vector<std::string>& reports() const { return this->errors.seen; }

    basic::Ref<ListedTargets> targets = basic::make<ListedTargets>();

private:
    std::shared_ptr<void> manager_;
    std::vector<std::shared_ptr<void>> pipes_;
};

using DevicesTest = DevicesTestOver<DevicesPlatform>;

} // namespace test
