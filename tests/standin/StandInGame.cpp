// A stand-in for the game in launch tests and in the demo of scripts/run: it appends a line to tarvo.log in
// its working directory the way the game does, records how it was started, and ends at once. Started with
// PAVONEL_STANDIN_WINDOW=1 in its environment (scripts/run sets it for the demo), the build with windows
// then also shows a person what it received until the window is closed.
//
// The record, launch-record.txt beside this executable, holds the working directory and then each argument
// (argv[1] on), each ended by a NUL, which no argument can hold. It replaces its file whole, so a record
// that exists is complete.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <system_error>

#include "platform/FileSystem.h"
#include "platform/NativePath.h"
#include "platform/Platform.h"
#ifdef PAVONEL_STANDIN_WITH_WINDOW
#include "StandInWindow.h"
#endif

namespace fs = std::filesystem;

namespace {

int ArgumentCount(int argc) {
    return argc > 1 ? argc - 1 : 0;
}

// The directory as the program's own texts spell it, so a test compares it with its own path text.
std::string RecordText(const fs::path& directory, int argc, char** argv) {
    std::string text = platform::TextOf(directory) + '\0';
    for (int i = 1; i < argc; ++i)
        text += std::string(argv[i]) + '\0';
    return text;
}

bool AppendLog(const fs::path& directory, int argc) {
    std::ofstream log(directory / "tarvo.log", std::ios::binary | std::ios::app);
    log << "Tarvolin stand-in started with " << ArgumentCount(argc) << " arguments\n";
    log.close();
    return !log.fail();
}

}  // namespace

int main(int argc, char** argv) {
    std::error_code error;
    const fs::path directory = fs::current_path(error);
    if (error) {
        std::cerr << "stand-in game: no working directory: " << error.message() << '\n';
        return EXIT_FAILURE;
    }
    // The log comes first: a test that sees the record may read the log at once.
    const bool logged = AppendLog(directory, argc);
    if (!logged)
        std::cerr << "stand-in game: cannot append to tarvo.log in " << directory << '\n';
    const fs::path record = platform::PathOf(Os().ProgramDirectory()) / "launch-record.txt";
    if (!platform::ReplaceFile(platform::TextOf(record), RecordText(directory, argc, argv))) {
        std::cerr << "stand-in game: cannot write " << record << '\n';
        return EXIT_FAILURE;
    }
#ifdef PAVONEL_STANDIN_WITH_WINDOW
    if (const char* window = std::getenv("PAVONEL_STANDIN_WINDOW");
        window != nullptr && std::string(window) == "1")
        ShowStandInWindow(argc, argv, platform::TextOf(directory));
#endif
    return logged ? EXIT_SUCCESS : EXIT_FAILURE;
}
