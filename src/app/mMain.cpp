#include "app/mMain.h"

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "app/mCommonDialog.h"
#include "app/mPath.h"
#include "error/mError.h"
#include "fileinfo/CFileVersionInfo.h"
#include "platform/Platform.h"
#include "translate/cTranslate.h"

namespace mMain {

namespace {

// The chooser both program choosers share; only the proposal and the title differ.
std::string AskForProgram(const std::string& proposal, const std::string& titleSection) {
    const cTranslate& translate = Translator();
    OpenFileOptions options;
    options.fileName = proposal;
    options.fileMustExist = true;
    options.hideReadOnly = true;
    options.filter = translate.TranslateEx("GLOBAL", "FILETYPEDESC_EXE") + " (*.exe)|*.exe";
    options.title = translate.TranslateEx(titleSection, "DIALOG_CAPTION");
    options.defaultExtension = ".exe";
    options.owner = -1;
    std::string fileTitle;
    return mCommonDialog::ShowOpen(options, fileTitle, false);
}

}  // namespace

void ClosePublicObjects() try {
    g_cTranslate.reset();
    g_cApp.reset();
} catch (...) {
    mError::PassOn("mMain.ClosePublicObjects");
}

std::string AskForTarvoPath(const std::string& current) try {
    const std::string proposal = mPath::FileExists(current) ? current : "tarvolin.exe";
    return AskForProgram(proposal, "SELECT_TARVOLINFOLDER_DIALOG");
} catch (...) {
    mError::PassOn("mMain.AskForTarvoPath");
}

// Its failures carry the name of AskForTarvoPath: reports have always named it so.
std::string AskForEditorPath(const std::string& current) try {
    std::string proposal = current;
    if (!mPath::FileExists(current))
        proposal = mPath::AddOrRemoveBackslash(Os().WindowsDirectory(), true) + Os().TextEditorName();
    return AskForProgram(proposal, "SELECT_TEXTEDITOR_DIALOG");
} catch (...) {
    mError::PassOn("mMain.AskForTarvoPath");
}

std::string GetTarvolinFile_VersionInfo(const std::string& path) try {
    if (path.empty())
        return "Tarvolin";
    CFileVersionInfo reader;
    reader.SetFullPathName(path);
    if (!reader.IsVersionInfoAvailable())
        return "Tarvolin";
    return reader.ProductName() + " " + reader.ProductVersion();
} catch (...) {
    mError::PassOn("mMain.GetTarvolinFile_VersionInfo");
}

}  // namespace mMain
