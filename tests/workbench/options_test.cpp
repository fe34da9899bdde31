// The options dialog: what it stores and what follows at once.
#include "Apps/workbench/editing/scintilla.h"
#include "Apps/workbench/options/contrast.h"
#include "Apps/workbench/options/declared_options.h"
#include "tests/workbench/keyboard_access.h"
#include "tests/workbench/options_world.h"
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QFontComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>
#include <set>

using testing::HasSubstr;
using workbench::Theme;

namespace {

struct Options : test::OptionsDesktop {
    static int sizeOf(QsciScintilla& code) { return code.lexer()->font(0).pointSize(); }
    static QColor paperOf(QsciScintilla& code) { return code.lexer()->paper(0); }
    static void setColour(Dialog& dialog, const char* name, const QColor& colour) {
        dialog.colours().ask = [colour](const QColor&, const QString&) { return colour; };
        field<QToolButton>(dialog, name).click();
    }
};

} // namespace

// ---- the dialog -----------------------------------------------------------------------------------------------------

TEST_F(Options, AreStoredAndAppliedByOk) {
    openModule();
    auto& before = code();
    change([](Dialog& dialog) {
        field<QSpinBox>(dialog, "code/fontSize").setValue(15);
        field<QSpinBox>(dialog, "code/tabWidth").setValue(2);
    });
    EXPECT_EQ(sizeOf(before), 15);
    EXPECT_EQ(before.tabWidth(), 2);
    EXPECT_EQ(workbench::kCodeFontSize.stored(), 15);
    window().code().closeAll();
    settle();
    EXPECT_EQ(sizeOf(code()), 15);
}

TEST_F(Options, AreLeftAsTheyWereByCancel) {
    openModule();
    auto& text = code();
    const auto before = QSettings().allKeys();
    edit([](Dialog& dialog) {
        field<QSpinBox>(dialog, "code/fontSize").setValue(15);
        field<QComboBox>(dialog, "window/theme").setCurrentIndex(workbench::kDarkTheme);
        setColour(dialog, "background", "#123456");
        test::click(dialog, "cancel");
    });
    EXPECT_EQ(sizeOf(text), 10);
    EXPECT_EQ(workbench::currentTheme(), Theme::Light);
    EXPECT_EQ(QSettings().allKeys(), before);
}

TEST_F(Options, AreAppliedWithoutClosingByApply) {
    openModule();
    auto& text = code();
    edit([&](Dialog& dialog) {
        auto& apply = field<QPushButton>(dialog, "apply");
        EXPECT_FALSE(apply.isEnabled());
        field<QSpinBox>(dialog, "code/tabWidth").setValue(7);
        test::click(dialog, "apply");
        EXPECT_EQ(text.tabWidth(), 7);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_FALSE(apply.isEnabled());
        test::click(dialog, "cancel");
    });
    EXPECT_EQ(workbench::kTabWidth.stored(), 7);
}

TEST_F(Options, OfThePageInFrontGetTheirDefaults) {
    change([](Dialog& dialog) {
        field<QSpinBox>(dialog, "code/tabWidth").setValue(7);
        field<QSpinBox>(dialog, "designer/gridPixels").setValue(20);
    });
    change([](Dialog& dialog) { test::click(dialog, "defaults"); });
    EXPECT_FALSE(QSettings().contains("code/tabWidth"));
    EXPECT_EQ(workbench::kGridPixels.stored(), 20);
}

TEST_F(Options, ThatAreStoredBadlyAreTheUsualOnes) {
    using namespace workbench;
    for (const QVariant& bad : {QVariant("nonsense"), QVariant("DejaVu Sans"), QVariant(-1), QVariant(100000),
                                QVariant(), QVariant(QStringList{})}) {
        for (const auto* option : {&kCodeFontSize, &kTabWidth, &kGridPixels}) {
            QSettings().setValue(option->key, bad);
            EXPECT_EQ(option->stored(), option->usual) << option->key;
        }
        for (const auto* option : {&kGridVisible, &kGridSnaps}) {
            QSettings().setValue(option->key, bad);
            EXPECT_EQ(option->stored(), option->usual) << option->key;
        }
        QSettings().setValue(kThemeOption.key, bad);
        EXPECT_EQ(kThemeOption.stored(), kSystemTheme);
        QSettings().setValue(kCodeFont.key, bad);
        EXPECT_EQ(kCodeFont.stored(), kCodeFont.usual());
        for (const auto& colour : kCodeColours) {
            const auto option = colour.option(Theme::Dark);
            QSettings().setValue(option.key, bad);
            EXPECT_EQ(option.stored(), option.usual) << colour.name;
        }
    }
}

TEST_F(Options, HaveNamesAndLettersForTheKeyboard) {
    edit([](Dialog& dialog) {
        for (int page = 0; page < 4; ++page) {
            turnTo(dialog, page);
            test::expectKeyboardAccess(dialog);
        }
        dialog.reject();
    });
}

