#pragma once
// A temporary root folder with target files.
#include "Components/DesignTargetAccess/design_target_mgr.h"
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

class TargetFolder {
public:
    TargetFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "targets-XXXXXX").string();
        root_ = ::mkdtemp(name.data());
        std::filesystem::create_directory(root_ + "/targets");
    }
    ~TargetFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(root_, ignored);
    }
    TargetFolder(const TargetFolder&) = delete;
    TargetFolder& operator=(const TargetFolder&) = delete;

    const std::string& root() const { return root_; }
    void add(const std::string& fileName, const std::string& text) const {
        std::ofstream{root_ + "/targets/" + fileName, std::ios::binary} << text;
    }
    /// Returns a minimal target followed by `more`.
    static std::string target(const std::string& key, int order, const std::string& more = {}) {
        return "order = " + std::to_string(order) + "\nkey = \"" + key + "\"\nname = \"&" + key +
               "\"\nplatform = \"Some\"\npipe = \"QLPipeSome\"\nstyle = 4\n"
               "[form]\nwidth = 100\nheight = -1\ncolor = 0xC0C0C0\n[font]\nname = \"Some\"\nsize = 9\n" +
               more;
    }

private:
    std::string root_;
};

inline basic::Ref<designtargetaccess::DesignTargetMgr> initialized(const std::string& root) {
    auto manager = basic::make<designtargetaccess::DesignTargetMgr>(root);
    manager->Initialize();
    return manager;
}
