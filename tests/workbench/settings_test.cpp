// The settings dialog on the desktop.
#include "tests/workbench/desktop.h"
#include "tests/workbench/keyboard_access.h"
#include <QCheckBox>
#include <QFile>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QTabWidget>
#include <QTreeWidget>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::Eq;

namespace {

class SettingsWindow : public test::Desktop {
protected:
    using Act = std::function<void(QDialog&)>;

    SettingsWindow() {
        openSample("AddressBook");
        settle();
    }
    /// Opens the settings by their command; `act` is what the user does in the window.
    void edit(const Act& act) {
        bool wasShown = false;
        test::whenShown([&](QDialog& shown) {
            wasShown = true;
            EXPECT_EQ(shown.objectName(), "frmQuinloftSettings");
            act(shown);
        });
        menuItem("&Fernwick", "Fernwick &Settings...")->trigger();
        EXPECT_TRUE(QTest::qWaitFor([&] { return wasShown && !QApplication::activeModalWidget(); }, 3000));
        settle();
    }
    template <class W>
    static W& widget(QWidget& shown, const char* name) {
        auto* const found = shown.findChild<W*>(name);
        if (!found) throw std::runtime_error(name);
        return *found;
    }
    static QTreeWidget& tree(QDialog& shown) { return widget<QTreeWidget>(shown, "treAvailableSettings"); }
    static QTreeWidgetItem& node(QDialog& shown, const QString& text) {
        return *tree(shown).findItems(text, Qt::MatchExactly | Qt::MatchRecursive).at(0);
    }
    static void clickNode(QDialog& shown, const QString& text) {
        auto& pages = tree(shown);
        const auto at = pages.visualItemRect(&node(shown, text)).center();
        QTest::mouseClick(pages.viewport(), Qt::LeftButton, {}, at);
        QApplication::processEvents();
    }
    static std::vector<std::string> visiblePages(QDialog& shown) {
        std::vector<std::string> names;
        for (const char* page : {"fraAppName", "fraDependencies", "fraCompilerOptions", "fraMyDevices",
                                 "fraCompileTargets", "LinuxHandheldPage"})
            if (const auto* found = shown.findChild<QWidget*>(page); found && found->isVisible())
                names.emplace_back(page);
        return names;
    }
    static std::string selected(QDialog& shown) {
        const auto chosen = tree(shown).selectedItems();
        return chosen.isEmpty() ? "" : chosen.front()->text(0).toStdString();
    }
    std::string bytes() {
        QFile file(QString::fromStdString(project()->FileName()));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll().toStdString();
    }
};

} // namespace

TEST_F(SettingsWindow, PagesAreChosenByMouse) {
    edit([&](QDialog& shown) {
        for (const auto& [text, page] :
             std::vector<std::pair<QString, std::string>>{{"Dependencies", "fraDependencies"},
                                                          {"Linux Handheld Settings", "LinuxHandheldPage"},
                                                          {"Compiler Settings", "fraCompilerOptions"},
                                                          {"My Devices", "fraMyDevices"},
                                                          {"App Name/Icon", "fraAppName"}}) {
            clickNode(shown, text);
            EXPECT_THAT(visiblePages(shown), ElementsAre(page));
            EXPECT_EQ(selected(shown), text.toStdString());
        }
        clickNode(shown, "General Settings");
        EXPECT_EQ(selected(shown), "App Name/Icon");
        test::click(shown, "btnCancel");
    });
}

TEST_F(SettingsWindow, PagesAreChosenByKeyboard) {
    edit([&](QDialog& shown) {
        auto& pages = tree(shown);
        pages.setFocus();
        QTest::keyClick(&pages, Qt::Key_Down);
        QApplication::processEvents();
        EXPECT_THAT(visiblePages(shown), ElementsAre("fraDependencies"));
        QTest::keyClick(&pages, Qt::Key_Up);
        QTest::keyClick(&pages, Qt::Key_Up); // only the root is above
        QApplication::processEvents();
        EXPECT_THAT(visiblePages(shown), ElementsAre("fraAppName"));
        EXPECT_EQ(selected(shown), "App Name/Icon");
        EXPECT_EQ(pages.currentItem()->text(0), "App Name/Icon");
        QTest::keyClick(&pages, Qt::Key_End);
        QApplication::processEvents();
        EXPECT_THAT(visiblePages(shown), ElementsAre("fraMyDevices"));
        QTest::keyClick(&pages, Qt::Key_Up); // past the other root
        EXPECT_THAT(visiblePages(shown), ElementsAre("fraCompilerOptions"));
        EXPECT_EQ(selected(shown), "Compiler Settings");
        QTest::keyClick(&shown, Qt::Key_Escape);
    });
}

