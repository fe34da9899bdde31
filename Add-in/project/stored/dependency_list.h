#pragma once
// A list of dependencies that a build stores in the project: a count, and entries under numbered keys from 1.
#include "Add-in/project/stored/project_setting.h"
#include "Basic/case_folding.h"

namespace fernwick {

class DependencyList final : public ProjectSetting {
public:
    /// `entryKey` begins the keys of the entries, `writer` is the procedure that reports a failed write.
    DependencyList(SettingList* owner, const char* name, const char* meaning, const char* entryKey, const char* writer)
        : ProjectSetting(owner, name, meaning), entryKey_(entryKey), writer_(writer) {}

    void write(const Values& entries);

    SettingKind kind() const override { return SettingKind::List; }
    /// Skips entries that cannot be read, after a report.
    Values values() const override;
    Values defaults() const override { return {}; }
    bool isWritable() const override { return false; }
    void assign(const Values& values) override { write(values); }
    bool owns(std::string_view section, std::string_view key) const override {
        return section == kDependenciesSection &&
               (basic::equalNoCase(key, countKey()) || isNumberedKey(key, entryKey_));
    }

private:
    std::string countKey() const { return "Num" + name(); }
    std::string entryKey(std::int32_t index) const { return entryKey_ + std::to_string(index); }
    std::string location(const std::string& procedure) const;
    std::int32_t count() const;
    void setCount(std::int32_t count);
    void clear();

    std::string entryKey_, writer_;
};

} // namespace fernwick
