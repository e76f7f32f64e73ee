// The typed value of one datum: a whole number, a number, a text, or nothing yet.
//
//   VorBomDataValue weight(12.5);
//   weight.type()      ->  kDoubleData
//   weight.asString()  ->  "12.5"
//
//   kind            made from      data() is      asString()
//   kIntData        12             int*           "12"
//   kDoubleData     12.5           double*        "12.5"
//   kStringData     a text         VorString*     the text
//   kUnknownData    nothing        null           ""
//
// Invariants:
//   1. type() is kUnknownData exactly when data() is null; a value without type is called empty.
//   2. The payload is a block of its own, owned by this value and shared with no other; copies are independent.
//   3. Values of different kinds are never converted to each other.
//
// Misuse is reported as "false" from "MekBomEngine/Src/VorBomDataValue" and survived with the answers stated below.
#pragma once

#include "VorBomPayloadCells.h"

#include "MekRoots/Exp/MekExport.h"
#include "MekRoots/Exp/VorString.h"

#include <new>
#include <utility>

class MEK_BOM_API VorBomDataValue
{
public:
    // The numbers are part of the contract: catalogue, sorting and sums switch on them.
    enum eBomDataValueType : int
    {
        kUnknownData = 0, // no payload
        kIntData = 1,     // one int
        kDoubleData = 2,  // one double
        kStringData = 3   // one VorString
    };

    VorBomDataValue() noexcept = default;
    VorBomDataValue(int value) { create<int>(VorBomPayloadCells::takeOne(), kIntData, value); }
    VorBomDataValue(double value) { create<double>(VorBomPayloadCells::takeOne(), kDoubleData, value); }
    VorBomDataValue(const VorString& value) { create<VorString>(VorBomPayloadCells::takeOne(), kStringData, value); }

    // Reports a type that is none of the four; the copy is empty then.
    VorBomDataValue(const VorBomDataValue& other) { copy(other, VorBomPayloadCells::takeOne); }

    // Make the same values with payloads in `cells`.
    VorBomDataValue(int value, VorBomPayloadCells& cells) { create<int>(cells.take(), kIntData, value); }
    VorBomDataValue(double value, VorBomPayloadCells& cells) { create<double>(cells.take(), kDoubleData, value); }
    VorBomDataValue(const VorString& value, VorBomPayloadCells& cells)
    {
        create<VorString>(cells.take(), kStringData, value);
    }
    VorBomDataValue(const VorBomDataValue& other, VorBomPayloadCells& cells)
    {
        copy(other, [&cells] { return cells.take(); });
    }

    // Takes the payload over; `other` is empty afterwards.
    VorBomDataValue(VorBomDataValue&& other) noexcept : m_pData(other.m_pData), m_nType(other.m_nType)
    {
        other.m_nType = kUnknownData;
        other.m_pData = nullptr;
    }

    // Copies the payload.
    // On purpose: assigning an empty value leaves the target exactly as it was, it does not clear it; callers overlay
    // values and rely on it. Reports and leaves the target alone as well when the other type is none of the four.
    // Pinned by VorBomDataValueTest.AssigningEmptyKeepsTheTarget.
    VorBomDataValue& operator=(const VorBomDataValue& other);

    // Takes the payload over; `other` is empty afterwards. An empty `other` leaves the target alone, as above, so that
    // assigning a temporary means the same as assigning a named value. Assigning a value to itself changes nothing.
    VorBomDataValue& operator=(VorBomDataValue&& other) noexcept;

    ~VorBomDataValue()
    {
        if (m_nType != kUnknownData)
            empty();
    }

    // Replace payload and type. The text may be this value's own.
    void set(int value);
    void set(double value)
    {
        if (m_nType == kDoubleData)
            *static_cast<double*>(m_pData) = value;
        else
            replaceBy(value);
    }
    void set(const VorString& value);
    void set(VorString&& value) // takes the text over
    {
        if (m_nType == kIntData || m_nType == kDoubleData)
            create<VorString>(m_pData, kStringData, std::move(value));
        else
            replaceBy(std::move(value));
    }

    // The payload, to be cast by type(): int*, double* or VorString*; null for an empty value. It lives until this value
    // changes.
    void* data() const { return m_pData; }
    eBomDataValueType type() const { return m_nType; }

    // Sign of this minus other. Doubles closer than 1e-6 are equal, whatever their size, and so is a NaN and anything;
    // texts compare as VorString::compare says. Reports and answers -1 for unlike kinds, 0 for two empty values.
    int compare(const VorBomDataValue& other) const
    {
        const bool isSameText = m_nType == kStringData && other.m_nType == kStringData &&
                                textValue().sharesTextWith(other.textValue()); // as in most rows of a group
        return isSameText ? 0 : compareAnew(other);
    }

    // Compares two numbers as compare() does two values that hold them.
    static int compareDoubles(double first, double second);

    // Natural order of two texts, "B2" before "B10", as VorString::compareWithNumbers says. Reports and answers -1 for
    // unlike kinds, 0 for two numbers or two empty values.
    int compareAlphanumeric(const VorBomDataValue& other) const;

    // "%d" of an int, "%g" of a double, the text itself, nothing for an empty value. Units are not applied here.
    VorString asString() const;

protected:
    // Frees the payload; the value is empty afterwards. A corrupt type is reported and its payload not touched.
    void empty();

private:
    friend struct VorBomDataValueAccess;

    int intValue() const { return *static_cast<const int*>(m_pData); }
    double doubleValue() const { return *static_cast<const double*>(m_pData); }
    const VorString& textValue() const { return *static_cast<const VorString*>(m_pData); }
    int compareAnew(const VorBomDataValue& other) const;
    void exchange(VorBomDataValue& other) noexcept;
    void replaceBy(double value);
    void replaceBy(VorString&& value);
    void endPayload();
    void* freeCell();

    static_assert(sizeof(int) <= VorBomPayloadCells::kCellSize && sizeof(VorString) <= VorBomPayloadCells::kCellSize,
                  "a value keeps its cell when its kind changes");

    // Give a value that is empty its payload.
    template <class Payload, class Value>
    void create(void* pCell, eBomDataValueType type, Value&& value)
    {
        m_pData = ::new (pCell) Payload(std::forward<Value>(value));
        m_nType = type;
    }
    template <class TakeCell>
    void copy(const VorBomDataValue& other, TakeCell takeCell)
    {
        switch (other.m_nType)
        {
            case kIntData: create<int>(takeCell(), kIntData, other.intValue()); break;
            case kDoubleData: create<double>(takeCell(), kDoubleData, other.doubleValue()); break;
            case kStringData: create<VorString>(takeCell(), kStringData, other.textValue()); break;
            default: *this = other; break; // empty, or corrupt and reported
        }
    }

    void* m_pData = nullptr;
    eBomDataValueType m_nType = kUnknownData;
};
