#pragma once
// What a metafile draws, for comparisons.
#include "Host/metafiles/metafile.h"
#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace test {

inline std::vector<host::Drawn> drawn(const std::string& bytes) {
    auto metafile = host::readMetafile(bytes);
    return metafile ? std::move(metafile->drawn) : std::vector<host::Drawn>();
}
inline const host::DrawnPath& path(const host::Drawn& one) { return std::get<host::DrawnPath>(one); }
inline const host::DrawnText& text(const host::Drawn& one) { return std::get<host::DrawnText>(one); }

/// "x,y", rounded.
inline std::string point(const host::DrawnPoint& at) {
    return std::to_string(std::lround(at.x)) + "," + std::to_string(std::lround(at.y));
}
/// Each point of a figure.
inline std::vector<std::string> points(const host::DrawnPath::Figure& figure) {
    std::vector<std::string> texts;
    for (const auto& each : figure.points) texts.push_back(point(each));
    return texts;
}

} // namespace test
