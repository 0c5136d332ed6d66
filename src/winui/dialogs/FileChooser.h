// The choosers as Windows shows them: GetOpenFileNameA with the program's options (its failures read by
// CommDlgExtendedError), and SHBrowseForFolderA with SHGetPathFromIDListA. They run modally through
// ModalFileChooser and ModalFolderChooser, where a test answers them.
#pragma once

#include <windows.h>

#include <string>

#include "app/UserInterface.h"

namespace FileChooser {

OpenFileAnswer Run(const OpenFileOptions& options);
// GetSaveFileNameA, which asks before it lets an existing file be replaced.
std::string RunSave(const OpenFileOptions& options);
std::string RunFolder(int64_t owner, const std::string& title, const std::string& rootFolder);

}  // namespace FileChooser
