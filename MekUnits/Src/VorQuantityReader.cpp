// One text, 7'-6 1/2" in a reader of lengths, from its first character to its last:
//   number 7, mark '      feet, since more follows: 7 is whole, and 84 inches are carried
//   separator -
//   number 6 1/2, mark "  inches, below 12; the last number, so that it may have a fraction
//   84 and 6 1/2          are 90.5 inches in the unit of the smallest mark, which is 2298.7 mm
// A text without marks, "7.5 ft", is a number and a unit; the reader's own unit is taken when none stands there.
#include "VorQuantityReader.h"

#include "MekRoots/Exp/VorAssert.h"
#include "MekRoots/Exp/VorCharacters.h"
#include "MekRoots/Exp/VorUnitTransform.h"
#include "VorDecimalNumber.h"
#include "VorQuantityNumber.h"
#include "VorUnitDefinition.h"

#include <cmath>
#include <cstdint>
#include <cwchar>
#include <string>

namespace
{
const wchar_t kSourcePath[] = L"MekUnits/Src/VorQuantityReader"; // named in assertion reports

// Why a text is no quantity; explanationOf() has the words.
enum eFault
{
    kNoFault,
    kNoQuantity,
    kGrouped,
    kUnknownUnit,
    kOtherKind,
    kNoMark,
    kInnerNotWhole,
    kInnerTooLarge,
    kTooLarge
};

// A mark behind a number, in each of its spellings, and how many of the smallest marked unit it stands for: a foot is
// 12 inches, a degree 3600 seconds.
struct Mark
{
    const wchar_t* characters;
    unsigned int size;
};
struct Marks
{
    int unit; // that of the smallest mark
    const Mark* pMarks;
    int numMarks; // from the largest to the smallest
};
const wchar_t kSingleMarks[] = L"'\u2019\u2032";
const wchar_t kDoubleMarks[] = L"\"\u201D\u2033";
const wchar_t kDegreeMarks[] = L"\u00B0\u00BA"; // the degree sign and the ordinal that some keyboards have for it
const Mark kLengthMarks[] = { { kSingleMarks, 12 }, { kDoubleMarks, 1 } };
const Mark kAngleMarks[] = { { kDegreeMarks, 3600 }, { kSingleMarks, 60 }, { kDoubleMarks, 1 } };

// No marks for the other kinds.
Marks marksOf(VorUnitsTransformArray::eSystems system)
{
    const int feetAndInches = 13;
    const int degreesAndMinutes = 2008;
    switch (system)
    {
        case VorUnitsTransformArray::kDistance: return { feetAndInches, kLengthMarks, 2 };
        case VorUnitsTransformArray::kAngle: return { degreesAndMinutes, kAngleMarks, 3 };
        default: return { 0, nullptr, 0 };
    }
}

// A blank of typed or of printed text, where it keeps a number and its unit on one line.
bool isAnyBlank(wchar_t character)
{
    return VorCharacters::isBlank(character) || character == L'\u00A0';
}

void skipBlanks(const wchar_t*& p)
{
    while (isAnyBlank(*p))
        ++p;
}

// One quantity from its first character to its last.
class Parser
{
public:
    Parser(const VorUnitDefinition& unit, const VorString& text)
        : m_unit(unit), m_marks(marksOf(unit.system)), m_p(text.getStringW()), m_pEnd(m_p + text.length())
    {
    }

    // Sets `value` only where nothing is wrong.
    eFault parse(double& value)
    {
        if (m_p + std::wcslen(m_p) != m_pEnd)
            return kNoQuantity; // a zero character would hide what is behind it
        skipBlanks(m_p);
        const bool isNegative = *m_p == L'-';
        if (isNegative || *m_p == L'+')
            ++m_p;
        double size = 0;
        const eFault fault = parseSize(size);
        if (fault != kNoFault)
            return fault;
        if (!std::isfinite(size))
            return kTooLarge;
        value = isNegative ? -size : size;
        return kNoFault;
    }

    // What stands behind the number; the unit, where that is at fault.
    const std::wstring& symbol() const { return m_symbol; }

    // Whether a unit or marks stood in the text that was parsed.
    bool namesUnit() const { return m_hasMarks || !m_symbol.empty(); }

private:
    // A comma may divide thousands or begin the decimals. As nobody can tell which, it is refused.
    eFault parseSize(double& size)
    {
        VorQuantityNumber number;
        if (!number.scan(m_p))
            return kNoQuantity;
        if (*m_p == L',')
            return kGrouped;
        skipBlanks(m_p);
        return findMark(0) < m_marks.numMarks ? parseMarked(number, size) : parsePlain(number, size);
    }

    // plain := number [ unit ]
    // A digit in the place of the unit belongs to a grouped number, "1 234". The format of the transform is of no
    // matter, as nothing is shown.
    eFault parsePlain(const VorQuantityNumber& number, double& size)
    {
        m_symbol = m_p;
        while (!m_symbol.empty() && isAnyBlank(m_symbol.back()))
            m_symbol.pop_back();
        if (!m_symbol.empty() && VorCharacters::isDigit(m_symbol[0]))
            return kGrouped;
        const VorUnitDefinition* const pUnit =
            m_symbol.empty() ? &m_unit : VorUnitsTransformArray::findUnit(VorString(m_symbol.c_str()));
        if (pUnit == nullptr)
            return kUnknownUnit;
        if (pUnit->system != m_unit.system)
            return kOtherKind;
        if (pUnit->layout != VorUnitDefinition::kPlainNumber)
            return kNoMark;
        size = VorUnitTransform(pUnit->number, 0).toInternalUnits(number.toDouble(0));
        return kNoFault;
    }

