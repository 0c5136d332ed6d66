// Parsing of version resources: content, the choice of string table, and damaged resources.
#include "fileinfo/VersionResource.h"

#include <gtest/gtest.h>

#include "fileinfo/PeBuilder.h"

using namespace PeBuilder;

namespace {

std::string StringOf(const std::optional<VersionResource>& resource, const std::string& key) {
    const StringTable* table = resource ? resource->PreferredTable() : nullptr;
    for (const auto& [name, value] : table ? table->strings : StringTable{}.strings) {
        if (name == key)
            return value;
    }
    return "<missing>";
}

TEST(VersionResource, ReadsFixedPartStringsAndTranslations) {
    std::u16string text = u"Gr\u00FC\u00DFe \u6E38\u620F \U0001F3AE";
    text += static_cast<char16_t>(0xD800);  // a high surrogate with no partner
    std::optional<VersionResource> resource = VersionResource::Parse(
        Resource({{u"ProductName", u"Tarvolin"}, {u"Empty", u""}, {u"Comments", text}}));
    ASSERT_TRUE(resource && resource->Fixed());
    EXPECT_EQ(resource->Fixed()->fileVersion.Text(), "1.2.3.4");
    EXPECT_EQ(resource->Fixed()->productVersion, (VersionNumber{{5, 6, 7, 8}}));
    EXPECT_EQ(resource->Translations(), std::vector<uint32_t>{0x04B00409});
    EXPECT_EQ(StringOf(resource, "ProductName"), "Tarvolin");
    EXPECT_EQ(StringOf(resource, "Empty"), "");
    EXPECT_EQ(StringOf(resource, "Comments"),
              "Gr\xC3\xBC\xC3\x9F"
              "e \xE6\xB8\xB8\xE6\x88\x8F \xF0\x9F\x8E\xAE\xEF\xBF\xBD");
}

struct TableChoice {
    std::vector<uint32_t> translations;
    std::vector<std::u16string> tables;
    std::string chosen;
};

class VersionTableChoice : public ::testing::TestWithParam<TableChoice> {};

TEST_P(VersionTableChoice, PicksTheExpectedTable) {
    std::vector<Block> tables;
    for (const std::u16string& name : GetParam().tables)
        tables.push_back(TableBlock(name, {}));
    std::optional<VersionResource> resource = VersionResource::Parse(Serialize(
        RootBlock(Fixed{}, {StringFileInfoBlock(tables), VarFileInfoBlock(GetParam().translations)})));
    ASSERT_TRUE(resource && resource->PreferredTable());
    EXPECT_EQ(resource->PreferredTable()->translation, GetParam().chosen);
}

INSTANTIATE_TEST_SUITE_P(
    Tables, VersionTableChoice,
    ::testing::Values(TableChoice{{0x04E40407}, {u"040904B0", u"040704E4"}, "040704E4"},
                      TableChoice{{0x04B0040C, 0x04E40407}, {u"040704E4", u"040C04B0"}, "040C04B0"},
                      TableChoice{{0x04B00409}, {u"040704B0", u"040904b0"}, "040904b0"},
                      TableChoice{{0x04B00407}, {u"040C04B0", u"040904E4", u"040904B0"}, "040904B0"},
                      TableChoice{{}, {u"040704B0", u"040904E4"}, "040904E4"},
                      TableChoice{{}, {u"040704B0", u"04090000"}, "04090000"},
                      TableChoice{{0x04B00407}, {u"040C04B0", u"041004B0"}, "040C04B0"}));

TEST(VersionResource, AcceptsWhatRealWritersProduce) {
    Block root = RootBlock(Fixed{}, {StringFileInfoBlock({TableBlock(u"040904B0", {{u"A", u"alpha"}})})});
    std::vector<Block>& strings = root.children[0].children[0].children;
    strings.push_back(TextBlock(u"Bytes", u"counted in bytes"));
    strings.back().valueLength = 34;
    strings.push_back(TextBlock(u"NoNul", u"unterminated"));
    strings.back().value.resize(strings.back().value.size() - 2);
    std::string padded = Serialize(root) + std::string(8, '\0');  // zeros behind the root's last child
    PutU16(padded, 0, static_cast<uint32_t>(padded.size()));
    root.value.clear();
    root.valueLength = 0;
    for (const std::string& bytes : {padded, Serialize(root)}) {
        std::optional<VersionResource> resource = VersionResource::Parse(bytes);
        EXPECT_EQ(StringOf(resource, "A") + StringOf(resource, "Bytes") + StringOf(resource, "NoNul"),
                  "alphacounted in bytesunterminated");
        EXPECT_EQ(resource && resource->Fixed(), bytes == padded);
    }
}

// In the usual resource the root's fixed part starts at 40, StringFileInfo at 92, its table at 128 and the
// table's first string at 152.
using Field = std::pair<std::size_t, uint16_t>;  // a 16-bit field's offset and the value it is damaged to

class DamagedVersionResource : public ::testing::TestWithParam<Field> {};

TEST_P(DamagedVersionResource, IsRejected) {
    std::string bytes = Resource({{u"ProductName", u"Tarvolin"}, {u"ProductVersion", u"1.0"}});
    ASSERT_TRUE(VersionResource::Parse(bytes));
    ASSERT_EQ(bytes.substr(98, 4), Utf16(u"St"));
    PutU16(bytes, GetParam().first, GetParam().second);
    EXPECT_FALSE(VersionResource::Parse(bytes));
}

INSTANTIATE_TEST_SUITE_P(Blocks, DamagedVersionResource,
                         ::testing::Values(Field{0, 0xFFFF},      // longer than the resource
                                           Field{0, 4},           // shorter than a header
                                           Field{0, 60},          // ends inside the fixed part
                                           Field{6, 'X'},         // another root key
                                           Field{40, 0x04BE},     // wrong signature
                                           Field{92, 0x1000},     // child runs past the root
                                           Field{92, 5},          // child shorter than a header
                                           Field{128, 20},        // table name without its NUL
                                           Field{152, 0xFFF0}));  // string runs past table

TEST(VersionResource, EveryTruncationIsRejected) {
    std::string bytes = Resource({{u"ProductName", u"Tarvolin"}});
    for (std::size_t size = 0; size < bytes.size(); ++size)
        EXPECT_FALSE(VersionResource::Parse(bytes.substr(0, size))) << size;
}

}  // namespace
