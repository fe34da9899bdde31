// A form is built in the zoom window at level 3, from a new project of the project manager to its compile: with the mouse
// and typed texts, with the keyboard only, and with the keyboard only in the designer.
#include "Apps/workbench/designer/form_canvas.h"
#include "Apps/workbench/zoom/zoom_view.h"
#include "Host/files/form_file.h"
#include "tests/workbench_x11/new_project.h"
#include <QComboBox>
#include <QDockWidget>
#include <QScrollBar>
#include <QTableView>
#include <gmock/gmock.h>

using namespace test;
using testing::HasSubstr;

namespace {

struct Part {
    const char *tool, *name, *caption;
    QRect place; ///< in pixels, on the grid
};

const Part kParts[] = {
    {"QLLabel", "lblAmount", "Bill", {8, 16, 88, 16}},
    {"QLTextBox", "txtAmount", "", {104, 16, 128, 24}},
    {"QLLabel", "lblPercent", "Tip: 15 %", {8, 48, 88, 16}},
    {"QLHScrollBar", "scrTip", "", {104, 48, 128, 24}},
    {"QLCheckBox", "chkRound", "Round up", {8, 112, 224, 24}},
    {"QLButton", "cmdCalculate", "Calculate", {8, 280, 104, 24}},
};

constexpr int kPocketPC = 1, kLevel = 3;

struct TipRoad : NewProject {
    TipRoad() {
        startEmpty();
        ask([this] { window().setGeometry(0, 0, 1200, 720); });
    }

    workbench::ZoomView* zoom() { return window().findChild<workbench::ZoomView*>("zoomPicture"); }
    workbench::FormView& view() { return *window().design().forms().current(); }
    vbide::Ref<vbide::VBControl> control(const std::string& name) {
        return component("Form1")->Designer()->VBControls()->Item(name);
    }
    std::size_t controlCount() { return view().picture().controls.size(); }
    QRectF placeOfSelected() { return view().drawnSelection() ? view().drawnSelection()->place : QRectF(); }
    std::string selectedName() {
        return view().selected() ? fernwick::asText(view().selected()->Properties()->Item("Name")->Value()) : "";
    }

    // ---- with the mouse ----
    void openZoom() {
        choose("&Fernwick", "&Zoom Window");
        eventually("the zoomed designer", [this] { return zoom() && zoom()->isVisible() && zoom()->canvas(); });
        ask([this] { zoom()->document()->Combo1.ListIndex(kLevel - 1); });
        makeFloat();
    }
    void makeFloat() {
        ask([this] {
            auto& dock = *window().findChild<QDockWidget*>("Fernwick Zoom");
            dock.setFloating(true);
            dock.move(150, 20); // beside the toolbox and the properties
            dock.resize(770, 560);
        });
        eventually("its bars", [this] { return zoom()->isVisible() && zoom()->height() > 400; });
    }
    QPoint inZoom(const QPoint& onForm) {
        return ask([&] {
            const auto& document = *zoom()->document();
            const auto onCanvas = zoom()->canvas()->onCanvas(QRectF(onForm, QSizeF())).topLeft().toPoint();
            return zoom()->mapToGlobal(onCanvas * kLevel - QPoint(document.GetXOffset(), document.GetYOffset()));
        });
    }
    /// Turns the wheel until a place is far from the edges.
    void bringIntoView(const QPoint& onForm) {
        constexpr int kMost = 20, kEdge = 130;
        for (int i = 0; i < kMost; ++i) {
            const int below =
                inZoom(onForm).y() - ask([this] { return zoom()->mapToGlobal(QPoint(0, zoom()->height())).y(); });
            const int above = inZoom(onForm).y() - ask([this] { return zoom()->mapToGlobal(QPoint(0, 0)).y(); });
            if (below < -kEdge && above > kEdge / 3) return;
            const auto middle = ask([this] { return middleOf(*zoom()); });
            xdotool({"mousemove", QString::number(middle.x()), QString::number(middle.y()), "click",
                     below >= -kEdge ? "5" : "4"});
        }
    }
    void pickTool(const char* name) {
        click(ask([&] {
            auto& tools = window().design().toolbox();
            auto* const item = tools.findItems(name, Qt::MatchExactly).front();
            tools.scrollToItem(item);
            return middleOf(*tools.viewport(), tools.visualItemRect(item));
        }));
        eventually("the tool", [&] { return window().design().toolbox().currentItem()->text() == name; });
    }
    void typeProperty(const char* property, const char* value) {
        const auto cell = ask([&] {
            auto& properties = window().design().properties();
            const auto index = properties.rows().index(properties.rows().rowOf(property), 1);
            properties.table().scrollTo(index);
            return middleOf(*properties.table().viewport(), properties.table().visualRect(index));
        });
        click(cell);
        eventually(std::string("the row ") + property, [&] {
            auto& properties = window().design().properties();
            return properties.table().currentIndex().row() == properties.rows().rowOf(property) &&
                   properties.isAncestorOf(QApplication::focusWidget());
        });
        press({"F2"});
        eventually("its editor", [] { return dynamic_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr; });
        press({"ctrl+a"});
        type(value);
        press({"Return"});
        eventually(std::string(property) + " is " + value, [&] {
            auto& rows = window().design().properties().rows();
            return rows.index(rows.rowOf(property), 1).data().toString() == value;
        });
    }

