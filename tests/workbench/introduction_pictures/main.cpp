// Draws the pictures of the introduction. Usage: introduction_pictures FOLDER
#include "Apps/workbench/base/application_name.h"
#include "Apps/workbench/base/theme.h"
#include "tests/workbench/introduction_pictures/pictures.h"
#include "tests/workbench/introduction_pictures/stage.h"
#include "tests/workbench/own_home.h"
#include <QApplication>
#include <cstdio>

namespace {

constexpr int kJpegQuality = 75;

bool save(const QImage& picture, const QString& folder, const char* name) {
    const bool isSaved = !picture.isNull() && picture.save(folder + "/" + name, "jpg", kJpegQuality);
    std::fprintf(isSaved ? stdout : stderr, isSaved ? "%s\n" : "%s could not be saved\n", name);
    return isSaved;
}

bool draw(const QString& folder) {
    using namespace introduction;
    Stage stage;
    bool all = true;
    for (const auto& [name, picture] :
         {std::pair("welcome.jpg", welcome(stage)), std::pair("forms.jpg", forms(stage)),
          std::pair("tavlets.jpg", tavlets()), std::pair("menu.jpg", menu(stage)),
          std::pair("toolbars.jpg", toolbars(stage)), std::pair("startmenu.jpg", startMenu()),
          std::pair("template.jpg", projectTemplate()), std::pair("website.jpg", website()),
          std::pair("finished.jpg", finished(stage))})
        all = save(picture, folder, name) && all;
    return all;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) return std::fprintf(stderr, "usage: introduction_pictures FOLDER\n"), 2;
    const test::OwnHome home;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", "2");
    qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
    QApplication app(argc, argv);
    workbench::nameApplication("introduction-pictures");
    workbench::apply(workbench::Theme::Light);
    return draw(argv[1]) ? 0 : 1;
}
