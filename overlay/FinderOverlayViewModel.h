// The observable state of one bar: which window it shows, whether its path field is open, what stands in the field and
// under it. The coordinator writes the window state, the views bind to the rest. It keeps refreshes from disturbing the
// user's typing, and commits nothing. Main thread only.
//
//   state    entered by                                              left by
//   showing  creation, cancelEditing()                               beginEditing() with a window state
//   editing  beginEditing()                                          cancelEditing(), another window's state, no state
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/Published.h"
#include "tracking/FinderWindowState.h"

namespace brindle {

class FinderOverlayViewModel final : public platform::ObservableObject {
public:
    // Its frame, zIndex and flags may be out of date: see setWindowState.
    platform::Published<std::optional<FinderWindowState>> windowState{*this, std::nullopt};
    platform::Published<bool> isEditing{*this, false};
    // The active window's bar, while Finder is the frontmost application; the coordinator's alone.
    platform::Published<bool> isActive{*this, false};
    platform::Published<std::string> inputText{*this, std::string()};
    platform::Published<std::optional<std::string>> errorMessage{*this, std::nullopt};

    std::function<void()> onBeginEditing;

    // Takes over what the bar shows; a state that differs only in what it doesn't show isn't even stored.
    void setWindowState(const std::optional<FinderWindowState>& state);
    void beginEditing();
    void cancelEditing();
};

}  // namespace brindle
