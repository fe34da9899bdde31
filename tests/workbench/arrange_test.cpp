// The commands that arrange the controls of a form.
#include "Apps/workbench/arrange/arrangement.h"
#include "tests/workbench/canvas_desktop.h"

using testing::ElementsAre;
using workbench::arranged;
using workbench::Arrangement;

namespace {

struct Arranging : test::CanvasDesktop {
    std::string changesAfter(const std::string& submenu, const std::string& item) {
        const auto before = saved("frmMain");
        format(submenu.c_str(), item.c_str())->trigger();
        const auto after = saved("frmMain");
        undo();
        EXPECT_EQ(saved("frmMain"), before) << item;
        redo();
        EXPECT_EQ(saved("frmMain"), after) << item;
        undo();
        return difference(before, after);
    }
};

/// Places of one control in the leader's manner.
std::vector<QRectF> of(Arrangement how, const std::vector<QRectF>& places) {
    std::vector<workbench::ArrangedControl> controls;
    for (const auto& place : places) controls.push_back({place});
    return arranged(how, controls, {QRectF(0, 0, 200, 100), {{0, 0}, 8}, {1, 1}});
}

} // namespace

TEST(Arrangements, AlignToTheLeader) {
    const std::vector<QRectF> places{{3, 5, 20, 10}, {50, 40, 40, 20}};
    EXPECT_EQ(of(Arrangement::AlignLefts, places)[0], QRectF(50, 5, 20, 10));
    EXPECT_EQ(of(Arrangement::AlignCentres, places)[0], QRectF(60, 5, 20, 10));
    EXPECT_EQ(of(Arrangement::AlignRights, places)[0], QRectF(70, 5, 20, 10));
    EXPECT_EQ(of(Arrangement::AlignTops, places)[0], QRectF(3, 40, 20, 10));
    EXPECT_EQ(of(Arrangement::AlignMiddles, places)[0], QRectF(3, 45, 20, 10));
    EXPECT_EQ(of(Arrangement::AlignBottoms, places)[0], QRectF(3, 50, 20, 10));
    EXPECT_EQ(of(Arrangement::AlignLefts, places)[1], places[1]);
}

TEST(Arrangements, TakeTheLeadersSize) {
    const std::vector<QRectF> places{{3, 5, 20, 10}, {50, 40, 40, 20}};
    EXPECT_EQ(of(Arrangement::SameWidth, places)[0], QRectF(3, 5, 40, 10));
    EXPECT_EQ(of(Arrangement::SameHeight, places)[0], QRectF(3, 5, 20, 20));
    EXPECT_EQ(of(Arrangement::SameSize, places)[0], QRectF(3, 5, 40, 20));
}

TEST(Arrangements, FollowTheGrid) {
    EXPECT_THAT(of(Arrangement::AlignToGrid, {{3, 5, 21, 10}}), ElementsAre(QRectF(0, 8, 21, 10)));
    EXPECT_THAT(of(Arrangement::SizeToGrid, {{8, 8, 21, 2}}), ElementsAre(QRectF(8, 8, 24, 8)));
}

TEST(Arrangements, SpaceInTheOrderOfTheirPlaces) {
    const std::vector<QRectF> places{{60, 0, 10, 10}, {0, 0, 20, 10}, {90, 0, 10, 10}};
    EXPECT_THAT(of(Arrangement::EqualSpaceAcross, places),
                ElementsAre(QRectF(50, 0, 10, 10), QRectF(0, 0, 20, 10), QRectF(90, 0, 10, 10)));
    EXPECT_THAT(of(Arrangement::MoreSpaceAcross, places),
                ElementsAre(QRectF(52, 0, 10, 10), QRectF(-16, 0, 20, 10), QRectF(90, 0, 10, 10)));
    EXPECT_THAT(of(Arrangement::LessSpaceAcross, places),
                ElementsAre(QRectF(68, 0, 10, 10), QRectF(16, 0, 20, 10), QRectF(90, 0, 10, 10)));
    EXPECT_THAT(of(Arrangement::NoSpaceAcross, places),
                ElementsAre(QRectF(80, 0, 10, 10), QRectF(60, 0, 20, 10), QRectF(90, 0, 10, 10)));
    EXPECT_THAT(of(Arrangement::NoSpaceDown, {{0, 50, 10, 10}, {0, 10, 10, 20}}),
                ElementsAre(QRectF(0, 30, 10, 10), QRectF(0, 10, 10, 20)));
}

TEST(Arrangements, GapsBetweenSeveralControlsBecomeEqual) {
    const std::vector<QRectF> places{{0, 0, 20, 10}, {30, 0, 10, 10}, {31, 0, 30, 10}, {90, 0, 10, 10}};
    EXPECT_THAT(of(Arrangement::EqualSpaceAcross, places),
                ElementsAre(places[0], QRectF(30, 0, 10, 10), QRectF(50, 0, 30, 10), places[3]));
}

