#pragma once

#include "physics/NonCopyable.h"

#include <array>
#include <cstddef>
#include <memory>
#include <new>
#include <vector>

#if defined(__SANITIZE_ADDRESS__)
#define PHYSICS_NODE_POOL_IS_PLAIN
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define PHYSICS_NODE_POOL_IS_PLAIN
#endif
#endif

namespace physics {

/// Memory for the objects of one set-up and the nodes of their containers. Nodes of a size lie side by side, so that
/// walking an index of a large set-up touches little else, and getting and returning one costs a few instructions. All
/// memory goes back when the last node is returned. With the address sanitizer each node is an allocation of
/// its own, so that the sanitizer sees what becomes of it.
class NodePool : private NonCopyable {
public:
    /// Memory for one node of that many bytes, aligned for any type; not null.
    void* allocate(std::size_t bytes)
    {
        if (!isPooled(bytes))
            return ::operator new(bytes);
        Slot& slot = m_slots[slotOf(bytes)];
        if (slot.returned == nullptr && slot.unused == slot.end)
            addChunk(slot, (slotOf(bytes) + 1) * granule);
        ++m_noOfNodes;
        if (Returned* node = slot.returned) {
            slot.returned = node->next;
            return node;
        }
        void* node = slot.unused;
        slot.unused += (slotOf(bytes) + 1) * granule;
        return node;
    }

    /// Takes back what `allocate` gave for the same number of bytes.
    void deallocate(void* node, std::size_t bytes)
    {
        if (!isPooled(bytes)) {
            ::operator delete(node);
            return;
        }
        Slot& slot = m_slots[slotOf(bytes)];
        slot.returned = new (node) Returned{slot.returned};
        if (--m_noOfNodes == 0)
            release();
    }

private:
    static constexpr std::size_t granule = alignof(std::max_align_t);
    static constexpr std::size_t largest = 512;

    struct Returned {
        Returned* next;
    };

    /// Nodes of one size.
    struct Slot {
        Returned* returned = nullptr;
        std::byte* unused = nullptr; // from here to `end` nothing has been handed out yet
        std::byte* end = nullptr;
        std::size_t nodesInNextChunk = 8;
    };

    static bool isPooled([[maybe_unused]] std::size_t bytes)
    {
#ifdef PHYSICS_NODE_POOL_IS_PLAIN
        return false;
#else
        return bytes <= largest;
#endif
    }

    static std::size_t slotOf(std::size_t bytes) { return (bytes - 1) / granule; }

    /// Twice as large as the one before, up to a size at which the system's share in the cost is small.
    void addChunk(Slot& slot, std::size_t nodeBytes)
    {
        constexpr std::size_t mostNodes = 4096;
        const std::size_t bytes = slot.nodesInNextChunk * nodeBytes;
        m_chunks.push_back(std::unique_ptr<std::byte[]>(new std::byte[bytes]));
        slot.unused = m_chunks.back().get();
        slot.end = slot.unused + bytes;
        if (slot.nodesInNextChunk < mostNodes)
            slot.nodesInNextChunk *= 2;
    }

    void release()
    {
        m_slots = {};
        m_chunks.clear();
    }

    std::array<Slot, largest / granule> m_slots = {};
    std::vector<std::unique_ptr<std::byte[]>> m_chunks;
    std::size_t m_noOfNodes = 0;
};

/// Base of objects that lie in a pool, which must outlive them. The pool is noted in front of each object, so that
/// `delete` finds it.
class Pooled {
protected:
    Pooled() = default;
    ~Pooled() = default;

    /// `new (pool) T(...)`; there is no other way.
    static void* operator new(std::size_t bytes, NodePool& pool)
    {
        void* memory = pool.allocate(sizeof(Note) + bytes);
        return new (memory) Note{&pool, sizeof(Note) + bytes} + 1;
    }

    /// Gives the memory back to the pool that it came from.
    static void operator delete(void* object)
    {
        Note* note = static_cast<Note*>(object) - 1;
        const Note copy = *note;
        copy.pool->deallocate(note, copy.bytes);
    }

    /// For a constructor that throws.
    static void operator delete(void* object, NodePool& /*pool*/) { operator delete(object); }

private:
    struct alignas(std::max_align_t) Note {
        NodePool* pool;
        std::size_t bytes;
    };
};

/// Lets a container take its nodes from a pool, which must outlive it.
template <class T>
class NodeAllocator {
public:
    using value_type = T; ///< as the containers of the standard library want it

    /// Takes from this pool.
    explicit NodeAllocator(NodePool& pool) : m_pool(&pool) {}

    /// Takes from the same pool as an allocator of other nodes.
    template <class U>
    NodeAllocator(const NodeAllocator<U>& other) : m_pool(other.pool())
    {}

    /// Memory for that many objects in a row; none is constructed.
    T* allocate(std::size_t count) { return static_cast<T*>(m_pool->allocate(count * sizeof(T))); }

    /// Takes back what `allocate` gave for the same number.
    void deallocate(T* nodes, std::size_t count) { m_pool->deallocate(nodes, count * sizeof(T)); }

    /// The pool from which it takes; never null.
    NodePool* pool() const { return m_pool; }

    /// Equal when one can take back what the other gave: when they have the same pool.
    /// @{
    friend bool operator==(const NodeAllocator& left, const NodeAllocator& right)
    {
        return left.m_pool == right.m_pool;
    }
    friend bool operator!=(const NodeAllocator& left, const NodeAllocator& right) { return !(left == right); }
    /// @}

private:
    NodePool* m_pool;
};

} // namespace physics
