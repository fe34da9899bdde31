#pragma once
// The whole desktop with an open form designer.
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/designer/design_desk.h"
#include "Apps/workbench/designer/form_canvas.h"
#include "Apps/workbench/designer/form_painter.h"
#include "tests/workbench/running_bench.h"
#include <QDockWidget>
#include <QTableView>
#include <gmock/gmock.h>
#include <sstream>

namespace test {

class DesignerDesktop : public RunningBench {
protected:
    DesignerDesktop() {
        start();
        window().resize(1200, 800);
        settle();
    }

    workbench::DesignDesk& desk() { return window().design(); }
    workbench::PropertiesWindow& properties() { return desk().properties(); }
    /// Runs Qt's loop until nothing is pending, including events of low priority.

    void openSample(const std::string& name) {
        bench->open(sample(name));
        settle();
    }
    /// Opens a project of one form with these lines in its description, and the designer.
    void openForm(const std::string& lines, const std::string& code = {}) {
        auto text = formText("frmMain", code);
        for (auto at = text.find("2400"); at != std::string::npos; at = text.find("2400")) text.replace(at, 4, kSize);
        text.insert(text.find("End\r\nAttribute"), crLfOf(lines));
        bench->open(SampleProject("Forms").member("Form=frmMain.frm", "frmMain.frm", text).writeTo(folder));
        original = text;
        design("frmMain");
    }
    static std::string crLfOf(const std::string& lines) {
        std::string text;
        for (const char c : lines) text += c == '\n' ? std::string("\r\n") : std::string(1, c);
        return text;
    }

    vbide::Ref<vbide::VBControl> control(const std::string& name) {
        return view().component()->Designer()->VBControls()->Item(name);
    }
    std::string valueOf(const std::string& ofControl, const std::string& property) {
        return fernwick::asText(control(ofControl)->Properties()->Item(property)->Value());
    }
    workbench::FormView& design(const std::string& name) {
        desk().open(component(name));
        settle();
        return view();
    }
    workbench::FormView& view() { return *desk().forms().current(); }
    workbench::FormCanvas& canvas() { return *view().findChild<workbench::FormCanvas*>("formCanvas"); }
    std::string selected() {
        return view().selected() ? fernwick::asText(view().selected()->Properties()->Item("Name")->Value()) : "";
    }

    // ---- the user ----
    QRectF placeOf(const std::string& name) { return view().picture().find(control(name))->place; }
    QPoint pointOn(const QPointF& onForm) { return canvas().onCanvas(QRectF(onForm, QSizeF())).topLeft().toPoint(); }
    QPoint middleOf(const std::string& name) { return pointOn(placeOf(name).center()); }
    void clickOn(const std::string& name) { QTest::mouseClick(&canvas(), Qt::LeftButton, {}, middleOf(name)); }
    void doubleClickOn(const std::string& name) {
        QTest::mouseDClick(&canvas(), Qt::LeftButton, {}, middleOf(name));
        settle();
    }
    void drag(const QPoint& from, const QPoint& by) {
        QTest::mousePress(&canvas(), Qt::LeftButton, {}, from);
        QTest::mouseMove(&canvas(), from + by / 2);
        QTest::mouseMove(&canvas(), from + by);
        QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, from + by);
        settle();
    }
    void pick(const QString& tool) {
        desk().toolbox().setCurrentItem(desk().toolbox().findItems(tool, Qt::MatchExactly).front());
    }
    void key(int key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&canvas(), Qt::Key(key), modifiers); }
    /// Menus follow the selection and the history when the loop turns.
    void choose(const QString& menu, const QString& item) {
        settle();
        menuItem(menu, item)->trigger();
    }
    void undo() { choose("&Edit", "&Undo"); }
    void redo() { choose("&Edit", "&Redo"); }
    QString shown(const QString& property) {
        const int row = properties().rows().rowOf(property);
        return row < 0 ? "no such row" : properties().rows().index(row, 1).data().toString();
    }
    QModelIndex valueCell(const QString& property) {
        return properties().rows().index(properties().rows().rowOf(property), 1);
    }
    /// Types a value into its row and presses Enter.
    void type(const QString& property, const QString& value) {
        auto& table = properties().table();
        table.setCurrentIndex(valueCell(property));
        table.edit(valueCell(property));
        auto* const editor = table.viewport()->findChild<QWidget*>("", Qt::FindDirectChildrenOnly);
        ASSERT_TRUE(editor) << property.toStdString();
        QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(editor, Qt::Key_Delete);
        QTest::keyClicks(editor, value);
        QTest::keyClick(editor, Qt::Key_Return);
        settle();
    }
    /// The text that saving would write.
    std::string saved(const std::string& name) {
        component(name)->SaveAs(component(name)->FileNames(1));
        return folder.read(std::filesystem::relative(component(name)->FileNames(1), folder.path()).string());
    }
    /// The lines that differ, as "- old" and "+ new". The texts have the same number of lines.
    static std::string difference(const std::string& before, const std::string& after) {
        const auto lines = [](const std::string& text) {
            std::vector<std::string> all;
            std::istringstream stream(text);
            for (std::string line; std::getline(stream, line);) all.push_back(line);
            return all;
        };
        const auto a = lines(before), b = lines(after);
        std::size_t first = 0, last = 0;
        while (first < std::min(a.size(), b.size()) && a[first] == b[first]) ++first;
        while (last < std::min(a.size(), b.size()) - first && a[a.size() - 1 - last] == b[b.size() - 1 - last]) ++last;
        std::string out;
        for (std::size_t i = first; i < a.size() - last; ++i) out += "-" + a[i] + "\n";
        for (std::size_t i = first; i < b.size() - last; ++i) out += "+" + b[i] + "\n";
        std::erase(out, '\r');
        return out;
    }

    /// Width and height of that form's inner rectangle in twips (416 pixels).
    static constexpr const char* kSize = "6240";
    std::string original;
};

} // namespace test
