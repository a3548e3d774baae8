#pragma once

#include "physics/NodePool.h"
#include "physics/NonCopyable.h"
#include "physics/SortByKey.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <unordered_map>
#include <utility>
#include <vector>

// How the objects of a set-up point at each other without ever pointing at something that ended.
//
// A pointer that does not own its target is a `Link`, which answers null once the target has ended, or an entry of an
// `Index`, which vanishes with it. Both are `References`: each object knows the references to it and ends them when
// it ends, without a search. Or owner and owned know each other: an object leaves the `Brood` of its owner, has the
// registry forget it in its `KeyTables`, and settings lose the object for which they were made, each when it
// ends. What owns an object is said in the comment of its class; that something has been taken out of every index
// never frees it.
//
// A host that keeps a pointer for longer than it can know the object to live, as a binding of another language
// does, holds a `Link` too. It ends before the library is unloaded, and is used in the thread of the set-up.

namespace physics {

class Referable;

/// Draws the next id of a class. Wraps around rather than overflows: a restored text may have set the
/// counter to any value.
inline int nextId(int& lastUsedId)
{
    lastUsedId = static_cast<int>(static_cast<unsigned>(lastUsedId) + 1U);
    return lastUsedId;
}

/// One pointer to an object that may end before the pointer does.
class Reference : private NonCopyable {
protected:
    Reference() = default;
    ~Reference() { refer(nullptr); }

    /// What it points at, or null.
    Referable* target() const { return m_target; }

    /// Points at another target, or at none.
    inline void refer(Referable* target);

private:
    friend class Referable;

    /// The target has ended and `target()` is null. May end this reference.
    virtual void targetEnded() {}

    Referable* m_target = nullptr;
    Reference* m_previous = nullptr;
    Reference* m_next = nullptr;
};

/// Base of every object that links and indexes point at.
class Referable : public Pooled, private NonCopyable {
protected:
    Referable() : m_serial(++s_lastSerial) {}
    ~Referable() { endReferences(); }

    /// Makes every link to this object answer null and every index entry that names it vanish. The
    /// destructor does so too; an object that stays allocated after it ended calls it then.
    void endReferences()
    {
        while (Reference* reference = m_first) {
            reference->refer(nullptr);
            reference->targetEnded();
        }
    }

private:
    friend class Reference;
    template <class T>
    friend bool precedes(const T* left, const T* right);

    static inline std::uint64_t s_lastSerial = 0;

    Reference* m_first = nullptr;
    const std::uint64_t m_serial; // order of creation in this process
};

void Reference::refer(Referable* target)
{
    if (m_target != nullptr) {
        (m_previous != nullptr ? m_previous->m_next : m_target->m_first) = m_next;
        if (m_next != nullptr)
            m_next->m_previous = m_previous;
    }
    m_target = target;
    m_previous = nullptr;
    m_next = nullptr;
    if (target != nullptr) {
        m_next = target->m_first;
        if (m_next != nullptr)
            m_next->m_previous = this;
        target->m_first = this;
    }
}

/// The order of all lists for which no other is required: null first, then by id. Two live objects can
/// share an id when a restored text turned a counter back; then the older one comes first.
template <class T>
bool precedes(const T* left, const T* right)
{
    if (left == nullptr || right == nullptr)
        return left == nullptr && right != nullptr;
    if (left->id() != right->id())
        return left->id() < right->id();
    return left->m_serial < right->m_serial;
}

/// Sorts elements by the objects that `objectOf` gives for them, in the order of `precedes`.
template <class Element, class ObjectOf>
void sortByIdOf(std::vector<Element>& elements, ObjectOf objectOf)
{
    const auto keyOf = [](const auto* object) {
        return object == nullptr ? std::numeric_limits<std::int64_t>::min() : std::int64_t(object->id());
    };
    const auto comesBefore = [&](const Element& left, const Element& right) {
        return precedes(objectOf(left), objectOf(right));
    };
    std::vector<Keyed<Element>> keyed;
    keyed.reserve(elements.size());
    bool isAscending = true;
    for (const Element& element : elements) {
        const std::int64_t key = keyOf(objectOf(element));
        isAscending = isAscending && (keyed.empty() || keyed.back().key < key);
        keyed.push_back({key, element});
    }
    if (isAscending)
        return;
    sortByKey(keyed);
    std::transform(keyed.begin(), keyed.end(), elements.begin(), [](const auto& each) { return each.element; });
    for (std::size_t first = 0, last = 0; first < keyed.size(); first = last) {
        while (last < keyed.size() && keyed[last].key == keyed[first].key)
            ++last;
        const auto at = [&](std::size_t index) { return elements.begin() + static_cast<std::ptrdiff_t>(index); };
        if (!std::is_sorted(at(first), at(last), comesBefore))
            std::sort(at(first), at(last), comesBefore);
    }
}

/// Sorted as `precedes` has it.
template <class T>
void sortById(std::vector<T*>& objects)
{
    sortByIdOf(objects, [](const T* object) { return object; });
}

/// Sorted by id, each object once.
template <class T>
void sortOnceById(std::vector<T*>& objects)
{
    sortById(objects);
    objects.erase(std::unique(objects.begin(), objects.end()), objects.end());
}

/// The listed objects in their order, then those of all objects that the list has lost, by id.
template <class T>
std::vector<T*> listedFirst(std::vector<T*> listed, std::vector<T*> all)
{
    if (listed.size() == all.size())
        return listed;
    std::vector<T*> known = listed;
    std::sort(known.begin(), known.end(), std::less<T*>());
    sortById(all);
    for (T* object : all)
        if (!std::binary_search(known.begin(), known.end(), object, std::less<T*>()))
            listed.push_back(object);
    return listed;
}

/// A pointer that owns nothing and answers null once its target has ended.
template <class T>
class Link final : private Reference {
public:
    Link() = default;

