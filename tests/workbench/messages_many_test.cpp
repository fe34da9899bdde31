// Ten thousand messages.
#include "tests/workbench/messages_desktop.h"

namespace {

using MessagesMany = test::MessagesDesktop;

struct CountedFont : fernwick::DeviceContext {
    mutable int measured = 0;
    fernwick::TextExtent GetTextExtentPoint32(const std::string& text) const noexcept override {
        ++measured;
        return {int(text.size()) * 7, 15};
    }
};

struct PaintCount : QObject {
    int count = 0;
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Paint;
        return false;
    }
};

constexpr int kMany = 10'000;

} // namespace

TEST_F(MessagesMany, TenThousandAreMeasuredOnceAndDrawnTogether) {
    CountedFont font;
    PaintCount paints;
    document().drawWith(&font);
    list().viewport()->installEventFilter(&paints);
    font.measured = 0;
    for (int i = 0; i < kMany; ++i) document().add("f", "modA", i, "message", fernwick::ERROR_MSG, i, i % 2 == 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return list().model()->rowCount() == kMany; }));
    EXPECT_LE(paints.count, 3);
    window().resize(700, 600);
    settle();
    EXPECT_LE(font.measured, kMany + 10); // the status line's label
    EXPECT_EQ(cell(0, Grid::LineColumn), QString::number(kMany - 2));
    document().drawWith(nullptr);
}

/// A build that processes events at each of its messages.
TEST_F(MessagesMany, OneByOneAreDrawnAtMostOncePerFrame) {
    int draws = 0;
    view().drawn = [&draws] { ++draws; };
    QElapsedTimer time;
    time.start();
    for (int i = 0; i < 500; ++i) {
        document().add("f", "modA", i, "message", fernwick::WARNING_MSG, i, false);
        QCoreApplication::processEvents();
    }
    EXPECT_LE(draws, time.elapsed() / 16 + 2);
}
