#include "play/DeskState.h"

#include <string>

#include <QDateTime>
#include <QJsonArray>
#include <QJsonValue>

#include "desk/finder/FinderWindow.h"
#include "play/BarParts.h"
#include "play/Json.h"
#include "play/OpenMenus.h"
#include "play/OrdinaryWindows.h"
#include "play/Session.h"
#include "tracking/FinderObserver.h"

namespace play {

namespace {

constexpr const char* debugLogPath = "/tmp/Orvane-debug.log";

QJsonValue numberOf(std::int64_t value) {
    return static_cast<double>(value);
}

template <typename List, typename Convert>
QJsonArray arrayOf(const List& list, Convert convert) {
    QJsonArray array;
    for (const auto& element : list) array.append(convert(element));
    return array;
}

QJsonArray textsOf(const std::vector<std::string>& texts) {
    return arrayOf(texts, [](const std::string& text) { return jsonText(std::string_view(text)); });
}

QJsonObject finderWindow(const desk::Machine& machine, const desk::FinderWindow& window) {
    const desk::ServerWindow* server = machine.windows.find(window.number);
    return {{"number", numberOf(window.number)},
            {"path", jsonText(window.target)},
            {"name", jsonText(std::string_view(window.name))},
            {"frame", server == nullptr ? QJsonValue() : jsonFrame(server->frame)},
            {"selection", textsOf(window.selection)},
            {"minimized", window.minimized},
            {"fullScreen", window.fullScreen},
            {"space", server == nullptr ? QJsonValue() : server->space}};
}

QJsonObject finder(const desk::Machine& machine) {
    QJsonArray windows;
    for (const auto* window : machine.finder.windows())
        if (window->kind == desk::FinderWindowKind::folder) windows.append(finderWindow(machine, *window));
    return {{"running", machine.finder.isRunning()}, {"windows", windows}};
}

QJsonObject publishedWindow(const brindle::FinderWindowState& state) {
    return {{"id", jsonText(std::string_view(state.id))},
            {"windowNumber", numberOf(state.windowNumber)},
            {"zIndex", numberOf(state.zIndex)},
            {"path", jsonText(std::string_view(state.path))},
            {"displayName", jsonText(std::string_view(state.displayName))},
            {"selectedFilePath", jsonText(state.selectedFilePath)},
            {"frame", jsonFrame(state.frame)},
            {"isActive", state.isActive},
            {"isFullScreen", state.isFullScreen}};
}

const char* trackingName(brindle::FinderObserver::LiveGeometryState state) {
    constexpr const char* names[] = {"idle", "waiting", "predicting"};
    return names[static_cast<int>(state)];
}

QJsonObject observerState(const brindle::FinderObserver& observer) {
    const auto& active = observer.activeWindow.get();
    return {{"windows", arrayOf(observer.windows.get(), publishedWindow)},
            {"activeWindow", active ? jsonText(std::string_view(active->id)) : QJsonValue()},
            {"finderIsFrontmost", observer.finderIsFrontmost.get()},
            {"frontmostApplicationBundleIdentifier", jsonText(observer.frontmostApplicationBundleIdentifier.get())},
            {"tracking", trackingName(observer.liveGeometryState())},
            {"editRequests", numberOf(observer.counts().editRequests)}};
}

QJsonObject observer(const Session& session) {
    if (const auto* orvane = session.orvane()) return observerState(orvane->appDelegate.finderObserver());
    return {{"windows", QJsonArray()},    {"activeWindow", QJsonValue()},
            {"finderIsFrontmost", false}, {"frontmostApplicationBundleIdentifier", QJsonValue()},
            {"tracking", "idle"},         {"editRequests", 0}};
}

std::string nameOfOther(const desk::Machine& machine, std::int32_t owner) {
    const desk::Process* process = machine.processes.find(owner);
    return process == nullptr ? std::string() : process->bundleIdentifier.value_or(process->name);
}

QJsonArray stacking(const Session& session) {
    return arrayOf(session.machine.windows.onScreen(), [&](const desk::ServerWindow* window) {
        return jsonText(std::string_view(nameInStacking(session, *window)));
    });
}

QJsonValue alert(const desk::Machine& machine) {
    static constexpr const char* styles[] = {"warning", "informational", "critical"};
    const desk::Alert* alert = machine.alerts.shown();
    if (alert == nullptr) return {};
    return QJsonObject{{"source", jsonText(std::string_view(alert->source))},
                       {"message", jsonText(std::string_view(alert->message))},
                       {"informative", jsonText(std::string_view(alert->informative))},
                       {"buttons", textsOf(alert->buttons)},
                       {"default", jsonText(alert->defaultButton)},
                       {"cancel", jsonText(alert->cancelButton)},
                       {"style", styles[static_cast<std::size_t>(alert->style)]}};
}

QJsonValue plainValue(const platform::Value& value) {
    if (const auto* text = value.as<std::string>()) return jsonText(std::string_view(*text));
    if (const auto* flag = value.as<bool>()) return *flag;
    if (const auto number = value.number()) return *number;
    if (const auto* array = value.as<platform::Array>()) return arrayOf(*array, plainValue);
    if (const auto* dictionary = value.as<platform::Dictionary>()) {
        QJsonObject object;
        for (const auto& [key, entry] : *dictionary) object.insert(QString::fromStdString(key), plainValue(entry));
        return object;
    }
    return {};
}

QString dateOf(const desk::Machine& machine) {
    const auto instant = std::chrono::floor<std::chrono::seconds>(machine.clock.now().sinceEpoch);
    return QDateTime::fromSecsSinceEpoch(instant.count(), Qt::UTC).toString(Qt::ISODate);
}

QJsonArray processes(const desk::Machine& machine) {
    constexpr const char* policies[] = {"regular", "accessory", "prohibited"};
    return arrayOf(machine.processes.running(), [&](const desk::Process& process) {
        return QJsonObject{
            {"bundleIdentifier", jsonText(process.bundleIdentifier)},
            {"path", process.bundlePath.empty() ? QJsonValue() : jsonText(std::string_view(process.bundlePath))},
            {"processIdentifier", process.processIdentifier},
            {"policy", policies[static_cast<int>(process.policy)]}};
    });
}

QJsonArray journal(const desk::Machine& machine) {
    return arrayOf(machine.journal.entries(), [&](const desk::JournalEntry& entry) {
        return QJsonObject{{"time", machine.secondsAt(entry.time)},
                           {"process", entry.process},
                           {"what", jsonText(std::string_view(entry.what))}};
    });
}

QJsonArray scripts(const desk::Machine& machine) {
    return arrayOf(machine.scripting.sentScripts(), [](const desk::SentScript& script) {
        const auto error = script.error.empty() ? std::nullopt : std::optional<std::string>(script.error);
        return QJsonObject{{"source", jsonText(std::string_view(script.source))}, {"error", jsonText(error)}};
    });
}

QJsonValue automation(const Session& session) {
    constexpr const char* names[] = {"notChecked", "allowed", "denied", "failed"};
    const auto* orvane = session.orvane();
    if (orvane == nullptr) return {};
    const auto& permissions = orvane->appDelegate.automationPermissions();
    const auto& status = permissions.status.get();
    return QJsonObject{{"status", names[status.kind]},
                       {"message", status.message.empty() ? QJsonValue() : jsonText(std::string_view(status.message))},
                       {"isRequesting", permissions.isRequesting.get()},
                       {"isRefreshing", permissions.isRefreshing()}};
}

QJsonArray opened(const desk::Machine& machine) {
    return arrayOf(machine.launchServices.opened(), [](const desk::OpenedFiles& files) {
        const auto application =
            files.application.empty() ? std::nullopt : std::optional<std::string>(files.application);
        return QJsonObject{{"application", jsonText(application)}, {"urls", textsOf(files.urls)}};
    });
}

QJsonObject loginItem(Session& session) {
    static constexpr const char* statuses[] = {"not-registered", "enabled", "requires-approval", "not-found"};
    const auto* orvane = session.orvane();
    const auto* manager = orvane == nullptr ? nullptr : &orvane->appDelegate.launchAtLogin();
    return {{"status", statuses[static_cast<int>(session.machine.loginItem.status)]},
            {"isEnabled", manager == nullptr ? QJsonValue() : QJsonValue(manager->isEnabled.get())},
            {"statusMessage", manager == nullptr ? QJsonValue() : jsonText(manager->statusMessage.get())}};
}

QJsonArray analytics(const desk::Machine& machine) {
    return arrayOf(machine.analyticsEvents, [](const std::string& name) {
        return QJsonObject{{"name", jsonText(std::string_view(name))}, {"parameters", QJsonValue()}};
    });
}

QJsonObject permissions(const desk::Machine& machine) {
    constexpr const char* automation[] = {"allowed", "denied", "ask"};
    return {{"accessibility", machine.permissions.accessibility},
            {"automation", automation[static_cast<int>(machine.permissions.automation)]}};
}

QJsonValue updates(const Session& session) {
    const auto* orvane = session.orvane();
    if (orvane == nullptr) return {};
    const brindle::UpdateManager& updates = orvane->appDelegate.updates();
    return QJsonObject{{"availableVersion", jsonText(updates.availableVersion.get())},
                       {"canCheckForUpdates", updates.canCheckForUpdates.get()}};
}

QJsonObject counts(Session& session) {
    brindle::FinderObserver::Counts observed;
    if (const auto* orvane = session.orvane()) observed = orvane->appDelegate.finderObserver().counts();
    return {{"passes", numberOf(observed.passes)},
            {"pathFetches", numberOf(observed.pathFetches)},
            {"selectionFetches", numberOf(observed.selectionFetches)},
            {"observerStarts", numberOf(observed.starts)},
            {"barLayouts", numberOf(barLayouts(session))},
            {"barPaints", numberOf(session.compositor.counts().barPaints)}};
}

QJsonObject statusItem(const Session& session) {
    const desk::BarItem* item = session.statusItem();
    if (item == nullptr)
        return {{"present", false},
                {"label", QJsonValue()},
                {"size", QJsonValue()},
                {"template", QJsonValue()},
                {"frame", QJsonValue()}};
    const auto frame = session.machine.menuBar.frameOf(*item);
    return {{"present", true},
            {"label", jsonText(std::string_view(item->label))},
            {"size", QJsonArray{item->image.size().width, item->image.size().height}},
            {"template", item->image.isTemplate()},
            {"frame", frame ? QJsonValue(jsonFrame(*frame)) : QJsonValue()}};
}

QJsonArray log(const desk::Machine& machine) {
    QJsonArray lines;
    std::string text = machine.disk.read(debugLogPath).value_or(std::string());
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        lines.append(jsonText(std::string_view(text).substr(0, end)));
        text.erase(0, end + 1);
    }
    return lines;
}

}  // namespace

