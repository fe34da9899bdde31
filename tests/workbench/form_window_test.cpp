#include "Add-in/core/connect/Modules.h"
#include "Apps/workbench/bridge/form_window.h"
#include "Apps/workbench/bridge/list_binding.h"
#include "Apps/workbench/bridge/moving_picture.h"
#include "Apps/workbench/bridge/qt_user.h"
#include "tests/support/fake_targets.h"
#include "tests/workbench/desktop_user.h"
#include "tests/workbench/desktop_world.h"
#include "tests/workbench/window_words.h"
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <filesystem>
#include <gmock/gmock.h>
#include <set>

using namespace fernwick;
using workbench::FormWindow;

namespace {

class Forms : public test::DesktopWorld {
protected:
    /// All forms of the add-in that have a window.
    std::vector<Form*> all() {
        return {&modules.about,
                &modules.saveFiles,
                &modules.saveWarning,
                &modules.compileWarning,
                &modules.compile,
                &modules.validate,
                &modules.sendToDevice,
                &modules.sendRuntime,
                &modules.chooseTarget,
                &modules.gettingStarted,
                &modules.projectManager,
                &modules.converter,
                &modules.converterWarning,
                &modules.settingsDialog};
    }
    Modules modules{platform};
};

/// The classes that the add-in's headers derive from a form.
std::set<std::string> formsOfTheSource() {
    std::set<std::string> names;
    const QRegularExpression form(R"(class (frm\w+)[^{;]*: public (Form|PipeForm)\b)");
    for (const auto& entry : std::filesystem::recursive_directory_iterator(FERNWICK_SOURCE_DIR "/Add-in")) {
        if (entry.path().extension() != ".h") continue;
        QFile header(QString::fromStdString(entry.path()));
        EXPECT_TRUE(header.open(QIODevice::ReadOnly));
        for (auto found = form.globalMatch(QString(header.readAll())); found.hasNext();)
            names.insert(found.next().captured(1).toStdString());
    }
    return names;
}

} // namespace

TEST_F(Forms, EachFormOfTheAddInIsTested) {
    std::set<std::string> here{"frmProjectRemoval"}; // never shown
    for (const auto* form : all()) here.insert(form->typeName());
    EXPECT_EQ(here, formsOfTheSource());
}

/// A dialog that blocks the window could otherwise be out of sight.
TEST_F(Forms, AskForNeitherMinimizeNorMaximizeButtons) {
    for (auto* form : all()) {
        const auto flags = FormWindow(*form, nullptr).windowFlags();
        EXPECT_EQ(flags & Qt::WindowType_Mask, Qt::Dialog) << form->typeName();
        EXPECT_FALSE(flags & (Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint)) << form->typeName();
    }
}

TEST_F(Forms, EachControlHasASuitableWidget) {
    for (auto* form : all()) EXPECT_NO_THROW(FormWindow(*form, nullptr)) << form->typeName();
}

