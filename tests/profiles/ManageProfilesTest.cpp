// Renaming, duplicating and deleting profiles, and a profile moved as text, over the real settings file: the
// file changes only where it must, and the active and the remembered profile follow.
#include "profiles/mManageProfiles.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "base/mString.h"
#include "profiles/ProfileSnippet.h"
#include "support/AppFixture.h"
#include "translate/cTranslate.h"

namespace {

std::string Error(const char* key, const std::string& p1 = "") {
    return Translator().TranslateEx("ERROR_MESSAGES", key, p1);
}

class ManageProfilesTest : public AppFixture {
protected:
    ManageProfilesTest() {
        WriteIni(kIni);
        g_cApp->LoadData();
        // The profile window takes the next name of the script (its caption proposal is kept), or is
        // cancelled once the script runs out.
        ui.editProfile = [this](int32_t mode, Profile& profile) {
            proposals.push_back(std::to_string(mode) + ":" + profile.ProfileCaption());
            if (names.empty())
                return false;
            profile.SetProfileName(Profile::kNamePrefix + names.front());
            names.erase(names.begin());
            return true;
        };
    }

    Profiles& All() const { return g_cApp->Profiles(); }
    std::string Messages() const {
        std::string shown;
        for (const ShownMessage& message : ui.messages)
            shown += message.prompt + "|";
        return shown;
    }

