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
// Units: numbers are in the model's internal units, millimetre, kilogram, radian and what follows from them, or have
// no unit at all. A value does not know which; its token does, and VorBomTemplateUnits turns one into the text of the
// other.
//
// Memory: a value is a pointer and a kind, and its payload lies in a cell of VorBomPayloadCells. Once it has a cell, a
// value keeps it through every set(), whatever the kind. Where the system has no memory left, std::bad_alloc passes
// through: a value under construction then does not come to be, and one that is being set stays empty if it was empty.
//
// Threads: one value is for one thread at a time. Copies may go to other threads, also those of texts, which share
// their characters; a value may be destroyed on another thread than the one that made it.
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
    // A type that is none of the four is called corrupt. Nothing here makes one; a stray write into a value may.
    enum eBomDataValueType : int
    {
        kUnknownData = 0, // no payload
        kIntData = 1,     // one int
        kDoubleData = 2,  // one double
        kStringData = 3   // one VorString
    };

    // An empty value takes no memory. The others copy what they are given; a text is copied by sharing its characters.
    VorBomDataValue() noexcept = default;
    VorBomDataValue(int value) { create<int>(VorBomPayloadCells::takeOne(), kIntData, value); }
    VorBomDataValue(double value) { create<double>(VorBomPayloadCells::takeOne(), kDoubleData, value); }
    VorBomDataValue(const VorString& value) { create<VorString>(VorBomPayloadCells::takeOne(), kStringData, value); }

    // Reports a type that is none of the four; the copy is empty then.
    VorBomDataValue(const VorBomDataValue& other) { copy(other, VorBomPayloadCells::takeOne); }

    // Make the same values with payloads in `cells`.
    // The cells need not outlive the value: each belongs to the value from then on, which gives it back by itself.
    //   VorBomPayloadCells cells(2);
    //   VorBomDataValue weight(12.5, cells), length(6000.0, cells);    // their numbers lie side by side
    // A copy of an empty value takes no cell.
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
    //   VorBomDataValue first(12.5), second(std::move(first));
    //   first.type()   ->  kUnknownData
    VorBomDataValue(VorBomDataValue&& other) noexcept : m_pData(other.m_pData), m_nType(other.m_nType)
    {
        other.m_nType = kUnknownData;
        other.m_pData = nullptr;
    }

    // Copies the payload.
    // On purpose: assigning an empty value leaves the target exactly as it was, it does not clear it; callers overlay
    // values and rely on it. Reports and leaves the target alone as well when the other type is none of the four.
    // Pinned by VorBomDataValueTest.AssigningEmptyKeepsTheTarget.
    // A target that has a cell keeps it, whatever it held: no memory is given back and taken again.
    //   VorBomDataValue shown(12.5);
    //   shown = VorBomDataValue(L"12.5 kg");
    //   shown = VorBomDataValue();
    //   shown.asString()   ->  "12.5 kg"
    VorBomDataValue& operator=(const VorBomDataValue& other);

    // Takes the payload over; `other` is empty afterwards. An empty `other` leaves the target alone, as above, so that
    // assigning a temporary means the same as assigning a named value. Assigning a value to itself changes nothing.
    // Other than in copying, the target's cell is given back: the payload that it takes over has one.
    VorBomDataValue& operator=(VorBomDataValue&& other) noexcept;

    // Gives the payload's cell back. A corrupt type is reported, and its cell is lost rather than freed by guess.
    ~VorBomDataValue()
    {
        if (m_nType != kUnknownData)
            empty();
    }

    // Replace payload and type. The text may be this value's own.
    // A pointer that data() gave earlier is not to be used after a change of kind, although the cell is the same one:
    // what lies in it is another type. A value of a corrupt type is reported, its payload left where it is, and a new
    // cell taken.
    //   VorBomDataValue total(3);
    //   total.set(2147483648.0);
    //   total.type()   ->  kDoubleData
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

    // The payload, to be cast by type(): int*, double* or VorString*; null for an empty value. It lives until this
    // value changes. Owned by this value and never to be freed by the caller. What is written through the pointer must
    // be of the kind that type() names; the value does not notice anything else.
    //   VorBomDataValue count(12);
    //   ++*static_cast<int*>(count.data());
    //   count.asString()   ->  "13"
    void* data() const { return m_pData; }
    eBomDataValueType type() const { return m_nType; }

    // Sign of this minus other. Doubles closer than 1e-6 are equal, whatever their size, and so is a NaN and anything;
    // texts compare as VorString::compare says. Reports and answers -1 for unlike kinds, 0 for two empty values.
    // Unlike kinds are less both ways round, so a list of mixed kinds has no order: whoever sorts must end, and keep
    // every element, whatever the answers are (vorStableMergeSort). Nor are close doubles a proper order: of 0, 0.8e-6
    // and 1.6e-6 each neighbour is equal to the next, but the first is less than the last.
    //   VorBomDataValue(2.0).compare(VorBomDataValue(2.0000001))   ->  0
    //   VorBomDataValue(L"B2").compare(VorBomDataValue(L"B10"))    ->  1, by their characters
    //   VorBomDataValue(5).compare(VorBomDataValue(5.0))           ->  -1, and "false" is reported
    int compare(const VorBomDataValue& other) const
    {
        const bool isSameText = m_nType == kStringData && other.m_nType == kStringData &&
                                textValue().sharesTextWith(other.textValue()); // as in most rows of a group
        return isSameText ? 0 : compareAnew(other);
    }

    // Compares two numbers as compare() does two values that hold them.
    // Here, so that what ranks whole columns (VorBomRanks) and what compares two values cannot come to differ.
    // Infinities of one sign are equal to each other.
    //   VorBomDataValue::compareDoubles(1e9, 1e9 + 0.001)   ->  -1: the tolerance does not grow with the numbers
    static int compareDoubles(double first, double second);

    // Natural order of two texts, "B2" before "B10", as VorString::compareWithNumbers says. Reports and answers -1 for
    // unlike kinds, 0 for two numbers or two empty values.
    // For tokens whose sort type is VorBomDataToken::kSortAlphanumeric. Numbers are reported since
    // natural order is about the digits within a text.
    //   VorBomDataValue(L"B2").compareAlphanumeric(VorBomDataValue(L"B10"))   ->  -1
    int compareAlphanumeric(const VorBomDataValue& other) const;

    // "%d" of an int, "%g" of a double, the text itself, nothing for an empty value. Units are not applied here.
    // What list() shows. In a report doubles read otherwise: VorBomTemplateUnits::getDisplayString makes their texts.
    // A corrupt type reads as empty text and is not reported here.
    //   VorBomDataValue(-3).asString()           ->  "-3"
    //   VorBomDataValue(1234567.0).asString()    ->  "1.23457e+06"
    VorString asString() const;

