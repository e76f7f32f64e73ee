// A token and its value: one datum of an object, or one column or instruction of a report section.
//
//   VorBomDataTuple tuple(L"%Weight", 12.5);
//   tuple.token().token()      ->  "%Weight"
//   tuple.value().asString()   ->  "12.5"
//
// Owns both; copies are independent. Kept small, since a large model has tens of millions of them: 24 bytes with the
// payload where a derived class may use what its base leaves over, 32 bytes elsewhere.
//
// What the value means depends on whose tuple it is. In a row it is the datum: a number in the model's internal units
// (millimetre, kilogram, radian and what follows from them) or a text. In a section of a template it is what the
// column shows, or a total starts from, until a row brings something. In an evaluated section it is the number that
// was found, summed or computed, and after that section was shown the text that the report shows.
//
// Tokens are texts that share their characters when they are copied. Rows whose equal tokens are copies of one
// VorString are looked up fastest, as a text that was met before is known by its address: whoever makes a million rows
// should make each token once and hand it to all of them. Threads that make reports at the same time should each make
// their own: every copy of a text is counted in one place, and threads that count there by turns wait for each other.
//
// Which of two tuples with equal tokens counts is the rule of the list that they stand in, not theirs: a look-up finds
// the first (VorBomItemBase::getTupleAt).
//
// Nothing here reports anything of its own or fails, but for std::bad_alloc where the system has no memory left. One
// tuple is for one thread at a time; copies may go to others.
#pragma once

#include "VorBomDataToken.h"
#include "VorBomDataValue.h"

#include "MekRoots/Exp/MekExport.h"
#include "MekRoots/Exp/VorArray.h"
#include "MekRoots/Exp/VorString.h"

#include <cstddef>
#include <type_traits>
#include <utility>

class MEK_BOM_API VorBomDataTuple
{
public:
    // Empty token, empty value.
    VorBomDataTuple() = default;

    // The token is kept as given: it need not begin with "%", and neither its kind in the catalogue nor that of the
    // value is looked at. An int under a token whose data are doubles stays an int, and comparing it with a double is
    // reported later.
    VorBomDataTuple(const VorString& token, int value) : m_token(token), m_value(value) {}
    VorBomDataTuple(const VorString& token, double value) : m_token(token), m_value(value) {}
    VorBomDataTuple(const VorString& token, const VorString& value) : m_token(token), m_value(value) {}

    // A whole number of another width than int's, as VorBomDataValue takes it.
    //   VorBomDataTuple(L"%Quantity", std::size_t{ 12 }).value().type()   ->  kIntData
    template <class Integer, std::enable_if_t<VorBomDataValue::kIsWide<Integer>, int> = 0>
    VorBomDataTuple(const VorString& token, Integer value) : VorBomDataTuple(token, VorBomDataValue(value))
    {
    }

    // Takes a value of any kind as it is, an empty one too.
    VorBomDataTuple(const VorString& token, const VorBomDataValue& value) : m_token(token), m_value(value) {}
    VorBomDataTuple(const VorString& token, VorBomDataValue&& value) : m_token(token), m_value(std::move(value)) {}

    // Takes a value of any kind and a used flag, for copies of a template's columns, which bring theirs along.
    VorBomDataTuple(const VorString& token, const VorBomDataValue& value, int used) : m_token(token), m_value(value)
    {
        setUsed(used);
    }

    // Copies carry the used flag. A moved-from tuple has an empty token and an empty value.
    // On purpose: assigning, by copy or by move, a tuple with an empty value replaces token and flag but keeps the
    // target's value, as VorBomDataValue::operator= does. Copies made from nothing always equal their source.
    // Pinned by VorBomDataTupleTest.AssigningATupleWithEmptyValueKeepsTheTargetsValue.
    VorBomDataTuple(const VorBomDataTuple& other) = default;
    VorBomDataTuple(VorBomDataTuple&& other) noexcept = default;
    VorBomDataTuple& operator=(const VorBomDataTuple& other) = default;
    VorBomDataTuple& operator=(VorBomDataTuple&& other) noexcept = default;
    ~VorBomDataTuple() = default;

    // The references live as long as the tuple. Only an assignment replaces the token.
    // Values are changed in place, through value().set(): what reports do to every number that they show.
    //   VorBomDataTuple total(L"%SumBy:%Weight", 0.0);
    //   total.value().set(14.0);
    //   total.value().asString()   ->  "14"
    const VorBomDataToken& token() const { return m_token; }
    const VorBomDataValue& value() const { return m_value; }
    VorBomDataValue& value() { return m_value; }

    // Orders what two rows carry under one token: as VorBomDataValue::compare; a datum after none, and 0 for none
    // twice. Neither is owned. For grouping, for sorting and for VorBomDataRow::compare, so that the three cannot come
    // to differ. Reports what VorBomDataValue::compare reports: unlike kinds, which are less both ways round, and two
    // empty values.
    //   const VorBomDataTuple heavy(L"%Weight", 12.5), light(L"%Weight", 2.5);
    //   VorBomDataTuple::compareValues(&heavy, &light)    ->  1
    //   VorBomDataTuple::compareValues(nullptr, &light)   ->  -1
    //   VorBomDataTuple::compareValues(nullptr, nullptr)  ->  0
    static int compareValues(const VorBomDataTuple* pFirst, const VorBomDataTuple* pSecond)
    {
        if (pFirst != nullptr && pSecond != nullptr)
            return pFirst->value().compare(pSecond->value());
        return pFirst == pSecond ? 0 : (pFirst != nullptr ? 1 : -1);
    }

    // 1 when the report uses this datum. The evaluation sets it on what it copies from rows into sections.
    // 0 at first. Any number is kept, but only 1 counts where used data are asked for. Nothing in the engine resets
    // the flag: rows of an earlier report keep their marks.
    int used() const { return m_value.nUsed; }
    void setUsed(int used) { m_value.nUsed = used; }

private:
    // The flag stands in the last bytes of the value, which the value itself has no use for.
    // A class of its own is needed for that: a member of a derived class may lie in the bytes by which its base is
    // padded, a member beside a member may not.
    struct MarkedValue : VorBomDataValue
    {
        using VorBomDataValue::VorBomDataValue;
        MarkedValue() = default;
        explicit MarkedValue(const VorBomDataValue& value) : VorBomDataValue(value) {}
        explicit MarkedValue(VorBomDataValue&& value) noexcept : VorBomDataValue(std::move(value)) {}

        int nUsed = 0;
    };

    VorBomDataToken m_token;
    MarkedValue m_value;
};

using VorBomDataTupleArray = VorArray<VorBomDataTuple>;
