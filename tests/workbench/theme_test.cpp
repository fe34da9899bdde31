// The contrast of the colours, as the accessibility guidelines define it: 4.5 to 1 for text, 3 to 1 for edges.
#include "Apps/workbench/base/application_name.h"
#include "Apps/workbench/base/icon_colours.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/properties/form_colours.h"
#include "tests/workbench/running_bench.h"
#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QSettings>
#include <QStyleOption>
#include <cmath>

using workbench::Theme;

namespace {

constexpr double kForText = 4.5, kForEdges = 3;

double luminance(const QColor& colour) {
    const auto part = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

double contrast(const QColor& a, const QColor& b) {
    const double one = luminance(a), other = luminance(b);
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

struct Themes : testing::TestWithParam<Theme> {
    Themes() { workbench::apply(GetParam()); }
    ~Themes() override { workbench::apply(Theme::Light); }
    const QPalette palette = (workbench::apply(GetParam()), QApplication::palette());
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Both, Themes, testing::Values(Theme::Light, Theme::Dark));

TEST_P(Themes, TextIsReadable) {
    using P = QPalette;
    for (const auto group : {P::Active, P::Inactive, P::Disabled})
        for (const auto& [ink, paper] :
             {std::pair(P::WindowText, P::Window), std::pair(P::Text, P::Base), std::pair(P::Text, P::AlternateBase),
              std::pair(P::ButtonText, P::Button), std::pair(P::Link, P::Base), std::pair(P::Link, P::Window),
              std::pair(P::PlaceholderText, P::Base), std::pair(P::ToolTipText, P::ToolTipBase),
              std::pair(P::HighlightedText, P::Highlight)})
            if (group != P::Disabled || ink != P::HighlightedText) {
                EXPECT_GE(contrast(palette.color(group, ink), palette.color(group, paper)), kForText)
                    << group << " " << ink << " on " << paper;
            }
}

TEST_P(Themes, ColoursOfFormsHaveAVisibleEdge) {
    for (const std::int32_t colour : {0x000000, 0xFFFFFF}) {
        const auto edge = workbench::colourSwatch(colour, {18, 12}).toImage().pixelColor(9, 0);
        EXPECT_GE(contrast(edge, palette.color(QPalette::Base)), kForEdges);
    }
}

TEST_P(Themes, ThePictureOfASelectedRowKeepsItsColours) {
    QPixmap red(16, 16);
    red.fill(Qt::red);
    const auto shown = QIcon(red).pixmap(QSize(16, 16), QIcon::Selected).toImage();
    EXPECT_EQ(shown.pixelColor(8, 8), QColor(Qt::red));
}

TEST_P(Themes, CodeIsReadable) {
    const auto& code = workbench::codeColours(GetParam());
    for (const auto& ink : {code.text, code.keyword, code.comment, code.string, code.number, code.directive})
        for (const auto& paper : {code.paper, code.currentLine})
            EXPECT_GE(contrast(ink, paper), kForText) << ink.name().toStdString();
    EXPECT_GE(contrast(code.marginText, code.margin), kForText);
    EXPECT_GE(contrast(code.error, code.margin), kForText);
    EXPECT_GE(contrast(code.error, code.paper), kForText);
    EXPECT_GE(contrast(code.warning, code.margin), kForText);
}

TEST_P(Themes, EdgesOfBoxesAndFieldsAreVisible) {
    QWidget window;
    window.resize(200, 100);
    QCheckBox box("Box", &window);
    QLineEdit field(&window);
    field.setGeometry(10, 50, 100, 30);
    box.setGeometry(10, 10, 100, 30);
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
    const auto image = window.grab().toImage();
    const auto strongest = [&](const QPoint& from, const QPoint& step) {
        double most = 0;
        for (int i = 0; i < 12; ++i)
            most = std::max(most, contrast(image.pixelColor(from + i * step), palette.color(QPalette::Window)));
        return most;
    };
    EXPECT_GE(strongest({8, 25}, {1, 0}), kForEdges);
    EXPECT_GE(strongest({50, 46}, {0, 1}), kForEdges);
    EXPECT_GE(contrast(workbench::edgeColour(GetParam()), palette.color(QPalette::Base)), kForEdges);
}

TEST_P(Themes, TheRowWithTheFocusIsMarked) {
    QListWidget list;
    list.addItems({"One", "Two"});
    list.resize(200, 100);
    list.setCurrentRow(0);
    const auto drawn = [&](bool focused) {
        QStyleOptionFocusRect option;
        option.rect = QRect(0, 0, 60, 20);
        option.palette = palette;
        option.state = QStyle::State_Enabled | QStyle::State_Selected;
        QImage image(60, 20, QImage::Format_RGB32);
        image.fill(palette.color(QPalette::Highlight));
        QPainter painter(&image);
        if (focused) QApplication::style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, &list);
        return image;
    };
    double most = 0;
    for (int x = 0; x < 60; ++x)
        most = std::max(most, contrast(drawn(true).pixelColor(x, 1), drawn(false).pixelColor(x, 1)));
    EXPECT_GE(most, kForEdges);
}

TEST_P(Themes, OnlyTickedBoxesHaveAMark) {
    const auto inkOf = [&](QStyle::State state) {
        QStyleOptionButton option;
        option.rect = QRect(0, 0, 20, 20);
        option.palette = palette;
        option.state = QStyle::State_Enabled | state;
        QImage image(20, 20, QImage::Format_RGB32);
        image.fill(palette.color(QPalette::Window));
        QPainter painter(&image);
        QApplication::style()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, &painter);
        painter.end();
        int count = 0;
        for (int at = 0; at < 12 * 12; ++at)
            count += image.pixelColor(4 + at % 12, 4 + at / 12) != palette.color(QPalette::Base);
        return count;
    };
    EXPECT_EQ(inkOf(QStyle::State_Off), 0);
    const int ticked = inkOf(QStyle::State_On), partly = inkOf(QStyle::State_NoChange);
    EXPECT_GT(ticked, 10);
    EXPECT_EQ(partly, 12 * 12);
    EXPECT_LT(ticked, partly);
}

TEST_P(Themes, EachColourOfTheCodeIsAColour) {
    const auto& [paper, text, keyword, comment, string, number, directive, margin, marginText, currentLine, error,
                 warning, chosenName] = workbench::codeColours(GetParam());
    for (const auto& colour : {paper, text, keyword, comment, string, number, directive, margin, marginText,
                               currentLine, error, warning, chosenName})
        EXPECT_TRUE(colour.isValid());
}

TEST_P(Themes, AChosenNameAndItsIconAreReadable) {
    const auto& chosen = workbench::codeColours(GetParam()).chosenName;
    EXPECT_GE(contrast(chosen, palette.color(QPalette::Text)), kForText);
    for (const auto& colour : workbench::kIconColours) {
        const auto least = colour.word == "paper" ? 1 : kForEdges;
        EXPECT_GE(contrast(chosen, colour.in(GetParam())), least) << colour.word;
    }
}

TEST(Settings, AreKeptUnderTheNamesOfTheProgram) {
    workbench::nameApplication();
    EXPECT_TRUE(QSettings().fileName().endsWith("/fernwick/workbench.conf")) << QSettings().fileName().toStdString();
    workbench::nameApplication("workbench-test");
}

TEST(Application, PresentsItselfToTheDesktop) {
    workbench::nameApplication("workbench-test");
    EXPECT_EQ(QApplication::applicationVersion(), apps::kVersion);
    EXPECT_EQ(QApplication::desktopFileName(), "fernwick-workbench"); // the name of its desktop entry
    const QSize size(32, 32);
    const auto usual = workbench::drawnIcon("Project").pixmap(size).toImage();
    EXPECT_EQ(QApplication::windowIcon().pixmap(size).toImage(), usual);
    EXPECT_FALSE(usual.isNull());
}

TEST(Application, PrefersTheInstalledIcon) {
    const test::TempFolder icons;
    QPixmap red(32, 32);
    red.fill(Qt::red);
    std::filesystem::create_directories(icons / "hicolor/32x32/apps");
    icons.write("hicolor/index.theme", "[Icon Theme]\nName=x\nDirectories=32x32/apps\n[32x32/apps]\nSize=32\n");
    red.save(QString::fromStdString(icons / "hicolor/32x32/apps/fernwick-workbench.png"));
    const auto before = QIcon::themeSearchPaths();
    QIcon::setThemeSearchPaths({QString::fromStdString(icons.path())});
    QIcon::setThemeName("hicolor");
    workbench::nameApplication("workbench-test");
    EXPECT_EQ(QApplication::windowIcon().pixmap(QSize(32, 32)).toImage().pixelColor(8, 8), QColor(Qt::red));
    QIcon::setThemeSearchPaths(before);
    workbench::nameApplication("workbench-test");
}
