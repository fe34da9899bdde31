#include "Host/model/bars/bars.h"
#include "Host/system/clipboard.h"
#include "tests/support/test_host.h"

using basic::Ref;
using test::errorOf;
using test::SampleProject;
using test::TestHost;

TEST(HostBars, TheFileMenuBeginsWithNewOpenSaveAndRemove) {
    TestHost host;
    const auto file = host.ide->CommandBars()->Item("File");
    EXPECT_EQ(file->Name(), "File");
    EXPECT_EQ(file->Controls()->Item(3)->Id(), 3);
    EXPECT_EQ(file->Controls()->Item(3)->Index(), 3);
    EXPECT_EQ(file->Controls()->Item(4)->Caption(), "&Remove Project");
    EXPECT_EQ(host.ide->CommandBars()->FindControl(3), file->Controls()->Item(3));
}

TEST(HostBars, BuiltInMenusAreFoundByTheirIds) {
    TestHost host;
    const auto bars = host.ide->CommandBars();
    const auto view = bars->FindControl(30004);
    EXPECT_EQ(view->Caption(), "&View");
    EXPECT_EQ(view->Parent()->Name(), "Menu Bar");
    EXPECT_EQ(bars->Item("menu bar"), bars->ActiveMenuBar());
    EXPECT_EQ(bars->FindControl(30038)->Caption(), "&Add-Ins");
    EXPECT_FALSE(bars->FindControl(99999));
    EXPECT_EQ(errorOf([&] { bars->Item("None"); }), 5);
}

TEST(HostBars, ANewMenuIsInsertedBeforeAddIns) {
    TestHost host;
    const auto bar = host.ide->CommandBars()->ActiveMenuBar();
    const auto addIns = host.ide->CommandBars()->FindControl(30038);
    const auto before = addIns->Index();
    const auto menu = bar->Controls()->Add(office::msoControlPopup, before);
    menu->Caption("&Fernwick");
    EXPECT_EQ(menu->Index(), before);
    EXPECT_EQ(addIns->Index(), before + 1);
    EXPECT_EQ(bar->Controls()->Item("&fernwick"), menu);
    const auto item = menu->Controls()->Add();
    item->Caption("Compile");
    EXPECT_EQ(item->Id(), 1); // as for all items of add-ins
    EXPECT_EQ(menu->Controls()->Count(), 1);
    EXPECT_EQ(item->Parent()->Name(), "Fernwick");
    EXPECT_EQ(errorOf([&] { item->Controls(); }), 438);
    menu->Delete();
    EXPECT_EQ(errorOf([&] { menu->Caption(); }), 440);
    EXPECT_EQ(errorOf([&] { bar->Controls()->Item("Fernwick"); }), 5);
    EXPECT_EQ(errorOf([&] { bar->Controls()->Item(99); }), 9);
    EXPECT_EQ(errorOf([&] { bar->Controls()->Add(office::msoControlButton, 99); }), 5);
}

TEST(HostBars, EachMemberOfADeletedControlIsAnError) {
    TestHost host;
    const auto bar = host.ide->CommandBars()->ActiveMenuBar();
    const auto item = bar->Controls()->Add(office::msoControlPopup)->Controls()->Add();
    item->Delete();
    const std::function<void()> members[] = {[&] { item->Id(); },
                                             [&] { item->Index(); },
                                             [&] { item->Type(); },
                                             [&] { item->Caption(); },
                                             [&] { item->Caption("x"); },
                                             [&] { item->Tag(); },
                                             [&] { item->Tag("x"); },
                                             [&] { item->ToolTipText(); },
                                             [&] { item->ToolTipText("x"); },
                                             [&] { item->BeginGroup(); },
                                             [&] { item->BeginGroup(true); },
                                             [&] { item->Enabled(); },
                                             [&] { item->Enabled(true); },
                                             [&] { item->Visible(); },
                                             [&] { item->Visible(true); },
                                             [&] { item->Style(); },
                                             [&] { item->Style(office::msoButtonIcon); },
                                             [&] { item->PasteFace(); },
                                             [&] { item->Parent(); },
                                             [&] { item->Controls(); },
                                             [&] { item->Delete(); },
                                             [&] { item->Execute(); }};
    int member = 0;
    for (const auto& use : members) {
        const auto failed = basic::attempt(use);
        EXPECT_EQ(failed.Number, basic::kAutomationError) << member;
        EXPECT_EQ(failed.Description, "The object invoked has disconnected from its clients") << member++;
    }
}

TEST(HostBars, APopupOfAnAddInIsNotFoundByName) { // a toolbar may have the same name
    TestHost host;
    const auto bars = host.ide->CommandBars();
    bars->ActiveMenuBar()->Controls()->Add(office::msoControlPopup)->Caption("&Fernwick");
    EXPECT_EQ(errorOf([&] { bars->Item("Fernwick"); }), 5);
    const auto toolbar = bars->Add("Fernwick", 1, false);
    EXPECT_EQ(bars->Item("Fernwick"), toolbar);
}

