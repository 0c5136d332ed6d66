#include "storage/iniFile.h"

#include <utility>

#include "base/mString.h"
#include "storage/IniStore.h"

namespace iniFile {

IniStore& Store() {
    static IniStore store;
    return store;
}

std::string Read(std::string_view file, std::string_view section, std::string_view key,
                 std::string_view defaultValue, std::size_t size) {
    if (size == 0)
        return {};
    std::optional<std::string> value = Store().Read(file, mString::TrimView(section), mString::TrimView(key));
    std::string text = value ? std::move(*value) : mString::TrimRight(defaultValue);
    if (text.size() > size - 1)
        text.resize(size - 1);
    return text;
}

platform::WriteFault Write(const std::string& file, std::string_view section,
                           std::optional<std::string_view> key, std::optional<std::string_view> value) {
    std::string trimmedKey = key ? mString::Trim(*key) : std::string();
    return Store().Write(file, mString::Trim(section),
                         key ? std::optional<std::string_view>(trimmedKey) : std::nullopt, value);
}

platform::WriteFault RenameSection(const std::string& file, std::string_view section, std::string_view to) {
    return Store().RenameSection(file, mString::Trim(section), mString::Trim(to));
}

Update::Update(std::string file) : m_file(std::move(file)) {
    Store().BeginUpdate(m_file);
}

Update::~Update() {
    if (m_open)
        Store().EndUpdate(m_file);
}

platform::WriteFault Update::Commit() {
    if (!m_open)
        return platform::WriteFault::None;
    m_open = false;
    return Store().EndUpdate(m_file);
}

Load::Load(std::string file) : m_file(std::move(file)) {
    Store().BeginLoad(m_file);
}

Load::~Load() {
    Store().EndLoad(m_file);
}

}  // namespace iniFile