    /// Points at an object, or at none (null).
    explicit Link(T* target) { refer(target); }

    /// Points at another object, or at none (null).
    Link& operator=(T* target)
    {
        refer(target);
        return *this;
    }

    /// The object, or null when there is none or it has ended.
    T* get() const { return static_cast<T*>(target()); }

    /// The object, for a member of it; there must be one.
    T* operator->() const { return get(); }

    /// Whether `get` is not null.
    explicit operator bool() const { return target() != nullptr; }
};

/// A map from keys to objects that owns nothing; an entry vanishes when its object ends. Every change
/// and look-up costs as much as in the underlying map, whose nodes must not move.
template <class Map, class T>
class BasicIndex : private NonCopyable {
public:
    using Key = typename Map::key_type; ///< under which objects are found

    /// The pool gives the memory of the entries and outlives the index.
    explicit BasicIndex(NodePool& pool) : m_entries(NodeAllocator<char>(pool)) {}

    /// The object under the key, or null.
    T* find(const Key& key) const
    {
        const auto entry = m_entries.find(key);
        return entry == m_entries.end() ? nullptr : entry->second.object();
    }

    /// The number of keys; one object may stand under several.
    std::size_t size() const { return m_entries.size(); }

    /// Puts the object under the key; whatever was there before is no longer found under it.
    void put(const Key& key, T* object)
    {
        const auto entry = m_entries.try_emplace(key).first;
        entry->second.enter(this, &entry->first, object);
    }

    /// Forgets the key, whichever object it names.
    void erase(const Key& key)
    {
        const bool isNext = m_next != m_entries.end() && m_next->first == key;
        const auto entry = isNext ? m_next : m_entries.find(key);
        if (entry == m_entries.end())
            return;
        const auto next = m_entries.erase(entry);
        if constexpr (Map::isOrdered)
            m_next = next;
    }

    /// Forgets every key; no object ends.
    void clear()
    {
        m_entries.clear();
        m_next = m_entries.end();
    }

    /// The objects in the order of the map.
    std::vector<T*> objects() const
    {
        std::vector<T*> result;
        result.reserve(m_entries.size());
        for (const auto& entry : m_entries)
            result.push_back(entry.second.object());
        return result;
    }

    /// The first object in the order of the map, or null.
    T* first() const { return m_entries.empty() ? nullptr : m_entries.begin()->second.object(); }

private:
    class Entry final : private Reference {
    public:
        T* object() const { return static_cast<T*>(target()); }
        void enter(BasicIndex* index, const Key* key, T* object)
        {
            m_index = index;
            m_key = key;
            refer(object);
        }

    private:
        void targetEnded() override { m_index->erase(*m_key); }

        BasicIndex* m_index = nullptr;
        const Key* m_key = nullptr;
    };

    using Entries = typename Map::template With<Entry>;
    Entries m_entries;
    typename Entries::iterator m_next = m_entries.end(); // behind what was erased last: often it is the next to go
};

/// Selects an ordered map, for keys whose order is the order of a list.
template <class K>
struct Ordered {
    using key_type = K;                     ///< of the map
    static constexpr bool isOrdered = true; ///< and its iterators stay good whatever else comes and goes

    /// The map for entries of one kind.
    template <class Entry>
    using With = PooledMap<K, Entry>;
};

/// Selects a hashed map, for keys whose order means nothing.
template <class K>
struct Hashed {
    using key_type = K;                      ///< of the map
    static constexpr bool isOrdered = false; ///< and its iterators are good until the next key comes

