// Unsaved changes survive the program.
#include "Apps/workbench/base/message_box.h"
#include "Apps/workbench/base/state_folder.h"
#include "Apps/workbench/unsaved/discarded_changes.h"
#include "Apps/workbench/unsaved/journal_folder.h"
#include "Host/files/journal_file.h"
#include "Host/files/resource_file.h"
#include "Host/model/component.h"
#include "Host/model/forms/property_source.h"
#include "tests/workbench/open_desktop.h"
#include "tests/workbench/window_words.h"
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QListWidget>
#include <QLocale>
#include <QProcess>
#include <filesystem>

using test::kLongestWait;
using test::moduleText;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

class Journals : public test::OpenDesktop {
protected:
    static test::SampleProject twoModules() {
        return test::SampleProject().module("modA", "' a\r\n").module("modB", "' b\r\n");
    }
    static QStringList journals() {
        QStringList paths;
        QDirIterator all(workbench::journalBase(), {"*.journal"}, QDir::Files, QDirIterator::Subdirectories);
        while (all.hasNext()) paths << all.next();
        return paths;
    }
    static host::JournalEntry read(const QString& path) {
        return host::decodeJournal(host::readFile(path.toStdString()).bytes);
    }
    /// Runs another program of the same user that types into the project or sets a value of it, and kills it.
    void crash(const std::string& project, const std::string& typed, const std::string& value = {}) {
        QProcess other;
        auto environment = QProcessEnvironment::systemEnvironment();
        for (const auto* name : {"GTEST_TOTAL_SHARDS", "GTEST_SHARD_INDEX"}) environment.remove(name);
        environment.insert("FERNWICK_TEST_PROJECT", QString::fromStdString(project));
        environment.insert("FERNWICK_TEST_TYPED", QString::fromStdString(typed));
        environment.insert("FERNWICK_TEST_VALUE", QString::fromStdString(value));
        environment.insert("FERNWICK_TEST_STATE", QString::fromStdString(folder / "state"));
        environment.insert("TMPDIR", QString::fromStdString(folder.path()));
        other.setProcessEnvironment(environment);
        const auto expected = journals().size() + !typed.empty() + !value.empty();
        other.start(QCoreApplication::applicationFilePath(),
                    {"--gtest_also_run_disabled_tests", "--gtest_filter=Killed.DISABLED_TypesUntilItIsKilled"});
        EXPECT_TRUE(QTest::qWaitFor([&] { return journals().size() == expected; }, kLongestWait))
            << other.readAllStandardOutput().toStdString();
        other.kill();
        EXPECT_TRUE(other.waitForFinished());
    }
    /// Writes a journal as left by a dead program. Returns its path.
    QString leave(const host::JournalEntry& entry) {
        const auto path = QDir(workbench::journalBase() + "/gone").filePath(QString("%1.journal").arg(++left_, 4));
        folder.write(QDir(QString::fromStdString(folder.path())).relativeFilePath(path).toStdString(),
                     host::encodeJournal(entry));
        return path;
    }
    /// The unsaved text of the project's own file.
    host::JournalEntry ownEntry(const std::string& text) {
        host::JournalEntry entry;
        entry.project = entry.file = folder / "Hello.vbp";
        entry.base = host::readFile(entry.file).stamp;
        entry.written = 1700000000;
        entry.bytes = text;
        return entry;
    }
    host::JournalEntry entryOf(const std::string& code) {
        host::JournalEntry entry;
        entry.project = folder / "Hello.vbp";
        entry.component = "modA";
        entry.type = vbide::vbext_ct_StdModule;
        entry.file = folder / "modA.bas";
        entry.base = host::readFile(entry.file).stamp;
        entry.written = 1700000000;
        entry.bytes = moduleText("modA", code);
        return entry;
    }
    void waitForBox() {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !boxes.empty(); }, kLongestWait));
        settle();
    }

private:
    int left_ = 0;
};

/// The program that is killed; started by other tests.
class Killed : public test::OpenDesktop {
protected:
    Killed() : OpenDesktop(qgetenv("FERNWICK_TEST_STATE")) {}
};

} // namespace

