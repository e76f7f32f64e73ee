#include "RandomReport.h"

#include <cstddef>
#include <limits>

namespace
{
struct KnownToken
{
    const wchar_t* token;
    RefValue::Kind kind; // what its data usually are; kUnknown: anything
};

const KnownToken kTokens[] = { { L"%Weight", RefValue::kDouble },      { L"%Length", RefValue::kDouble },
                               { L"%Paint", RefValue::kDouble },       { L"%Density", RefValue::kDouble },
                               { L"%WeightMeter", RefValue::kDouble }, { L"%Quantity", RefValue::kInt },
                               { L"%MQuantity", RefValue::kInt },      { L"%Name", RefValue::kText },
                               { L"%MNum", RefValue::kText },          { L"%BoltName", RefValue::kText },
                               { L"%Material", RefValue::kText },      { L"%UserAttr7", RefValue::kText },
                               { L"%External2", RefValue::kText },     { L"%PosNum", RefValue::kInt },
                               { L"%Odd", RefValue::kUnknown },        { L"Weight", RefValue::kUnknown },
                               { L"%weight", RefValue::kUnknown },     { L"%my part", RefValue::kUnknown },
                               { L"%%PaintMeter", RefValue::kDouble }, { L"", RefValue::kUnknown },
                               { L"%A%%B", RefValue::kUnknown } };

// Near the ends of 32 bits, so that totals leave them; the small ones come back often enough to make groups.
const int kInts[] = { 0, 1, 2, 3, 7, 10, -5, 12, 1500000000, -1500000000, 2147483640, 2147483647, -2147483647 };
// Some lie within 1e-6 of each other.
const double kDoubles[] = { 0.0,       -0.0, 0.5,  1.0,   1.0000005, 1.0000009, 1.000002, 2.5, 100.0, 1234567.0,
                            0.0000004, 5e-5, 1e15, -3.25, 6000.0,    12.125,    2286.0,   0.1, 1e-6,  1e300 };
const wchar_t* const kTexts[] = { L"",
                                  L"S235",
                                  L"S355",
                                  L"B2",
                                  L"B10",
                                  L"B02",
                                  L"B002",
                                  L"B-2",
                                  L"B 2",
                                  L"b2",
                                  L"12",
                                  L"2.5",
                                  L"B2a",
                                  L"B02a",
                                  L"x]",
                                  L"\u00c4",
                                  L"B99999999999999999999",
                                  L"B100000000000000000000" };

const RefSection::Type kAnyType[] = { RefSection::kUnknownType, RefSection::kBomTemplate, RefSection::kReportHeader,
                                      RefSection::kPageHeader,  RefSection::kGroupHeader, RefSection::kDetails,
                                      RefSection::kGroupFooter, RefSection::kPageFooter,  RefSection::kReportFooter };

const int kNumKinds = 4;
}

void RandomReport::fill(RefReport& report)
{
    chooseColumns();
    addLevels(report);
    addRows(report);
}

std::wstring RandomReport::someTokenWithUnit()
{
    if (!m_formulas.empty() && m_dice.oneIn(3))
        return m_dice.pickFrom(m_formulas);
    return m_dice.oneIn(4) ? L"%SumBy:" + columnToken() : columnToken();
}

void RandomReport::chooseColumns()
{
    const int numColumns = 2 + m_dice.below(4);
    for (int i = 0; i < numColumns; ++i)
    {
        const KnownToken& known = m_dice.pick(kTokens);
        const int missing[] = { 0, 0, 0, 20, 60 };
        Column column = { known.token, m_dice.pick(missing), {} };
        const bool isMixed = m_dice.oneIn(7);
        int kind = known.kind == RefValue::kUnknown || m_dice.oneIn(6) ? m_dice.below(kNumKinds) : known.kind;
        const int numValues = 1 + m_dice.below(5);
        for (int j = 0; j < numValues; ++j)
        {
            kind = isMixed ? m_dice.below(kNumKinds) : kind;
            column.values.push_back(randomValue(kind));
        }
        m_columns.push_back(column);
    }
}

RefValue RandomReport::randomValue(int kind)
{
    switch (kind)
    {
        case RefValue::kInt:
            return RefValue::ofInt(m_dice.oneIn(20) ? std::numeric_limits<int>::min() : m_dice.pick(kInts));
        case RefValue::kDouble: return RefValue::ofDouble(randomDouble());
        case RefValue::kText: return RefValue::ofText(m_dice.pick(kTexts));
        default: return RefValue();
    }
}

