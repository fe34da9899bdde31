// Finding all references and renaming, by keys.
#include "Apps/workbench/base/theme.h"
#include "Apps/workbench/renaming/rename_dialog.h"
#include "tests/workbench/open_desktop.h"
#include "tests/workbench/window_words.h"
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

using testing::ElementsAre;

namespace {

class Names : public test::OpenDesktop {
protected:
    Names() {
        open(
            test::SampleProject("One")
                .module("modA", "Public Total As Long\r\n\r\nPublic Function Sum(n)\r\n"
                                "Attribute Sum.VB_Description = \"Sum\"\r\n    Total = Total + n\r\n    Sum = Total\r\n"
                                "End Function\r\n")
                .module("modB",
                        "Sub Go(o As Object)\r\n    Total = Sum(1) ' Total\r\n    o.Total = \"Total\"\r\nEnd Sub\r\n"));
    }

    void setCursor(const char* module, int line, int column) {
        auto& text = code(module);
        window().activateWindow();
        (void)QTest::qWaitForWindowActive(&window());
        text.setFocus();
        text.setCursorPosition(line, column);
        settle();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
        auto* const focus = window().code().current();
        QTest::keyClick(&focus->scintilla(), key, with);
    }
    std::vector<std::string> findAll(const char* module, int line, int column) {
        setCursor(module, line, column);
        command("Find All &References")->trigger();
        EXPECT_TRUE(QTest::qWaitFor([this] { return !window().results().isSearching(); }));
        std::vector<std::string> rows;
        for (int row = 0; row < list().topLevelItemCount(); ++row) {
            const auto& item = *list().topLevelItem(row);
            rows.push_back((item.text(0) + ":" + item.text(1) + ": " + item.text(2)).toStdString() +
                           (item.font(2).bold() ? "*" : ""));
        }
        return rows;
    }
    QAction* command(const char* text) {
        auto* const edit = menuItem("&Edit", "Code &Help");
        edit->menu()->aboutToShow();
        for (auto* action : edit->menu()->actions())
            if (action->text() == text) return action;
        return nullptr;
    }
    QTreeWidget& list() { return *window().results().findChild<QTreeWidget*>("searchResults"); }
    std::string summary() { return window().results().findChild<QLabel*>("searchSummary")->text().toStdString(); }

    /// Opens the dialog at a place and types a name. `act` sees the dialog when it is ready.
    void rename(const char* module, int line, int column, const std::function<void(workbench::RenameDialog&)>& act) {
        setCursor(module, line, column);
        auto* const renaming = command("Ren&ame...");
        QTimer::singleShot(0, [&act] {
            auto* const dialog = dynamic_cast<workbench::RenameDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog->isBusy(); }));
            act(*dialog);
            if (dialog->isVisible()) dialog->reject();
        });
        renaming->trigger();
    }
    /// Types a name and presses Enter. Returns what was refused.
    static std::string enter(workbench::RenameDialog& dialog, const char* name) {
        auto* const field = dialog.findChild<QLineEdit*>("newName");
        field->selectAll();
        QTest::keyClicks(field, name);
        QTest::keyClick(field, Qt::Key_Return);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog.isBusy(); }));
        auto* const problem = dialog.findChild<QLabel*>("problem");
        return problem->isHidden() ? std::string() : problem->text().toStdString();
    }
    static std::vector<std::string> places(workbench::RenameDialog& dialog) {
        std::vector<std::string> rows;
        for (QTreeWidgetItemIterator at(dialog.findChild<QTreeWidget*>("places")); *at; ++at)
            rows.push_back(
                ((*at)->text(0) + ((*at)->parent() ? ":" + (*at)->text(1) + ": " + (*at)->text(2) : QString()))
                    .toStdString());
        return rows;
    }
    std::string codeOf(const char* module) { return code(module).text().remove('\r').toStdString(); }
    std::string moduleCode(const char* module) {
        const auto lines = component(module)->CodeModule();
        return lines->Lines(1, lines->CountOfLines());
    }
};

} // namespace

