#pragma once
// The application icon of a project.
#include "Add-in/project/stored/setting.h"

namespace fernwick {

/// An absolute path. It is stored relative to the project's folder for an icon inside it, and as "" for the
/// installation's default icon.
class IconSetting final : public Setting<std::string> {
public:
    using Setting::Setting;

    std::string defaultIcon() const;
    /// Returns the path of a copy in the temporary folder, which the caller deletes; "" if there is no icon.
    std::string temporaryCopy() const;

    /// "" for the default icon.
    Values values() const override;

protected:
    std::string get() const override;
    void let(const std::string& path) override;

private:
    FileSystemObject& files() const { return store().services().platform.files; }
    bool isRelative(const std::string& path) const;
};

} // namespace fernwick
