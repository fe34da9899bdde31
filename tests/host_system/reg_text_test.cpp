#include "Basic/runtime_error.h"
#include "Host/registry/reg_text.h"
#include "Host/registry/utf16.h"
#include <gtest/gtest.h>

using host::RegInstruction;
using Kind = RegInstruction::Kind;
using namespace std::string_literals;

namespace {

const std::string kHeader = "Windows Registry Editor Version 5.00\r\n\r\n";

std::vector<RegInstruction> readBody(const std::string& body) { return host::readRegText(kHeader + body, "a.reg"); }

host::RegValue valueOf(const std::string& data) {
    return readBody("[HKEY_CURRENT_USER\\A]\r\n\"v\"=" + data + "\r\n").at(1).value;
}

std::string regErrorOf(const std::string& bytes) {
    const auto err = basic::attempt([&] { host::readRegText(bytes, "a.reg"); });
    return err.Number == 321 ? err.Description : "no error 321";
}

std::string bodyError(const std::string& body) { return regErrorOf(kHeader + body); }

} // namespace

TEST(RegText, ReadsKeysAndValuesInOrderWithTheirLines) {
    const auto all = readBody("; a comment\r\n"
                              "[HKEY_CURRENT_USER\\Soft[1]ware]\r\n"
                              "@=\"default\"\r\n"
                              "\"name\"=\"text\" ; remark\r\n"
                              "\"gone\"=-\r\n"
                              "  [-HKEY_CURRENT_USER\\Old]\r\n");
    ASSERT_EQ(all.size(), 5u);
    EXPECT_EQ(all[0].kind, Kind::MakeKey);
    EXPECT_EQ(all[0].key, "HKEY_CURRENT_USER\\Soft[1]ware");
    EXPECT_EQ(all[0].line, 4u);
    EXPECT_EQ(all[1].name, "");
    EXPECT_EQ(all[1].value, (host::RegValue{1, "default\0"s}));
    EXPECT_EQ(all[2].name, "name");
    EXPECT_EQ(all[3].kind, Kind::DeleteValue);
    EXPECT_EQ(all[3].name, "gone");
    EXPECT_EQ(all[4].kind, Kind::DeleteKey);
    EXPECT_EQ(all[4].key, "HKEY_CURRENT_USER\\Old");
    EXPECT_EQ(all[4].line, 8u);
}

TEST(RegText, ReadsEveryKindOfData) {
    EXPECT_EQ(valueOf(R"("C:\\a \"b\"")"), (host::RegValue{1, "C:\\a \"b\"\0"s}));
    EXPECT_EQ(valueOf("dword:0000ffFE"), (host::RegValue{4, "\xFE\xFF\0\0"s}));
    EXPECT_EQ(valueOf("dword:7"), (host::RegValue{4, "\x07\0\0\0"s}));
    EXPECT_EQ(valueOf("hex:"), (host::RegValue{3, ""}));
    EXPECT_EQ(valueOf("hex:00,fF,7"), (host::RegValue{3, "\0\xFF\x07"s}));
    EXPECT_EQ(valueOf("hex(2):25,00,e4,00,00,00"), (host::RegValue{2, "%\xC3\xA4\0"s}));
    EXPECT_EQ(valueOf("hex(7):61,00,00,00,62,00,00,00,00,00"), (host::RegValue{7, "a\0b\0\0"s}));
    EXPECT_EQ(valueOf("hex(b):01,00,00,00,00,00,00,00"), (host::RegValue{11, "\1\0\0\0\0\0\0\0"s}));
    EXPECT_EQ(valueOf("hex(0):"), (host::RegValue{0, ""}));
    EXPECT_EQ(valueOf("hex(ffff1234):01"), (host::RegValue{0xFFFF1234, "\x01"}));
    EXPECT_EQ(valueOf("hex(2):3d,d8,00,de"), (host::RegValue{2, "\xF0\x9F\x98\x80"}));
}

TEST(RegText, ContinuesHexDataOverLines) {
    EXPECT_EQ(valueOf("hex:01,\\\r\n  02,\\ ; remark\r\n  03"), (host::RegValue{3, "\x01\x02\x03"}));
    EXPECT_EQ(valueOf("hex:\\\n  01"), (host::RegValue{3, "\x01"}));
}

