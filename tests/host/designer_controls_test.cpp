#include "Host/model/forms/control_text.h"
#include "Host/model/forms/described_classes.h"
#include "tests/host/designer_support.h"
#include <gmock/gmock.h>

using basic::Ref;
using fernwick::Variant;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

const std::string kControls = crLf(R"(VERSION 5.00
Begin VB.Form frmTip 
   ClientWidth     =   2400
   Begin VB.Frame fraAll 
      TabIndex        =   4
      Begin VB.OptionButton optSize 
         Index           =   3
         Value           =   -1  'True
      End
      Begin VB.OptionButton optSize 
         Index           =   7
      End
   End
   Begin TavletsCtl.QLButton btnOK 
      Caption         =   "OK"
      FontSize        =   14
      Odd             =   5
      Yes             =   -1  'True
   End
   Begin VB.ListBox lstSum 
      Height          =   1425
   End
   Begin VB.Menu mnuFile 
      Caption         =   "&File"
      Begin VB.Menu mnuOpen 
         Caption         =   "&Open"
         Shortcut        =   ^O
      End
   End
End
)");

std::vector<std::string> names(const std::vector<Ref<vbide::VBControl>>& controls) {
    std::vector<std::string> out;
    for (const auto& control : controls) out.push_back(fernwick::asText(control->Properties()->Item("Name")->Value()));
    return out;
}

} // namespace

class Controls : public DesignerTest {
protected:
    Ref<vbide::VBControls> all() const { return designer->Designer()->VBControls(); }
};

TEST_F(Controls, AreAllListedAndByContainer) {
    open(kControls);
    EXPECT_THAT(names(all()->items()),
                ElementsAre("fraAll", "optSize", "optSize", "btnOK", "lstSum", "mnuFile", "mnuOpen"));
    EXPECT_EQ(all()->Count(), 7);
    EXPECT_THAT(names(designer->Designer()->ContainedVBControls()),
                ElementsAre("fraAll", "btnOK", "lstSum", "mnuFile"));
    EXPECT_THAT(names(control("fraAll")->ContainedVBControls()), ElementsAre("optSize", "optSize"));
}

TEST_F(Controls, AreTheSameObjectsEachTime) {
    open(kControls);
    EXPECT_EQ(all()->Item(1), control("FRAALL"));
    EXPECT_EQ(all()->Item(2), control("optSize")) << "the first of an array";
    EXPECT_FALSE(all()->Item(2) == all()->Item(3));
    EXPECT_EQ(basic::attempt([&] { all()->Item(0); }).Number, 9);
    EXPECT_EQ(basic::attempt([&] { all()->Item(8); }).Number, 9);
    EXPECT_EQ(basic::attempt([&] { all()->Item("noSuchControl"); }).Number, 9);
}

TEST_F(Controls, HaveTheirClassWithAndWithoutLibrary) {
    open(kControls);
    EXPECT_EQ(control("btnOK")->ClassName(), "QLButton");
    EXPECT_EQ(control("btnOK")->ProgId(), "TavletsCtl.QLButton");
    EXPECT_EQ(control("mnuFile")->ProgId(), "VB.Menu");
}

TEST_F(Controls, HaveLinesAndDefaultsAsProperties) {
    open(kControls);
    EXPECT_EQ(of("optSize", "Index")->Value(), Variant(std::int32_t{3}));
    EXPECT_EQ(of("optSize", "Value")->Value(), Variant(true));
    EXPECT_EQ(of("fraAll", "Index")->Value(), Variant(std::int32_t{-1}));
    EXPECT_EQ(of("fraAll", "Enabled")->Value(), Variant(true));
    EXPECT_EQ(of("mnuOpen", "Shortcut")->Value(), Variant(std::string("^O")));
    of("mnuOpen", "Shortcut")->Value(std::string("^P"));
    EXPECT_THAT(file->text(), HasSubstr("Shortcut        =   ^P\r\n"));
    EXPECT_EQ(basic::attempt([&] { of("mnuOpen", "Shortcut")->Value(std::string("a\r\nb")); }).Number, 380);
}

