#include "Host/model/project.h"
#include "Host/model/project_references.h"
#include "Host/model/references/type_libraries.h"
#include "tests/support/test_host.h"

using test::errorOf;
using test::SampleProject;
using test::TestHost;

namespace {

constexpr auto kThing = "{11111111-2222-3333-4444-55555555AAAA}";
constexpr auto kReferencedControls = "{1198F6AB-5766-4D4A-A1AF-CD9A25D2D2B4}";
const auto kStdOleLine =
    "Reference=*\\G{00020430-0000-0000-C000-000000000046}#2.0#0#..\\..\\System32\\stdole2.tlb#OLE Automation";

/// The first reference after the built-in libraries.
constexpr int kFirstOwn = 4;

basic::Ref<vbide::Reference> firstOwn(const basic::Ref<vbide::VBProject>& project) {
    return project->References()->Item(kFirstOwn);
}

} // namespace

TEST(HostReferences, BuiltInLibrariesAreFirst) {
    TestHost host;
    const auto references = host.open(SampleProject())->References();
    ASSERT_EQ(references->Count(), 3);
    std::vector<std::string> names;
    for (const auto& reference : references->items()) {
        names.push_back(reference->Name());
        EXPECT_TRUE(reference->BuiltIn());
        EXPECT_FALSE(reference->IsBroken());
    }
    EXPECT_EQ(names, (std::vector<std::string>{"VBA", "VBRUN", "VB"}));
    EXPECT_EQ(errorOf([&] { references->Item(0); }), 9);
    EXPECT_EQ(errorOf([&] { references->Item(4); }), 9);
    EXPECT_EQ(errorOf([&] { references->Remove(references->Item(1)); }), 5);
}

TEST(HostReferences, BuiltInLibrariesHaveTheirIdentifiers) {
    TestHost host;
    std::string rows;
    for (const auto& one : host.open(SampleProject())->References()->items())
        rows += one->Name() + " " + one->Guid() + " " + std::to_string(one->Major()) + "." +
                std::to_string(one->Minor()) + " " + one->FullPath() + " " + one->Description() + "\n";
    EXPECT_EQ(rows, "VBA {000204EF-0000-0000-C000-000000000046} 6.0 MSVBVM60.DLL Visual Basic For Applications\n"
                    "VBRUN {EA544A21-C82D-11D1-A3E4-00A0C90AEA82} 6.0 MSVBVM60.DLL\\3 "
                    "Visual Basic runtime objects and procedures\n"
                    "VB {FCFB3D2E-A0FA-1068-A738-08002B3371B5} 6.0 VB6.OLB Visual Basic objects and procedures\n");
}

TEST(HostReferences, EachMemberOfARemovedOneIsAnError) {
    TestHost host;
    const auto project = host.open(SampleProject().member(kStdOleLine));
    const auto removed = firstOwn(project);
    project->References()->Remove(removed);
    const std::function<void()> members[] = {[&] { removed->Name(); },     [&] { removed->Guid(); },
                                             [&] { removed->Major(); },    [&] { removed->Minor(); },
                                             [&] { removed->FullPath(); }, [&] { removed->Description(); },
                                             [&] { removed->BuiltIn(); },  [&] { removed->IsBroken(); }};
    for (const auto& use : members) EXPECT_EQ(errorOf(use), basic::kAutomationError);
}

TEST(HostReferences, WithoutARegistryNoLibraryIsKnown) {
    const host::TypeLibraries none(nullptr);
    EXPECT_FALSE(none.ofProgId("Excel.Sheet"));
    EXPECT_FALSE(none.find(kThing, 1, 0));
}

TEST(HostReferences, HaveTheValuesOfTheirLines) {
    TestHost host;
    const auto project =
        host.open(SampleProject()
                      .member(kStdOleLine)
                      .member("Reference=*\\G{11111111-2222-3333-4444-55555555aaaa}#2e.1#0#lib\\thing.dll#A thing"));
    const auto stdole = firstOwn(project);
    EXPECT_EQ(stdole->Name(), "stdole");
    EXPECT_FALSE(stdole->IsBroken());
    EXPECT_FALSE(stdole->BuiltIn());
    const auto thing = project->References()->Item(kFirstOwn + 1);
    EXPECT_EQ(thing->Guid(), kThing);
    EXPECT_EQ(thing->Major(), 0x2e);
    EXPECT_EQ(thing->Minor(), 1);
    EXPECT_EQ(thing->FullPath(), host.folder / "lib/thing.dll");
    EXPECT_EQ(thing->Description(), "A thing");
    EXPECT_TRUE(thing->IsBroken());
    host.folder.write("lib/thing.dll", "");
    EXPECT_FALSE(thing->IsBroken());
}

