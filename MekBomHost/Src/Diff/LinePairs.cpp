// Lines of three rows may come apart: of the objects of one old line two stand in one new line and one in another.
//
//   old 0  {h1 h2 h3}       new 0  {h1 h2}     shares 2
//                           new 1  {h3}        shares 1, and finds old 0 taken: it is new
#include "LinePairs.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <unordered_map>

namespace mekbom::LinePairs
{
namespace
{
const std::size_t kNone = static_cast<std::size_t>(-1);

// Objects that two lines have in common.
struct Share
{
    std::size_t number;
    std::size_t oldLine;
    std::size_t newLine;
};

class Pairing
{
public:
    Pairing(const std::vector<ComparedLine>& oldLines, const std::vector<ComparedLine>& newLines)
        : m_oldLines(oldLines), m_newLines(newLines), m_newOf(oldLines.size(), kNone), m_oldOf(newLines.size(), kNone)
    {
    }

    void byHandles()
    {
        std::vector<Share> shares = this->shares();
        std::stable_sort(shares.begin(), shares.end(),
                         [](const Share& first, const Share& second) { return first.number > second.number; });
        for (const Share& share : shares)
            join(share.oldLine, share.newLine);
    }

    void byKeys()
    {
        std::unordered_map<std::string_view, std::vector<std::size_t>>
            free; // old lines of each key, the last one first
        for (std::size_t i = m_oldLines.size(); i-- > 0;)
            if (m_newOf[i] == kNone)
                free[m_oldLines[i].key].push_back(i);
        for (std::size_t i = 0; i < m_newLines.size(); ++i)
        {
            const auto found = m_oldOf[i] == kNone ? free.find(m_newLines[i].key) : free.end();
            if (found == free.end() || found->second.empty())
                continue;
            join(found->second.back(), i);
            found->second.pop_back();
        }
    }

    std::vector<LinePair> pairs() const
    {
        std::vector<LinePair> pairs;
        for (std::size_t i = 0; i < m_newLines.size(); ++i)
            pairs.push_back({ m_oldOf[i] == kNone ? nullptr : &m_oldLines[m_oldOf[i]], &m_newLines[i] });
        for (std::size_t i = 0; i < m_oldLines.size(); ++i)
            if (m_newOf[i] == kNone)
                pairs.push_back({ &m_oldLines[i], nullptr });
        return pairs;
    }

private:
    // In the order of the new lines, and of the old ones for each.
    std::vector<Share> shares() const
    {
        std::unordered_map<std::wstring_view, std::size_t> lineOf; // that a handle stands in first
        for (std::size_t i = 0; i < m_oldLines.size(); ++i)
            for (const VorString& handle : m_oldLines[i].handles)
                lineOf.emplace(viewOf(handle), i);
        std::vector<Share> shares;
        std::map<std::size_t, std::size_t> numShared;
        for (std::size_t i = 0; i < m_newLines.size(); ++i)
        {
            numShared.clear();
            for (const VorString& handle : m_newLines[i].handles)
                if (const auto found = lineOf.find(viewOf(handle)); found != lineOf.end())
                    ++numShared[found->second];
            for (const auto& [oldLine, number] : numShared)
                shares.push_back({ number, oldLine, i });
        }
        return shares;
    }

    static std::wstring_view viewOf(const VorString& text)
    {
        return std::wstring_view(text.getStringW(), static_cast<std::size_t>(text.length()));
    }

    void join(std::size_t oldLine, std::size_t newLine)
    {
        if (m_newOf[oldLine] != kNone || m_oldOf[newLine] != kNone)
            return;
        m_newOf[oldLine] = newLine;
        m_oldOf[newLine] = oldLine;
    }

    const std::vector<ComparedLine>& m_oldLines;
    const std::vector<ComparedLine>& m_newLines;
    std::vector<std::size_t> m_newOf; // of each old line, its new one
    std::vector<std::size_t> m_oldOf;
};
}

// Only handles that both parts lists have tell anything: numbers of rows come again in every list.
std::vector<LinePair> of(const ComparedList& oldList, const ComparedList& newList)
{
    Pairing pairing(oldList.lines(), newList.lines());
    if (oldList.hasHandles() && newList.hasHandles())
        pairing.byHandles();
    pairing.byKeys();
    return pairing.pairs();
}
}
