// Token tracing: whatever the tuples say, every one of them is traced and required, the trace is sorted without regard
// to case, and tracing again adds nothing. Input: one tuple per line; '>' opens a group header within the last section,
// '-' a section beside it. Seeds: Fuzz/Seeds/VorBomTemplateFuzz.
#include "VorBomTemplate.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace
{
void require(bool holds)
{
    if (!holds)
        std::abort();
}

void build(VorBomTemplate& bomTemplate, const std::uint8_t* pData, std::size_t size)
{
    VorBomItemBase* pParent = &bomTemplate;
    VorBomItemBase* pSection = &bomTemplate;
    VorString line;
    for (std::size_t i = 0; i < size; ++i)
    {
        const auto c = static_cast<wchar_t>(pData[i]);
        if (c == L'>')
            pParent = pSection;
        if (c == L'>' || c == L'-')
            pParent->addChild(pSection = new VorBomTemplateItem(VorBomTemplateItem::kGroupHeader));
        else if (c != L'\n')
            line.append(c, 1);
        if (c != L'\n' && i + 1 < size)
            continue;
        pSection->addData(VorBomDataTuple(line, 0));
        line.empty();
    }
}

void checkSorted(const VorStringArray& trace)
{
    for (int i = 1; i < trace.length(); ++i)
        require(VorString::strCompareNoCase(&trace[i - 1], &trace[i]) <= 0);
}

void checkTuplesAreRequired(VorBomTemplate& bomTemplate, const VorBomItemBase& section)
{
    for (const VorBomDataTuple& tuple : section.getData())
        require(bomTemplate.isTokenRequired(tuple.token().token()));
    for (VorBomItemBase* pChild = section.child(); pChild != nullptr; pChild = pChild->next())
        for (const VorBomDataTuple& tuple : pChild->getData())
            require(bomTemplate.isTokenRequired(tuple.token().token()));
}
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t size)
{
    VorBomTemplate bomTemplate;
    build(bomTemplate, pData, size);

    bomTemplate.findUsedTokens();
    const VorStringArray trace = bomTemplate.getTokenTrace();
    checkSorted(trace);
    for (const VorBomItemBase* pSection = &bomTemplate; pSection != nullptr; pSection = pSection->child())
        checkTuplesAreRequired(bomTemplate, *pSection);

    bomTemplate.findUsedTokens();
    require(bomTemplate.getTokenTrace().length() == trace.length());
    return 0;
}
