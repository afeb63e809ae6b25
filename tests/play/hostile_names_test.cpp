// Folders whose names try to break out of a script, a record or the shell, made on disk by the thousand, gone into and left again from a folder menu, a crumb and
// the path field. A path is data: it arrives as it is, and nothing in it is ever run.
#include <array>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "desk/display/GuiApplication.h"
#include "play/Json.h"
#include "play/ScriptPlayer.h"
#include "tests/kit/Sanitized.h"

namespace {

using namespace std::string_literals;

// A sanitizer makes each name ten times dearer.
constexpr int namesOfEachSeed = kit::isSanitized ? 25 : 250;
constexpr const char* harm = "/tmp/harmed";

// A name can't hold a slash, so the line makes its own.
const std::string shellScript = R"((do shell script "s=$(printf '\\057'); ${s}usr${s}bin${s}touch ${s}tmp${s}harmed"))";
const std::string payload = R"(" & )" + shellScript + R"( & ")";

std::string scriptWord(std::string_view text) {
    std::string result = "\"";
    for (const char character : text) {
        if (static_cast<unsigned char>(character) < 0x20) {
            std::array<char, 8> escape{};
            std::snprintf(escape.data(), escape.size(), "\\u{%X}", static_cast<unsigned>(character));
            result += escape.data();
        } else {
            if (character == '"' || character == '\\') result += '\\';
            result += character;
        }
    }
    return result + '"';
}

std::string json(std::string_view text) {
    return play::toText(play::jsonText(text));
}

std::string hostileName(std::mt19937& random) {
    static const std::vector<std::string> pieces{
        payload,      "\"",     "\\",        "\\\"",     "\n",         "\r",
        "\t",         "'",      "$(exit 3)", "`exit 3`", ";",          "&",
        "|",          "%",      "%2F",       "~",        "..",         ":",
        "-- ",        "(*",     "#",         "¬",        "\" as text", "end tell",
        "POSIX file", "{}",     "«class»",   "\u0301",   "é",          "👩‍👩‍👧",
        "\U0001F600", "\u202e", "שלום",      "\u200b",   "\ufeff",     "\u2028",
        "\x01",       "\x7f",   "\x1e",      "\x1f",     " ",          "a",
        "b",          "10",     "",
    };
    std::string name = "n";
    for (std::size_t count = 1 + random() % 6; count > 0; --count) {
        const std::string& piece = pieces[random() % pieces.size()];
        if (name.size() + piece.size() < 250) name += piece;
    }
    return name;
}

class HostileNames : public testing::TestWithParam<unsigned> {
protected:
    void tell(const std::string& text) {
        std::ostringstream output;
        std::ostringstream errors;
        play::ScriptPlayer player(session, "story", text, output, errors);
        ASSERT_EQ(player.play(), 0) << errors.str() << text;
    }
    void visit(const std::string& base, const std::string& name);

    desk::GuiApplication fonts;
    play::Session session;
};

void HostileNames::visit(const std::string& base, const std::string& name) {
    const std::string folder = "/Users/ana/" + base + "/" + name;
    const std::string beside = "/Users/ana/" + base + "/beside";
    // Such a name breaks its own window's record, so that its bar may not show it.
    const bool breaksRecords = name.find_first_of("\x1e\x1f") != std::string::npos;
    const std::string atFolder =
        "expect /finder/windows/0/path " + json(folder) + "\nexpect /panels/0/errorMessage null\n";
    const std::string comeBack = "finder go 101 " + beside + "\nwait 0.6\n";

    tell("folder " + scriptWord(folder + "/inside") + "\nfolder " + beside + "\n" + comeBack +
         "click bar 101 chevron " + base + "\nclick item " + scriptWord(name) + "\n" + atFolder);
    if (!breaksRecords)
        tell("wait 0.6\nexpect /observer/windows/0/path " + json(folder + "/") + "\nexpect /panels/0/crumbs/4/title " +
             json(name) + "\nclick bar 101 copy\nexpect /clipboard " + json(folder + "/") + "\nclick bar 101 crumb " +
             base + "\nexpect /finder/windows/0/path \"/Users/ana/" + base + "\"\nfinder go 101 " +
             scriptWord(folder + "/inside") + "\nwait 0.6\nclick bar 101 crumb " + scriptWord(name) + "\n" + atFolder);
    session.machine.clipboard = folder;
    tell(comeBack + "key cmd+l\nwait 0.3\nkey cmd+v\nexpect /panels/0/inputText " + json(folder) + "\nkey return\n" +
         atFolder);
}

TEST_P(HostileNames, AreGoneIntoAndLeftAndNothingInThemIsRun) {
    tell("screen 0 0 6000 900\nfinder open /Users/ana 0 100 6000 700\nlaunch\nwait 2\n");
    std::mt19937 random{GetParam()};
    for (int number = 0; number < namesOfEachSeed && !HasFatalFailure(); ++number)
        visit("h" + std::to_string(number), hostileName(random));
    EXPECT_FALSE(session.machine.disk.exists(harm));
    tell("expect /alert null\nexpect-missing /finder/windows/1\n");
}

INSTANTIATE_TEST_SUITE_P(Seeds, HostileNames, testing::Range(1U, 9U));

// Without this, the test above could pass because the name does no harm to anybody.
TEST(HostileNamesControl, TheSameTextUnescapedInAScriptIsRun) {
    const desk::GuiApplication fonts;
    play::Session session;
    session.launch(play::installedCopy);
    session.machine.settle();
    const auto script = session.application()->platform().appleEvents.makeAppleScript("return \"n" + payload + "\"");
    EXPECT_FALSE(script->executeAndReturnError().error.has_value());
    EXPECT_TRUE(session.machine.disk.exists(harm));
}

}  // namespace
