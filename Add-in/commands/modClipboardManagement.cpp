#include "Add-in/commands/modClipboardManagement.h"

namespace fernwick {

void modClipboardManagement::BackupClipboardData() {
    Procedure here{errors_, "modClipboardManagement.BackupClipboardData"};
    std::vector<std::string> formats;
    const auto opening = basic::attempt([&] { formats = clipboard_.Formats(); });
    if (opening.Number != 0) return;
    isKept_ = false;
    kept_.clear();
    if (formats.empty()) return;
    for (const auto& format : formats)
        kept_.push_back({format, here.value([&] { return clipboard_.GetData(format); })});
    here([&] { clipboard_.Clear(); });
    isKept_ = true;
}

void modClipboardManagement::RestoreClipboardData() {
    Procedure here{errors_, "modClipboardManagement.RestoreClipboardData"};
    if (!isKept_) return;
    const auto opening = basic::attempt([&] { return void(clipboard_.Formats()); });
    if (opening.Number != 0) return;
    for (const auto& kept : kept_) here([&] { clipboard_.SetData(kept.format, kept.copy); });
    isKept_ = false;
    kept_.clear();
}

} // namespace fernwick
