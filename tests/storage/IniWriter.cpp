// Another copy of the program, as the storage trials need one: saves a settings file in a loop, each save
// one update of the file.
//   pavonel_ini_writer <file> <name> <saves>: save i sets COUNT=i and KEY_i=i in [profile_<name>] and
//     <name>=i in [SHARED];
//   pavonel_ini_writer <file>: saves the states of IniTrial.h until it is killed.
// Exit status 0 once every save is made, 2 for wrong arguments.
#include <chrono>
#include <string>
#include <thread>

#include "storage/iniFile.h"
#include "support/IniTrial.h"

int main(int argc, char** argv) {
    if (argc != 2 && argc != 4)
        return 2;
    const std::string file = argv[1];
    for (int save = 1; argc == 2 || save <= std::stoi(argv[3]); ++save) {
        iniFile::Update update(file);
        const std::string value = std::to_string(save);
        if (argc == 2) {
            for (int key = 0; key < IniTrial::kKeys; ++key)
                iniFile::Write(file, "STATE", "K" + std::to_string(key), IniTrial::Value(save));
            continue;
        }
        iniFile::Write(file, "profile_" + std::string(argv[2]), "COUNT", value);
        // A save takes a while between its first and its last write, as one of many profiles does.
        std::this_thread::sleep_for(std::chrono::microseconds(500));
        iniFile::Write(file, "profile_" + std::string(argv[2]), "KEY_" + value, value);
        iniFile::Write(file, "SHARED", argv[2], value);
    }
    return 0;
}
