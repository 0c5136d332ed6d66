// How long the start and the saving of every profile take with 1,000 and 10,000 profiles in the settings
// file; both must grow linearly.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <map>
#include <memory>
#include <string>

#include "BenchFolder.h"
#include "app/Application.h"
#include "app/PublicObjects.h"
#include "storage/IniStore.h"
#include "storage/iniFile.h"

namespace {

// One folder per profile count, made once and entered before each benchmark.
BenchFolder& FolderWith(int profiles) {
    static std::map<int, std::unique_ptr<BenchFolder>> folders;
    std::unique_ptr<BenchFolder>& folder = folders[profiles];
    if (!folder)
        folder = std::make_unique<BenchFolder>(profiles);
    folder->Enter();
    return *folder;
}

// Loading the options and every profile and choosing the active one, from a settings file no copy of
// which is held yet: what the program does at start.
void BM_ApplicationLoadData(benchmark::State& state) {
    const int profiles = static_cast<int>(state.range(0));
    FolderWith(profiles);
    for (auto _ : state) {
        state.PauseTiming();
        iniFile::Store().Clear();
        g_cApp = std::make_unique<Application>();
        state.ResumeTiming();
        if (!g_cApp->LoadData() || g_cApp->Profiles().Count() != profiles)
            state.SkipWithError("the profiles did not load");
    }
    state.SetComplexityN(profiles);
}
BENCHMARK(BM_ApplicationLoadData)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->Complexity();

// The same start right after a save (by another copy of the program or another program): the file is too
// young for its times to prove it unchanged, so it is read and compared once per load, never once per key.
void BM_ApplicationLoadDataAfterSave(benchmark::State& state) {
    const int profiles = static_cast<int>(state.range(0));
    BenchFolder& folder = FolderWith(profiles);
    for (auto _ : state) {
        state.PauseTiming();
        folder.WriteSettings();
        std::filesystem::last_write_time(folder.Path() / "Pavonel.ini",
                                         std::filesystem::file_time_type::clock::now());
        g_cApp = std::make_unique<Application>();
        state.ResumeTiming();
        if (!g_cApp->LoadData() || g_cApp->Profiles().Count() != profiles)
            state.SkipWithError("the profiles did not load");
    }
    state.SetComplexityN(profiles);
}
BENCHMARK(BM_ApplicationLoadDataAfterSave)
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

// Changes every profile, then saves them all with the list the save dialog passes on.
void BM_SaveAllChangedProfiles(benchmark::State& state) {
    const int profiles = static_cast<int>(state.range(0));
    BenchFolder& folder = FolderWith(profiles);
    folder.WriteSettings();
    g_cApp->LoadData();
    std::string list;
    for (int i = 0; i < profiles; ++i)
        list += (i == 0 ? "" : ";") + BenchFolder::ProfileName(i);
    int16_t refresh = 1;
    for (auto _ : state) {
        state.PauseTiming();
        refresh = static_cast<int16_t>(refresh % 5 + 1);
        for (Profile& profile : g_cApp->Profiles())
            profile.SetRefresh(refresh);
        state.ResumeTiming();
        g_cApp->SaveDataEx(list);
        if (g_cApp->Profiles().DataChanged())
            state.SkipWithError("a profile was left unsaved");
    }
    state.SetComplexityN(profiles);
}
BENCHMARK(BM_SaveAllChangedProfiles)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->Complexity();

}  // namespace

BENCHMARK_MAIN();
