#include "fileinfo/CFileVersionInfo.h"

#include <filesystem>
#include <fstream>
#include <span>
#include <system_error>

#include "base/mString.h"
#include "error/mError.h"
#include "fileinfo/PeImage.h"
#include "platform/NativePath.h"

namespace {

std::string HexText(uint32_t value) {
    static constexpr char kHex[] = "0123456789ABCDEF";
    std::string digits;
    do {
        digits.insert(digits.begin(), kHex[value & 0xF]);
        value >>= 4;
    } while (value != 0);
    return "0x" + digits;
}

std::string UnknownText(uint32_t value) {
    return "Unknown (" + HexText(value) + ")";
}

std::optional<VersionResource> ReadResource(const std::string& path) {
    std::error_code error;
    const std::filesystem::path native = platform::PathOf(path);
    if (path.empty() || !std::filesystem::is_regular_file(native, error))
        return std::nullopt;
    std::ifstream file(native, std::ios::binary);
    if (!file)
        return std::nullopt;
    std::optional<std::string> bytes = PeImage(file).VersionResource();
    return bytes ? VersionResource::Parse(*bytes) : std::nullopt;
}

// Names by value; "" where a value means "none", nullptr where it is not defined.
constexpr const char* kOSBases[] = {"", "MS-DOS", "OS/2 16-bit", "OS/2 32-bit", "Windows NT", "Windows CE"};
constexpr const char* kOSInterfaces[] = {"", "Windows 16-bit", "Presentation Manager 16-bit",
                                         "Presentation Manager 32-bit", "Windows 32-bit"};
constexpr const char* kFileTypes[] = {"Unknown", "Application",   "Dynamic-link library",
                                      "Driver",  "Font",          "Virtual device",
                                      nullptr,   "Static library"};
constexpr const char* kDriverSubtypes[] = {
    nullptr,       "Printer", "Keyboard", "Language",     "Display",          "Mouse", "Network", "System",
    "Installable", "Sound",   "Comm",     "Input method", "Versioned printer"};
constexpr const char* kFontSubtypes[] = {nullptr, "Raster", "Vector", "TrueType"};
constexpr const char* kFlagNames[] = {"Debug",         "Prerelease",    "Patched",
                                      "Private build", "Info inferred", "Special build"};
constexpr uint32_t kTypeDriver = 3;
constexpr uint32_t kTypeFont = 4;

// The name of `value`, or "Unknown (0x...)" with `shown` in it for a value that has none.
std::string NameOf(std::span<const char* const> names, uint32_t value, uint32_t shown) {
    return value < names.size() && names[value] != nullptr ? names[value] : UnknownText(shown);
}

}  // namespace

void CFileVersionInfo::SetFullPathName(const std::string& path) try {
    m_fullPathName = path;
    m_resource = ReadResource(path);
} catch (...) {
    mError::PassOn("CFileVersionInfo.SetFullPathName");
}

const FixedFileInfo* CFileVersionInfo::Fixed() const {
    return m_resource && m_resource->Fixed() ? &*m_resource->Fixed() : nullptr;
}

VersionNumber CFileVersionInfo::FileVersionNumber() const {
    return Fixed() ? Fixed()->fileVersion : VersionNumber{};
}

VersionNumber CFileVersionInfo::ProductVersionNumber() const {
    return Fixed() ? Fixed()->productVersion : VersionNumber{};
}

std::string CFileVersionInfo::FixedFileVersion() const {
    return Fixed() ? Fixed()->fileVersion.Text() : "";
}

std::string CFileVersionInfo::FixedProductVersion() const {
    return Fixed() ? Fixed()->productVersion.Text() : "";
}

uint32_t CFileVersionInfo::FileFlags() const {
    return Fixed() ? Fixed()->fileFlags & Fixed()->fileFlagsMask : 0;
}

std::string CFileVersionInfo::FileFlagsText() const {
    std::string text;
    for (std::size_t bit = 0; bit < std::size(kFlagNames); ++bit) {
        if ((FileFlags() >> bit & 1) != 0)
            text += (text.empty() ? "" : ", ") + std::string(kFlagNames[bit]);
    }
    return text;
}

uint32_t CFileVersionInfo::FileOS() const {
    return Fixed() ? Fixed()->fileOS : 0;
}

std::string CFileVersionInfo::FileOSText() const {
    if (!Fixed())
        return "";
    std::string base = NameOf(kOSBases, FileOS() >> 16, FileOS() & 0xFFFF0000u);
    std::string api = NameOf(kOSInterfaces, FileOS() & 0xFFFF, FileOS() & 0xFFFF);
    if (base.empty() || api.empty())
        return base.empty() && api.empty() ? "Unknown" : base + api;
    return base + ", " + api;
}

uint32_t CFileVersionInfo::FileType() const {
    return Fixed() ? Fixed()->fileType : 0;
}

uint32_t CFileVersionInfo::FileSubtype() const {
    return Fixed() ? Fixed()->fileSubtype : 0;
}

std::string CFileVersionInfo::FileTypeText() const {
    if (!Fixed())
        return "";
    std::string text = NameOf(kFileTypes, FileType(), FileType());
    std::span<const char* const> subtypes;
    if (FileType() == kTypeDriver)
        subtypes = kDriverSubtypes;
    else if (FileType() == kTypeFont)
        subtypes = kFontSubtypes;
    if (subtypes.empty() || FileSubtype() == 0)
        return text;
    return text + " (" + NameOf(subtypes, FileSubtype(), FileSubtype()) + ")";
}

std::string CFileVersionInfo::StringValue(const std::string& key) const {
    const StringTable* table = m_resource ? m_resource->PreferredTable() : nullptr;
    if (table == nullptr)
        return "";
    for (const auto& [name, value] : table->strings) {
        if (mString::EqualsNoCase(name, key))
            return value;
    }
    return "";
}

std::string CFileVersionInfo::Translation() const {
    const StringTable* table = m_resource ? m_resource->PreferredTable() : nullptr;
    return table ? table->translation : "";
}
