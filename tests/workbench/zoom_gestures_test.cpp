// What the user does in the zoom window has the same effect as in the designer.
#include "tests/workbench/zoom_desktop.h"
#include <random>

namespace {

/// What the user does, at places on the canvas.
struct Step {
    enum Kind { Tool, Press, Move, Release, Key } kind;
    QPoint at{};
    Qt::KeyboardModifiers keys{};
    int key = 0;
};
using Gesture = std::vector<Step>;

class ZoomGestures : public test::ZoomDesktop {
protected:
    void play(const Gesture& gesture, bool inZoom) {
        QWidget& target = inZoom ? static_cast<QWidget&>(zoom()) : canvas();
        for (const auto& step : gesture) {
            const auto at = inZoom ? zoomed(step.at) : step.at;
            switch (step.kind) {
            case Step::Tool: pick("QLTextBox"); break;
            case Step::Press: QTest::mousePress(&target, Qt::LeftButton, step.keys, at); break;
            case Step::Move: moveMouse(target, at, Qt::LeftButton); break;
            case Step::Release: QTest::mouseRelease(&target, Qt::LeftButton, step.keys, at); break;
            case Step::Key: QTest::keyClick(&target, Qt::Key(step.key), step.keys); break;
            }
            QApplication::processEvents();
        }
        settle();
    }
    /// The form's text after a gesture, which is then undone.
    std::string effectOf(const Gesture& gesture, bool inZoom) {
        play(gesture, inZoom);
        const auto after = saved("frmMain");
        while (saved("frmMain") != original) desk().undo();
        settle();
        view().select(nullptr);
        return after;
    }

    QPoint anywhere() { return canvas().onCanvas(QRectF(number(5, 220), number(5, 220), 0, 0)).topLeft().toPoint(); }
    int number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random); }
    /// Sizes differ by one pixel at some levels for odd travels, because the travel of a handle is rounded.
    QPoint travel() { return {2 * number(-30, 30), 2 * number(-30, 30)}; }
    std::string anyControl() {
        return std::vector<std::string>{"txtOne", "cmdTwo", "picThree"}[std::size_t(number(0, 2))];
    }

    static void addDrag(Gesture& gesture, const QPoint& from, const QPoint& by, Qt::KeyboardModifiers keys = {}) {
        gesture.push_back({Step::Press, from, keys});
        for (int part = 1; part <= 3; ++part) gesture.push_back({Step::Move, from + by * part / 3, keys});
        gesture.push_back({Step::Release, from + by, keys});
    }
    static void addClick(Gesture& gesture, const QPoint& at, Qt::KeyboardModifiers keys = {}) {
        gesture.push_back({Step::Press, at, keys});
        gesture.push_back({Step::Release, at, keys});
    }

    Gesture anyGesture(int kind) {
        Gesture gesture;
        const auto control = anyControl();
        if (kind == 0) { // moves a control
            addDrag(gesture, middleOf(control), travel());
        } else if (kind == 1) { // draws a new one
            gesture.push_back({Step::Tool});
            addDrag(gesture, anywhere(), travel());
        } else if (kind == 2) { // pulls a grip
            addClick(gesture, middleOf(control));
            view().select(this->control(control));
            addDrag(gesture, canvas().gripPlace(number(0, 7)).toPoint(), travel());
            view().select(nullptr);
        } else if (kind == 3) { // selects by a frame, and removes
            addDrag(gesture, anywhere(), travel() * 2);
            gesture.push_back({Step::Key, {}, {}, Qt::Key_Delete});
        } else if (kind == 4) { // selects two, and removes
            addClick(gesture, middleOf(control));
            addClick(gesture, middleOf(anyControl()), Qt::ShiftModifier);
            gesture.push_back({Step::Key, {}, {}, Qt::Key_Delete});
        } else { // selects, moves and sizes by keys
            addClick(gesture, middleOf(control));
            gesture.push_back({Step::Key, {}, Qt::ControlModifier, Qt::Key_Right});
            gesture.push_back({Step::Key, {}, Qt::ShiftModifier, Qt::Key_Down});
            gesture.push_back({Step::Key, {}, {}, Qt::Key_Left});
            gesture.push_back({Step::Key, {}, Qt::ControlModifier, Qt::Key_Up});
        }
        return gesture;
    }

    std::mt19937 random;
};

} // namespace

TEST_F(ZoomGestures, HaveTheEffectThatTheyHaveInTheDesigner) {
    constexpr int kGestures = 30, kKinds = 6, kLevels = 5;
    const auto seed = std::random_device{}();
    random.seed(seed);
    RecordProperty("seed", int(seed));
    openZoomed(kControls);
    int changes = 0;
    for (int round = 0; round < kGestures; ++round) {
        const auto gesture = anyGesture(round % kKinds);
        const auto expected = effectOf(gesture, false);
        changes += expected != original;
        ASSERT_EQ(saved("frmMain"), original) << "undone, seed " << seed << ", gesture " << round;
        for (int level = 1; level <= kLevels; ++level) {
            chooseLevel(level);
            ASSERT_EQ(effectOf(gesture, true), expected) << "seed " << seed << ", gesture " << round << " at " << level;
            ASSERT_EQ(saved("frmMain"), original) << "undone, seed " << seed << ", gesture " << round;
        }
    }
    EXPECT_GT(changes, kGestures / 2) << "seed " << seed;
}
