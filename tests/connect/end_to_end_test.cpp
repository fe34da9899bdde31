// The whole add-in over the real host, with real files and a real registry store.
#include "Add-in/core/connect/connections.h"
#include "Add-in/platform/windows/no_windows.h"
#include "Host/system/classes.h"
#include "Host/system/environment.h"
#include "Host/system/file_system.h"
#include "Host/system/processes.h"
#include "tests/deploy/fake_pipe.h"
#include "tests/support/fake_compiler.h"
#include "tests/support/fake_targets.h"
#include "tests/support/scripted_user.h"
#include "tests/support/test_host.h"
#include "tests/support/traced_platform.h"

using testing::HasSubstr;
using testing::Not;

namespace {

constexpr char kProgId[] = "QLVBAddIn.Connect";

class EndToEnd : public testing::Test {
protected:
    EndToEnd() {
        targets.known = {"Palm-1"};
        installTemplates();
        store("SOFTWARE\\Quinloft\\AddinPrefs", "StartTutorial", "False");
        host.ide->listAddIn(kProgId, "Fernwick", [this] { return connections.create(); });
    }
    ~EndToEnd() override {
        if (host.ide) host.ide->close();
    }
    basic::Ref<vbide::VBProject> connected(const test::SampleProject& sample) {
        const auto project = host.open(sample);
        host.ide->connectAddIn(kProgId, vbide::vbext_cm_CommandLine);
        host.ide->startupComplete();
        return project;
    }
    static test::SampleProject hello() {
        test::SampleProject sample;
        sample.form("Form1", "Sub Form_Load()\r\n    Oops\r\nEnd Sub\r\n").startup("Form1").handheld("Palm-1");
        return sample.sections("LastCompileVersion=3.5.0 (0624)\r\nAutoSaveProject=True\r\n");
    }
    void failAt(const std::string& file, int line) {
        compiler->built = compiler->finished = false;
        compiler->work = [=, this](test::FakeCompiler& c) {
            c.BuildError.raise("No such name", host.folder / file, line, 1042);
        };
        user.expectForm("frmCompile");
        user.expectBox("One or more errors occurred during compilation.\r\n"
                       "Refer to the Fernwick Messages window for the list of errors.",
                       fernwick::vbOK, fernwick::vbCritical);
    }

    /// Stores a value for the machine.
    void store(const std::string& path, const std::string& name, const std::string& text) {
        std::uint32_t key = 0, disposition = 0;
        host.registry.RegCreateKeyEx(fernwick::HKEY_LOCAL_MACHINE, path, fernwick::KEY_ALL_ACCESS, key, disposition);
        host.registry.RegSetValueEx(key, name, fernwick::REG_SZ, text + '\0');
        host.registry.RegCloseKey(key);
    }
    /// Creates an installation with its templates, and the host's templates.
    void installTemplates() {
        store("Software\\Quinloft", "RootDir", host.folder / "install");
        host.folder.write("install/VB Toolkit/Template/Projects/readme.txt", "");
        host.folder.write("Template/Projects/readme.txt", "");
    }