TEST_F(Killed, DISABLED_TypesUntilItIsKilled) {
    if (!qEnvironmentVariableIsSet("FERNWICK_TEST_PROJECT")) GTEST_SKIP();
    openFile(qgetenv("FERNWICK_TEST_PROJECT").toStdString());
    if (const auto value = qgetenv("FERNWICK_TEST_VALUE"); !value.isEmpty())
        project()->WriteProperty("Quinloft Global", "TargetDevice", value.toStdString());
    if (const auto typed = qEnvironmentVariable("FERNWICK_TEST_TYPED"); !typed.isEmpty())
        QTest::keyClicks(&code("modA"), typed);
    QTest::qWait(kLongestWait * 2);
}

TEST_F(Journals, TypedTextSurvivesAKilledProgram) {
    const auto project = twoModules().writeTo(folder);
    crash(project, "' typed ");
    answerWith("Restore");
    openFile(project);
    waitForBox();
    EXPECT_THAT(boxes, ElementsAre(HasSubstr("Unsaved changes to one file of Hello.vbp were recovered (from")));
    EXPECT_EQ(held("modA"), "' typed ' a");
    EXPECT_EQ(window().code().current()->scintilla().text().toStdString(), "' typed ' a");
    EXPECT_TRUE(component("modA")->IsDirty());
    EXPECT_FALSE(component("modB")->IsDirty());
    EXPECT_EQ(folder.read("modA.bas"), moduleText("modA", "' a\r\n"));
    component("modA")->SaveAs(folder / "modA.bas");
    EXPECT_EQ(folder.read("modA.bas"), moduleText("modA", "' typed ' a\r\n"));
    settle();
    EXPECT_TRUE(journals().isEmpty());
}

TEST_F(Journals, ValuesOfASavedProjectSurviveAKilledProgram) {
    const auto path = twoModules().writeTo(folder);
    const auto saved = folder.read("Hello.vbp");
    crash(path, "' typed ", "PocketPC-SH3");
    answerWith("Restore");
    openFile(path);
    waitForBox();
    QTest::qWait(100); // opening it again asks nothing
    EXPECT_THAT(boxes, ElementsAre(AllOf(HasSubstr("Unsaved changes to 2 files of Hello.vbp"),
                                         HasSubstr("The project's own settings"))));
    EXPECT_EQ(project()->FileName(), path);
    EXPECT_EQ(project()->ReadProperty("Quinloft Global", "TargetDevice"), "PocketPC-SH3");
    EXPECT_TRUE(project()->IsDirty());
    EXPECT_EQ(held("modA"), "' typed ' a");
    EXPECT_FALSE(component("modB")->IsDirty());
    EXPECT_EQ(folder.read("Hello.vbp"), saved);
    menuItem("&File", "Sa&ve Project")->trigger();
    EXPECT_THAT(folder.read("Hello.vbp"), HasSubstr("TargetDevice=PocketPC-SH3"));
    EXPECT_FALSE(project()->IsDirty());
    settle();
    EXPECT_TRUE(journals().isEmpty());
}

TEST_F(Journals, ARestoredProjectHasItsUnsavedListOfFiles) {
    const auto path = twoModules().writeTo(folder);
    leave(ownEntry(test::SampleProject().module("modB").module("modC").text()));
    leave(entryOf("' not in the project any more\r\n"));
    folder.write("modC.bas", moduleText("modC", "' c\r\n"));
    answerWith("Restore");
    openFile(path);
    waitForBox();
    EXPECT_EQ(project()->VBComponents()->Count(), 3); // its unsaved text is kept even so
    EXPECT_EQ(held("modC"), "' c");
    EXPECT_EQ(bench->host().VBProjects()->Count(), 1);
}

TEST_F(Journals, AProjectFileThatChangedOnDiskIsNotOverwrittenWithoutAQuestion) {
    const auto path = twoModules().writeTo(folder);
    leave(ownEntry(twoModules().text() + "[Quinloft Global]\r\nDisplayName=Kept\r\n"));
    const auto newer = twoModules().text() + "[Quinloft Global]\r\nDisplayName=Newer\r\n";
    folder.write("Hello.vbp", newer);
    answerWith("Restore");
    openFile(path);
    waitForBox();
    EXPECT_THAT(boxes, ElementsAre(HasSubstr("The project's own settings - changed on disk since")));
    EXPECT_EQ(project()->ReadProperty("Quinloft Global", "DisplayName"), "Kept");
    answerWith("Don't Save");
    menuItem("&File", "Sa&ve Project")->trigger();
    EXPECT_THAT(boxes, ElementsAre(HasSubstr("was changed by another program")));
    EXPECT_EQ(folder.read("Hello.vbp"), newer);
}

