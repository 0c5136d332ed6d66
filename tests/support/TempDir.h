// A fresh folder under the system's temporary directory, removed with everything in it at the end.
#pragma once

#include <filesystem>
#include <string>

class TempDir {
public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::filesystem::path& Path() const { return m_path; }

    // The path of `name` ("/" between its parts) inside the folder, as the program's own texts spell it.
    std::string File(const std::string& name) const;

    // Writes `bytes` to `name` inside the folder (making its folders), exactly as given; returns the full
    // path.
    std::string Write(const std::string& name, const std::string& bytes) const;

    // The bytes of `name` inside the folder (empty when it cannot be read).
    std::string Read(const std::string& name) const;

private:
    std::filesystem::path m_path;
};
