// The file-open and folder choosers on QFileDialog. What the Windows chooser's options become:
// - filter: each "description|pattern" pair is one name filter "description (patterns)", the patterns'
//   ";" separators turned into blanks; a description that already ends in its patterns keeps its text.
//   An empty description or pattern ends the list, as the Windows chooser's double NUL does. filterIndex
//   (from 1) picks the filter shown first.
// - fileName: a proposal with a folder opens the chooser in that folder with the name filled in; otherwise
//   the chooser starts in initialDirectory.
// - fileMustExist: only existing files can be chosen; otherwise a new name may be typed.
// - multiSelect: several existing files can be chosen (Qt offers no multiple choice of new names).
// - defaultExtension: added to a typed name without one (the leading "." is not part of Qt's suffix).
// - readOnlyChecked, hideReadOnly: Qt's chooser has no "open as read-only" box, so there is nothing to
//   hide, and the answer reports the box as it was proposed. A proposed read-only open also makes the
//   chooser itself read-only: it then offers no renaming, deleting or new folders.
// - owner: the window with that native id, when it is one of ours.
#pragma once

#include <QFileDialog>
#include <QStringList>
#include <string>

#include "app/UserInterface.h"

namespace mFileChooser {

QStringList NameFilters(const std::string& filter);

void Configure(QFileDialog& dialog, const OpenFileOptions& options);

// What `dialog`, configured from `options`, ended with.
OpenFileAnswer AnswerOf(const QFileDialog& dialog, const OpenFileOptions& options);

// A chooser of existing folders that starts in `rootFolder`, or on the desktop when that is empty.
void ConfigureFolder(QFileDialog& dialog, const std::string& title, const std::string& rootFolder);

// The chosen folder, or "" when the chooser was cancelled.
std::string FolderOf(const QFileDialog& dialog);

// The window with the native id `owner`; nullptr for -1 or an id that is not one of ours.
QWidget* OwnerWindow(int64_t owner);

}  // namespace mFileChooser
