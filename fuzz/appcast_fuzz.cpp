// Reads arbitrary bytes as an update feed: none may crash, hang or use up the machine, and what is offered is newer and short.
#include "desk/updates/Appcast.h"

#include <cstdlib>

#include "desk/updates/VersionOrder.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* bytes, std::size_t size) {
    const auto items = desk::readAppcast({reinterpret_cast<const char*>(bytes), size});
    if (!items) return 0;
    const desk::AppcastItem* newest = desk::newestAbove(*items, "1.0");
    for (const desk::AppcastItem& item : *items)
        if (item.version.size() > 64 || item.displayVersion.empty() || item.url.empty() ||
            desk::compareVersions(item.version, newest == nullptr ? "1.0" : newest->version) > 0)
            std::abort();
    return 0;
}
