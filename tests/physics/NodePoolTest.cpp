#include "physics/NodePool.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <map>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

namespace physics {
namespace {

/// A node filled with a byte of its own, which any overlap with another node destroys.
struct FilledNode {
    void* address;
    std::size_t bytes;
    unsigned char filling;

    bool isWhole() const
    {
        const auto* bytesOf = static_cast<const unsigned char*>(address);
        for (std::size_t i = 0; i < bytes; ++i)
            if (bytesOf[i] != filling)
                return false;
        return true;
    }
};

FilledNode takeFilledNode(NodePool& pool, std::size_t bytes, unsigned char filling)
{
    const FilledNode node{pool.allocate(bytes), bytes, filling};
    std::memset(node.address, filling, bytes);
    return node;
}

TEST(NodePool, nodesOfAllSizesNeverOverlapInAnyOrderOfTakingAndReturning)
{
    NodePool pool;
    std::mt19937 random(7);
    std::vector<FilledNode> nodes;
    for (unsigned step = 0; step < 20000; ++step) {
        if (nodes.empty() || random() % 5 < 3) {
            nodes.push_back(takeFilledNode(pool, 1 + random() % 400, static_cast<unsigned char>(step)));
            continue;
        }
        const std::size_t chosen = random() % nodes.size();
        ASSERT_TRUE(nodes[chosen].isWhole());
        pool.deallocate(nodes[chosen].address, nodes[chosen].bytes);
        nodes[chosen] = nodes.back();
        nodes.pop_back();
    }
    for (const FilledNode& node : nodes) {
        EXPECT_TRUE(node.isWhole());
        pool.deallocate(node.address, node.bytes);
    }
}

TEST(NodePool, nodesAreAlignedForPointersAndNumbers)
{
    static_assert(NodePool::alignment >= alignof(void*) && NodePool::alignment >= alignof(double));
    NodePool pool;
    for (std::size_t bytes = 1; bytes <= 300; ++bytes) {
        void* node = pool.allocate(bytes);
        EXPECT_EQ(0U, reinterpret_cast<std::uintptr_t>(node) % NodePool::alignment) << bytes;
        pool.deallocate(node, bytes);
    }
}

TEST(NodePool, isReadyAgainAfterTheLastNodeWasReturned)
{
    NodePool pool;
    for (int round = 0; round < 3; ++round) {
        std::map<int, std::string, std::less<int>, NodeAllocator<std::pair<const int, std::string>>> map{
            NodeAllocator<char>(pool)};
        for (int i = 0; i < 1000; ++i)
            map.emplace(i, std::to_string(i));
        EXPECT_EQ("999", map.at(999));
    }
}

/// An object that is as large as asked for and may refuse to come into being.
template <std::size_t bytes>
class PooledObject : public Pooled {
public:
    explicit PooledObject(bool refuses = false)
    {
        if (refuses)
            throw std::runtime_error("refused");
        std::memset(m_filling, 7, bytes);
    }
    static PooledObject* make(NodePool& pool, bool refuses = false) { return new (pool) PooledObject(refuses); }
    void end() { delete this; }

private:
    unsigned char m_filling[bytes];
};

TEST(NodePool, objectsGoBackToThePoolThatTheyCameFrom)
{
    NodePool first;
    NodePool second;
    auto* ofFirst = PooledObject<40>::make(first);
    auto* ofSecond = PooledObject<40>::make(second);
    auto* tooLarge = PooledObject<2000>::make(first);

    ofFirst->end();
    tooLarge->end();
    ofSecond->end();

    // A pool that is empty gives the memory back, so that a node left behind would be a leak.
    auto* again = PooledObject<40>::make(second);
    EXPECT_EQ(0U, reinterpret_cast<std::uintptr_t>(again) % NodePool::alignment);
    again->end();
}

TEST(NodePool, objectThatRefusesToComeIntoBeingLeavesNoMemoryBehind)
{
    NodePool pool;

    EXPECT_THROW(PooledObject<40>::make(pool, true), std::runtime_error);
    EXPECT_THROW(PooledObject<2000>::make(pool, true), std::runtime_error);
}

} // namespace
} // namespace physics