std::string nameInStacking(const Session& session, const desk::ServerWindow& window) {
    const desk::Machine& machine = session.machine;
    if (machine.finder.find(window.number) != nullptr) return "finder " + std::to_string(window.number);
    if (window.window == nullptr) return "other " + nameOfOther(machine, window.owner);
    if (const auto bar = barOfPanel(session, window.number)) return "panel " + *bar;
    return "window " + window.window->settings().title;
}

QJsonObject stateOf(Session& session) {
    const desk::Machine& machine = session.machine;
    const desk::Process* frontmost = machine.processes.frontmost();
    return {{"time", machine.secondsSinceStart()},
            {"frontmost", frontmost == nullptr ? QJsonValue() : jsonText(frontmost->bundleIdentifier)},
            {"finder", finder(machine)},
            {"observer", observer(session)},
            {"panels", panelsOf(session)},
            {"stacking", stacking(session)},
            {"menu", menuOf(machine)},
            {"popover", popoverOf(machine)},
            {"alert", alert(machine)},
            {"windows", windowsOf(session)},
            {"statusItem", statusItem(session)},
            {"systemSettings", systemSettingsOf(machine)},
            {"permissions", permissions(machine)},
            {"clipboard", jsonText(machine.clipboard)},
            {"opened", opened(machine)},
            {"automation", automation(session)},
            {"defaults", plainValue(session.defaults())},
            {"processes", processes(machine)},
            {"scripts", scripts(machine)},
            {"counts", counts(session)},
            {"updates", updates(session)},
            {"journal", journal(machine)},
            {"loginItem", loginItem(session)},
            {"analytics", analytics(machine)},
            {"log", log(machine)},
            {"date", dateOf(machine)}};
}

}  // namespace play