TEST_F(Journals, OpeningAFernwickProjectWritesNone) {
    openFile(sample("AddressBook"));
    QTest::qWait(1200);
    EXPECT_TRUE(journals().isEmpty());
    EXPECT_FALSE(project()->IsDirty());
}

TEST_F(Journals, StoreChangesToAForm) {
    open(test::SampleProject().member("Form=frmA.frm", "frmA.frm", test::formText("frmA")));
    component("frmA")->Properties()->Item("Caption")->Value(std::string("Survives"));
    ASSERT_TRUE(QTest::qWaitFor([] { return !journals().isEmpty(); }, kLongestWait));
    EXPECT_THAT(read(journals().front()).bytes, HasSubstr("Survives"));
}

TEST_F(Journals, NewPicturesOfAFormSurviveAndAreSaved) {
    const auto project =
        test::SampleProject().member("Form=frmA.frm", "frmA.frm", test::formText("frmA")).writeTo(folder);
    folder.write("frmA.frx", "old records");
    openFile(project);
    component("frmA")->Properties()->Item("Caption")->Value(std::string("Survives"));
    host::setImage(component("frmA")->Properties()->Item("Icon"), "GIF89a");
    ASSERT_TRUE(QTest::qWaitFor([] { return !journals().isEmpty(); }, kLongestWait));
    auto entry = read(journals().front());
    EXPECT_EQ(entry.records.file, "frmA.frx");
    EXPECT_EQ(entry.records.from, 11u);
    end();
    start();
    leave(entry);
    answerWith("Restore");
    openFile(project);
    waitForBox();
    EXPECT_EQ(host::imageOf(component("frmA")->Properties()->Item("Icon")), "GIF89a");
    ASSERT_EQ(journals().size(), 1);
    EXPECT_EQ(read(journals().front()).records.bytes, entry.records.bytes) << "it survives a second crash";
    component("frmA")->SaveAs(component("frmA")->FileNames(1));
    EXPECT_EQ(folder.read("frmA.frx"), "old records" + host::pictureRecord("GIF89a", false));
    EXPECT_THAT(folder.read("frmA.frm"), HasSubstr("Icon            =   \"frmA.frx\":000B"));
}

TEST_F(Journals, EachNewPictureIsWritten) {
    open(test::SampleProject().member("Form=frmA.frm", "frmA.frm", test::formText("frmA")));
    const auto icon = component("frmA")->Properties()->Item("Icon");
    const auto kept = [] { return journals().isEmpty() ? "" : read(journals().front()).records.bytes; };
    host::setImage(icon, "GIF89a");
    ASSERT_TRUE(QTest::qWaitFor([&] { return kept() == host::pictureRecord("GIF89a", false); }, kLongestWait));
    const auto both = host::pictureRecord("GIF89a", false) + host::pictureRecord("GIF89b", false);
    host::setImage(icon, "GIF89b");
    EXPECT_TRUE(QTest::qWaitFor([&] { return kept() == both; }, kLongestWait));
}

TEST_F(Journals, AFormThatWasNeverSavedKeepsItsPicture) {
    open(twoModules());
    const auto added = project()->VBComponents()->Add(vbide::vbext_ct_VBForm);
    const auto name = added->Name();
    host::setImage(added->Properties()->Item("Icon"), "GIF89a");
    const auto journal = [&] {
        for (const auto& path : journals())
            if (read(path).component == name) return path;
        return QString();
    };
    ASSERT_TRUE(QTest::qWaitFor([&] { return !journal().isEmpty(); }, kLongestWait));
    const auto entry = read(journal());
    end();
    start();
    leave(entry);
    answerWith("Restore");
    openFile(folder / "Hello.vbp");
    waitForBox();
    EXPECT_EQ(host::imageOf(component(name)->Properties()->Item("Icon")), "GIF89a");
    component(name)->SaveAs(folder / "frmNew.frm");
    EXPECT_EQ(folder.read("frmNew.frx"), host::pictureRecord("GIF89a", false));
}

TEST_F(Journals, ASecondCrashRightAfterRestoringLosesNothing) {
    open(twoModules());
    end();
    start();
    leave(entryOf("' kept\r\n"));
    answerWith("Restore");
    openFile(folder / "Hello.vbp");
    waitForBox();
    ASSERT_EQ(journals().size(), 1);
    EXPECT_EQ(read(journals().front()).bytes, moduleText("modA", "' kept\r\n"));
}

