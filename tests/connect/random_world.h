#pragma once
// The add-in and its importer in a real host over files, with everything else in memory, for many short steps.
#include "Add-in/core/connect/connections.h"
#include "Add-in/lifecycle/project_importer.h"
#include "Add-in/platform/windows/no_windows.h"
#include "Host/model/host.h"
#include "Host/system/classes.h"
#include "Host/system/clipboard.h"
#include "Host/system/environment.h"
#include "Host/system/file_system.h"
#include "tests/support/fake_targets.h"
#include "tests/support/sample_project.h"
#include "tests/support/traced_platform.h"

namespace test {

class RandomWorld {
protected:
    using Project = basic::Ref<vbide::VBProject>;
    using Component = basic::Ref<vbide::VBComponent>;

    RandomWorld() {
        targets.known = {"Palm-1", "Pocket-1"};
        registry.set(fernwick::HKEY_LOCAL_MACHINE, "Software\\Quinloft", "RootDir", folder / "install");
        registry.set(fernwick::HKEY_LOCAL_MACHINE, "SOFTWARE\\Quinloft\\AddinPrefs", "StartTutorial", "False");
        const SampleProject blank("Project1");
        folder.write("Template/Projects/Fernwick Project.vbp", SampleProject(blank).handheld().text());
        targets.templates.project = folder.write("install/VB Toolkit/Template/Projects/Palm.vbp",
                                                 SampleProject(blank).handheld("Palm-1").text());
        targets.templates.module = folder.write("Template/Modules/Ours.bas", moduleText("Module1", "' ours\r\n"));
        ide->listAddIn("QLVBAddIn.Connect", "Fernwick", [this] { return connections.create(); });
        ide->listAddIn("QLProjectImport.Connect", "Importer",
                       [this] { return basic::make<fernwick::ProjectImporter>(platform); });
    }
    ~RandomWorld() { ide->close(); }

    host::HostOptions options() {
        host::HostOptions options;
        options.registry = &registry;
        options.classes = &classes;
        options.templatePath = folder / "Template";
        options.templateFolders = {folder / "install/VB Toolkit/Template"};
        options.handlerFailed = [this](const basic::ErrObject& error) { failures.push_back(error.Description); };
        options.mayReplaceProjects = [this] { return mayReplaceProjects(); };
        options.writesFiles = false; // the files are opened again as they were
        return options;
    }
    fernwick::Modules& addIn() { return connections.current(); }
    std::vector<Project> open() const { return ide->VBProjects()->items(); }
    bool isOpen(const Project& project) const {
        const auto all = open();
        return std::find(all.begin(), all.end(), project) != all.end();
    }

    TempFolder folder;
    Trace trace;
    TracedUser user{trace};
    ManualLoop loop{trace};
    MemoryRegistry registry;
    host::Classes classes{registry};
    host::Clipboard clipboard;
    host::Environment environment;
    host::FileSystem files;
    TracedProcesses processes{trace};
    NoShell shell;
    FixedScreen screen;
    fernwick::NoWindows windows;
    FixedClock clock;
    NoResources resources;
    FakeTargets targets{classes};
    fernwick::Platform platform{user,      loop,  registry, files,   processes, classes,   environment,
                                clipboard, shell, screen,   windows, clock,     resources, {}};
    std::function<bool()> mayReplaceProjects = [] { return true; };
    std::vector<std::string> failures;
    std::shared_ptr<host::Host> ide = host::Host::create(options());
    fernwick::Connections connections{platform};
};

} // namespace test
