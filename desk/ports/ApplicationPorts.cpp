#include "desk/ports/ApplicationPorts.h"

#include "desk/menus/MenuBar.h"
#include "desk/menus/MenuLayer.h"
#include "desk/processes/Alerts.h"
#include "desk/processes/Journal.h"
#include "desk/processes/KeyboardFocus.h"
#include "desk/processes/LaunchedApplication.h"
#include "desk/processes/Processes.h"
#include "desk/time/WallClock.h"
#include "desk/windows/Displays.h"
#include "desk/windows/WindowStack.h"

namespace desk {

ApplicationPorts::ApplicationPorts(const PortNeighbours& theNeighbours, LaunchedApplication& theApplication)
    : neighbours(theNeighbours),
      application(theApplication),
      workspace(neighbours.processes, neighbours.activation, neighbours.launchServices, neighbours.faults,
                neighbours.journal, application),
      windowServer(neighbours.windows, neighbours.displays, neighbours.faults),
      accessibility(neighbours.finder, neighbours.permissions, neighbours.journal, application),
      appleEvents(neighbours.scripting, neighbours.processes, neighbours.permissions, neighbours.faults,
                  neighbours.journal, application),
      events(neighbours.pointer),
      applicationPort(neighbours.clock, neighbours.processes, neighbours.activation, neighbours.journal, images,
                      application),
      windows(neighbours.windows, neighbours.keyboard, application),
      keeper(application, neighbours.windows, neighbours.displays, neighbours.processes),
      menus(neighbours.menus, neighbours.menuBar, neighbours.windows, application),
      images(neighbours.disk),
      files(neighbours.disk, neighbours.journal, application),
      defaults(neighbours.defaults[application.bundle().defaultsDomain()], application),
      bundle(application.bundle(), neighbours.disk),
      loginItem(neighbours.loginItem, neighbours.journal, application),
      analytics(neighbours.analyticsEvents, neighbours.journal, application),
      pasteboard(neighbours.clipboard),
      uuids(application.processIdentifier()),
      updaters(neighbours.updater, application),
      platformOfIt{neighbours.clock,
                   application.loop(),
                   application.loop(),
                   workspace,
                   neighbours.displays,
                   neighbours.appearance,
                   windowServer,
                   accessibility,
                   appleEvents,
                   events,
                   applicationPort,
                   windows,
                   menus,
                   neighbours.text,
                   images,
                   textBoundaries,
                   collation,
                   files,
                   defaults,
                   bundle,
                   neighbours.calendar,
                   loginItem,
                   analytics,
                   pasteboard,
                   uuids,
                   updaters,
                   *slots} {
    neighbours.processes.setKeeper(application.processIdentifier(), keeper);
}

void ApplicationPorts::answeredTermination(bool agreed) {
    neighbours.journal.note(application.processIdentifier(), agreed ? "terminate accepted" : "terminate refused");
}

void ApplicationPorts::processEnded() {
    for (const auto& [number, window] : application.windows()) {
        neighbours.windows.remove(number);
        neighbours.keyboard.windowOrderedOut(number);
    }
    neighbours.alerts.withdrawAllOf(application.processIdentifier());
    neighbours.menus.applicationEnded(application.processIdentifier());
    neighbours.menuBar.applicationEnded(application.processIdentifier());
    neighbours.processes.remove(application.processIdentifier());
}

Registrations ApplicationPorts::registrations() const {
    return {events.globalMonitorCount(),       events.localMonitorCount(),      workspace.observerCount(),
            accessibility.subscriptionCount(), application.loop().timerCount(), application.windows().size()};
}

}  // namespace desk
