#pragma once
// Design targets without data beyond their names, and the validation of their pipes.
#include "Add-in/platform/classes.h"
#include "Add-in/platform/design_targets.h"
#include "Add-in/platform/pipes.h"
#include <set>
#include <utility>
#include <vector>

namespace test {

/// Identifiers of the libraries and modules that the targets know.
struct KnownModules {
    std::set<std::string> references, modules;
    /// Identifiers of the libraries that each project must carry.
    std::vector<std::string> required;
    /// Identifiers of the controls that the targets support.
    std::vector<std::string> tavlets;
    /// Defaults of new controls, and classes whose TabStop is turned off.
    std::vector<std::pair<std::string, std::string>> defaults;
    std::set<std::string> tabStopOff;
};

/// Paths of each target's templates.
struct TargetTemplates {
    std::string project, form, module, classModule;
};

class FakeTarget : public designtargetaccess::IQLDesignTarget {
public:
    FakeTarget(std::string key, const KnownModules& knows, const TargetTemplates& templates)
        : key_(std::move(key)), knows_(knows), templates_(templates) {}
    std::string Key() const override { return key_; }
    std::string PlatformName() const override { return "Platform"; }
    std::string Name() const override { return "&" + key_; }
    std::string RequiredPipeProgID() const override { return "FakePipe"; }
    std::string DefaultFormColor() const override { return "0"; }
    std::string DefaultFontSize() const override { return "9"; }
    std::string DefaultFormWidth() const override { return "160"; }
    std::string DefaultFormHeight() const override { return "160"; }
    std::string DefaultFontName() const override { return "Font"; }
    std::string TavletStyleID() const override { return "2"; }
    bool GetOption(const std::string&, std::string&) const override { return false; }
    void GetSupportedTavlets(std::vector<std::string>& clsids, std::vector<std::string>& progIds,
                             std::vector<std::string>& categories) const override {
        clsids = knows_.tavlets;
        progIds.resize(clsids.size());
        categories.resize(clsids.size());
    }
    std::int32_t NumSupportedTavlets() const override { return std::int32_t(knows_.tavlets.size()); }
    void GetSupportedReferences(std::vector<std::string>& guids) const override { guids = knows_.required; }
    std::int32_t NumSupportedReferences() const override { return std::int32_t(knows_.required.size()); }
    designtargetaccess::ReferenceValidity ValidateReference(const std::string& reference) const override {
        return {knows_.references.count(reference) > 0, false};
    }
    bool FindModule(const std::string& moduleId) const override { return knows_.modules.count(moduleId) > 0; }
    void GetPropertyDefaults(std::vector<std::string>& names, std::vector<std::string>& values) const override {
        for (const auto& [name, value] : knows_.defaults) {
            names.push_back(name);
            values.push_back(value);
        }
    }
    std::int32_t NumPropertyDefaults() const override { return std::int32_t(knows_.defaults.size()); }
    bool IsTabStopOff(const std::string& name) const override { return knows_.tabStopOff.count(name) > 0; }
    std::string VBPTemplate() const override { return templates_.project; }
    std::string FormTemplate() const override { return templates_.form; }
    std::string ModuleTemplate() const override { return templates_.module; }
    std::string ClassModuleTemplate() const override { return templates_.classModule; }

private:
    std::string key_;
    const KnownModules& knows_;
    const TargetTemplates& templates_;
};

/// The installed targets, which a test may change at any time.
struct FakeTargets {
    /// Keys of the known targets.
    std::vector<std::string> known;
    /// Keys that the pipe refuses.
    std::set<std::string> refused;
    KnownModules knows;
    TargetTemplates templates;

    explicit FakeTargets(fernwick::Classes& classes)
        : manager_(classes.RegisterClass("DesignTargetAccess.QLDesignTargetMgr",
                                         [this] { return basic::make<Manager>(*this); })),
          validation_(classes.RegisterClass("FakePipe.Validation", [this] { return basic::make<Validation>(*this); })) {
    }

private:
    class Manager : public designtargetaccess::IQLDesignTargetMgr {
    public:
        explicit Manager(const FakeTargets& targets) : targets_(targets) {}
        std::int32_t Count() const override { return std::int32_t(targets_.known.size()); }
        void Initialize() override {}
        bool GetDesignTarget(const std::string& key,
                             basic::Ref<designtargetaccess::IQLDesignTarget>& target) const override {
            std::int32_t position = 0;
            target = nullptr;
            if (!FindDesignTarget(key, position)) return false;
            target = basic::make<FakeTarget>(key, targets_.knows, targets_.templates);
            return true;
        }
        bool FindDesignTarget(const std::string& key, std::int32_t& position) const override {
            const auto& known = targets_.known;
            position = std::int32_t(std::find(known.begin(), known.end(), key) - known.begin());
            return position < Count();
        }
        basic::Ref<designtargetaccess::IQLDesignTarget> GetDesignTargetByIndex(std::int16_t index) const override {
            if (index < 0 || index >= Count()) return nullptr;
            return basic::make<FakeTarget>(targets_.known[std::size_t(index)], targets_.knows, targets_.templates);
        }

    private:
        const FakeTargets& targets_;
    };
    class Validation : public qlpipe::IQLPipeValidation {
    public:
        explicit Validation(const FakeTargets& targets) : targets_(targets) {}
        bool IsDeviceSupported(const std::string& key) override { return targets_.refused.count(key) == 0; }
        bool ValidateFiles(const basic::Ref<vbide::VBProject>&, const qlpipe::ProjectFiles&) override { return true; }
        void SetEventSink(qlpipe::IQLPipeEvents&) override {}
        void SetDevice(const std::string&) override {}

    private:
        const FakeTargets& targets_;
    };

    std::shared_ptr<void> manager_, validation_;
};

} // namespace test
