#include "Host/model/code/component_kind.h"
#include "Host/model/component.h"
#include "tests/support/test_host.h"

using test::errorOf;
using test::SampleProject;
using test::TestHost;

TEST(HostComponents, HaveTheirNamesTypesAndFiles) {
    TestHost host;
    const auto project =
        host.open(SampleProject()
                      .form("frmA")
                      .module("modA")
                      .classModule("clsA")
                      .member("Form=mdi.frm", "mdi.frm", "VERSION 5.00\r\nBegin VB.MDIForm mdi \r\nEnd\r\n")
                      .member("UserControl=u.ctl", "u.ctl", "VERSION 5.00\r\nBegin VB.UserControl u \r\nEnd\r\n"));
    std::vector<int> types;
    for (const auto& component : project->VBComponents()->items()) types.push_back(component->Type());
    EXPECT_EQ(types, (std::vector<int>{5, 1, 2, 6, 8}));
    EXPECT_EQ(project->VBComponents()->Item("FRMa")->FileNames(1), host.folder / "frmA.frm");
    EXPECT_EQ(errorOf([&] { project->VBComponents()->Item("none"); }), 9);
    EXPECT_EQ(errorOf([&] { project->VBComponents()->Item(0); }), 9);
    EXPECT_EQ(errorOf([&] { project->VBComponents()->Item(6); }), 9);
}

TEST(HostComponents, ABinaryCompanionIsASecondFile) {
    TestHost host;
    host.folder.write("frmA.FRX", "x");
    const auto project = host.open(SampleProject().form("frmA").form("frmB").module("modA"));
    EXPECT_EQ(project->VBComponents()->Item(1)->FileCount(), 2);
    EXPECT_EQ(project->VBComponents()->Item(1)->FileNames(2), host.folder / "frmA.FRX");
    EXPECT_EQ(project->VBComponents()->Item(2)->FileCount(), 1);
    EXPECT_EQ(errorOf([&] { project->VBComponents()->Item(2)->FileNames(2); }), 9);
    EXPECT_EQ(project->VBComponents()->Item(3)->FileCount(), 1);
}

TEST(HostComponents, ANewFormHasNoFileAndAnOpenDesigner) {
    TestHost host;
    const auto project = host.open(SampleProject().form("Form1"));
    const auto form = project->VBComponents()->Add(vbide::vbext_ct_VBForm);
    EXPECT_EQ(form->Name(), "Form2");
    EXPECT_EQ(form->FileNames(1), "");
    EXPECT_TRUE(form->IsDirty());
    EXPECT_TRUE(form->HasOpenDesigner());
    EXPECT_EQ(host.ide->SelectedVBComponent(), form);
    EXPECT_EQ(form->CodeModule()->CountOfLines(), 0);
    EXPECT_TRUE(form->Designer());
    EXPECT_TRUE(project->IsDirty());
    EXPECT_EQ(errorOf([&] { project->VBComponents()->Add(vbide::vbext_ct_RelatedDocument); }), 5);
}

TEST(HostComponents, SavingANewOneListsItAfterTheLastMember) {
    TestHost host;
    const auto project = host.open(SampleProject().form("frmA"));
    const auto module = project->VBComponents()->Add(vbide::vbext_ct_StdModule);
    module->CodeModule()->InsertLines(1, "Option Explicit");
    module->SaveAs(host.folder / "Module1.bas");
    EXPECT_FALSE(module->IsDirty());
    EXPECT_EQ(host.folder.read("Module1.bas"), "Attribute VB_Name = \"Module1\"\r\nOption Explicit\r\n");
    project->SaveAs(project->FileName());
    EXPECT_NE(host.folder.read("Hello.vbp").find("Form=frmA.frm\r\nModule=Module1; Module1.bas\r\nStartup"),
              std::string::npos);
}

