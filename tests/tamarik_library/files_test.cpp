// Statements and functions for files, byte for byte.
#include "Components/Tamarik/ports/folder_store.h"
#include "tests/tamarik_library/library_world.h"
#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace tamarik {

namespace {

using image::BaseType;
using image::SlotType;
using image::TypeForm;

enum Mode { kRandom, kInput, kOutput, kAppend, kBinary };

class FilesTest : public LibraryWorld {
protected:
    FilesTest() { session.surroundings.files = store; }

    std::shared_ptr<MemoryStore> store = std::make_shared<MemoryStore>();
    image::CodeImage code;

    Variant utf(std::string_view t) { return text(toUtf16(t)); }
    void open(std::string_view path, int number, Mode mode, int length = 0) {
        (void)call("Open", {utf(path), ofNumber(number), ofNumber(mode), ofNumber(0), ofNumber(0), ofNumber(length)});
    }
    int openError(std::string_view path, int number, Mode mode, int length = 0) {
        return errorOf("Open",
                       {utf(path), ofNumber(number), ofNumber(mode), ofNumber(0), ofNumber(0), ofNumber(length)});
    }
    void close(int number = 1) { (void)call("Close", {ofNumber(number)}); }
    void print(const Variant& item) { (void)call("File.PrintItem", {ofNumber(1), item}); }
    void printLine() { (void)call("File.PrintLine", {ofNumber(1)}); }
    std::string ask(std::string_view name, const std::vector<Variant>& values) { return shown(call(name, values)); }

    /// Writes a file and opens it as number 1.
    void opened(std::string_view bytes, Mode mode = kInput, int length = 0) {
        open("f", 1, kOutput);
        close();
        store->contents("f") = bytes;
        open("f", 1, mode, length);
    }

    void transfer(std::string_view name, SlotType type, Slot* slot, BaseType base, int record = 0, int length = 0) {
        image::Import import;
        import.parameters = std::vector<SlotType>(4, SlotType{BaseType::Long});
        import.parameters.push_back(type);
        const Native* const native = natives.find(name, {}, import.parameters);
        ASSERT_TRUE(native);
        Slot slots[6]{};
        slots[0].number = 1;
        slots[1].number = record;
        slots[2].number = static_cast<int>(base);
        slots[3].number = length;
        slots[4].pointer = slot;
        NativeCall made{session, slots, {}, &import, &code};
        native->call(made);
    }
    static SlotType reference(BaseType base, std::uint32_t id = 0) { return {base, TypeForm::Reference, id}; }

    int putError(SlotType type, Slot* slot, BaseType base, int record = 0) {
        try {
            transfer("Put", type, slot, base, record);
            return 0;
        } catch (const basic::RuntimeError& error) { return error.Number; }
    }
};

using namespace std::string_literals;
using namespace std::string_view_literals;

} // namespace

TEST_F(FilesTest, PrintWritesZonesTabsAndLines) {
    open("a.txt", 1, kOutput);
    print(ofNumber(1));
    (void)call("File.PrintZone", {ofNumber(1)});
    print(utf("x"));
    (void)call("File.PrintTab", {ofNumber(1), ofNumber(20)});
    print(ofBoolean(true));
    (void)call("File.PrintBlanks", {ofNumber(1), ofNumber(2)});
    print(utf("é€"));
    printLine();
    (void)call("File.PrintTab", {ofNumber(1), ofNumber(3)});
    print(ofNumber(-2));
    printLine();
    close();
    EXPECT_EQ(store->contents("a.txt"), " 1            x    True  \xE9\x80\r\n  -2 \r\n");
}

TEST_F(FilesTest, WidthEndsLines) {
    open("a", 1, kOutput);
    (void)call("Width", {ofNumber(1), ofNumber(5)});
    print(utf("abc"));
    print(utf("defg"));
    print(utf("123456789"));
    close();
    EXPECT_EQ(store->contents("a"), "abc\r\ndefg\r\n12345\r\n6789");
}

