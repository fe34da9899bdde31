#pragma once
// The page of Linux handhelds over a real project.
#include "Add-in/platform/combo_box.h"
#include "Add-in/platform/text_box.h"
#include "Components/QLPipe/linux_handheld/linux_handheld_settings.h"
#include "tests/pipes/pipe_world.h"
#include "tests/support/test_host.h"
#include <gmock/gmock.h>

namespace test {

class HandheldPageTest : public testing::Test {
protected:
    void open() { page = configuration->CreatePage(project, 0, 0); }
    template <class T>
    T& control(const std::string& name) const {
        return dynamic_cast<T&>(page->control(name));
    }
    fernwick::Label& label(const std::string& name) const { return control<fernwick::Label>(name); }
    fernwick::ComboBox& list(const std::string& key) const { return control<fernwick::ComboBox>("cbo" + key); }
    std::string text(const std::string& key) const { return control<fernwick::TextBox>("txt" + key).Text(); }
    void type(const std::string& key, const std::string& value) const {
        control<fernwick::TextBox>("txt" + key).Text(value);
    }
    fernwick::CommandButton& button() const { return control<fernwick::CommandButton>("btnTest"); }
    void press() const { button().press(); }

    TestHost host;
    basic::Ref<vbide::VBProject> project = host.open(SampleProject{});
    PipeWorld world;
    basic::Ref<qlpipe::IQLPipeConfiguration> configuration =
        world.create<qlpipe::IQLPipeConfiguration>("QLPipeLinux.Configuration");
    basic::Ref<fernwick::Form> page;
};

} // namespace test
