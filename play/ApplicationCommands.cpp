#include <string>

#include "play/Commands.h"
#include "play/ScriptPlayer.h"

namespace play {

namespace {

platform::Value booleanDefault(const Arguments& arguments) {
    static constexpr Choice<bool> booleans[] = {{"true", true}, {"false", false}, {"1", true},
                                                {"0", false},   {"yes", true},    {"no", false}};
    arguments.requireCount(3, 3);
    return choose(booleans, arguments, 2);
}

platform::Value wholeDefault(const Arguments& arguments) {
    arguments.requireCount(3, 3);
    return arguments.integer(2);
}

platform::Value textDefault(const Arguments& arguments) {
    return arguments.rest(2);
}

void setDefault(ScriptPlayer& player, const Arguments& arguments) {
    static constexpr Choice<platform::Value (*)(const Arguments&)> types[] = {
        {"bool", booleanDefault}, {"string", textDefault}, {"integer", wholeDefault}};
    arguments.requireCount(2, 100);
    Session& session = player.session();
    if (session.application() != nullptr) badCommand("this comes while no copy of the application runs");
    const bool isRemoval = arguments.count() == 2 && arguments.is(1, "none");
    session.setDefault(arguments.text(0),
                       isRemoval ? std::nullopt : std::optional(choose(types, arguments, 1)(arguments)));
}

void setInfo(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(1, 100);
    player.requireBeforeLaunch();
    const platform::Value value = arguments.count() == 1 ? platform::Value() : platform::Value(arguments.rest(1));
    player.session().info.insert_or_assign(arguments.text(0), value);
}

void startProcess(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(1, 3);
    auto& services = player.machine().launchServices;
    if (arguments.count() == 1) return services.startOtherProcess(arguments.text(0));
    const bool isNowhere = arguments.count() == 2 && arguments.is(1, "nowhere");
    if (!isNowhere && !arguments.is(1, "at")) badCommand("unknown word: " + arguments.text(1));
    services.startOtherProcess(arguments.text(0), isNowhere || arguments.is(2, "nowhere") ? "" : arguments.path(2));
}

template <desk::Ending how>
void endProcess(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(1, 1);
    const auto& processes = player.machine().processes;
    const desk::Process* process = processes.findByBundleIdentifier(arguments.text(0));
    if (process == nullptr) missingTarget("no process of " + arguments.text(0) + " runs");
    processes.end(process->processIdentifier, how);
}

void launchApplication(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(0, 1);
    const std::string path = arguments.count() == 1 ? arguments.path(0) : std::string(installedCopy);
    player.requirePath(path);
    if (!player.session().isCopy(path)) badCommand("no copy of the application: " + path);
    player.session().launch(path);
}

void setLoginRequest(desk::LoginItem::Request& request, const Arguments& arguments) {
    using Outcome = desk::LoginItem::Outcome;
    static constexpr Choice<Outcome> outcomes[] = {
        {"works", Outcome::works}, {"keeps", Outcome::keeps}, {"fails", Outcome::fails}};
    arguments.requireCount(2, 100);
    const Outcome outcome = choose(outcomes, arguments, 1);
    arguments.requireCount(outcome == Outcome::fails ? 3 : 2, outcome == Outcome::fails ? 100 : 2);
    request = {outcome, outcome == Outcome::fails ? arguments.rest(2) : std::string()};
}

void setLoginItem(ScriptPlayer& player, const Arguments& arguments) {
    using Status = desk::LoginItem::Status;
    static constexpr Choice<Status> statuses[] = {{"not-registered", Status::notRegistered},
                                                  {"enabled", Status::enabled},
                                                  {"requires-approval", Status::requiresApproval},
                                                  {"not-found", Status::notFound}};
    desk::LoginItem& item = player.machine().loginItem;
    if (arguments.is(0, "register")) return setLoginRequest(item.registering, arguments);
    if (arguments.is(0, "unregister")) return setLoginRequest(item.unregistering, arguments);
    arguments.requireCount(1, 1);
    item.setStatus(choose(statuses, arguments, 0));
}

void setFeed(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(1, 1000);
    auto& feed = player.machine().updateFeed;
    if (arguments.is(0, "latency")) {
        arguments.requireCount(2, 2);
        feed.latency = platform::seconds(arguments.seconds(1));
    } else if (arguments.count() == 1 && arguments.is(0, "off")) {
        feed.goOff();
    } else {
        feed.answer(arguments.rest(0));
    }
}

void checkForUpdates(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(0, 0);
    const auto* living = player.session().application();
    if (living == nullptr) missingTarget("no copy of the application runs");
    player.machine().updateFeed.checkNow(living->processIdentifier());
}

}  // namespace

const std::vector<Command>& applicationCommands() {
    static const std::vector<Command> table{{"set-default", setDefault},
                                            {"info", setInfo},
                                            {"process", startProcess},
                                            {"launch", launchApplication},
                                            {"terminate", endProcess<desk::Ending::asked>},
                                            {"kill", endProcess<desk::Ending::forced>},
                                            {"feed", setFeed},
                                            {"update-check", checkForUpdates},
                                            {"login-item", setLoginItem}};
    return table;
}

}  // namespace play
