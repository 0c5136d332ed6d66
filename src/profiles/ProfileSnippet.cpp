#include "profiles/ProfileSnippet.h"

#include <algorithm>

#include "base/mString.h"
#include "profiles/Profile.h"
#include "storage/IniEncoding.h"
#include "storage/mIni.h"

namespace ProfileSnippet {
namespace {

std::string StoredText(bool value) {
    return value ? "1" : "0";
}
std::string StoredText(int16_t value) {
    return std::to_string(value);
}
std::string StoredText(const std::string& value) {
    return value;
}

bool IsSettingKey(const std::string& key) {
    return std::any_of(ProfileSettings::kAll.begin(), ProfileSettings::kAll.end(), [&](const auto& setting) {
        return std::visit(
            [&](const auto* declared) { return mString::EqualsNoCase(key, declared->key.name); }, setting);
    });
}

// Text that a person copied holds no control characters besides tabs and line ends.
bool IsText(std::string_view text) {
    return std::none_of(text.begin(), text.end(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return (byte < 0x20 && c != '\t' && c != '\r' && c != '\n') || byte == 0x7F;
    });
}

// The first number setting whose value the loading rules cannot read, as "KEY=value"; "" when all can be.
std::string BadNumber(const IniDocument& document, const std::string& section) {
    for (const ProfileSettings::Any& setting : ProfileSettings::kAll) {
        const auto* const* number = std::get_if<const ProfileSetting<int16_t>*>(&setting);
        if (number == nullptr)
            continue;
        const std::optional<std::string> value = document.Value(section, (*number)->key.name);
        try {
            mString::ToInt16(mIni::AsRead(value, "0"));
        } catch (...) {
            return std::string((*number)->key.name) + "=" + value.value_or("");
        }
    }
    return {};
}

}  // namespace

std::string Format(const Profile& profile) {
    std::string text = "[" + profile.ProfileName() + "]" + mString::kCrLf;
    for (const ProfileSettings::Any& setting : ProfileSettings::kAll) {
        std::visit(
            [&](const auto* declared) {
                text += std::string(declared->key.name) + "=" + StoredText(profile.Get(*declared)) +
                        mString::kCrLf;
            },
            setting);
    }
    return text;
}

Parsed Parse(std::string_view bytes) {
    Parsed parsed;
    if (bytes.size() > kLongest) {
        parsed.problem = "ERR_ProfileTextTooLong";
        return parsed;
    }
    const std::string text = DecodeIni(bytes).text;
    parsed.document = IniDocument::Parse(text);
    const std::vector<std::string> sections = parsed.document.SectionNames();
    if (sections.size() > 1) {
        parsed.problem = "ERR_ProfileTextSeveral";
        return parsed;
    }
    std::size_t ours = 0;
    if (sections.size() == 1 && IsText(text)) {
        parsed.section = sections.front();
        for (const std::string& key : parsed.document.KeyNames(parsed.section)) {
            const auto named = [&key](const std::string& other) { return mString::EqualsNoCase(other, key); };
            if (IsSettingKey(key))
                ++ours;
            else if (std::none_of(parsed.unknownKeys.begin(), parsed.unknownKeys.end(), named))
                parsed.unknownKeys.push_back(key);
        }
    }
    if (ours == 0) {
        parsed.problem = "ERR_ProfileTextNone";
        return parsed;
    }
    parsed.detail = BadNumber(parsed.document, parsed.section);
    if (!parsed.detail.empty())
        parsed.problem = "ERR_ProfileTextBadNumber";
    return parsed;
}

}  // namespace ProfileSnippet
