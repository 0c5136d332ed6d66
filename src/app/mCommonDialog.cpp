#include "app/mCommonDialog.h"

#include "app/mPath.h"
#include "error/mError.h"

namespace mCommonDialog {
namespace {

std::string TitleOf(const std::string& path) {
    return path.substr(mPath::GetDirectoryPart(path).size());
}

// The folder of the first file without its trailing separator, then every name, all NUL-separated.
std::string JoinSelection(const std::vector<std::string>& files) {
    std::string joined = mPath::AddOrRemoveBackslash(mPath::GetDirectoryPart(files.front()), false);
    for (const std::string& file : files) {
        joined += '\0';
        joined += TitleOf(file);
    }
    return joined;
}

void TakeChoice(const OpenFileAnswer& answer, OpenFileOptions& options, std::string& fileTitle) {
    if (answer.files.empty())
        mError::RaiseError(kDialogFailure, "An error happened (ID: 0)");
    options.fileName = answer.files.size() == 1 ? answer.files.front() : JoinSelection(answer.files);
    options.readOnlyChecked = answer.readOnlyChecked;
    fileTitle = TitleOf(answer.files.front());
}

}  // namespace

std::string ShowOpen(OpenFileOptions& options, std::string& fileTitle, bool cancelIsFailure) try {
    const OpenFileAnswer answer = Ui().ChooseFileToOpen(options);
    switch (answer.outcome) {
        case OpenFileAnswer::Outcome::kChosen:
            TakeChoice(answer, options, fileTitle);
            break;
        case OpenFileAnswer::Outcome::kCancelled:
            if (cancelIsFailure)
                mError::RaiseError(kCancelError, "The action has been canceled");
            break;
        case OpenFileAnswer::Outcome::kFailed:
            mError::RaiseError(kDialogFailure,
                               "An error happened (ID: " + std::to_string(answer.errorCode) + ")");
    }
    return options.fileName;
} catch (...) {
    mError::PassOn("mCommonDialog.ShowOpen");
}

std::string BrowseForFolder(int64_t owner, const std::string& title, const std::string& rootFolder) try {
    return Ui().ChooseFolder(owner, title, rootFolder);
} catch (...) {
    mError::PassOn("mCommonDialog.BrowseForFolder");
}

}  // namespace mCommonDialog
