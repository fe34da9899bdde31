// Compile steps on the desktop run only in folders that the user trusts.
#include "tests/workbench/open_desktop.h"
#include <QMessageBox>
#include <QPushButton>
#include <filesystem>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class Steps : public test::OpenDesktop {
protected:
    Steps() {
        open(test::SampleProject("Demo")
                 .module("modA", "Sub Main()\r\nEnd Sub\r\n")
                 .startup("Sub Main")
                 .handheld("PalmOS-DragonBall"));
        set("touch before", &fernwick::clsQLProject::SetPreCompileSteps);
        set("touch after", &fernwick::clsQLProject::SetPostCompileSteps);
    }
    void set(const char* step, void (fernwick::clsQLProject::*store)(const fernwick::Array<std::string>&)) {
        fernwick::Array<std::string> list;
        list.ReDim(1, 1);
        list[1] = step;
        (*bench->addIn().projects.GetQLProject(project()).*store)(list);
    }
    /// Compiles, gives this answer to the question about trust, and returns that question.
    std::vector<std::string> compile(const char* trust) {
        std::vector<std::string> asked;
        answer(
            [&](QMessageBox& box) {
                const auto text = box.text().toStdString();
                const bool isTrust = text.find("Trust this folder") != text.npos;
                if (isTrust) {
                    asked.push_back(text);
                    EXPECT_EQ(box.defaultButton()->text(), "&No");
                    EXPECT_EQ(box.textFormat(), Qt::PlainText);
                }
                for (const QString words : {isTrust ? trust : "OK", "No"})
                    for (auto* button : box.buttons())
                        if (button->text().remove('&') == words) return button->click();
            },
            [](QDialog& form) { test::click(form, "btnYes"); });
        menuItem("&Fernwick", "Compile and &Validate")->trigger();
        settle();
        answer([](QMessageBox&) {});
        return asked;
    }
    bool ran(const char* name) { return std::filesystem::exists(folder / name); }
};

} // namespace

TEST_F(Steps, AreNotRunWithoutConsent) {
    EXPECT_THAT(compile("No"),
                testing::Contains(HasSubstr("The project in " + folder.path() +
                                            " runs these command lines "
                                            "before or after a compile:\n\ntouch before\ntouch after\n\n")));
    EXPECT_FALSE(ran("before"));
    EXPECT_FALSE(ran("after"));
}

TEST_F(Steps, AreRunInATrustedFolderWithoutAnotherQuestion) {
    EXPECT_EQ(compile("Yes").size(), 1u);
    EXPECT_TRUE(ran("before"));
    EXPECT_TRUE(ran("after"));
    std::filesystem::remove(folder / "before");
    EXPECT_THAT(compile("No"), IsEmpty());
    EXPECT_TRUE(ran("before"));
}