TEST_F(FilesTest, WriteQuotesAndMarksWhatInputReads) {
    open("a", 1, kOutput);
    for (const Variant& item :
         {utf("a,b"), ofNumber(-5), ofFraction(1.5), ofBoolean(false), ofKind(kNull), ofNumber(7, kError), Variant(),
          kept(converted(session.heap, utf("2/5/2003 14:30"), kDate)),
          kept(converted(session.heap, utf("2/5/2003"), kDate))})
        (void)call("File.WriteItem", {ofNumber(1), item});
    (void)call("File.WriteLine", {ofNumber(1)});
    close();
    EXPECT_EQ(store->contents("a"), "\"a,b\",-5,1.5,#FALSE#,#NULL#,#ERROR 7#,,#2003-02-05 14:30:00#,#2003-02-05#\r\n");
    open("a", 1, kInput);
    EXPECT_EQ(ask("InputText", {ofNumber(1)}), "String a,b");
    std::string items;
    for (int i = 0; i < 8; ++i) items += ask("InputItem", {ofNumber(1)}) + ";";
    EXPECT_EQ(items, "Integer -5;Double 1.5;Boolean False;Null;Error Error 7;Empty;Date 2/5/2003 2:30:00 PM;"
                     "Date 2/5/2003;");
    EXPECT_EQ(ask("EOF", {ofNumber(1)}), "Long -1");
    EXPECT_EQ(errorOf("InputItem", {ofNumber(1)}), 62);
}

TEST_F(FilesTest, InputTakesBlanksAsEndsOfNumbersOnly) {
    opened("  1  2 ,three four\r\n5\r\n");
    EXPECT_EQ(ask("InputItem", {ofNumber(1)}), "Integer 1");
    EXPECT_EQ(ask("InputItem", {ofNumber(1)}), "Integer 2");
    EXPECT_EQ(ask("InputItem", {ofNumber(1)}), "String three four");
    EXPECT_EQ(ask("InputText", {ofNumber(1)}), "String 5");
}

TEST_F(FilesTest, LineInputEndsAtACarriageReturn) {
    opened("a,\"b\"\r\n\rc\nd\re");
    EXPECT_EQ(ask("LineInput", {ofNumber(1)}), "String a,\"b\"");
    EXPECT_EQ(ask("LineInput", {ofNumber(1)}), "String ");
    EXPECT_EQ(ask("LineInput", {ofNumber(1)}), "String c\nd");
    EXPECT_EQ(ask("LineInput", {ofNumber(1)}), "String e");
    EXPECT_EQ(errorOf("LineInput", {ofNumber(1)}), 62);
}

TEST_F(FilesTest, InputFunctionsReadCharactersAndBytes) {
    opened("ab\x80"
           "c");
    EXPECT_EQ(ask("Input$", {ofNumber(3), ofNumber(1)}), "String ab€");
    EXPECT_EQ(ask("Loc", {ofNumber(1)}), "Long 1");
    EXPECT_EQ(errorOf("Input", {ofNumber(2), ofNumber(1)}), 62);
    close();
    open("f", 1, kBinary);
    EXPECT_EQ(ask("LenB", {call("InputB$", {ofNumber(3), ofNumber(1)})}), "Long 3");
    EXPECT_EQ(ask("Seek", {ofNumber(1)}), "Long 4");
}

TEST_F(FilesTest, AppendContinuesAtTheEnd) {
    opened("one\r\n", kAppend);
    print(utf("two"));
    EXPECT_EQ(ask("LOF", {ofNumber(1)}), "Long 8");
    EXPECT_EQ(ask("FileLen", {utf("F")}), "Long 8");
    close();
    EXPECT_EQ(store->contents("f"), "one\r\ntwo");
}

