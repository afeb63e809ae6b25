#include "desk/ports/WindowPort.h"

#include "desk/ports/PanelHandle.h"

namespace desk {

std::unique_ptr<platform::WindowHandle> WindowPort::makeWindow(platform::NSWindow& window,
                                                               const platform::CGRect& frame) {
    return std::make_unique<PanelHandle>(windows, input, application, window, frame);
}

}  // namespace desk