double RandomReport::randomDouble()
{
    if (m_dice.oneIn(40))
        return m_dice.oneIn(2) ? std::numeric_limits<double>::infinity() : std::numeric_limits<double>::quiet_NaN();
    return m_dice.pick(kDoubles);
}

void RandomReport::addRows(RefReport& report)
{
    const int most[] = { 1, 2, 3, 4, 4, 5, 5, 6, 8, m_dice.oneIn(20) ? 60 : 8 };
    const int numRows = m_dice.oneIn(30) ? 0 : 1 + m_dice.below(m_dice.pick(most));
    for (int i = 0; i < numRows; ++i)
    {
        RefRow row;
        row.handle = std::to_wstring(i);
        row.tuples = i > 0 && m_dice.oneIn(4) ? m_dice.pickFrom(report.rows).tuples : randomTuples();
        if (m_dice.oneIn(10))
            row.countsInSums = m_dice.oneIn(4) ? 2 : 0;
        report.rows.push_back(row);
    }
    for (RefRow& row : report.rows)
        report.order.push_back(&row);
    if (!report.rows.empty())
        report.lastChild = &report.rows.back();
}

std::vector<RefTuple> RandomReport::randomTuples()
{
    std::vector<RefTuple> tuples;
    for (const Column& column : m_columns)
    {
        if (m_dice.percent(column.percentMissing))
            continue;
        tuples.push_back(RefTuple{ column.token, m_dice.pickFrom(column.values), m_dice.oneIn(15) ? 1 : 0 });
        if (m_dice.oneIn(30))
            tuples.push_back(RefTuple{ L"%SumBy:" + column.token, m_dice.pickFrom(column.values), 0 });
    }
    if (!m_formulas.empty() && m_dice.oneIn(30))
        tuples.push_back(RefTuple{ m_dice.pickFrom(m_formulas), randomValue(m_dice.below(kNumKinds)), 0 });
    return tuples;
}

void RandomReport::addLevels(RefReport& report)
{
    const int depths[] = { 1, 2, 2, 2, 2, 3, 3, 3, 3, 4, 4, 5 };
    const int numLevels = m_dice.oneIn(200) ? 0 : m_dice.pick(depths);
    std::vector<RefReport::SectionPtr>* siblings = &report.root.children;
    for (int level = 0; level < numLevels; ++level)
    {
        const RefReport::SectionPtr section = header(level, numLevels);
        siblings->push_back(section);
        if (m_dice.percent(level + 1 < numLevels ? 65 : 10))
            siblings->push_back(footer(section->type));
        if (m_dice.oneIn(20))
        {
            siblings->push_back(header(level, numLevels));
            siblings->back()->children.push_back(footer(section->type));
        }
        siblings = &section->children;
    }
}

RefReport::SectionPtr RandomReport::header(int level, int numLevels)
{
    const bool isDeepest = level + 1 == numLevels;
    RefSection::Type type = isDeepest    ? RefSection::kDetails
                            : level == 0 ? RefSection::kReportHeader
                                         : RefSection::kGroupHeader;
    if (m_dice.oneIn(10))
        type = m_dice.pick(kAnyType);
    auto section = std::make_shared<RefSection>(type);
    if (m_dice.percent(isDeepest ? 12 : level == 0 ? 20 : 80))
        addTuple(*section, list(L"%GroupBy:", false));
    for (int i = m_dice.below(3); i > 0; --i)
        addTuple(*section, anyToken());
    if (m_dice.oneIn(3))
        addTuple(*section, list(m_dice.oneIn(2) ? L"%SortAscBy:" : L"%SortDescBy:", true));
    for (int i = m_dice.below(7); i > 4; --i)
        addTuple(*section, formula());
    if (m_dice.oneIn(12))
        addTuple(*section, list(m_dice.oneIn(2) ? L"%GroupBy:" : L"%SortDescBy:", true));
    if (m_dice.oneIn(15))
        addTuple(*section, L"%SumBy:" + columnToken());
    if (m_dice.oneIn(6))
        repeatTuple(*section);
    return section;
}

