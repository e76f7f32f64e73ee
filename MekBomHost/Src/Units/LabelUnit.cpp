#include "LabelUnit.h"

#include "Utf8.h"

#include "MekRoots/Exp/VorUnitsTransformArray.h"

namespace mekbom
{
LabelUnit LabelUnit::of(const std::string& label)
{
    LabelUnit found;
    const char last = label.empty() ? ' ' : label.back();
    if (last == ']' || last == ')')
        found.begin = label.rfind(last == ']' ? '[' : '(');
    if (found.begin == std::string::npos)
        return found;
    found.text = label.substr(found.begin + 1, label.size() - found.begin - 2);
    found.pUnit = VorUnitsTransformArray::findUnit(Utf8::toWide(found.text));
    return found;
}
}
