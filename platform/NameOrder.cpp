#include "platform/NameOrder.h"

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <string>

namespace platform {

namespace {

using Names = std::vector<std::string_view>;
using Order = std::vector<std::size_t>;

// Above this, making a key of each name costs less than the collator's own comparisons.
constexpr std::size_t mostComparedDirectly = 300;

std::size_t commonLength(std::string_view a, std::string_view b) {
    const auto end = std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first;
    return static_cast<std::size_t>(end - a.begin());
}

// Eight bytes as a number that orders as they do.
std::uint64_t headOf(std::string_view key) {
    std::uint64_t head = 0;
    for (std::size_t index = 0; index < sizeof head; ++index)
        head = head << 8 | (index < key.size() ? static_cast<unsigned char>(key[index]) : 0U);
    return head;
}

// The keys of all names, one after the other in one text.
class SortKeys {
public:
    SortKeys(const Names& names, Collation& collation) {
        bytes.reserve(names.size() * 64);
        ends.reserve(names.size());
        for (const std::string_view name : names) {
            collation.appendLocalizedStandardKey(name, bytes);
            ends.push_back(bytes.size());
        }
    }

    std::size_t size() const { return ends.size(); }
    std::string_view operator[](std::size_t index) const {
        const std::size_t begin = index == 0 ? 0 : ends[index - 1];
        return std::string_view(bytes).substr(begin, ends[index] - begin);
    }

private:
    std::string bytes;
    std::vector<std::size_t> ends;
};

// Names in one folder tend to begin alike, so the first bytes in which keys can differ decide most comparisons.
Order orderByKeys(const SortKeys& keys) {
    struct Entry {
        std::uint64_t head;
        std::size_t index;
    };
    std::string_view common = keys[0];
    for (std::size_t index = 1; index < keys.size(); ++index)
        common = common.substr(0, commonLength(common, keys[index]));

    std::vector<Entry> entries;
    entries.reserve(keys.size());
    for (std::size_t index = 0; index < keys.size(); ++index)
        entries.push_back({headOf(keys[index].substr(common.size())), index});
    std::sort(entries.begin(), entries.end(), [&](const Entry& a, const Entry& b) {
        return a.head != b.head ? a.head < b.head : keys[a.index] < keys[b.index];
    });

    Order order;
    order.reserve(entries.size());
    for (const Entry& entry : entries) order.push_back(entry.index);
    return order;
}

}  // namespace

std::vector<std::size_t> orderOfNames(const std::vector<std::string_view>& names, Collation& collation) {
    if (names.size() > mostComparedDirectly) return orderByKeys(SortKeys(names, collation));
    Order order(names.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return collation.localizedStandardCompare(names[a], names[b]) < 0;
    });
    return order;
}

}  // namespace platform
