// A popover that a host has put up. HostingView keeps one for each place that presents one.
#pragma once

#include <functional>
#include <memory>
#include <typeinfo>

#include "platform/Menus.h"
#include "views/View.h"

namespace views {

class HostingView;

// The root of the popover's own host. Its content is declared anew with each update of the host that presents it.
class PopoverRoot final : public Composite {
public:
    const std::type_info& type() const override { return typeid(PopoverRoot); }
    void connect(Context& /*context*/) override {}
    View body() const override { return content(); }

    std::function<View()> content;
};

struct PresentedPopover {
    std::shared_ptr<PopoverRoot> root;
    HostingView* host = nullptr;  // the handle owns it
    // Null once it has been dismissed; it isn't shown again before its binding has been false.
    std::unique_ptr<platform::PopoverHandle> handle;
};

}  // namespace views
