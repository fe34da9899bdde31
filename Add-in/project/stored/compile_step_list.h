#pragma once
// The command lines that a project runs before or after a compile.
#include "Add-in/core/array.h"
#include "Add-in/project/stored/project_setting.h"
#include "Basic/case_folding.h"

namespace fernwick {

/// Entries are stored from index 0, unlike those of the other lists.
class CompileStepList final : public ProjectSetting {
public:
    /// `prefix` begins the keys of the count and of the entries.
    CompileStepList(SettingList* owner, const char* name, const char* meaning, const char* prefix)
        : ProjectSetting(owner, name, meaning), prefix_(prefix) {}

    std::int32_t count() const;
    /// Returns false if there are no steps, leaving the list unchanged, or if a step is missing.
    bool get(Array<std::string>& list) const;
    void set(const Array<std::string>& list);
    /// Sets the count to 0; the entries remain in the file.
    void clear();

    SettingKind kind() const override { return SettingKind::List; }
    Values values() const override;
    Values defaults() const override { return {}; }
    bool isWritable() const override { return true; }
    void assign(const Values& values) override;
    bool owns(std::string_view section, std::string_view stored) const override {
        return section == kCompilerOptionsSection &&
               (basic::equalNoCase(stored, key("Count")) || isNumberedKey(stored, prefix_));
    }

private:
    std::string key(const std::string& end) const { return prefix_ + end; }

    std::string prefix_;
};

} // namespace fernwick
