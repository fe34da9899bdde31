#include "Apps/workbench/window/page_window.h"
#include "Apps/workbench/window/boxes.h"
#include <QBoxLayout>
#include <QDialog>
#include <QFileInfo>
#include <QLabel>
#include <QTextBrowser>
#include <QUrl>

namespace workbench {

namespace {

constexpr auto kShownHere = "No web browser was found, so the page is shown here.";
constexpr auto kCannotBeShown = "No installed program can show this document:\n\n%1";
constexpr int kWidth = 720, kHeight = 560;

bool isPage(const QString& document) {
    const QFileInfo file(document);
    return file.isFile() && QStringList{"html", "htm"}.contains(file.suffix(), Qt::CaseInsensitive);
}

void showPage(const QString& path, QWidget* window) {
    auto* const shown = new QDialog(window, Qt::Window);
    auto* const page = new QTextBrowser;
    auto* const why = new QLabel(kShownHere);
    auto* const rows = new QVBoxLayout(shown);
    rows->addWidget(why);
    rows->addWidget(page);
    page->setAccessibleName("Page");
    page->setOpenExternalLinks(false);
    page->setSource(QUrl::fromLocalFile(path));
    shown->setObjectName("pageWindow");
    shown->setAttribute(Qt::WA_DeleteOnClose);
    const auto title = page->documentTitle();
    shown->setWindowTitle(title.isEmpty() ? QFileInfo(path).completeBaseName() : title);
    shown->resize(kWidth, kHeight);
    shown->show();
}

} // namespace

void showWithoutBrowser(const QString& document, QWidget* window) {
    if (isPage(document)) return showPage(document, window);
    showInformation(QString(kCannotBeShown).arg(document), window);
}

} // namespace workbench