    test::Trace trace;
    test::ScriptedUser user;
    test::ManualLoop loop{trace};
    test::MemoryRegistry classStore;
    host::Classes classes{classStore};
    test::TestHost host{&classes};
    host::Environment environment;
    host::FileSystem files;
    host::Processes processes{[](const std::string&, const std::string&) { return true; }};
    test::TextClipboard clipboard{trace};
    test::NoShell shell;
    test::FixedScreen screen;
    fernwick::NoWindows windows;
    test::FixedClock clock;
    test::NoResources resources;
    fernwick::Platform platform{user,      loop,  host.registry, files,   processes, classes,   environment,
                                clipboard, shell, screen,        windows, clock,     resources, {}};
    test::FakeTargets targets{classes};
    basic::Ref<test::FakeCompiler> compiler = basic::make<test::FakeCompiler>(trace);
    std::shared_ptr<void> compilerClass = classes.RegisterClass(
        "QLToolkit.CompilerFactory", [this] { return basic::make<test::FakeCompilerFactory>(compiler); });
    fernwick::Connections connections{platform};
};

TEST_F(EndToEnd, TheAddInDoesNotKeepItsHostAlive) {
    connected(hello());
    const std::weak_ptr<host::Host> link = host.ide;
    host.ide->close();
    host.ide.reset();
    EXPECT_TRUE(link.expired());
    EXPECT_FALSE(connections.current().addIn.gVBInstance);
}

TEST_F(EndToEnd, AProjectCompiles) {
    const auto project = connected(hello());
    compiler->work = [](test::FakeCompiler& c) { c.AddDependency.raise("Tool.prc", 1); };
    user.expectForm("frmCompile");
    EXPECT_TRUE(connections.current().compile.CompileProject(project));
    EXPECT_THAT(trace.effects, testing::Contains("file 0 " + (host.folder / "Form1.frm")));
    EXPECT_THAT(trace.effects, testing::Contains("start-up 'Form1'"));
    EXPECT_EQ(connections.current().compileMsgs()->lblStatusText(),
              "SUCCESS - Compile and validate completed successfully.");
    EXPECT_THAT(host.folder.read("Hello.vbp"), HasSubstr("\r\nNumTavletFileDependencies=1\r\n"));
    EXPECT_TRUE(host.failures.empty());
}

TEST_F(EndToEnd, AProjectIsValidatedForItsDevice) {
    const auto project = connected(hello());
    user.expectForm("frmValidate");
    EXPECT_TRUE(connections.current().validate.ValidateProject(project, "Palm-1"));
    EXPECT_EQ(connections.current().compileMsgs()->rowCount(), 1); // the header
}

TEST_F(EndToEnd, AMissingLibraryFailsTheValidation) {
    const auto gone = "Reference=*\\G{00000000-1111-2222-3333-444444444444}#1.0#0#/gone/Gone.dll#Gone";
    const auto project = connected(hello().member(gone));
    user.expectForm("frmValidate");
    EXPECT_FALSE(connections.current().validate.ValidateProject(project, "Palm-1"));
    EXPECT_THAT(host.folder.read("Hello.vbp"), HasSubstr("|0|There is a missing reference in this project, please "
                                                         "remove the reference.|8205"));
}

TEST_F(EndToEnd, AnErrorIsStoredWithTheLineOfTheCodeWindow) {
    const auto project = connected(hello());
    failAt("Form1.frm", 16); // after thirteen lines of design data and hidden attributes
    EXPECT_FALSE(connections.current().compile.CompileProject(project));
    const auto form = project->VBComponents()->Item("Form1");
    const int codeLines = form->CodeModule()->CountOfLines();
    const auto text = host.folder.read("Form1.frm");
    const int line = 16 - (int(std::count(text.begin(), text.end(), '\r')) - codeLines);
    EXPECT_EQ(project->ReadProperty("Quinloft Project Compile Errors", "Error1"),
              "ERROR|" + (host.folder / "Form1.frm") + "|" + std::to_string(line) + "|No such name|1042");
}

TEST_F(EndToEnd, RestoresTheMessagesWithTheProject) {
    const auto project = connected(hello());
    failAt("Form1.frm", 17);
    connections.current().compile.CompileProject(project);
    host.ide->saveProject(project);
    host.ide->close();
    host.openFile(host.folder / "Hello.vbp");
    host.ide->connectAddIn(kProgId, vbide::vbext_cm_CommandLine);
    EXPECT_EQ(connections.current().compileMsgs()->rowCount(), 2);
    EXPECT_EQ(connections.current().compileMsgs()->lblStatusText(),
              "FAILED - Errors (1 items) must be fixed to deploy this project.");
}

TEST_F(EndToEnd, CompilesAndSendsAndTheNextTimeOnlySends) {
    const auto project = connected(hello());
    compiler->work = [&](test::FakeCompiler&) { host.folder.write("Hello.0000.qlx", "image"); };
    test::FakePipeFamily family{trace, classes};
    const auto send = [&](std::initializer_list<const char*> forms) {
        for (const auto* form : forms) user.expectForm(form);
        connections.current().sendToDevice.SendProjectToDevice(connections.current().projects.GetQLProject(project),
                                                               false, "Palm-1");
        EXPECT_EQ(connections.current().sendToDevice.LastResult(), true);
    };
    send({"frmCompile", "frmValidate", "frmSendToDevice"});
    EXPECT_THAT(family.files, testing::ElementsAre(host.folder / "Hello.0000.qlx"));
    EXPECT_THAT(family.resources, testing::ElementsAre("Hello.0000.qlx"));
    send({"frmValidate", "frmSendToDevice"});
    user.expectForm("frmSendRuntimeToDevice");
    connections.current().sendRuntime.SendRuntimeToDevice("Palm-1");
    EXPECT_EQ(connections.current().sendRuntime.LastResult(), true);
}

TEST_F(EndToEnd, AReadOnlyProjectIsUnchanged) {
    const auto project = connected(hello());
    const auto path = host.folder / "Hello.vbp";
    const auto before = host.folder.read("Hello.vbp");
    std::filesystem::permissions(path, std::filesystem::perms::owner_read);
    user.expectBox("Hello is ReadOnly, compile errors will not be saved.", fernwick::vbOK, fernwick::vbInformation);
    user.expectForm("frmCompile");
    EXPECT_TRUE(connections.current().compile.CompileProject(project));
    user.expectBox("File '" + path + "' is read-only.", fernwick::vbOK, fernwick::vbExclamation,
                   "ERROR: Cannot save file!");
    host.ide->close();
    EXPECT_EQ(host.folder.read("Hello.vbp"), before);
}

TEST_F(EndToEnd, WithoutTargetsRemovesTheProjectAndKeepsItsFile) {
    targets.known.clear();
    connected(hello());
    const auto before = host.folder.read("Hello.vbp");
    EXPECT_EQ(host.ide->VBProjects()->Count(), 1);
    loop.turn();
    EXPECT_EQ(host.ide->VBProjects()->Count(), 0);
    EXPECT_EQ(host.folder.read("Hello.vbp"), before);
    EXPECT_TRUE(user.sawNothing());
}

TEST_F(EndToEnd, TheOnlyTargetIsTakenWithoutAsking) {
    test::SampleProject sample;
    const auto project = connected(sample.module("Module1", "Sub Main()\r\nEnd Sub\r\n").handheld());
    EXPECT_EQ(project->ReadProperty("Quinloft Global", "TargetDevice"), "Palm-1");
}

TEST_F(EndToEnd, AProjectOfAnOlderVersionIsAnnounced) {
    host.ide->connectAddIn(kProgId, vbide::vbext_cm_CommandLine);
    test::SampleProject old("Old");
    old.sections("\r\n[Quinloft Global]\r\nIsQuinloftProject=True\r\n");
    user.expectBox("This project was created with an older version of Quinloft Fernwick and will not work with this "
                   "version. The project must be converted before it can be run safely in this version of Fernwick. "
                   "After any additional error dialogs are dismissed, Fernwick will start the Project Converter. "
                   "Follow the Project Converter instructions to make this a valid Fernwick 3.5 project.",
                   fernwick::vbOK, fernwick::vbExclamation, "Warning: Pre Quinloft Fernwick 3.5 Project");
    host.open(old);
    EXPECT_TRUE(host.failures.empty());
}

TEST_F(EndToEnd, TwoAddInsLiveSideBySide) {
    fernwick::Modules other{platform};
    connected(hello());
    EXPECT_TRUE(connections.current().projects.gCurrentProject);
    EXPECT_FALSE(other.projects.gCurrentProject);
}

} // namespace