TEST_F(Journals, TypingIsWrittenAboutASecondLaterAndNotAtEachKey) {
    open(twoModules());
    QTest::keyClicks(&code("modA"), "abc");
    EXPECT_TRUE(journals().isEmpty());
    ASSERT_TRUE(QTest::qWaitFor([] { return journals().size() == 1; }));
    const auto entry = read(journals().front());
    EXPECT_EQ(entry.bytes, moduleText("modA", "abc' a\r\n"));
    EXPECT_EQ(entry.project, folder / "Hello.vbp");
    EXPECT_EQ(entry.file, folder / "modA.bas");
    EXPECT_EQ(entry.base->digest, host::digestOf(folder.read("modA.bas")));
    QTest::keyClicks(&code("modB"), "d");
    EXPECT_TRUE(QTest::qWaitFor([] { return journals().size() == 2; }));
}

TEST_F(Journals, AreWrittenBeforeAWindowBlocksThisOne) {
    open(twoModules());
    QTest::keyClicks(&code("modA"), "abc");
    qsizetype there = -1;
    answer([&there](QMessageBox& box) {
        there = journals().size();
        press(box, "OK");
    });
    workbench::showBox(&window(), QMessageBox::Information, "a build, say");
    EXPECT_EQ(there, 1);
}

TEST_F(Journals, SavingRemovesThem) {
    open(twoModules());
    QTest::keyClicks(&code("modA"), "a");
    QTest::keyClicks(&code("modB"), "b");
    ASSERT_TRUE(QTest::qWaitFor([] { return journals().size() == 2; }));
    component("modB")->SaveAs(folder / "modB.bas");
    EXPECT_TRUE(QTest::qWaitFor([] { return journals().size() == 1; }));
    menuItem("&File", "Sa&ve Project")->trigger();
    EXPECT_TRUE(QTest::qWaitFor([] { return journals().isEmpty(); }));
}

TEST_F(Journals, DiscardingTheChangesRemovesThem) {
    open(twoModules());
    QTest::keyClicks(&code("modA"), "a");
    ASSERT_TRUE(QTest::qWaitFor([] { return !journals().isEmpty(); }));
    answer([](QMessageBox& box) { box.button(QMessageBox::Discard)->click(); });
    menuItem("&File", "&Remove Project")->trigger();
    EXPECT_TRUE(QTest::qWaitFor([] { return journals().isEmpty(); }));
}

TEST_F(Journals, AProgramThatEndsLeavesNoFolderBehind) {
    open(twoModules());
    QTest::keyClicks(&code("modA"), "a");
    ASSERT_TRUE(QTest::qWaitFor([] { return !journals().isEmpty(); }));
    end();
    EXPECT_TRUE(QDir(workbench::journalBase()).isEmpty());
}

TEST_F(Journals, AProjectWithoutJournalsAsksNothing) {
    open(twoModules());
    end();
    start();
    answerWith("Restore");
    leave([this] {
        auto other = entryOf("' kept\r\n");
        other.bytes = folder.read("modA.bas"); // saved by then
        return other;
    }());
    openFile(folder / "Hello.vbp");
    QTest::qWait(100);
    EXPECT_TRUE(boxes.empty());
    EXPECT_TRUE(journals().isEmpty());
    EXPECT_FALSE(component("modA")->IsDirty());
}

TEST_F(Journals, DiscardMovesItToAFolderThatTheBoxNames) {
    const auto project = twoModules().writeTo(folder);
    leave(entryOf("' kept\r\n"));
    answerWith("Discard");
    openFile(project);
    waitForBox();
    EXPECT_EQ(held("modA"), "' a");
    EXPECT_TRUE(journals().isEmpty());
    const auto discarded = QFileInfo(workbench::journalBase()).path() + "/discarded";
    EXPECT_THAT(boxes, ElementsAre(HasSubstr(discarded.toStdString())));
    QDirIterator kept(discarded, {"modA.bas"}, QDir::Files, QDirIterator::Subdirectories);
    ASSERT_TRUE(kept.hasNext());
    EXPECT_EQ(host::readFile(kept.next().toStdString()).bytes, moduleText("modA", "' kept\r\n"));
}

