// The typed value of one datum: a whole number, a number, a text, or nothing yet.
//
//   VorBomDataValue weight(12.5);
//   weight.type()      ->  kDoubleData
//   weight.asString()  ->  "12.5"
//
//   kind            made from      data() is      asString()
//   kIntData        12, 12LL       int*           "12"
//   kDoubleData     12.5           double*        "12.5"
//   kStringData     a text         VorString*     the text
//   kUnknownData    nothing        null           ""
//
// Invariants:
//   1. type() is kUnknownData exactly when data() is null; a value without type is called empty.
//   2. The payload is this value's own and shared with no other; copies are independent.
//   3. Values of different kinds are never converted to each other.
//
// Units: numbers are in the model's internal units, millimetre, kilogram, radian and what follows from them, or have
// no unit at all. A value does not know which; its token does, and VorBomTemplateUnits turns one into the text of the
// other.
//
// Memory: a payload lies in the value itself, next to its kind, and a text refers to characters that its copies share.
// So nothing here takes memory or throws, but for asString() and for whole numbers that neither an int nor a double
// holds, which pass std::bad_alloc on where the system has none left.
//
// Threads: one value is for one thread at a time. Copies may go to other threads, also those of texts, which share
// their characters; a value may be destroyed on another thread than the one that made it.
//
// Misuse is reported as "false" from "MekBomEngine/Src/VorBomDataValue" and survived with the answers stated below.
#pragma once

#include "MekRoots/Exp/MekExport.h"
#include "MekRoots/Exp/VorString.h"

#include <cstring>
#include <new>
#include <type_traits>
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

    // Copies what it is given; a text is copied by sharing its characters.
    VorBomDataValue() noexcept = default;
    VorBomDataValue(int value) noexcept : m_payload(value), m_nType(kIntData) {}
    VorBomDataValue(double value) noexcept : m_payload(value), m_nType(kDoubleData) {}
    VorBomDataValue(const VorString& value) noexcept : m_payload(value), m_nType(kStringData) {}

    // Whether numbers of this type are wider than an int, or may be larger: they become what can hold them.
    template <class Integer>
    static constexpr bool kIsWide =
        std::is_same_v<Integer, long> || std::is_same_v<Integer, long long> || std::is_same_v<Integer, unsigned int> ||
        std::is_same_v<Integer, unsigned long> || std::is_same_v<Integer, unsigned long long>;

    // Whole numbers of other widths, without the loss of a digit: an int where it fits one, else a double where that is
    // exactly the number, as it is up to 2 to the power of 53, else the text of its digits, which can be shown and
    // grouped by, but not added up.
    //   VorBomDataValue(12LL).type()                      ->  kIntData
    //   VorBomDataValue(3000000000U).type()               ->  kDoubleData
    //   VorBomDataValue(9007199254740993LL).asString()    ->  "9007199254740993", a text
    template <class Integer, std::enable_if_t<kIsWide<Integer>, int> = 0>
    VorBomDataValue(Integer value) : VorBomDataValue()
    {
        set(value);
    }

    // Reports a type that is none of the four; the copy is empty then.
    VorBomDataValue(const VorBomDataValue& other)
    {
        if (other.m_nType == kStringData)
            beginText(other.m_payload.text);
        else if (other.hasNoText())
            takeNumber(other);
        else
            *this = other; // corrupt and reported
    }

    // Takes the payload over; `other` is empty afterwards.
    //   VorBomDataValue first(12.5), second(std::move(first));
    //   first.type()   ->  kUnknownData
    VorBomDataValue(VorBomDataValue&& other) noexcept
    {
        if (other.m_nType == kStringData)
            beginText(std::move(other.m_payload.text));
        else
            takeNumber(other);
        other.m_nType = kUnknownData;
    }

    // Copies the payload.
    // On purpose: assigning an empty value leaves the target exactly as it was, it does not clear it; callers overlay
    // values and rely on it. Reports and leaves the target alone as well when the other type is none of the four.
    // Pinned by VorBomDataValueTest.AssigningEmptyKeepsTheTarget.
    //   VorBomDataValue shown(12.5);
    //   shown = VorBomDataValue(L"12.5 kg");
    //   shown = VorBomDataValue();
    //   shown.asString()   ->  "12.5 kg"
    VorBomDataValue& operator=(const VorBomDataValue& other);

    // Takes the payload over; `other` is empty afterwards. An empty `other` leaves the target alone, as above, so that
    // assigning a temporary means the same as assigning a named value. Assigning a value to itself changes nothing.
    VorBomDataValue& operator=(VorBomDataValue&& other) noexcept;

    // A corrupt type is reported.
    ~VorBomDataValue()
    {
        if (!hasNoText())
            empty();
    }

    // Replace payload and type. The text may be this value's own. A corrupt type is reported before it is replaced.
    // A pointer that data() gave earlier is not to be used after a change of kind: what lies there is of another type.
    //   VorBomDataValue total(3);
    //   total.set(2147483648.0);
    //   total.type()   ->  kDoubleData
    void set(int value)
    {
        endText();
        m_payload.whole = value;
        m_nType = kIntData;
    }
    void set(double value)
    {
        endText();
        m_payload.number = value;
        m_nType = kDoubleData;
    }
    template <class Integer, std::enable_if_t<kIsWide<Integer>, int> = 0>
    void set(Integer value) // as the constructor from one
    {
        if constexpr (std::is_signed_v<Integer>)
            setWide(value < 0,
                    value < 0 ? 0ULL - static_cast<unsigned long long>(value) : static_cast<unsigned long long>(value));
        else
            setWide(false, value);
    }
    void set(const VorString& value) { set(VorString(value)); } // the argument may be this value's own text
    void set(VorString&& value)                                 // takes the text over
    {
        VorString text(std::move(value));
        endText();
        beginText(std::move(text));
    }

    // The payload, to be cast by type(): int*, double* or VorString*; null for an empty value. It lies in this value, so
    // it lives until the value changes, moves or goes: the tuple of an item, until tuples are added. Never to be freed by
    // the caller. What is written through the pointer must be of the kind that type() names; the value does not notice
    // anything else.
    //   VorBomDataValue count(12);
    //   ++*static_cast<int*>(count.data());
    //   count.asString()   ->  "13"
    void* data() const { return m_nType == kUnknownData ? nullptr : &m_payload; }
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
                                m_payload.text.sharesTextWith(other.m_payload.text); // as in most rows of a group
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
    // Ends the payload; the value is empty afterwards. A corrupt type is reported and its payload not touched.
    void empty();

