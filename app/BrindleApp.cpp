#include "app/BrindleApp.h"

namespace brindle {

std::unique_ptr<OrvaneApp> OrvaneApp::main(platform::Platform& platform) {
    return std::make_unique<OrvaneApp>(platform);
}

}  // namespace brindle
