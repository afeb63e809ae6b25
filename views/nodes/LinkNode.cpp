#include "views/nodes/LinkNode.h"

#include "views/HostingView.h"

namespace views {

void LinkNode::clicked(HostingView& host) const {
    host.run([&workspace = host.platform.workspace, address = url] { workspace.openURL(address); });
}

}  // namespace views