TEST_F(Journals, TheQuestionNamesTheFilesAndWhatHappensToThem) {
    twoModules().writeTo(folder);
    auto own = ownEntry("");
    own.written -= 60;
    leave(own);
    leave(entryOf("' kept\r\n"));
    auto gone = entryOf("' gone\r\n");
    gone.file = folder / "gone.bas";
    gone.base.reset();
    gone.written += 60;
    leave(gone);
    folder.write("Hello.vbp", twoModules().text() + "[Quinloft Global]\r\n");
    const auto written = QDateTime::fromSecsSinceEpoch(gone.written);
    answer([&](QMessageBox& box) {
        EXPECT_EQ(box.escapeButton()->text(), "&Keep for Later");
        test::expectWords(
            box, "recovered",
            {{QLocale().toString(written, QLocale::ShortFormat).toStdString(), "DATE"}, {folder.path(), "..."}});
        press(box, "Keep for Later");
    });
    bench->connect();
    waitForBox();
}

TEST(DiscardedChanges, AreFilesNamedLikeTheirComponents) {
    const test::TempFolder folder;
    const workbench::DiscardedChanges discarded(QString::fromStdString(folder / "journals"));
    EXPECT_EQ(discarded.folder().toStdString(), folder / "discarded");
    const auto day = QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7));
    const auto keep = [&](const std::string& component, int type, const std::string& file) {
        workbench::Survivor survivor;
        survivor.entry.project = "/folder/Demo.vbp";
        survivor.entry.component = component;
        survivor.entry.type = type;
        survivor.entry.file = file;
        survivor.entry.bytes = component;
        survivor.entry.written = day.toSecsSinceEpoch();
        survivor.path = QString::fromStdString(folder.write("journal", ""));
        discarded.keep(survivor);
        EXPECT_FALSE(QFile::exists(survivor.path));
    };
    keep("", 0, "");
    keep("A", vbide::vbext_ct_StdModule, "");
    keep("B", vbide::vbext_ct_ClassModule, "");
    keep("C", vbide::vbext_ct_VBForm, "");
    for (int i = 0; i < 3; ++i) keep("D", vbide::vbext_ct_VBForm, "/folder/other.frm");
    QStringList names = QDir(discarded.folder() + "/2026-03-04 050607").entryList(QDir::Files, QDir::Name);
    EXPECT_EQ(names, QStringList({"2 other.frm", "3 other.frm", "A.bas", "B.cls", "C.frm", "Demo.vbp", "other.frm"}));
    EXPECT_EQ(folder.read("discarded/2026-03-04 050607/A.bas"), "A");
}

TEST(DiscardedChanges, HaveTheResourceFileBesideTheForm) {
    const test::TempFolder folder;
    folder.write("other.frx", "old and more");
    const workbench::DiscardedChanges discarded(QString::fromStdString(folder / "journals"));
    workbench::Survivor survivor;
    survivor.entry.component = "other";
    survivor.entry.type = vbide::vbext_ct_VBForm;
    survivor.entry.file = folder / "other.frm";
    survivor.entry.records = {"other.frx", 3, {}, " new"};
    survivor.entry.written = QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7)).toSecsSinceEpoch();
    survivor.path = QString::fromStdString(folder.write("journal", ""));
    discarded.keep(survivor);
    EXPECT_EQ(folder.read("discarded/2026-03-04 050607/other.frx"), "old new");
}

TEST_F(Journals, KeptJournalsAreOfferedWhenTheProjectOpensAgain) {
    const auto path = twoModules().writeTo(folder);
    leave(entryOf("' kept\r\n"));
    answerWith("Keep for Later");
    openFile(path);
    waitForBox();
    EXPECT_EQ(held("modA"), "' a");
    bench->connect(); // not again while it is open
    QTest::qWait(100);
    EXPECT_EQ(boxes.size(), 1u);
    bench->host().VBProjects()->Remove(project());
    answerWith("Restore");
    openFile(path);
    waitForBox();
    EXPECT_EQ(held("modA"), "' kept");
}

TEST_F(Journals, AtTheStartTheirProjectIsOpened) {
    twoModules().writeTo(folder);
    leave(entryOf("' kept\r\n"));
    answerWith("Restore");
    bench->connect();
    waitForBox();
    QTest::qWait(100);
    EXPECT_EQ(boxes.size(), 1u);
    EXPECT_EQ(held("modA"), "' kept");
}

