// What the user does to Finder's windows with Finder itself.
#include "desk/Machine.h"
#include "play/Session.h"
#include "play/soak/Actions.h"
#include "play/soak/Lines.h"

namespace play {

namespace {

std::string optionalFrame(const Chooser& choose) {
    return choose.random.oneIn(3) ? std::string() : choose.frame();
}

Lines open(const Chooser& choose) {
    if (!choose.finderRuns()) return {};
    return {joinWords({"finder open", textWord(choose.folder()), optionalFrame(choose)})};
}

Lines openTwin(const Chooser& choose) {
    const auto* front = choose.session.machine.finder.front();
    if (front == nullptr || !front->target) return {};
    const auto* shown = choose.session.machine.windows.find(front->number);
    return {joinWords({"finder open", textWord(*front->target), frameWords(shown->frame)})};
}

Lines openVirtual(const Chooser& choose) {
    static constexpr const char* names[] = {"Recents", "AirDrop", "Documents", "Phase 2"};
    if (!choose.finderRuns()) return {};
    return {joinWords({"finder open-virtual", textWord(choose.random.pick(names)), optionalFrame(choose)})};
}

Lines openInfoPanel(const Chooser& choose) {
    if (!choose.finderRuns()) return {};
    return {joinWords({"finder info-panel", textWord(choose.folder())})};
}

Lines onAny(const Chooser& choose, const char* verb, const std::string& rest = {}) {
    const auto window = choose.window([](const desk::FinderWindow&) { return true; });
    if (!window) return {};
    return {joinWords({"finder", verb, *window, rest})};
}

Lines onFolderWindow(const Chooser& choose, const char* verb, const std::string& rest = {}) {
    const auto window = choose.folderWindow();
    if (!window) return {};
    return {joinWords({"finder", verb, *window, rest})};
}

Lines closeSome(const Chooser& choose) {
    Lines lines;
    for (const auto* window : choose.session.machine.finder.windows())
        if (choose.random.oneIn(2)) lines.push_back("finder close " + numberWord(window->number));
    return lines;
}

Lines restore(const Chooser& choose) {
    const auto window = choose.window([](const desk::FinderWindow& each) { return each.minimized; });
    if (!window) return {};
    return {"finder restore " + *window};
}

Lines fullScreen(const Chooser& choose) {
    const auto full = choose.window([](const desk::FinderWindow& each) { return each.fullScreen; });
    if (full && !choose.random.oneIn(3)) return {"finder full-screen " + *full + " off"};
    return onFolderWindow(choose, "full-screen", "on");
}

Lines moveToSpace(const Chooser& choose) {
    return onAny(choose, "space", numberWord(choose.random.between(1, 3)));
}

Lines go(const Chooser& choose) {
    return onFolderWindow(choose, "go", textWord(choose.folder()));
}

// The title stays as it is.
Lines goToNamesake(const Chooser& choose) {
    for (const auto* window : choose.session.machine.finder.windows()) {
        const std::string namesake = window->target ? choose.namesakeOf(*window->target) : std::string();
        if (!namesake.empty()) return {joinWords({"finder go", numberWord(window->number), textWord(namesake)})};
    }
    return {};
}

Lines select(const Chooser& choose) {
    std::vector<const desk::FinderWindow*> shown;
    for (const auto* window : choose.session.machine.finder.windows())
        if (window->target) shown.push_back(window);
    if (shown.empty()) return {};
    const auto* window = choose.random.pick(shown);
    std::vector<std::string> words{"finder select", numberWord(window->number)};
    for (int items = choose.random.between(0, 2); items > 0; --items) {
        const std::string item = choose.itemIn(*window->target);
        if (!item.empty()) words.push_back(textWord(item));
    }
    return {joinWords(words)};
}

Lines frame(const Chooser& choose) {
    return onAny(choose, "frame", choose.frame());
}

}  // namespace

const std::vector<Action>& windowActions() {
    static const std::vector<Action> table{
        {"open", 8, open},
        {"open-twin", 1, openTwin},
        {"open-virtual", 1, openVirtual},
        {"info-panel", 0.7, openInfoPanel},
        {"close", 6, [](const Chooser& choose) { return onAny(choose, "close"); }},
        {"close-some", 0.4, closeSome},
        {"minimize", 2, [](const Chooser& choose) { return onFolderWindow(choose, "minimize"); }},
        {"restore", 2, restore},
        {"raise", 4, [](const Chooser& choose) { return onAny(choose, "raise"); }},
        {"full-screen", 1, fullScreen},
        {"window-space", 1, moveToSpace},
        {"go", 6, go},
        {"go-to-namesake", 1, goToNamesake},
        {"select", 5, select},
        {"frame", 5, frame}};
    return table;
}

}  // namespace play
