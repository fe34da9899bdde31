// New values in the resource file of a form.
#include "Host/files/resource_file.h"
#include "Host/model/component.h"
#include "Host/model/forms/control_text.h"
#include "Host/model/forms/form_change.h"
#include "Host/model/forms/property_source.h"
#include "tests/host/designer_support.h"
#include "tests/support/test_host.h"
#include <gmock/gmock.h>

using test::errorOf;
using test::SampleProject;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const std::string kOldRecords("\x0c\0\0\0lt\0\0\x04\0\0\0BM12\x08One\r\nTwo", 25);

const std::string kFormWithRecords = crLf(R"(VERSION 5.00
Begin VB.Form frmMain 
   Caption         =   "Main"
   Icon            =   "frmMain.frx":0000
   Begin VB.TextBox txtLines 
      MultiLine       =   -1  'True
      Text            =   "frmMain.frx":0010
   End
   Begin VB.ListBox lstNames 
      Height          =   255
   End
   Begin TavletsCtl.QLPicture picDevice 
   End
End
Attribute VB_Name = "frmMain"
)");

} // namespace

class FormResources : public testing::Test {
protected:
    void open(const std::string& text = kFormWithRecords, const std::string& records = kOldRecords) {
        if (!records.empty()) host.folder.write("frmMain.frx", records);
        project = host.open(SampleProject().member("Form=frmMain.frm", "frmMain.frm", text));
        form = project->VBComponents()->Item(1);
    }
    basic::Ref<vbide::Property> of(const std::string& control, const std::string& name) {
        const auto object =
            control.empty() ? form->Properties() : form->Designer()->VBControls()->Item(control)->Properties();
        return object->Item(name);
    }
    /// Restores the present lines of the form.
    std::function<void()> restorer() {
        return [form = form, before = host::snapshotOf(form->Designer())] {
            host::FormChange(before, host::snapshotOf(form->Designer())).undo();
        };
    }
    std::string textOfForm() {
        save();
        return saved("frmMain.frm");
    }
    std::string caption() { return fernwick::asText(of("", "Caption")->Value()); }
    void save() { form->SaveAs(form->FileNames(1)); }
    std::string saved(const std::string& name) { return host.folder.read(name); }
    std::string difference() { return changedLines(kFormWithRecords, saved("frmMain.frm")); }

    test::TestHost host;
    basic::Ref<vbide::VBProject> project;
    basic::Ref<vbide::VBComponent> form;
};

TEST_F(FormResources, ANewPictureIsAppendedAndOnlyItsLineChanges) {
    open();
    host::setImage(of("", "Icon"), "GIF89a");
    EXPECT_EQ(saved("frmMain.frx"), kOldRecords);
    EXPECT_EQ(host::imageOf(of("", "Icon")), "GIF89a");
    save();
    EXPECT_EQ(difference(), "-    Icon            =   \"frmMain.frx\":0000\n"
                            "+    Icon            =   \"frmMain.frx\":0019\n");
    EXPECT_EQ(saved("frmMain.frx"), kOldRecords + host::pictureRecord("GIF89a", false));
    EXPECT_EQ(of("txtLines", "Text")->Value(), fernwick::Variant("One\r\nTwo"));
}

TEST_F(FormResources, ATextOnOneLineTakesItsRecordToAnotherForm) {
    const auto string = host::stringRecord(std::string(300, 'x'));
    const auto records = kOldRecords + string;
    auto text = kFormWithRecords;
    text.insert(text.find("   Begin VB.ListBox"),
                crLf("   Begin VB.Label lblLong \n      Caption         =   $\"frmMain.frx\":0019\n   End\n"));
    open(text, records);
    const auto controls = std::vector{form->Designer()->VBControls()->Item("lblLong")};
    const auto copied = host::recordsOfControls(form->Designer(), controls);
    ASSERT_EQ(copied.size(), 1u);
    EXPECT_EQ(copied.at("$\"frmMain.frx\":0019"), string);
    host::insertControls(form->Designer(), nullptr, host::textOfControls(controls), {.arrays = {}, .records = copied});
    save();
    EXPECT_EQ(saved("frmMain.frx"), records + string);
    EXPECT_THAT(saved("frmMain.frm"), testing::HasSubstr("Caption         =   $\"frmMain.frx\":0149"));
}

