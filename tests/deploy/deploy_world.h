#pragma once
// Projects on disk, and devices that the test controls.
#include "Host/system/classes.h"
#include "Host/system/file_system.h"
#include "fake_pipe.h"
#include "tests/support/add_in_world.h"
#include "tests/support/fake_compiler.h"
#include "tests/support/temp_folder.h"

namespace test {

/// Files on disk. Each call that reads or changes a file may fail; checks for existence never do.
class TracedHostFiles : public host::FileSystem {
public:
    explicit TracedHostFiles(Trace& trace) : trace_(trace) {}
    /// As if the project's folder were unknown.
    bool nowhere = false;
    std::string WithSeparator(const std::string& folder) const override {
        return nowhere ? "" : host::FileSystem::WithSeparator(folder);
    }
    bool FolderExists(const std::string& path) const override {
        return nowhere || host::FileSystem::FolderExists(path);
    }
    std::int64_t GetDateLastModified(const std::string& path) const override {
        trace_.read();
        return host::FileSystem::GetDateLastModified(path);
    }
    std::vector<std::string> Files(const std::string& folder) const override {
        trace_.read();
        return host::FileSystem::Files(folder);
    }
    basic::Ref<fernwick::TextStream> OpenTextFile(const std::string& path) override {
        trace_.read();
        return host::FileSystem::OpenTextFile(path);
    }
    void CopyFile(const std::string& from, const std::string& to, bool overwrite) override {
        trace_.effect("copy " + GetFileName(from));
        host::FileSystem::CopyFile(from, to, overwrite);
    }
    void DeleteFile(const std::string& path, bool force) override {
        trace_.effect("delete " + GetFileName(path) + (force ? " by force" : ""));
        host::FileSystem::DeleteFile(path, force);
    }

private:
    Trace& trace_;
};

/// Records in the trace what the form shows.
inline std::vector<fernwick::Subscription> watchForm(Trace& trace, fernwick::PipeForm& form) {
    const auto record = [&trace](const std::string& what) {
        return [&trace, what](bool visible) { trace.effects.push_back(what + (visible ? " shown" : " hidden")); };
    };
    std::vector<fernwick::Subscription> watches;
    watches.push_back(
        form.stsUpdate.Refreshed.connect([&] { trace.effects.push_back("line: " + form.stsUpdate.SimpleText()); }));
    watches.push_back(
        form.MousePointer.watch([&](int shape) { trace.effects.push_back("pointer " + std::to_string(shape)); }));
    watches.push_back(form.aniSend.Visible.watch(record("animation")));
    watches.push_back(form.finishedImg.Visible.watch(record("finished")));
    watches.push_back(form.failedImg.Visible.watch(record("failed")));
    return watches;
}

/// A platform whose files are on disk.
struct DiskPlatform : TracedPlatform {
    DiskPlatform() {
        registry.set(fernwick::HKEY_LOCAL_MACHINE, "Software\\Quinloft", "RootDir", folder / "install");
        folder.write("install/VB Toolkit/Bin/qldefault.ico", "icon");
        folder.write("install/Fonts/Ari_08B.CMF", "font");
        folder.write("install/VB Toolkit/Template/Projects/readme.txt", "");
        folder.write("Template/Projects/readme.txt", "");
    }
    TempFolder folder;
    TracedHostFiles disk{trace};
    fernwick::Platform platform{
        user,      loop,  registry, disk,    processes, classes,   environment,
        clipboard, shell, screen,   windows, clock,     resources, TracedPlatform::platform.app};
};

/// The add-in over files on disk, and the devices of one family.
struct PipesWorld : AddInWorld<DiskPlatform> {
    PipesWorld() { vbe->templatePath = folder / "Template"; }
    /// Removes the pipe. Its creation then fails as on a real platform.
    void removePipe() {
        family.registerAs(family.pipeClass, "FakePipe.Pipe",
                          [this] { return host::Classes{registry}.CreateObject("FakePipe.Pipe"); });
    }
    FakePipeFamily family{trace, classes};
};

/// The driver with one project, Foo, which has been compiled and whose device is Palm.
struct DeployWorld : PipesWorld {
    DeployWorld() {
        targets.known = {"Palm"};
        vbe->projects->list.push_back(project);
        vbe->active = project;
        for (const auto& [key, value] : std::map<std::string, std::string>{{"IsQuinloftProject", "True"},
                                                                           {"ProjectVersion", "3.5"},
                                                                           {"LastCompileVersion", "3.5.0 (0624)"},
                                                                           {"ScanReferences", "True"}})
            project->properties[{"Quinloft Global", key}] = value;
        folder.write("Foo/Foo.vbp", "Type=Exe\r\nMajorVer=1\r\nMinorVer=2\r\nRevisionVer=3\r\n");
        addModule("Module1");
        image = folder.write("Foo/Foo.0000.qlx", "image");
        qlProject = projects.AddToProjectsList(project);
        projects.gCurrentProject = project;
        messages.createToolWindow();
        compilerClass = classes.RegisterClass("QLToolkit.CompilerFactory",
                                              [this] { return basic::make<FakeCompilerFactory>(compiler); });
        watches = watchForm(trace, sendToDevice);
        watches.push_back(window->lblStatusText.watch(
            [this](const std::string& text) { trace.effects.push_back("status: " + text); }));
        trace.effects.clear();
    }
    Ref<TracedComponent> addModule(const std::string& name) {
        return project->add(name, folder.write("Foo/" + name + ".bas", "Sub Main()\r\nEnd Sub\r\n"));
    }
    std::string path(const std::string& name) const { return folder / ("Foo/" + name); }
    std::int64_t timeOf(const std::string& name) const {
        return disk.host::FileSystem::GetDateLastModified(path(name));
    }
    void setTime(const std::string& name, std::int64_t time) { disk.SetDateLastModified(path(name), time); }
    void makeStale() { setTime("Module1.bas", timeOf("Foo.0000.qlx") + 1); }
    /// Stores a list under numbered keys from 1.
    void store(const std::string& list, const std::string& entry, const std::vector<std::string>& values) {
        const std::string section = "Quinloft Components And Tavlet Dependencies Section";
        project->properties[{section, list}] = std::to_string(values.size());
        for (std::size_t i = 0; i < values.size(); ++i)
            project->properties[{section, entry + std::to_string(i + 1)}] = values[i];
    }
    void storeDependencies(const std::vector<std::string>& values) {
        project->properties[{"Quinloft Project Dependencies", "NumDependencies"}] = std::to_string(values.size());
        for (std::size_t i = 0; i < values.size(); ++i)
            project->properties[{"Quinloft Project Dependencies", "Dependencies" + std::to_string(i)}] = values[i];
    }

