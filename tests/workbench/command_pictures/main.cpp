// Draws the pictures of menu items, buttons and messages. Usage: command_pictures FOLDER
#include "Apps/workbench/base/drawn_icons.h"
#include "Apps/workbench/base/pictures.h"
#include "Apps/workbench/base/theme.h"
#include "tests/workbench/command_pictures/drawings.h"
#include <QApplication>
#include <QPainter>
#include <cstdio>
#include <string>

namespace {

constexpr int kSize = 16, kDotsPerMeter = 2835;

bool save(const CommandDrawing& drawing, const QString& folder) {
    QImage picture(kSize, kSize, QImage::Format_RGB32);
    picture.fill(workbench::kPictureGround);
    picture.setDotsPerMeterX(kDotsPerMeter);
    picture.setDotsPerMeterY(kDotsPerMeter);
    QPainter painter(&picture);
    const auto strokes = std::string(drawing.subject) + " " + std::string(drawing.badge);
    workbench::iconOfStrokes(strokes).paint(&painter, picture.rect());
    painter.end();
    const bool isSaved = picture.save(QString("%1/%2.bmp").arg(folder).arg(drawing.number), "BMP");
    if (!isSaved) std::fprintf(stderr, "%d.bmp could not be saved\n", drawing.number);
    return isSaved;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) return std::fprintf(stderr, "usage: command_pictures FOLDER\n"), 2;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    workbench::apply(workbench::Theme::Light); // the colours that the desktop replaces in the dark theme
    bool all = true;
    for (const auto& drawing : kCommandDrawings) all = save(drawing, argv[1]) && all;
    return all ? 0 : 1;
}