    // ---- with the keyboard ----
    void openZoomByKeys() {
        chooseByKeys("&Fernwick", "z");
        eventually("the zoomed designer", [this] { return zoom() && zoom()->isVisible() && zoom()->canvas(); });
        makeFloat();
        goToZoom();
        press({"alt+z"});
        auto& levels = *ask([this] { return zoom()->findChild<QComboBox*>("Combo1"); });
        eventually("the levels have the keys", [&] { return levels.hasFocus(); });
        press({"Home", "Down", "Down"});
        eventually("the level", [&] { return levels.currentIndex() == kLevel - 1; });
    }
    void goToZoom() {
        chooseByKeys("&View", "z");
        eventually("the zoom has the keys", [this] { return zoom()->hasFocus() && zoom()->isActiveWindow(); });
    }
    void chooseToolByKeys(const char* name) {
        chooseByKeys("&View", "x");
        eventually("the toolbox has the keys", [this] { return window().design().toolbox().hasFocus(); });
        press({"Home"});
        constexpr int kMost = 60;
        const auto isChosen = [&] { return window().design().toolbox().currentItem()->text() == name; };
        for (int i = 0; i < kMost && !ask(isChosen); ++i) press({"Down"});
        press({"Return"});
    }
    void waitForForm() {
        eventually("the form has the keys", [this] {
            auto* const form = window().design().forms().current();
            return form && form->canvas().hasFocus();
        });
    }
    void pressTimes(const char* key, int times) {
        for (int i = 0; i < times; ++i) press({key});
    }
    /// By steps of the grid.
    void placeByKeys(const QRect& place) {
        constexpr int kStep = 8;
        const auto from = ask([this] { return placeOfSelected(); });
        const auto steps = [&](double now, int wanted) { return int(std::lround((wanted - now) / kStep)); };
        const int right = steps(from.x(), place.x()), down = steps(from.y(), place.y());
        pressTimes(right > 0 ? "ctrl+Right" : "ctrl+Left", std::abs(right));
        pressTimes(down > 0 ? "ctrl+Down" : "ctrl+Up", std::abs(down));
        const int wider = steps(from.width(), place.width()), higher = steps(from.height(), place.height());
        pressTimes(wider > 0 ? "shift+Right" : "shift+Left", std::abs(wider));
        pressTimes(higher > 0 ? "shift+Down" : "shift+Up", std::abs(higher));
        eventually("it is near its place", [&] {
            const auto now = placeOfSelected();
            const auto isNear = [](double a, double b) { return std::abs(a - b) <= kStep / 2 + 1; };
            return isNear(now.x(), place.x()) && isNear(now.y(), place.y()) && isNear(now.width(), place.width()) &&
                   isNear(now.height(), place.height());
        });
    }
    void typePropertyByKeys(const char* property, const char* value) {
        auto& properties = window().design().properties();
        const auto hasKeys = [&] { return properties.isAncestorOf(QApplication::focusWidget()); };
        if (!ask(hasKeys)) press({"F4"}); // which would hide them
        eventually("the properties have the keys", hasKeys);
        const auto isCurrent = [&] {
            return properties.table().currentIndex().row() == properties.rows().rowOf(property);
        };
        press({"ctrl+Home"});
        constexpr int kMost = 80;
        for (int i = 0; i < kMost && !ask(isCurrent); ++i) press({"Down"});
        press({"F2"});
        eventually("its editor", [] { return dynamic_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr; });
        press({"ctrl+a"});
        type(value);
        press({"Return"});
        eventually(std::string(property) + " is " + value, [&] {
            auto& rows = properties.rows();
            return rows.index(rows.rowOf(property), 1).data().toString() == value;
        });
    }

