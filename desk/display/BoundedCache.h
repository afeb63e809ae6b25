// A map that forgets: it keeps at least the `generation` entries used last and never more than twice as many, without bookkeeping on a hit.
// Two halves: new entries and those used again go into the young one; when that is full it becomes the old one, and what was old is dropped.
#pragma once

#include <cstddef>
#include <unordered_map>
#include <utility>

namespace desk {

// Hash and Equal are transparent, so that a lookup makes no key.
template <typename Key, typename Value, typename Hash, typename Equal>
class BoundedCache {
public:
    explicit BoundedCache(std::size_t theGeneration) : generation(theGeneration) {}

    // Good until the next insert or find.
    template <typename Lookup>
    Value* find(const Lookup& key) {
        if (const auto found = young.find(key); found != young.end()) return &found->second;
        const auto found = old.find(key);
        if (found == old.end()) return nullptr;
        auto node = old.extract(found);
        makeRoom();
        return &young.insert(std::move(node)).position->second;
    }

    Value& insert(Key key, Value value) {
        makeRoom();
        return young.insert_or_assign(std::move(key), std::move(value)).first->second;
    }

    std::size_t size() const { return young.size() + old.size(); }

private:
    using Map = std::unordered_map<Key, Value, Hash, Equal>;

    void makeRoom() {
        if (young.size() < generation) return;
        old.clear();
        std::swap(old, young);
    }

    std::size_t generation;
    Map young;
    Map old;
};

}  // namespace desk
