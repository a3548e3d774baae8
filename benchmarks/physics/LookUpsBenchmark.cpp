// Finding objects by their keys, beside plain containers of the standard library with the same keys, which are
// the limit. The argument is the number of boundaries of the case; everything is looked up once, in an order
// that has nothing to do with the keys and with other things in the processor's caches at first. `perObject` is the
// time of one look-up.

#include "benchmarks/Caches.h"
#include "benchmarks/Case.h"
#include "physics/Boundary.h"
#include "physics/Physics.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

namespace {

using physics::Physics;

const Physics& setUpOf(std::int64_t size)
{
    static std::map<std::int64_t, std::unique_ptr<benchmarks::Case>> cases;
    std::unique_ptr<benchmarks::Case>& found = cases[size];
    if (!found)
        found = std::make_unique<benchmarks::Case>(size);
    return found->setUp;
}

std::vector<int> shuffled(std::vector<int> keys)
{
    std::shuffle(keys.begin(), keys.end(), std::mt19937(1)); // the same order in each run
    return keys;
}

// ---- What is looked up: all keys of a set-up, and the member that finds an object.

struct BoundaryById {
    static constexpr const char* name = "boundaries by id";
    static auto* find(const Physics& setUp, int id) { return setUp.findBoundaryById(id); }
    static std::vector<int> keys(const Physics& setUp)
    {
        std::vector<int> ids;
        for (const physics::Boundary* boundary : setUp.boundaries())
            ids.push_back(boundary->id());
        return ids;
    }
};

struct SettingsById {
    static constexpr const char* name = "settings by id";
    static auto* find(const Physics& setUp, int id) { return setUp.findSettingsById(id); }
    static std::vector<int> keys(const Physics& setUp)
    {
        std::vector<int> ids;
        for (const physics::Settings* settings : setUp.settings())
            ids.push_back(settings->id());
        return ids;
    }
};

struct BundleByThread {
    static constexpr const char* name = "bundles by thread";
    static auto* find(const Physics& setUp, int id) { return setUp.findThreadBundleByThreadId(id); }
    static std::vector<int> keys(const Physics& setUp) { return setUp.threadIds(); }
};

struct BundleByZone {
    static constexpr const char* name = "bundles by zone";
    static auto* find(const Physics& setUp, int id) { return setUp.findThreadBundleByZoneId(id); }
    static std::vector<int> keys(const Physics& setUp) { return setUp.zoneIds(); }
};

// ---- By what it is looked up.

template <class Key>
class ThisLibrary {
public:
    static constexpr const char* name = "this library";
    ThisLibrary(const Physics& setUp, const std::vector<int>&) : m_setUp(setUp) {}
    auto* find(int key) const { return Key::find(m_setUp, key); }

private:
    const Physics& m_setUp;
};

template <class Key, template <class...> class Map>
class Container {
public:
    Container(const Physics& setUp, const std::vector<int>& keys)
    {
        for (const int key : keys)
            m_objects.emplace(key, Key::find(setUp, key));
    }

    auto* find(int key) const
    {
        const auto found = m_objects.find(key);
        return found == m_objects.end() ? nullptr : found->second;
    }

private:
    Map<int, decltype(Key::find(std::declval<const Physics&>(), 0))> m_objects;
};

template <class Key>
struct StandardMap : Container<Key, std::map> {
    static constexpr const char* name = "std::map";
    using Container<Key, std::map>::Container;
};

template <class Key>
struct StandardHash : Container<Key, std::unordered_map> {
    static constexpr const char* name = "std::unordered_map";
    using Container<Key, std::unordered_map>::Container;
};

template <class Key, class Finder>
void lookUp(benchmark::State& state)
{
    const Physics& setUp = setUpOf(state.range(0));
    const std::vector<int> keys = shuffled(Key::keys(setUp));
    const Finder finder(setUp, keys);
    for ([[maybe_unused]] auto iteration : state) {
        benchmarks::coolDown(state);
        std::size_t found = 0;
        for (const int key : keys)
            found += finder.find(key) != nullptr ? 1 : 0;
        if (found != keys.size())
            state.SkipWithError("Not everything was found.");
    }
    state.counters["perObject"] = benchmark::Counter(
        static_cast<double>(keys.size()), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

template <class Key, class Finder>
void add()
{
    benchmark::RegisterBenchmark((std::string(Key::name) + "/" + Finder::name).c_str(), lookUp<Key, Finder>)
        ->RangeMultiplier(10)
        ->Range(1000, 1000000)
        ->Unit(benchmark::kMillisecond);
}

template <class Key>
void addAll()
{
    add<Key, ThisLibrary<Key>>();
    add<Key, StandardMap<Key>>();
    add<Key, StandardHash<Key>>();
}

} // namespace

int main(int argc, char** argv)
{
    addAll<BoundaryById>();
    addAll<SettingsById>();
    addAll<BundleByThread>();
    addAll<BundleByZone>();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
