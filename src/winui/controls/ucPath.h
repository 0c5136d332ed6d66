// The path field: an edit control that takes a path typed, pasted or dropped on it through OLE, as text or
// as a file list of one file (see PathDrop), and keeps it on one line. Every change reaches the window as
// the edit's own change notification.
#pragma once

#include <windows.h>

#include <objidl.h>

#include <optional>
#include <string>
#include <vector>

namespace ucPath {

// Makes the edit control `field` a path field; `name` is its documented name in failure reports.
void Attach(HWND field, const char* name);

// What a drag offers: its text, and the files of its file list.
struct Offer {
    std::optional<std::string> text;
    std::vector<std::string> files;
};
Offer OfferOf(IDataObject& data);

}  // namespace ucPath
