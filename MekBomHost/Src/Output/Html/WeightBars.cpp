// All bars share one axis, which reaches from the least weight to the greatest, and to nothing in any case. Of weights
// 80, 40 and -20 it is 100 long:
//
//   80    begins at 20 %, 80 % wide
//   40    begins at 20 %, 40 % wide
//   -20   begins at  0 %, 20 % wide, and is drawn as what is less than nothing
#include "WeightBars.h"

#include "HtmlText.h"
#include "ShownNumber.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace mekbom
{
namespace
{
bool isHeavier(const GroupWeight* pA, const GroupWeight* pB)
{
    return pA->isKnown != pB->isKnown ? pA->isKnown : pA->weight > pB->weight;
}

bool isLarger(const GroupWeight* pA, const GroupWeight* pB)
{
    return pA->isKnown != pB->isKnown ? pA->isKnown : std::fabs(pA->weight) > std::fabs(pB->weight);
}

// A share of the axis: "12.50%".
std::string percent(double share)
{
    char text[16]; // a share is from 0 to 1
    const std::to_chars_result end = std::to_chars(text, text + sizeof(text), 100 * share, std::chars_format::fixed, 2);
    return std::string(text, end.ptr) + "%";
}
}

WeightBars::WeightBars(const GroupWeights& weights) : m_weights(weights)
{
    for (const GroupWeight& group : weights.groups())
    {
        m_low = std::min(m_low, group.weight);
        m_high = std::max(m_high, group.weight);
    }
    if (m_low < m_high && std::isfinite(m_high - m_low))
        chooseGroups();
}

// Where some must go, those go that weigh least, be it more or less than nothing.
void WeightBars::chooseGroups()
{
    for (const GroupWeight& group : m_weights.groups())
        m_drawn.push_back(&group);
    std::stable_sort(m_drawn.begin(), m_drawn.end(), isLarger);
    m_drawn.resize(std::min(m_drawn.size(), kMostBars));
    std::stable_sort(m_drawn.begin(), m_drawn.end(), isHeavier);
    for (const GroupWeight* const pGroup : m_drawn)
        m_decimals = std::max(m_decimals, ShownNumber::numDecimals(pGroup->text));
}

void WeightBars::append(std::string& page) const
{
    if (isEmpty())
        return;
    page += "<h2 id=\"weights\">";
    HtmlText::append(page, m_weights.column()->heading());
    page += " by group, of all lines</h2>\n<table class=\"bars\">\n";
    for (const GroupWeight* const pGroup : m_drawn)
        appendBar(page, *pGroup);
    page += "</table>\n";
    const std::size_t numOthers = m_weights.groups().size() - m_drawn.size();
    if (numOthers > 0)
        page +=
            "<p class=\"quiet\">Not drawn: " + std::to_string(numOthers) + " that weigh less or have no total</p>\n";
}

void WeightBars::appendBar(std::string& page, const GroupWeight& group) const
{
    page += "<tr><th scope=\"row\">";
    HtmlText::append(page, group.name.empty() ? "(no name)" : group.name);
    page += "<td>";
    if (group.weight != 0)
    {
        const double length = m_high - m_low;
        page += group.weight < 0 ? "<i class=\"below\"" : "<i";
        page += " style=\"margin-left:" + percent((std::min(group.weight, 0.0) - m_low) / length) +
                ";width:" + percent(std::fabs(group.weight) / length) + "\"></i>";
    }
    const std::string fill = group.isKnown ? ShownNumber::fill(group.text, m_decimals) : std::string();
    page += fill.empty() ? "<td>" : "<td data-fill=\"" + fill + "\">";
    HtmlText::append(page, group.isKnown ? group.text : "no total");
    page += "</tr>\n";
}
}
