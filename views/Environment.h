// The colour scheme as a view's body sees it. A view that reads it is evaluated again when it changes; one that doesn't
// isn't.
#pragma once

#include <memory>

#include "platform/Platform.h"
#include "views/Context.h"

namespace views {

class ColorSchemeEnvironment {
public:
    // Light before the view is part of a host.
    platform::ColorScheme get() const {
        if (!host) return platform::ColorScheme::light;
        host->readsColorScheme = true;
        return host->platform.appearance.colorScheme.get();
    }

    void attach(Context& context) { host = context.host; }

private:
    std::shared_ptr<HostLink> host;
};

}  // namespace views
