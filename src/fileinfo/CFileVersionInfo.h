// Reads a file's version resource: the fixed version fields with texts for its flags, OS and type, and the
// entries of its string table. It reads Windows executables (PE32 and PE32+) on every OS with the program's
// own reader. Any problem with the file (missing, a folder, unreadable, no PE file, no or a damaged version
// resource) means "no version information": every text is then "" and every number 0.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "fileinfo/VersionResource.h"

class CFileVersionInfo {
public:
    // Bits of the fixed part's file flags.
    static constexpr uint32_t kFlagDebug = 0x01;
    static constexpr uint32_t kFlagPrerelease = 0x02;
    static constexpr uint32_t kFlagPatched = 0x04;
    static constexpr uint32_t kFlagPrivateBuild = 0x08;
    static constexpr uint32_t kFlagInfoInferred = 0x10;
    static constexpr uint32_t kFlagSpecialBuild = 0x20;

    // Reads the version resource of `path` at once; the file is not kept open.
    void SetFullPathName(const std::string& path);
    const std::string& FullPathName() const { return m_fullPathName; }

    // True when the file has a readable version resource (which may still lack a fixed part or strings).
    bool IsVersionInfoAvailable() const { return m_resource.has_value(); }

    // The fixed part. HasFixedFileInfo tells whether the resource has one; the numbers and texts below
    // are 0 and "" when it does not.
    bool HasFixedFileInfo() const { return Fixed() != nullptr; }
    VersionNumber FileVersionNumber() const;
    VersionNumber ProductVersionNumber() const;
    // The version numbers as "a.b.c.d".
    std::string FixedFileVersion() const;
    std::string FixedProductVersion() const;
    // The flags that the flags mask declares valid.
    uint32_t FileFlags() const;
    // The set flags' names joined by ", " in bit order ("Debug, Prerelease, Patched, Private build,
    // Info inferred, Special build"); "" when none is set.
    std::string FileFlagsText() const;
    uint32_t FileOS() const;
    // For example "Windows NT, Windows 32-bit", "MS-DOS, Windows 16-bit", "Windows 32-bit", "Unknown".
    std::string FileOSText() const;
    uint32_t FileType() const;
    uint32_t FileSubtype() const;
    // For example "Application", "Dynamic-link library", "Driver (Display)", "Font (TrueType)",
    // "Unknown"; a value it does not know shows as "Unknown (0x...)".
    std::string FileTypeText() const;

    // Entries of the string table that VersionResource::PreferredTable chooses; "" when missing.
    std::string CompanyName() const { return StringValue("CompanyName"); }
    std::string FileDescription() const { return StringValue("FileDescription"); }
    std::string FileVersion() const { return StringValue("FileVersion"); }
    std::string InternalName() const { return StringValue("InternalName"); }
    std::string LegalCopyright() const { return StringValue("LegalCopyright"); }
    std::string LegalTrademarks() const { return StringValue("LegalTrademarks"); }
    std::string OriginalFilename() const { return StringValue("OriginalFilename"); }
    std::string ProductName() const { return StringValue("ProductName"); }
    std::string ProductVersion() const { return StringValue("ProductVersion"); }
    std::string Comments() const { return StringValue("Comments"); }
    std::string PrivateBuild() const { return StringValue("PrivateBuild"); }
    std::string SpecialBuild() const { return StringValue("SpecialBuild"); }

    // Any entry of the chosen table, its key compared without regard to case; the first match wins.
    std::string StringValue(const std::string& key) const;

    // The chosen table's name: language and code page as eight hex digits ("040904B0"); "" when none.
    std::string Translation() const;

    // The resource that was read, for whatever the accessors above do not cover.
    const std::optional<VersionResource>& Resource() const { return m_resource; }

private:
    const FixedFileInfo* Fixed() const;

    std::string m_fullPathName;
    std::optional<VersionResource> m_resource;
};