TEST(RegText, ReadsUtf16AndUtf8WithAnyLineEnd) {
    const auto text =
        "Windows Registry Editor Version 5.00\n[HKEY_CURRENT_USER\\\xC3\xA4]\r\"a\"=\"\xE2\x82\xAC\"\r\n"s;
    const auto utf16 = host::utf16BytesFromUtf8(text).value();
    for (const auto& bytes : {text, "\xEF\xBB\xBF" + text, utf16, "\xFF\xFE" + utf16}) {
        const auto all = host::readRegText(bytes, "a.reg");
        ASSERT_EQ(all.size(), 2u);
        EXPECT_EQ(all[0].key, "HKEY_CURRENT_USER\\\xC3\xA4");
        EXPECT_EQ(all[1].value.data, "\xE2\x82\xAC\0"s);
        EXPECT_EQ(all[1].line, 3u);
    }
}

TEST(RegText, ReportsTheLineAndTheReasonOfEveryError) {
    EXPECT_EQ(regErrorOf(""), "a.reg:1: the first line is not \"Windows Registry Editor Version 5.00\"");
    EXPECT_EQ(regErrorOf("REGEDIT3\r\n"), "a.reg:1: the first line is not \"Windows Registry Editor Version 5.00\"");
    EXPECT_EQ(regErrorOf("\xFE\xFF\0W"s), "a.reg:1: UTF-16 in big-endian byte order is not a registry file");
    EXPECT_EQ(regErrorOf("\xFF\xFEW"s), "a.reg:1: the file is truncated or is not UTF-16 text");
    EXPECT_EQ(bodyError("[A]\n\"\xE4\"=-"), "a.reg:4: the text is neither UTF-16 nor UTF-8");
    EXPECT_EQ(bodyError("[A"), "a.reg:3: \"]\" is missing after the key");
    EXPECT_EQ(bodyError("[A] b"), "a.reg:3: \"]\" is missing after the key");
    EXPECT_EQ(bodyError("[]"), "a.reg:3: the key has no name");
    EXPECT_EQ(bodyError("[-]"), "a.reg:3: the key has no name");
    EXPECT_EQ(bodyError("\"a\"=-"), "a.reg:3: a value is outside a key");
    EXPECT_EQ(bodyError("[-A]\n\"a\"=-"), "a.reg:4: a value is outside a key");
    EXPECT_EQ(bodyError("[A]\na=1"),
              "a.reg:4: a line must begin with \"[\", a value's name in quotation marks, \"@\" or \";\"");
    EXPECT_EQ(bodyError("[A]\n\"a"), "a.reg:4: the closing quotation mark is missing");
    EXPECT_EQ(bodyError("[A]\n\"a\""), "a.reg:4: \"=\" is missing after the value's name");
    EXPECT_EQ(bodyError("[A]\n@=\"C:\\new\""),
              "a.reg:4: \"\\\" in a text must be followed by another \"\\\" or a quotation mark");
    EXPECT_EQ(bodyError("[A]\n@=\"a\\"),
              "a.reg:4: \"\\\" in a text must be followed by another \"\\\" or a quotation mark");
    EXPECT_EQ(bodyError("[A]\n@=\"a\" b"), "a.reg:4: \" b\" follows the data");
    EXPECT_EQ(bodyError("[A]\n@=1"), "a.reg:4: the data must be \"text\", dword:, hex:, hex(type): or -");
    EXPECT_EQ(bodyError("[A]\n@=dword:"), "a.reg:4: dword: must be followed by up to eight hexadecimal digits");
    EXPECT_EQ(bodyError("[A]\n@=dword:123456789"), "a.reg:4: \"9\" follows the data");
    EXPECT_EQ(bodyError("[A]\n@=hex(g):01"), "a.reg:4: the type in hex(type): is not a hexadecimal number");
    EXPECT_EQ(bodyError("[A]\n@=hex(2:01"), "a.reg:4: the type in hex(type): is not a hexadecimal number");
    EXPECT_EQ(bodyError("[A]\n@=hex:01,\\\n0x"), "a.reg:5: \"x\" follows the data");
    EXPECT_EQ(bodyError("[A]\n@=hex:zz"),
              "a.reg:4: hex data must be bytes of two hexadecimal digits, separated by commas");
    EXPECT_EQ(bodyError("[A]\n@=hex:01,\\"), "a.reg:4: the file ends after a \"\\\"");
    EXPECT_EQ(bodyError("[A]\n@=hex(2):61"), "a.reg:4: the bytes are not UTF-16 text");
    EXPECT_EQ(bodyError("[A]\n@=hex(1):00,d8"), "a.reg:4: the bytes are not UTF-16 text");
}

