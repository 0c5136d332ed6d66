#include "support/TempDir.h"

#include <fstream>
#include <random>
#include <sstream>
#include <system_error>

#include "platform/NativePath.h"

TempDir::TempDir() {
    std::random_device random;
    std::filesystem::path base = std::filesystem::temp_directory_path();
    for (;;) {
        m_path = base / ("pavonel-test-" + std::to_string(random()));
        if (std::filesystem::create_directory(m_path))
            break;
    }
}

TempDir::~TempDir() {
    std::error_code ignored;
    // Tests may leave read-only entries behind; make everything writable so removal succeeds.
    for (auto it = std::filesystem::recursive_directory_iterator(m_path, ignored);
         it != std::filesystem::recursive_directory_iterator(); it.increment(ignored)) {
        std::filesystem::permissions(it->path(), std::filesystem::perms::owner_all,
                                     std::filesystem::perm_options::add, ignored);
    }
    std::filesystem::permissions(m_path, std::filesystem::perms::owner_all,
                                 std::filesystem::perm_options::add, ignored);
    std::filesystem::remove_all(m_path, ignored);
}

std::string TempDir::File(const std::string& name) const {
    return platform::TextOf((m_path / platform::PathOf(name)).make_preferred());
}

std::string TempDir::Write(const std::string& name, const std::string& bytes) const {
    std::string path = File(name);
    std::error_code ignored;
    std::filesystem::create_directories(platform::PathOf(path).parent_path(), ignored);
    std::ofstream(platform::PathOf(path), std::ios::binary) << bytes;
    return path;
}

std::string TempDir::Read(const std::string& name) const {
    std::ifstream in(platform::PathOf(File(name)), std::ios::binary);
    std::ostringstream content;
    content << in.rdbuf();
    return content.str();
}
