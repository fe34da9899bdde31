#pragma once
// Projects of the real host, in a temporary folder.
#include "Host/system/file_system.h"
#include "tests/devices/devices_world.h"
#include "tests/support/test_host.h"
#include "tests/support/traced_project.h"

namespace test {

struct FakeScreen : fernwick::Screen {
    float x = 15, y = 15;
    std::set<std::string> fonts{"QLPalm", "Tahoma"};
    float TwipsPerPixelX() const override { return x; }
    float TwipsPerPixelY() const override { return y; }
    fernwick::Color GetSysColor(fernwick::SysColorIndex) const override { return 0; }
    bool FontFamilyExists(const std::string& name) const override { return fonts.contains(name); }
};

/// A platform whose files are on disk, and the real host.
struct ProjectPlatform : DevicesPlatform {
    TestHost host;
    host::FileSystem files;
    FakeScreen screen;
    fernwick::Platform platform{user,      loop,  registry, files,   processes, classes,   environment,
                                clipboard, shell, screen,   windows, clock,     resources, {}};
};

class ProjectTest : public DevicesTestOver<ProjectPlatform> {
protected:
    using Texts = std::vector<std::string>;

    ProjectTest() {
        addIn.gVBInstance = host.ide;
        installAt(host.folder / "Installed");
        host.folder.write("Installed/VB Toolkit/Bin/qldefault.ico", "icon");
        host.folder.write("Installed/VB Toolkit/Template/Projects/readme.txt", "");
        host.folder.write("Template/Projects/readme.txt", "");
    }
    void installAt(const std::string& folder) {
        registry.set(fernwick::HKEY_LOCAL_MACHINE, "Software\\Quinloft", "RootDir", folder);
    }
    /// Opens the project and returns its wrapper.
    basic::Ref<fernwick::clsQLProject> open(const SampleProject& sample) { return wrap(host.open(sample)); }
    basic::Ref<fernwick::clsQLProject> wrap(const basic::Ref<vbide::VBProject>& vbProject) {
        auto project = basic::make<fernwick::clsQLProject>(projectServices);
        project->VBProject(vbProject);
        return project;
    }
    /// A project in memory, whose calls may fail.
    basic::Ref<TracedProject> traced() { return basic::make<TracedProject>(trace, "Hello", host.folder / "Hello.vbp"); }
    static std::string stored(const basic::Ref<fernwick::clsQLProject>& project, const std::string& key,
                              const std::string& section = "Quinloft Global") {
        std::string value = "(none)";
        (void)basic::attempt([&] { value = project->VBProject()->ReadProperty(section, key); });
        return value;
    }
    std::string path(const std::string& name) const { return host.folder / name; }
};

} // namespace test