TEST(RegText, WritesLikeRegistryEditors) {
    const std::vector<RegInstruction> all{
        {Kind::MakeKey, "HKEY_CURRENT_USER\\A", "", {}, 0},
        {Kind::SetValue, "HKEY_CURRENT_USER\\A", "", {1, "say \"C:\\\"\0"s}, 0},
        {Kind::SetValue, "HKEY_CURRENT_USER\\A", "n\"", {4, "\xFF\xFF\xFF\xFF"}, 0},
        {Kind::SetValue, "HKEY_CURRENT_USER\\A", "lines", {1, "a\r\nb\0"s}, 0},
        {Kind::SetValue, "HKEY_CURRENT_USER\\A", "bytes", {3, std::string(30, '\x7F')}, 0},
        {Kind::DeleteValue, "HKEY_CURRENT_USER\\A", "gone", {}, 0},
        {Kind::DeleteKey, "HKEY_CURRENT_USER\\Old", "", {}, 0},
    };
    EXPECT_EQ(host::writeRegText(all, host::RegTextEncoding::Utf8),
              "Windows Registry Editor Version 5.00\r\n"
              "\r\n[HKEY_CURRENT_USER\\A]\r\n"
              "@=\"say \\\"C:\\\\\\\"\"\r\n"
              "\"n\\\"\"=dword:ffffffff\r\n"
              "\"lines\"=hex(1):61,00,0d,00,0a,00,62,00,00,00\r\n"
              "\"bytes\"=hex:7f,7f,7f,7f,7f,7f,7f,7f,7f,7f,7f,7f,7f,7f,7f,7f,7f,7f,7f,7f,7f,7f,\\\r\n"
              "  7f,7f,7f,7f,7f,7f,7f,7f\r\n"
              "\"gone\"=-\r\n"
              "\r\n[-HKEY_CURRENT_USER\\Old]\r\n\r\n");
}

TEST(RegText, RoundTripsInBothEncodings) {
    std::vector<RegInstruction> all{{Kind::MakeKey, "HKEY_CURRENT_USER\\\xC3\xA4]", "", {}, 0}};
    const std::vector<host::RegValue> values{{0, "x"},         {1, ""},
                                             {1, "a"},         {1, "\0"s},
                                             {1, "a\0b\0"s},   {2, "%A%\0"s},
                                             {3, ""},          {3, "\0\1"s},
                                             {4, "\1\2\3\4"},  {4, "\1"},
                                             {5, "\1\2\3\4"},  {7, "a\0b\0\0"s},
                                             {11, "12345678"}, {1, "\xF0\x9F\x98\x80\0"s},
                                             {0xFFFFFFFF, "z"}};
    for (std::size_t i = 0; i < values.size(); ++i)
        all.push_back({Kind::SetValue, all[0].key, "v" + std::to_string(i), values[i], 0});
    for (const auto encoding : {host::RegTextEncoding::Utf16, host::RegTextEncoding::Utf8}) {
        const auto back = host::readRegText(host::writeRegText(all, encoding), "a.reg");
        ASSERT_EQ(back.size(), all.size());
        EXPECT_EQ(back[0].key, all[0].key);
        for (std::size_t i = 1; i < all.size(); ++i) EXPECT_EQ(back[i].value, all[i].value) << i;
    }
}

TEST(RegText, RefusesToWriteTextThatIsNotUtf8) {
    const RegInstruction bad{Kind::SetValue, "HKEY_CURRENT_USER\\A", "v", {2, "\xE4\0"s}, 0};
    EXPECT_EQ(basic::attempt([&] { host::writeRegText({bad}, host::RegTextEncoding::Utf16); }).Number, 5);
}

TEST(RegText, ReadsFilesOfOlderEditorsInCodePage1252) {
    const auto all = host::readRegText("REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\A]\r\n\"caf\xE9\"=\"na\xEFve\"\r\n"
                                       "\"path\"=hex(2):25,e9,25,00\r\n\"number\"=dword:1\r\n",
                                       "a.reg");
    ASSERT_EQ(all.size(), 4u);
    EXPECT_EQ(all[1].name, "café");
    EXPECT_EQ(all[1].value, (host::RegValue{fernwick::REG_SZ, "naïve\0"s}));
    EXPECT_EQ(all[2].value, (host::RegValue{fernwick::REG_EXPAND_SZ, "%é%\0"s}));
    EXPECT_EQ(all[3].value.type, std::uint32_t(fernwick::REG_DWORD));
    EXPECT_EQ(regErrorOf("REGEDIT41\r\n"), "a.reg:1: the first line is not \"Windows Registry Editor Version 5.00\"");
}