TEST_F(Forms, EachWidgetHasAControl) {
    for (auto* form : all()) {
        FormWindow window(*form, nullptr);
        for (const auto* widget :
             window.findChild<QWidget*>("window")->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
            EXPECT_NO_THROW(form->control(widget->objectName().toStdString())) << form->typeName();
    }
}

/// The words as designed, and what happens to a form whose close box or Escape key is pressed.
TEST_F(Forms, HaveTheirWords) {
    for (auto* form : all()) {
        const FormWindow window(*form, nullptr);
        auto words = test::WindowWords(window).text();
        for (const auto* const control : form->Controls())
            if (const auto* const button = dynamic_cast<const CommandButton*>(control); button && button->Cancel)
                words += "Escape presses " + button->Name + "\n";
        words += form->ControlBox ? form->CloseBoxCancels ? "the close box does, too\n" : "" : "no close box\n";
        test::expectGolden(words, form->typeName());
    }
}

TEST_F(Forms, AFormWithoutAWindowIsAnError) {
    EXPECT_EQ(test::errorOf([&] { FormWindow(modules.removal, nullptr); }), 53);
}

TEST_F(Forms, AnUnsuitableWidgetIsRefused) {
    QLabel label;
    workbench::Binding binding{[](std::exception_ptr) {}};
    EXPECT_EQ(test::errorOf([&] { workbench::bind(modules.saveWarning.btnOK, label, binding); }), 13);
}

TEST_F(Forms, AQuestionIsAnsweredByItsButton) {
    test::whenShown([](QDialog& window) {
        EXPECT_EQ(window.windowTitle(), "Fernwick");
        EXPECT_EQ(window.findChild<QLabel*>("lblWarning")->text(), "Save?");
        EXPECT_TRUE(window.findChild<QPushButton*>("btnYes")->isDefault());
        window.findChild<QCheckBox*>("chkWarning")->click();
        test::click(window, "btnYes");
    });
    EXPECT_TRUE(modules.saveFiles.AskForProjectSave("Save?"));
    EXPECT_EQ(modules.saveFiles.chkWarning.Value(), 1);
    EXPECT_FALSE(modules.saveFiles.Visible());
}

TEST_F(Forms, EscapePressesTheCancelButton) {
    modules.compileWarning.Result = vbYes;
    test::whenShown([](QDialog& window) { QTest::keyClick(&window, Qt::Key_Escape); });
    modules.compileWarning.ShowModal();
    EXPECT_EQ(modules.compileWarning.Result, vbCancel);
}

TEST_F(Forms, ClosingTheWindowUnloadsTheForm) {
    test::whenShown([](QDialog& window) { window.close(); });
    modules.compileWarning.ShowModal();
    EXPECT_FALSE(modules.compileWarning.isLoaded());
}

TEST_F(Forms, TheCloseBoxMayAskAsTheCancelButtonDoes) {
    test::FakeTargets targets{classes};
    targets.known = {"Palm-1"};
    const auto answer = [](QMessageBox::StandardButton button) {
        test::whenShown<QMessageBox>([button](QMessageBox& box) { box.button(button)->click(); });
    };
    test::whenShown([answer](QDialog& window) {
        answer(QMessageBox::No);
        window.close();
        EXPECT_TRUE(window.isVisible());
        answer(QMessageBox::Yes);
        window.close();
    });
    modules.converter.ShowModal();
    EXPECT_FALSE(modules.converter.isLoaded());
}

namespace {

/// Hides itself and shows another form.
class OpeningForm final : public Form {
public:
    OpeningForm(Interaction& user, Form& other) : Form(user), other_(other) {}
    const char* typeName() const override { return "frmSaveWarning"; }
    Label lblWarning{this, "lblWarning"};
    CommandButton btnOK{this, "btnOK", "OK", &OpeningForm::open};
    CheckBox chkWarning{this, "chkWarning"};

private:
    void open() {
        Hide();
        other_.ShowModal();
    }
    Form& other_;
};

} // namespace

TEST_F(Forms, AFormThatShowsAnotherOneIsHiddenAtOnce) {
    OpeningForm form{user, modules.compileWarning};
    bool wasHidden = false;
    test::whenShown([&](QDialog& window) {
        test::whenShown([&](QDialog& other) {
            wasHidden = !window.isVisible();
            other.close();
        });
        test::click(window, "btnOK");
    });
    form.ShowModal();
    EXPECT_TRUE(wasHidden);
    EXPECT_FALSE(form.Visible());
}

namespace {

class ChooserForm final : public Form {
public:
    using Form::Form;
    const char* typeName() const override { return "frmDesignTargetNormal"; }
    ListBox lstQuickDesignTargets{this, "lstQuickDesignTargets", &ChooserForm::chosen, &ChooserForm::doubleClicked};
    CommandButton btnOK{this, "btnOK", "OK", &ChooserForm::doubleClicked};
    CommandButton btnCancel{this, "btnCancel", "Cancel", &ChooserForm::doubleClicked};
    CommandButton btnAdvanced{this, "btnAdvanced", "&Advanced...", &ChooserForm::doubleClicked};
    PictureBox Picture1{this, "Picture1", "devices"};
    int clicks = 0;

private:
    void Form_Load() override {
        btnOK.Enabled(false);
        for (const char* row : {"first", "second"}) lstQuickDesignTargets.AddItem(row);
    }
    void chosen() {
        ++clicks;
        btnOK.Enabled(true);
    }
    void doubleClicked() { Unload(); }
};

} // namespace

TEST_F(Forms, ARowIsChosenAndDoubleClicked) {
    ChooserForm form{user};
    test::whenShown([&form](QDialog& window) {
        auto* list = window.findChild<QListWidget*>("lstQuickDesignTargets");
        EXPECT_FALSE(window.findChild<QPushButton*>("btnOK")->isEnabled());
        const auto second = list->visualItemRect(list->item(1)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, second);
        EXPECT_TRUE(window.findChild<QPushButton*>("btnOK")->isEnabled());
        EXPECT_EQ(form.lstQuickDesignTargets.ListIndex(), 1);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, second);
    });
    form.ShowModal();
    EXPECT_EQ(form.clicks, 1);
    EXPECT_FALSE(form.isLoaded());
}

