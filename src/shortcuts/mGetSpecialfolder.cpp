#include "shortcuts/mGetSpecialfolder.h"

#include "app/mPath.h"
#include "error/mError.h"
#include "platform/Platform.h"

namespace mGetSpecialfolder {
namespace {

std::string QuickLaunchPart() {
    const char separator = mPath::Separator();
    return std::string("Microsoft") + separator + "Internet Explorer" + separator + "Quick Launch";
}

}  // namespace

std::string GetSpecialfolder(int32_t csidl) {
    try {
        return Os().SpecialFolder(csidl);
    } catch (...) {
        mError::ShowError("mGetSpecialfolder.GetSpecialfolder");
        return {};
    }
}

std::string GetDesktopFolder() {
    return GetSpecialfolder(kCsidlDesktop);
}

std::string GetStartmenuFolder() {
    return GetSpecialfolder(kCsidlStartMenu);
}

std::string GetAppDataFolder() {
    return GetSpecialfolder(kCsidlAppData);
}

std::string GetQuickLaunchFolder() {
    return mPath::AddOrRemoveBackslash(GetAppDataFolder(), true) + mPath::Separator() + QuickLaunchPart();
}

bool ExistsQuickLaunchFolder() {
    return mPath::FolderExists(mPath::AddOrRemoveBackslash(GetAppDataFolder(), true) + QuickLaunchPart());
}

}  // namespace mGetSpecialfolder
