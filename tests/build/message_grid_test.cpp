// The rows of the messages window: their order, cells and heights. 15 twips are a pixel.
#include "messages_world.h"

using fernwick::MessageGrid;
using testing::ElementsAre;

namespace {

class MessageRows : public testing::Test, protected test::MessagesWorld {
protected:
    MessageRows() {
        window->drawWith(&font);
        resize(1020, 400); // 1000 pixels are left for the texts, 760 of them for the message
    }
    ~MessageRows() override { window->drawWith(nullptr); }
    void resize(int width, int height) { window->UserDocument_Resize(width * 15, height * 15, 40 * 15); }
    void add(const std::string& message, int type = fernwick::ERROR_MSG, bool atTop = false) {
        window->add("/p/Form1.frm", "Form1", 12, message, type, 1042, atTop);
    }
    /// In pixels.
    int height(int row) { return window->msgGrid().rowHeight(row) / 15; }
    int width(MessageGrid::Column column) { return window->msgGrid().columnWidth(column) / 15; }

    test::FixedWidthFont font;
};

TEST_F(MessageRows, HoldSixCells) {
    add("No such name");
    EXPECT_THAT(window->message(1).cells, ElementsAre("/p/Form1.frm", "", "Form1", "12", "1042", "No such name"));
}

TEST_F(MessageRows, OmitZeros) {
    window->add("", "", 0, "m", fernwick::WARNING_MSG, 0, false);
    EXPECT_THAT(window->message(1).cells, ElementsAre("", "", "", "", "", "m"));
}

TEST_F(MessageRows, AreInsertedBelowTheHeader) {
    const auto& grid = window->msgGrid();
    EXPECT_EQ(grid.cell(0, MessageGrid::FileNameColumn), "FileName");
    EXPECT_EQ(grid.cell(0, MessageGrid::PictureColumn), "");
    EXPECT_EQ(grid.cell(0, MessageGrid::TitleColumn), "Name");
    EXPECT_EQ(grid.cell(0, MessageGrid::LineColumn), "Line #");
    EXPECT_EQ(grid.cell(0, MessageGrid::ErrorColumn), "Err #");
    EXPECT_EQ(grid.cell(0, MessageGrid::MessageColumn), "Message/Warning/Error");
    EXPECT_EQ(window->rowCount(), 1);
    EXPECT_EQ(window->selectedRow(), 0);
}

TEST_F(MessageRows, HaveTheDesignOfTheirColumns) {
    for (int column = 0; column < MessageGrid::kColumns; ++column) {
        const auto& design = MessageGrid::design(MessageGrid::Column(column));
        EXPECT_EQ(design.isHeaderBold, column != 1) << column;
        EXPECT_EQ(design.cells, column == 5 ? 1 : 4) << column;
        EXPECT_EQ(design.headers, column == 3 || column == 4 ? 3 : 9) << column;
    }
}

TEST_F(MessageRows, ShareTheWidthBesideThePicture) {
    EXPECT_EQ(width(MessageGrid::FileNameColumn), 0);
    EXPECT_EQ(width(MessageGrid::PictureColumn), 20);
    EXPECT_EQ(width(MessageGrid::TitleColumn), 100);
    EXPECT_EQ(width(MessageGrid::LineColumn), 70);
    EXPECT_EQ(width(MessageGrid::ErrorColumn), 70);
    EXPECT_EQ(width(MessageGrid::MessageColumn), 760);
}

TEST_F(MessageRows, AlwaysHaveAWidth) {
    resize(5, 400);
    for (const auto column : {MessageGrid::TitleColumn, MessageGrid::LineColumn, MessageGrid::MessageColumn})
        EXPECT_EQ(window->msgGrid().columnWidth(column), 1);
    add("a message of a hundred lines must not divide by nothing");
    EXPECT_GT(height(1), 0);
}

TEST_F(MessageRows, KeepTheGridsHeightWhenTheWindowIsTooLow) {
    EXPECT_EQ(window->msgGrid().height(), 360 * 15);
    resize(1020, 40);
    EXPECT_EQ(window->msgGrid().height(), 360 * 15);
    EXPECT_EQ(window->msgGrid().width(), 1020 * 15);
}

TEST_F(MessageRows, AreAtLeastAsHighAsAPicture) {
    add("short");
    EXPECT_EQ(height(1), 20);
    EXPECT_EQ(window->msgGrid().rowHeightMin(), 16 * 15);
}

TEST_F(MessageRows, AreAsHighAsTheirWrappedMessage) {
    add(std::string(75, 'x')); // 750 of 760 pixels
    add(std::string(76, 'x'));
    add(std::string(2 * 76, 'x'));
    EXPECT_EQ(height(1), 20);
    EXPECT_EQ(height(2), 2 * 16);
    EXPECT_EQ(height(3), 3 * 16);
}

TEST_F(MessageRows, AreMeasuredWithALineBreakInTheMiddleButNotAtTheEnd) {
    add(std::string(37, 'x') + "\r\n" + std::string(37, 'x') + "\r\n"); // 76 characters with the line break
    EXPECT_EQ(height(1), 2 * 16);
    add(std::string(75, 'x') + "\r\n");
    EXPECT_EQ(height(2), 20);
}

TEST_F(MessageRows, GrowInANarrowerWindowWithoutMeasuring) {
    add(std::string(75, 'x'));
    font.measured = 0;
    resize(520, 400); // 380 pixels for the message
    EXPECT_EQ(height(1), 2 * 16);
    resize(1020, 400);
    EXPECT_EQ(height(1), 20);
    EXPECT_LE(font.measured, 2); // the status line's label
}

TEST_F(MessageRows, AreMeasuredOnceWhenAdded) {
    font.measured = 0;
    for (int i = 0; i < 100; ++i) add("m");
    EXPECT_EQ(font.measured, 100);
}

TEST_F(MessageRows, FollowALargerFont) {
    add("short");
    font.lineHeight = 40;
    window->drawWith(&font);
    EXPECT_EQ(height(1), 40);
    EXPECT_EQ(window->msgGrid().rowHeightMin(), 40 * 15);
}

TEST_F(MessageRows, AreNoLowerThanALineOfTheLatest) {
    add("before");
    font.lineHeight = 40;
    add("in a larger font");
    EXPECT_EQ(height(1), 40);
}

TEST_F(MessageRows, HaveTheMinimumHeightWithoutAWindow) {
    window->drawWith(nullptr);
    add(std::string(1000, 'x'));
    EXPECT_EQ(height(1), 20);
    EXPECT_EQ(window->msgGrid().rowHeightMin(), 20);
}

TEST_F(MessageRows, ShowThePictureOfTheirType) {
    add("e");
    add("w", fernwick::WARNING_MSG);
    EXPECT_EQ(*window->message(1).picture, "picture 101");
    EXPECT_EQ(*window->message(2).picture, "picture 102");
    EXPECT_EQ(window->message(2).type, fernwick::WARNING_MSG);
    for (int i = 0; i < 100; ++i) add("e");
    EXPECT_EQ(pictures.loads, 2);
}

TEST_F(MessageRows, MayLackTheirPicture) {
    int notified = 0;
    const auto watch = window->added.connect([&notified](bool) { ++notified; });
    pictures.away = true;
    add("e");
    add("of another type", 7);
    EXPECT_EQ(window->message(1).picture, nullptr);
    EXPECT_EQ(window->message(1).type, fernwick::ERROR_MSG);
    EXPECT_EQ(window->message(2).type, 0);
    EXPECT_EQ(notified, 2);
    EXPECT_TRUE(errors.seen.empty());
}

/// A handler that draws the row when it is added finds it complete.
TEST_F(MessageRows, AreAnnouncedWhenComplete) {
    std::vector<bool> places;
    const auto watch = window->added.connect([&](bool atTop) {
        places.push_back(atTop);
        const auto& row = window->message(atTop ? 1 : window->rowCount() - 1);
        EXPECT_EQ(row.cells[MessageGrid::MessageColumn], atTop ? "e" : "w");
        EXPECT_GT(row.height, 0);
        EXPECT_TRUE(row.picture);
    });
    add("e", fernwick::ERROR_MSG, true);
    add("w", fernwick::WARNING_MSG);
    add("e", fernwick::ERROR_MSG, true);
    EXPECT_THAT(places, ElementsAre(true, false, true));
}

TEST_F(MessageRows, AreKeptWhenDrawingFails) {
    const auto watch = window->added.connect([](bool) { throw basic::RuntimeError(7); });
    add("e");
    EXPECT_THAT(errors.seen, ElementsAre("udocCompileMsgs.add [7]"));
    EXPECT_EQ(window->rowCount(), 2);
}

TEST_F(MessageRows, AreRemovedWhenCleared) {
    add("e");
    window->select(1);
    int notified = 0;
    const auto watch = window->cleared.connect([&notified] { ++notified; });
    window->clearMessages();
    EXPECT_EQ(window->rowCount(), 1);
    EXPECT_EQ(window->selectedRow(), 0);
    EXPECT_EQ(notified, 1);
}

TEST_F(MessageRows, LeaveTheStatusLineTheWholeWidth) {
    EXPECT_EQ(window->statusSizes().separatorWidth, 1020 * 15);
    EXPECT_EQ(window->statusSizes().textLeft, 75 + 7 * 10 * 15); // after "Status:"
    EXPECT_EQ(window->statusSizes().textLeft + window->statusSizes().textWidth, 1020 * 15 - 75);
    window->SetStatusLabel("Compile Status:");
    EXPECT_EQ(window->statusSizes().textLeft, 75 + 15 * 10 * 15);
    resize(20, 400);
    EXPECT_EQ(window->statusSizes().textWidth, 1);
}

TEST_F(MessageRows, TheStatusLineFollowsTheScreensX) {
    screen.y = 12;
    window->SetStatusLabel("Compile Status:");
    EXPECT_EQ(window->statusSizes().textLeft, 75 + 15 * 10 * 15);
}

/// A screen whose pixels are not square.
struct LowPixels : test::FixedScreen {
    float TwipsPerPixelY() const override { return 12; }
};

TEST(MessageGridScale, WidthsFollowTheScreensXAndHeightsItsY) {
    const LowPixels screen;
    const test::FixedWidthFont font; // 10 by 16 pixels
    MessageGrid grid{screen};
    grid.measureWith(&font);
    grid.SetGridSizes(1020 * 15, 400 * 12, 0);
    EXPECT_EQ(grid.columnWidth(MessageGrid::PictureColumn), 20 * 15);
    EXPECT_EQ(grid.columnWidth(MessageGrid::MessageColumn), 760 * 15);
    const auto heightOf = [&](std::size_t characters) {
        const auto row = grid.insert({"", "", "", "", "", std::string(characters, 'x')}, false);
        grid.measure(*row);
        grid.fitHeight(*row);
        return row->height;
    };
    EXPECT_EQ(heightOf(75), 20 * 12);
    EXPECT_EQ(heightOf(76), 2 * 16 * 12);
    EXPECT_EQ(grid.rowHeightMin(), 16 * 12);
}

} // namespace