TEST(HostComponents, AClassAndAModuleHaveNoDesigner) {
    TestHost host;
    const auto project = host.open(SampleProject().classModule("clsA").module("modA"));
    for (const auto& component : project->VBComponents()->items()) {
        EXPECT_FALSE(component->Designer());
        EXPECT_FALSE(component->HasOpenDesigner());
        EXPECT_EQ(errorOf([&] { component->Properties(); }), 438);
    }
}

TEST(HostComponents, AnEditedPropertyChangesOnlyItsLine) {
    TestHost host;
    const auto project = host.open(SampleProject().form("frmA", "' code\r\n"));
    const auto form = project->VBComponents()->Item(1);
    form->Properties()->Item("Caption")->Value(std::string("New"));
    EXPECT_TRUE(form->IsDirty());
    form->SaveAs(form->FileNames(1));
    auto expected = test::formText("frmA", "' code\r\n");
    expected.replace(expected.find("\"frmA\"\r\n   ClientHeight"), 6, "\"New\"");
    EXPECT_EQ(host.folder.read("frmA.frm"), expected);
}

TEST(HostComponents, ANewNameIsWrittenToTheFileTheProjectAndTheStartUp) {
    TestHost host;
    const auto project = host.open(SampleProject().form("frmA").module("modA").startup("frmA"));
    const auto form = project->VBComponents()->Item("frmA");
    form->Name("frmNew");
    project->VBComponents()->Item("modA")->Name("modNew");
    EXPECT_EQ(project->VBComponents()->Item("frmNew"), form);
    EXPECT_EQ(errorOf([&] { project->VBComponents()->Item("frmA"); }), 9);
    EXPECT_EQ(project->VBComponents()->StartUpObject().component, form);
    host.ide->saveProject(project);
    EXPECT_EQ(host.folder.read("frmA.frm").find("Begin VB.Form frmNew \r\n"), 14u);
    EXPECT_NE(host.folder.read("frmA.frm").find("Attribute VB_Name = \"frmNew\""), std::string::npos);
    EXPECT_NE(host.folder.read("Hello.vbp").find("Module=modNew; modA.bas\r\nStartup=\"frmNew\""), std::string::npos);
    EXPECT_EQ(errorOf([&] { form->Name("MODNEW"); }), 32813);
    EXPECT_EQ(errorOf([&] { form->Name("not a name"); }), 380);
    EXPECT_EQ(errorOf([&] { form->Name(""); }), 380);
}

TEST(HostComponents, ARefusedNameIsInTheError) {
    TestHost host;
    const auto project = host.open(SampleProject().form("frmA").module("modA"));
    const auto form = project->VBComponents()->Item("frmA");
    const auto refusal = [&](const std::string& name) { return basic::attempt([&] { form->Name(name); }).Description; };
    EXPECT_EQ(refusal("modA"), "Name conflicts with existing module, project, or object library: 'modA'");
    EXPECT_EQ(refusal("not a name"), "'not a name' is not a legal object name");
    project->VBComponents()->Remove(form);
    const auto error = basic::attempt([&] { form->Name(); });
    EXPECT_EQ(error.Description, "The object invoked has disconnected from its clients");
}

TEST(HostComponents, EachKindHasItsFiles) {
    struct {
        vbide::vbext_ComponentType type;
        std::string_view extension;
        const char* companion;
    } const cases[] = {
        {vbide::vbext_ct_StdModule, ".bas", "/a.frx"},   {vbide::vbext_ct_ClassModule, ".cls", "/a.frx"},
        {vbide::vbext_ct_VBForm, ".frm", "/a.frx"},      {vbide::vbext_ct_VBMDIForm, ".frm", "/a.frx"},
        {vbide::vbext_ct_UserControl, ".ctl", "/a.ctx"}, {vbide::vbext_ct_PropPage, ".pag", "/a.pgx"},
        {vbide::vbext_ct_DocObject, ".dob", "/a.dox"},   {vbide::vbext_ct_ActiveXDesigner, ".dsr", "/a.dsx"},
    };
    for (const auto& [type, extension, companion] : cases) {
        EXPECT_EQ(host::kindOf(type).extension, extension);
        EXPECT_EQ(host::companionOf("/a" + std::string(extension)), companion);
        EXPECT_EQ(host::memberKindOfFile("/a" + std::string(extension)), host::kindOf(type).member);
    }
}

