// What another program has put on the clipboard survives the add-in's start, which needs the clipboard for its faces.
#include "tests/workbench_x11/clipboard_owner.h"
#include "tests/workbench_x11/x_desktop.h"
#include <QCoreApplication>
#include <QImage>
#include <QProcess>
#include <csignal>

using namespace test;

namespace {

struct SharedClipboard : XDesktop {
    SharedClipboard() {
        owner.start(QCoreApplication::applicationFilePath(), {kOwnClipboard});
        owner.waitForReadyRead();
        EXPECT_EQ(owner.readAllStandardOutput().toStdString(), "ready\n");
    }
    ~SharedClipboard() override {
        owner.kill();
        owner.waitForFinished();
    }
    /// As a third program gets it.
    static QByteArray pasted(const QString& format) {
        QProcess reader;
        reader.start("xclip", {"-selection", "clipboard", "-o", "-t", format});
        reader.waitForFinished();
        return reader.readAllStandardOutput();
    }
    void expectAllOfIt() {
        EXPECT_EQ(pasted("UTF8_STRING").toStdString(), kOwnedText);
        EXPECT_EQ(pasted("text/html").toStdString(), kOwnedHtml);
        const auto picture = QImage::fromData(pasted("image/png"));
        ASSERT_EQ(picture.size(), QSize(kOwnedSize, kOwnedSize));
        EXPECT_EQ(picture.pixel(1, 1), kOwnedColour);
    }

    QProcess owner;
};

} // namespace

TEST_F(SharedClipboard, AllItsFormatsAreThereAfterTheStart) {
    expectAllOfIt();
    connect();
    expectAllOfIt();
}

TEST_F(SharedClipboard, ItStaysWithItsOwner) {
    connect();
    owner.kill();
    owner.waitForFinished();
    EXPECT_EQ(pasted("UTF8_STRING").toStdString(), "");
}

/// Ten seconds would be a hang; Qt itself asks an owner for five.
TEST_F(SharedClipboard, AnOwnerThatHangsNeitherHangsTheStartNorLosesItsContents) {
    ::kill(pid_t(owner.processId()), SIGSTOP);
    connect();
    ::kill(pid_t(owner.processId()), SIGCONT);
    expectAllOfIt();
}