    /// Each records its effects in `trace.effects`.
    void deploy() { run(false); }
    void package() { run(true); }
    void run(bool makePackage) {
        trace.effects.clear();
        sendToDevice.SendProjectToDevice(qlProject, makePackage, "Palm");
    }
    /// The texts of the status bar.
    std::vector<std::string> lines() const { return effectsOf("line: "); }
    std::vector<std::string> boxes() const { return effectsOf("box "); }
    std::vector<std::string> effectsOf(const std::string& beginning) const {
        std::vector<std::string> some;
        for (const auto& effect : trace.effects)
            if (effect.starts_with(beginning))
                some.push_back(beginning == "box " ? effect : effect.substr(beginning.size()));
        return some;
    }
    std::string stored(const std::string& key) const { return project->stored(key); }
    std::string status() const { return window->lblStatusText(); }
    std::vector<std::string> temporaryFiles() const {
        return disk.host::FileSystem::Files(disk.GetSpecialFolder(fernwick::TemporaryFolder));
    }
    /// Whether a run left nothing behind.
    bool isClean() const { return !sendToDevice.isLoaded() && family.holders() == 0 && temporaryFiles().empty(); }

    Ref<TracedProject> project = basic::make<TracedProject>(trace, "Foo", folder / "Foo/Foo.vbp");
    Ref<FakeCompiler> compiler = basic::make<FakeCompiler>(trace);
    Ref<fernwick::clsQLProject> qlProject;
    std::string image;

private:
    std::vector<fernwick::Subscription> watches;
    std::shared_ptr<void> compilerClass;
};

} // namespace test
