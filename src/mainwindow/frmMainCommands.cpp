#include "mainwindow/frmMainCommands.h"

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "app/UserInterface.h"
#include "app/mMain.h"
#include "app/mPath.h"
#include "error/mError.h"
#include "mainwindow/frmMainRules.h"
#include "platform/Platform.h"
#include "profiles/Profile.h"
#include "profiles/Profiles.h"
#include "profiles/mManageProfiles.h"
#include "translate/cTranslate.h"

namespace frmMainCommands {

namespace {

std::string MainText(const char* key) {
    return Translator().TranslateEx("MAIN_DIALOG", key);
}

}  // namespace

void AskForMissingGame(Profile& profile) {
    if (!profile.TarvolinPath().empty())
        return;
    // A cancelled chooser hands back its proposal, which is no game: only an existing file is one.
    const std::string chosen = mMain::AskForTarvoPath("");
    if (!mPath::FileExists(chosen))
        Ui().MsgBox(Translator().TranslateEx("ERROR_MESSAGES", "ERR_TarvolinFolderNotDefined"), vbOKOnly);
    else
        profile.SetTarvolinPath(chosen);
}

void WriteBack(const MainWindowValues& values, Profile& profile) {
    frmMainRules::CheckData(values);
    frmMainRules::WriteInto(values, profile);
    frmMainRules::CompareCommandLines(frmMainRules::GetCmdLineParameters(values),
                                      profile.GetCmdLineParameters());
}

std::optional<std::string> ChooseGamePath(const std::string& current) {
    // A cancelled chooser hands back what it proposed: nothing new was chosen then.
    std::string chosen = mMain::AskForTarvoPath(current);
    if (chosen == current || !mPath::FileExists(chosen))
        return std::nullopt;
    return chosen;
}

void OpenLogFile(int64_t owner) {
    Options& options = App().Options();
    if (options.EditorPath().empty() &&
        Ui().MsgBox(MainText("MSG_SelectTextEditor"), vbYesNo | vbQuestion) == vbYes)
        options.SetEditorPath(mMain::AskForEditorPath(options.EditorPath()));
    if (options.EditorPath().empty())
        return;
    // The log file goes to the editor unquoted, as it always has.
    const std::string log = frmMainRules::LogFilePath(App().ActiveProfile()->TarvolinPath());
    if (mPath::FileExists(log))
        Os().ShellExec(owner, "open", options.EditorPath(), log, "", kSwShowNormal);
    else
        Ui().MsgBox(Translator().TranslateEx("ERROR_MESSAGES", "ERR_TarvolinLogfileNotFound"), vbInformation);
}

void OpenGameFolder(int64_t owner) {
    const std::string folder = frmMainRules::GameFolder(App().ActiveProfile()->TarvolinPath());
    if (mPath::FolderExists(folder))
        Os().ShellExec(owner, "open", folder, "", "", kSwShowNormal);
    else
        Ui().MsgBox(Translator().TranslateEx("ERROR_MESSAGES", "ERR_PathNotFound", folder), vbOKOnly);
}

bool QueryUnload(const std::function<void()>& refresh, const std::function<platform::WriteFault()>& save) {
    try {
        refresh();
        if (!App().DataChanged())
            return true;
        const int answer = Ui().MsgBox(MainText("MSG_SaveChangesQuestion"), vbYesNoCancel | vbQuestion);
        if (answer == vbYes && save() != platform::WriteFault::None)
            return false;
        return answer != vbCancel;
    } catch (...) {
        mError::ShowError("frmMain.Form_QueryUnload");
    }
    try {
        return Ui().MsgBox(MainText("MSG_QuitPavonelQuestion"), vbYesNo | vbQuestion) == vbYes;
    } catch (...) {
        return true;  // no text to ask with: the window must still be able to close
    }
}

// The options are told about only when they were changed: the version stamps written with them are no
// change of the user's, and a settings file kept read-only on purpose must not raise a message each time.
void Unload(const std::function<void(platform::WriteFault)>& tellUnsaved) {
    const bool optionsChanged = App().Options().DataChanged();
    const platform::WriteFault fault = App().SaveAppSettings();
    if (optionsChanged && fault != platform::WriteFault::None)
        tellUnsaved(fault);
    App().Profiles().SaveWhichProfileIsActive();
    mMain::ClosePublicObjects();
}

Profile* RunProfileCommand(ProfileCommand command, const std::function<void()>& refresh, int64_t owner) {
    refresh();
    Profile& active = *App().ActiveProfile();
    switch (command) {
        case ProfileCommand::Duplicate:
            return mManageProfiles::DuplicateProfile(active);
        case ProfileCommand::Delete:
            return mManageProfiles::DeleteProfile(active) ? App().ActiveProfile() : nullptr;
        case ProfileCommand::Copy:
            mManageProfiles::CopyProfile(active);
            return nullptr;
        case ProfileCommand::Paste:
            return mManageProfiles::PasteProfile();
        case ProfileCommand::Export:
            mManageProfiles::ExportProfile(active, owner);
            return nullptr;
        case ProfileCommand::Import:
            return mManageProfiles::ImportProfile(owner);
    }
    return nullptr;
}

}  // namespace frmMainCommands
