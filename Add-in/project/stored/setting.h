#pragma once
// Declares a setting of a project: `Setting<bool> Autosave{this, "Autosave", "save without asking"};` is read by
// `project.Autosave()` and written by `project.Autosave(true)`.
#include "Add-in/project/stored/project_setting.h"
#include "Add-in/project/stored/setting_text.h"
#include "Basic/case_folding.h"

namespace fernwick {

/// How a setting differs from a plain one.
struct SettingTraits {
    /// The key in the project file; null for the setting's name.
    const char* key = nullptr;
    /// The procedure that reports a failed write; null for "Let_" and the setting's name.
    const char* writer = nullptr;
    /// Whether a read that fails other than by an absent value is reported.
    bool reportsFailedReads = false;
    /// Whether True is stored as "-1" and False as "0".
    bool isStoredAsNumber = false;
};

/// A setting that only a template or a build writes. A read never fails: a value that is absent or does not convert
/// reads as the default, and so does an empty text.
template <class T>
class ReadOnlySetting : public ProjectSetting {
public:
    ReadOnlySetting(SettingList* owner, const char* name, const char* meaning, T otherwise = {},
                    SettingTraits traits = {})
        : ProjectSetting(owner, name, meaning), otherwise_(std::move(otherwise)), traits_(traits) {}

    T operator()() const { return get(); }

    SettingKind kind() const override { return settingKind(T{}); }
    Values values() const override { return {settingText(get())}; }
    Values defaults() const override { return {settingText(otherwise_)}; }
    bool isWritable() const override { return false; }
    void assign(const Values&) override { throw basic::RuntimeError(basic::kInvalidProcedureCall); }
    bool owns(std::string_view section, std::string_view stored) const override {
        return section == kGlobalSection && basic::equalNoCase(stored, key());
    }

protected:
    virtual T get() const try {
        T value = otherwise_;
        convertSetting(store().read(kGlobalSection, key()), value);
        return value;
    } catch (const basic::RuntimeError& error) {
        if (traits_.reportsFailedReads) store().reportUnlessAbsent("clsQLProject.Get_" + name(), error);
        return otherwise_;
    }
    std::string key() const { return traits_.key ? traits_.key : name(); }
    const SettingTraits& traits() const { return traits_; }

private:
    T otherwise_;
    SettingTraits traits_;
};

/// A setting that can be written. A failed write is reported.
template <class T>
class Setting : public ReadOnlySetting<T> {
public:
    using ReadOnlySetting<T>::ReadOnlySetting;
    using ReadOnlySetting<T>::operator();
    using Values = ProjectSetting::Values;

    void operator()(const T& value) { let(value); }

    bool isWritable() const override { return true; }
    void assign(const Values& values) override {
        T value{};
        convertSetting(values.front(), value);
        let(value);
    }

protected:
    virtual void let(const T& value) {
        const auto& traits = this->traits();
        Procedure here{this->store().errors(),
                       "clsQLProject." + (traits.writer ? traits.writer : "Let_" + this->name())};
        this->store().write(here, kGlobalSection, this->key(),
                            traits.isStoredAsNumber ? settingNumber(value) : settingText(value));
    }
};

} // namespace fernwick