private:
    // Tests make values of corrupt types through it.
    friend struct VorBomDataValueAccess;

    // All bytes are set from the start, so that a number is copied without asking which kind it is of.
    union Payload
    {
        Payload() noexcept : number(0) {}
        Payload(int value) noexcept : number(0) { whole = value; }
        Payload(double value) noexcept : number(value) {}
        Payload(const VorString& value) noexcept : text(value) {}
        Payload(const Payload&) = delete; // which member lives is known to the value alone
        Payload& operator=(const Payload&) = delete;
        ~Payload() {}

        int whole;
        double number;
        VorString text;
    };

    // Empty or a number, of which nothing needs to be ended. False for a corrupt type.
    bool hasNoText() const { return static_cast<unsigned int>(m_nType) <= kDoubleData; }
    // Makes an empty value, or one whose text was ended, a text.
    template <class Text>
    void beginText(Text&& text) noexcept
    {
        ::new (static_cast<void*>(&m_payload.text)) VorString(std::forward<Text>(text));
        m_nType = kStringData;
    }
    // Makes a value without a text an empty one or a number, as `other` is.
    void takeNumber(const VorBomDataValue& other) noexcept
    {
        std::memcpy(&m_payload.number, &other.m_payload.number, sizeof(double)); // as bytes: it may be an int's
        m_nType = other.m_nType;
    }
    // Sets the whole number of that sign and size.
    void setWide(bool isNegative, unsigned long long size);
    void endText()
    {
        if (!hasNoText())
            empty();
    }
    // compare() for values that do not share one text; all that is reported is reported here.
    int compareAnew(const VorBomDataValue& other) const;

    mutable Payload m_payload; // data() gives constant values away to be changed, too
    eBomDataValueType m_nType = kUnknownData;
};