TEST_F(FilesTest, OpenAndUseRaiseTheErrorsOfTheLanguage) {
    EXPECT_EQ(openError("missing", 1, kInput), 53);
    EXPECT_EQ(openError("no\\file", 1, kOutput), 76);
    EXPECT_EQ(openError("a", 0, kOutput), 52);
    EXPECT_EQ(openError("a", 512, kOutput), 52);
    EXPECT_EQ(openError("a*b", 1, kOutput), 52);
    EXPECT_EQ(openError("", 1, kOutput), 52);
    EXPECT_EQ(openError("a", 1, kRandom, 40000), 59);
    open("a", 1, kOutput);
    EXPECT_EQ(openError("b", 1, kOutput), 55);
    EXPECT_EQ(openError("A", 2, kInput), 55);
    EXPECT_EQ(errorOf("LineInput", {ofNumber(1)}), 54);
    EXPECT_EQ(errorOf("LineInput", {ofNumber(3)}), 52);
    EXPECT_EQ(errorOf("Kill", {utf("a")}), 55);
    EXPECT_EQ(errorOf("FileCopy", {utf("a"), utf("b")}), 70);
    Slot number{};
    EXPECT_EQ(putError(reference(BaseType::Long), &number, BaseType::Long), 54);
    (void)call("CloseAll");
    open("a", 1, kBinary);
    EXPECT_EQ(putError(reference(BaseType::Long), &number, BaseType::Long, -1), 63);
    EXPECT_EQ(errorOf("File.PrintItem", {ofNumber(1), ofNumber(1)}), 54);
    EXPECT_EQ(ask("FreeFile", {missing()}), "Long 2");
    EXPECT_EQ(ask("FreeFile", {ofNumber(1)}), "Long 256");
    EXPECT_EQ(ask("FileAttr", {ofNumber(1), ofNumber(1)}), "Long 32");
    (void)call("SetAttr", {utf("a"), ofNumber(1)});
    (void)call("Reset");
    EXPECT_EQ(openError("a", 1, kOutput), 75);
    open("a", 1, kBinary);
    EXPECT_EQ(putError(reference(BaseType::Long), &number, BaseType::Long), 54);
}

TEST_F(FilesTest, PathsStayInTheFolderAndIgnoreCase) {
    (void)call("MkDir", {utf("C:\\Data")});
    open("..\\..\\DATA/./Sub\\..\\Notes.TXT", 1, kOutput);
    close();
    EXPECT_EQ(store->contents("Data/Notes.TXT"), "");
    EXPECT_EQ(ask("FileLen", {utf("d:/data/NOTES.txt")}), "Long 0");
    (void)call("ChDir", {utf("data")});
    EXPECT_EQ(ask("CurDir", {missing()}), "String C:\\Data");
    EXPECT_EQ(ask("FileLen", {utf("notes.txt")}), "Long 0");
    EXPECT_EQ(errorOf("ChDir", {utf("nowhere")}), 76);
    EXPECT_EQ(errorOf("MkDir", {utf("\\DATA")}), 75);
    EXPECT_EQ(errorOf("RmDir", {utf("\\Data")}), 75);
    EXPECT_EQ(errorOf("RmDir", {utf("\\None")}), 76);
    EXPECT_EQ(errorOf("GetAttr", {utf("\\None")}), 53);
    EXPECT_EQ(ask("GetAttr", {utf("\\Data")}), "Long 16");
    (void)call("ChDir", {utf("..\\..")});
    EXPECT_EQ(ask("CurDir$", {missing()}), "String C:\\");
}

TEST_F(FilesTest, DirListsWhatFits) {
    for (const auto* name : {"b.txt", "A.TXT", "c.dat", ".hidden"}) {
        open(name, 1, kOutput);
        close();
    }
    (void)call("MkDir", {utf("d.txt")});
    EXPECT_EQ(ask("Dir", {utf("*.txt"), ofNumber(0)}), "String A.TXT");
    EXPECT_EQ(ask("Dir", {missing(), ofNumber(0)}), "String b.txt");
    EXPECT_EQ(ask("Dir", {missing(), ofNumber(0)}), "String ");
    EXPECT_EQ(errorOf("Dir", {missing(), ofNumber(0)}), 5);
    EXPECT_EQ(ask("Dir$", {utf("?.TXT"), ofNumber(16)}), "String A.TXT");
    EXPECT_EQ(ask("Dir$", {missing(), ofNumber(0)}), "String b.txt");
    EXPECT_EQ(ask("Dir$", {missing(), ofNumber(0)}), "String d.txt");
    EXPECT_EQ(ask("Dir", {utf(".h*"), ofNumber(2)}), "String .hidden");
    EXPECT_EQ(ask("Dir", {utf("x*"), ofNumber(0)}), "String ");
    (void)call("Kill", {utf("*.TXT")});
    EXPECT_EQ(ask("Dir", {utf("*"), ofNumber(0)}), "String c.dat");
    EXPECT_EQ(errorOf("Kill", {utf("*.txt")}), 53);
}

