// Shortcut files through the shell's own link object (IShellLinkA and IPersistFile), so they are exactly
// what the Windows shell itself writes and reads. The narrow texts go to the ANSI interface as they are: the
// program runs in the UTF-8 code page, so they arrive unchanged.
#include <windows.h>
// The shell's headers need the definitions of windows.h first.
#include <objidl.h>
#include <shlobj.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/NativePath.h"
#include "platform/win32/Win32Platform.h"

namespace {

// The link's arguments and comment hold up to an info tip's length (commctrl.h's INFOTIPSIZE).
constexpr int kLongTextBuffer = 1024;

struct Releaser {
    void operator()(IUnknown* object) const { object->Release(); }
};
template <class Interface>
using ComRef = std::unique_ptr<Interface, Releaser>;

// COM keeps its state per thread, so every thread that touches a link initialises it once and keeps it
// until it ends. A thread that the host already initialised (in either model) answers S_FALSE or
// RPC_E_CHANGED_MODE and can use COM all the same.
bool ComReady() {
    thread_local const bool ready = [] {
        const HRESULT result = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
        return SUCCEEDED(result) || result == RPC_E_CHANGED_MODE;
    }();
    return ready;
}

// A new shell-link object, with the second interface that loads and saves it.
bool CreateLinkObject(ComRef<IShellLinkA>& link, ComRef<IPersistFile>& file) {
    if (!ComReady())
        return false;
    IShellLinkA* created = nullptr;
    if (FAILED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkA,
                                reinterpret_cast<void**>(&created))))
        return false;
    link.reset(created);
    IPersistFile* persist = nullptr;
    if (FAILED(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&persist))))
        return false;
    file.reset(persist);
    return true;
}

// Hands every field to the link object; a text left empty is not set at all, so the shell falls back on
// its own choice (no working directory, the target's icon).
bool SetFields(IShellLinkA& object, const ShellLink& link) {
    if (FAILED(object.SetPath(link.target.c_str())))
        return false;
    if (!link.workingDirectory.empty() && FAILED(object.SetWorkingDirectory(link.workingDirectory.c_str())))
        return false;
    if (!link.arguments.empty() && FAILED(object.SetArguments(link.arguments.c_str())))
        return false;
    if (!link.iconPath.empty() && FAILED(object.SetIconLocation(link.iconPath.c_str(), link.iconIndex)))
        return false;
    if (FAILED(object.SetDescription(link.description.c_str())) ||
        FAILED(object.SetShowCmd(link.showCommand)))
        return false;
    return link.hotkey == 0 || SUCCEEDED(object.SetHotkey(static_cast<WORD>(link.hotkey)));
}

// One text field of the link, read into a buffer of `size` characters.
template <class Getter>
std::optional<std::string> ReadText(int size, Getter getter) {
    std::vector<char> buffer(static_cast<std::size_t>(size), '\0');
    if (FAILED(getter(buffer.data(), size)))
        return std::nullopt;
    return std::string(buffer.data());
}

// The texts of a loaded link. The target is asked for raw: without the flag the shell rebuilds the path
// from the link's item list, expanding environment variables such as %ProgramFiles%, while the raw path is
// the text the link was written with.
bool GetTexts(IShellLinkA& object, ShellLink& link) {
    const auto target = ReadText(
        MAX_PATH, [&](char* text, int size) { return object.GetPath(text, size, nullptr, SLGP_RAWPATH); });
    const auto directory =
        ReadText(MAX_PATH, [&](char* text, int size) { return object.GetWorkingDirectory(text, size); });
    const auto arguments =
        ReadText(kLongTextBuffer, [&](char* text, int size) { return object.GetArguments(text, size); });
    const auto description =
        ReadText(kLongTextBuffer, [&](char* text, int size) { return object.GetDescription(text, size); });
    const auto icon = ReadText(
        MAX_PATH, [&](char* text, int size) { return object.GetIconLocation(text, size, &link.iconIndex); });
    if (!target || !directory || !arguments || !description || !icon)
        return false;
    link.target = *target;
    link.workingDirectory = *directory;
    link.arguments = *arguments;
    link.description = *description;
    link.iconPath = *icon;
    return true;
}

}  // namespace

bool Win32Platform::WriteShellLink(const std::string& linkFile, const ShellLink& link) {
    ComRef<IShellLinkA> object;
    ComRef<IPersistFile> file;
    if (!CreateLinkObject(object, file) || !SetFields(*object, link))
        return false;
    // The update flag makes the shell complete what it keeps about the target (its item list and file
    // details) before the link is saved.
    if (FAILED(object->Resolve(nullptr, SLR_UPDATE)))
        return false;
    return SUCCEEDED(file->Save(platform::PathOf(linkFile).c_str(), FALSE));
}

std::optional<ShellLink> Win32Platform::ReadShellLink(const std::string& linkFile) {
    ComRef<IShellLinkA> object;
    ComRef<IPersistFile> file;
    if (!CreateLinkObject(object, file) || FAILED(file->Load(platform::PathOf(linkFile).c_str(), STGM_READ)))
        return std::nullopt;
    ShellLink link;
    WORD hotkey = 0;
    if (!GetTexts(*object, link) || FAILED(object->GetHotkey(&hotkey)) ||
        FAILED(object->GetShowCmd(&link.showCommand)))
        return std::nullopt;
    link.hotkey = hotkey;
    return link;
}