TEST_F(Controls, OfAnUnknownClassTakeTheKindFromTheLiteral) {
    open(kControls);
    EXPECT_EQ(of("btnOK", "odd")->Value(), Variant(std::int32_t{5}));
    EXPECT_EQ(of("btnOK", "Yes")->Value(), Variant(true));
    EXPECT_EQ(of("btnOK", "Caption")->Value(), Variant(std::string("OK")));
    EXPECT_EQ(of("btnOK", "TabStop")->Value(), Variant(true));
    of("btnOK", "TabStop")->Value(Variant(false));
    of("btnOK", "Odd")->Value(std::int32_t{6});
    EXPECT_EQ(difference(),
              "-       Odd             =   5\n+       Odd             =   6\n+       TabStop         =   0   'False\n");
}

TEST_F(Controls, KeepTheirTextWhenSetToTheirOwnValues) {
    open(kControls);
    for (const auto& control : all()->items())
        for (const auto& property : control->Properties()->items())
            (void)basic::attempt([&] { property->Value(property->Value()); }); // pictures cannot be set
    EXPECT_EQ(file->text(), original);
    EXPECT_EQ(changes, 0);
}

TEST_F(Controls, WithoutTabStopRaiseError9) {
    open(kControls);
    for (const char* name : {"fraAll", "mnuFile"})
        EXPECT_EQ(basic::attempt([&] { of(name, "TabStop"); }).Number, 9) << name;
}

TEST_F(Controls, OfADescribedClassHaveItsDefaults) {
    host::TypeDescription library;
    library.name = "Tavlets";
    host::TypeClass button{"QLButton", "Tavlets.QLButton", "{X}", "Standard", "", {}, {}, {}};
    button.properties = {{"FontName", "String", "", {}, std::string("QLPalm"), false, true},
                         {"FontSize", "Integer", "", {}, std::int32_t{12}, false, true},
                         {"FontStyle", "QLFontStyle", "", {}, std::int32_t{0}, false, true},
                         {"BackColor", "OLE_COLOR", "", {}, std::int32_t{255}, false, true},
                         {"Running", "Boolean", "", {}, {}, false, false}};
    library.classes = {button};
    host::DescribedClasses described;
    described.add(library);
    host::DesignerHooks hooks;
    hooks.classes = [&](const std::string& name) { return described.find(name); };
    hooks.classOfProgId = [&](const std::string& progId) { return described.classOfProgId(progId); };
    open(kControls, hooks);
    EXPECT_EQ(of("btnOK", "FontName")->Value(), Variant(std::string("QLPalm")));
    EXPECT_EQ(of("btnOK", "FontSize")->Value(), Variant(std::int32_t{14}));
    EXPECT_EQ(of("btnOK", "FontStyle")->Value(), Variant(std::int32_t{0}));
    EXPECT_EQ(basic::attempt([&] { of("btnOK", "TabStop"); }).Number, 9);
    EXPECT_EQ(basic::attempt([&] { of("btnOK", "Running"); }).Number, 9);
    of("btnOK", "BackColor")->Value(std::int32_t{65535});
    EXPECT_THAT(file->text(), HasSubstr("   BackColor       =   65535\r\n"));
    EXPECT_EQ(all()->Add("tavlets.qlbutton")->ProgId(), "TavletsCtl.QLButton");
}

TEST_F(Controls, AreAddedInFrontAndReported) {
    std::vector<std::string> reported;
    host::DesignerHooks hooks;
    hooks.controlAdded = [&](const Ref<vbide::VBControl>& c) { reported.push_back(c->ProgId()); };
    open(kControls, hooks);
    const auto added = all()->Add("VB.CommandButton");
    EXPECT_THAT(reported, ElementsAre("VB.CommandButton"));
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(added, control("Command1"));
    EXPECT_EQ(difference(), R"(+    Begin VB.CommandButton Command1 
+       Height          =   495
+       Left            =   0
+       TabIndex        =   5
+       Top             =   0
+       Width           =   1215
+    End
)");
    EXPECT_THAT(names({all()->Add("VB.CommandButton")}), ElementsAre("Command2"));
    std::vector<std::string> given;
    for (const auto* name : {"Label", "Frame", "TextBox", "CheckBox", "OptionButton", "ComboBox", "ListBox",
                             "PictureBox", "HScrollBar", "VScrollBar", "DriveListBox", "DirListBox", "FileListBox"})
        given.push_back(names({all()->Add(std::string("VB.") + name)}).front());
    EXPECT_THAT(given, ElementsAre("Label1", "Frame1", "Text1", "Check1", "Option1", "Combo1", "List1", "Picture1",
                                   "HScroll1", "VScroll1", "Drive1", "Dir1", "File1"));
    EXPECT_EQ(basic::attempt([&] { all()->Add("Nonsense"); }).Number, 429);
    EXPECT_EQ(basic::attempt([&] { all()->Add("VB.X\r\nEnd"); }).Number, 429);
}