TEST_F(FilesTest, NameAndFileCopyMoveAndCopy) {
    opened("content");
    close();
    (void)call("MkDir", {utf("d")});
    (void)call("FileCopy", {utf("f"), utf("d\\copy")});
    EXPECT_EQ(store->contents("d/copy"), "content");
    EXPECT_EQ(errorOf("Name", {utf("f"), utf("D\\COPY")}), 58);
    (void)call("Name", {utf("f"), utf("d\\moved")});
    EXPECT_EQ(store->contents("d/moved"), "content");
    EXPECT_EQ(errorOf("Name", {utf("f"), utf("g")}), 53);
    EXPECT_EQ(errorOf("Name", {utf("d"), utf("d\\inside")}), 75);
    (void)call("Name", {utf("d"), utf("e")});
    EXPECT_EQ(store->contents("e/moved"), "content");
}

TEST_F(FilesTest, PutStoresValuesWithoutGaps) {
    open("f", 1, kBinary);
    Slot slot{};
    slot.number = -2;
    transfer("Put", reference(BaseType::Long), &slot, BaseType::Integer);
    transfer("Put", reference(BaseType::Long), &slot, BaseType::Long);
    transfer("Put", reference(BaseType::Long), &slot, BaseType::Byte);
    slot.fraction = 1.5;
    transfer("Put", reference(BaseType::Double), &slot, BaseType::Single);
    transfer("Put", reference(BaseType::Double), &slot, BaseType::Double);
    slot.currency = 15000;
    transfer("Put", reference(BaseType::Currency), &slot, BaseType::Currency);
    slot.text = utf("a€").text;
    transfer("Put", reference(BaseType::Text), &slot, BaseType::Text);
    transfer("Put", reference(BaseType::Text), &slot, BaseType::Text, 0, 3);
    close();
    EXPECT_EQ(store->contents("f"), "\xFE\xFF"
                                    "\xFE\xFF\xFF\xFF"
                                    "\xFE"
                                    "\0\0\xC0\x3F"
                                    "\0\0\0\0\0\0\xF8\x3F"
                                    "\x98\x3A\0\0\0\0\0\0"
                                    "a\x80"
                                    "a\x80 "s);
}

TEST_F(FilesTest, GetReadsWhatPutStored) {
    opened("\xFE\xFF"
           "\x01\0"
           "ab"
           "\0\0\0\0\0\0\xF0\x7F"s,
           kBinary);
    Slot slot{};
    transfer("Get", reference(BaseType::Long), &slot, BaseType::Integer);
    EXPECT_EQ(slot.number, -2);
    transfer("Get", reference(BaseType::Long), &slot, BaseType::Boolean);
    EXPECT_EQ(slot.number, -1);
    slot.text = makeText(session.heap, u"xy");
    transfer("Get", reference(BaseType::Text), &slot, BaseType::Text);
    EXPECT_EQ(unitsOf(slot.text), u"ab");
    EXPECT_EQ(ask("EOF", {ofNumber(1)}), "Long 0");
    transfer("Get", reference(BaseType::Text), &slot, BaseType::Text, 5, 4);
    EXPECT_EQ(unitsOf(slot.text), u"ab\0\0"s);
    release(session.heap, slot.text);
    slot = {};
    EXPECT_THROW(transfer("Get", reference(BaseType::Double), &slot, BaseType::Double, 7), basic::RuntimeError);
    transfer("Get", reference(BaseType::Long), &slot, BaseType::Long, 100);
    EXPECT_EQ(slot.number, 0);
    EXPECT_EQ(ask("EOF", {ofNumber(1)}), "Long -1");
}