TEST(Arrangements, SpaceDownAsAcross) {
    const auto turned = [](std::vector<QRectF> places) {
        for (auto& place : places) place = QRectF(place.y(), place.x(), place.height(), place.width());
        return places;
    };
    const std::vector<QRectF> places{{60, 3, 10, 15}, {0, 0, 20, 10}, {24, 9, 7, 10}, {90, 5, 10, 20}};
    for (const auto& [across, down] : {std::pair(Arrangement::EqualSpaceAcross, Arrangement::EqualSpaceDown),
                                       {Arrangement::MoreSpaceAcross, Arrangement::MoreSpaceDown},
                                       {Arrangement::LessSpaceAcross, Arrangement::LessSpaceDown},
                                       {Arrangement::NoSpaceAcross, Arrangement::NoSpaceDown}}) {
        EXPECT_NE(of(across, places), places);
        EXPECT_EQ(of(down, turned(places)), turned(of(across, places))) << int(down);
    }
}

TEST(Arrangements, CentresAreRoundedToTheStep) {
    const auto inSteps = [](Arrangement how, const std::vector<QRectF>& places) {
        return arranged(how, {{places[0]}, {places[1]}}, {QRectF(0, 0, 200, 100), {{0, 0}, 8}, {0.5, 4}}).front();
    };
    const std::vector<QRectF> places{{0, 0, 10, 10}, {50.3, 41, 40, 20}};
    EXPECT_EQ(inSteps(Arrangement::AlignCentres, places), QRectF(65.5, 0, 10, 10));
    EXPECT_EQ(inSteps(Arrangement::AlignMiddles, places), QRectF(0, 48, 10, 10));
}

TEST(Arrangements, CentreAllTogether) {
    EXPECT_THAT(of(Arrangement::CentreAcross, {{0, 0, 20, 10}, {30, 50, 10, 10}}),
                ElementsAre(QRectF(80, 0, 20, 10), QRectF(110, 50, 10, 10)));
    EXPECT_THAT(of(Arrangement::CentreDown, {{0, 0, 20, 10}}), ElementsAre(QRectF(0, 45, 20, 10)));
}

TEST_F(Arranging, ChangesOnlyTheLinesOfTheirPlaces) {
    openBoxes();
    choose({"cmdC", "cmdB"});
    EXPECT_EQ(changesAfter("&Align", "&Lefts"), "-      Left            =   240\n+      Left            =   1800\n");
    EXPECT_EQ(changesAfter("&Align", "&Tops"), "-      Top             =   1200\n+      Top             =   240\n");
    EXPECT_EQ(changesAfter("&Horizontal Spacing", "&Increase"),
              "-      Left            =   240\n+      Left            =   120\n");
}

TEST_F(Arranging, NeedsEnoughControlsThatAreNotLocked) {
    openBoxes();
    const auto enabled = [this] {
        return std::vector<bool>{format("&Align", "to &Grid")->isEnabled(), format("&Align", "&Lefts")->isEnabled(),
                                 format("&Vertical Spacing", "Make &Equal")->isEnabled(),
                                 format("&Order", "&Bring to Front")->isEnabled()};
    };
    EXPECT_THAT(enabled(), ElementsAre(false, false, false, false));
    choose({"cmdA"});
    EXPECT_THAT(enabled(), ElementsAre(true, false, false, true));
    choose({"cmdA", "cmdB"});
    EXPECT_THAT(enabled(), ElementsAre(true, true, false, true));
    choose({"cmdA", "cmdB", "cmdC"});
    EXPECT_THAT(enabled(), ElementsAre(true, true, true, true));
    choose("F&ormat", "&Lock Controls");
    EXPECT_THAT(enabled(), ElementsAre(false, false, false, true));
    EXPECT_TRUE(menuItem("F&ormat", "&Lock Controls")->isChecked());
    EXPECT_EQ(difference(original, saved("frmMain")), "+   LockControls    =   -1  'True\n");
    undo();
    EXPECT_EQ(saved("frmMain"), original);
    settle();
    EXPECT_FALSE(menuItem("F&ormat", "&Lock Controls")->isChecked());
}

