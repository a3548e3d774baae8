#pragma once

#include "physics/NonCopyable.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <new>
#include <set>
#include <utility>
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
    struct Returned {
        Returned* next;
    };

public:
    /// Nodes are aligned for types of at most this alignment: pointers and numbers.
    static constexpr std::size_t alignment = std::max(alignof(void*), alignof(std::uint64_t));

    /// Nodes of one size.
    class Shelf {
    public:
        /// Memory for one node of that many bytes, which must be of the size of the shelf; not null.
        void* take(std::size_t bytes)
        {
            if (m_nodeBytes == 0)
                return ::operator new(bytes);
            if (m_returned == nullptr && m_unused == m_end)
                addChunk();
            ++m_pool->m_noOfNodes;
            if (Returned* node = m_returned) {
                m_returned = node->next;
                return node;
            }
            void* node = m_unused;
            m_unused += m_nodeBytes;
            return node;
        }

        /// Takes back what `take` gave.
        void giveBack(void* node)
        {
            if (m_nodeBytes == 0) {
                ::operator delete(node);
                return;
            }
            m_returned = new (node) Returned{m_returned};
            if (--m_pool->m_noOfNodes == 0)
                m_pool->release();
        }

    private:
        friend class NodePool;

        /// Twice as large as the one before, up to a size at which the system's share in the cost is small.
        void addChunk()
        {
            constexpr std::size_t mostNodes = 4096;
            const std::size_t bytes = m_nodesInNextChunk * m_nodeBytes;
            m_pool->m_chunks.push_back(std::unique_ptr<std::byte[]>(new std::byte[bytes]));
            m_unused = m_pool->m_chunks.back().get();
            m_end = m_unused + bytes;
            if (m_nodesInNextChunk < mostNodes)
                m_nodesInNextChunk *= 2;
        }

        void empty()
        {
            m_returned = nullptr;
            m_unused = nullptr;
            m_end = nullptr;
            m_nodesInNextChunk = nodesInFirstChunk;
        }

        static constexpr std::size_t nodesInFirstChunk = 8;

        NodePool* m_pool = nullptr;
        std::size_t m_nodeBytes = 0; // none: each node is an allocation of its own
        Returned* m_returned = nullptr;
        std::byte* m_unused = nullptr; // from here to `m_end` nothing has been handed out yet
        std::byte* m_end = nullptr;
        std::size_t m_nodesInNextChunk = nodesInFirstChunk;
    };

    NodePool()
    {
        for (std::size_t i = 0; i < m_shelves.size(); ++i) {
            m_shelves[i].m_pool = this;
            m_shelves[i].m_nodeBytes = isPooled ? (i + 1) * alignment : 0;
        }
    }

    /// Where nodes of that many bytes come from and go to.
    Shelf& shelf(std::size_t bytes) { return bytes <= largest ? m_shelves[(bytes - 1) / alignment] : m_plain; }

    /// Memory for one node of that many bytes; not null.
    void* allocate(std::size_t bytes) { return shelf(bytes).take(bytes); }

    /// Takes back what `allocate` gave for the same number of bytes.
    void deallocate(void* node, std::size_t bytes) { shelf(bytes).giveBack(node); }

private:
#ifdef PHYSICS_NODE_POOL_IS_PLAIN
    static constexpr bool isPooled = false;
#else
    static constexpr bool isPooled = true;
#endif
    static constexpr std::size_t largest = 512;

    void release()
    {
        for (Shelf& shelf : m_shelves)
            shelf.empty();
        m_chunks.clear();
    }

    std::array<Shelf, largest / alignment> m_shelves;
    Shelf m_plain;
    std::vector<std::unique_ptr<std::byte[]>> m_chunks;
    std::size_t m_noOfNodes = 0;
};

/// Base of objects that lie in a pool, which must outlive them. In front of each object stands where its memory
/// came from, so that `delete` finds it. Their alignment is at most that of the pool.
class Pooled {
protected:
    Pooled() = default;
    ~Pooled() = default;

    /// `new (pool) T(...)`; there is no other way.
    static void* operator new(std::size_t bytes, NodePool& pool)
    {
        NodePool::Shelf& shelf = pool.shelf(sizeof(Note) + bytes);
        return new (shelf.take(sizeof(Note) + bytes)) Note{&shelf} + 1;
    }

    /// Gives the memory back to the pool that it came from.
    static void operator delete(void* object)
    {
        Note* note = static_cast<Note*>(object) - 1;
        note->shelf->giveBack(note);
    }

    /// For a constructor that throws.
    static void operator delete(void* object, NodePool& /*pool*/) { operator delete(object); }

private:
    struct alignas(NodePool::alignment) Note {
        NodePool::Shelf* shelf;
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
    T* allocate(std::size_t count)
    {
        static_assert(alignof(T) <= NodePool::alignment);
        return static_cast<T*>(m_pool->allocate(count * sizeof(T)));
    }

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

/// Ordered containers whose nodes lie in a pool.
/// @{
template <class Key>
using PooledSet = std::set<Key, std::less<Key>, NodeAllocator<Key>>;
template <class Key, class Value>
using PooledMap = std::map<Key, Value, std::less<Key>, NodeAllocator<std::pair<const Key, Value>>>;
/// @}

} // namespace physics