/// All pages share one place.
TEST_F(SettingsWindow, NoPageCoversAnother) {
    edit([&](QDialog& shown) {
        for (const auto& [text, name] :
             std::vector<std::pair<QString, const char*>>{{"App Name/Icon", "chkSpacesInName"},
                                                          {"Dependencies", "btnAdd"},
                                                          {"Linux Handheld Settings", "btnTest"},
                                                          {"Compiler Settings", "cmdPreAdd"}}) {
            clickNode(shown, text);
            auto& control = widget<QWidget>(shown, name);
            EXPECT_EQ(shown.childAt(control.mapTo(&shown, control.rect().center())), &control) << name;
        }
        test::click(shown, "btnCancel");
    });
}

TEST_F(SettingsWindow, KeepsItsSizeWhilePagesReplaceEachOther) {
    edit([&](QDialog& shown) {
        const auto size = shown.size();
        EXPECT_LE(size.width(), 1000);
        EXPECT_LE(size.height(), 700);
        for (const char* text : {"Dependencies", "Compiler Settings", "My Devices"}) {
            clickNode(shown, text);
            EXPECT_EQ(shown.size(), size) << text;
        }
        test::click(shown, "btnCancel");
    });
}

TEST_F(SettingsWindow, WhatIsTypedIsStoredByOK) {
    edit([&](QDialog& shown) {
        clickNode(shown, "App Name/Icon");
        widget<QCheckBox>(shown, "chkSpacesInName").click();
        clickNode(shown, "Compiler Settings");
        QTest::keyClicks(&widget<QLineEdit>(shown, "txtPreNewStep"), "true --version");
        test::click(shown, "cmdPreAdd");
        EXPECT_EQ(widget<QListWidget>(shown, "lstPreSteps").count(), 1);
        test::click(shown, "btnOK");
    });
    const auto qlProject = bench->addIn().projects.GetQLProject(project());
    EXPECT_TRUE(qlProject->SpacesInNameEnabled());
    EXPECT_EQ(qlProject->PreCompileStepCount(), 1);
    EXPECT_EQ(qlProject->GetLastSettingsDialog(), "Compiler Settings");
    EXPECT_TRUE(project()->IsDirty());
}

TEST_F(SettingsWindow, CancelLeavesTheProjectClean) {
    const auto before = bytes();
    edit([&](QDialog& shown) {
        widget<QCheckBox>(shown, "chkSpacesInName").click();
        clickNode(shown, "My Devices");
        test::click(shown, "btnCancel");
    });
    EXPECT_FALSE(project()->IsDirty());
    EXPECT_EQ(bytes(), before);
}

TEST_F(SettingsWindow, DevicesAreTicked) {
    edit([&](QDialog& shown) {
        clickNode(shown, "My Devices");
        auto& list = widget<QListWidget>(shown, "lstMyDevices");
        ASSERT_GT(list.count(), 1);
        for (int row = 0; row < list.count(); ++row) list.item(row)->setCheckState(Qt::Unchecked);
        list.setCurrentRow(1);
        list.setFocus();
        QTest::keyClick(&list, Qt::Key_Space);
        test::click(shown, "btnOK");
    });
    EXPECT_EQ(bench->addIn().prefs.gMyDevices.size(), 1u);
}

TEST_F(SettingsWindow, SelectedStepsMoveByTheirButtons) {
    edit([&](QDialog& shown) {
        clickNode(shown, "Compiler Settings");
        auto& list = widget<QListWidget>(shown, "lstPreSteps");
        for (const char* step : {"true a", "true b", "true c"}) {
            widget<QLineEdit>(shown, "txtPreNewStep").clear();
            QTest::keyClicks(&widget<QLineEdit>(shown, "txtPreNewStep"), step);
            test::click(shown, "cmdPreAdd");
        }
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(1)).center());
        QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier,
                          list.visualItemRect(list.item(2)).center());
        test::click(shown, "cmdPreMoveUp");
        EXPECT_EQ(list.item(0)->text(), "true b");
        EXPECT_EQ(list.item(1)->text(), "true c");
        EXPECT_TRUE(list.item(1)->isSelected());
        EXPECT_FALSE(list.item(2)->isSelected());
        test::click(shown, "btnCancel");
    });
}

