// The language files the program ships: complete, alike, and within what the reader can return.
#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <set>
#include <string>

#include "base/mString.h"
#include "platform/FileSystem.h"
#include "storage/mIni.h"

namespace {

using Keys = std::map<std::string, std::string>;  // "SECTION/KEY" -> value

// The keys of a shipped file, each once, with every line ended by CR LF.
Keys KeysOf(const std::string& name) {
    const auto content = platform::ReadFile(std::string(PAVONEL_SOURCE_DIR) + "/config/" + name);
    EXPECT_TRUE(content) << name;
    Keys keys;
    std::string section;
    mString::ForEachLine(content ? content->bytes : "", [&](const mString::Line& line) {
        EXPECT_EQ(line.lineBreak, "\r\n") << name << ": " << line.text;
        const std::string text(line.text);
        if (text.empty() || text[0] == ';') {
            return;
        } else if (text[0] == '[') {
            section = text.substr(1, text.find(']') - 1);
        } else {
            const std::size_t equals = text.find('=');
            EXPECT_NE(equals, std::string::npos) << name << ": " << text;
            const std::string key = section + "/" + text.substr(0, equals);
            EXPECT_TRUE(keys.emplace(key, text.substr(equals + 1)).second) << name << ": twice " << key;
        }
    });
    return keys;
}

std::set<std::string> Placeholders(const std::string& text) {
    static const std::regex placeholder("%P[12]%");
    std::set<std::string> found;
    for (std::sregex_iterator it(text.begin(), text.end(), placeholder), end; it != end; ++it)
        found.insert(it->str());
    return found;
}

// Every text can be read whole, and the reader, which drops blanks around a value, gives it as written.
TEST(LanguageFiles, CarryTheSameKeysAndPlaceholdersAndAreReadableWhole) {
    const Keys english = KeysOf("LNG_EN.ini");
    const Keys german = KeysOf("LNG_DE.ini");
    ASSERT_GT(english.size(), 150u);
    EXPECT_EQ(english.size(), german.size());
    for (const auto& [key, text] : english) {
        const auto other = german.find(key);
        ASSERT_NE(other, german.end()) << "German lacks " << key;
        EXPECT_EQ(Placeholders(text), Placeholders(other->second)) << key;
        for (const std::string& value : {text, other->second}) {
            EXPECT_FALSE(value.empty()) << key;
            EXPECT_LT(value.size(), mIni::kReadBufferSize) << key;
            EXPECT_EQ(mString::TrimView(value, " \t"), value) << key;
        }
    }
}

}  // namespace
