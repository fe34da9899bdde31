#pragma once
#include "Add-in/platform/files.h"
#include "Add-in/platform/resources.h"

namespace host {

/// Pictures of an installation tree: "VB Toolkit/Bin/Images/<number>.bmp".
class Resources : public fernwick::Resources {
public:
    /// `installation` is the root of the tree; "" if there is none.
    Resources(const fernwick::FileSystemObject& files, std::string installation)
        : files_(files), installation_(std::move(installation)) {}
    std::string LoadBitmap(int id) const override;

private:
    const fernwick::FileSystemObject& files_;
    std::string installation_;
};

} // namespace host
