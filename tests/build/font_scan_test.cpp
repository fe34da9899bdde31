// The fonts that forms need, over real forms and files.
#include "Host/system/file_system.h"
#include "compile_world.h"
#include "tests/support/form_text.h"
#include "tests/support/test_host.h"
#include "tests/support/traced_form.h"

using test::FormControl;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

std::string fontFile(const std::string& face, int style, int size) {
    std::string bytes = {2, char(size), 0, 0, char(style)};
    bytes.resize(24);
    bytes += face;
    bytes.resize(56);
    return bytes;
}

/// The dependency module over the host's own projects in a temporary folder.
class FontScan : public testing::Test, protected test::CompileWorld {
protected:
    FontScan() { registry.set(fernwick::HKEY_LOCAL_MACHINE, "Software\\Quinloft", "RootDir", host.folder.path()); }

    void font(const std::string& path, const std::string& face, int style, int size) {
        host.folder.write(path, fontFile(face, style, size));
    }
    void form(const std::string& name, const std::vector<FormControl>& controls) {
        sample.member("Form=" + name + ".frm", name + ".frm", test::deviceForm(name, controls));
    }
    /// Scans the project, opened by the first call.
    std::vector<std::string> scan(fernwick::ProgressBar* bar = nullptr, fernwick::Label* label = nullptr) {
        if (!opened) opened = host.openFile(sample.writeTo(host.folder, "Demo"));
        const auto qlProject = basic::make<fernwick::clsQLProject>(diskServices);
        qlProject->VBProject(opened);
        return onDisk.ScanProjectForFontDependencies(qlProject, bar, label);
    }
    std::vector<std::string> warnings() const {
        std::vector<std::string> all;
        for (const auto& row : rows()) all.push_back(row);
        return all;
    }

    test::TestHost host;
    host::FileSystem disk;
    fernwick::Platform diskPlatform{user,      loop,  registry, disk,    processes, classes,   environment,
                                    clipboard, shell, screen,   windows, clock,     resources, {}};
    fernwick::modQLInstallInfo diskInstall{registry2, disk};
    fernwick::ProjectServices diskServices{errors, diskPlatform, diskInstall, addIn, devices, templates};
    fernwick::modDependencyManagement onDisk{{diskPlatform, errors, diskInstall, messages, menu}};
    test::SampleProject sample = test::SampleProject("Demo").handheld("PocketPC-ARM");
    basic::Ref<vbide::VBProject> opened;
};

TEST_F(FontScan, FindsTheFileOfTheConvertersNameFirst) {
    font("Fonts/Aaa.cmf", "Arial", 1, 8);
    font("Fonts/Ari_08B.CMF", "Arial", 1, 8);
    form("frmMain", {{"QLLabel", "lblA", "Arial", 1, 8}});
    EXPECT_THAT(scan(), ElementsAre("Ari_08B.CMF"));
    EXPECT_THAT(warnings(), IsEmpty());
}

TEST_F(FontScan, ThenAnyFileOfTheFontsFolderInItsOrder) {
    font("Fonts/Ari_12R.CMF", "Ariadne", 0, 12); // same file name, but another font
    font("Fonts/a.txt", "Arial", 0, 12);
    font("Fonts/c.cmf", "Arial", 0, 12);
    font("Fonts/B.Cmf", "Arial CMF", 0, 12);
    form("frmMain", {{"QLLabel", "lblA", "Arial"}});
    EXPECT_THAT(scan(), ElementsAre("B.Cmf"));
}

TEST_F(FontScan, ThenAnyFileBesideTheProject) {
    font("Fonts/Ari_12R.CMF", "Arial", 0, 11);
    font("Demo/mine.cmf", "Arial", 0, 12);
    form("frmMain", {{"QLLabel", "lblA", "Arial"}});
    EXPECT_THAT(scan(), ElementsAre("mine.cmf"));
}

TEST_F(FontScan, NamesTheFileAsOnDisk) {
    font("fonts/ari_12r.cmf", "ArialCMF", 0, 12);
    form("frmMain", {{"QLLabel", "lblA", "Arial"}});
    EXPECT_THAT(scan(), ElementsAre("ari_12r.cmf"));
}

TEST_F(FontScan, ListsEachFileOnce) {
    font("Fonts/Ari_12R.CMF", "ArialCMF", 0, 12);
    font("Fonts/Tah_08R.CMF", "Tahoma", 0, 8);
    form("frmA", {{"QLLabel", "lblA", "Arial"}, {"QLButton", "btnA", "ArialCMF"}, {"QLGrid", "grdA", "Arial"}});
    form("frmB", {{"QLTextBox", "txtB", "Tahoma", 0, 8}, {"QLListBox", "lstB", "Arial"}});
    EXPECT_THAT(scan(), ElementsAre("Ari_12R.CMF", "Tah_08R.CMF"));
}