TEST(HostReferences, ARegisteredLibraryIsNotBrokenAndHasItsRealPath) {
    TestHost host;
    host.registerLibrary(kThing, "/opt/thing.dll", "A thing");
    const auto thing =
        firstOwn(host.open(SampleProject().member(std::string("Reference=*\\G") + kThing + "#1.0#0#gone.dll#")));
    EXPECT_FALSE(thing->IsBroken());
    EXPECT_EQ(thing->FullPath(), "/opt/thing.dll");
}

TEST(HostReferences, AnObjectLineShowsItsCachedDescription) {
    TestHost host;
    const auto project = host.open(SampleProject()
                                       .member("Object={831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0; MSCOMCTL.OCX")
                                       .member("Object=Some.Document.8; SOMEAPP.EXE")
                                       .member("Reference=*\\A..\\Other\\Other.vbp"));
    ASSERT_EQ(project->References()->Count(), kFirstOwn + 1);
    EXPECT_EQ(firstOwn(project)->FullPath(), host.folder / "MSCOMCTL.oca");
    const auto other = project->References()->Item(kFirstOwn + 1);
    EXPECT_EQ(other->Guid(), "");
    EXPECT_EQ(other->Name(), "Other");
    EXPECT_TRUE(other->IsBroken());
}

TEST(HostReferences, AddingByGuidWritesALineOnce) {
    TestHost host;
    host.registerLibrary(kThing, host.folder / "thing.dll", "A thing");
    const auto project = host.open(SampleProject().form("frmA"));
    int reported = 0;
    const auto added = host.ide->Events()->ReferencesEvents(project)->ItemAdded.connect([&](auto) { ++reported; });
    const auto reference = project->References()->AddFromGuid("{11111111-2222-3333-4444-55555555aaaa}", 1, 0);
    EXPECT_EQ(project->References()->AddFromGuid(kThing, 1, 0), reference);
    EXPECT_EQ(reported, 1);
    EXPECT_EQ(reference->Guid(), kThing);
    EXPECT_TRUE(project->IsDirty());
    project->SaveAs(project->FileName());
    EXPECT_NE(
        host.folder.read("Hello.vbp")
            .find(std::string("Form=frmA.frm\r\nReference=*\\G") + kThing + "#1.0#0#thing.dll#A thing\r\nStartup"),
        std::string::npos)
        << host.folder.read("Hello.vbp");
}

TEST(HostReferences, AddingAnUnregisteredLibraryIsAnError) {
    TestHost host;
    const auto project = host.open(SampleProject());
    EXPECT_EQ(errorOf([&] { project->References()->AddFromGuid(kThing, 1, 0); }), -2147319779);
    EXPECT_EQ(errorOf([&] { project->References()->AddFromGuid("nonsense", 1, 0); }), 5);
    EXPECT_EQ(errorOf([&] { project->References()->AddFromFile(host.folder / "none.dll"); }), 53);
    EXPECT_EQ(errorOf([&] { project->References()->AddFromFile(host.folder.write("x.dll", "")); }), 48);
    EXPECT_FALSE(project->IsDirty());
}

TEST(HostReferences, AProjectCanBeReferenced) {
    TestHost host;
    host.folder.write("Other.vbp", "Type=Exe\r\n");
    const auto project = host.open(SampleProject());
    EXPECT_FALSE(project->References()->AddFromFile(host.folder / "Other.vbp")->IsBroken());
    project->SaveAs(project->FileName());
    EXPECT_NE(host.folder.read("Hello.vbp").find("Reference=*\\AOther.vbp\r\n"), std::string::npos);
}

TEST(HostReferences, ARemovedOneIsRemovedFromTheFile) {
    TestHost host;
    const auto project = host.open(SampleProject().member(kStdOleLine));
    const auto stdole = firstOwn(project);
    std::string reported;
    const auto removed =
        host.ide->Events()->ReferencesEvents(project)->ItemRemoved.connect([&](auto r) { reported = r->Name(); });
    project->References()->Remove(stdole);
    EXPECT_EQ(reported, "stdole");
    EXPECT_EQ(errorOf([&] { stdole->Name(); }), 440);
    project->SaveAs(project->FileName());
    EXPECT_EQ(host.folder.read("Hello.vbp"), SampleProject().text());
}

