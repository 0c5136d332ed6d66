#include "profiles/mManageProfiles.h"

#include <algorithm>
#include <memory>
#include <string>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "app/UserInterface.h"
#include "base/mString.h"
#include "error/mError.h"
#include "platform/FileSystem.h"
#include "profiles/Profile.h"
#include "profiles/ProfileSnippet.h"
#include "profiles/Profiles.h"
#include "translate/cTranslate.h"

namespace mManageProfiles {
namespace {

// The unknown keys a message names at the most; more are summed up as "...".
constexpr std::size_t kNamedKeys = 10;

std::string Text(const char* section, const char* key, const std::string& p1 = "",
                 const std::string& p2 = "") {
    return Translator().TranslateEx(section, key, p1, p2);
}

void Tell(const char* key, const std::string& p1 = "", const std::string& p2 = "") {
    Ui().MsgBox(Text("ERROR_MESSAGES", key, p1, p2), vbOKOnly | vbExclamation);
}

// True when the settings file took the change; otherwise the user is told why.
bool Written(platform::WriteFault fault) {
    if (fault != platform::WriteFault::None)
        App().TellUnsaved(fault);
    return fault == platform::WriteFault::None;
}

bool RefusedAsStandard(const Profile& profile) {
    if (CanRenameOrDelete(profile))
        return false;
    Tell("ERR_StandardProfileFixed");
    return true;
}

// Lets the user name `named` in the profile window until no profile but `self` has the name.
bool AskForFreeName(int32_t mode, Profile& named, const Profile* self) {
    while (Ui().ShowEditProfileDialog(mode, named)) {
        if (!App().Profiles().IsNameTaken(named.ProfileName(), self))
            return true;
        Ui().MsgBox(Text("ERROR_MESSAGES", "ERR_ProfileNameNotUnique", named.ProfileCaption()), vbOKOnly);
    }
    return false;
}

std::string Listed(const std::vector<std::string>& keys) {
    std::string list;
    for (std::size_t i = 0; i < std::min(keys.size(), kNamedKeys); ++i)
        list += (i > 0 ? ", " : "") + keys[i];
    return keys.size() > kNamedKeys ? list + ", ..." : list;
}

// A profile handed in as text becomes a new profile under its own name, or under a free one the user
// confirms when its own is taken or cannot be stored.
Profile* TakeProfile(std::string_view bytes) {
    const ProfileSnippet::Parsed parsed = ProfileSnippet::Parse(bytes);
    if (parsed.problem != nullptr) {
        Tell(parsed.problem, parsed.detail);
        return nullptr;
    }
    if (!parsed.unknownKeys.empty())
        Ui().MsgBox(Text("ERROR_MESSAGES", "MSG_ProfileTextUnknownKeys", Listed(parsed.unknownKeys)),
                    vbOKOnly | vbInformation);
    auto profile = std::make_unique<Profile>();
    profile->SetProfileName(parsed.section);
    const std::string caption = profile->ProfileCaption();
    profile->SetProfileName(Profile::kNamePrefix + caption);
    profile->LoadData(parsed.document, parsed.section);
    Profiles& profiles = App().Profiles();
    const bool storable = Profile::IsStorableCaption(caption);
    if (!storable || profiles.IsNameTaken(profile->ProfileName())) {
        if (storable)
            profile->SetProfileName(Profile::kNamePrefix + profiles.FreeCaption(caption));
        if (!AskForFreeName(kImportProfileMode, *profile, nullptr))
            return nullptr;
    }
    return &profiles.AddNew(std::move(profile));
}

// The caption as a file name that every system takes.
std::string FileNameFor(std::string caption) {
    std::replace_if(
        caption.begin(), caption.end(),
        [](char c) {
            return static_cast<unsigned char>(c) < 0x20 ||
                   std::string_view("\\/:*?\"<>|").find(c) != std::string_view::npos;
        },
        '_');
    return caption + ".ini";
}

OpenFileOptions FileOptions(const char* title, int64_t owner) {
    OpenFileOptions options;
    options.title = Text("MAIN_DIALOG", title);
    options.filter = Text("GLOBAL", "FILETYPEDESC_INI") + " (*.ini)|*.ini";
    options.defaultExtension = ".ini";
    options.hideReadOnly = true;
    options.owner = owner;
    return options;
}

}  // namespace

bool CanRenameOrDelete(const Profile& profile) {
    return !Profiles::IsStandardProfile(profile.ProfileName());
}

bool RenameProfile(Profile& profile) try {
    if (RefusedAsStandard(profile))
        return false;
    Profile named;
    named.SetProfileName(profile.ProfileName());
    named.SetProfileDescription(profile.ProfileDescription());
    if (!AskForFreeName(kRenameProfileMode, named, &profile))
        return false;
    // The description changes with the name, and stays as it was when the file refused the rename.
    if (named.ProfileName() != profile.ProfileName() &&
        !Written(App().Profiles().Rename(profile, named.ProfileName())))
        return false;
    profile.SetProfileDescription(named.ProfileDescription());
    return true;
} catch (...) {
    mError::PassOn("mManageProfiles.RenameProfile");
}

Profile* DuplicateProfile(const Profile& profile) try {
    auto copy = std::make_unique<Profile>();
    copy->CopySettingsFrom(profile);
    copy->SetProfileName(Profile::kNamePrefix + App().Profiles().FreeCaption(profile.ProfileCaption()));
    if (!AskForFreeName(kDuplicateProfileMode, *copy, nullptr))
        return nullptr;
    return &App().Profiles().AddNew(std::move(copy));
} catch (...) {
    mError::PassOn("mManageProfiles.DuplicateProfile");
}

bool DeleteProfile(Profile& profile) try {
    if (RefusedAsStandard(profile))
        return false;
    const char* question =
        profile.DataChanged() ? "MSG_DeleteChangedProfileQuestion" : "MSG_DeleteProfileQuestion";
    if (Ui().MsgBox(Text("MAIN_DIALOG", question, profile.ProfileCaption()),
                    vbYesNo | vbQuestion | vbDefaultButton2) != vbYes)
        return false;
    return Written(App().Profiles().Delete(profile));
} catch (...) {
    mError::PassOn("mManageProfiles.DeleteProfile");
}

void CopyProfile(const Profile& profile) try {
    Ui().SetClipboardText(ProfileSnippet::Format(profile));
} catch (...) {
    mError::PassOn("mManageProfiles.CopyProfile");
}

Profile* PasteProfile() try { return TakeProfile(Ui().GetClipboardText()); } catch (...) {
    mError::PassOn("mManageProfiles.PasteProfile");
}

// The file is replaced as the settings file is: whole, or not at all.
void ExportProfile(const Profile& profile, int64_t owner) try {
    OpenFileOptions options = FileOptions("DLG_EXPORT_PROFILE", owner);
    options.fileName = FileNameFor(profile.ProfileCaption());
    const std::string file = Ui().ChooseFileToSave(options);
    if (file.empty())
        return;
    // The settings file itself would lose every other profile.
    if (mString::EqualsNoCase(platform::WriteTargetOf(file), platform::WriteTargetOf(App().IniPath()))) {
        Tell("ERR_ProfileNotExported", file, Text("ERROR_MESSAGES", "ERR_ExportOntoSettings"));
        return;
    }
    platform::WriteFault fault = platform::ReplaceObstacle(file);
    if (fault == platform::WriteFault::None &&
        !platform::ReplaceFile(file, ProfileSnippet::Format(profile), &fault) &&
        fault == platform::WriteFault::None)
        fault = platform::WriteFault::WriteFailed;
    if (fault != platform::WriteFault::None)
        Tell("ERR_ProfileNotExported", file, Application::WriteFaultText(fault));
} catch (...) {
    mError::PassOn("mManageProfiles.ExportProfile");
}

// A file far larger than a profile is refused before it is read.
Profile* ImportProfile(int64_t owner) try {
    OpenFileOptions options = FileOptions("DLG_IMPORT_PROFILE", owner);
    options.fileMustExist = true;
    const OpenFileAnswer answer = Ui().ChooseFileToOpen(options);
    if (answer.outcome != OpenFileAnswer::Outcome::kChosen || answer.files.empty())
        return nullptr;
    const std::string& file = answer.files.front();
    const std::optional<platform::FileStamp> stamp = platform::StampOf(file);
    if (stamp && stamp->size > ProfileSnippet::kLongest) {
        Tell("ERR_ProfileTextTooLong");
        return nullptr;
    }
    const std::optional<platform::FileContent> content = platform::ReadFile(file);
    if (!content) {
        Tell("ERR_ProfileNotImported", file);
        return nullptr;
    }
    return TakeProfile(content->bytes);
} catch (...) {
    mError::PassOn("mManageProfiles.ImportProfile");
}

}  // namespace mManageProfiles
