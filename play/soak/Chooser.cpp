#include "play/soak/Chooser.h"

#include <algorithm>

#include "pathbar/BreadcrumbModel.h"
#include "platform/FileURL.h"
#include "play/BarParts.h"
#include "play/Session.h"
#include "play/soak/Lines.h"
#include "tracking/FinderObserver.h"

namespace play {

namespace {

constexpr const char* sampleFolders[] = {
    "/",
    "/Users/ana",
    "/Users/ana/Documents",
    "/Users/ana/Documents/Invoices/2023",
    "/Users/ana/Documents/Projects/Harbour Survey/Phase 2",
    "/Users/ana/Documents/Invoices/2024/Q1/Paid",
    "/Users/ana/Documents/Projects/Harbour Survey/Phase 2/Field Notes/Site 7/Soil Samples",
    "/Users/ana/Documents/Projects/Harbour Survey/Phase 10",
    "/Users/ana/Documents/Projects/Café Menu/Été",
    "/Users/ana/Documents/Recipes 🍋/Cakes",
    "/Users/ana/Documents/\u05de\u05e1\u05de\u05db\u05d9\u05dd",
    "/Users/ana/Documents/Latest Invoices",
    "/Users/ana/Downloads",
    "/Volumes/Data/Reports/Annual",
    "/Volumes/Data/Reports/Monthly"};

// Several end in the same name; some are hard on whoever quotes, measures or splits them.
constexpr const char* ownFolders[] = {"/Users/ana/Stories/Phase 2",
                                      "/Users/ana/Stories/Phase 10/Phase 2",
                                      "/Users/ana/Stories/Annual",
                                      "/Users/ana/Stories/He said \"no\"",
                                      "/Users/ana/Stories/back\\slash",
                                      "/Users/ana/Stories/line\nfeed",
                                      "/Users/ana/Stories/$(echo x) `y` 'z'; rm",
                                      "/Users/ana/Stories/ends in blanks  ",
                                      "/Users/ana/Stories/e\u0301 decomposed",
                                      "/Users/ana/Stories/\r\t%2F..:~",
                                      "/Users/ana/Stories/\" & (do shell script \"exit 3\") & \"",
                                      "/Users/ana/Stories/👩‍👩‍👧‍👦🇺🇳",
                                      "/Users/ana/Stories/\u202Egpj.exe",
                                      "/Users/ana/Stories/record\036divided",
                                      "/Users/ana/Stories/101\037divided",
                                      "/Users/ana/Stories/Old"};

constexpr std::size_t longNameLength = 255;

bool isFolder(const Session& session, const std::string& path) {
    return session.machine.disk.kind(path) == platform::FileKind::directory;
}

}  // namespace

std::optional<std::string> Chooser::window(const Test& test) const {
    std::vector<std::int64_t> numbers;
    for (const auto* window : session.machine.finder.windows())
        if (test(*window)) numbers.push_back(window->number);
    if (numbers.empty()) return std::nullopt;
    return numberWord(random.pick(numbers));
}

std::optional<std::string> Chooser::folderWindow() const {
    return window([](const desk::FinderWindow& each) { return each.kind == desk::FinderWindowKind::folder; });
}

std::optional<std::string> Chooser::windowWithBar() const {
    return window([this](const desk::FinderWindow& each) { return panelNumber(session, each.number) != 0; });
}

std::size_t Chooser::windowCount() const {
    const auto windows = session.machine.windows.all();
    const std::int32_t finder = session.machine.finder.pid();
    return static_cast<std::size_t>(
        std::count_if(windows.begin(), windows.end(), [&](const auto* window) { return window->owner == finder; }));
}

std::string Chooser::partOfBar() const {
    static constexpr const char* parts[] = {"crumb", "crumb", "crumb", "chevron", "chevron", "ellipsis",
                                            "copy",  "brand", "empty", "empty",   "field",   "plate"};
    return random.pick(parts);
}

std::string Chooser::folder() const {
    const std::string path = random.oneIn(4) ? random.pick(ownFolders) : random.pick(sampleFolders);
    return isFolder(session, path) ? path : "/Users/ana";
}

std::string Chooser::namesakeOf(const std::string& folder) const {
    std::vector<std::string> namesakes;
    const auto consider = [&](const std::string& path) {
        const bool isOther = path != folder && platform::lastPathComponent(path) == platform::lastPathComponent(folder);
        if (isOther && isFolder(session, path)) namesakes.push_back(path);
    };
    for (const char* path : sampleFolders) consider(path);
    for (const char* path : ownFolders) consider(path);
    return namesakes.empty() ? std::string() : random.pick(namesakes);
}

std::string Chooser::itemIn(const std::string& folder) const {
    const auto entries = session.machine.disk.list(folder);
    if (!entries || entries->empty()) return {};
    return platform::appendingPathComponent(folder, random.pick(*entries).name);
}

std::string Chooser::ownFolder() const {
    if (random.oneIn(12)) return "/Users/ana/Stories/" + std::string(longNameLength, 'n');
    return random.pick(ownFolders);
}

std::string Chooser::frame() const {
    const auto& windows = session.machine.windows;
    const auto all = windows.all();
    if (!all.empty() && random.oneIn(5)) return frameWords(random.pick(all)->frame);
    platform::CGRect rect{
        {static_cast<double>(random.between(-300, 1500)), static_cast<double>(random.between(-200, 800))},
        {static_cast<double>(random.between(120, 1400)), static_cast<double>(random.between(60, 900))}};
    if (random.oneIn(3)) rect.origin.x += 0.25 * random.between(1, 3);
    if (random.oneIn(3)) rect.size.height += 0.25 * random.between(1, 3);
    return frameWords(rect);
}

std::string Chooser::point() const {
    return numberWord(random.between(-50, 1500)) + ' ' + numberWord(random.between(-50, 950));
}

std::string Chooser::crumbTitle(const std::string& window) const {
    const auto* orvane = session.orvane();
    if (orvane == nullptr) return {};
    for (const auto& state : orvane->appDelegate.finderObserver().windows.get()) {
        if (numberWord(state.windowNumber) != window) continue;
        return random.pick(brindle::breadcrumbItems(state)).title;
    }
    return {};
}

bool Chooser::finderRuns() const {
    return session.machine.finder.isRunning();
}

}  // namespace play