TEST_F(Forms, RowsFollowTheModel) {
    ChooserForm form{user};
    test::whenShown([&form](QDialog& window) {
        auto& rows = form.lstQuickDesignTargets;
        auto* list = window.findChild<QListWidget*>("lstQuickDesignTargets");
        rows.ListIndex(1);
        EXPECT_EQ(list->currentRow(), 1);
        rows.RemoveItem(0);
        EXPECT_EQ(list->item(0)->text(), "second");
        EXPECT_EQ(list->currentRow(), 0);
        rows.AddItem("third");
        EXPECT_EQ(list->count(), 2);
        rows.Clear();
        EXPECT_EQ(list->count(), 0);
        test::click(window, "btnCancel");
    });
    form.ShowModal();
}

TEST(ComboBoxes, FollowTheModelAndTheUser) {
    ComboBox model{nullptr, "cboLevel"};
    model.AddItem("one");
    QComboBox widget;
    workbench::Binding binding{[](std::exception_ptr) {}};
    workbench::bindComboBox(model, widget, binding);
    const auto rows = [&] {
        QStringList all;
        for (int row = 0; row < widget.count(); ++row) all << widget.itemText(row);
        return all;
    };
    EXPECT_EQ(rows(), QStringList{"one"});
    EXPECT_EQ(widget.currentIndex(), -1);
    model.AddItem("two");
    EXPECT_EQ(rows(), (QStringList{"one", "two"}));
    model.ListIndex(1);
    EXPECT_EQ(widget.currentText(), "two");
    Q_EMIT widget.activated(0);
    EXPECT_EQ(model.ListIndex(), 0);
    EXPECT_EQ(widget.currentText(), "one");
    model.RemoveItem(0);
    EXPECT_EQ(rows(), QStringList{"two"});
    model.Clear();
    EXPECT_EQ(widget.count(), 0);
}

namespace {

/// A progress form that does its work in its first Activate.
class ProgressForm final : public Form {
public:
    explicit ProgressForm(Interaction& user) : Form(user) { ControlBox = false; }
    const char* typeName() const override { return "frmCompile"; }
    Animation aniCompile{this, "aniCompile"};
    StatusBar stsUpdate{this, "stsUpdate"};
    ProgressBar prgbarUpdate{this, "prgbarUpdate"};
    PictureBox finishedImg{this, "finishedImg", "finished", false};
    PictureBox failedImg{this, "failedImg", "failed", false};
    std::function<void()> work;
    int activations = 0;

private:
    void Form_Activate() override {
        if (++activations == 1) work();
    }
};

struct Paints : QObject {
    int count = 0;
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Paint;
        return false;
    }
};

class Progress : public test::DesktopWorld {
protected:
    QWidget& window() { return *QApplication::activeModalWidget(); }
    ProgressForm form{user};
};

} // namespace

TEST_F(Progress, IsPaintedWhileItsWorkRuns) {
    form.work = [&] {
        Paints ofStatus, ofBar;
        auto* status = window().findChild<QLabel*>("stsUpdate");
        auto* bar = window().findChild<QProgressBar*>("prgbarUpdate");
        status->installEventFilter(&ofStatus);
        bar->installEventFilter(&ofBar);
        form.stsUpdate.SimpleText("Reading frmHello");
        form.prgbarUpdate.Value(40);
        EXPECT_GE(ofStatus.count, 1);
        EXPECT_GE(ofBar.count, 1);
        EXPECT_EQ(status->text(), "Reading frmHello");
        EXPECT_EQ(bar->value() * 100 / bar->maximum(), 40);
        form.Unload();
    };
    form.ShowModal();
    EXPECT_EQ(form.activations, 1);
}

