// What lets one test run on Linux and on Windows: paths written with "/" in the native spelling, and tests
// that only make sense on one OS saying so (on the other they are skipped, with the reason in the output).
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "app/mPath.h"

// `path` with every "/" turned into this build's separator.
inline std::string Native(std::string path) {
    std::replace(path.begin(), path.end(), '/', mPath::Separator());
    return path;
}

#ifdef _WIN32
#define ONLY_ON_LINUX(reason) GTEST_SKIP() << "Only on Linux: " << (reason)
#else
#define ONLY_ON_LINUX(reason) static_cast<void>(0)
#endif
