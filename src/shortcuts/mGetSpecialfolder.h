// The special folders a shortcut can go into, by the Windows shell's folder numbers (CSIDL). An empty text
// means the folder is not known here.
#pragma once

#include <cstdint>
#include <string>

namespace mGetSpecialfolder {

// The folder's path; a failure of the lookup is reported and gives "".
std::string GetSpecialfolder(int32_t csidl);

std::string GetDesktopFolder();    // 0
std::string GetStartmenuFolder();  // 11
std::string GetAppDataFolder();    // 26

// The quick-launch folder under the application-data folder. Its separator before "Microsoft" is written
// twice, as it always was; Windows reads both forms as the same folder.
std::string GetQuickLaunchFolder();

// Whether the quick-launch folder (written with one separator) exists.
bool ExistsQuickLaunchFolder();

}  // namespace mGetSpecialfolder
