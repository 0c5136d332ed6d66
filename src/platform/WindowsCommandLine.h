// Windows hands a started program its parameters as one text, and the program's C runtime cuts that text
// into argv. Where a program is started without that runtime in between, the same cut has to be made here,
// so that the program sees exactly the arguments it would have seen on Windows.
#pragma once

#include <string>
#include <string_view>
#include <vector>

// Splits the parameter text that follows the program name into arguments by the Microsoft C runtime's argv
// rules, as the runtimes since 2008 apply them (a doubled quote inside a quoted run is a literal quote).
// The text ends at its first NUL character, as a C string would.
std::vector<std::string> SplitWindowsCommandLine(std::string_view parameters);

// The parameter text that SplitWindowsCommandLine cuts into exactly `arguments` again (none holds a NUL).
std::string JoinWindowsCommandLine(const std::vector<std::string>& arguments);