TEST(HostBars, AButtonTakesItsFaceFromTheClipboard) {
    host::Clipboard clipboard;
    TestHost host{nullptr, &clipboard};
    const auto button = host.ide->CommandBars()->Item("File")->Controls()->Add();
    EXPECT_EQ(errorOf([&] { button->PasteFace(); }), 5);
    clipboard.SetData("text/plain", "no picture");
    EXPECT_EQ(errorOf([&] { button->PasteFace(); }), 5);
    clipboard.SetData(fernwick::kPictureFormat, "picture");
    button->PasteFace();
    clipboard.Clear();
    EXPECT_EQ(basic::cast<host::BarControl>(button)->face(), "picture");
    button->Style(office::msoButtonIconAndCaption);
    EXPECT_EQ(button->Style(), office::msoButtonIconAndCaption);
    EXPECT_EQ(errorOf([&] { host.ide->CommandBars()->FindControl(30004)->PasteFace(); }), 438);
}

TEST(HostBars, AClickReachesItsHandlersBeforeTheCommand) {
    TestHost host;
    const auto project = host.open(SampleProject());
    project->WriteProperty("A", "k", "v");
    const auto save = host.ide->CommandBars()->FindControl(3);
    bool cancel = true;
    int clicks = 0;
    const auto clicked = host.ide->Events()->CommandBarEvents(save)->Click.connect(
        [&](Ref<office::CommandBarControl> control, bool&, bool& cancelDefault) {
            clicks += control == save;
            cancelDefault = cancel;
        });
    save->Execute();
    EXPECT_TRUE(project->IsDirty());
    cancel = false;
    save->Execute();
    EXPECT_FALSE(project->IsDirty());
    save->Enabled(false);
    save->Execute();
    EXPECT_EQ(clicks, 2);
}

TEST(HostBars, AnErrorOfAClickHandlerIsReported) {
    TestHost host;
    const auto button = host.ide->CommandBars()->Item("File")->Controls()->Add();
    const auto clicked =
        host.ide->Events()->CommandBarEvents(button)->Click.connect([](auto&&...) { throw basic::RuntimeError(13); });
    button->Execute();
    ASSERT_EQ(host.failures.size(), 1u);
    EXPECT_EQ(host.failures[0].Number, 13);
}

TEST(HostBars, SaveSavesComponentsWithAFile) {
    TestHost host;
    const auto project = host.open(SampleProject().module("modA"));
    const auto fresh = project->VBComponents()->Add(vbide::vbext_ct_StdModule);
    project->VBComponents()->Item("modA")->CodeModule()->InsertLines(1, "x");
    host.ide->CommandBars()->FindControl(3)->Execute();
    EXPECT_FALSE(project->IsDirty());
    EXPECT_TRUE(fresh->IsDirty());
    EXPECT_EQ(host.folder.read("modA.bas"), test::moduleText("modA", "x\r\n"));
}

TEST(HostBars, RemoveRemovesTheActiveProjectAndNewMakesOne) {
    TestHost host;
    const auto file = host.ide->CommandBars()->Item("File");
    file->Controls()->Item(4)->Execute();
    host.open(SampleProject());
    file->Controls()->Item(4)->Execute();
    EXPECT_EQ(host.ide->VBProjects()->Count(), 0);
    file->Controls()->Item(1)->Execute();
    const auto project = host.ide->ActiveVBProject();
    EXPECT_EQ(project->Name(), "Project1");
    EXPECT_EQ(project->FileName(), "");
    EXPECT_EQ(project->VBComponents()->Item(1)->Name(), "Form1");
    file->Controls()->Item(2)->Execute();
    EXPECT_EQ(host.ide->VBProjects()->Count(), 1);
}

TEST(HostBars, AToolbarKeepsItsPosition) {
    TestHost host;
    const auto bars = host.ide->CommandBars();
    const auto bar = bars->Add("Fernwick", 1, false);
    bar->Left(10);
    bar->Top(20);
    bar->RowIndex(2);
    bar->Position(4);
    bar->Visible(true);
    EXPECT_EQ(bars->Item("Fernwick")->Left(), 10);
    EXPECT_EQ(bar->Top() + bar->RowIndex() + bar->Position(), 26);
    EXPECT_EQ(errorOf([&] { bars->Add("fernwick", 1, false); }), 5);
    const auto button = bar->Controls()->Add();
    bar->Delete();
    EXPECT_EQ(errorOf([&] { bar->Name(); }), 440);
    EXPECT_EQ(errorOf([&] { button->Execute(); }), 440);
    EXPECT_EQ(errorOf([&] { bars->Item("Fernwick"); }), 5);
    EXPECT_EQ(bars->ActiveMenuBar()->Name(), "Menu Bar");
}

TEST(HostBars, EachChangeIsReported) {
    TestHost host;
    int reported = 0;
    const auto watch = host.ide->bars().changed.connect([&] { ++reported; });
    const auto menu = host.ide->CommandBars()->ActiveMenuBar()->Controls()->Add(office::msoControlPopup);
    EXPECT_EQ(reported, 1);
    menu->Caption("&Tools");
    EXPECT_EQ(reported, 2);
    menu->Controls()->Add()->Enabled(false);
    EXPECT_EQ(reported, 4);
    host.ide->CommandBars()->ActiveMenuBar()->Visible(false);
    EXPECT_EQ(reported, 5);
    menu->Delete();
    EXPECT_EQ(reported, 6);
}