TEST_F(Progress, HasNoCloseBoxAndCannotBeClosed) {
    form.work = [&] {
        EXPECT_FALSE(window().windowFlags() & Qt::WindowCloseButtonHint);
        EXPECT_FALSE(window().close());
        QTest::keyClick(&window(), Qt::Key_Escape);
        EXPECT_TRUE(form.Visible());
        form.Unload();
    };
    form.ShowModal();
}

TEST_F(Progress, AnErrorEndsTheFormAndIsThrownByShowModal) {
    form.work = [] { throw basic::RuntimeError(51, "broken"); };
    EXPECT_EQ(test::errorOf([&] { form.ShowModal(); }), 51);
    EXPECT_FALSE(form.isLoaded());
}

TEST_F(Progress, ItsFormIsActivatedAgainAfterABox) {
    form.work = [&] {
        test::whenShown<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Ok)->click(); });
        user.MsgBox("done", vbOKOnly, "Fernwick");
        form.Unload();
    };
    form.ShowModal();
    EXPECT_EQ(form.activations, 2);
}

TEST_F(Progress, TheOutcomeIsShownAsAPicture) {
    form.work = [&] {
        auto* picture = window().findChild<QLabel*>("finishedImg");
        EXPECT_FALSE(picture->isVisible());
        form.finishedImg.Visible(true);
        EXPECT_TRUE(picture->isVisible());
        EXPECT_FALSE(picture->pixmap().isNull());
        form.Unload();
    };
    form.ShowModal();
}

TEST_F(Progress, ItsAnimationMovesWhileItsWorkRuns) {
    form.work = [&] {
        form.aniCompile.Visible(true);
        form.aniCompile.Open(FERNWICK_SOURCE_DIR "/installation/VB Toolkit/Bin/QLCOMPILE.AVI");
        form.aniCompile.Play(-1);
        auto* moving = window().findChild<QLabel*>("aniCompile");
        const auto first = moving->pixmap().toImage();
        QTest::qSleep(450);
        form.stsUpdate.SimpleText("working");
        EXPECT_NE(moving->pixmap().toImage(), first);
        form.Unload();
    };
    form.ShowModal();
}

TEST(MovingPicture, ReadsAnAnimationAndRefusesAnythingElse) {
    QFile film(FERNWICK_SOURCE_DIR "/installation/VB Toolkit/Bin/QLCOMPILE.AVI");
    ASSERT_TRUE(film.open(QIODevice::ReadOnly));
    const auto bytes = film.readAll();
    EXPECT_EQ(workbench::framesOf(bytes).size(), 12u);
    EXPECT_LT(workbench::framesOf(bytes.left(20000)).size(), 12u);
    for (const auto& other : {QByteArray(), QByteArray("RIFF"), QByteArray(40, 'x'), bytes.left(300)})
        EXPECT_TRUE(workbench::framesOf(other).empty());
}

TEST(MovingPicture, PlaysAsOftenAsItIsAskedTo) {
    QFile film(FERNWICK_SOURCE_DIR "/installation/VB Toolkit/Bin/QLCOMPILE.AVI");
    ASSERT_TRUE(film.open(QIODevice::ReadOnly));
    const test::TempFolder folder;
    const auto bytes = film.readAll().left(20000);
    folder.write("short.avi", bytes.toStdString());
    const auto frames = workbench::framesOf(bytes);
    ASSERT_GE(frames.size(), 2u);
    workbench::MovingPicture picture(nullptr);
    picture.open(QString::fromStdString(folder / "short.avi"));
    const auto changesFor = [&](int milliseconds) {
        const auto before = picture.pixmap().cacheKey();
        return QTest::qWaitFor([&] { return picture.pixmap().cacheKey() != before; }, milliseconds);
    };
    const int once = 100 * int(frames.size());
    EXPECT_FALSE(changesFor(250)); // not before it is played
    picture.play(1);
    EXPECT_TRUE(changesFor(once));
    QTest::qWait(once);
    EXPECT_FALSE(changesFor(250));
    picture.play(-1);
    QTest::qWait(once);
    EXPECT_TRUE(changesFor(1000));
    picture.play(0);
    EXPECT_FALSE(changesFor(250));
}
