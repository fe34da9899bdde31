#pragma once
// The whole add-in over the real host, used through its menu; user, compiler and devices are fakes.
#include "Add-in/core/connect/connections.h"
#include "Host/system/classes.h"
#include "Host/system/clipboard.h"
#include "Host/system/environment.h"
#include "Host/system/file_system.h"
#include "Host/system/processes.h"
#include "Host/system/resources.h"
#include "tests/deploy/fake_pipe.h"
#include "tests/support/fake_compiler.h"
#include "tests/support/fake_targets.h"
#include "tests/support/recorded_windows.h"
#include "tests/support/test_host.h"
#include "tests/support/traced_platform.h"

namespace test {

/// Records what was started and opened.
class TracedShell : public fernwick::Shell {
public:
    explicit TracedShell(Trace& trace) : trace_(trace) {}
    bool hasPrograms = true;
    int Start(const std::string& commandLine) override {
        trace_.effect("start " + commandLine);
        if (!hasPrograms) throw basic::RuntimeError(basic::kFileNotFound);
        return 1;
    }
    void Open(const std::string& document) override { trace_.effect("open " + document); }

private:
    Trace& trace_;
};

class WholeWorld {
protected:
    using Control = basic::Ref<office::CommandBarControl>;

    WholeWorld() {
        targets.known = {"Palm-1", "Pocket-1"};
        store(fernwick::HKEY_LOCAL_MACHINE, "Software\\Quinloft", "RootDir", host.folder / "install");
        store(fernwick::HKEY_LOCAL_MACHINE, "SOFTWARE\\Quinloft\\AddinPrefs", "StartTutorial", "False");
        host.folder.write("install/VB Toolkit/Template/Projects/readme.txt", "");
        host.folder.write("Template/Projects/readme.txt", "");
        compiler->work = [this](FakeCompiler&) { host.folder.write("Hello.0000.qlx", "image"); };
        host.ide->listAddIn(kProgId, "Fernwick", [this] { return connections.create(); });
    }
    ~WholeWorld() { host.ide->close(); }
    void store(fernwick::RegistryRoot root, const std::string& path, const std::string& name, const std::string& text) {
        fernwick::modRegistry2 registry{host.registry};
        const fernwick::RegistryKey key{registry, registry.OpenOrCreateKey(root, path, fernwick::KEY_ALL_ACCESS)};
        registry.SetValue(key.handle(), name, text, fernwick::REG_SZ);
    }
    static SampleProject hello(const std::string& device = "Palm-1") {
        SampleProject sample;
        sample.module("Module1", "Sub Main()\r\nEnd Sub\r\n").startup("Sub Main").handheld(device);
        return sample.sections("LastCompileVersion=3.5.0 (0624)\r\nAutoSaveProject=True\r\n");
    }
    void connect(vbide::vbext_ConnectMode mode = vbide::vbext_cm_Startup) {
        host.ide->connectAddIn(kProgId, mode);
        trace.effects.clear();
    }
    basic::Ref<vbide::VBProject> connected() {
        const auto project = host.open(hello());
        connect();
        return project;
    }
    /// Clicks on the item and returns the effects that users see: forms, boxes, transfers, opened documents.
    std::vector<std::string> click(const Control& item) {
        trace.effects.clear();
        item->Execute();
        std::vector<std::string> seen;
        for (const auto& effect : trace.effects)
            for (const auto* kind : {"form ", "box ", "send ", "package ", "runtime ", "open ", "start ", "cursor 11"})
                if (effect.starts_with(kind)) seen.push_back(effect);
        return seen;
    }
    fernwick::Modules& addIn() { return connections.current(); }
    fernwick::CommandItems& items() { return addIn().items; }
    void chooseDevices(std::vector<std::string> keys) { addIn().prefs.gMyDevices = std::move(keys); }
    static std::string box(int style, const std::string& text, const std::string& title = "Fernwick") {
        return "box " + std::to_string(style) + " " + title + ": " + text;
    }

    static constexpr char kProgId[] = "QLVBAddIn.Connect";
    Trace trace;
    TracedUser user{trace};
    ManualLoop loop{trace};
    MemoryRegistry classStore;
    host::Classes classes{classStore};
    host::Clipboard clipboard;
    TestHost host{&classes, &clipboard};
    host::Environment environment;
    host::FileSystem files;
    host::Processes processes{[](const std::string&, const std::string&) { return true; }};
    TracedShell shell{trace};
    FixedScreen screen;
    RecordedWindows windows;
    FixedClock clock;
    host::Resources resources{files, FERNWICK_SOURCE_DIR "/installation"};
    fernwick::Platform platform{user,
                                loop,
                                host.registry,
                                files,
                                processes,
                                classes,
                                environment,
                                clipboard,
                                shell,
                                screen,
                                windows,
                                clock,
                                resources,
                                {"QLVBAddIn", FERNWICK_SOURCE_DIR "/installation/VB Toolkit/Bin",
                                 "https://support.example", "https://web.example", "https://runtime.example",
                                 "https://samples.example", "https://forum.example", "https://developers.example"}};
    FakeTargets targets{classes};
    FakePipeFamily family{trace, classes};
    basic::Ref<FakeCompiler> compiler = basic::make<FakeCompiler>(trace);
    std::shared_ptr<void> compilerClass = classes.RegisterClass(
        "QLToolkit.CompilerFactory", [this] { return basic::make<FakeCompilerFactory>(compiler); });
    std::shared_ptr<void> fileSystemClass =
        classes.RegisterClass("Scripting.FileSystemObject", [] { return basic::make<host::FileSystem>(); });
    fernwick::Connections connections{platform};
};

} // namespace test
