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

/// What is known about a family that may be missing.
struct FormFamily {
    const char* name;
    std::array<const char*, 4> similar; ///< the best first; null where there are fewer
    double letterWidth;                 ///< the average of the letters, as a part of the font's pixel size
};
constexpr std::array<const char*, 4> kLikeArial{"Arial", "Liberation Sans", "Nimbus Sans", "FreeSans"},
    kLikeTimes{"Times New Roman", "Liberation Serif", "Nimbus Roman", "FreeSerif"},
    kLikeCourier{"Courier New", "Liberation Mono", "Nimbus Mono PS", "FreeMono"},
    kLikeTahoma{"Tahoma", "Wine Tahoma", "Liberation Sans", "Nimbus Sans"},
    kLikePalm{"DejaVu Sans Condensed", "Tahoma", "Liberation Sans Narrow", "Nimbus Sans Narrow"};
constexpr double kArialWidth = 0.583, kTahomaWidth = 0.549, kTimesWidth = 0.545, kCourierWidth = 0.6;

constexpr std::array kFamilies{
    FormFamily{"MS Sans Serif", kLikeArial, kArialWidth},
    FormFamily{"Microsoft Sans Serif", kLikeArial, kArialWidth},
    FormFamily{"MS Shell Dlg", kLikeArial, kArialWidth},
    FormFamily{"Arial", kLikeArial, kArialWidth},
    FormFamily{"Helv", kLikeArial, kArialWidth},
    FormFamily{"Helvetica", kLikeArial, kArialWidth},
    FormFamily{"MS Shell Dlg 2", kLikeTahoma, kTahomaWidth},
    FormFamily{"Tahoma", kLikeTahoma, kTahomaWidth},
    FormFamily{"Times New Roman", kLikeTimes, kTimesWidth},
    FormFamily{"MS Serif", kLikeTimes, kTimesWidth},
    FormFamily{"Tms Rmn", kLikeTimes, kTimesWidth},
    FormFamily{"Courier New", kLikeCourier, kCourierWidth},
    FormFamily{"Courier", kLikeCourier, kCourierWidth},
    FormFamily{"Fixedsys", kLikeCourier, kCourierWidth},
    FormFamily{"Terminal", kLikeCourier, kCourierWidth},
};

bool isPalm(const QString& family) { return family.compare(kPalmFamily, Qt::CaseInsensitive) == 0; }

bool isInstalled(const QString& family) { return QFontDatabase::hasFamily(family); }

const FormFamily* familyNamed(const QString& name) {
    const auto found = std::find_if(kFamilies.begin(), kFamilies.end(), [&](const auto& family) {
        return name.compare(QLatin1String(family.name), Qt::CaseInsensitive) == 0;
    });
    return found == kFamilies.end() ? nullptr : &*found;
}

/// "" if none is installed, which leaves the choice to Qt.
QString installedOf(const std::array<const char*, 4>& similar) {
    for (const auto* family : similar)
        if (family && isInstalled(family)) return family;
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
    const auto* known = familyNamed(name);
    const auto substitute = installedOf(isPalm(name) ? kLikePalm : known ? known->similar : kLikeArial);
    if (!substitute.isEmpty()) font.setFamily(substitute);
    if (known) fit(font, known->letterWidth);
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
