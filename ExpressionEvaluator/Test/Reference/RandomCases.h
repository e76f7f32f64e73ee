// Random tests that can be repeated. A run makes a number of cases, each from a seed of its own, which is all that a
// failure has to name:
//   for (const unsigned long long seed : RandomCases(20000))
//   {
//       Dice dice(seed);
//       ...
//   }
// The environment decides for a single run:
//   MEK_RANDOM_CASES=1000000    how many cases
//   MEK_RANDOM_SEED=4711        the seed of the first one; the next cases count on from there
// so `MEK_RANDOM_SEED=4711 MEK_RANDOM_CASES=1` repeats the one case that failed. Without them a run is always the same.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <random>
#include <string>

class RandomCases
{
public:
    class Iterator
    {
    public:
        explicit Iterator(unsigned long long seed) : m_nSeed(seed) {}
        unsigned long long operator*() const { return m_nSeed; }
        Iterator& operator++()
        {
            ++m_nSeed;
            return *this;
        }
        bool operator!=(const Iterator& other) const { return m_nSeed != other.m_nSeed; }

    private:
        unsigned long long m_nSeed;
    };

    explicit RandomCases(unsigned long long usualCount)
        : m_nFirst(fromEnvironment("MEK_RANDOM_SEED", 1)), m_nCount(fromEnvironment("MEK_RANDOM_CASES", usualCount))
    {
    }

    Iterator begin() const { return Iterator(m_nFirst); }
    Iterator end() const { return Iterator(m_nFirst + m_nCount); }

    // How to run the case of `seed` alone.
    static std::string repetition(unsigned long long seed)
    {
        return "repeat with MEK_RANDOM_SEED=" + std::to_string(seed) + " MEK_RANDOM_CASES=1";
    }

private:
    static unsigned long long fromEnvironment(const char* name, unsigned long long usual)
    {
        const char* text = std::getenv(name);
        return text == nullptr ? usual : std::strtoull(text, nullptr, 10);
    }

    unsigned long long m_nFirst;
    unsigned long long m_nCount;
};

// Throws for one case. The same seed gives the same throws with every standard library, which is why the library's
// distributions are not used.
class Dice
{
public:
    explicit Dice(unsigned long long seed) : m_engine(seed) {}

    // 0 .. count-1; `count` must be positive.
    int below(int count) { return static_cast<int>(m_engine() % static_cast<unsigned long long>(count)); }

    // True about once in `count` throws.
    bool oneIn(int count) { return below(count) == 0; }

    // True in about `percent` of a hundred throws.
    bool percent(int percent) { return below(100) < percent; }

    template <typename T, std::size_t N>
    const T& pick(const T (&table)[N])
    {
        return table[below(static_cast<int>(N))];
    }

    // `list` must not be empty.
    template <typename List>
    auto pickFrom(const List& list) -> decltype(list[0])
    {
        return list[static_cast<std::size_t>(below(static_cast<int>(list.size())))];
    }

private:
    std::mt19937_64 m_engine;
};
