#include "core_world.h"
#include "tests/support/errors.h"

using namespace fernwick;

namespace {
struct RegistryTest : test::CoreTest {
    std::uint32_t key = registry.OpenOrCreateKey(kUser, "Software\\Test", KEY_ALL_ACCESS);
    ~RegistryTest() override { registry.CloseKey(key); }
};
} // namespace

TEST_F(RegistryTest, MissingKeysAreHandleZero) {
    EXPECT_EQ(registry.OpenKey(kUser, "Software\\Nowhere", KEY_READ), 0U);
    EXPECT_FALSE(registry.CloseKey(4711));
}

TEST_F(RegistryTest, ReadOnlyKeysAreHandleZero) {
    store.readOnlyRoots.insert(kMachine);
    EXPECT_EQ(registry.OpenOrCreateKey(kMachine, "Software\\New", KEY_ALL_ACCESS), 0U);
    std::uint32_t made = 1;
    EXPECT_EQ(registry.CreateKey(kMachine, "Software\\New", made), ERROR_ACCESS_DENIED);
    EXPECT_EQ(made, 0U);
}

TEST_F(RegistryTest, EveryTypeComesBackAsItWasSet) {
    registry.SetValue(key, "text", "Grüße", REG_SZ);
    registry.SetValue(key, "number", -7, REG_DWORD);
    registry.SetValue(key, "bytes", RegistryBytes{0, 255, 128}, REG_BINARY);
    EXPECT_EQ(std::get<std::string>(registry.GetValue(key, "TEXT").data), "Grüße");
    EXPECT_EQ(std::get<std::int32_t>(registry.GetValue(key, "number").data), -7);
    EXPECT_EQ(std::get<RegistryBytes>(registry.GetValue(key, "bytes").data), (RegistryBytes{0, 255, 128}));
}

TEST_F(RegistryTest, TheThreeTextTypesAndBothNumberTypesAreStoredAlike) {
    const auto bytes = [&](std::uint32_t& type) {
        std::uint32_t length = 0;
        std::string data(8, '?');
        store.RegQueryValueEx(key, "v", type, data, length);
        return data.substr(0, length);
    };
    std::uint32_t type = 0;
    for (const auto text : {REG_SZ, REG_EXPAND_SZ, REG_MULTI_SZ}) {
        registry.SetValue(key, "v", "ab", text);
        EXPECT_EQ(bytes(type), std::string("ab\0", 3)) << text;
        EXPECT_EQ(type, text);
        EXPECT_EQ(std::get<std::string>(registry.GetValue(key, "v").data), "ab") << text;
        EXPECT_EQ(registry.EnumValues(key)->front().text, "ab") << text;
    }
    for (const auto number : {REG_DWORD, REG_DWORD_BIG_ENDIAN}) {
        registry.SetValue(key, "v", 7, number);
        EXPECT_EQ(bytes(type), std::string("\7\0\0\0", 4)) << number;
        EXPECT_EQ(type, number);
        EXPECT_EQ(std::get<std::int32_t>(registry.GetValue(key, "v").data), 7) << number;
        EXPECT_EQ(registry.GetStringValue(key, "v").text, "7") << number;
    }
}

TEST_F(RegistryTest, AKeyIsCreatedWithAccessToValuesAndSubkeys) {
    std::uint32_t made = 0;
    store.requested.clear();
    registry.CreateKey(kUser, "Software\\Made", made);
    registry.CloseKey(made);
    EXPECT_EQ(store.requested, std::vector<std::uint32_t>{15});
}

TEST_F(RegistryTest, TextIsStoredWithOneClosingNul) {
    registry.SetValue(key, "text", "ab", REG_SZ);
    std::uint32_t type = 0, length = 0;
    std::string data(3, '?');
    EXPECT_EQ(store.RegQueryValueEx(key, "text", type, data, length), ERROR_SUCCESS);
    EXPECT_EQ(data, std::string("ab\0", 3));
}

