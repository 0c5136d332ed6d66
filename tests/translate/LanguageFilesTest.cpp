// The language files the program ships: complete, alike, and within what the reader can return.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>

#include "storage/mIni.h"

namespace {

using Keys = std::map<std::string, std::string>;  // "SECTION/KEY" -> value

std::string Content(const std::string& name) {
    std::ifstream in(std::string(PAVONEL_SOURCE_DIR) + "/" + name, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

Keys KeysOf(const std::string& name) {
    Keys keys;
    std::istringstream lines(Content(name));
    std::string line, section;
    while (std::getline(lines, line)) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (line.empty() || line[0] == ';')
            continue;
        if (line[0] == '[') {
            section = line.substr(1, line.find(']') - 1);
        } else {
            std::size_t equals = line.find('=');
            EXPECT_NE(equals, std::string::npos) << name << ": " << line;
            std::string key = section + "/" + line.substr(0, equals);
            EXPECT_TRUE(keys.emplace(key, line.substr(equals + 1)).second) << name << ": twice " << key;
        }
    }
    return keys;
}

std::set<std::string> Placeholders(const std::string& text) {
    static const std::regex placeholder("%P[12]%");
    std::set<std::string> found;
    for (std::sregex_iterator it(text.begin(), text.end(), placeholder), end; it != end; ++it)
        found.insert(it->str());
    return found;
}

const char* const kLanguages[] = {"config/LNG_EN.ini", "config/LNG_DE.ini"};

TEST(LanguageFiles, CarryTheSameKeysAndPlaceholders) {
    Keys english = KeysOf(kLanguages[0]);
    Keys german = KeysOf(kLanguages[1]);
    ASSERT_GT(english.size(), 150u);
    for (const auto& [key, text] : english) {
        auto other = german.find(key);
        ASSERT_NE(other, german.end()) << "German lacks " << key;
        EXPECT_EQ(Placeholders(text), Placeholders(other->second)) << key;
    }
    EXPECT_EQ(english.size(), german.size());
}

TEST(LanguageFiles, EveryTextIsReadableWhole) {
    for (const char* file : kLanguages) {
        for (const auto& [key, text] : KeysOf(file)) {
            ASSERT_FALSE(text.empty()) << file << ": " << key;
            EXPECT_LT(text.size(), mIni::kReadBufferSize) << file << ": " << key;
            // The reader drops blanks around a value, so a text must not rely on them.
            EXPECT_TRUE(text.find_first_of(" \t") != 0 && text.find_last_of(" \t") != text.size() - 1)
                << file << ": " << key;
        }
        std::string content = Content(file);
        std::size_t lineFeeds = std::count(content.begin(), content.end(), '\n');
        std::regex crLf("\r\n");
        std::size_t crLfs = std::distance(std::sregex_iterator(content.begin(), content.end(), crLf), {});
        EXPECT_EQ(crLfs, lineFeeds) << file << " uses CRLF line breaks";
    }
}

}  // namespace
