// Collects what the cells of number columns show of how their file writes numbers.
//
//   NotationEvidence evidence;
//   evidence.add("1.234", 2);          // shows nothing: a thousand and more, or one and a little
//   evidence.add("12,5", 3);
//   evidence.notation(';')             ->  a decimal comma, settled, "as \"12,5\" on line 3 shows"
#pragma once

#include "NumberNotation.h"

#include <string>
#include <string_view>

namespace mekbom
{
class NotationEvidence
{
public:
    // `line` is the one on which the cell stands.
    void add(std::string_view cell, int line);

    // Whether so many cells have shown a sign that others will hardly change what it is.
    bool isEnough() const { return m_point.number + m_comma.number >= kEnough; }

    // Settled where all cells that show a sign show the same one; mixed, with the sign of the most, where they do not.
    // Where none shows any, the comma between fields speaks for the point.
    NumberNotation notation(char delimiter) const;

private:
    static constexpr int kEnough = 100; // arbitrary

    struct Shown
    {
        int number = 0;
        std::string first; // "\"12,5\" on line 3"
    };

    Shown m_point;
    Shown m_comma;
};
}
