#include "tests/workbench_x11/clipboard_owner.h"
#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QMimeData>
#include <cstdio>

namespace test {

int ownClipboard(int& argc, char** argv) {
    QApplication app(argc, argv);
    auto* const data = new QMimeData;
    data->setText(kOwnedText);
    data->setHtml(kOwnedHtml);
    QImage picture(kOwnedSize, kOwnedSize, QImage::Format_RGB32);
    picture.fill(QColor(kOwnedColour));
    data->setImageData(picture);
    QApplication::clipboard()->setMimeData(data);
    if (!QApplication::clipboard()->ownsClipboard()) return 1;
    std::puts("ready");
    std::fflush(stdout);
    return QApplication::exec();
}

} // namespace test
