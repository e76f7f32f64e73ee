#include "SectionWalk.h"

namespace mekbom
{
namespace
{
const std::size_t kCacheLine = 64; // bytes

void askFor(const void* pMemory)
{
#if defined(__GNUC__)
    __builtin_prefetch(pMemory);
#else
    static_cast<void>(pMemory);
#endif
}

void askForTuples(const VorBomItemBase& section)
{
    const char* const pEnd = reinterpret_cast<const char*>(section.getData().end());
    for (auto pLine = reinterpret_cast<const char*>(section.getData().begin()); pLine < pEnd; pLine += kCacheLine)
        askFor(pLine);
}

void askForValues(const VorBomItemBase& section)
{
    for (const VorBomDataTuple& tuple : section.getData())
        askFor(tuple.value().data());
}

// The length of a text stands right before its characters.
void askForTexts(const VorBomItemBase& section)
{
    for (const VorBomDataTuple& tuple : section.getData())
        if (tuple.value().type() == VorBomDataValue::kStringData)
            askFor(static_cast<const VorString*>(tuple.value().data())->getStringW() - 1);
}
}

SectionWalk::SectionWalk(const VorBomItemBase& result)
{
    if (result.child() != nullptr)
        m_path.push_back(result.child());
    for (std::size_t i = 0; i < kNumAhead; ++i)
        moveOn();
}

bool SectionWalk::next(WalkedSection& section)
{
    section = entered(kNumAhead);
    if (section.pItem == nullptr)
        return false;
    moveOn();
    return true;
}

// Visits one section and takes those before it one step further.
void SectionWalk::moveOn()
{
    m_ahead[m_numVisited++ % kNumAhead] = visit();
    using Step = void (*)(const VorBomItemBase& section);
    static constexpr Step kSteps[] = { askForTuples, askForValues, askForTexts };
    std::size_t numSectionsAgo = 1;
    for (const Step step : kSteps)
    {
        const VorBomTemplateItem* const pItem = entered(numSectionsAgo).pItem;
        if (pItem != nullptr)
            step(*pItem);
        numSectionsAgo += kStep;
    }
}

WalkedSection SectionWalk::visit()
{
    if (m_path.empty())
        return WalkedSection();
    WalkedSection section;
    section.pItem = static_cast<const VorBomTemplateItem*>(m_path.back());
    section.level = static_cast<int>(m_path.size()) - 1;
    advance();
    return section;
}

void SectionWalk::advance()
{
    if (m_path.back()->child() != nullptr)
    {
        m_path.push_back(m_path.back()->child());
        return;
    }
    while (!m_path.empty() && m_path.back()->next() == nullptr)
        m_path.pop_back();
    if (!m_path.empty())
        m_path.back() = m_path.back()->next();
}

const WalkedSection& SectionWalk::entered(std::size_t numSectionsAgo) const
{
    return m_ahead[(m_numVisited - numSectionsAgo) % kNumAhead];
}
}