TEST_F(RegistryTest, ANumberAsTextIsItsDecimals) {
    registry.SetValue(key, "state", std::int32_t{1}, REG_SZ);
    EXPECT_EQ(registry.GetStringValue(key, "state").text, "1");
}

TEST_F(RegistryTest, AnEmptyValueReadsAsEmptyTextAndStatusZero) {
    store.RegSetValueEx(key, "empty", REG_SZ, "");
    const auto value = registry.GetValue(key, "empty");
    EXPECT_EQ(value.status, ERROR_SUCCESS);
    EXPECT_EQ(std::get<std::string>(value.data), "");
}

TEST_F(RegistryTest, AMissingValueReturnsItsStatus) {
    const auto value = registry.GetStringValue(key, "nothing");
    EXPECT_EQ(value.status, ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(value.text, "");
}

TEST_F(RegistryTest, AsTextNumbersAreDecimalAndBytesTheirCharacters) {
    registry.SetValue(key, "number", 42, REG_DWORD);
    registry.SetValue(key, "bytes", RegistryBytes{'a', 0x80}, REG_BINARY);
    store.RegSetValueEx(key, "other", 11, "12345678");
    EXPECT_EQ(registry.GetStringValue(key, "number").text, "42");
    EXPECT_EQ(registry.GetStringValue(key, "bytes").text, "a€");
    EXPECT_EQ(registry.GetStringValue(key, "other").text, "");
}

TEST_F(RegistryTest, EnumeratesKeysAndValues) {
    EXPECT_EQ(registry.EnumKeys(key), std::vector<std::string>{});
    for (const char* name : {"One", "Two"}) {
        std::uint32_t made = 0;
        registry.CreateKey(key, name, made);
        registry.CloseKey(made);
    }
    registry.SetValue(key, "a", "text", REG_SZ);
    registry.SetValue(key, "b", 7, REG_DWORD);
    EXPECT_EQ(registry.EnumKeys(key), (std::vector<std::string>{"One", "Two"}));
    const auto values = registry.EnumValues(key);
    ASSERT_TRUE(values && values->size() == 2);
    EXPECT_EQ((*values)[0].name + "=" + (*values)[0].text, "a=text");
    EXPECT_EQ((*values)[1].name + "=" + (*values)[1].text, "b=7");
}

TEST_F(RegistryTest, AKeyThatCannotBeReadHasNoList) {
    const auto writable = registry.OpenKey(kUser, "Software\\Test", KEY_SET_VALUE);
    EXPECT_FALSE(registry.EnumKeys(writable));
    EXPECT_FALSE(registry.EnumValues(writable));
    registry.CloseKey(writable);
    std::uint32_t made = 0;
    registry.CreateKey(key, "One", made);
    registry.CloseKey(made);
    registry.SetValue(key, "a", "text", REG_SZ);
    store.losesEntries = true;
    EXPECT_FALSE(registry.EnumKeys(key));
    EXPECT_FALSE(registry.EnumValues(key));
    EXPECT_FALSE(registry.EnumValuesRaw(key));
}

TEST_F(RegistryTest, BytesAndTextAreOneToOne) {
    RegistryBytes all(256);
    for (std::size_t i = 0; i < all.size(); ++i) all[i] = std::uint8_t(i);
    EXPECT_EQ(modRegistry2::StringToBytes(modRegistry2::BytesToString(all)), all);
    EXPECT_EQ(modRegistry2::StringToBytes("a→"), (RegistryBytes{'a', '?'}));
}

TEST(RegistryNumber, InvalidTextsAreError13) {
    EXPECT_EQ(registryNumber(std::string("12")), 12);
    EXPECT_EQ(test::errorOf([] { registryNumber(std::string("twelve")); }), 13);
    EXPECT_EQ(test::errorOf([] { registryNumber(RegistryBytes{1}); }), 13);
}
