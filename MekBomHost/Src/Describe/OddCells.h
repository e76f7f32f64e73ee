// What is odd about the cells of a column, each oddity told once, by the first cell that shows it:
//
//   OddCells odd(limit);
//   odd.note("blanks", [&] { return finding; });      the finding is made for the first cell alone
//   odd.note("blanks", [&] { return finding; });
//   odd.texts("cell")   ->  parts.csv:3: column "Grade": "S355 " has blanks around it (and 1 more cell)
#pragma once

#include "Finding.h"
#include "OddityLimit.h"

#include <cstddef>
#include <string>
#include <vector>

namespace mekbom
{
class OddCells
{
public:
    // `limit` is that of the file; it is not owned and outlives this.
    explicit OddCells(OddityLimit& limit) : m_limit(limit) {}

    // Counts a cell that shows the oddity known by `key`, of which there are few; `make` makes its finding.
    template <class Make>
    void note(const std::string& key, const Make& make)
    {
        for (Oddity& oddity : m_oddities)
            if (oddity.key == key)
            {
                ++oddity.number;
                return;
            }
        if (m_limit.takeOne())
            m_oddities.push_back({ key, make(), 1 });
    }

    // A message for each oddity, in the order in which they came; `noun` is what the others are: "cell".
    std::vector<std::string> texts(const std::string& noun) const;

private:
    struct Oddity
    {
        std::string key;
        Finding first;
        std::size_t number;
    };

    OddityLimit& m_limit;
    std::vector<Oddity> m_oddities;
};
}
