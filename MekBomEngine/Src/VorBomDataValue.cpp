// Payloads of all kinds live in cells of one size, so that a value keeps its cell when its kind changes, as a number of
// a report does when it is shown:
//   VorBomDataValue value(12.5)       takes a cell and makes the double in it
//   value.set(VorString(L"12.5"))     makes the text in the same cell; the cell is not given back and taken again
//   value.set(13)                     ends the text's life and makes the int in its place
//   value = VorBomDataValue()         changes nothing, on purpose
#include "VorBomDataValue.h"

#include "MekRoots/Exp/VorAssert.h"
#include "MekRoots/Exp/VorNumberText.h"

#include <cmath>
#include <utility>

namespace
{
const wchar_t kSourcePath[] = L"MekBomEngine/Src/VorBomDataValue";

// Doubles closer than this compare equal. Absolute, whatever their size; grouping in existing reports depends on it.
const double kEqualTolerance = 1e-6;

void reportMisuse(int line)
{
    VorAssert::vorAssert(L"false", kSourcePath, line);
}

bool holdsPayload(int type)
{
    return type >= VorBomDataValue::kIntData && type <= VorBomDataValue::kStringData;
}

int compareInts(int first, int second)
{
    if (first == second)
        return 0;
    return first < second ? -1 : 1;
}

VorString textOf(int value)
{
    wchar_t text[VorNumberText::kIntegerRoom];
    return VorString(text, VorNumberText::writeInteger(value, text));
}

VorString textOf(double value)
{
    wchar_t text[VorNumberText::kGeneralRoom];
    return VorString(text, VorNumberText::writeGeneral(value, text));
}
}

// Through set(), which decides whether the present cell serves and ends a text's life where one is replaced.
VorBomDataValue& VorBomDataValue::operator=(const VorBomDataValue& other)
{
    if (this == &other)
        return *this;
    switch (other.m_nType)
    {
        case kUnknownData: break;
        case kIntData: set(other.intValue()); break;
        case kDoubleData: set(other.doubleValue()); break;
        case kStringData: set(other.textValue()); break;
        default: reportMisuse(__LINE__); break;
    }
    return *this;
}

// A value without payload, be it empty or corrupt, is assigned as a named one is: there is nothing to take over, and
// both ways of assigning must mean the same.
VorBomDataValue& VorBomDataValue::operator=(VorBomDataValue&& other) noexcept
{
    if (this == &other)
        return *this;
    if (!holdsPayload(other.m_nType))
        return *this = static_cast<const VorBomDataValue&>(other); // keeps this value, reports a corrupt type
    empty();
    exchange(other);
    return *this;
}

void VorBomDataValue::set(int value)
{
    ::new (freeCell()) int(value);
    m_nType = kIntData;
}

void VorBomDataValue::set(const VorString& value)
{
    set(VorString(value)); // the argument may be this value's own text
}

// The order is that of whole numbers, of doubles with a tolerance, or of characters: "10" is less than "9" as a text.
int VorBomDataValue::compareAnew(const VorBomDataValue& other) const
{
    if (m_nType != other.m_nType)
    {
        reportMisuse(__LINE__); // kinds are never converted
        return -1;
    }
    switch (m_nType)
    {
        case kIntData: return compareInts(intValue(), other.intValue());
        case kDoubleData: return compareDoubles(doubleValue(), other.doubleValue());
        case kStringData: return VorString::compare(textValue(), other.textValue());
        default: break;
    }
    reportMisuse(__LINE__); // empty values have no order
    return 0;
}

int VorBomDataValue::compareDoubles(double first, double second)
{
    if (std::fabs(first - second) < kEqualTolerance)
        return 0;
    // Two equal infinities come here as well: their difference is a NaN, which is less than nothing.
    if (second > first)
        return -1;
    return first > second ? 1 : 0; // 0 for a NaN, which is neither
}

int VorBomDataValue::compareAlphanumeric(const VorBomDataValue& other) const
{
    if (m_nType != other.m_nType)
    {
        reportMisuse(__LINE__);
        return -1;
    }
    if (m_nType == kStringData)
        return VorString::compareWithNumbers(textValue(), other.textValue());
    reportMisuse(__LINE__); // numbers have no digit runs
    return 0;
}

VorString VorBomDataValue::asString() const
{
    switch (m_nType)
    {
        case kIntData: return textOf(intValue());
        case kDoubleData: return textOf(doubleValue());
        case kStringData: return textValue();
        default: return VorString();
    }
}

// A corrupt type does not say whether there is a payload at all, so its cell is lost: a leak is better than freeing
// what may be no cell.
void VorBomDataValue::empty()
{
    if (m_nType == kUnknownData)
        return;
    endPayload();
    if (m_pData != nullptr && holdsPayload(m_nType))
        VorBomPayloadCells::release(m_pData);
    m_pData = nullptr;
    m_nType = kUnknownData;
}

void VorBomDataValue::replaceBy(double value)
{
    ::new (freeCell()) double(value);
    m_nType = kDoubleData;
}

void VorBomDataValue::replaceBy(VorString&& value)
{
    VorString text(std::move(value)); // the argument may be this value's own text
    ::new (freeCell()) VorString(std::move(text));
    m_nType = kStringData;
}

// Ends the payload's life and leaves its cell.
void VorBomDataValue::endPayload()
{
    if (m_nType == kStringData && m_pData != nullptr)
        static_cast<VorString*>(m_pData)->~VorString();
    else if (!holdsPayload(m_nType))
        reportMisuse(__LINE__); // what the payload is, nobody knows
}

// A cell for the next payload: the present one where there is one. Taking another is all that may throw here, and only
// a value that has none, or a corrupt type, takes one: it is empty then.
void* VorBomDataValue::freeCell()
{
    const bool keepsCell = m_pData != nullptr && holdsPayload(m_nType);
    if (keepsCell)
        endPayload();
    else
        empty();
    if (m_pData == nullptr)
        m_pData = VorBomPayloadCells::takeOne();
    return m_pData;
}

// What a move is made of: the value that is empty gets the payload, and the other is empty then.
void VorBomDataValue::exchange(VorBomDataValue& other) noexcept
{
    std::swap(m_nType, other.m_nType);
    std::swap(m_pData, other.m_pData);
}
