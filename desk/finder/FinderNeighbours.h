// The parts of the machine that Finder uses.
#pragma once

namespace platform {
class TextSystem;
}  // namespace platform

namespace desk {

class Activation;
class Disk;
class Displays;
class Faults;
class LaunchServices;
class Processes;
class Scheduler;
class WindowStack;
class Permissions;

struct FinderNeighbours {
    Scheduler& scheduler;
    Disk& disk;
    Displays& displays;
    WindowStack& windows;
    Processes& processes;
    Permissions& permissions;
    Faults& faults;
    Activation& activation;
    LaunchServices& launchServices;
    platform::TextSystem& text;
};

}  // namespace desk
