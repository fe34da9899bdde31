// The clipboard's contents survive the add-in's start, which uses the clipboard for the faces of its buttons.
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
    /// Reads the clipboard as a third program does.
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

TEST_F(SharedClipboard, KeepsAllFormatsAfterTheStart) {
    expectAllOfIt();
    connect();
    expectAllOfIt();
}

TEST_F(SharedClipboard, StaysWithItsOwner) {
    connect();
    owner.kill();
    owner.waitForFinished();
    EXPECT_EQ(pasted("UTF8_STRING").toStdString(), "");
}

/// Ten seconds would be a hang; Qt itself waits five for an owner.
TEST_F(SharedClipboard, AHangingOwnerNeitherBlocksTheStartNorLosesItsContents) {
    ASSERT_GT(owner.processId(), 0);
    ::kill(pid_t(owner.processId()), SIGSTOP);
    connect();
    ::kill(pid_t(owner.processId()), SIGCONT);
    expectAllOfIt();
}
