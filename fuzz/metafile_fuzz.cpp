// Metafiles: any bytes make a drawing within its limits, or none.
#include "Host/metafiles/metafile.h"
#include <cmath>
#include <cstdlib>

namespace {

void require(bool holds) {
    if (!holds) std::abort();
}

void check(const host::DrawnPoint& point) {
    require(std::abs(point.x) <= host::kMostDistance && std::abs(point.y) <= host::kMostDistance);
}

struct Checks {
    std::size_t points = 0;

    void operator()(const host::DrawnPath& path) {
        require(path.pen.width >= 1 && path.pen.width <= host::kMostDistance && path.brush.hatch < 6);
        for (const auto& figure : path.figures)
            for (const auto& point : figure.points) check(point), ++points;
    }
    void operator()(const host::DrawnText& text) {
        check(text.at);
        require(std::isfinite(text.height) && std::isfinite(text.angle));
    }
    void operator()(const host::DrawnBitmap& bitmap) {
        check(bitmap.from);
        check(bitmap.to);
        require(bitmap.bmp.starts_with("BM"));
    }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto metafile = host::readMetafile({reinterpret_cast<const char*>(data), size});
    if (!metafile) return 0;
    require(metafile->width >= 1 && metafile->width <= host::kLargestMetafile);
    require(metafile->height >= 1 && metafile->height <= host::kLargestMetafile);
    Checks checks;
    for (const auto& drawn : metafile->drawn) std::visit(checks, drawn);
    constexpr std::size_t kPointsPerByte = 32; // a small record may draw a circle
    require(checks.points <= size * kPointsPerByte);
    return 0;
}
