#include "BenchFolder.h"

#include <unistd.h>

#include <chrono>
#include <fstream>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "storage/IniStore.h"
#include "storage/iniFile.h"
#include "translate/cTranslate.h"

namespace fs = std::filesystem;

namespace {

// Starts nothing and has no special folders: benchmarks measure the program, not the desktop.
class BenchPlatform : public Platform {
public:
    explicit BenchPlatform(std::string folder) : m_folder(std::move(folder)) {}
    std::string ProgramDirectory() override { return m_folder; }
    int32_t ShellExec(int64_t, const std::string&, const std::string&, const std::string&, const std::string&,
                      int32_t) override {
        return kShellExecOk;
    }
    std::string SpecialFolder(int32_t) override { return {}; }
    std::string WindowsDirectory() override { return "/usr/bin"; }
    std::string TextEditorName() override { return "write.exe"; }
    bool CreateNamedMutex(const std::string&) override { return true; }
    std::string ShellLinkEnding() override { return ".lnk"; }
    bool WriteShellLink(const std::string&, const ShellLink&) override { return false; }
    std::optional<ShellLink> ReadShellLink(const std::string&) override { return std::nullopt; }

private:
    std::string m_folder;
};

std::string SettingsFile(int profiles) {
    std::string text =
        "[OPTIONS]\r\nLANGUAGE=DE\r\n[PROFILES]\r\nLASTACTIVEPROFILE=" + BenchFolder::ProfileName(0) + "\r\n";
    for (int i = 0; i < profiles; ++i) {
        text += "[" + BenchFolder::ProfileName(i) +
                "]\r\nLOGMESSAGES=1\r\nFREEPLAY=0\r\nUSESTANDARDRESOLUTION=1\r\nRESOLUTION=2\r\nRES_WIDTH="
                "1024\r\nRES_HEIGHT=768\r\nSCENARIO=scenarios\\grand tour\r\nGRAPICPAK=pak128.pak\r\n"
                "TARVOPATH=/games/Tarvolin/tarvolin.exe\r\nDESCRIPTION=Profile number " +
                std::to_string(i) + "\r\nREFRESH=1\r\n";
    }
    return text;
}

}  // namespace

// Two folders of one name in one process are two folders: each gets a number of its own.
TempFolder::TempFolder(const std::string& name) {
    static int made = 0;
    m_path =
        fs::temp_directory_path() / (name + "-" + std::to_string(::getpid()) + "-" + std::to_string(++made));
    fs::create_directories(m_path);
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    fs::remove_all(m_path, ignored);
}

BenchFolder::BenchFolder(int profiles)
    : m_profiles(profiles), m_folder("pavonel-bench-" + std::to_string(profiles)) {
    fs::create_directories(m_folder.Path() / "config");
    for (const char* language : {"LNG_EN.ini", "LNG_DE.ini"}) {
        fs::copy_file(fs::path(PAVONEL_SOURCE_DIR) / "config" / language,
                      m_folder.Path() / "config" / language, fs::copy_options::overwrite_existing);
    }
    WriteSettings();
    m_platform = std::make_unique<BenchPlatform>(m_folder.Path().string());
}

BenchFolder::~BenchFolder() {
    g_cTranslate.reset();
    g_cApp.reset();
    InstallPlatform(nullptr);
}

std::unique_ptr<Platform> BenchFolder::PlatformAt(const std::string& folder) {
    return std::make_unique<BenchPlatform>(folder);
}

std::string BenchFolder::ProfileName(int i) {
    return "profile_Bench" + std::to_string(i);
}

// Files the program meets at start were written long before; dating them back measures the steady state
// instead of the re-reads that a just-written file gets.
void BenchFolder::WriteSettings() const {
    const fs::path ini = m_folder.Path() / "Pavonel.ini";
    std::ofstream(ini, std::ios::binary) << SettingsFile(m_profiles);
    for (const fs::path& file :
         {ini, m_folder.Path() / "config/LNG_EN.ini", m_folder.Path() / "config/LNG_DE.ini"})
        fs::last_write_time(file, fs::last_write_time(file) - std::chrono::hours(1));
    iniFile::Store().Clear();
}

void BenchFolder::PointAt(const fs::path& gameFolder) const {
    std::ifstream in(m_folder.Path() / "Pavonel.ini", std::ios::binary);
    std::string settings(std::istreambuf_iterator<char>(in), {});
    in.close();
    const std::string old = "/games/Tarvolin/";
    const std::string now = (gameFolder / "").string();
    for (std::size_t at = 0; (at = settings.find(old, at)) != std::string::npos; at += now.size())
        settings.replace(at, old.size(), now);
    std::ofstream(m_folder.Path() / "Pavonel.ini", std::ios::binary) << settings;
}

void BenchFolder::Enter() {
    InstallPlatform(m_platform.get());
    g_cApp = std::make_unique<Application>();
    g_cTranslate = std::make_unique<cTranslate>();
    g_cApp->Options().LoadData();
}