TEST_F(FormResources, ARecordOfAnUnknownLayoutIsCopiedIfItsLengthIsKnown) {
    const std::string known("\x03\0\0\0abc", 7), cut("\xff\0\0\0abc", 7);
    const auto records = kOldRecords + known + cut;
    auto text = kFormWithRecords;
    text.insert(text.find("   Begin VB.ListBox"), crLf("   Begin Maker.Gauge gauOne \n"
                                                       "      Bytes           =   \"frmMain.frx\":0019\n"
                                                       "      Broken          =   \"frmMain.frx\":0020\n   End\n"));
    open(text, records);
    const auto controls = std::vector{form->Designer()->VBControls()->Item("gauOne")};
    const auto copied = host::recordsOfControls(form->Designer(), controls);
    ASSERT_EQ(copied.size(), 1u);
    EXPECT_EQ(copied.at("\"frmMain.frx\":0019"), known);
    host::insertControls(form->Designer(), nullptr, host::textOfControls(controls), {.arrays = {}, .records = copied});
    save();
    EXPECT_EQ(saved("frmMain.frx"), records + known);
    const auto lines = difference();
    EXPECT_THAT(lines, testing::HasSubstr("Bytes           =   \"frmMain.frx\":0027"));
    EXPECT_EQ(lines.find("Broken"), lines.rfind("Broken")) << "only in the first control";
}

TEST_F(FormResources, ARemovedPictureLeavesItsRecord) {
    open();
    host::setImage(of("", "Icon"), "");
    save();
    EXPECT_EQ(difference(), "-    Icon            =   \"frmMain.frx\":0000\n");
    EXPECT_EQ(saved("frmMain.frx"), kOldRecords);
}

TEST_F(FormResources, APictureOfAnotherLibraryHasTheRecordOfAPropertyBag) {
    open();
    host::setImage(of("picDevice", "DragIcon"), "ICON");
    save();
    EXPECT_EQ(saved("frmMain.frx"), kOldRecords + host::pictureRecord("ICON", true));
}

TEST_F(FormResources, TextsOfSeveralLinesAreRecords) {
    open();
    of("txtLines", "Text")->Value(std::string("Three\r\nFour"));
    of("", "Caption")->Value(std::string("Two\r\nlines"));
    save();
    EXPECT_EQ(difference(), "-    Caption         =   \"Main\"\n"
                            "+    Caption         =   $\"frmMain.frx\":0025\n"
                            "-       Text            =   \"frmMain.frx\":0010\n"
                            "+       Text            =   \"frmMain.frx\":0019\n");
    EXPECT_EQ(saved("frmMain.frx"),
              kOldRecords + host::textRecord("Three\r\nFour") + host::stringRecord("Two\r\nlines"));
    EXPECT_EQ(caption(), "Two\r\nlines");
}

TEST_F(FormResources, ALongTextIsARecordAndAShortOneIsInItsLine) {
    open();
    of("", "Caption")->Value(std::string(129, 'x'));
    save();
    EXPECT_EQ(saved("frmMain.frx"), kOldRecords + host::stringRecord(std::string(129, 'x')));
    of("", "Caption")->Value(std::string(128, 'x'));
    of("txtLines", "Text")->Value(std::string("short"));
    save();
    EXPECT_EQ(difference(), "-    Caption         =   \"Main\"\n"
                            "+    Caption         =   \"" +
                                std::string(128, 'x') +
                                "\"\n"
                                "-       Text            =   \"frmMain.frx\":0010\n"
                                "+       Text            =   \"short\"\n");
}

TEST_F(FormResources, ATextBoxOfOneLineHasTheRecordOfAString) {
    auto text = kFormWithRecords;
    const std::string line = "      MultiLine       =   -1  'True\r\n";
    text.erase(text.find(line), line.size());
    open(text);
    of("txtLines", "Text")->Value(std::string(200, 'x'));
    save();
    EXPECT_EQ(saved("frmMain.frx"), kOldRecords + host::stringRecord(std::string(200, 'x')));
    EXPECT_THAT(saved("frmMain.frm"), testing::HasSubstr("$\"frmMain.frx\":0019"));
}