TEST(HostComponents, AnExistingFileCanBeAdded) {
    TestHost host;
    host.folder.write("lib/modX.bas", test::moduleText("modX"));
    const auto project = host.open(SampleProject().form("frmA"));
    const auto module = project->VBComponents()->AddFile(host.folder / "lib/modX.bas");
    EXPECT_EQ(module->Name(), "modX");
    EXPECT_FALSE(module->IsDirty());
    project->SaveAs(project->FileName());
    EXPECT_NE(host.folder.read("Hello.vbp").find("Module=modX; lib\\modX.bas\r\n"), std::string::npos);
    EXPECT_EQ(errorOf([&] { project->VBComponents()->AddFile(host.folder / "lib/modX.bas"); }), 32813);
    EXPECT_EQ(errorOf([&] { project->VBComponents()->AddFile(host.folder / "none.bas"); }), 53);
    EXPECT_EQ(errorOf([&] { project->VBComponents()->AddFile(host.folder / "Hello.vbp"); }), 321);
}

TEST(HostComponents, ANewFormCountsTheCompanionOfItsTemplate) {
    TestHost host;
    host.folder.write("Template/Forms/Ours.frx", "picture");
    const auto template_ = host.folder.write("Template/Forms/Ours.frm", test::formText("frmOurs"));
    const auto form = host.open(SampleProject())->VBComponents()->AddFile(template_);
    EXPECT_EQ(form->FileCount(), 2);
    EXPECT_EQ(form->FileNames(1) + form->FileNames(2), ""); // not saved yet
    EXPECT_EQ(errorOf([&] { form->FileNames(3); }), 9);
    form->SaveAs(host.folder / "Mine.frm");
    EXPECT_EQ(form->FileNames(2), host.folder / "Mine.frx");
}

TEST(HostComponents, AFileOfATemplateFolderIsAddedAsNew) {
    TestHost host;
    const auto template_ =
        host.folder.write("Template/Modules/Our Module.bas", test::moduleText("Module1", "' ours\r\n"));
    const auto project = host.open(SampleProject().module("Module1"));
    const auto module = project->VBComponents()->AddFile(template_);
    EXPECT_EQ(module->Name(), "Module2");
    EXPECT_EQ(module->FileNames(1), "");
    EXPECT_TRUE(module->IsDirty());
    EXPECT_EQ(module->CodeModule()->Lines(1, 1), "' ours");
    EXPECT_EQ(host.ide->SelectedVBComponent(), module);
    module->SaveAs(host.folder / "Mine.bas");
    EXPECT_EQ(host.folder.read("Mine.bas"), test::moduleText("Module2", "' ours\r\n"));
    EXPECT_EQ(host.folder.read("Template/Modules/Our Module.bas"), test::moduleText("Module1", "' ours\r\n"));
    EXPECT_EQ(project->VBComponents()->AddFile(template_)->Name(), "Module3");
}

TEST(HostComponents, AFormFromATemplateKeepsItsPictures) {
    TestHost host;
    host.folder.write("Template/Forms/frmOurs.frx", "bytes");
    auto text = test::formText("frmOurs");
    text.insert(text.find("   ClientHeight"), "   Icon            =   \"frmOurs.frx\":0000\r\n");
    const auto template_ = host.folder.write("Template/Forms/frmOurs.frm", text);
    const auto form = host.open(SampleProject())->VBComponents()->AddFile(template_);
    EXPECT_EQ(form->Name(), "frmOurs");
    EXPECT_TRUE(form->HasOpenDesigner());
    form->SaveAs(host.folder / "frmMine.frm");
    EXPECT_EQ(host.folder.read("frmMine.frx"), "bytes");
    EXPECT_NE(host.folder.read("frmMine.frm").find("\"frmMine.frx\":0000"), std::string::npos);
}