TEST_F(FilesTest, RandomFilesHaveRecordsAndLengths) {
    open("f", 1, kRandom, 6);
    Slot slot{};
    slot.text = utf("abc").text;
    transfer("Put", reference(BaseType::Text), &slot, BaseType::Text, 2);
    EXPECT_EQ(ask("Loc", {ofNumber(1)}), "Long 2");
    EXPECT_EQ(ask("Seek", {ofNumber(1)}), "Long 3");
    slot.text = utf("abcde").text;
    EXPECT_EQ(putError(reference(BaseType::Text), &slot, BaseType::Text), 59);
    slot.number = 7;
    transfer("Put", reference(BaseType::Long), &slot, BaseType::Long, 1);
    close();
    EXPECT_EQ(store->contents("f"), "\x07\0\0\0\0\0"
                                    "\x03\0abc\0"s);
    open("f", 1, kRandom, 6);
    (void)callForm(natives.find("Seek")[1], {ofNumber(1), ofNumber(2)});
    slot.text = nullptr;
    transfer("Get", reference(BaseType::Text), &slot, BaseType::Text);
    EXPECT_EQ(unitsOf(slot.text), u"abc");
    release(session.heap, slot.text);
}

TEST_F(FilesTest, VariantsAreStoredWithTheirKind) {
    open("f", 1, kBinary);
    for (const Variant& v : {Variant(), ofNumber(5, kInteger), utf("hi"), ofBoolean(true)}) {
        Slot slots[2];
        variantAt(slots) = v;
        transfer("Put", reference(BaseType::Variant), slots, BaseType::Variant);
    }
    close();
    EXPECT_EQ(store->contents("f"), "\0\0"
                                    "\x02\0\x05\0"
                                    "\x08\0\x02\0hi"
                                    "\x0B\0\xFF\xFF"s);
    open("f", 1, kBinary);
    std::string all;
    for (int i = 0; i < 4; ++i) {
        Slot slots[2]{};
        transfer("Get", reference(BaseType::Variant), slots, BaseType::Variant);
        all += shown(kept(variantAt(slots))) + ";";
    }
    EXPECT_EQ(all, "Empty;Integer 5;String hi;Boolean True;");
    close();
    opened("\x24\0"s, kBinary);
    Slot slots[2]{};
    EXPECT_THROW(transfer("Get", reference(BaseType::Variant), slots, BaseType::Variant), basic::RuntimeError);
}

TEST_F(FilesTest, RecordsArePackedWithLengthsAndBounds) {
    image::RecordLayout inner{{{{BaseType::Byte}}, {{BaseType::Integer}}}};
    image::RecordLayout outer{{{{BaseType::Text}},
                               {{BaseType::Text}, image::kNone, 3},
                               {{BaseType::Record, TypeForm::Value, 0}},
                               {{BaseType::Integer, TypeForm::Array}}}};
    code.records = {inner, outer};
    Slot fields[5]{};
    const Bounds bounds{1, 2};
    fields[0].text = makeText(session.heap, u"ab");
    fields[1].text = makeText(session.heap, u"c  ");
    fields[2].number = 200;
    fields[3].number = -1;
    fields[4].array = makeArray(session.heap, {{BaseType::Integer}}, {&bounds, 1});
    fields[4].array->as<std::int32_t>()[1] = 9;
    open("f", 1, kBinary);
    transfer("Put", reference(BaseType::Record, 1), fields, BaseType::Record);
    close();
    EXPECT_EQ(store->contents("f"), "\x02\0ab"
                                    "c  "
                                    "\xC8\xFF\xFF"
                                    "\x01\0\x02\0\0\0\x01\0\0\0"
                                    "\0\0\x09\0"s);
    open("f", 1, kBinary);
    Slot read[5]{};
    transfer("Get", reference(BaseType::Record, 1), read, BaseType::Record);
    EXPECT_EQ(unitsOf(read[0].text), u"ab");
    EXPECT_EQ(unitsOf(read[1].text), u"c  ");
    EXPECT_EQ(read[2].number, 200);
    EXPECT_EQ(read[3].number, -1);
    EXPECT_EQ(read[4].array->bounds.front(), bounds);
    EXPECT_EQ(read[4].array->as<std::int32_t>()[1], 9);
    for (Slot* record : {fields, read}) {
        release(session.heap, record[0].text);
        release(session.heap, record[1].text);
        release(session.heap, record[4].array);
    }
}

