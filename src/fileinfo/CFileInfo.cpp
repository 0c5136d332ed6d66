#include "fileinfo/CFileInfo.h"

#include <ctime>
#include <iterator>
#include <utility>

#include "error/mError.h"

namespace {

CFileInfo::Time FromNanoseconds(int64_t nanoseconds) {
    return CFileInfo::Time(
        std::chrono::duration_cast<CFileInfo::Time::duration>(std::chrono::nanoseconds(nanoseconds)));
}

std::string WithThousandsSeparators(uint64_t value) {
    std::string digits = std::to_string(value);
    for (std::size_t at = digits.size(); at > 3; at -= 3)
        digits.insert(at - 3, ",");
    return digits;
}

}  // namespace

void CFileInfo::SetFullPathName(const std::string& path) try {
    m_fullPathName = path;
    m_details = platform::DetailsOf(path);
} catch (...) {
    mError::PassOn("CFileInfo.SetFullPathName");
}

uint64_t CFileInfo::Size() const {
    return m_details ? m_details->size : 0;
}

std::string CFileInfo::SizeText() const {
    return m_details ? FormatSize(Size()) : "";
}

std::string CFileInfo::ShortSizeText() const {
    return m_details ? FormatShortSize(Size()) : "";
}

std::optional<CFileInfo::Time> CFileInfo::LastWriteTime() const {
    return m_details ? std::optional<Time>(FromNanoseconds(m_details->lastWrite)) : std::nullopt;
}

std::optional<CFileInfo::Time> CFileInfo::LastAccessTime() const {
    return m_details ? std::optional<Time>(FromNanoseconds(m_details->lastAccess)) : std::nullopt;
}

std::optional<CFileInfo::Time> CFileInfo::CreationTime() const {
    if (!m_details || !m_details->creation)
        return std::nullopt;
    return FromNanoseconds(*m_details->creation);
}

uint32_t CFileInfo::Attributes() const {
    if (!m_details)
        return 0;
    return (m_details->readOnly ? kAttributeReadOnly : 0) | (m_details->hidden ? kAttributeHidden : 0) |
           (m_details->directory ? kAttributeDirectory : 0) |
           (m_details->symbolicLink ? kAttributeSymbolicLink : 0);
}

std::string CFileInfo::AttributesText() const {
    if (!m_details)
        return "";
    static constexpr std::pair<uint32_t, const char*> kNames[] = {{kAttributeDirectory, "Directory"},
                                                                  {kAttributeReadOnly, "Read-only"},
                                                                  {kAttributeHidden, "Hidden"},
                                                                  {kAttributeSymbolicLink, "Symbolic link"}};
    std::string text;
    for (const auto& [bit, name] : kNames) {
        if ((Attributes() & bit) != 0)
            text += (text.empty() ? "" : ", ") + std::string(name);
    }
    return text.empty() ? "Normal" : text;
}

std::string CFileInfo::FormatSize(uint64_t bytes) {
    return WithThousandsSeparators(bytes) + (bytes == 1 ? " byte" : " bytes");
}

std::string CFileInfo::FormatShortSize(uint64_t bytes) {
    static constexpr const char* kUnits[] = {"KB", "MB", "GB", "TB"};
    if (bytes < 1024)
        return FormatSize(bytes);
    // Tenths of the unit, rounded half up; a value that rounds to 1024 of a unit moves on to the next one.
    // Dividing by the unit first keeps the arithmetic inside 64 bits for every size.
    uint64_t unit = 1024;
    std::size_t index = 0;
    auto tenths = [&] { return bytes / unit * 10 + (bytes % unit * 10 + unit / 2) / unit; };
    while (index + 1 < std::size(kUnits) && tenths() >= 10240) {
        unit *= 1024;
        ++index;
    }
    uint64_t value = tenths();
    return WithThousandsSeparators(value / 10) + "." + std::to_string(value % 10) + " " + kUnits[index];
}

std::string CFileInfo::FormatTime(Time time) {
    std::time_t seconds =
        std::chrono::system_clock::to_time_t(std::chrono::floor<std::chrono::seconds>(time));
    // The program is single-threaded, so the shared buffer of localtime is safe to use.
    const std::tm* local = std::localtime(&seconds);
    char text[32];
    if (local == nullptr || std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", local) == 0)
        return "";
    return text;
}

std::string CFileInfo::TimeText(const std::optional<Time>& time) {
    return time ? FormatTime(*time) : "";
}
