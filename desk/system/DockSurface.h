// The Dock under the mouse: an item opens when the left button is released over the one that was pressed. Where items stand and what they open is told in Dock.h.
#pragma once

#include <cstddef>

#include "desk/windows/Surface.h"

namespace desk {

class Machine;

class DockSurface final : public Surface {
public:
    explicit DockSurface(Machine& theMachine) : machine(theMachine) {}

    bool covers(const platform::CGPoint& point) const override;
    std::optional<std::int32_t> take(const platform::NSEvent& event) override;

private:
    Machine& machine;
    std::optional<std::size_t> pressed;
};

}  // namespace desk
