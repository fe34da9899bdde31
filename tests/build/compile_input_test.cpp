// The compiler's input.
#include "Add-in/build/type_lib_dll.h"
#include "compile_world.h"

using testing::Contains;
using testing::IsEmpty;
using testing::Not;

namespace {

constexpr char kGuid[] = "{8A516A60-1B8E-11D3-8C4B-0050046ECCF2}";

class CompileInput : public testing::Test, protected test::CompileWorld {
protected:
    basic::Ref<test::TracedReference> reference(const std::string& path) {
        auto added = basic::make<test::TracedReference>(trace, path);
        added->guid = kGuid;
        project->references->list.push_back(added);
        return added;
    }
    void registerLibrary(const std::string& version, const std::string& path) {
        registry.set(fernwick::HKEY_CLASSES_ROOT, std::string("TypeLib\\") + kGuid + "\\" + version + "\\0\\win32", "",
                     path);
    }
    /// The libraries passed to the compiler.
    std::vector<std::string> libraries() {
        run();
        std::vector<std::string> all;
        for (const auto& effect : trace.effects)
            if (effect.starts_with("file 1") || effect.starts_with("file 2")) all.push_back(effect);
        return all;
    }
};

using testing::ElementsAre;

TEST_F(CompileInput, SkipsBuiltInLibraries) {
    reference("/lib/vb6.olb")->builtIn = true;
    reference("/windows/StdOle2.tlb");
    EXPECT_THAT(libraries(), IsEmpty());
}

TEST_F(CompileInput, SkipsEachLibraryWhoseNameEndsLikeTheBuiltInOnes) {
    reference("/windows/mystdole2.tlb");
    reference("/windows/stdole2.tlb.old");
    reference("/windows/stdole3.tlb");
    EXPECT_THAT(libraries(), ElementsAre("file 1 /windows/stdole2.tlb.old", "file 1 /windows/stdole3.tlb"));
}

TEST_F(CompileInput, PathsAreAbsolute) {
    reference("\\lib\\Tools.tlb");
    reference("\\lib\\Tavlets.oca");
    addModule("One")->file = "\\p\\One.bas";
    run();
    EXPECT_THAT(trace.effects, Contains("file 1 /lib/Tools.tlb"));
    EXPECT_THAT(trace.effects, Contains("file 2 /lib/Tavlets.DLL"));
    EXPECT_THAT(trace.effects, Contains("file 0 /p/One.bas"));
}

TEST_F(CompileInput, SkipsABrokenReferenceSilently) {
    reference("/lib/a.tlb")->broken = true;
    reference("/lib/b.tlb");
    EXPECT_THAT(libraries(), ElementsAre("file 1 /lib/b.tlb"));
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(CompileInput, AControlIsTakenFromItsRegisteredLibrary) {
    reference("/lib/Tavlets.oca");
    registerLibrary("1.0", "/tavlets/QLTavlets.dll");
    EXPECT_THAT(libraries(), ElementsAre("file 2 /tavlets/QLTavlets.dll"));
    EXPECT_EQ(registry.openKeys(), 0U);
}

TEST_F(CompileInput, TheRegisteredNameMayBeInCapitals) {
    reference("/lib/Tavlets.OCA")->guid = "8A516A60-1B8E-11D3-8C4B-0050046ECCF2";
    registerLibrary("1.0", "/tavlets/QLTAVLETS.DLL");
    EXPECT_THAT(libraries(), ElementsAre("file 2 /tavlets/QLTAVLETS.DLL"));
}

TEST_F(CompileInput, AnUnregisteredControlIsExpectedBesideItsDescription) {
    reference("/lib/Tavlets.oca");
    EXPECT_THAT(libraries(), ElementsAre("file 2 /lib/Tavlets.DLL"));
}

TEST_F(CompileInput, ALibraryOfAnotherVersionIsNotUsed) {
    reference("/lib/Tavlets.oca");
    registerLibrary("3.0", "/tavlets/QLTavlets.dll");
    EXPECT_THAT(libraries(), ElementsAre("file 2 /lib/Tavlets.DLL"));
}

TEST_F(CompileInput, ARegisteredOcxIsReplacedByItsDll) {
    reference("/lib/Tavlets.oca");
    registerLibrary("1.0", "/tavlets/QLTavlets.ocx");
    EXPECT_THAT(libraries(), ElementsAre("file 2 /tavlets/QLTavlets.DLL"));
}

TEST_F(CompileInput, ARegisteredPathMustBeAPlainText) {
    reference("/lib/Tavlets.oca");
    registry.set(fernwick::HKEY_CLASSES_ROOT, std::string("TypeLib\\") + kGuid + "\\1.0\\0\\win32", "",
                 std::string("/tavlets/QLTavlets.dll") + '\0', fernwick::REG_EXPAND_SZ);
    EXPECT_THAT(libraries(), ElementsAre("file 2 /tavlets/QLTavlets.DLL")); // the path, with a replaced extension
}

TEST_F(CompileInput, ReferencesComeBeforeComponentsInTheirOrder) {
    reference("/lib/a.tlb");
    reference("/lib/b.tlb");
    addModule("One");
    addModule("Two");
    run();
    std::vector<std::string> input;
    for (const auto& effect : trace.effects)
        if (effect.starts_with("file")) input.push_back(effect);
    EXPECT_THAT(input, ElementsAre("file 1 /lib/a.tlb", "file 1 /lib/b.tlb", "file 0 /p/One.bas", "file 0 /p/Two.bas"));
}

TEST_F(CompileInput, StartsWithItsComponent) {
    project->components->startUp.component = addModule("One");
    run();
    EXPECT_THAT(trace.effects, Contains("start-up 'One'"));
}

TEST_F(CompileInput, AReservedConstantGetsABoxAndTheOtherIsPassed) {
    files.files["/p/Demo.vbp"] = {"CondComp=\"A = 1 : Win32 = 2\"\r\n"};
    run();
    EXPECT_THAT(trace.effects, Contains("constant A=1"));
    EXPECT_THAT(trace.effects, Contains("box 48 Fernwick: Win32 is not allowed as Conditional Compilation Constant"));
}

TEST_F(CompileInput, AConstantThatIsNotANumberIsReported) {
    files.files["/p/Demo.vbp"] = {"CondComp=\"A = x\"\r\n"};
    EXPECT_TRUE(run());
    EXPECT_THAT(errors.seen, ElementsAre("frmCompile.Form_Activate [13]"));
}

TEST_F(CompileInput, PassesNonEmptyVersionInformation) {
    files.files["/p/Demo.vbp"] = {
        "Name=\"Demo\"\r\nTitle=\"T\"\r\nMajorVer=1\r\nMinorVer=2\r\nRevisionVer=3\r\nVersionComments=\"C\"\r\n"
        "VersionCompanyName=\"Co\"\r\nVersionFileDescription=\"D\"\r\nVersionLegalCopyright=\"R\"\r\n"
        "VersionLegalTrademarks=\"M\"\r\nVersionProductName=\"P\"\r\n"};
    run();
    std::vector<std::string> items;
    for (const auto& effect : trace.effects)
        if (effect.starts_with("version ")) items.push_back(effect.substr(8));
    EXPECT_THAT(items, ElementsAre("ProductName=P", "Major=1", "Minor=2", "Revision=3", "Title=T", "Comments=C",
                                   "CompanyName=Co", "EXEName=Demo", "LegalCopyright=R", "LegalTrademarks=M",
                                   "FileDescription=D"));
}

TEST(FindTypeLibDll, ReturnsWhyTheLibraryIsMissing) {
    test::MemoryRegistry store;
    fernwick::modRegistry2 registry{store};
    std::string path = "/lib/a.oca";
    const auto find = [&] { return fernwick::FindTypeLibDll(registry, kGuid, 2, 7, path); };
    const std::string library = std::string("TypeLib\\") + kGuid;
    EXPECT_EQ(find(), 1); // unknown library
    store.set(fernwick::HKEY_CLASSES_ROOT, library, "x", "");
    EXPECT_EQ(find(), 1); // without versions
    store.set(fernwick::HKEY_CLASSES_ROOT, library + "\\beta", "x", "");
    EXPECT_EQ(find(), 1); // without a version that is a number
    store.set(fernwick::HKEY_CLASSES_ROOT, library + "\\3.1", "x", "");
    EXPECT_EQ(find(), 13);
    EXPECT_EQ(path, "/lib/a.oca");
    store.set(fernwick::HKEY_CLASSES_ROOT, library + "\\99999", "x", "");
    EXPECT_EQ(find(), 6); // a version that is too large a number
    store.set(fernwick::HKEY_CLASSES_ROOT, library + "\\2.7\\0\\win32", "x", "");
    EXPECT_EQ(find(), 1); // a version without a file
    EXPECT_EQ(path, "/lib/a.oca");
    store.set(fernwick::HKEY_CLASSES_ROOT, library + "\\2.7\\0\\win32", "", "/a.ocx");
    EXPECT_EQ(find(), 1);
    EXPECT_EQ(path, "/a.ocx");
    store.set(fernwick::HKEY_CLASSES_ROOT, library + "\\2.7\\0\\win32", "", "/a.DLL");
    EXPECT_EQ(find(), 0);
    EXPECT_EQ(store.openKeys(), 0U);
}

} // namespace