protected:
    // Frees the payload; the value is empty afterwards. A corrupt type is reported and its payload not touched.
    void empty();

private:
    // Tests make values of corrupt types through it.
    friend struct VorBomDataValueAccess;

    // Each reads the payload as one kind: only after type() was asked, and never of an empty value.
    int intValue() const { return *static_cast<const int*>(m_pData); }
    double doubleValue() const { return *static_cast<const double*>(m_pData); }
    const VorString& textValue() const { return *static_cast<const VorString*>(m_pData); }
    // compare() for values that do not share one text; all that is reported is reported here.
    int compareAnew(const VorBomDataValue& other) const;
    // Swaps payloads and kinds; nothing is copied.
    void exchange(VorBomDataValue& other) noexcept;
    // set() for any kind of present payload, an empty or corrupt one too.
    void replaceBy(double value);
    void replaceBy(VorString&& value);
    // The one ends the payload's life and leaves its cell, the other answers a cell without a living payload. Between
    // freeCell() and the payload that is then made in it the type is out of date: nothing that may throw may stand
    // there.
    void endPayload();
    void* freeCell();

    static_assert(sizeof(int) <= VorBomPayloadCells::kCellSize && sizeof(VorString) <= VorBomPayloadCells::kCellSize,
                  "a value keeps its cell when its kind changes");

    // Give a value that is empty its payload.
    // create() also replaces a number, whose life needs no ending; it would leak a text.
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