    /// The map for entries of one kind.
    template <class Entry>
    using With = std::unordered_map<K, Entry, std::hash<K>, std::equal_to<K>, NodeAllocator<std::pair<const K, Entry>>>;
};

/// An index whose objects are listed in the order of the keys.
template <class Key, class T>
using Index = BasicIndex<Ordered<Key>, T>;

/// An index that is only searched: its objects are listed in no particular order.
template <class Key, class T>
using HashedIndex = BasicIndex<Hashed<Key>, T>;

/// Finds objects by a key that never changes. Owns nothing; an object that ends has itself forgotten first. Each entry
/// costs less than one of an index, which finds out about ends by itself.
template <class Key, class T>
class KeyTable : private NonCopyable {
public:
    /// The pool gives the memory of the entries and outlives the table.
    explicit KeyTable(NodePool& pool) : m_entries(NodeAllocator<char>(pool)) {}

    /// The object under the key, or null. A key that is a pointer is not dereferenced.
    T* find(const Key& key) const
    {
        const auto entry = m_entries.find(key);
        return entry == m_entries.end() ? nullptr : entry->second;
    }

    /// Puts the object under its key; another one that was there is no longer found.
    void put(const Key& key, T* object) { m_entries[key] = object; }

    /// Forgets the key, whichever object it names.
    void erase(const Key& key) { m_entries.erase(key); }

    /// Forgets the key if it names the object.
    void forget(const Key& key, const T* object)
    {
        const auto entry = m_entries.find(key);
        if (entry != m_entries.end() && entry->second == object)
            m_entries.erase(entry);
    }

    /// Forgets every key.
    void clear() { m_entries.clear(); }

private:
    typename Hashed<Key>::template With<T*> m_entries;
};

/// A link of the ring that a list of objects is; alone it is a ring of its own.
class RingLink : private NonCopyable {
public:
    RingLink() = default;
    ~RingLink() { leave(); }

    /// Leaves its ring.
    void leave()
    {
        m_previous->m_next = m_next;
        m_next->m_previous = m_previous;
        m_previous = this;
        m_next = this;
    }

    /// Leaves its ring and enters another, in front of one of its links.
    void enterBefore(RingLink& other)
    {
        leave();
        m_previous = other.m_previous;
        m_next = &other;
        other.m_previous->m_next = this;
        other.m_previous = this;
    }

    /// Whether there is no other in the ring.
    bool isAlone() const { return m_next == this; }

    /// What follows in the ring; itself when it is alone.
    RingLink* next() const { return m_next; }

private:
    RingLink* m_previous = this;
    RingLink* m_next = this;
};

/// The place of an object in a list of its owner or holder. A class is derived from it once, with another tag, for
/// each list that its objects can be in at a time. An object that ends leaves its lists.
template <class T, class Tag>
class Place : private RingLink {
    template <class, class>
    friend class Brood;
};

/// Objects in the order in which they came. The list runs through the objects: it costs no memory and no search of
/// its own.
template <class T, class Tag>
class Brood : private NonCopyable {
public:
    Brood() = default;
    ~Brood()
    {
        while (!isEmpty())
            m_ring.next()->leave();
    }

    /// Adds an object at the end; it leaves the list of the same tag in which it was.
    void enter(Place<T, Tag>& place) { place.enterBefore(m_ring); }

    /// Takes the object out of the list of this tag, whichever it is in.
    static void leave(Place<T, Tag>& place) { place.RingLink::leave(); }

    /// Whether the object is in any list of this tag.
    static bool isIn(const Place<T, Tag>& place) { return !place.isAlone(); }

    /// Whether no object is left.
    bool isEmpty() const { return m_ring.isAlone(); }

    /// The first object, or null.
    T* first() const { return objectAt(m_ring.next()); }

    /// The one behind an object that is in this list, or null.
    T* after(const Place<T, Tag>& place) const { return objectAt(place.next()); }

    /// In the order in which they came.
    std::vector<T*> objects() const
    {
        std::vector<T*> result;
        for (T* object = first(); object != nullptr; object = after(*object))
            result.push_back(object);
        return result;
    }

private:
    T* objectAt(RingLink* link) const
    {
        return link == &m_ring ? nullptr : static_cast<T*>(static_cast<Place<T, Tag>*>(link));
    }

    RingLink m_ring;
};

// The tags of these lists, after who keeps them.
struct OfSetUp;
struct OfModel;
struct OfVolume;
struct OfBoundary;
struct OfSubject; // what settings were made for

} // namespace physics
