#pragma once
// The installed design targets.
#include "Components/DesignTargetAccess/design_target.h"
#include "Components/DesignTargetAccess/target_problem.h"
#include <string>
#include <unordered_map>
#include <vector>

namespace designtargetaccess {

/// Reads `root`/targets/*.toml. Targets are sorted by number, then by key. There are none before `Initialize`.
class DesignTargetMgr final : public IQLDesignTargetMgr {
public:
    /// `root` is the installation's root folder, without a trailing separator.
    explicit DesignTargetMgr(std::string root) : root_(std::move(root)) {}

    std::int32_t Count() const override { return static_cast<std::int32_t>(targets_.size()); }
    /// Never fails: an invalid file is skipped and listed in `problems`. Without the folder there are no targets.
    void Initialize() override;
    bool GetDesignTarget(const std::string& key, basic::Ref<IQLDesignTarget>& target) const override;
    bool FindDesignTarget(const std::string& key, std::int32_t& position) const override;
    basic::Ref<IQLDesignTarget> GetDesignTargetByIndex(std::int16_t index) const override;

    /// The problems of invalid files, in the order of the files.
    const std::vector<TargetProblem>& problems() const { return problems_; }

private:
    struct Source;

    void readFile(const std::string& path, std::vector<Source>& sources);
    void add(Source source);

    std::string root_;
    std::vector<basic::Ref<IQLDesignTarget>> targets_;
    std::unordered_map<std::string, std::int32_t> positions_;
    std::vector<TargetProblem> problems_;
};

} // namespace designtargetaccess
