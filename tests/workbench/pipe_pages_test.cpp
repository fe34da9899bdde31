// The pages of the device pipes, drawn in a small form as the dialog of settings does.
#include "Add-in/platform/page_place.h"
#include "Apps/workbench/base/theme.h"
#include "Apps/workbench/bridge/page_binding.h"
#include "Components/DesignTargetAccess/design_target_mgr.h"
#include "Components/QLPipe/pipe_family.h"
#include "tests/support/test_host.h"
#include "tests/workbench/desktop_world.h"
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <gmock/gmock.h>

namespace {

/// In place of the dialog of settings.
class PageForm final : public fernwick::Form {
public:
    using Form::Form;
    const char* typeName() const override { return "PipePagesTest"; }
    fernwick::PagePlace pages{this, "pages"};
};

class PipePages : public test::DesktopWorld {
protected:
    PipePages() {
        keep = classes.RegisterClass("DesignTargetAccess.QLDesignTargetMgr", [] {
            return basic::make<designtargetaccess::DesignTargetMgr>(FERNWICK_SOURCE_DIR "/installation");
        });
        project->WriteProperty("Quinloft Linux Handheld", "Host", "elsewhere");
    }
    ~PipePages() override { close(); }
    void open(const std::string& family) {
        close();
        for (const auto& row : qlpipe::pipeFamilies())
            if (row.name == family) configuration = row.configure(services);
        page = configuration->CreatePage(project, 1075, 3150);
        widget = std::make_unique<QWidget>();
        binding = std::make_unique<workbench::Binding>([this](std::exception_ptr) { ++failures; });
        workbench::bindPagePlace(form.pages, *widget, *binding);
        form.pages.Add(page);
        configuration->ShowPage();
        widget->layout()->setSizeConstraint(QLayout::SetMinimumSize);
        widget->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(widget.get()));
    }
    void close() {
        if (!widget) return;
        form.pages.Clear();
        configuration->ClosePage();
        page = nullptr;
        binding.reset();
        widget.reset();
    }
    template <class W>
    W& child(const char* name) {
        return *widget->findChild<W*>(name);
    }
    /// The fields in the order of the Tab key.
    std::vector<std::string> tabOrder() {
        std::vector<std::string> names;
        auto* const first = widget.get();
        for (auto* at = first->nextInFocusChain(); at != first; at = at->nextInFocusChain())
            if ((at->focusPolicy() & Qt::TabFocus) && widget->isAncestorOf(at) && !at->objectName().startsWith("qt_"))
                names.push_back(at->objectName().toStdString());
        return names;
    }

    std::shared_ptr<void> keep;
    test::TestHost host;
    basic::Ref<vbide::VBProject> project = host.open(test::SampleProject{});
    qlpipe::PipeServices services{
        user, loop, files, classes, registry, environment, FERNWICK_SOURCE_DIR "/installation"};
    PageForm form{user};
    basic::Ref<qlpipe::IQLPipeConfiguration> configuration;
    basic::Ref<fernwick::Form> page;
    std::unique_ptr<workbench::Binding> binding;
    std::unique_ptr<QWidget> widget;
};

constexpr const char* kFamilies[] = {"PalmOS", "PocketPC", "LinuxHandheld"};

TEST_F(PipePages, HaveAWidgetForEachControlAndABuddyForEachField) {
    for (const auto* family : kFamilies) {
        open(family);
        for (const auto* control : page->Controls()) {
            const auto name = QString::fromStdString(control->Name);
            ASSERT_TRUE(widget->findChild<QWidget*>(name)) << control->Name;
            if (!name.startsWith("txt") && !name.startsWith("cbo")) continue;
            const auto* label = widget->findChild<QLabel*>("lbl" + name.mid(3));
            EXPECT_EQ(label->buddy(), widget->findChild<QWidget*>(name)) << control->Name;
            EXPECT_FALSE(label->toolTip().isEmpty());
        }
    }
}

TEST_F(PipePages, AreReadFromTopToBottomWithTheTabKey) {
    for (const auto* family : kFamilies) {
        open(family);
        int last = -1;
        for (const auto& name : tabOrder()) {
            const auto& field = child<QWidget>(name.c_str());
            const int y = field.mapTo(widget.get(), QPoint()).y();
            EXPECT_GT(y, last) << name;
            last = y;
        }
        EXPECT_GE(last, 0);
    }
}

TEST_F(PipePages, GiveAllFieldsTheWholeWidth) {
    for (const auto* family : {"PocketPC", "LinuxHandheld"}) {
        open(family);
        widget->resize(widget->width() + 100, widget->height());
        EXPECT_EQ(child<QComboBox>("cboOrientation").width(), child<QLineEdit>("txtVersion").width()) << family;
    }
}

TEST_F(PipePages, PassOnWhatTheUserTypes) {
    open("PocketPC");
    QTest::keyClicks(&child<QLineEdit>("txtVersion"), "2.0");
    QTest::keyClick(&child<QComboBox>("cboOrientation"), Qt::Key_Down);
    configuration->ApplyPage();
    EXPECT_EQ(project->ReadProperty("Quinloft PocketPC", "Version"), "2.0");
    EXPECT_EQ(project->ReadProperty("Quinloft PocketPC", "Orientation"), "Portrait");
}

TEST_F(PipePages, StayAliveDuringATestAndCancelIt) {
    open("LinuxHandheld");
    QTest::keyClicks(&child<QLineEdit>("txtHost"), "192.0.2.1"); // reserved for documents: nothing answers
    auto& button = child<QPushButton>("btnTest");
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(button.text(), "Cancel &Test");
    EXPECT_EQ(child<QLabel>("lblTest").text(), "Connecting to 192.0.2.1...");
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(button.text(), "&Test Connection");
}

/// A text that is wider than its label is cut.
void expectWholeTexts(const QWidget& widget) {
    for (const auto* label : widget.findChildren<QLabel*>()) {
        if (!label->isVisible() || label->text().isEmpty()) continue;
        const auto needed = label->minimumSizeHint();
        EXPECT_GE(label->height(), needed.height()) << label->objectName().toStdString();
        EXPECT_GE(label->width(), needed.width()) << label->objectName().toStdString();
    }
}

TEST_F(PipePages, CutNoTextInALargeFont) {
    const auto usual = QApplication::font();
    for (const double factor : {1.0, 2.0}) {
        auto font = usual;
        font.setPointSizeF(usual.pointSizeF() * factor);
        QApplication::setFont(font);
        for (const auto* family : kFamilies) {
            open(family);
            expectWholeTexts(*widget);
        }
    }
    close();
    QApplication::setFont(usual);
}

/// For looking at: FERNWICK_PAGES names the folder.
TEST_F(PipePages, AreDrawnInBothThemes) {
    const auto folder = qEnvironmentVariable("FERNWICK_PAGES");
    const auto before = workbench::currentTheme();
    for (const auto& [theme, name] : {std::pair(workbench::Theme::Light, "light"), {workbench::Theme::Dark, "dark"}})
        for (const auto* family : kFamilies) {
            workbench::apply(theme);
            open(family);
            const auto picture = widget->grab().toImage();
            EXPECT_EQ(picture.pixelColor(1, 1).lightness() < 128, theme == workbench::Theme::Dark);
            if (!folder.isEmpty()) picture.save(QDir(folder).filePath(QString("%1-%2.png").arg(family, name)));
        }
    workbench::apply(before);
}

} // namespace
