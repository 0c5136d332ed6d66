// How fast settings and texts are read and written with a large settings file: 1,000 profiles of 11 keys.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "platform/Platform.h"
#include "storage/IniStore.h"
#include "storage/cIni_Profile.h"
#include "translate/cTranslate.h"

namespace fs = std::filesystem;

namespace {

constexpr int kProfiles = 1000;

class BenchPlatform : public Platform {
public:
    explicit BenchPlatform(std::string folder) : m_folder(std::move(folder)) {}
    std::string ProgramDirectory() override { return m_folder; }
    int32_t ShellExec(int64_t, const std::string&, const std::string&, const std::string&, const std::string&,
                      int32_t) override {
        return kShellExecOk;
    }

private:
    std::string m_folder;
};

std::string ProfileName(int i) {
    return "profile_Bench" + std::to_string(i);
}

std::string SettingsFile() {
    std::string text = "[OPTIONS]\r\nLANGUAGE=DE\r\n";
    for (int i = 0; i < kProfiles; ++i) {
        text += "[" + ProfileName(i) +
                "]\r\nLOGMESSAGES=1\r\nFREEPLAY=0\r\nUSESTANDARDRESOLUTION=1\r\nRESOLUTION=2\r\nRES_WIDTH="
                "1024\r\n"
                "RES_HEIGHT=768\r\nSCENARIO=scenarios\\grand tour\r\nGRAPICPAK=pak128.pak\r\n"
                "TARVOPATH=/games/Tarvolin/tarvolin.exe\r\nDESCRIPTION=Profile number " +
                std::to_string(i) + "\r\nREFRESH=1\r\n";
    }
    return text;
}

// A program folder with the large settings file and the shipped language files, created once.
class ProgramFolder {
public:
    ProgramFolder() : m_path(fs::temp_directory_path() / ("pavonel-bench-" + std::to_string(::getpid()))) {
        fs::create_directories(m_path / "config");
        for (const char* language : {"LNG_EN.ini", "LNG_DE.ini"}) {
            fs::copy_file(fs::path(PAVONEL_SOURCE_DIR) / "config" / language, m_path / "config" / language,
                          fs::copy_options::overwrite_existing);
        }
        WriteSettings();
        m_platform = std::make_unique<BenchPlatform>(m_path.string());
        InstallPlatform(m_platform.get());
        g_cApp = std::make_unique<Application>();
        g_cTranslate = std::make_unique<cTranslate>();
        g_cApp->Options().LoadData();
    }
    ~ProgramFolder() {
        g_cTranslate.reset();
        g_cApp.reset();
        InstallPlatform(nullptr);
        fs::remove_all(m_path);
    }

    // Files the program meets at start were written long before; dating them back measures the steady state
    // instead of the re-reads that a just-written file gets.
    void WriteSettings() const {
        fs::path ini = m_path / "Pavonel.ini";
        std::ofstream(ini, std::ios::binary) << SettingsFile();
        for (const fs::path& file : {ini, m_path / "config/LNG_EN.ini", m_path / "config/LNG_DE.ini"}) {
            fs::last_write_time(file, fs::last_write_time(file) - std::chrono::hours(1));
        }
    }

private:
    fs::path m_path;
    std::unique_ptr<BenchPlatform> m_platform;
};

ProgramFolder& Folder() {
    static ProgramFolder folder;
    return folder;
}

void ReadProfile(const cIni_Profile& ini) {
    benchmark::DoNotOptimize(ini.Read_LogMessages());
    benchmark::DoNotOptimize(ini.Read_Freeplay());
    benchmark::DoNotOptimize(ini.Read_UsePreDefinedResolution());
    benchmark::DoNotOptimize(ini.Read_PreDefinedResolution());
    benchmark::DoNotOptimize(ini.Read_ResolutionWidth());
    benchmark::DoNotOptimize(ini.Read_ResolutionHeight());
    benchmark::DoNotOptimize(ini.Read_ScenarioPath());
    benchmark::DoNotOptimize(ini.Read_GraphicPakPath());
    benchmark::DoNotOptimize(ini.Read_Refresh());
    benchmark::DoNotOptimize(ini.Read_TarvolinPath());
    benchmark::DoNotOptimize(ini.Read_ProfileDescription());
}

void WriteProfile(const cIni_Profile& ini, int round) {
    iniFile::Update save = ini.BeginSave();
    ini.Write_LogMessages(round % 2 == 0);
    ini.Write_Freeplay(round % 2 == 1);
    ini.Write_UsePreDefinedResolution(true);
    ini.Write_PreDefinedResolution(static_cast<int16_t>(1 + round % 5));
    ini.Write_ResolutionWidth(static_cast<int16_t>(800 + round % 100));
    ini.Write_ResolutionHeight(600);
    ini.Write_ScenarioPath("scenarios\\grand tour");
    ini.Write_GraphicPakPath("pak128.pak");
    ini.Write_Refresh(static_cast<int16_t>(round % 5));
    ini.Write_TarvolinPath("/games/Tarvolin/tarvolin.exe");
    ini.Write_ProfileDescription("Profile written in round " + std::to_string(round));
}

// Reads all 11,000 keys through the companions, as loading every profile does.
void BM_ReadAllProfileKeys(benchmark::State& state) {
    Folder();
    cIni_Profile ini;
    for (auto _ : state) {
        for (int i = 0; i < kProfiles; ++i) {
            ini.SetProfileName(ProfileName(i));
            ReadProfile(ini);
        }
    }
    state.counters["keys"] =
        benchmark::Counter(11.0 * kProfiles, benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(BM_ReadAllProfileKeys)->Unit(benchmark::kMillisecond);

// Writes all 11,000 keys, one update of the file per profile, as saving every profile does.
void BM_WriteAllProfileKeys(benchmark::State& state) {
    Folder();
    cIni_Profile ini;
    int round = 0;
    for (auto _ : state) {
        ++round;
        for (int i = 0; i < kProfiles; ++i) {
            ini.SetProfileName(ProfileName(i));
            WriteProfile(ini, round);
        }
    }
}
BENCHMARK(BM_WriteAllProfileKeys)->Unit(benchmark::kMillisecond)->Iterations(3);

// One translated text once the language files have been read.
void BM_TranslateEx(benchmark::State& state) {
    Folder();
    g_cTranslate->TranslateEx("MAIN_DIALOG", "TAB_DISPLAY");
    for (auto _ : state) {
        benchmark::DoNotOptimize(g_cTranslate->TranslateEx("ERROR_MESSAGES", "ERR_FileNotFound", "/games/x"));
    }
}
BENCHMARK(BM_TranslateEx)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
