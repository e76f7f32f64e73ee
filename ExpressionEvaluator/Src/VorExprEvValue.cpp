// A formula's double is shown as "%f", and whoever wants it as a double gets what that text reads as. readBack gives it
// without the text. For 1/3:
//   1/3 * 1e6       333333.33...     so the text is 333333 millionths, "0.333333"
//   333333 / 1e6    0.333333         correctly rounded, as reading the text is
// The product may be off a little. Where it lies about in the middle between two whole numbers, as for 0.0000005, and
// where it is huge, the text is written and read after all.
#include "VorExprEvValue.h"

#include "MekRoots/Exp/VorAssert.h"
#include "MekRoots/Exp/VorMemoryControllerController.h"
#include "MekRoots/Exp/VorNumberText.h"

#include <cmath>
#include <cstddef>
#include <cwchar>

namespace
{
const wchar_t kSourcePath[] = L"ExpressionEvaluator/Src/VorExprEvValue"; // named in assertion reports
constexpr int kImpossibleTypeLine = 172;                                 // visible to callers

constexpr int kDecimals = 6;
constexpr double kParts = 1e6;

// Below this many millionths, the product with 1e6 is off by less than kTooCloseToCall.
constexpr double kMostParts = 17592186044416.0; // 2^44
constexpr double kTooCloseToCall = 1.0 / 256;

// 2^52: from here on there are only whole numbers, so that a sum with it is rounded to one, ties to even. A call of the
// library for that would cost as much as the rest.
constexpr double kWholeNumbers = 4503599627370496.0;

static_assert(VorNumberText::fixedRoom(kDecimals) < VorExprEvValue::kBufferLength, "every double has its text");

std::size_t cellSize(VorExprEvValue::eType type)
{
    switch (type)
    {
        case VorExprEvValue::kInteger: return sizeof(int);
        case VorExprEvValue::kDouble: return sizeof(double);
        case VorExprEvValue::kBoolean: return sizeof(unsigned char);
        default: return 0;
    }
}

// The long way, which gives what the short one must give wherever that may be taken.
double readBackText(double value)
{
    wchar_t text[VorNumberText::fixedRoom(kDecimals) + 1];
    text[VorNumberText::writeFixed(value, kDecimals, text)] = L'\0';
    const wchar_t* pEnd = nullptr;
    return VorNumberText::scanDouble(text, pEnd, 0);
}
}

VorExprEvValue& VorExprEvValue::operator=(const VorExprEvValue& other)
{
    if (this != &other)
        other.copyTo(*this);
    return *this;
}

void VorExprEvValue::setInteger(int value)
{
    *static_cast<int*>(makeCell(kInteger)) = value;
}

void VorExprEvValue::setDouble(double value)
{
    *static_cast<double*>(makeCell(kDouble)) = value;
}

void VorExprEvValue::setBoolean(int value)
{
    *static_cast<unsigned char*>(makeCell(kBoolean)) = value != 0 ? 1 : 0;
}

double VorExprEvValue::toNumber() const
{
    switch (m_nType)
    {
        case kInteger: return *static_cast<const int*>(m_pData);
        case kDouble: return *static_cast<const double*>(m_pData);
        default: return 0.0;
    }
}

int VorExprEvValue::toText(wchar_t* buffer) const
{
    switch (m_nType)
    {
        case kUnknown: std::wcscpy(buffer, L"UnkValue"); return 1;
        case kInteger: buffer[VorNumberText::writeInteger(*static_cast<const int*>(m_pData), buffer)] = L'\0'; return 1;
        case kDouble:
            buffer[VorNumberText::writeFixed(*static_cast<const double*>(m_pData), kDecimals, buffer)] = L'\0';
            return 1;
        case kBoolean:
            std::wcscpy(buffer, *static_cast<const unsigned char*>(m_pData) == 0 ? L"False" : L"True");
            return 1;
        default: break;
    }
    VorAssert::vorAssert(L"false", kSourcePath, kImpossibleTypeLine);
    return 0;
}

// NaNs and infinities go by their texts, too: for none of them is the product below kMostParts. Zero keeps its sign: a
// small negative number is "-0.000000", which reads as -0.0.
double VorExprEvValue::readBack(double value)
{
    const double parts = value * kParts;
    if (!(std::fabs(parts) < kMostParts))
        return readBackText(value);
    const double rounded = std::copysign(std::fabs(parts) + kWholeNumbers - kWholeNumbers, parts);
    if (std::fabs(std::fabs(parts - rounded) - 0.5) < kTooCloseToCall)
        return readBackText(value);
    return rounded / kParts;
}

// A cell is given back with the size it was asked for with, which only the type tells: it is reset last.
void VorExprEvValue::release()
{
    VorMemoryControllerController::deallocateArray(m_pData, 1, cellSize(m_nType));
    m_pData = nullptr;
    m_nType = kUnknown;
}

// A copy of an unknown value is unknown: the target gives its cell back.
void VorExprEvValue::copyTo(VorExprEvValue& target) const
{
    switch (m_nType)
    {
        case kInteger: target.setInteger(*static_cast<const int*>(m_pData)); break;
        case kDouble: target.setDouble(*static_cast<const double*>(m_pData)); break;
        case kBoolean: target.setBoolean(*static_cast<const unsigned char*>(m_pData)); break;
        default: target.release(); break;
    }
}

// A value that already has the type keeps its cell. A whole formula is evaluated through one value, so that it asks for
// memory once.
void* VorExprEvValue::makeCell(eType type)
{
    if (m_nType != type)
    {
        release();
        m_pData = VorMemoryControllerController::allocateArray(1, cellSize(type));
        m_nType = type;
    }
    return m_pData;
}
