// The icons of commands and of the toolbox.
#include "Apps/workbench/base/drawn_icons.h"
#include "Apps/workbench/base/icon_table.h"
#include "Apps/workbench/window/command_keys.h"
#include "Apps/workbench/window/commands.h"
#include "tests/workbench/designer_desktop.h"
#include <QAccessible>
#include <QSettings>
#include <QToolBar>
#include <QToolButton>
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
    ~Icons() override { QSettings().clear(); }
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

TEST_F(Icons, EveryStandardCommandHasOne) {
    for (const auto& menu : workbench::commandMenus())
        for (const auto& command : menu.commands)
            EXPECT_TRUE(!command.act || !workbench::commandLookOf(command.id).icon.isNull()) << command.id;
}

TEST_F(Icons, DeviceControlsComeFirstAndLookDifferent) {
    openSample("AddressBook");
    design("frmPerson");
    auto& tools = desk().toolbox();
    EXPECT_EQ(tools.item(1)->text(), "QLAlarm");
    std::set<QByteArray> seen;
    for (int row = 0; row < tools.count() && tools.item(row)->text() != "PictureBox"; ++row)
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
