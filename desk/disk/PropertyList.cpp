#include "desk/disk/PropertyList.h"

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include <plist/plist.h>

#include "views/text/Utf8.h"

namespace desk {

namespace {

// The library reads nested collections by calling itself, which a longer list could drive to the end of the stack.
constexpr std::size_t largestList = 128 * 1024;
constexpr int deepestLevel = 64;
constexpr int mostNodes = 20'000;

// A binary list names its values by number, so that a short one can stand for more of them than memory holds; and at a zero byte in a key the library stops the
// program. This walks along the numbers first, without making anything.
class BinaryWalk {
public:
    explicit BinaryWalk(std::string_view theData) : data(theData) {
        if (data.size() < trailerSize) return;
        const std::size_t trailer = data.size() - trailerSize;
        offsetSize = number(trailer + 6, 1);
        referenceSize = number(trailer + 7, 1);
        top = number(trailer + 16, 8);
        table = number(trailer + 24, 8);
    }

    bool isModest() {
        std::vector<Step> open{{top, 0}};
        for (int nodes = 0; !open.empty(); ++nodes) {
            const Step step = open.back();
            open.pop_back();
            if (nodes == mostNodes || step.level > deepestLevel || !addParts(step, open)) return false;
        }
        return true;
    }

private:
    struct Step {
        std::uint64_t object;
        int level;
    };

    static constexpr std::size_t trailerSize = 32;
    static constexpr std::uint64_t asciiText = 5, utf16Text = 6, array = 0xA, set = 0xC, dictionary = 0xD;

    // Of so many bytes; 0 where there are none.
    std::uint64_t number(std::uint64_t place, std::uint64_t size) const {
        std::uint64_t value = 0;
        for (std::uint64_t i = 0; i < size && place < data.size() && i < data.size() - place; ++i)
            value = value << 8U | static_cast<unsigned char>(data[place + i]);
        return value;
    }

    bool addParts(const Step& step, std::vector<Step>& open) const {
        if (step.object >= data.size() || table >= data.size()) return false;
        std::uint64_t place = number(table + step.object * offsetSize, offsetSize);
        const std::uint64_t marker = number(place++, 1);
        const std::uint64_t kind = marker >> 4U;
        std::uint64_t count = marker & 0xFU;
        if (count == 0xF) {
            const std::uint64_t size = std::uint64_t{1} << (number(place++, 1) & 3U);
            count = number(place, size);
            place += size;
        }
        if (kind == asciiText) return !holdsZero(place, count, 1);
        if (kind == utf16Text) return !holdsZero(place, count, 2);
        if (kind != array && kind != set && kind != dictionary) return true;
        if (count > mostNodes) return false;
        for (std::uint64_t i = 0; i < (kind == dictionary ? 2 * count : count); ++i)
            open.push_back({number(place + i * referenceSize, referenceSize), step.level + 1});
        return open.size() <= 2 * mostNodes;
    }

    bool holdsZero(std::uint64_t place, std::uint64_t count, std::uint64_t size) const {
        if (count > data.size()) return true;
        for (std::uint64_t i = 0; i < count; ++i)
            if (number(place + i * size, size) == 0) return true;
        return false;
    }

    std::string_view data;
    std::uint64_t offsetSize = 0;
    std::uint64_t referenceSize = 0;
    std::uint64_t top = 0;
    std::uint64_t table = 0;
};

platform::Value textOf(plist_t node) {
    std::uint64_t length = 0;
    const char* begin = plist_get_string_ptr(node, &length);
    const std::string_view text(begin, begin == nullptr ? 0 : length);
    return views::isWellFormed(text) ? platform::Value(std::string(text)) : platform::Value();
}

platform::Value plainValue(plist_t node, plist_type type) {
    std::uint64_t whole = 0;
    std::uint8_t flag = 0;
    double real = 0;
    switch (type) {
    case PLIST_BOOLEAN:
        plist_get_bool_val(node, &flag);
        return flag != 0;
    case PLIST_UINT:
        plist_get_uint_val(node, &whole);
        return static_cast<std::int64_t>(whole);
    case PLIST_REAL:
        plist_get_real_val(node, &real);
        return real;
    case PLIST_STRING:
        return textOf(node);
    default:
        return {};
    }
}

std::optional<platform::Value> valueOf(plist_t node, int level);

std::optional<platform::Value> arrayOf(plist_t node, int level) {
    platform::Array values;
    plist_array_iter place = nullptr;
    plist_array_new_iter(node, &place);
    const std::unique_ptr<void, decltype(&std::free)> held(place, std::free);
    for (std::uint32_t i = 0, count = plist_array_get_size(node); i < count; ++i) {
        plist_t item = nullptr;
        plist_array_next_item(node, place, &item);
        auto value = valueOf(item, level);
        if (!value) return std::nullopt;
        values.push_back(std::move(*value));
    }
    return values;
}

std::optional<platform::Value> dictionaryOf(plist_t node, int level) {
    platform::Dictionary values;
    plist_dict_iter place = nullptr;
    plist_dict_new_iter(node, &place);
    const std::unique_ptr<void, decltype(&std::free)> held(place, std::free);
    for (std::uint32_t i = 0, count = plist_dict_get_size(node); i < count; ++i) {
        char* name = nullptr;
        plist_t item = nullptr;
        plist_dict_next_item(node, place, &name, &item);
        const std::unique_ptr<char, decltype(&std::free)> key(name, std::free);
        auto value = valueOf(item, level);
        if (!value) return std::nullopt;
        if (name != nullptr && views::isWellFormed(name)) values.insert_or_assign(name, std::move(*value));
    }
    return values;
}

// Nothing of a tree that is too deep.
std::optional<platform::Value> valueOf(plist_t node, int level) {
    if (level > deepestLevel) return std::nullopt;
    const plist_type type = plist_get_node_type(node);
    if (type == PLIST_ARRAY) return arrayOf(node, level + 1);
    if (type == PLIST_DICT) return dictionaryOf(node, level + 1);
    return plainValue(node, type);
}

}  // namespace

std::optional<platform::Value> readPropertyList(std::string_view data) {
    if (data.size() > largestList) return std::nullopt;
    const bool isBinary = data.starts_with("bplist00");
    if (isBinary ? !BinaryWalk(data).isModest() : data.find('\0') != std::string_view::npos) return std::nullopt;
    plist_t root = nullptr;
    const auto read = isBinary ? plist_from_bin : plist_from_xml;
    read(data.data(), static_cast<std::uint32_t>(data.size()), &root);
    const std::unique_ptr<void, decltype(&plist_free)> held(root, plist_free);
    return root == nullptr ? std::nullopt : valueOf(root, 0);
}

}  // namespace desk
