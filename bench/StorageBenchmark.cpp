// How fast settings and texts are read and written with a large settings file: 1,000 profiles of 11 keys.
#include <benchmark/benchmark.h>

#include <string>

#include "BenchFolder.h"
#include "app/PublicObjects.h"
#include "profiles/ProfileSettings.h"
#include "storage/cIni_Profile.h"
#include "translate/cTranslate.h"

namespace {

constexpr int kProfiles = 1000;

std::string ProfileName(int i) {
    return BenchFolder::ProfileName(i);
}

// The program folder with the large settings file, created once.
BenchFolder& Folder() {
    static BenchFolder folder(kProfiles);
    static const bool entered = (folder.Enter(), true);
    benchmark::DoNotOptimize(entered);
    return folder;
}

// One load of a profile, as Profile.LoadData makes it: the file is checked once for its 11 keys.
void ReadProfile(const cIni_Profile& ini) {
    iniFile::Load load = ini.BeginLoad();
    for (const ProfileSettings::Any& setting : ProfileSettings::kAll) {
        std::visit(
            [&ini](const auto* declared) {
                benchmark::DoNotOptimize(ini.Read(declared->key, declared->readTrail));
            },
            setting);
    }
}

// A value that changes from round to round.
bool Varied(bool flag, int round) {
    return (round % 2 == 0) != flag;
}
int16_t Varied(int16_t number, int round) {
    return static_cast<int16_t>(number + round % 5);
}
std::string Varied(const char* text, int round) {
    return text + std::to_string(round);
}

void WriteProfile(const cIni_Profile& ini, int round) {
    iniFile::Update save = ini.BeginSave();
    for (const ProfileSettings::Any& setting : ProfileSettings::kAll) {
        std::visit(
            [&ini, round](const auto* declared) {
                ini.Write(declared->key, Varied(declared->newProfile, round), declared->writeTrail);
            },
            setting);
    }
}

void ReadAllProfiles(cIni_Profile& ini) {
    for (int i = 0; i < kProfiles; ++i) {
        ini.SetProfileName(ProfileName(i));
        ReadProfile(ini);
    }
}

// Reads all 11,000 keys through the companions, as loading every profile does.
void BM_ReadAllProfileKeys(benchmark::State& state) {
    Folder();
    cIni_Profile ini;
    for (auto _ : state)
        ReadAllProfiles(ini);
    state.counters["keys"] =
        benchmark::Counter(11.0 * kProfiles, benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(BM_ReadAllProfileKeys)->Unit(benchmark::kMillisecond);

// The same right after a save of one profile: the file is younger than its clock can tell apart, so each
// profile's load compares the file's bytes with the copy's.
void BM_ReadAllProfileKeysAfterSave(benchmark::State& state) {
    Folder();
    cIni_Profile ini;
    int round = 0;
    for (auto _ : state) {
        state.PauseTiming();
        ini.SetProfileName(ProfileName(0));
        WriteProfile(ini, ++round);
        state.ResumeTiming();
        ReadAllProfiles(ini);
    }
}
BENCHMARK(BM_ReadAllProfileKeysAfterSave)->Unit(benchmark::kMillisecond);

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