TEST_F(Controls, AreRemovedWithTheirContents) {
    std::vector<Ref<vbide::VBControl>> reported;
    host::DesignerHooks hooks;
    hooks.controlRemoved = [&](const Ref<vbide::VBControl>& c) { reported.push_back(c); };
    open(kControls, hooks);
    const auto frame = control("fraAll"), option = control("optSize");
    const auto left = frame->Properties()->Item("Left");
    all()->Remove(frame);
    EXPECT_THAT(names(all()->items()), ElementsAre("btnOK", "lstSum", "mnuFile", "mnuOpen"));
    EXPECT_THAT(reported, ElementsAre(frame));
    EXPECT_EQ(basic::attempt([&] { option->ClassName(); }).Number, 440);
    EXPECT_EQ(basic::attempt([&] { left->Value(); }).Number, 440);
    EXPECT_EQ(basic::attempt([&] { all()->Remove(frame); }).Number, 5);
    EXPECT_EQ(basic::attempt([&] { all()->Remove(nullptr); }).Number, 5);
    EXPECT_EQ(changes, 1);
}

TEST_F(Controls, MayBeRemovedInTheirAddedEvent) {
    host::DesignerHooks hooks;
    hooks.controlAdded = [&](const Ref<vbide::VBControl>& c) { all()->Remove(c); };
    open(kControls, hooks);
    all()->Add("VB.TextBox");
    EXPECT_EQ(file->text(), original);
}

TEST_F(Controls, WithoutAResourceFileLoseTheirRecords) {
    open(kControls);
    host::insertControls(designer->Designer(), nullptr,
                         crLf("Begin VB.PictureBox picNew \n   Picture         =   \"a.frx\":0000\n"
                              "   Tag             =   \"kept\"\nEnd\n"),
                         {.arrays = {}, .records = {{"\"a.frx\":0000", "a record"}}});
    EXPECT_EQ(difference(), "+    Begin VB.PictureBox picNew \n+       Tag             =   \"kept\"\n+    End\n");
}

TEST_F(Controls, OfAnAddedArrayAreRenamedTogether) {
    open(kControls);
    const auto added = host::insertControls(designer->Designer(), nullptr,
                                            crLf("Begin VB.Label lstSum \n   Index           =   0\nEnd\n"
                                                 "Begin VB.Label lstSum \n   Index           =   4\nEnd\n"
                                                 "Begin VB.Label btnOK \nEnd\nBegin VB.Label btnOK \nEnd\n"),
                                            {.arrays = {}});
    EXPECT_THAT(names(added), ElementsAre("Label1", "Label1", "Label2", "Label3"));
    EXPECT_EQ(added[1]->Properties()->Item("Index")->Value(), Variant(std::int32_t{4}));
}

TEST_F(Controls, OfAnArrayGetTheirIndexBackOrTheNext) {
    open(kControls);
    const auto indexOfAdded = [&](const std::string& index) {
        const auto text = "Begin VB.OptionButton optSize \r\n" + index + "End\r\n";
        const auto added = host::insertControls(designer->Designer(), nullptr, text, {.arrays = {}});
        EXPECT_THAT(names(added), ElementsAre("optSize"));
        return fernwick::asLong(added.front()->Properties()->Item("Index")->Value());
    };
    EXPECT_EQ(indexOfAdded("   Index           =   0\r\n"), 0);
    EXPECT_EQ(indexOfAdded("   Index           =   5\r\n"), 5);
    EXPECT_EQ(indexOfAdded("   Index           =   3\r\n"), 8);
    EXPECT_EQ(indexOfAdded(""), 9);
}

TEST_F(Controls, AreRenamedInTheirBeginLine) {
    std::string reported;
    host::DesignerHooks hooks;
    hooks.controlRenamed = [&](const Ref<vbide::VBControl>&, const std::string& oldName, int index) {
        reported = oldName + "(" + std::to_string(index) + ")";
    };
    open(kControls, hooks);
    of("optSize", "Name")->Value(std::string("optLarge"));
    EXPECT_EQ(reported, "optSize(3)");
    EXPECT_EQ(difference(), "-       Begin VB.OptionButton optSize \n+       Begin VB.OptionButton optLarge \n");
    EXPECT_EQ(control("optlarge"), all()->Item(2));
}

