#include "ReferenceData.h"

#include <cmath>
#include <cstddef>
#include <cstdio>
#include <map>
#include <string>

namespace
{
std::wstring general(double value)
{
    char narrow[64];
    std::snprintf(narrow, sizeof(narrow), "%g", value);
    return std::wstring(narrow, narrow + std::char_traits<char>::length(narrow));
}

template <typename T>
int threeWay(const T& a, const T& b)
{
    return a < b ? -1 : b < a ? 1 : 0;
}

bool isDigit(wchar_t c)
{
    return c >= L'0' && c <= L'9';
}

// Takes the run of digits at `place` and moves past it; leading zeros are dropped, so that longer is greater.
std::wstring takeNumber(const std::wstring& text, std::size_t& place)
{
    std::wstring digits;
    for (; place < text.size() && isDigit(text[place]); ++place)
        if (!digits.empty() || text[place] != L'0')
            digits += text[place];
    return digits;
}

int compareNumbers(const std::wstring& a, const std::wstring& b)
{
    if (a.size() != b.size())
        return threeWay(a.size(), b.size());
    return threeWay(a, b);
}

int compareTextsNaturally(const std::wstring& a, const std::wstring& b)
{
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < a.size() && j < b.size())
    {
        int result = 0;
        if (isDigit(a[i]) && isDigit(b[j]))
        {
            const std::wstring first = takeNumber(a, i);
            result = compareNumbers(first, takeNumber(b, j));
        }
        else
        {
            result = threeWay(a[i], b[j]);
            ++i;
            ++j;
        }
        if (result != 0)
            return result;
    }
    if (i < a.size() || j < b.size())
        return i < a.size() ? 1 : -1;
    return threeWay(a, b);
}

int compareDoubles(double a, double b)
{
    if (std::fabs(a - b) < 1e-6)
        return 0;
    return threeWay(a, b);
}

const wchar_t* labelOf(RefSection::Type type)
{
    static const wchar_t* const kLabels[] = { L"[ kUnkTemplateItemType ]", L"[ kBomTemplate ]", L"[ kReportHeader]",
                                              L"[ kPageHeader  ]",         L"[ kGroupHeader ]", L"[ kDetails     ]",
                                              L"[ kGroupFooter ]",         L"[ kPageFooter  ]", L"[ kReportFooter]" };
    return kLabels[type];
}

bool isSameValue(const RefValue& a, const RefValue& b)
{
    return a.kind == b.kind && a.integer == b.integer && a.text == b.text &&
           (a.number == b.number || (std::isnan(a.number) && std::isnan(b.number)));
}

void addOnce(std::vector<RefValue>& values, const RefValue& value)
{
    for (const RefValue& present : values)
        if (isSameValue(present, value))
            return;
    values.push_back(value);
}

// What a template knows by itself.
const std::map<std::wstring, int>& usualTokens()
{
    static const std::map<std::wstring, int> kTypes = { { L"%Length", RefUnits::kDistance },
                                                        { L"%SysLength", RefUnits::kDistance },
                                                        { L"%SawLength", RefUnits::kDistance },
                                                        { L"%CurvedBeamRadius", RefUnits::kDistance },
                                                        { L"%Diameter", RefUnits::kDistance },
                                                        { L"%Thick", RefUnits::kDistance },
                                                        { L"%Width", RefUnits::kDistance },
                                                        { L"%contourLength", RefUnits::kDistance },
                                                        { L"%LengthInModel", RefUnits::kDistance },
                                                        { L"%SawLengthInModel", RefUnits::kDistance },
                                                        { L"%EDValue", RefUnits::kDistance },
                                                        { L"%WidthExtensionLeft", RefUnits::kDistance },
                                                        { L"%WidthExtensionRight", RefUnits::kDistance },
                                                        { L"%BarSpacing", RefUnits::kDistance },
                                                        { L"%CrossBarSpacing", RefUnits::kDistance },
                                                        { L"%ObjectTopLevel", RefUnits::kDistance },
                                                        { L"%ObjectBottomLevel", RefUnits::kDistance },
                                                        { L"%Weight", RefUnits::kWeight },
                                                        { L"%WeightInAssembly", RefUnits::kWeight },
                                                        { L"%WeightInAllAssembly", RefUnits::kWeight },
                                                        { L"%WeightInAllAssemblyInPhase", RefUnits::kWeight },
                                                        { L"%WeightInPhase", RefUnits::kWeight },
                                                        { L"%WeightInModel", RefUnits::kWeight },
                                                        { L"%AssemblyWeight", RefUnits::kWeight },
                                                        { L"%ExactWeight", RefUnits::kWeight },
                                                        { L"%ExactWeightInAssembly", RefUnits::kWeight },
                                                        { L"%ExactWeightInAllAssembly", RefUnits::kWeight },
                                                        { L"%ExactWeightInAllAssemblyInPhase", RefUnits::kWeight },
                                                        { L"%ExactWeightInPhase", RefUnits::kWeight },
                                                        { L"%ExactWeightInModel", RefUnits::kWeight },
                                                        { L"%AssemblyExactWeight", RefUnits::kWeight },
                                                        { L"%Area", RefUnits::kArea },
                                                        { L"%Paint", RefUnits::kArea },
                                                        { L"%PaintInAssembly", RefUnits::kArea },
                                                        { L"%ExactPaintArea", RefUnits::kArea },
                                                        { L"%WeightMeter", RefUnits::kWeightPerDistance },
                                                        { L"%%PaintMeter", RefUnits::kAreaPerDistance },
                                                        { L"%Density", RefUnits::kDensity } };
    return kTypes;
}
}