TEST_F(FontScan, EightClassesHaveFonts) {
    std::vector<FormControl> controls;
    int size = 10;
    for (const char* name : {"QLButton", "QLCheckBox", "QLComboBox", "QLGrid", "QLLabel", "QLListBox", "QLRadioButton",
                             "QLTextBox", "QLPicture", "qllabel", "TextBox"}) {
        controls.push_back({name, std::string("ctl") + name, "Arial", 0, ++size});
        font("Fonts/" + std::to_string(size) + ".cmf", "Arial", 0, size);
    }
    controls[9].name = "ctlLower";
    form("frmMain", controls);
    EXPECT_THAT(scan(), ElementsAre("11.cmf", "12.cmf", "13.cmf", "14.cmf", "15.cmf", "16.cmf", "17.cmf", "18.cmf"));
}

TEST_F(FontScan, AMissingFontIsOneWarningInEachScan) {
    form("frmA", {{"QLLabel", "lblA", "Arial", 1, 8}, {"QLLabel", "lblB", "Arial", 1, 8}});
    form("frmB", {{"QLLabel", "lblC", "ARIAL", 1, 8}}); // warnings are tracked regardless of case
    EXPECT_THAT(scan(), IsEmpty());
    const std::string row = "frmA||8193|Could Not Find \"Arial\" Weight:8 Style:1 referenced in frmA If this font is "
                            "not already on the device, either add the font as a dependency, or convert the font and "
                            "store it in the Quinloft/Fonts directory.";
    EXPECT_THAT(warnings(), ElementsAre(row));
    EXPECT_EQ(messages.warningCount(), 1);
    EXPECT_TRUE(messages.isToolWindowShowing());
    EXPECT_THAT(opened->ReadProperty("Quinloft Project Compile Errors", "Error1"),
                HasSubstr("WARNING|" + (host.folder / "Demo/frmA.frm") + "|0|Could Not Find 'Arial'"));
    scan();
    EXPECT_THAT(warnings(), ElementsAre(row, row));
}

TEST_F(FontScan, ForPalmTheWarningNamesTheConverter) {
    sample = test::SampleProject("Demo").handheld("PalmOS-DragonBall");
    form("frmA", {{"QLLabel", "lblA", "Arial", 0, 12}});
    scan();
    EXPECT_THAT(warnings(),
                ElementsAre("frmA||8193|Could Not Find \"Arial\" Weight:12 Style:0 referenced in frmA Double-click "
                            "this error to start the Font Converter. Converted font must be located in the "
                            "Quinloft\\Fonts directory."));
}

TEST_F(FontScan, OtherSizesAndStylesAreOtherFonts) {
    form("frmA", {{"QLLabel", "a", "Arial", 0, 8}, {"QLLabel", "b", "Arial", 1, 8}, {"QLLabel", "c", "Arial", 0, 9}});
    scan();
    EXPECT_EQ(warnings().size(), 3U);
}

