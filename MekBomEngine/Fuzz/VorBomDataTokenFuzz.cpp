// Comma lists: split and joined again, a list is its text without blanks, and only the last element may be empty or
// hold commas, at its start. Input: the list, one character per byte. Seeds: Fuzz/Seeds/VorBomDataTokenFuzz.
#include "VorBomDataToken.h"

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

void checkElement(const VorString& element, bool isLast)
{
    const int comma = element.find(L",", 0);
    require(isLast ? comma <= 0 : comma < 0 && !element.isEmpty());
}
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t size)
{
    VorString list;
    for (std::size_t i = 0; i < size; ++i)
        list.append(static_cast<wchar_t>(pData[i]), 1);
    VorString token = VorBomDataToken::kGroupPrefix;
    token += list;

    VorStringArray elements;
    require(VorBomDataToken(token).getGroupingRequest(elements) == 1 && elements.length() > 0);

    VorString joined;
    for (int i = 0; i < elements.length(); ++i)
    {
        checkElement(elements[i], i + 1 == elements.length());
        joined += i > 0 ? L"," : L"";
        joined += elements[i];
    }
    list.removeAll(L' ');
    require(joined == list);
    return 0;
}