TEST_F(FilesTest, ArraysAreStoredElementByElement) {
    const Bounds bounds{0, 2};
    Slot variable{};
    variable.array = makeArray(session.heap, {{BaseType::Byte}}, {&bounds, 1});
    std::copy_n("xyz", 3, variable.array->as<char>());
    open("f", 1, kBinary);
    transfer("Put", {BaseType::Byte, TypeForm::ArrayReference}, &variable, BaseType::Byte);
    EXPECT_EQ(ask("LOF", {ofNumber(1)}), "Long 3");
    EXPECT_EQ(store->contents("f"), "xyz");
    std::fill_n(variable.array->as<char>(), 3, '\0');
    transfer("Get", {BaseType::Byte, TypeForm::ArrayReference}, &variable, BaseType::Byte, 1);
    EXPECT_EQ(std::string_view(variable.array->as<char>(), 3), "xyz");
    release(session.heap, variable.array);
}

#ifdef __linux__
class FolderStoreTest : public testing::TestWithParam<FolderStore::Resolution> {};

INSTANTIATE_TEST_SUITE_P(Each, FolderStoreTest,
                         testing::Values(FolderStore::Resolution::ByKernel, FolderStore::Resolution::Stepwise));

TEST_P(FolderStoreTest, LinksDoNotLeadOut) {
    const auto top = std::filesystem::temp_directory_path() / ("folder-store-" + std::to_string(getpid()));
    std::filesystem::remove_all(top);
    std::filesystem::create_directories(top / "app" / "sub");
    std::ofstream(top / "secret") << "no";
    std::filesystem::create_symlink(top / "secret", top / "app" / "absolute");
    std::filesystem::create_symlink("../secret", top / "app" / "relative");
    std::filesystem::create_directory_symlink("..", top / "app" / "up");
    {
        FolderStore store((top / "app").string(), GetParam());
        for (const auto* path : {"absolute", "relative", "up/secret"}) {
            EXPECT_FALSE(store.find(path)) << path;
            EXPECT_THROW((void)store.open(path, {true, false, false, false}), basic::RuntimeError) << path;
            EXPECT_THROW((void)store.open(path, {true, true, true, true}), basic::RuntimeError) << path;
        }
        EXPECT_THROW(store.remove("up/secret"), basic::RuntimeError);
        const auto file = store.open("sub/a", {true, true, true, false});
        file->write(2, "xy");
        char bytes[8]{};
        EXPECT_EQ(file->read(0, bytes, 8), 4U);
        EXPECT_EQ(std::string_view(bytes, 4), "\0\0xy"sv);
        EXPECT_EQ(store.find("sub/a")->size, 4U);
        EXPECT_EQ(store.names("sub"), std::vector<std::string>{"a"});
        store.setReadOnly("sub/a", true);
        EXPECT_TRUE(store.find("sub/a")->isReadOnly);
        store.rename("sub/a", "b");
        EXPECT_FALSE(store.find("sub/a"));
        store.makeFolder("new");
        EXPECT_TRUE(store.find("new")->isFolder);
        EXPECT_THROW(store.makeFolder("new"), basic::RuntimeError);
        store.removeFolder("new");
        store.remove("b");
        EXPECT_FALSE(store.find("b"));
    }
    EXPECT_EQ(std::filesystem::file_size(top / "secret"), 2U);
    std::filesystem::remove_all(top);
}
#endif

} // namespace tamarik