RefReport::SectionPtr RandomReport::footer(RefSection::Type headerType)
{
    RefSection::Type type =
        headerType == RefSection::kReportHeader ? RefSection::kReportFooter : RefSection::kGroupFooter;
    if (m_dice.oneIn(10))
        type = m_dice.pick(kAnyType);
    auto section = std::make_shared<RefSection>(type);
    for (int i = m_dice.below(3); i > 0; --i)
        addTuple(*section, L"%SumBy:" + columnToken());
    if (m_dice.oneIn(2))
        addTuple(*section, anyToken());
    if (m_dice.oneIn(4))
    {
        const std::wstring prefix = m_dice.oneIn(3) ? L"" : L"%SumBy:";
        addTuple(*section, prefix + formula());
    }
    if (m_dice.oneIn(20))
        addTuple(*section, list(m_dice.oneIn(2) ? L"%GroupBy:" : L"%SortAscBy:", true));
    if (m_dice.oneIn(8))
        repeatTuple(*section);
    return section;
}

void RandomReport::addTuple(RefSection& section, const std::wstring& token)
{
    RefTuple tuple = { token, RefValue(), 0 };
    switch (m_dice.below(6))
    {
        case 0: break;
        case 1: tuple.value = RefValue::ofText(L""); break;
        case 2: tuple.value = RefValue::ofInt(0); break;
        case 3: tuple.value = RefValue::ofDouble(0.0); break;
        default: tuple.value = randomValue(m_dice.below(kNumKinds)); break;
    }
    section.tuples.push_back(tuple);
}

void RandomReport::repeatTuple(RefSection& section)
{
    if (!section.tuples.empty())
        addTuple(section, std::wstring(m_dice.pickFrom(section.tuples).token));
}

std::wstring RandomReport::columnToken()
{
    return m_dice.pickFrom(m_columns).token;
}

std::wstring RandomReport::anyToken()
{
    return m_dice.oneIn(6) ? m_dice.pick(kTokens).token : columnToken();
}

std::wstring RandomReport::list(const std::wstring& prefix, bool isSorting)
{
    const wchar_t* const commas[] = { L",", L",", L",", L" , ", L",  ", L",,", L",\t" };
    std::wstring text = prefix + (m_dice.oneIn(30) ? L"," : m_dice.oneIn(10) ? L" " : L"");
    const int numElements = m_dice.oneIn(40) ? 0 : 1 + m_dice.below(3);
    for (int i = 0; i < numElements; ++i)
    {
        if (i > 0)
            text += m_dice.pick(commas);
        if (i > 0 && isSorting && m_dice.oneIn(2))
            text += m_dice.oneIn(2) ? L"%SortAscBy:" : L"%SortDescBy:";
        text += !m_formulas.empty() && m_dice.oneIn(8) ? m_dice.pickFrom(m_formulas) : columnToken();
    }
    return text + (m_dice.oneIn(30) ? L"," : L"");
}

// The request with its prefix. The same formula comes back in other sections, where the rows already carry its value.
std::wstring RandomReport::formula()
{
    if (!m_formulas.empty() && m_dice.oneIn(3))
        return m_dice.pickFrom(m_formulas);
    std::wstring text = m_dice.oneIn(10) ? formulaOperand(0) : formulaSum(2);
    if (m_dice.oneIn(12))
        text = L"x=" + text + L";x*2";
    if (m_dice.oneIn(25))
    {
        const int place = m_dice.below(static_cast<int>(text.size()) + 1);
        text.insert(static_cast<std::size_t>(place), m_dice.oneIn(2) ? L")" : L"/");
    }
    m_formulas.push_back(L"%Formula:" + text);
    return m_formulas.back();
}

std::wstring RandomReport::formulaSum(int depth)
{
    const wchar_t* const signs[] = { L"+", L"-", L"*", L"/", L" * ", L" + " };
    std::wstring text = formulaOperand(depth);
    for (int i = 1 + m_dice.below(2); i > 0; --i)
    {
        text += m_dice.pick(signs);
        text += formulaOperand(depth);
    }
    return text;
}

std::wstring RandomReport::formulaOperand(int depth)
{
    const wchar_t* const numbers[] = { L"2", L"1000", L"0.5", L"1e3", L"-1", L"7850", L"0", L"1e39" };
    if (depth > 0 && m_dice.oneIn(4))
        return L"(" + formulaSum(depth - 1) + L")";
    if (m_dice.oneIn(4))
        return m_dice.pick(numbers);
    return anyToken();
}
