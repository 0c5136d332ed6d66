#include "platform/Platform.h"

namespace {

Platform* g_installed = nullptr;

}  // namespace

Platform& Os() {
    static const std::unique_ptr<Platform> native = CreateNativePlatform();
    return g_installed != nullptr ? *g_installed : *native;
}

void InstallPlatform(Platform* platform) {
    g_installed = platform;
}
