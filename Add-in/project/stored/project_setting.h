#pragma once
// A stored setting of a project, as lists of settings show it.
#include "Add-in/project/stored/project_store.h"
#include <span>
#include <string_view>
#include <vector>

namespace fernwick {

enum class SettingKind { Text, Number, Decimal, Boolean, List };

class SettingList;

class ProjectSetting {
public:
    /// One value as text, or the entries of a list.
    using Values = std::vector<std::string>;

    ProjectSetting(const ProjectSetting&) = delete;
    virtual ~ProjectSetting() = default;

    const std::string& name() const { return name_; }
    const std::string& meaning() const { return meaning_; }
    virtual SettingKind kind() const = 0;
    virtual Values values() const = 0;
    /// The values of a project that does not store the setting.
    virtual Values defaults() const = 0;
    /// False for a setting that only a template or a build writes.
    virtual bool isWritable() const = 0;
    /// Stores values that convert to the setting's kind; only for a writable setting.
    virtual void assign(const Values& values) = 0;
    /// Whether a key in a section of the project file belongs to the setting.
    virtual bool owns(std::string_view section, std::string_view key) const = 0;

protected:
    ProjectSetting(SettingList* owner, std::string name, std::string meaning);
    ProjectStore& store() const { return store_; }

private:
    ProjectStore& store_;
    std::string name_, meaning_;
};

/// The settings of one project, in the order of their declaration.
class SettingList {
public:
    std::span<ProjectSetting* const> settings() const { return settings_; }

protected:
    explicit SettingList(const ProjectServices* services) : store_(services) {}
    ProjectStore& store() { return store_; }
    const ProjectStore& store() const { return store_; }

private:
    friend class ProjectSetting;

    ProjectStore store_;
    std::vector<ProjectSetting*> settings_;
};

inline ProjectSetting::ProjectSetting(SettingList* owner, std::string name, std::string meaning)
    : store_(owner->store_), name_(std::move(name)), meaning_(std::move(meaning)) {
    owner->settings_.push_back(this);
}

} // namespace fernwick