TEST(HostReferences, TheToolboxAddsALibraryOnce) {
    TestHost host;
    host.registerLibrary(kReferencedControls, "/inst/tavlets/Tavlets.dll", "Fernwick Tavlets");
    for (const auto* name : {"Tavlets.QLLabel", "Tavlets.QLList"}) {
        host.registerText(std::string(name) + "\\CLSID", "{ACF541CF-87F2-40A2-BEB1-628C6676A32D}");
        host.registerText("CLSID\\{ACF541CF-87F2-40A2-BEB1-628C6676A32D}\\TypeLib", kReferencedControls);
    }
    const auto project = host.open(SampleProject());
    project->AddToolboxProgID("Tavlets.QLLabel");
    project->AddToolboxProgID("Tavlets.QLList");
    EXPECT_EQ(errorOf([&] { project->AddToolboxProgID("None.Such"); }), 429);
    EXPECT_EQ(firstOwn(project)->FullPath(), "/inst/tavlets/Tavlets.oca");
    project->SaveAs(project->FileName());
    const auto text = host.folder.read("Hello.vbp");
    const auto line = std::string("Object=") + kReferencedControls + "#1.0#0; Tavlets.dll\r\n";
    EXPECT_EQ(text.find(line), text.rfind("Object="));
    EXPECT_NE(text.find(line), std::string::npos) << text;
}

TEST(HostReferences, AnotherOrderExchangesTheLines) {
    TestHost host;
    const auto thing = std::string("Reference=*\\G") + kThing + "#1.0#0#..\\odd  spelling.dll#A thing";
    const auto project = host.open(SampleProject().member(thing).form("frmA").member(kStdOleLine));
    auto& references = basic::cast<host::Project>(project)->references();
    project->SaveAs(project->FileName());
    const auto before = host.folder.read("Hello.vbp");
    references.arrange(project->References()->items());
    EXPECT_FALSE(project->IsDirty());
    references.arrange({project->References()->Item(kFirstOwn + 1), firstOwn(project)});
    EXPECT_TRUE(project->IsDirty());
    EXPECT_EQ(project->References()->Item(kFirstOwn + 1)->Guid(), kThing);
    project->SaveAs(project->FileName());
    auto expected = before;
    expected.replace(expected.find(kStdOleLine), std::string(kStdOleLine).size(), "\1");
    expected.replace(expected.find(thing), thing.size(), kStdOleLine);
    expected.replace(expected.find('\1'), 1, thing);
    EXPECT_EQ(host.folder.read("Hello.vbp"), expected);
    EXPECT_EQ(errorOf([&] { references.arrange({firstOwn(project), firstOwn(project)}); }), 5);
    project->References()->Remove(firstOwn(project));
    project->SaveAs(project->FileName());
    EXPECT_EQ(host.folder.read("Hello.vbp").find(kStdOleLine), std::string::npos);
}

TEST(HostReferences, RegisteredLibrariesAreListedByDescription) {
    TestHost host;
    constexpr auto kOther = "{99999999-2222-3333-4444-55555555AAAA}";
    host.registerLibrary(kThing, host.folder / "thing.dll", "B thing");
    host.registerLibrary(kOther, host.folder / "other.dll", "A thing");
    std::vector<std::string> names;
    for (const auto& library : host.ide->libraries().all()) names.push_back(library.description);
    EXPECT_EQ(names, (std::vector<std::string>{"A thing", "B thing"}));
    EXPECT_TRUE(host.ide->libraries().ofControls().empty());
    const auto project = host.open(SampleProject());
    auto& references = basic::cast<host::Project>(project)->references();
    references.addControls(kOther);
    references.addControls(kOther);
    EXPECT_EQ(errorOf([&] { references.addControls("{99999999-0000-3333-4444-55555555AAAA}"); }), -2147319779);
    EXPECT_EQ(errorOf([&] { references.addControlFile(host.folder / "none.ocx"); }), 53);
    project->SaveAs(project->FileName());
    EXPECT_NE(host.folder.read("Hello.vbp").find("Object={99999999-2222-3333-4444-55555555AAAA}#1.0#0; other.dll\r\n"),
              std::string::npos);
    EXPECT_EQ(project->References()->Count(), kFirstOwn);
}
