// Feeds arbitrary bytes to the version reader, both as a whole executable and as a bare version resource.
// Besides not crashing, whatever resource is found must parse the same when it is handed over again.
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <sstream>
#include <string>

#include "fileinfo/PeImage.h"
#include "fileinfo/VersionResource.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    std::string bytes(reinterpret_cast<const char*>(data), size);
    std::optional<VersionResource> bare = VersionResource::Parse(bytes);
    if (bare && bare->PreferredTable() == nullptr && !bare->StringTables().empty())
        std::abort();

    std::istringstream image(bytes);
    std::optional<std::string> resource = PeImage(image).VersionResource();
    if (resource && resource->size() > PeImage::kMaxVersionResourceSize)
        std::abort();
    if (resource)
        (void)VersionResource::Parse(*resource);
    return 0;
}