TEST_F(Arranging, TheOrderMovesOnlyTheLinesOfTheControls) {
    openBoxes("   Begin VB.Menu mnuFile \n      Caption         =   \"&File\"\n   End\n");
    choose({"cmdC"});
    const auto block = crLfOf(box("CommandButton", "cmdC", 240, 1200));
    auto expected = original;
    expected.erase(expected.find(block), block.size());
    const auto rest = expected;
    expected.insert(expected.find("   Begin VB.CommandButton cmdA"), block);
    settle();
    key(Qt::Key_J, Qt::ControlModifier);
    EXPECT_EQ(saved("frmMain"), expected);
    settle();
    key(Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(saved("frmMain"),
              rest.substr(0, rest.find("End\r\nAttribute")) + block + rest.substr(rest.find("End\r\nAttribute")));
    undo();
    undo();
    EXPECT_EQ(saved("frmMain"), original);
    settle();
    EXPECT_FALSE(menuItem("&Edit", "&Undo")->isEnabled());
}

TEST_F(Arranging, FollowsTheUnitsOfTheContainer) {
    openForm(R"(   Begin VB.PictureBox picBox 
      Height          =   1500
      Left            =   125
      ScaleMode       =   3  'Pixel
      Top             =   125
      Width           =   1500
      Begin VB.CommandButton cmdIn 
         Height          =   21
         Left            =   3
         Top             =   3
         Width           =   40
      End
   End
)");
    choose({"cmdIn"});
    EXPECT_EQ(changesAfter("&Align", "to &Grid"), "-         Left            =   3\n-         Top             =   3\n"
                                                  "+         Left            =   0\n+         Top             =   0\n");
    EXPECT_EQ(changesAfter("&Center in Form", "&Vertically"),
              "-         Top             =   3\n+         Top             =   38\n");
}

TEST_F(Arranging, TheTabOrderIsNumberedByClicks) {
    const auto numbered = [](int index) { return "      TabIndex        =   " + std::to_string(index) + "\n"; };
    openForm(box("CommandButton", "cmdA", 240, 240, numbered(0)) +
             box("CommandButton", "cmdB", 1800, 240, numbered(1)) +
             box("CommandButton", "cmdC", 240, 1200, numbered(2)) + box("Image", "imgD", 2400, 2400));
    choose("F&ormat", "&Tab Order");
    settle();
    EXPECT_TRUE(menuItem("F&ormat", "&Tab Order")->isChecked());
    const auto picture = canvas().grab().toImage();
    clickOn("cmdC");
    EXPECT_EQ(view().selected(), nullptr);
    EXPECT_EQ(valueOf("cmdC", "TabIndex") + valueOf("cmdA", "TabIndex") + valueOf("cmdB", "TabIndex"), "012");
    clickOn("imgD"); // has none
    clickOn("cmdC"); // has one already
    clickOn("cmdB");
    EXPECT_EQ(valueOf("cmdC", "TabIndex") + valueOf("cmdB", "TabIndex") + valueOf("cmdA", "TabIndex"), "012");
    EXPECT_NE(canvas().grab().toImage(), picture);
    key(Qt::Key_Escape);
    settle();
    EXPECT_FALSE(menuItem("F&ormat", "&Tab Order")->isChecked());
    clickOn("cmdA");
    EXPECT_EQ(selected(), "cmdA");
    undo();
    undo();
    EXPECT_EQ(saved("frmMain"), original);
}

TEST_F(Arranging, FollowsTheGridOfTheOptions) {
    openBoxes();
    workbench::kGridPixels.store(10);
    workbench::kGridSnaps.store(false);
    desk().updateGrid();
    choose({"cmdA"});
    EXPECT_EQ(changesAfter("&Align", "to &Grid"), "-      Left            =   240\n-      Top             =   240\n"
                                                  "+      Left            =   300\n+      Top             =   300\n");
    key(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(valueOf("cmdA", "Left"), "255");
    workbench::kGridSnaps.store(true);
    desk().updateGrid();
    key(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(valueOf("cmdA", "Left"), "405");
    workbench::kGridPixels.store(8);
    desk().updateGrid();
}

TEST_F(Arranging, LooksLikeItsPictures) {
    openBoxes();
    const auto save = [this](const QString& name) {
        settle();
        EXPECT_TRUE(window().grab().save(QString(FERNWICK_BINARY_DIR "/arrange-%1.png").arg(name)));
    };
    for (const auto theme : {workbench::Theme::Light, workbench::Theme::Dark}) {
        const QString suffix = theme == workbench::Theme::Dark ? "-dark" : "";
        window().setTheme(theme);
        choose({"cmdA", "cmdB", "fraD"});
        save("several" + suffix);
        canvas().press(middleOf("cmdB"));
        canvas().moveTo(middleOf("cmdB") + QPointF(40, 40));
        save("drag" + suffix);
        canvas().cancelDrag();
        canvas().press(pointOn({4, 4}));
        canvas().moveTo(pointOn({150, 150}));
        save("frame" + suffix);
        canvas().cancelDrag();
        canvas().switchTabOrder();
        canvas().press(middleOf("cmdA"));
        save("tab-order" + suffix);
        canvas().switchTabOrder();
        canvas().contextMenu(middleOf("cmdA"), window().mapToGlobal(QPoint(300, 200)));
        EXPECT_TRUE(QApplication::activePopupWidget()->grab().save(
            QString(FERNWICK_BINARY_DIR "/arrange-menu%1.png").arg(suffix)));
        QApplication::activePopupWidget()->close();
    }
}
