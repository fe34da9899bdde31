#pragma once
// The configuration object of families without settings.
#include "Add-in/platform/pipes.h"

namespace qlpipe {

class NoPage final : public IQLPipeConfiguration {
public:
    basic::Ref<fernwick::Form> CreatePage(const basic::Ref<vbide::VBProject>&, std::int32_t, std::int32_t) override {
        return {};
    }
    void ShowPage() override {}
    void HidePage() override {}
    bool ValidatePage() override { return true; }
    void ApplyPage() override {}
    void ClosePage() override {}
    bool HasPage() override { return false; }
    std::string PageName() override { return {}; }
};

} // namespace qlpipe
