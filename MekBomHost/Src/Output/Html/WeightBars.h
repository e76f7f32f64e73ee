// The weights of groups as bars, heaviest first, for a page.
//
//   WeightBars(weights).append(page);
//
//   HEA200   ==================   1042.4
//   L50      ====                  230.1
//   Credit =                       -52
//   PL10                        no total
//
// Bars begin at nothing: what is less goes to the left. Of many groups the heaviest are drawn, and the page says how many
// are not.
#pragma once

#include "GroupWeights.h"

#include <cstddef>
#include <string>
#include <vector>

namespace mekbom
{
class WeightBars
{
public:
    // Groups with bars that a reader still takes in at a glance, and a sheet of paper holds. Arbitrary.
    static constexpr std::size_t kMostBars = 40;

    // `weights` must outlive this.
    explicit WeightBars(const GroupWeights& weights);

    // Whether there is anything to compare: a list of groups, not all of which weigh nothing.
    bool isEmpty() const { return m_drawn.empty(); }

    // Appends the heading and the table of the bars; nothing where there are none.
    void append(std::string& page) const;

private:
    void chooseGroups();
    void appendBar(std::string& page, const GroupWeight& group) const;

    const GroupWeights& m_weights;
    std::vector<const GroupWeight*> m_drawn;
    double m_low = 0; // where bars may begin and end, in kg
    double m_high = 0;
    int m_decimals = 0; // the most that a number beside a bar has
};
}
