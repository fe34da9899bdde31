#include "Apps/workbench/properties/form_fonts.h"
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QStringList>
#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <utility>

namespace workbench {

namespace {

constexpr double kPixelsPerInch = 96, kPixelsPerInchOfPalms = 72, kPointsPerInch = 72;
constexpr double kUsualPoints = 8.25, kMostPoints = 500;
constexpr auto kUsualFamily = "MS Sans Serif", kPalmFamily = "QLPalm";
constexpr auto kLetters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr int kLetterCount = 52;

/// What families of the same metrics share.
struct FontMetrics {
    std::array<const char*, 4> families; ///< the best first
    double letterWidth; ///< the average of the letters, as a part of the font's pixel size; 0 if unknown
};
constexpr FontMetrics kArial{{"Arial", "Liberation Sans", "Nimbus Sans", "FreeSans"}, 0.583},
    kTahoma{{"Tahoma", "Wine Tahoma", "Liberation Sans", "Nimbus Sans"}, 0.549},
    kTimes{{"Times New Roman", "Liberation Serif", "Nimbus Roman", "FreeSerif"}, 0.545},
    kCourier{{"Courier New", "Liberation Mono", "Nimbus Mono PS", "FreeMono"}, 0.6},
    kPalm{{"DejaVu Sans Condensed", "Tahoma", "Liberation Sans Narrow", "Nimbus Sans Narrow"}, 0},
    kUnknown{kArial.families, 0};

struct FormFamily {
    const char* name;
    const FontMetrics& metrics;
};
constexpr FormFamily kFamilies[] = {
    {"MS Sans Serif", kArial},
    {"Microsoft Sans Serif", kArial},
    {"MS Shell Dlg", kArial},
    {"Arial", kArial},
    {"Helv", kArial},
    {"Helvetica", kArial},
    {"MS Shell Dlg 2", kTahoma},
    {"Tahoma", kTahoma},
    {"Times New Roman", kTimes},
    {"MS Serif", kTimes},
    {"Tms Rmn", kTimes},
    {"Courier New", kCourier},
    {"Courier", kCourier},
    {"Fixedsys", kCourier},
    {"Terminal", kCourier},
    {kPalmFamily, kPalm},
};

bool isPalm(const QString& family) { return family.compare(kPalmFamily, Qt::CaseInsensitive) == 0; }

bool isInstalled(const QString& family) { return QFontDatabase::hasFamily(family); }

const FontMetrics& metricsOf(const QString& name) {
    for (const auto& family : kFamilies)
        if (name.compare(QLatin1String(family.name), Qt::CaseInsensitive) == 0) return family.metrics;
    return kUnknown;
}

/// "" if none is installed, which leaves the choice to Qt.
QString installedOf(const FontMetrics& metrics) {
    for (const auto* family : metrics.families)
        if (isInstalled(family)) return family;
    return {};
}

double measured(const QFont& font) { return QFontMetricsF(font).horizontalAdvance(kLetters); }

/// Stretches the letters, or moves them together where the font has a condensed face of its own, which Qt takes instead.
void fit(QFont& font, double letterWidth) {
    constexpr double kNear = 0.03;
    const double wanted = letterWidth * font.pixelSize() * kLetterCount;
    const auto percent = [&] {
        return std::clamp(std::floor(100 * wanted / std::max(measured(font), 1.0)), 50.0, 200.0);
    };
    font.setStretch(int(percent()));
    if (std::abs(measured(font) - wanted) <= kNear * wanted) return;
    font.setStretch(QFont::Unstretched);
    font.setLetterSpacing(QFont::PercentageSpacing, percent());
}

int pixelsOf(double points, bool ofPalms) {
    const double size = points > 0 && points <= kMostPoints ? points : kUsualPoints;
    return std::max(1, int(std::lround(size * (ofPalms ? kPixelsPerInchOfPalms : kPixelsPerInch) / kPointsPerInch)));
}

QFont substituted(const QString& name, int pixels) {
    QFont font(name);
    font.setPixelSize(pixels);
    if (isInstalled(name)) return font;
    const auto& metrics = metricsOf(name);
    const auto substitute = installedOf(metrics);
    if (!substitute.isEmpty()) font.setFamily(substitute);
    if (metrics.letterWidth > 0) fit(font, metrics.letterWidth);
    return font;
}

} // namespace

/// Cached, since measuring a font takes longer than drawing a control with it.
QFont formFont(const QString& family, double points) {
    static std::map<std::pair<QString, int>, QFont> cache;
    const auto name = family.isEmpty() ? QString(kUsualFamily) : family;
    const int pixels = pixelsOf(points, isPalm(name));
    const auto [entry, isNew] = cache.try_emplace({name, pixels});
    if (isNew) entry->second = substituted(name, pixels);
    return entry->second;
}

} // namespace workbench