    // marked := number mark { [ blanks | '-' ] number mark }, each mark smaller than the one before it
    // What is carried stays within 64 bits: 15 digits of degrees, the most that isWhole() takes, are 3.6e18 seconds.
    eFault parseMarked(VorQuantityNumber number, double& size)
    {
        m_hasMarks = true;
        int mark = findMark(0);
        std::uint64_t carried = 0; // what the larger marks were, in units of this one
        ++m_p;
        for (skipSeparator(); *m_p != 0; skipSeparator())
        {
            if (!number.isWhole())
                return kInnerNotWhole;
            carried += number.wholeNumber();
            number = VorQuantityNumber();
            if (!number.scan(m_p))
                return kNoQuantity;
            skipBlanks(m_p);
            const int next = findMark(mark + 1);
            if (next == m_marks.numMarks)
                // "7' 6" lacks a mark; behind the 6 of "7' 6x" stands something else.
                return *m_p == 0 ? kNoMark : kNoQuantity;
            ++m_p;
            const unsigned int ratio = m_marks.pMarks[mark].size / m_marks.pMarks[next].size;
            if (!(number.toDouble(0) < ratio))
                return kInnerTooLarge;
            carried *= ratio;
            mark = next;
        }
        size = toModel(number.toDouble(carried), m_marks.pMarks[mark].size);
        return kNoFault;
    }

    // The first mark from `first` on that stands here; the number of marks when none does. The end of the text is asked
    // for apart, as std::wcschr finds a zero in every text.
    int findMark(int first) const
    {
        for (int i = first; i < m_marks.numMarks; ++i)
            if (*m_p != 0 && std::wcschr(m_marks.pMarks[i].characters, *m_p) != nullptr)
                return i;
        return m_marks.numMarks;
    }

    // Passes over blanks and one minus: "7' - 6\"". A minus at the end is no separator, as nothing follows it.
    void skipSeparator()
    {
        skipBlanks(m_p);
        const wchar_t* p = m_p;
        if (*p == L'-')
            skipBlanks(++p);
        if (*p != 0)
            m_p = p;
    }

    // On the decimal digits, as conversions are: 7.1' is 85.2", which a product of doubles misses. A number that is not
    // finite has no digits.
    double toModel(double number, unsigned int size) const
    {
        if (!std::isfinite(number))
            return number;
        VorDecimalNumber smallest(number);
        smallest.multiply(size);
        return VorUnitTransform(m_marks.unit, 0).toInternalUnits(smallest.toDouble());
    }

    const VorUnitDefinition& m_unit;
    const Marks m_marks;
    const wchar_t* m_p; // what is not read yet, up to a zero character
    const wchar_t* m_pEnd;
    std::wstring m_symbol;
    bool m_hasMarks = false;
};

const VorUnitDefinition& unitOrMillimetre(int unit)
{
    const VorUnitDefinition* const pUnit = VorUnitsTransformArray::findUnit(unit);
    if (pUnit != nullptr)
        return *pUnit;
    VorAssert::vorAssert(L"isUnit( unit )", kSourcePath, __LINE__);
    return *VorUnitsTransformArray::findUnitOfModel(VorUnitsTransformArray::kDistance);
}

// For the end of a message, and so without a capital letter and a full stop.
std::wstring explanationOf(eFault fault, const std::wstring& symbol)
{
    switch (fault)
    {
        case kGrouped: return L"digits are not grouped, and the decimal sign is a point";
        case kUnknownUnit: return L"\"" + symbol + L"\" is no unit";
        case kOtherKind: return L"\"" + symbol + L"\" is a unit of another kind";
        case kNoMark: return L"every number needs its mark";
        case kInnerNotWhole: return L"only the last number may have decimals or a fraction";
        case kInnerTooLarge: return L"inches after feet stay below 12, minutes and seconds below 60";
        case kTooLarge: return L"the number is too large";
        case kNoFault:
        case kNoQuantity: break;
    }
    return std::wstring();
}
}

VorQuantityReader::VorQuantityReader(int unit) : m_pUnit(&unitOrMillimetre(unit)) {}

int VorQuantityReader::read(const VorString& text, double& value) const
{
    int namesUnit = 0;
    return read(text, value, namesUnit);
}

int VorQuantityReader::read(const VorString& text, double& value, int& namesUnit) const
{
    Parser parser(*m_pUnit, text);
    if (parser.parse(value) != kNoFault)
        return 0;
    namesUnit = parser.namesUnit() ? 1 : 0;
    return 1;
}

// Reads the text a second time, so that read() need not keep what only a message wants.
VorString VorQuantityReader::explain(const VorString& text) const
{
    Parser parser(*m_pUnit, text);
    double value = 0;
    const eFault fault = parser.parse(value);
    return VorString(explanationOf(fault, parser.symbol()).c_str());
}
