// The system's prompt while it is up: it stands above everything and takes presses on itself. What it says and what its buttons do is the machine's.
#pragma once

#include "desk/system/ShownAlert.h"
#include "desk/windows/Surface.h"

namespace desk {

class Machine;

class AlertSurface final : public Surface {
public:
    explicit AlertSurface(Machine& theMachine) : machine(theMachine) {}

    bool covers(const platform::CGPoint& point) const override;
    std::optional<std::int32_t> take(const platform::NSEvent& event) override;

private:
    std::optional<ShownAlert> shownAlert() const;

    Machine& machine;
};

}  // namespace desk
