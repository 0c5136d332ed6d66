// Parsing of version resources: content, the choice of string table, and damaged resources. In the
// fixture's resource the fixed part starts at 40, StringFileInfo at 92, its first table ("040904B0") at 128
// and that table's first string ("ProductName") at 152.
#include "fileinfo/VersionResource.h"

#include <gtest/gtest.h>

#include "fileinfo/VersionFixture.h"

using namespace VersionFixture;

namespace {

TEST(VersionResource, ReadsFixedPartStringsAndTranslations) {
    std::string bytes = Resource();
    PutU32(bytes, 56, 0x50006);  // product version 5.6.7.8
    PutU32(bytes, 60, 0x70008);
    std::u16string text = u"Gr\u00FC\u00DFe";
    text += static_cast<char16_t>(0xD800);  // a high surrogate with no partner
    Replace(bytes, Utf16(u"Tarvo Works"), Utf16(text + u"\u6E38\u620F \U0001F3AE"));
    std::optional<VersionResource> resource = VersionResource::Parse(bytes);
    ASSERT_TRUE(resource && resource->Fixed() && resource->PreferredTable());
    EXPECT_EQ(resource->Fixed()->fileVersion.Text(), "1.4.0.212");
    EXPECT_EQ(resource->Fixed()->productVersion, (VersionNumber{{5, 6, 7, 8}}));
    EXPECT_EQ(resource->Translations(), std::vector<uint32_t>{0x04E40407});
    EXPECT_EQ(resource->PreferredTable()->strings.front().second,
              "Gr\xC3\xBC\xC3\x9F"
              "e\xEF\xBF\xBD\xE6\xB8\xB8\xE6\x88\x8F \xF0\x9F\x8E\xAE");
}

// The fixture's two tables renamed to `first` and `second`, and its one translation replaced.
struct TableChoice {
    std::u16string first, second;
    uint32_t translation;
    std::string chosen;
};

TEST(VersionResource, PicksTheTableTheTranslationListNamesElseAnEnglishOne) {
    const TableChoice choices[] = {{u"040904B0", u"040704E4", 0x04E40407, "040704E4"},  // the list decides
                                   {u"040904b0", u"040704E4", 0x04B00409, "040904b0"},  // in any case
                                   // Else US English in Unicode, Latin-1, neutral, else the first table.
                                   {u"040904E4", u"040904B0", 0x04B00407, "040904B0"},
                                   {u"040704B0", u"040904E4", 0x04B0040C, "040904E4"},
                                   {u"040704B0", u"04090000", 0x04B0040C, "04090000"},
                                   {u"040C04B0", u"041004B0", 0x04B00407, "040C04B0"}};
    for (const TableChoice& choice : choices) {
        std::string bytes = Resource();
        Replace(bytes, Utf16(u"040904B0"), Utf16(choice.first));
        Replace(bytes, Utf16(u"040704E4"), Utf16(choice.second));
        Replace(bytes, Le32(0x04E40407), Le32(choice.translation));
        std::optional<VersionResource> resource = VersionResource::Parse(bytes);
        ASSERT_TRUE(resource && resource->PreferredTable());
        EXPECT_EQ(resource->PreferredTable()->translation, choice.chosen);
    }
}

TEST(VersionResource, AcceptsWhatRealWritersProduce) {
    std::string bytes = Resource();
    PutU16(bytes, 154, 38);         // a text's length counted in bytes
    PutU16(bytes, 220, 'X');        // a text without its NUL, which then ends with its block
    bytes += std::string(8, '\0');  // zeros behind the root's last child
    PutU16(bytes, 0, static_cast<uint32_t>(bytes.size()));
    std::optional<VersionResource> resource = VersionResource::Parse(bytes);
    ASSERT_TRUE(resource && resource->Table("040904B0"));
    EXPECT_EQ(resource->Table("040904B0")->strings.front().second, "Tarvolin (English)X");
    EXPECT_EQ(resource->PreferredTable()->translation, "040704E4");
}

TEST(VersionResource, DamageAndEveryTruncationAreRejected) {
    const std::pair<std::size_t, uint16_t> damages[] = {{0, 0xFFFF},     // longer than the resource
                                                        {0, 4},          // shorter than a header
                                                        {0, 60},         // ends inside the fixed part
                                                        {6, 'X'},        // another root key
                                                        {40, 0x04BE},    // wrong signature
                                                        {92, 0x1000},    // child runs past the root
                                                        {92, 5},         // child shorter than a header
                                                        {128, 20},       // table name without its NUL
                                                        {152, 0xFFF0}};  // string runs past the table
    for (const auto& [offset, value] : damages) {
        std::string bytes = Resource();
        PutU16(bytes, offset, value);
        EXPECT_FALSE(VersionResource::Parse(bytes)) << offset << " " << value;
    }
    std::string bytes = Resource();
    for (std::size_t size = 0; size < bytes.size(); ++size)
        EXPECT_FALSE(VersionResource::Parse(bytes.substr(0, size))) << size;
}

}  // namespace