    static constexpr const char* kIni =
        "[PROFILES]\r\nLASTACTIVEPROFILE=profile_a\r\n; "
        "kept\r\n[profile_A]\r\nREFRESH=3\r\nDESCRIPTION=Mine\r\n"
        "[profile_B]\r\nREFRESH=2\r\n";
    std::vector<std::string> names;
    std::vector<std::string> proposals;
};

// The section keeps its keys, order and comment; the remembered profile follows. A taken name (any case, or
// the standard profile's) is refused and asked again; a cancel changes nothing.
TEST_F(ManageProfilesTest, RenameMovesTheSectionInPlaceAndTheRememberedProfileFollows) {
    Profile& a = *g_cApp->ActiveProfile();
    names = {"b", "DEFAULT", "Race"};
    EXPECT_TRUE(mManageProfiles::RenameProfile(a));
    EXPECT_EQ(proposals, (std::vector<std::string>{"3:A", "3:b", "3:DEFAULT"}));
    EXPECT_EQ(Messages(), Error("ERR_ProfileNameNotUnique", "b") + "|" +
                              Error("ERR_ProfileNameNotUnique", "DEFAULT") + "|");
    EXPECT_EQ(ReadIni(),
              "[PROFILES]\r\nLASTACTIVEPROFILE=profile_Race\r\n; kept\r\n[profile_Race]\r\n"
              "REFRESH=3\r\nDESCRIPTION=Mine\r\n[profile_B]\r\nREFRESH=2\r\n");
    EXPECT_EQ(&All().Item("PROFILE_RACE"), &a);
    EXPECT_EQ(g_cApp->ActiveProfile(), &a);
    EXPECT_FALSE(All().DoesProfileExist("profile_A"));
    const std::string renamed = ReadIni();
    EXPECT_FALSE(mManageProfiles::RenameProfile(All().Item("profile_B")));
    All().CreateStandardProfile();
    EXPECT_FALSE(mManageProfiles::RenameProfile(All().Item("PROFILE_DEFAULT")));
    EXPECT_EQ(ui.messages.back().prompt, Error("ERR_StandardProfileFixed"));
    EXPECT_EQ(ReadIni(), renamed);
}

// Another copy gave a profile the new name meanwhile: nothing is renamed, in the file or here, and the
// user is told why.
TEST_F(ManageProfilesTest, ARenameOntoANameAnotherCopyTookChangesNothing) {
    Profile& a = *g_cApp->ActiveProfile();
    const std::string theirs = ReadIni() + "[profile_Race]\r\nREFRESH=9\r\n";
    WriteIni(theirs);
    names = {"Race"};
    EXPECT_FALSE(mManageProfiles::RenameProfile(a));
    EXPECT_EQ(ReadIni(), theirs);
    EXPECT_EQ(a.ProfileName(), "profile_A");
    EXPECT_EQ(a.ProfileDescription(), "Mine");
    EXPECT_NE(Messages().find(Translator().TranslateEx("ERROR_MESSAGES", "ERR_SaveNameTaken")),
              std::string::npos);
}

// The copy proposes the next free number, takes every value, and is a new, active, unsaved profile.
TEST_F(ManageProfilesTest, DuplicateCopiesEveryValueUnderTheNextFreeName) {
    names = {"A (2)", "A (3)"};
    Profile& a = All().Item("profile_A");
    Profile* first = mManageProfiles::DuplicateProfile(a);
    Profile* second = mManageProfiles::DuplicateProfile(a);
    ASSERT_TRUE(first && second);
    EXPECT_EQ(proposals, (std::vector<std::string>{"4:A (2)", "4:A (3)"}));
    EXPECT_EQ(ProfileSnippet::Format(*second), "[profile_A (3)]" + ProfileSnippet::Format(a).substr(11));
    EXPECT_TRUE(second->IsNewProfile() && second->DataChanged());
    EXPECT_EQ(g_cApp->ActiveProfile(), second);
    EXPECT_EQ(ReadIni(), kIni);
    EXPECT_EQ(All().FreeCaption(std::string(246, 'x')), std::string(242, 'x') + " (2)");
    // Shortened before a whole character: "ö" is two bytes, and the room ends between them.
    EXPECT_EQ(All().FreeCaption(std::string(241, 'x') + "öö"), std::string(241, 'x') + " (2)");
}

// Only after Yes, and never the standard profile; the file loses exactly that section, and the remembered
// and the active profile become the standard one, made when there is none.
TEST_F(ManageProfilesTest, DeleteRemovesTheSectionAndFallsBackToTheStandardProfile) {
    Profile& a = All().Item("profile_A");
    a.SetRefresh(4);
    ui.answers = {vbNo, vbYes};
    EXPECT_FALSE(mManageProfiles::DeleteProfile(a));
    // Another copy of the program saved in the meantime: its write is kept.
    WriteIni(std::string(kIni) + "[profile_C]\r\n");
    EXPECT_TRUE(mManageProfiles::DeleteProfile(a));
    const std::string changed =
        Translator().TranslateEx("MAIN_DIALOG", "MSG_DeleteChangedProfileQuestion", "A");
    EXPECT_EQ(Messages(), changed + "|" + changed + "|");
    EXPECT_EQ(ReadIni(),
              "[PROFILES]\r\nLASTACTIVEPROFILE=PROFILE_DEFAULT\r\n; "
              "kept\r\n[profile_B]\r\nREFRESH=2\r\n[profile_C]\r\n");
    EXPECT_EQ(g_cApp->ActiveProfile(), &All().Item("PROFILE_DEFAULT"));
    EXPECT_FALSE(mManageProfiles::DeleteProfile(All().Item("PROFILE_DEFAULT")));
    // A file that cannot be written keeps the profile, and the user is told why.
    std::filesystem::permissions(g_cApp->IniPath(), std::filesystem::perms::owner_read);
    ui.answers = {vbYes};
    EXPECT_FALSE(mManageProfiles::DeleteProfile(All().Item("profile_B")));
    std::filesystem::permissions(g_cApp->IniPath(), std::filesystem::perms::owner_all);
    EXPECT_EQ(ui.messages.back().prompt, g_cApp->SaveFailureText(platform::WriteFault::ReadOnlyFile));
    EXPECT_TRUE(All().DoesProfileExist("profile_B"));
}

// Copy and paste, export and import give an equal profile under a free name; the text is the section as a
// save writes it.
TEST_F(ManageProfilesTest, AProfileMovedAsTextComesBackEqual) {
    Profile& b = All().Item("profile_B");
    b.SetScenarioPath("scenarios\\Alps 2");
    b.SetResolutionWidth(-5);
    mManageProfiles::CopyProfile(b);
    EXPECT_EQ(ui.clipboard,
              "[profile_B]\r\nLOGMESSAGES=1\r\nFREEPLAY=1\r\nUSESTANDARDRESOLUTION=1\r\nRESOLUTION=1\r\n"
              "RES_WIDTH=-5\r\nRES_HEIGHT=480\r\nSCENARIO=scenarios\\Alps 2\r\nGRAPICPAK=\r\nREFRESH=2\r\n"
              "TARVOPATH=\r\nDESCRIPTION=\r\n");
    names = {"B (2)", "B (3)"};
    const Profile* pasted = mManageProfiles::PasteProfile();
    ASSERT_NE(pasted, nullptr);
    EXPECT_EQ(ProfileSnippet::Format(*pasted), "[profile_B (2)]" + ui.clipboard.substr(11));
    EXPECT_EQ(g_cApp->ActiveProfile(), pasted);
    const std::string file = dir.File("B.ini");
    ui.saveAnswers = {file, dir.File("missing/B.ini"), g_cApp->IniPath()};
    mManageProfiles::ExportProfile(b, -1);
    EXPECT_EQ(ui.saveRequests.at(0).fileName, "B.ini");
    EXPECT_EQ(dir.Read("B.ini"), ui.clipboard);
    ui.fileAnswers = {OpenFileAnswer{OpenFileAnswer::Outcome::kChosen, {file}, false, 0}};
    const Profile* imported = mManageProfiles::ImportProfile(-1);
    ASSERT_NE(imported, nullptr);
    EXPECT_EQ(imported->ProfileName(), "profile_B (3)");
    EXPECT_EQ(proposals, (std::vector<std::string>{"5:B (2)", "5:B (3)"}));
    mManageProfiles::ExportProfile(b, -1);
    EXPECT_EQ(ui.messages.back().prompt,
              Translator().TranslateEx("ERROR_MESSAGES", "ERR_ProfileNotExported", dir.File("missing/B.ini"),
                                       Application::WriteFaultText(platform::WriteFault::NoFolder)));
    // Not onto the settings file, which holds every profile.
    const std::string settings = ReadIni();
    mManageProfiles::ExportProfile(b, -1);
    EXPECT_EQ(ReadIni(), settings);
    EXPECT_NE(
        ui.messages.back().prompt.find(Translator().TranslateEx("ERROR_MESSAGES", "ERR_ExportOntoSettings")),
        std::string::npos);
}

struct PasteCase {
    const char* name;
    std::string text;
    const char* messages;  // "KEY" or "KEY:detail" of each message shown, "|" after each
    const char* taken;     // the new profile's name, or nullptr when none was made
};

class PasteProfile : public ManageProfilesTest, public ::testing::WithParamInterface<PasteCase> {
protected:
    // The texts of `messages`; "Warning:ID" is the resolution warning.
    static std::string Expected(const std::string& messages) {
        std::string texts;
        for (const std::string& message : mString::Split(messages, '|')) {
            const std::size_t colon = message.find(':');
            const std::string key = message.substr(0, colon);
            const std::string detail = colon == std::string::npos ? "" : message.substr(colon + 1);
            if (!key.empty())
                texts +=
                    (key == "Warning" ? Profile::InvalidResolutionWarning(0) : Error(key.c_str(), detail)) +
                    "|";
        }
        return texts;
    }
};

TEST_P(PasteProfile, TakesAProfileOrSaysWhyNot) {
    const PasteCase& c = GetParam();
    names = {"Other"};
    ui.clipboard = c.text;
    const Profile* taken = mManageProfiles::PasteProfile();
    EXPECT_EQ(Messages(), Expected(c.messages));
    EXPECT_EQ(taken ? taken->ProfileName() : "", c.taken ? c.taken : "");
    EXPECT_EQ(All().Count(), c.taken ? 3 : 2);
    EXPECT_EQ(ReadIni(), kIni);
}

// UTF-16 little endian with its byte-order mark, as Windows tools copy text.
std::string Utf16(std::string_view latin1) {
    std::string text = "\xFF\xFE";
    for (char c : latin1)
        text += std::string{c, '\0'};
    return text;
}

INSTANTIATE_TEST_SUITE_P(
    Texts, PasteProfile,
    ::testing::Values(
        PasteCase{"Empty", "", "ERR_ProfileTextNone|", nullptr},
        PasteCase{"NoSection", "REFRESH=2\r\n", "ERR_ProfileTextNone|", nullptr},
        PasteCase{"NothingOfOurs", "[profile_X]\r\nCOLOUR=red\r\n", "ERR_ProfileTextNone|", nullptr},
        PasteCase{"Binary", std::string("[profile_X]\r\nREFRESH=2\0\x01", 24), "ERR_ProfileTextNone|",
                  nullptr},
        PasteCase{"SeveralSections", "[profile_X]\r\nREFRESH=2\r\n[profile_Y]\r\n", "ERR_ProfileTextSeveral|",
                  nullptr},
        PasteCase{"TenMegabytes", "[profile_X]\r\nDESCRIPTION=" + std::string(10 << 20, 'x'),
                  "ERR_ProfileTextTooLong|", nullptr},
        PasteCase{"OutOfRange", "[profile_X]\r\nRES_WIDTH=40000\r\n",
                  "ERR_ProfileTextBadNumber:RES_WIDTH=40000|", nullptr},
        PasteCase{"Utf16", Utf16("[profile_\xFC]\r\nREFRESH=5"), "", "profile_\xC3\xBC"},
        PasteCase{"StandardProfileGetsAFreeName", "[PROFILE_DEFAULT]\r\nREFRESH=2\r\n", "", "profile_Other"},
        PasteCase{"UnknownKeysAndBadResolutionAreTold", "[Race]\r\nRESOLUTION=0\r\nA=1\r\nB=2\r\n",
                  "MSG_ProfileTextUnknownKeys:A, B|Warning|", "profile_Race"}),
    [](const auto& info) { return std::string(info.param.name); });

}  // namespace