class Resources : public DesignerTest {
protected:
    void openWith(const std::string& lines, const std::string& bytes) {
        auto resources = std::make_shared<host::ResourceFile>(bytes);
        host::DesignerHooks hooks;
        hooks.resources = [resources](const std::string& name) -> std::shared_ptr<const host::ResourceFile> {
            return name == "A.frx" ? resources : nullptr;
        };
        open(crLf("VERSION 5.00\nBegin VB.Form A \n" + lines + "End\n"), hooks);
    }
    std::int32_t handle(const std::string& property) const {
        return fernwick::asLong(designer->Properties()->Item(property)->ObjectValue()->Item("Handle")->Value());
    }
    const std::string picture{"\x0B\0\0\0lt\0\0\x03\0\0\0GIF", 15};
    const std::string empty{"\x08\0\0\0lt\0\0\0\0\0\0", 12};
};

TEST_F(Resources, APictureHasAHandle) {
    openWith("   Icon            =   \"A.frx\":000F\n   Picture         =   \"A.frx\":0000\n", picture + empty);
    EXPECT_EQ(handle("Picture"), 1);
    EXPECT_EQ(handle("Icon"), 0) << "an empty picture";
    EXPECT_EQ(handle("MouseIcon"), 0) << "no picture at all";
    EXPECT_THAT(designer->resourceWarnings(), IsEmpty());
}

TEST_F(Resources, AMissingOrStaleFileGivesTheDefaultAndAWarning) {
    openWith(
        "   Icon            =   \"B.frx\":0000\n   Picture         =   \"A.frx\":09C4\n"
        "   Begin VB.ListBox L \n      ItemData        =   \"A.frx\":0004\n      List            =   \"A.frx\":0004\n"
        "   End\n   Begin VB.TextBox T \n      Text            =   \"A.frx\":000C\n   End\n"
        "   Begin X.Y Z \n      Blob            =   \"A.frx\":0002\n      Text            =   $\"A.frx\":0005\n   "
        "End\n",
        picture);
    EXPECT_EQ(handle("Picture"), 0);
    EXPECT_EQ(handle("Icon"), 0);
    EXPECT_EQ(of("T", "Text")->Value(), Variant(std::string()));
    EXPECT_EQ(of("Z", "Text")->Value(), Variant(std::string()));
    std::vector<std::size_t> lines;
    for (const auto& warning : designer->resourceWarnings()) lines.push_back(warning.line);
    EXPECT_THAT(lines, ElementsAre(3, 4, 6, 7, 10, 14));
    EXPECT_EQ(designer->resourceWarnings()[0].text, "The resource file \"B.frx\" is missing.");
}

TEST_F(Resources, TextsAreReadAndReplacedByLines) {
    openWith("   Caption         =   $\"A.frx\":0000\n   Begin VB.TextBox T \n      Text            =   "
             "\"A.frx\":0007\n   End\n",
             std::string("\x03\0\0\0\xE4"
                         "bc\x02\r\n",
                         10));
    EXPECT_EQ(get("Caption"), Variant(std::string("äbc")));
    EXPECT_EQ(of("T", "Text")->Value(), Variant(std::string("\r\n")));
    set("Caption", std::string("äbc"));
    EXPECT_EQ(changes, 0);
    set("Caption", std::string("other"));
    EXPECT_EQ(difference(), "-    Caption         =   $\"A.frx\":0000\n+    Caption         =   \"other\"\n");
}

TEST_F(Resources, TextsOfAGroupAreRead) {
    openWith("   Begin X.Y Z \n      BeginProperty Part \n         Caption         =   $\"A.frx\":0000\n"
             "         Count           =   2\n      EndProperty\n   End\n",
             std::string("\x03\0\0\0abc", 7));
    const auto part = of("Z", "Part")->ObjectValue();
    EXPECT_EQ(part->Item("Caption")->Value(), Variant(std::string("abc")));
    EXPECT_EQ(fernwick::asLong(part->Item("Count")->Value()), 2);
}

TEST_F(Resources, AFormSavedUnderAnotherNameRefersToItsOwnFile) {
    openWith("   Icon            =   \"A.frx\":0442\n   Picture         =   $\"B.frx\":0000\n", picture);
    EXPECT_TRUE(file->root()->renameResources("a.frx", "New.frx"));
    EXPECT_EQ(difference(), "-    Icon            =   \"A.frx\":0442\n+    Icon            =   \"New.frx\":0442\n");
    EXPECT_FALSE(file->root()->renameResources("a.frx", "New.frx"));
}
