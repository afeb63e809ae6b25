// What is read from property lists, whatever state they are in.
#include <gtest/gtest.h>

#include <plist/plist.h>

#include "desk/disk/PropertyList.h"

namespace {

using platform::Array;
using platform::Dictionary;
using platform::Value;

const std::string everyType =
    "<plist><dict><key>t</key><string>é &amp; "
    "&lt;</string><key>i</key><integer>-7</integer><key>r</key><real>1.5</real>"
    "<key>b</key><true/><key>a</key><array><false/><string/></array><key>d</key><data>AAAA</data></dict></plist>";
const Value everyValue =
    Dictionary{{"t", "é & <"}, {"i", -7}, {"r", 1.5}, {"b", true}, {"a", Array{false, ""}}, {"d", {}}};

std::string asBinary(const std::string& xml) {
    plist_t root = nullptr;
    plist_from_xml(xml.data(), static_cast<std::uint32_t>(xml.size()), &root);
    char* bytes = nullptr;
    std::uint32_t size = 0;
    plist_to_bin(root, &bytes, &size);
    std::string binary(bytes, size);
    plist_to_bin_free(bytes);
    plist_free(root);
    return binary;
}

std::string repeated(int count, const std::string& text) {
    std::string all;
    for (int i = 0; i < count; ++i) all += text;
    return all;
}

// Each array holds the next one so many times.
std::string nestedBinary(int levels, int times) {
    std::string list = "bplist00", offsets;
    const auto add = [](std::string& to, std::size_t number) {
        to += static_cast<char>(number >> 8U);
        to += static_cast<char>(number & 0xFFU);
    };
    for (int level = 0; level < levels; ++level) {
        add(offsets, list.size());
        list += static_cast<char>(level + 1 < levels ? 0xA0 + times : 0x09);
        for (int i = 0; level + 1 < levels && i < times; ++i) add(list, static_cast<std::size_t>(level + 1));
    }
    const std::size_t table = list.size();
    list += offsets + std::string(6, '\0') + "\2\2" + std::string(6, '\0');
    add(list, static_cast<std::size_t>(levels));
    list += std::string(14, '\0');
    add(list, table);
    return list;
}

TEST(PropertyList, KeepsTypesAndAnswersNothingForWhatCantBeRead) {
    const std::string binary = asBinary(everyType);
    const struct {
        const char* what;
        std::string data;
        std::optional<Value> value;
    } cases[] = {
        {"XML", everyType, everyValue},
        {"binary", binary, everyValue},
        {"with its document type", "<?xml version=\"1.0\"?>\n<!DOCTYPE plist PUBLIC \"x\" \"y\">\n" + everyType,
         everyValue},
        {"a text", "<plist><string>x</string></plist>", Value("x")},
        {"text that isn't UTF-8", "<plist><string>\xFF</string></plist>", Value()},
        {"binary, of two levels", nestedBinary(2, 3), Value(Array{true, true, true})},
        {"empty", "", {}},
        {"no list", "text", {}},
        {"nothing in it", "<plist/>", {}},
        {"cut off", everyType.substr(0, 60), {}},
        {"binary, cut off", binary.substr(0, binary.size() - 9), {}},
        {"deep", "<plist>" + repeated(5000, "<array>") + repeated(5000, "</array>") + "</plist>", {}},
        {"deep, binary", nestedBinary(5000, 1), {}},
        {"entangled", nestedBinary(40, 2), {}},
        {"huge", "<plist><string>" + repeated(200'000, "x") + "</string></plist>", {}},
    };
    for (const auto& each : cases) EXPECT_EQ(desk::readPropertyList(each.data), each.value) << each.what;
}

TEST(PropertyList, SurvivesEveryCutAndEveryChangedByte) {
    for (const std::string& whole : {everyType, asBinary(everyType)})
        for (std::size_t place = 0; place < whole.size(); ++place) {
            desk::readPropertyList(whole.substr(0, place));
            for (const char byte : {'\0', '\xFF', '<', '\x5F'}) {
                std::string changed = whole;
                changed[place] = byte;
                desk::readPropertyList(changed);
            }
        }
}

}  // namespace
