#include "Components/DesignTargetAccess/design_target_mgr.h"
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fmt/format.h>
#include <fstream>
#include <iterator>

namespace designtargetaccess {
namespace {

namespace fs = std::filesystem;

/// Far larger than any design target file.
constexpr std::uintmax_t kLargestTargetFile = 1 << 20;

std::vector<std::string> targetFilesOf(const std::string& folder, std::vector<TargetProblem>& problems) {
    std::vector<std::string> files;
    std::error_code error;
    fs::directory_iterator entry{folder, error};
    for (; !error && entry != fs::directory_iterator{}; entry.increment(error))
        if (entry->path().extension() == ".toml") files.push_back(entry->path().string());
    if (error && error != std::errc::no_such_file_or_directory) problems.emplace_back(folder, 0, error.message());
    std::sort(files.begin(), files.end());
    return files;
}

std::string contentOf(const std::string& path) {
    std::error_code error;
    const auto size = fs::file_size(path, error);
    if (error) throw TargetProblem{path, 0, error.message()};
    if (size > kLargestTargetFile) throw TargetProblem{path, 0, "too large for a design target"};
    std::ifstream file{path, std::ios::binary};
    if (!file) throw TargetProblem{path, 0, std::strerror(errno)};
    return {std::istreambuf_iterator<char>{file}, {}};
}

} // namespace

struct DesignTargetMgr::Source {
    std::string path;
    TargetData data;
};

void DesignTargetMgr::readFile(const std::string& path, std::vector<Source>& sources) {
    try {
        sources.push_back({path, readTarget(contentOf(path), path)});
    } catch (const TargetProblem& problem) { problems_.push_back(problem); }
}

void DesignTargetMgr::add(Source source) {
    if (!positions_.try_emplace(source.data.key, Count()).second) {
        problems_.emplace_back(source.path, 0,
                               fmt::format("the key \"{}\" is already used by another file", source.data.key));
        return;
    }
    targets_.push_back(basic::make<DesignTarget>(std::move(source.data), root_));
}

void DesignTargetMgr::Initialize() {
    targets_.clear();
    positions_.clear();
    problems_.clear();
    if (root_.empty()) return; // without an installation
    std::vector<Source> sources;
    for (const std::string& path : targetFilesOf(root_ + "/targets", problems_)) readFile(path, sources);
    std::stable_sort(sources.begin(), sources.end(), [](const Source& a, const Source& b) {
        return a.data.order != b.data.order ? a.data.order < b.data.order : a.data.key < b.data.key;
    });
    for (Source& source : sources) add(std::move(source));
}

bool DesignTargetMgr::GetDesignTarget(const std::string& key, basic::Ref<IQLDesignTarget>& target) const {
    std::int32_t position = 0;
    target = nullptr;
    if (!FindDesignTarget(key, position)) return false;
    target = targets_[static_cast<std::size_t>(position)];
    return true;
}

bool DesignTargetMgr::FindDesignTarget(const std::string& key, std::int32_t& position) const {
    const auto found = positions_.find(key);
    if (found == positions_.end()) return false;
    position = found->second;
    return true;
}

basic::Ref<IQLDesignTarget> DesignTargetMgr::GetDesignTargetByIndex(std::int16_t index) const {
    if (index < 0 || index >= Count()) return nullptr;
    return targets_[static_cast<std::size_t>(index)];
}

} // namespace designtargetaccess
