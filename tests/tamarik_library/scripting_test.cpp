// Dictionaries and text streams where programs of the suite do not reach: other code pages, a disk, a full heap.
#include "Components/Tamarik/ports/folder_store.h"
#include "Components/Tamarik/scripting/dictionary.h"
#include "tests/tamarik_library/library_world.h"
#include <filesystem>
#include <unistd.h>

namespace tamarik {

namespace {

class ScriptingTest : public LibraryWorld {
protected:
    ~ScriptingTest() override {
        for (Object* const object : objects_) release(session.heap, object);
        while (session.heap.hasPending()) {
            Counted* const block = session.heap.takePending();
            if (block->kind == Counted::Kind::Object)
                destroy(session.heap, static_cast<Object*>(block));
            else
                destroy(session.heap, static_cast<ArrayBlock*>(block));
        }
    }

    LibraryObject& make(const std::string& className) { return held(natives.classes().at(className)(session)); }
    LibraryObject& held(Object* object) {
        objects_.push_back(object);
        return static_cast<LibraryObject&>(*object);
    }
    Variant member(LibraryObject& object, std::string_view name, const std::vector<Variant>& arguments = {}) {
        std::vector<const Variant*> pointers;
        for (const Variant& v : arguments) pointers.push_back(&v);
        return callMember(session, object, name, image::LateUse::Call, pointers, {});
    }
    LibraryObject& stream(std::string_view name, std::u16string_view path, std::int32_t mode = 1) {
        LibraryObject& files = make("FileSystemObject");
        std::vector<Variant> arguments{text(path)};
        if (name == "OpenTextFile") arguments.push_back(ofNumber(mode));
        return held(member(files, name, arguments).object);
    }
    std::string ask(LibraryObject& object, std::string_view name, const std::vector<Variant>& arguments = {}) {
        return shown(kept(member(object, name, arguments)));
    }
    int errorOfMember(LibraryObject& object, std::string_view name, const std::vector<Variant>& arguments = {}) {
        return basic::attempt([&] { (void)kept(member(object, name, arguments)); }).Number;
    }
    void writeFile(const std::string& bytes) {
        auto store = std::make_shared<MemoryStore>();
        session.surroundings.files = store;
        store->open("f.txt", {false, true, true, true})->write(0, bytes);
    }

private:
    std::vector<Object*> objects_;
};

} // namespace

TEST_F(ScriptingTest, ReadsCharactersOfTwoBytes) {
    session.codePage = 932;
    writeFile("a\x82\xA0\x83\x5C\r\n\x82\xA2");
    LibraryObject& file = stream("OpenTextFile", u"f.txt");
    EXPECT_EQ(ask(file, "Read", {ofNumber(2)}), "String aあ");
    EXPECT_EQ(ask(file, "Column"), "Long 3");
    // The second byte of the character is that of a backslash.
    EXPECT_EQ(ask(file, "ReadLine"), "String ソ");
    EXPECT_EQ(ask(file, "ReadAll"), "String い");
}

TEST_F(ScriptingTest, ReadsCharactersOfUtf8) {
    session.codePage = 65001;
    writeFile("é日😀x\xFFy");
    LibraryObject& file = stream("OpenTextFile", u"f.txt");
    EXPECT_EQ(ask(file, "Read", {ofNumber(2)}), "String é日");
    (void)kept(member(file, "Read", {ofNumber(1)}));
    EXPECT_EQ(ask(file, "Column"), "Long 4");
    (void)kept(member(file, "Skip", {ofNumber(1)}));
    EXPECT_EQ(ask(file, "Read", {ofNumber(1)}), "String x");
    EXPECT_EQ(unitsOf(kept(member(file, "ReadAll")).text).back(), u'y');
}

TEST_F(ScriptingTest, ReadsAFileThatEndsWithinACharacter) {
    session.codePage = 932;
    writeFile("a\x82");
    LibraryObject& file = stream("OpenTextFile", u"f.txt");
    EXPECT_EQ(unitsOf(kept(member(file, "ReadAll")).text).size(), 2u);
    EXPECT_EQ(ask(file, "AtEndOfStream"), "Boolean True");
}

TEST_F(ScriptingTest, WritesInTheCodePage) {
    session.codePage = 932;
    LibraryObject& file = stream("CreateTextFile", u"f.txt");
    (void)member(file, "WriteLine", {text(u"あ")});
    EXPECT_EQ(errorOfMember(file, "Write", {text(u"é")}), basic::kInvalidProcedureCall);
    (void)member(file, "Close");
    EXPECT_EQ(static_cast<MemoryStore&>(*session.surroundings.files).contents("f.txt"), "\x82\xA0\r\n");
}

TEST_F(ScriptingTest, BlankLinesAreLimited) {
    LibraryObject& file = stream("CreateTextFile", u"f.txt");
    EXPECT_EQ(errorOfMember(file, "WriteBlankLines", {ofNumber(2'000'000'000)}), basic::kInvalidProcedureCall);
    EXPECT_EQ(errorOfMember(file, "WriteBlankLines", {ofNumber(-1)}), basic::kInvalidProcedureCall);
    (void)member(file, "WriteBlankLines", {ofNumber(3)});
    EXPECT_EQ(ask(file, "Line"), "Long 4");
}

TEST_F(ScriptingTest, KeepsToTheFolderOnADisk) {
    namespace fs = std::filesystem;
    const fs::path folder = fs::temp_directory_path() / ("scripting" + std::to_string(getpid()));
    fs::create_directories(folder / "inside");
    session.surroundings.files = std::make_shared<FolderStore>((folder / "inside").string());
    LibraryObject& files = make("FileSystemObject");
    LibraryObject& file = stream("CreateTextFile", u"C:\\..\\..\\a.txt");
    (void)member(file, "Write", {text(u"abc")});
    (void)member(file, "Close");
    EXPECT_EQ(ask(files, "FileExists", {text(u"a.txt")}), "Boolean True");
    (void)held(member(files, "CreateFolder", {text(u"F")}).object);
    (void)member(files, "CopyFile", {text(u"*.txt"), text(u"F\\")});
    session.surroundings.files->setReadOnly("F/a.txt", true);
    EXPECT_EQ(errorOfMember(files, "DeleteFile", {text(u"F\\a.txt")}), basic::kPermissionDenied);
    EXPECT_EQ(errorOfMember(files, "DeleteFolder", {text(u"F")}), basic::kPermissionDenied);
    (void)member(files, "DeleteFolder", {text(u"F"), ofBoolean(true)});
    EXPECT_FALSE(fs::exists(folder / "inside" / "F"));
    EXPECT_TRUE(fs::exists(folder / "inside" / "a.txt"));
    session.surroundings.files = std::make_shared<MemoryStore>();
    fs::remove_all(folder);
}

/// Nothing of an item stays behind when there is no memory for it.
TEST_F(ScriptingTest, ADictionaryIsUnchangedWithoutMemory) {
    auto& dictionary = static_cast<Dictionary&>(make("Dictionary"));
    const Variant items = list({ofNumber(1), ofNumber(2)});
    for (std::uint64_t allocation = 1; allocation <= 3; ++allocation) {
        session.heap.failAllocation(allocation);
        const auto err = basic::attempt([&] { dictionary.add(session.heap, ofNumber(7), items); });
        session.heap.failAllocation(0);
        EXPECT_EQ(err.Number, basic::kOutOfMemory) << allocation;
        EXPECT_EQ(dictionary.count(), 0);
        EXPECT_FALSE(dictionary.exists(session.heap, ofNumber(7)));
    }
    dictionary.add(session.heap, ofNumber(7), ofNumber(1));
    session.heap.failAllocation(1);
    EXPECT_EQ(basic::attempt([&] { dictionary.setItem(session.heap, ofNumber(7), items); }).Number,
              basic::kOutOfMemory);
    session.heap.failAllocation(0);
    EXPECT_EQ(longOf(dictionary.item(session.heap, ofNumber(7)), image::BaseType::Long), 1);
}

TEST_F(ScriptingTest, ClocksAreThoseOfTheHost) {
    session.surroundings.milliseconds = [] { return 4294967296.0 + 5.75; };
    EXPECT_EQ(shown(call("Declared.GetTickCount")), "Long 5");
    EXPECT_EQ(shown(call("Declared.timeGetTime")), "Long 5");
    EXPECT_EQ(call("Declared.GetTickCount64").currency, 4294967301);
    Slot count{};
    (void)call("Declared.QueryPerformanceCounter",
               {ofCurrency(static_cast<std::int64_t>(reinterpret_cast<std::uintptr_t>(&count)))});
    EXPECT_EQ(count.currency, 42949673017500);
    session.surroundings.milliseconds = [] { return 2147483648.0; };
    EXPECT_EQ(shown(call("Declared.GetTickCount")), "Long -2147483648");
}

} // namespace tamarik