    void buildByKeys(const std::function<void()>& goToForm) {
        for (const auto& part : kParts) {
            const auto before = ask([this] { return controlCount(); });
            chooseToolByKeys(part.tool);
            if (before == 0) saveByKeys();
            eventually(part.name, [&] { return controlCount() == before + 1 && view().selected(); });
            goToForm();
            placeByKeys(part.place);
            typePropertyByKeys("(Name)", part.name);
            if (*part.caption) typePropertyByKeys("Caption", part.caption);
        }
    }

    // ---- both ----
    void saveAndCompile(With hand) {
        hand == With::Mouse ? choose("&File", "&Save File") : press({"ctrl+s"});
        eventually("it is saved", [this] { return !component("Form1")->IsDirty(); });
        hand == With::Mouse ? choose("&Fernwick", "Compile and &Validate") : chooseByKeys("&Fernwick", "v");
        answerUntil("it is compiled", {hand, {"OK", "Yes", "btnOK", "btnYes"}}, [&] {
            return !QApplication::activeModalWidget() && std::filesystem::exists(folder / "Project1.0000.qlx");
        });
    }
    /// The IDE of the language reads it: objects first, then the form with its controls in order, then attributes.
    void expectForm() {
        const auto text = read("Form1.frm");
        EXPECT_EQ(host::FormFile::parse(text).text(), text);
        EXPECT_TRUE(host::FormFile::parse(text).problems().empty());
        EXPECT_EQ(
            text.find("VERSION 5.00\r\nObject = \"{1198F6AB-5766-4D4A-A1AF-CD9A25D2D2B4}#1.0#0\"; \"Tavlets.dll\"\r\n"),
            0u);
        std::size_t last = text.size(); // the control in front comes first
        for (const auto& part : kParts) {
            const auto at = text.find("Begin TavletsCtl." + std::string(part.tool) + " " + part.name);
            ASSERT_NE(at, std::string::npos) << part.name;
            EXPECT_LT(at, last) << part.name;
            last = at;
        }
    }
};

} // namespace

TEST_F(TipRoad, InTheZoomWindowWithTheMouse) {
    newProjectByMouse(kPocketPC);
    openFormByMouse();
    openZoom();
    for (const auto& part : kParts) {
        const auto before = ask([this] { return controlCount(); });
        pickTool(part.tool);
        bringIntoView(part.place.topLeft());
        drag(inZoom(part.place.topLeft()),
             inZoom(part.place.topLeft() + QPoint(part.place.width(), part.place.height())));
        if (before == 0) saveByMouse();
        eventually(part.name, [&] { return controlCount() == before + 1 && placeOfSelected() == QRectF(part.place); });
        typeProperty("(Name)", part.name);
        if (*part.caption) typeProperty("Caption", part.caption);
    }
    // the check box moves up and becomes narrower
    bringIntoView({100, 120});
    click(inZoom({100, 124}));
    eventually("the check box", [this] { return selectedName() == "chkRound"; });
    drag(inZoom({60, 120}), inZoom({60, 96})); // elsewhere, as two presses at one place are a double click
    eventually("it is moved", [this] { return placeOfSelected() == QRectF(8, 88, 224, 24); });
    const auto grip = ask([this] {
        return zoom()->canvas()->onForm(zoom()->canvas()->gripPlace(4)).toPoint(); // of the right edge
    });
    drag(inZoom(grip), inZoom(grip - QPoint(64, 0)));
    eventually("it is narrower", [this] { return placeOfSelected() == QRectF(8, 88, 160, 24); });
    saveAndCompile(With::Mouse);
    expectForm();
}

TEST_F(TipRoad, InTheZoomWindowWithTheKeyboard) {
    newProjectByKeys(kPocketPC);
    openFormByKeys();
    openZoomByKeys();
    buildByKeys([this] { goToZoom(); });
    saveAndCompile(With::Keyboard);
    expectForm();
}

TEST_F(TipRoad, InTheDesignerWithTheKeyboard) {
    newProjectByKeys(kPocketPC);
    openFormByKeys();
    buildByKeys([this] { waitForForm(); });
    press({"shift+F7"});
    waitForForm();
    saveAndCompile(With::Keyboard);
    expectForm();
}