TEST_F(SettingsWindow, FilesAreDroppedOntoTheList) {
    const auto folder = QFileInfo(QString::fromStdString(project()->FileName())).absolutePath();
    QFile file(folder + "/data.txt");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(2048, 'x'));
    file.close();
    edit([&](QDialog& shown) {
        clickNode(shown, "Dependencies");
        auto& list = widget<QTreeWidget>(shown, "tvwDependencies");
        const int before = list.topLevelItemCount();
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(file.fileName())});
        QDragEnterEvent enter(list.viewport()->rect().center(), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(list.viewport(), &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent drop(list.viewport()->rect().center(), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(list.viewport(), &drop);
        EXPECT_EQ(list.topLevelItemCount(), before + 1);
        auto* const row = list.topLevelItem(before);
        if (!row) return test::click(shown, "btnCancel");
        EXPECT_EQ(row->text(0), "data.txt");
        EXPECT_THAT(row->text(1).toStdString(), Eq("2.0 kB"));
        EXPECT_FALSE(row->icon(0).isNull());
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(row).center());
        EXPECT_TRUE(widget<QAbstractButton>(shown, "btnDelete").isEnabled());
        test::click(shown, "btnDelete");
        EXPECT_EQ(list.topLevelItemCount(), before);
        test::click(shown, "btnCancel");
    });
}

/// The icons are those of the desktop's theme.
TEST_F(SettingsWindow, DependenciesHaveTheIconsOfTheirFiles) {
    const auto projectFolder = QFileInfo(QString::fromStdString(project()->FileName())).absolutePath().toStdString();
    for (const auto* name : {"/data.txt", "/photo.png", "/more.txt"}) std::ofstream(projectFolder + name) << "x";
    folder.write("icons/kinds/index.theme", "[Icon Theme]\nName=kinds\nDirectories=files\n\n[files]\nSize=16\n");
    std::filesystem::create_directory(folder / "icons/kinds/files");
    for (const auto& [name, colour] : {std::pair("text-plain", Qt::green), std::pair("image-png", Qt::blue)}) {
        QPixmap icon(16, 16);
        icon.fill(colour);
        ASSERT_TRUE(icon.save(QString::fromStdString(folder / "icons/kinds/files/") + name + ".png"));
    }
    const auto usual = std::pair(QIcon::themeSearchPaths(), QIcon::themeName());
    QIcon::setThemeSearchPaths({QString::fromStdString(folder / "icons")});
    QIcon::setThemeName("kinds");
    auto& stored = *project();
    stored.WriteProperty("Quinloft Project Dependencies", "NumDependencies", "4");
    for (const auto& [number, name] : {std::pair('0', "data.txt,TXT"), std::pair('1', "photo.png,PNG"),
                                       std::pair('2', "more.txt,TXT"), std::pair('3', "gone.txt,TXT")})
        stored.WriteProperty("Quinloft Project Dependencies", std::string("Dependencies") + number, name);
    edit([&](QDialog& shown) {
        clickNode(shown, "Dependencies");
        auto& list = widget<QTreeWidget>(shown, "tvwDependencies");
        std::vector<QImage> icons;
        for (int row = 0; row < list.topLevelItemCount(); ++row)
            icons.push_back(list.topLevelItem(row)->icon(0).pixmap(16, 16).toImage());
        if (icons.size() == 4) {
            EXPECT_EQ(icons[0].pixelColor(8, 8), QColor(Qt::green));
            EXPECT_EQ(icons[1].pixelColor(8, 8), QColor(Qt::blue));
            EXPECT_EQ(icons[2], icons[0]);
            EXPECT_FALSE(icons[3].isNull());
            EXPECT_NE(icons[3], icons[0]);
        } else {
            ADD_FAILURE() << icons.size() << " rows";
        }
        test::click(shown, "btnCancel");
    });
    QIcon::setThemeSearchPaths(usual.first);
    QIcon::setThemeName(usual.second);
}

