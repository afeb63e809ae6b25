#include "play/ContactSheetStates.h"

#include <vector>

#include "pathbar/PathBarDesign.h"

namespace play {

namespace {

const std::string deepFolder = "/Users/ana/Documents/Projects/2024/Orvane/Designs/Bars";
const std::string shallowFolder = "/Users/ana/Documents";
const std::string longName(96, 'm');
const std::string mixedName = "Notes עברית 2024 العربية end";
const std::string inDark = "appearance dark\n";

std::string folderNamed(const std::string& name) {
    return "folder \"/Users/ana/" + name + "\"\n";
}

void addStyles(std::vector<SheetState>& states) {
    for (const std::string scheme : {"light", "dark"})
        for (const brindle::PathBarDesign design : brindle::allPathBarDesigns) {
            const std::string name(brindle::rawValue(design));
            states.push_back({name + ", " + scheme, 780, deepFolder,
                              "appearance " + scheme + "\nset-default pathBarDesign string " + name + "\n", ""});
        }
}

void addWidths(std::vector<SheetState>& states) {
    for (const int width : {200, 260, 320, 400, 600, 900, 1200, 1600, 2400})
        states.push_back({std::to_string(width) + " points", width, deepFolder, "", ""});
}

void addPlacesAndNames(std::vector<SheetState>& states) {
    const std::vector<SheetState> more{
        {"startup volume", 520, "/", "", ""},
        {"virtual location", 520, "Recents", "", ""},
        {"one selected file", 780, shallowFolder, "file /Users/ana/Documents/notes.txt\n",
         "finder select 101 /Users/ana/Documents/notes.txt\nwait 1\n"},
        {"full screen", 780, deepFolder, "", "finder full-screen 101 on\nwait 2\n"},
        {"a name too long for the row", 520, "/Users/ana/" + longName, folderNamed(longName), ""},
        {"both directions", 780, "/Users/ana/" + mixedName, folderNamed(mixedName), ""},
        {"emoji, accents, a line feed", 780, "/Users/ana/🎨🇫🇷 cafe\u0301\\nnew line",
         folderNamed("🎨🇫🇷 cafe\u0301\\nnew line"), ""},
    };
    states.insert(states.end(), more.begin(), more.end());
}

void addField(std::vector<SheetState>& states) {
    const std::string open = "key cmd+l\nwait 0.5\n";
    const std::string veryLong = "x/" + std::string(2000, 'w') + "/y";
    const std::vector<SheetState> more{
        {"field, everything selected", 780, deepFolder, "", open},
        {"field, everything selected, dark", 780, deepFolder, inDark, open},
        {"field, caret", 780, shallowFolder, "", open + "key end\n"},
        {"field, a word selected", 780, shallowFolder, "", open + "key end\nkey shift+alt+left\n"},
        {"field, scrolled to the end of a long path", 520, deepFolder, "", open + "key end\n"},
        {"field, the end of 2000 letters", 780, shallowFolder, "", open + "type " + veryLong + "\n"},
        {"field, selected across both directions", 780, "/Users/ana/" + mixedName, folderNamed(mixedName),
         open + "key end\nkey left\nkey left\nkey left\nkey left\nkey shift+alt+left\nkey shift+alt+left\n"},
        {"field, nothing there", 780, shallowFolder, "", open + "type /nowhere\nkey return\n"},
        {"field, nothing there, dark", 780, shallowFolder, inDark, open + "type /nowhere\nkey return\n"},
    };
    states.insert(states.end(), more.begin(), more.end());
}

void addMenus(std::vector<SheetState>& states) {
    std::string many;
    for (int number = 1; number <= 60; ++number)
        many += "folder \"/Users/ana/Many/Folder " + std::to_string(number) + "\"\n";
    const std::string select = "finder select 101 /Users/ana/Empty/file.txt\nwait 1\n";
    const std::vector<SheetState> more{
        {"folder menu", 780, deepFolder, "", "click bar 101 chevron ana\nkey down\n"},
        {"folder menu, dark", 780, deepFolder, inDark, "click bar 101 chevron ana\nkey down\n"},
        {"folder menu of a folder without folders", 780, "/Users/ana/Empty",
         "folder /Users/ana/Empty\nfile /Users/ana/Empty/file.txt\n", select + "click bar 101 chevron Empty\n"},
        {"long folder menu, scrolled", 780, "/Users/ana/Many/Folder 7", many,
         "click bar 101 chevron Many\nkey pagedown\nkey pagedown\n"},
        {"ellipsis menu", 520, deepFolder, "", "click bar 101 ellipsis\nkey down\n"},
        {"context menu", 520, deepFolder, "", "click right bar 101 crumb Bars\nkey down\n"},
        {"context menu, dark", 520, deepFolder, inDark, "click right bar 101 crumb Bars\n"},
    };
    states.insert(states.end(), more.begin(), more.end());
}

void addPopovers(std::vector<SheetState>& states) {
    const std::vector<SheetState> more{
        {"copied", 520, shallowFolder, "", "click bar 101 copy\n"},
        {"copied, dark", 520, shallowFolder, inDark, "click bar 101 copy\n"},
        {"a folder that has gone", 780, deepFolder, "",
         "remove /Users/ana/Documents/Projects\nclick bar 101 crumb Projects\n"},
        {"tooltip", 520, shallowFolder, "", "mouse move 555 502\nwait 1.1\n"},
        {"tooltip, dark", 520, shallowFolder, inDark, "mouse move 555 502\nwait 1.1\n"},
    };
    states.insert(states.end(), more.begin(), more.end());
}

// Without a Finder window, in both schemes.
void addInBoth(std::vector<SheetState>& states, const std::string& caption, const std::string& before,
               const std::string& story) {
    states.push_back({caption, 0, "", before, story});
    states.push_back({caption + ", dark", 0, "", inDark + before, story});
}

void addGuide(std::vector<SheetState>& states) {
    const std::string unfinished = "set-default hasCompletedOnboardingV1 none\n";
    const std::string nothing = unfinished + "permission accessibility missing\npermission automation ask\n";
    const std::string half = unfinished + "permission automation ask\n";
    addInBoth(states, "guide, nothing granted", nothing, "key escape\n");
    addInBoth(states, "guide, half granted", half, "");
    addInBoth(states, "guide, refused", unfinished + "permission automation denied\n", "");
    addInBoth(states, "guide, not to be verified", unfinished + "permission automation code -1745\n", "");
    addInBoth(states, "guide, done", unfinished, "");
    addInBoth(states, "prompt for Accessibility", nothing, "");
    addInBoth(states, "prompt for Automation", half, "click label \"Allow Finder Access\"\n");
    addInBoth(states, "System Settings, Accessibility", nothing, "click label \"Open System Settings\"\nwait 1\n");
    addInBoth(states, "System Settings, Automation", unfinished + "permission automation denied\n",
              "click label \"Open Automation Settings\"\nwait 1\n");
}

void addMenuBarItem(std::vector<SheetState>& states) {
    const std::string feed =
        "feed \"<rss xmlns:sparkle=\\\"http://www.andymatuschak.org/xml-namespaces/sparkle\\\"><channel><item>"
        "<sparkle:version>99</sparkle:version><sparkle:shortVersionString>2.1</sparkle:shortVersionString>"
        "<enclosure url=\\\"file:///Users/ana/Orvane.app\\\"/></item></channel></rss>\"\ninfo SUFeedURL "
        "https://example.org/appcast.xml\n";
    const std::string check = "click status-item\nclick item \"Check for Updates…\"\n";
    addInBoth(states, "menu", "", "click status-item\nkey down\n");
    addInBoth(states, "menu, Accessibility missing, an update on offer", feed,
              "update-check\npermission accessibility missing\nclick status-item\n");
    addInBoth(states, "menu, while the feed is fetched", feed + "feed latency 9\n",
              "update-check\nclick status-item\n");
    addInBoth(states, "update found", feed, check);
    addInBoth(states, "no update found", "info SUFeedURL https://example.org/appcast.xml\nfeed <rss/>\n", check);
    addInBoth(states, "failed check", "", check);
    addInBoth(states, "about", "", "click status-item\nclick item \"About Orvane\"\n");
}

void addSettings(std::vector<SheetState>& states) {
    const std::string open = "click status-item\nclick item Settings…\n";
    const std::string unapproved = "login-item requires-approval\n";
    for (const brindle::PathBarDesign design : brindle::allPathBarDesigns) {
        const std::string name(brindle::rawValue(design));
        addInBoth(states, "settings, " + name, "set-default pathBarDesign string " + name + "\n", open);
    }
    addInBoth(states, "settings, the login item awaits approval", unapproved, open);
    addInBoth(states, "settings, at their least size and scrolled", "",
              open + "drag window \"Orvane Settings\" corner by -300 300\n"
                     "scroll window \"Orvane Settings\" content by -400\n");
    addInBoth(states, "System Settings, Login Items", unapproved,
              open + "click label \"Open System Settings\"\nwait 1\n");
}

}  // namespace

std::span<const SheetState> sheetStates() {
    static const std::vector<SheetState> states = [] {
        std::vector<SheetState> all;
        for (const auto add : {addStyles, addWidths, addPlacesAndNames, addField, addMenus, addPopovers, addGuide,
                               addMenuBarItem, addSettings})
            add(all);
        return all;
    }();
    return states;
}

}  // namespace play
