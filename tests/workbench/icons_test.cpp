// The icons of commands and of the toolbox.
#include "Apps/workbench/bars/bar_face.h"
#include "Apps/workbench/base/component_icons.h"
#include "Apps/workbench/base/drawn_icons.h"
#include "Apps/workbench/base/icon_colours.h"
#include "Apps/workbench/base/icon_table.h"
#include "Apps/workbench/base/pictures.h"
#include "Apps/workbench/window/command_keys.h"
#include "Apps/workbench/window/commands.h"
#include "tests/workbench/designer_desktop.h"
#include <QAccessible>
#include <QFile>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>
#include <set>

using workbench::Theme;

namespace {

QImage drawn(const QIcon& icon, int size) { return icon.pixmap(size).toImage().convertToFormat(QImage::Format_ARGB32); }

QByteArray bytesOf(const QImage& image) {
    return QByteArray(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
}

bool isEmpty(const QImage& image) {
    QImage blank(image.size(), image.format());
    blank.fill(Qt::transparent);
    return image == blank;
}

class Icons : public test::DesignerDesktop {
protected:
    Icons() { window().setTheme(Theme::Light); } // another test may have stored the other one
};

} // namespace

TEST_F(Icons, OfBothSizesAndThemesDiffer) {
    for (const int size : {16, 32}) {
        std::set<QByteArray> seen;
        for (const auto& drawing : workbench::kIconTable) {
            const auto light = drawn(workbench::drawnIcon(drawing.name), size);
            EXPECT_EQ(light.width(), size);
            EXPECT_FALSE(isEmpty(light)) << drawing.name;
            EXPECT_TRUE(seen.insert(bytesOf(light)).second) << drawing.name << " looks like another";
            workbench::apply(Theme::Dark);
            EXPECT_NE(drawn(workbench::drawnIcon(drawing.name), size), light) << drawing.name;
            workbench::apply(Theme::Light);
        }
    }
}

/// Their pictures are on a grey ground, whose mixture with their edges would be seen in the dark theme.
TEST_F(Icons, InstalledPicturesHaveTheColoursOfTheTheme) {
    QFile compile(FERNWICK_SOURCE_DIR "/installation/VB Toolkit/Bin/Images/109.bmp");
    ASSERT_TRUE(compile.open(QIODevice::ReadOnly));
    const auto bmp = compile.readAll().toStdString();
    for (const auto theme : {Theme::Light, Theme::Dark}) {
        workbench::apply(theme);
        const auto face = drawn(workbench::iconOfFace(bmp), 16);
        EXPECT_EQ(face.pixelColor(0, 0).alpha(), 0);
        std::set<QRgb> whole;
        bool hasSoftEdges = false;
        for (int at = 0; at < 256; ++at) {
            const auto pixel = face.pixel(at % 16, at / 16);
            if (qAlpha(pixel) > 250) whole.insert(pixel | 0xFF000000);
            hasSoftEdges = hasSoftEdges || (qAlpha(pixel) > 20 && qAlpha(pixel) < 200);
        }
        EXPECT_TRUE(hasSoftEdges);
        std::set<QRgb> known;
        for (const auto& colour : workbench::kIconColours) known.insert(colour.in(theme).rgb());
        EXPECT_TRUE(std::includes(known.begin(), known.end(), whole.begin(), whole.end()));
        EXPECT_TRUE(whole.contains(workbench::kIconColours[0].in(theme).rgb()));
    }
    workbench::apply(Theme::Light);
}

TEST_F(Icons, AreLightOnASelectedRow) {
    const auto icon = workbench::drawnIcon("New");
    EXPECT_NE(icon.pixmap(QSize(16, 16), QIcon::Selected).toImage(), icon.pixmap(QSize(16, 16)).toImage());
    workbench::apply(Theme::Dark);
    EXPECT_EQ(icon.pixmap(QSize(16, 16), QIcon::Selected).toImage(), icon.pixmap(QSize(16, 16)).toImage());
    workbench::apply(Theme::Light);
}

TEST_F(Icons, OtherColoursOfAPictureRemain) {
    QImage magenta(1, 1, QImage::Format_RGB32);
    magenta.fill(QColor(255, 0, 255));
    EXPECT_EQ(workbench::seeThrough(magenta).toImage().pixelColor(0, 0), QColor(255, 0, 255));
}

TEST_F(Icons, EveryKindOfComponentHasItsOwn) {
    std::set<QByteArray> seen;
    for (const auto type :
         {vbide::vbext_ct_VBForm, vbide::vbext_ct_VBMDIForm, vbide::vbext_ct_StdModule, vbide::vbext_ct_ClassModule,
          vbide::vbext_ct_UserControl, vbide::vbext_ct_PropPage, vbide::vbext_ct_DocObject,
          vbide::vbext_ct_ActiveXDesigner, vbide::vbext_ct_RelatedDocument})
        EXPECT_TRUE(seen.insert(bytesOf(drawn(workbench::componentIcon(type), 16))).second) << type;
}

TEST_F(Icons, EveryStandardCommandHasOne) {
    for (const auto& menu : workbench::commandMenus())
        for (const auto& command : menu.commands)
            EXPECT_TRUE(!command.act || !workbench::commandLookOf(command.id).icon.isNull()) << command.id;
}

TEST_F(Icons, DeviceControlsComeFirstAndLookDifferent) {
    openSample("AddressBook");
    design("frmPerson");
    auto& tools = desk().toolbox();
    EXPECT_EQ(tools.item(1)->text(), "Device controls");
    EXPECT_EQ(tools.item(2)->text(), "QLAlarm");
    std::set<QByteArray> seen;
    for (int row = 2; row < tools.count() && !tools.item(row)->icon().isNull(); ++row)
        EXPECT_TRUE(seen.insert(bytesOf(drawn(tools.item(row)->icon(), 20))).second)
            << tools.item(row)->text().toStdString();
}

TEST_F(Icons, TheThemesCommandHasATick) {
    EXPECT_FALSE(menuItem("&View", "Dar&k Theme")->isChecked());
    menuItem("&View", "Dar&k Theme")->trigger();
    settle();
    EXPECT_TRUE(menuItem("&View", "Dar&k Theme")->isChecked());
}

// ---- for screen readers ---------------------------------------------------------------------------------------------

TEST_F(Icons, TheDesignerExposesItsControls) {
    openSample("AddressBook");
    design("frmPerson");
    auto* const form = QAccessible::queryAccessibleInterface(&canvas());
    ASSERT_TRUE(form);
    ASSERT_EQ(form->childCount(), int(view().picture().controls.size()));
    const auto at = canvas().mapToGlobal(middleOf("btnOK"));
    auto* const button = form->childAt(at.x(), at.y());
    ASSERT_TRUE(button);
    EXPECT_EQ(button->text(QAccessible::Name), "btnOK");
    EXPECT_EQ(button->role(), QAccessible::Button);
    EXPECT_EQ(button->rect().size(), placeOf("btnOK").size().toSize());
    EXPECT_EQ(form->indexOfChild(button), form->indexOfChild(form->childAt(at.x(), at.y())));
    clickOn("btnOK");
    EXPECT_TRUE(button->state().selected);
    key(Qt::Key_Delete);
    settle();
    EXPECT_EQ(form->childCount(), int(view().picture().controls.size()));
    EXPECT_NE(form->child(0), nullptr);
}

TEST_F(Icons, EveryToolbarButtonHasAName) {
    openSample("AddressBook");
    for (auto* bar : window().findChildren<QToolBar*>())
        for (auto* action : bar->actions()) {
            auto* const button = qobject_cast<QToolButton*>(bar->widgetForAction(action));
            if (!button || action->isSeparator()) continue;
            const auto* described = QAccessible::queryAccessibleInterface(button);
            EXPECT_FALSE(described->text(QAccessible::Name).isEmpty()) << action->toolTip().toStdString();
        }
}

TEST_F(Icons, OfControlsOfLibrariesAreThoseOfTheLanguagesAlike) {
    const auto of = [](const std::string& className) {
        return bytesOf(drawn(workbench::iconOfControl(className), 16));
    };
    const auto named = [](const char* name) { return bytesOf(drawn(workbench::drawnIcon(name), 16)); };
    for (const auto& [className, name] : {std::pair("TavletsCtl.QLButton", "CommandButton"),
                                          {"Forms.RadioButton", "OptionButton"},
                                          {"Forms.Picture", "PictureBox"},
                                          {"TabDlg.SSTab", "TabStrip"},
                                          {"MSFlexGridLib.MSFlexGrid", "Grid"},
                                          {"MSHierarchicalFlexGridLib.MSHFlexGrid", "Grid"},
                                          {"MSDataGridLib.DataGrid", "Grid"},
                                          {"MSDBGrid.DBGrid", "Grid"},
                                          {"MSComCtl2.MonthView", "DTPicker"},
                                          {"MSComctlLib.ImageCombo", "ComboBox"},
                                          {"MSDataListLib.DataCombo", "ComboBox"},
                                          {"MSDataListLib.DataList", "ListBox"},
                                          {"MSDBCtls.DBCombo", "ComboBox"},
                                          {"MSDBCtls.DBList", "ListBox"},
                                          {"MSComCtl2.FlatScrollBar", "HScrollBar"},
                                          {"MSComCtl2.Animation", "Movie"},
                                          {"MSWinsockLib.Winsock", "Network"},
                                          {"InetCtlsObjects.Inet", "Network"},
                                          {"MSCommLib.MSComm", "Serial"},
                                          {"MSAdodcLib.Adodc", "Data"},
                                          {"VB.TextBox", "TextBox"},
                                          {"Project1.ctlLamp", "Control"}})
        EXPECT_EQ(of(className), named(name)) << className;
}
