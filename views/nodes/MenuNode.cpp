#include "views/nodes/MenuNode.h"

#include "views/HostingView.h"

namespace views {

void MenuNode::mouseDown(HostingView& host, const LayoutItem& item, const platform::NSEvent& /*event*/) const {
    host.openMenu(item, entries);
}

}  // namespace views