TEST_F(FormResources, AListIsAPairOfRecords) {
    open();
    host::setItems(of("lstNames", "List"), {"Ann", "Jo"});
    EXPECT_THAT(host::itemsOf(of("lstNames", "ItemData")), ElementsAre("0", "0"));
    host::setItems(of("lstNames", "ItemData"), {"7"});
    EXPECT_THAT(host::itemsOf(of("lstNames", "ItemData")), ElementsAre("7", "0"));
    host::setItems(of("lstNames", "List"), {"Ann", "Jo", "Bob"});
    EXPECT_THAT(host::itemsOf(of("lstNames", "ItemData")), ElementsAre("7", "0", "0"));
    EXPECT_EQ(errorOf([&] { host::setItems(of("lstNames", "ItemData"), {"1", "2", "3", "4"}); }), 380);
    EXPECT_EQ(errorOf([&] { host::setItems(of("lstNames", "ItemData"), {"one"}); }), 13);
    EXPECT_EQ(errorOf([&] { host::setItems(of("lstNames", "List"), {std::string(70000, 'x')}); }), 380);
    EXPECT_EQ(errorOf([&] { host::setItems(of("lstNames", "Tag"), {"x"}); }), 438);
    host::setItems(of("lstNames", "List"), {});
    save();
    EXPECT_EQ(saved("frmMain.frm"), kFormWithRecords);
}

TEST_F(FormResources, UndoRestoresTheOldReferenceAndWritesNoRecord) {
    open();
    const auto restore = restorer();
    host::setImage(of("", "Icon"), "GIF89a");
    host::setItems(of("lstNames", "List"), {"Ann"});
    restore();
    EXPECT_FALSE(form->IsDirty());
    form->IsDirty(true);
    save();
    EXPECT_EQ(saved("frmMain.frm"), kFormWithRecords);
    EXPECT_EQ(saved("frmMain.frx"), kOldRecords);
}

TEST_F(FormResources, ARemovedLineReturnsToItsPlace) {
    auto text = kFormWithRecords;
    const std::string line = "   Icon            =   \"frmMain.frx\":0000\r\n";
    text.erase(text.find(line), line.size());
    text.insert(text.find("   Caption"), "   Icon=\"frmMain.frx\":0000\r\n");
    open(text);
    const auto restore = restorer();
    host::setImage(of("", "Icon"), "");
    restore();
    save();
    EXPECT_EQ(saved("frmMain.frm"), text);
}

TEST_F(FormResources, ARemovedLineReturnsAmongLaterChanges) {
    auto text = kFormWithRecords;
    text.insert(text.find("   Begin VB.TextBox"), "   LinkTopic       =   \"Form1\"\r\n");
    open(text);
    const auto before = host::snapshotOf(form->Designer());
    host::setImage(of("", "Icon"), "");
    const host::FormChange change(before, host::snapshotOf(form->Designer()));
    of("", "Caption")->Value(std::string("Later"));
    of("", "ForeColor")->Value(std::int32_t{255});
    change.undo();
    const auto returned = crLf("   Caption         =   \"Later\"\n   Icon            =   \"frmMain.frx\":0000\n"
                               "   ForeColor       =   &H000000FF&\n   LinkTopic       =   \"Form1\"\n");
    EXPECT_THAT(textOfForm(), testing::HasSubstr(returned));
}

TEST_F(FormResources, ANewFormGetsItsFileAtTheFirstSave) {
    open();
    const auto added = project->VBComponents()->Add(vbide::vbext_ct_VBForm);
    host::setImage(added->Properties()->Item("Icon"), "GIF89a");
    EXPECT_EQ(host::imageOf(added->Properties()->Item("Icon")), "GIF89a");
    added->SaveAs(host.folder / "New.frm");
    EXPECT_EQ(saved("New.frx"), host::pictureRecord("GIF89a", false));
    EXPECT_THAT(saved("New.frm"), testing::HasSubstr("\"New.frx\":0000"));
    EXPECT_EQ(added->FileCount(), 2);
}

TEST_F(FormResources, SaveAsCopiesNewRecordsToo) {
    open();
    host::setImage(of("", "Icon"), "GIF89a");
    form->SaveAs(host.folder / "Copy.frm");
    EXPECT_EQ(saved("frmMain.frx"), kOldRecords);
    EXPECT_EQ(saved("Copy.frx"), kOldRecords + host::pictureRecord("GIF89a", false));
    EXPECT_EQ(changedLines(kFormWithRecords, saved("Copy.frm")), "-    Icon            =   \"frmMain.frx\":0000\n"
                                                                 "+    Icon            =   \"Copy.frx\":0019\n"
                                                                 "-       Text            =   \"frmMain.frx\":0010\n"
                                                                 "+       Text            =   \"Copy.frx\":0010\n");
}

TEST_F(FormResources, UndoAfterSaveAsRefersToTheNewFile) {
    open();
    const auto restore = restorer();
    host::setImage(of("", "Icon"), "GIF89a");
    form->SaveAs(host.folder / "Copy.frm");
    restore();
    EXPECT_EQ(host::imageOf(of("", "Icon")), "BM12");
    save();
    EXPECT_THAT(saved("Copy.frm"), testing::HasSubstr("\"Copy.frx\":0000"));
}