std::wstring RefValue::asText() const
{
    switch (kind)
    {
        case kInt: return std::to_wstring(integer);
        case kDouble: return general(number);
        case kText: return text;
        default: return L"";
    }
}

int RefValue::compare(const RefValue& a, const RefValue& b)
{
    if (a.kind != b.kind)
        return -1;
    switch (a.kind)
    {
        case kInt: return threeWay(a.integer, b.integer);
        case kDouble: return compareDoubles(a.number, b.number);
        case kText: return threeWay(a.text, b.text);
        default: return 0;
    }
}

int RefValue::compareNaturally(const RefValue& a, const RefValue& b)
{
    if (a.kind != b.kind)
        return -1;
    return a.kind == kText ? compareTextsNaturally(a.text, b.text) : 0;
}

bool RefValue::areOrdered(const std::vector<RefValue>& values, bool naturally)
{
    const auto order = naturally ? compareNaturally : compare;
    std::vector<RefValue> different;
    for (const RefValue& value : values)
        addOnce(different, value);
    for (const RefValue& a : different)
        for (const RefValue& b : different)
        {
            if (threeWay(order(a, b), 0) != threeWay(0, order(b, a)))
                return false;
            for (const RefValue& c : different)
                if (order(a, b) == 0 && order(b, c) == 0 && order(a, c) != 0)
                    return false;
        }
    return true;
}

RefTuple* findTuple(std::vector<RefTuple>& tuples, const std::wstring& token)
{
    for (RefTuple& tuple : tuples)
        if (tuple.token == token)
            return &tuple;
    return nullptr;
}

std::wstring RefSection::listing() const
{
    std::wstring text;
    appendListing(text, 0);
    return text;
}

void RefSection::appendListing(std::wstring& text, std::size_t level) const
{
    text += labelOf(type);
    for (const RefTuple& tuple : tuples)
    {
        text += L'[';
        text += tuple.token;
        text += L':';
        text += tuple.value.asText();
        text += L']';
    }
    for (const std::shared_ptr<RefSection>& child : children)
    {
        text += L'\n';
        text.append(level + 1, L' ');
        child->appendListing(text, level + 1);
    }
}

void RefUnits::add(const std::wstring& token, int type)
{
    if (!hasUsualTokens || usualTokens().count(token) == 0)
        types.emplace(token, type);
}

void RefUnits::addUsualTokens()
{
    hasUsualTokens = true;
}

int RefUnits::typeOf(const std::wstring& token) const
{
    const auto found = types.find(token);
    if (found != types.end())
        return found->second;
    const auto usual = usualTokens().find(token);
    return hasUsualTokens && usual != usualTokens().end() ? usual->second : kNoUnit;
}

std::wstring RefUnits::display(const std::wstring& token, double value) const
{
    const int type = typeOf(token);
    if (type == kNoUnit)
        return general(value);
    return type == kReserved || type > kDensity ? L"" : format(type, value);
}
