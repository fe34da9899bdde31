// Whether the image on disk is up to date.
#include "deploy_world.h"

namespace {

class CompiledImage : public testing::Test, protected test::DeployWorld {
protected:
    bool isCurrent() { return sendToDevice.IsCompiledImageCurrent(qlProject); }
    /// Sets the difference of Module1's time to the image's, in nanoseconds.
    void setModule1(std::int64_t later) { setTime("Module1.bas", timeOf("Foo.0000.qlx") + later); }
};

TEST_F(CompiledImage, EqualTimesAreCurrent) {
    setModule1(0);
    EXPECT_TRUE(isCurrent());
    setModule1(-1);
    EXPECT_TRUE(isCurrent());
}

TEST_F(CompiledImage, AComponentANanosecondNewerMakesItStale) {
    setModule1(1);
    EXPECT_FALSE(isCurrent());
}

TEST_F(CompiledImage, OneStaleComponentIsEnough) {
    setModule1(1);
    addModule("Module2");
    setTime("Module2.bas", 0);
    EXPECT_FALSE(isCurrent());
    setModule1(0);
    setTime("Module2.bas", timeOf("Foo.0000.qlx") + 1);
    EXPECT_FALSE(isCurrent());
}

TEST_F(CompiledImage, UnsavedChangesMakeItStale) {
    project->components->list.front()->dirty = true;
    EXPECT_FALSE(isCurrent());
}

TEST_F(CompiledImage, AnUnsavedNewComponentIsIgnored) {
    project->add("Module2", "")->dirty = true;
    EXPECT_TRUE(isCurrent());
    project->components->list.erase(project->components->list.begin());
    EXPECT_FALSE(isCurrent()); // no component can be read
    EXPECT_TRUE(errors.seen.empty());
}

TEST_F(CompiledImage, AProjectWithoutComponentsIsNotCurrent) {
    project->components->list.clear();
    EXPECT_FALSE(isCurrent());
}

TEST_F(CompiledImage, AnImageOfAnotherCompilerVersionIsNotCurrent) {
    for (const char* version : {"3.5.0 (0623)", "3.5.0 (0624) ", ""}) {
        project->properties[{"Quinloft Global", "LastCompileVersion"}] = version;
        EXPECT_FALSE(isCurrent()) << version;
    }
}

TEST_F(CompiledImage, WithoutAFileItIsNotCurrent) {
    std::filesystem::remove(image);
    EXPECT_FALSE(isCurrent());
    EXPECT_TRUE(errors.seen.empty());
}

TEST_F(CompiledImage, TheShortNameTakesPrecedence) {
    folder.write("Foo/Foo.qlx", "");
    setTime("Foo.qlx", timeOf("Module1.bas") - 1);
    EXPECT_FALSE(isCurrent());
    setTime("Foo.qlx", timeOf("Module1.bas"));
    setTime("Foo.0000.qlx", 0);
    EXPECT_TRUE(isCurrent());
}

TEST_F(CompiledImage, RecognisesTheCompilersFiles) {
    for (const char* file : {"Foo.0000.qlx", "FOO.0001.RPP", "foo.rsp", "Foo..qlx", "Foo.a.b.rpp"})
        EXPECT_TRUE(sendToDevice.IsCompilerFile(file, "Foo")) << file;
    for (const char* file : {"Foo.qlx", "Foo2.0000.qlx", "Foo.rpp", "Foo.0000.rsp", "Foo.0000.qlx.bak", "Foo", ""})
        EXPECT_FALSE(sendToDevice.IsCompilerFile(file, "Foo")) << file;
}

} // namespace