TEST_F(Journals, AProjectThatCannotBeOpenedKeepsThem) {
    auto entry = [this] {
        twoModules().writeTo(folder);
        return entryOf("' kept\r\n");
    }();
    entry.project = folder / "gone.vbp";
    leave(entry);
    answer([](QMessageBox& box) { press(box, box.buttons().size() > 1 ? "Restore" : "OK"); });
    bench->connect();
    waitForBox();
    EXPECT_THAT(boxes, ElementsAre(HasSubstr("gone.vbp"), HasSubstr("gone.vbp")));
    EXPECT_EQ(journals().size(), 1);
}

TEST_F(Journals, AChangedFileIsReportedAndNotOverwrittenWithoutAQuestion) {
    const auto project = twoModules().writeTo(folder);
    leave(entryOf("' kept\r\n"));
    folder.write("modA.bas", moduleText("modA", "' newer\r\n"));
    answerWith("Restore");
    openFile(project);
    waitForBox();
    EXPECT_THAT(boxes, ElementsAre(HasSubstr("modA (modA.bas) - changed on disk since")));
    EXPECT_EQ(held("modA"), "' kept");
    QTest::qWait(700);
    EXPECT_EQ(boxes.size(), 1u); // reported once
    answerWith("Don't Save");
    component("modA")->SaveAs(folder / "modA.bas");
    EXPECT_THAT(boxes, ElementsAre(HasSubstr("was changed by another program")));
    EXPECT_EQ(folder.read("modA.bas"), moduleText("modA", "' newer\r\n"));
}

TEST_F(Journals, DifferencesFromTheFileCanBeShown) {
    const auto project = twoModules().writeTo(folder);
    leave(entryOf("' kept\r\n"));
    QString details;
    answer([&details](QMessageBox& box) {
        details = box.detailedText();
        box.grab().save(FERNWICK_BINARY_DIR "/survivors.png");
        press(box, "Keep for Later");
    });
    openFile(project);
    waitForBox();
    EXPECT_THAT(details.toStdString(), HasSubstr("\nline 2:\n- ' a\n+ ' kept\n"));
}

TEST_F(Journals, TheNewestOfSeveralTextsIsRestoredAndTheOthersKept) {
    const auto project = twoModules().writeTo(folder);
    auto entry = entryOf("' first\r\n");
    const auto first = leave(entry);
    entry.written += 60;
    entry.bytes = moduleText("modA", "' second\r\n");
    leave(entry);
    answerWith("Restore");
    openFile(project);
    waitForBox();
    EXPECT_EQ(held("modA"), "' second");
    EXPECT_TRUE(QFile::exists(first));
}

TEST_F(Journals, AComponentThatWasNeverSavedIsRestored) {
    const auto project = twoModules().writeTo(folder);
    auto entry = entryOf("' kept\r\n");
    entry.component = "modNew";
    entry.file.clear();
    entry.base.reset();
    entry.bytes = moduleText("modNew", "' kept\r\n");
    leave(entry);
    answerWith("Restore");
    openFile(project);
    waitForBox();
    EXPECT_EQ(held("modNew"), "' kept");
    EXPECT_EQ(component("modNew")->FileNames(1), "");
}

TEST_F(Journals, AProjectThatWasNeverSavedIsRestoredAsANewOne) {
    twoModules().writeTo(folder);
    auto entry = entryOf("");
    entry.project = entry.file = "";
    entry.base.reset();
    entry.component = "Form1";
    entry.type = vbide::vbext_ct_VBForm;
    entry.bytes = test::formText("Form1", "' kept\r\n");
    leave(entry);
    answerWith("Restore");
    bench->connect();
    waitForBox();
    EXPECT_THAT(boxes, ElementsAre(HasSubstr("of a project that was never saved")));
    EXPECT_EQ(project()->FileName(), "");
    EXPECT_EQ(project()->VBComponents()->Count(), 1);
    EXPECT_EQ(held("Form1"), "' kept");
}