TEST_F(Options, FitIntoASmallScreenInBothThemes) {
    for (const auto& [theme, name] : {std::pair(Theme::Light, "light"), std::pair(Theme::Dark, "dark")}) {
        window().setTheme(theme);
        edit([name = QString(name)](Dialog& dialog) {
            for (int page = 0; page < 4; ++page) {
                turnTo(dialog, page);
                settle();
                EXPECT_LE(dialog.width(), 1000);
                EXPECT_LE(dialog.height(), 700);
                EXPECT_TRUE(dialog.grab().save(QString(FERNWICK_BINARY_DIR "/options-%1-%2.png").arg(name).arg(page)));
            }
            dialog.reject();
        });
    }
}

// ---- the theme and the colours --------------------------------------------------------------------------------------

TEST_F(Options, AgreeWithTheThemesCommand) {
    change([](Dialog& dialog) { field<QComboBox>(dialog, "window/theme").setCurrentIndex(workbench::kDarkTheme); });
    EXPECT_EQ(workbench::currentTheme(), Theme::Dark);
    EXPECT_TRUE(menuItem("&View", "Dar&k Theme")->isChecked());
    menuItem("&View", "Dar&k Theme")->trigger();
    settle();
    edit([](Dialog& dialog) {
        EXPECT_EQ(field<QComboBox>(dialog, "window/theme").currentIndex(), workbench::kLightTheme);
        dialog.reject();
    });
}

TEST_F(Options, CanFollowTheDesktopsThemeAgain) {
    window().setTheme(Theme::Dark);
    change([](Dialog& dialog) { field<QComboBox>(dialog, "window/theme").setCurrentIndex(workbench::kSystemTheme); });
    EXPECT_EQ(workbench::currentTheme(), Theme::Light); // as at the start
    EXPECT_FALSE(QSettings().contains("window/theme"));
}

TEST_F(Options, ColourTheCodeOfOneTheme) {
    openModule();
    auto& text = code();
    const auto usual = paperOf(text);
    change([](Dialog& dialog) {
        EXPECT_EQ(field<QComboBox>(dialog, "coloursOf").currentIndex(), 0);
        setColour(dialog, "background", "#fff8e0");
        setColour(dialog, "keywords", "#800000");
        field<QComboBox>(dialog, "coloursOf").setCurrentIndex(1);
        EXPECT_EQ(field<QToolButton>(dialog, "background").toolTip(), "#1e1f22"); // that of the dark theme
        setColour(dialog, "background", "#001020");
    });
    EXPECT_EQ(paperOf(text), QColor("#fff8e0"));
    EXPECT_EQ(text.lexer()->color(3), QColor("#800000"));
    window().setTheme(Theme::Dark);
    EXPECT_EQ(paperOf(text), QColor("#001020"));
    change([](Dialog& dialog) {
        EXPECT_EQ(field<QComboBox>(dialog, "coloursOf").currentIndex(), 1);
        turnTo(dialog, kColours);
        test::click(dialog, "defaults");
    });
    EXPECT_EQ(workbench::currentTheme(), Theme::Light);
    EXPECT_EQ(paperOf(text), usual);
}

TEST_F(Options, NameColoursThatAreHardToRead) {
    edit([](Dialog& dialog) {
        auto& warning = field<QLabel>(dialog, "contrast");
        EXPECT_EQ(warning.text(), "");
        setColour(dialog, "comments", "#e0e0e0");
        EXPECT_THAT(warning.text().toStdString(), HasSubstr("comments"));
        dialog.reject();
    });
    EXPECT_NEAR(workbench::contrast(Qt::black, Qt::white), 21, 0.01);
}

// ---- the grid -------------------------------------------------------------------------------------------------------

TEST_F(Options, ChangeTheGridOfOpenDesigners) {
    openForm(
        "   Begin VB.CommandButton btnOK\n      Height = 375\n      Left = 120\n      Top = 240\n      Width = 1215\n"
        "   End\n");
    change([](Dialog& dialog) { field<QSpinBox>(dialog, "designer/gridPixels").setValue(20); });
    drag(middleOf("btnOK"), {9, 0});
    EXPECT_EQ(valueOf("btnOK", "Left"), "300");
    view().select(control("btnOK"));
    key(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(valueOf("btnOK", "Left"), "600");
    change([](Dialog& dialog) { field<QCheckBox>(dialog, "designer/gridSnaps").setChecked(false); });
    drag(middleOf("btnOK"), {7, 0});
    EXPECT_EQ(valueOf("btnOK", "Left"), "705");
}

TEST_F(Options, HideTheGrid) {
    openForm("");
    const auto with = canvas().grab().toImage();
    change([](Dialog& dialog) { field<QCheckBox>(dialog, "designer/gridVisible").setChecked(false); });
    const auto without = canvas().grab().toImage();
    EXPECT_NE(with, without);
    change([](Dialog& dialog) { field<QSpinBox>(dialog, "designer/gridPixels").setValue(30); });
    EXPECT_EQ(canvas().grab().toImage(), without);
}