TEST_F(Names, AllReferencesAreListedWithTheirDeclaration) {
    EXPECT_THAT(findAll("modB", 1, 6),
                ElementsAre("One / modA:1: Public Total As Long*", "One / modA:4: Total = Total + n",
                            "One / modA:5: Sum = Total", "One / modB:2: Total = Sum(1) ' Total"));
    EXPECT_EQ(summary(), "References to \"Total\": 4 lines in 2 modules");
    list().setCurrentItem(list().topLevelItem(3));
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_EQ(window().code().current()->component()->Name(), "modB");
    EXPECT_EQ(window().code().current()->selectedPart(), "Total");
}

TEST_F(Names, ReferencesAreThoseOfThePresentText) {
    code("modB").insertAt("    n = Total\n", 1, 0);
    EXPECT_EQ(findAll("modA", 0, 8).size(), 5u);
    // the hidden line of an attribute is not listed
    EXPECT_THAT(findAll("modA", 2, 17),
                ElementsAre("One / modA:3: Public Function Sum(n)*", "One / modA:5: Sum = Total",
                            "One / modB:3: Total = Sum(1) ' Total"));
}

TEST_F(Names, WhatIsNotKnownHasNoReferences) {
    EXPECT_TRUE(findAll("modB", 2, 8).empty());
    EXPECT_EQ(summary(), "What \"Total\" means here is not known");
}

TEST_F(Names, TheDialogHasItsWords) {
    rename("modA", 0, 8, [](workbench::RenameDialog& dialog) {
        EXPECT_EQ(dialog.size(), QSize(620, 420).expandedTo(dialog.minimumSizeHint()));
        test::expectWords(dialog, "rename");
    });
}

TEST_F(Names, ReferencesAreStopped) {
    setCursor("modA", 0, 8);
    command("Find All &References")->trigger();
    ASSERT_TRUE(window().results().isSearching());
    QTest::keyClick(&list(), Qt::Key_Escape);
    EXPECT_FALSE(window().results().isSearching());
    settle(400);
    EXPECT_EQ(list().topLevelItemCount(), 0);
    EXPECT_EQ(summary(), "References to \"Total\": stopped");
}

TEST_F(Names, RenamingShowsWhatChangesAndWhatIsNotKnown) {
    rename("modA", 0, 8, [](auto& dialog) {
        EXPECT_THAT(places(dialog),
                    ElementsAre("Lines that change: 4", "modA:1: Public Total As Long", "modA:4: Total = Total + n",
                                "modA:5: Sum = Total", "modB:2: Total = Sum(1) ' Total"));
        EXPECT_EQ(dialog.template findChild<QLineEdit*>("newName")->selectedText(), "Total");
        EXPECT_FALSE(dialog.template findChild<QPushButton*>("rename")->isEnabled());
    });
    EXPECT_EQ(codeOf("modA").substr(0, 20), "Public Total As Long");
}

TEST_F(Names, RenamingIsOneStepToUndoInEachWindow) {
    const auto before = codeOf("modA"), other = moduleCode("modB");
    rename("modA", 0, 8, [](auto& dialog) { EXPECT_EQ(enter(dialog, "Grand"), ""); });
    EXPECT_EQ(codeOf("modA"),
              "Public Grand As Long\n\nPublic Function Sum(n)\n    Grand = Grand + n\n    Sum = Grand\nEnd Function");
    EXPECT_EQ(moduleCode("modB"),
              "Sub Go(o As Object)\r\n    Grand = Sum(1) ' Total\r\n    o.Total = \"Total\"\r\nEnd Sub");
    EXPECT_TRUE(component("modB")->IsDirty());
    code("modA").undo();
    EXPECT_EQ(codeOf("modA"), before);
    EXPECT_NE(moduleCode("modB"), other);
    EXPECT_FALSE(code("modA").isUndoAvailable());
}

