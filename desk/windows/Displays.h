// The displays of the machine and the spaces on them: frames in AppKit space, menu bar and Dock cut out of the visible frame, which space is
// current. It tells whoever asks; it moves no window.
#pragma once

#include <optional>
#include <vector>

#include "platform/Published.h"
#include "platform/Screens.h"

namespace desk {

struct DisplayOptions {
    platform::CGRect frame{{0, 0}, {1440, 900}};
    int framesPerSecond = 60;
    double menuBar = 24;
    double dock = 0;

    platform::CGRect menuBarStrip() const { return {{frame.minX(), frame.maxY() - menuBar}, {frame.width(), menuBar}}; }
    platform::CGRect dockStrip() const { return {frame.origin, {frame.width(), dock}}; }
};

class Displays final : public platform::Screens {
public:
    Displays();

    const std::vector<platform::NSScreen>& screens() override { return list; }
    std::optional<platform::NSScreen> mainScreen() override;

    // The first display added after the start replaces the default one; removeAll leaves none.
    void add(const DisplayOptions& options);
    void removeAll();
    // All at once, in the place of what there was.
    void set(std::vector<DisplayOptions> displays);
    // What the display was made with, in the order of screens().
    const std::vector<DisplayOptions>& options() const { return made; }

    // The top-left space's anchor: maximum y of the screen at the origin, else of the first; 0 without any, when both spaces are one.
    double anchorMaxY() const;
    platform::CGRect topLeftRect(const platform::CGRect& appKitRect) const;
    platform::CGRect appKitRect(const platform::CGRect& topLeftRect) const;

    platform::Signal<> changed;

private:
    std::vector<platform::NSScreen> list;
    std::vector<DisplayOptions> made;
    bool isDefault = true;
};

}  // namespace desk