TEST(HostComponents, ARemovedOneIsNoLongerListedAndRaisesErrors) {
    TestHost host;
    const auto project = host.open(SampleProject().form("frmA").module("modA"));
    const auto form = project->VBComponents()->Item(1);
    const auto designer = form->Designer();
    form->Activate();
    project->VBComponents()->Remove(form);
    EXPECT_EQ(project->VBComponents()->Count(), 1);
    EXPECT_EQ(errorOf([&] { form->Name(); }), 440);
    EXPECT_EQ(errorOf([&] { designer->VBControls()->Count(); }), 440);
    EXPECT_FALSE(host.ide->SelectedVBComponent());
    EXPECT_EQ(errorOf([&] { project->VBComponents()->Remove(form); }), 5);
    project->SaveAs(project->FileName());
    EXPECT_EQ(host.folder.read("Hello.vbp").find("frmA"), std::string::npos);
    EXPECT_TRUE(std::filesystem::exists(host.folder / "frmA.frm"));
}

TEST(HostComponents, TheStartUpIsAComponentSubMainOrNeither) {
    TestHost host;
    const auto project = host.open(SampleProject().form("frmA").startup("Sub Main"));
    const auto components = project->VBComponents();
    EXPECT_TRUE(components->StartUpObject().isSubMain);
    components->StartUpObject({false, components->Item(1)});
    EXPECT_EQ(components->StartUpObject().component, components->Item(1));
    EXPECT_FALSE(components->StartUpObject().isSubMain);
    components->StartUpObject({});
    EXPECT_FALSE(components->StartUpObject().component);
    EXPECT_FALSE(components->StartUpObject().isSubMain);
    project->SaveAs(project->FileName());
    EXPECT_NE(host.folder.read("Hello.vbp").find("Startup=\"(None)\""), std::string::npos);
    EXPECT_FALSE(host.open(SampleProject("Other").startup("frmGone"))->VBComponents()->StartUpObject().component);
}

TEST(HostComponents, SavingAFormUnderAnotherNameCopiesItsResources) {
    TestHost host;
    host.folder.write("frmA.frx", "bytes");
    auto text = test::formText("frmA");
    text.insert(text.find("   ClientHeight"), "   Icon            =   \"frmA.frx\":0000\r\n");
    const auto project = host.open(SampleProject().member("Form=frmA.frm", "frmA.frm", text));
    const auto form = project->VBComponents()->Item(1);
    form->SaveAs(host.folder / "copy/../frmCopy.frm");
    EXPECT_EQ(host.folder.read("frmCopy.frx"), "bytes");
    EXPECT_NE(host.folder.read("frmCopy.frm").find("=   \"frmCopy.frx\":0000\r\n"), std::string::npos);
    EXPECT_EQ(form->FileNames(1), host.folder / "frmCopy.frm");
    EXPECT_EQ(host.folder.read("frmA.frm"), text);
}

TEST(HostComponents, CompanionsAreNamedByTheirKind) {
    EXPECT_EQ(host::companionOf("/p/a.frm"), "/p/a.frx");
    EXPECT_EQ(host::companionOf("/p/a.CTL"), "/p/a.ctx");
    EXPECT_EQ(host::companionOf("/p/a.pag"), "/p/a.pgx");
    EXPECT_EQ(host::companionOf("/p/a.dsr"), "/p/a.dsx");
    EXPECT_EQ(host::companionOf("/p.d/Form1"), "/p.d/Form1.frx");
}

TEST(HostComponents, ADesignersWindowOpensAndCloses) {
    TestHost host;
    const auto form = host.open(SampleProject().form("frmA"))->VBComponents()->Item(1);
    EXPECT_FALSE(form->HasOpenDesigner());
    form->DesignerWindow()->Visible(true);
    EXPECT_TRUE(form->HasOpenDesigner());
    form->DesignerWindow()->Close();
    EXPECT_FALSE(form->HasOpenDesigner());
}