TEST_F(FontScan, ModulesAndClassesHaveNone) {
    sample.module("Module1").classModule("Class1");
    EXPECT_THAT(scan(), IsEmpty());
    EXPECT_THAT(warnings(), IsEmpty());
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(FontScan, AnUnreadableFontFileDoesNotMatch) {
    host.folder.write("Fonts/Ari_12R.CMF/inside", ""); // a folder of that name
    form("frmA", {{"QLLabel", "lblA", "Arial"}});
    EXPECT_THAT(scan(), IsEmpty());
    EXPECT_EQ(warnings().size(), 1U);
    EXPECT_THAT(errors.seen, IsEmpty());
}

class frmScan : public fernwick::Form {
public:
    using Form::Form;
    const char* typeName() const override { return "frmScan"; }
    fernwick::ProgressBar bar{this, "bar"};
    fernwick::Label label{this, "label"};
};

TEST_F(FontScan, ShowsItsProgress) {
    sample.module("Module1");
    form("frmA", {});
    frmScan shown{user};
    std::vector<std::string> notified;
    const auto watchBar = shown.bar.Value.watch([&](float value) { notified.push_back(fmt::format("{}", value)); });
    const auto watchLabel = shown.label.Caption.watch([&](const std::string& text) { notified.push_back(text); });
    shown.bar.Value(7);
    scan(&shown.bar, &shown.label);
    EXPECT_THAT(notified, ElementsAre("7", "0", "Scanning Module1...", "1", "Scanning frmA...", "2", "Finished"));
    EXPECT_EQ(shown.bar.Min(), 0);
    EXPECT_EQ(shown.bar.Max(), 2);
    EXPECT_EQ(shown.bar.percent(), 100);
}

// In memory, where files are counted and calls fail.
class FontScanInMemory : public testing::Test, protected test::CompileWorld {
protected:
    FontScanInMemory() {
        set("Quinloft Global", "TargetDevice", "PocketPC-ARM");
        designer = addForm("frmMain");
    }
    basic::Ref<test::TracedDesigner> addForm(const std::string& name) {
        const auto form = basic::make<test::TracedDesigner>(trace);
        project->add(name, "/p/" + name + ".frm", vbide::vbext_ct_VBForm)->designer = form;
        return form;
    }
    std::vector<std::string> scan() {
        trace.effects.clear();
        return dependencies.ScanProjectForFontDependencies(projects.GetQLProject(project));
    }
    basic::Ref<test::TracedDesigner> designer;
};

TEST_F(FontScanInMemory, AnUnsavedProjectMustBeSavedFirst) {
    files.files["/install/Fonts/own.cmf"] = {fontFile("Arial", 0, 12)};
    designer->add("QLLabel", "Arial", 0, 12);
    EXPECT_THAT(scan(), ElementsAre("own.cmf"));
    project->file.clear();
    EXPECT_THAT(scan(), IsEmpty());
    EXPECT_THAT(trace.effects,
                ElementsAre("box 48 Fernwick: Before scanning for dependencies the project must be saved.",
                            "host: save project"));
}

TEST_F(FontScanInMemory, AnEmptyProjectIsReported) {
    project->components->list.clear();
    EXPECT_THAT(scan(), IsEmpty());
    EXPECT_THAT(trace.effects, ElementsAre("box 48 Fernwick: This project is empty!"));
}

TEST_F(FontScanInMemory, AFontBesideTheProjectThatTheFontsFolderHasTooGoesByItsBareName) {
    files.files["/install/Fonts/own.cmf"] = {fontFile("Other", 0, 12)};
    files.files["/p/own.cmf"] = {fontFile("Arial", 0, 12)};
    designer->add("QLLabel", "Arial", 0, 12);
    EXPECT_THAT(scan(), ElementsAre("own.cmf"));
}

TEST_F(FontScanInMemory, WithoutAnInstallationTheProjectsOwnFontsCount) {
    registry.RegDeleteValue(fernwick::HKEY_LOCAL_MACHINE, "");
    registry.set(fernwick::HKEY_LOCAL_MACHINE, "Software\\Quinloft", "RootDir", "");
    files.files["/p/own.cmf"] = {fontFile("Arial", 0, 12)};
    designer->add("QLLabel", "Arial", 0, 12);
    EXPECT_THAT(scan(), ElementsAre("own.cmf"));
}

TEST_F(FontScanInMemory, ListsFoldersAndReadsFilesOnce) {
    for (int i = 0; i < 20; ++i) files.files["/install/Fonts/" + std::to_string(i) + ".cmf"] = {fontFile("F", 0, i)};
    for (int i = 0; i < 300; ++i) designer->add("QLLabel", "F", 0, i % 30);
    EXPECT_EQ(scan().size(), 20U);
    EXPECT_EQ(files.listings, 2);
    EXPECT_EQ(files.partsRead, 20);
}

TEST_F(FontScanInMemory, AControlWithoutAFontPropertyIsReportedAndSkipped) {
    designer->add("QLLabel", "Arial", 0, 12)->properties->values.erase("FontSize");
    EXPECT_THAT(scan(), IsEmpty());
    EXPECT_THAT(errors.seen, ElementsAre("modDependencyManagement.ScanFormforDependencies [9]"));
    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(FontScanInMemory, AFailingCallSkipsOnlyItself) {
    files.files["/install/Fonts/a.cmf"] = {fontFile("Arial", 0, 12)};
    designer->add("QLLabel", "Arial", 0, 12);
    designer->add("QLLabel", "Gone", 0, 12);
    addForm("frmOther")->add("QLGrid", "Arial", 0, 12);
    EXPECT_THAT(scan(), ElementsAre("a.cmf"));
    const auto baseline = trace.effects;
    for (int failing = 1;; ++failing) {
        errors.seen.clear();
        errors.injected = trace.calls = 0;
        trace.failing = failing;
        const auto fonts = scan();
        const bool swept = trace.calls < failing;
        trace.failing = 0;
        if (swept) break;
        EXPECT_LE(errors.injected, 1) << failing;
        EXPECT_LE(errors.seen.size(), failing == 1 ? 4U : 1U) << failing;
        EXPECT_LE(fonts.size(), 1U) << failing;
    }
    EXPECT_THAT(scan(), ElementsAre("a.cmf"));
    EXPECT_EQ(trace.effects.size(), baseline.size());
}

} // namespace