TEST_F(Names, RenamingKeepsHiddenAttributes) {
    rename("modB", 1, 14, [](auto& dialog) { EXPECT_EQ(enter(dialog, "Add"), ""); });
    const auto own = basic::cast<host::Component>(component("modA"));
    EXPECT_NE(own->source().bytes().find("Public Function Add(n)\r\nAttribute Add.VB_Description = \"Sum\"\r\n"),
              std::string::npos)
        << own->source().bytes();
    EXPECT_EQ(codeOf("modB").substr(20, 22), "    Total = Add(1) ' T");
}

TEST_F(Names, RenamingIsRefusedInTheDialog) {
    rename("modA", 0, 8, [](auto& dialog) {
        EXPECT_EQ(enter(dialog, "Next"), "Next is a word of the language.");
        EXPECT_EQ(enter(dialog, "Sum"),
                  "With the name Sum, line 3 of modA.bas would have an error: Ambiguous name detected: Sum.");
        QTest::keyClicks(dialog.template findChild<QLineEdit*>("newName"), "x");
        EXPECT_TRUE(dialog.template findChild<QLabel*>("problem")->isHidden());
        EXPECT_EQ(enter(dialog, "Good"), "");
        EXPECT_FALSE(dialog.isVisible());
    });
    rename("modB", 2, 8, [](auto& dialog) {
        EXPECT_EQ(dialog.template findChild<QLabel*>("problem")->text(),
                  "What Total means is known only when the program runs.");
        EXPECT_EQ(enter(dialog, "Good"), "What Total means is known only when the program runs.");
        EXPECT_TRUE(dialog.isVisible());
    });
}

TEST_F(Names, RenamingIsRefusedForCodeThatChangedMeanwhile) {
    rename("modA", 0, 8, [this](auto& dialog) {
        component("modB")->CodeModule()->InsertLines(1, "' new");
        EXPECT_EQ(enter(dialog, "Good"), "The code was changed meanwhile. Nothing was renamed; try again.");
    });
    EXPECT_EQ(codeOf("modA").substr(0, 12), "Public Total");
}

TEST_F(Names, RenamingIsTakenBackIfAModuleRefusesItsChange) {
    rename("modA", 0, 8, [this](auto& dialog) {
        const auto before = codeOf("modA");
        fernwick::Subscription removal;
        removal = bench->host().panes.codeChanged.connect([&](const auto& changed) {
            if (changed->Name() != "modA") return;
            const auto other = component("modB");
            removal = {};
            project()->VBComponents()->Remove(other);
        });
        EXPECT_EQ(enter(dialog, "Good"), "A module cannot be changed. Nothing was renamed.");
        EXPECT_EQ(project()->VBComponents()->items().size(), 1u);
        EXPECT_EQ(codeOf("modA"), before);
        EXPECT_EQ(held("modA"), before);
    });
}

TEST_F(Names, KeysBeginBoth) {
    setCursor("modA", 0, 8);
    press(Qt::Key_F12, Qt::ShiftModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return list().topLevelItemCount() == 4; }));
    setCursor("modA", 0, 8);
    QTimer::singleShot(0, [] {
        auto* const dialog = dynamic_cast<workbench::RenameDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    press(Qt::Key_F2);
    settle();
}

/// Pictures for review.
TEST_F(Names, LooksLikeItsPictures) {
    component("modB")->CodeModule()->ReplaceLine(3, "#If Wide Then");
    component("modB")->CodeModule()->InsertLines(4, "    Total = 2\r\n#End If");
    for (const auto& [theme, name] : {std::pair(workbench::Theme::Light, "light"), {workbench::Theme::Dark, "dark"}}) {
        window().setTheme(theme);
        findAll("modA", 0, 8);
        settle();
        window().grab().save(QString(FERNWICK_BINARY_DIR "/references-%1.png").arg(name));
        rename("modA", 0, 8, [&, &name = name](auto& dialog) {
            enter(dialog, "Sum");
            settle();
            dialog.grab().save(QString(FERNWICK_BINARY_DIR "/rename-%1.png").arg(name));
        });
    }
}