/// The device, the settings, and the designs of forms in which only code was typed.
TEST_F(Journals, AFernwickProjectThatWasNeverSavedKeepsItsValuesAndDesigns) {
    bench->connect();
    test::whenShown([](QDialog& window) {
        window.findChild<QListWidget*>("lstQuickDesignTargets")->setCurrentRow(1);
        window.findChild<QAbstractButton*>("btnOK")->click();
    });
    bench->open(FERNWICK_SOURCE_DIR "/installation/Template/Projects/Fernwick Project.vbp");
    ASSERT_TRUE(QTest::qWaitFor([this] { return project() && project()->VBComponents()->Count() == 1; }, kLongestWait));
    settle();
    component("Form1")->IsDirty(false);
    project()->WriteProperty("Quinloft Global", "DisplayName", "Not saved");
    component("Form1")->CodeModule()->InsertLines(1, "' typed");
    const auto design = basic::cast<host::Component>(component("Form1"))->source().bytes();
    ASSERT_TRUE(QTest::qWaitFor([] { return journals().size() == 2; }, kLongestWait));
    QStringList kept;
    for (const auto& journal : journals()) {
        kept << journal + ".kept";
        QFile::copy(journal, kept.back());
    }
    clean(project());
    bench->host().VBProjects()->Remove(project());
    settle();
    for (const auto& journal : kept) {
        auto entry = read(journal);
        leave(entry);
    }
    answerWith("Restore");
    bench->connect();
    waitForBox();
    EXPECT_THAT(boxes, ElementsAre(HasSubstr("The project's own settings")));
    QTest::qWait(200);
    EXPECT_EQ(project()->ReadProperty("Quinloft Global", "TargetDevice"), "PocketPC-SH3");
    EXPECT_EQ(project()->ReadProperty("Quinloft Global", "DisplayName"), "Not saved");
    ASSERT_EQ(project()->VBComponents()->Count(), 1);
    EXPECT_EQ(basic::cast<host::Component>(component("Form1"))->source().bytes(), design);
}

TEST_F(Journals, JournalsOfARunningProgramAreNotOffered) {
    open(twoModules());
    QTest::keyClicks(&code("modA"), "mine");
    ASSERT_TRUE(QTest::qWaitFor([] { return journals().size() == 1; }));
    answerWith("Restore");
    {
        workbench::Workbench other;
        other.open(folder / "Hello.vbp");
        other.connect();
        QTest::qWait(100);
        EXPECT_FALSE(other.host().ActiveVBProject()->VBComponents()->Item("modA")->IsDirty());
    }
    EXPECT_TRUE(boxes.empty());
    EXPECT_EQ(journals().size(), 1);
}

TEST_F(Journals, ADamagedJournalIsReportedOnceAndRenamed) {
    const auto project = twoModules().writeTo(folder);
    const auto whole = host::encodeJournal(entryOf("' kept\r\n"));
    const std::vector<std::pair<std::string, std::string>> kDamages{
        {"", "the file is not a journal of this version"},
        {std::string(1000, '\0'), "is not a journal of this version"},
        {whole.substr(0, 40), "lacks its line"},
        {whole.substr(0, whole.size() - 3), "ends after"},
        {whole + "more", "checksum does not match"},
    };
    for (const auto& [bytes, why] : kDamages) {
        folder.write("state/fernwick/journal/gone/0001.journal", bytes);
        answerWith("OK");
        bench->connect();
        waitForBox();
        EXPECT_THAT(boxes, ElementsAre(HasSubstr(why)));
        EXPECT_EQ(folder.read("state/fernwick/journal/gone/0001.journal.damaged"), bytes);
        std::filesystem::remove(folder / "state/fernwick/journal/gone/0001.journal.damaged");
    }
    EXPECT_TRUE(journals().isEmpty());
}

TEST_F(Journals, AFailureToWriteIsReportedOnce) {
    folder.write("state", "a file where a folder should be");
    open(twoModules());
    answerWith("OK");
    QTest::keyClicks(&code("modA"), "a");
    waitForBox();
    EXPECT_THAT(boxes, ElementsAre(HasSubstr("Crash recovery is not available")));
    QTest::keyClicks(&code("modA"), "b");
    QTest::qWait(1200);
    EXPECT_EQ(boxes.size(), 1u);
    EXPECT_EQ(held("modA"), "ab' a");
}

TEST(StateFolder, IsThatOfTheUser) {
    const auto usual = qgetenv("XDG_STATE_HOME");
    qputenv("XDG_STATE_HOME", "/of/the/user");
    EXPECT_EQ(workbench::stateFolder(), "/of/the/user/fernwick");
    for (const char* unusable : {"", "relative/folder"}) {
        qputenv("XDG_STATE_HOME", unusable);
        EXPECT_EQ(workbench::stateFolder(), QDir::homePath() + "/.local/state/fernwick") << unusable;
    }
    qputenv("XDG_STATE_HOME", usual);
}
