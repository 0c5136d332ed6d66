#include "translate/cTranslate.h"

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "base/mString.h"
#include "error/mError.h"
#include "storage/mIni.h"

namespace {

void Replace(std::string& text, std::string_view find, std::string_view replacement) {
    std::size_t start = 1;
    mString::ReplaceAll(text, find, replacement, start);
}

}  // namespace

cTranslate::Batch::Batch()
    : m_chosen(App().GetLanguageFile(App().Options().Language())), m_english(App().GetLanguageFile("EN")) {}

std::string cTranslate::Lookup(const std::string& section, const std::string& key) {
    const Application& app = App();
    std::string text = mIni::ReadFromIni(app.GetLanguageFile(app.Options().Language()), section, key, "");
    if (mString::Trim(text).empty()) {
        text = mIni::ReadFromIni(app.GetLanguageFile("EN"), section, key, kNoText);
    }
    return text;
}

std::string cTranslate::TranslateEx(const std::string& section, const std::string& key, const std::string& p1,
                                    const std::string& p2) const {
    try {
        std::string text = Lookup(section, key);
        Replace(text, "%P1%", p1);
        Replace(text, "%P2%", p2);
        Replace(text, "\\n", mString::kCrLf);
        return text;
    } catch (...) {
        mError::ShowError("cTranslate.TranslateEx");
    }
    return {};
}

std::string cTranslate::TranslateBool_YesNo(bool value) const {
    return TranslateEx("GLOBAL", value ? "BTN_Yes" : "BTN_No");
}
