// Another copy of the program, as the storage trials need one: saves a settings file through the engine in
// a loop, each save one update of the file.
//   pavonel_ini_writer <file> profile <name> <saves>
//     save i (from 1) sets COUNT=i and KEY_i=i in [profile_<name>] and <name>=i in [SHARED];
//   pavonel_ini_writer <file> state <keys>
//     save i (from 1, until the process is killed) sets every key K0... of [STATE] to the same text of i.
// Exit status 0 when every save was made, 2 for wrong arguments.
#include <string>

#include "storage/iniFile.h"
#include "support/IniTrial.h"

namespace {

void SaveProfile(const std::string& file, const std::string& name, int save) {
    iniFile::Update update(file);
    const std::string value = std::to_string(save);
    iniFile::Write(file, "profile_" + name, "COUNT", value);
    iniFile::Write(file, "profile_" + name, "KEY_" + value, value);
    iniFile::Write(file, "SHARED", name, value);
}

}  // namespace

int main(int argc, char** argv) {
    const std::string mode = argc > 2 ? argv[2] : "";
    if (mode == "profile" && argc == 5) {
        for (int save = 1, saves = std::stoi(argv[4]); save <= saves; ++save)
            SaveProfile(argv[1], argv[3], save);
        return 0;
    }
    if (mode == "state" && argc == 4) {
        for (int save = 1;; ++save)
            IniTrial::SaveState(argv[1], std::stoi(argv[3]), save);
    }
    return 2;
}