TEST_F(SettingsWindow, AnIconIsPreviewed) {
    edit([&](QDialog& shown) {
        clickNode(shown, "App Name/Icon");
        auto& path = widget<QLineEdit>(shown, "txtIconFilePath");
        auto& preview = widget<QLabel>(shown, "icoPreview");
        path.clear();
        EXPECT_TRUE(preview.pixmap(Qt::ReturnByValue).isNull());
        QTest::keyClicks(&path, FERNWICK_SOURCE_DIR "/installation/VB Toolkit/Bin/QLDEFAULT.ico");
        EXPECT_FALSE(preview.pixmap(Qt::ReturnByValue).isNull());
        path.clear();
        QTest::keyClicks(&path, FERNWICK_SOURCE_DIR "/README.md");
        EXPECT_TRUE(preview.pixmap(Qt::ReturnByValue).isNull());
        test::click(shown, "btnCancel");
    });
}

/// Tab goes through what can be used on the page, each once, from top to bottom.
TEST_F(SettingsWindow, TabVisitsEveryControlOnce) {
    edit([&](QDialog& shown) {
        for (const char* text : {"App Name/Icon", "Dependencies", "Compiler Settings", "My Devices"}) {
            clickNode(shown, text);
            std::vector<std::string> visited;
            tree(shown).setFocus();
            do {
                visited.push_back(QApplication::focusWidget()->objectName().toStdString());
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            } while (QApplication::focusWidget() != &tree(shown) && visited.size() < 40);
            std::set<std::string> expected;
            for (const auto* child : shown.findChildren<QWidget*>())
                if (child->isVisible() && child->isEnabled() && (child->focusPolicy() & Qt::TabFocus) &&
                    !child->focusProxy())
                    expected.insert(child->objectName().toStdString());
            EXPECT_EQ(std::set(visited.begin(), visited.end()), expected) << text;
            EXPECT_EQ(visited.size(), expected.size()) << text;
        }
        test::click(shown, "btnCancel");
    });
}

TEST_F(SettingsWindow, HasNamesAndLettersForTheKeyboard) {
    edit([&](QDialog& shown) {
        for (const char* text : {"App Name/Icon", "Dependencies", "Compiler Settings", "My Devices"}) {
            SCOPED_TRACE(text);
            clickNode(shown, text);
            test::expectKeyboardAccess(shown);
        }
        test::click(shown, "btnCancel");
    });
}

/// As on a screen at 200 %.
TEST_F(SettingsWindow, CutsNoTextThatIsTwiceAsLarge) {
    const auto usual = QApplication::font();
    auto large = usual;
    large.setPointSize(usual.pointSize() * 2);
    QApplication::setFont(large);
    edit([&](QDialog& shown) {
        for (const char* text :
             {"App Name/Icon", "Dependencies", "Linux Handheld Settings", "Compiler Settings", "My Devices"}) {
            clickNode(shown, text);
            for (const auto* child : shown.findChildren<QWidget*>()) {
                const auto* const label = dynamic_cast<const QLabel*>(child);
                if (!child->isVisible() || (!label && !dynamic_cast<const QAbstractButton*>(child))) continue;
                EXPECT_GE(child->width(), child->minimumSizeHint().width()) << child->objectName().toStdString();
                const int needed = label && label->wordWrap() ? label->heightForWidth(label->width())
                                                              : child->minimumSizeHint().height();
                EXPECT_GE(child->height(), needed) << child->objectName().toStdString();
            }
        }
        test::click(shown, "btnCancel");
    });
    QApplication::setFont(usual);
}

TEST_F(SettingsWindow, IsDrawnInBothThemes) {
    for (const auto& [theme, name] :
         {std::pair(workbench::Theme::Light, "light"), std::pair(workbench::Theme::Dark, "dark")}) {
        window().setTheme(theme);
        edit([name = QString(name)](QDialog& shown) {
            for (const char* text :
                 {"App Name/Icon", "Dependencies", "Linux Handheld Settings", "Compiler Settings", "My Devices"}) {
                clickNode(shown, text);
                const auto file = QString(text).section('/', 0, 0).remove(' ');
                EXPECT_TRUE(shown.grab().save(QString(FERNWICK_BINARY_DIR "/settings-%1-%2.png").arg(name, file)));
            }
            test::click(shown, "btnCancel");
        });
    }
}
