#include "Host/model/forms/described_classes.h"
#include "Host/model/forms/form_designer.h"
#include <gtest/gtest.h>

// The shipped device controls on a form, as read by the font scan.

TEST(TavletsOnAForm, HaveTheirDefaultFontsWithoutALine) {
    const auto library = host::readTypeDescription(FERNWICK_SOURCE_DIR "/installation/tavlets/Tavlets.toml");
    host::DescribedClasses described;
    described.add(library);
    host::DesignerHooks hooks;
    hooks.classes = [&](const std::string& name) { return described.find(name); };
    hooks.classOfProgId = [&](const std::string& progId) { return described.classOfProgId(progId); };
    const auto file =
        std::make_shared<host::FormFile>(host::FormFile::parse("VERSION 5.00\r\nBegin VB.Form A \r\nEnd\r\n"));
    host::FormDesigner designer(file, basic::CodePage::windows1252(), hooks);
    for (const std::string name :
         {"QLButton", "QLCheckBox", "QLComboBox", "QLGrid", "QLLabel", "QLListBox", "QLRadioButton", "QLTextBox"}) {
        const auto control = designer.Designer()->VBControls()->Add("Tavlets." + name);
        EXPECT_EQ(control->ClassName(), name);
        EXPECT_EQ(control->ProgId(), "TavletsCtl." + name);
        EXPECT_EQ(fernwick::asText(control->Properties()->Item("FontName")->Value()), "QLPalm");
        EXPECT_EQ(fernwick::asLong(control->Properties()->Item("FontSize")->Value()), 12);
        EXPECT_EQ(fernwick::asLong(control->Properties()->Item("FontStyle")->Value()), 0);
        EXPECT_EQ(fernwick::asText(control->Properties()->Item("Name")->Value()), name + "1");
    }
}