TEST_F(FormResources, AFormThatCannotBeSavedElsewhereKeepsItsReferences) {
    open();
    host::setImage(of("", "Icon"), "GIF89a");
    host.folder.write("Copy.frm", "old");
    std::filesystem::permissions(host.folder / "Copy.frm", std::filesystem::perms::owner_read);
    EXPECT_EQ(errorOf([&] { form->SaveAs(host.folder / "Copy.frm"); }), 75);
    save();
    EXPECT_EQ(difference(), "-    Icon            =   \"frmMain.frx\":0000\n"
                            "+    Icon            =   \"frmMain.frx\":0019\n");
    EXPECT_EQ(saved("frmMain.frx"), kOldRecords + host::pictureRecord("GIF89a", false));
}

TEST_F(FormResources, AFormIsNotSavedWithoutItsResources) {
    open();
    std::filesystem::permissions(host.folder / "frmMain.frx", std::filesystem::perms::owner_read);
    host::setImage(of("", "Icon"), "GIF89a");
    EXPECT_EQ(errorOf([&] { save(); }), 75);
    EXPECT_EQ(saved("frmMain.frm"), kFormWithRecords);
    EXPECT_EQ(saved("frmMain.frx"), kOldRecords);
    EXPECT_TRUE(form->IsDirty());
}

TEST_F(FormResources, AResourceFileThatAnotherProgramChangedIsNotOverwritten) {
    open();
    host::setImage(of("", "Icon"), "GIF89a");
    host.folder.write("frmMain.frx", "changed elsewhere");
    EXPECT_EQ(errorOf([&] { save(); }), 75);
    EXPECT_EQ(saved("frmMain.frx"), "changed elsewhere");
    EXPECT_EQ(saved("frmMain.frm"), kFormWithRecords);
}

TEST_F(FormResources, RereadingDiscardsNewRecords) {
    open();
    host::setImage(of("", "Icon"), "GIF89a");
    basic::cast<host::Component>(form)->reread();
    EXPECT_EQ(host::imageOf(of("", "Icon")), "BM12");
    host::setImage(of("", "Icon"), "PNG");
    save();
    EXPECT_EQ(saved("frmMain.frx"), kOldRecords + host::pictureRecord("PNG", false));
}

TEST_F(FormResources, NewRecordsSurviveAnotherCodePage) {
    open();
    host::setImage(of("", "Icon"), "GIF89a");
    basic::cast<host::Component>(form)->decodeAgain();
    EXPECT_EQ(host::imageOf(of("", "Icon")), "GIF89a");
}

TEST_F(FormResources, AReferenceToMissingDataDoesNotGetThatOfAnother) {
    open(kFormWithRecords, "");
    host::setItems(of("lstNames", "List"), {"Ann"});
    EXPECT_EQ(host::imageOf(of("", "Icon")), "");
    EXPECT_EQ(of("txtLines", "Text")->Value(), fernwick::Variant(""));
    host::setImage(of("", "Icon"), "GIF89a");
    EXPECT_TRUE(form->IsDirty());
    save();
    EXPECT_EQ(saved("frmMain.frx"), std::string(17, '\0') + host::itemDataRecord({"0"}) + host::listRecord({"Ann"}) +
                                        host::pictureRecord("GIF89a", false));
    EXPECT_EQ(host::imageOf(of("", "Icon")), "GIF89a");
}

TEST_F(FormResources, UndoRestoresTheFontsBlock) {
    open();
    const auto font = of("txtLines", "Font");
    const auto restore = restorer();
    font->Value(std::string("Arial"));
    const auto again = restorer();
    font->ObjectValue()->Item("Bold")->Value(true);
    again();
    EXPECT_EQ(font->ObjectValue()->Item("Bold")->Value(), fernwick::Variant(false));
    EXPECT_EQ(font->Value(), fernwick::Variant("Arial"));
    restore();
    save();
    EXPECT_EQ(saved("frmMain.frm"), kFormWithRecords);
}

TEST_F(FormResources, AControlWithoutAnIndexHasNoLineForIt) {
    open();
    of("lstNames", "Index")->Value(std::int32_t{2});
    save();
    EXPECT_EQ(difference(), "+       Index           =   2\n");
    basic::cast<host::Component>(form)->reread();
    of("lstNames", "Index")->Value(std::int32_t{-1});
    save();
    EXPECT_EQ(saved("frmMain.frm"), kFormWithRecords);
}
