// Of "%Length >= 6 m" a row gives the sign of its length minus 6000 mm, and the operator says which signs will do. A
// length of 5999.9999999 gives 0: two numbers that close are equal wherever the engine compares them, too.
#include "RowCondition.h"

#include "VorBomDataTuple.h"

namespace mekbom
{
namespace
{
// The sign of the value minus the number; false for what is no number. The engine compares values of one type alone, so
// whole numbers are made doubles, which hold every int.
bool compare(const VorBomDataValue& value, double number, int& sign)
{
    switch (value.type())
    {
        case VorBomDataValue::kIntData:
            sign = VorBomDataValue(static_cast<double>(*static_cast<const int*>(value.data())))
                       .compare(VorBomDataValue(number));
            return true;
        case VorBomDataValue::kDoubleData: sign = value.compare(VorBomDataValue(number)); return true;
        default: return false;
    }
}
}

// What cannot be compared, a datum that is lacking or a text where the list has numbers, is unlike whatever it is
// compared with, and neither less nor greater.
bool RowCondition::isMetBy(const VorBomDataRow& row) const
{
    const VorBomDataTuple* const pTuple = row.getTupleAt(token);
    if (comparison == kIsThere || pTuple == nullptr)
        return comparison == kIsThere ? pTuple != nullptr : comparison == kUnequal;
    const VorBomDataValue& value = pTuple->value();
    int sign = 0;
    if (isNumber)
        return compare(value, number, sign) ? isMetBySign(sign) : comparison == kUnequal;
    if (value.type() != VorBomDataValue::kStringData)
        return comparison == kUnequal;
    const auto& datum = *static_cast<const VorString*>(value.data());
    return isMetBySign(VorString::compareWithNumbers(datum, text)); // 0 for equal texts alone
}

bool RowCondition::isMetBySign(int sign) const
{
    switch (comparison)
    {
        case kEqual: return sign == 0;
        case kUnequal: return sign != 0;
        case kLess: return sign < 0;
        case kLessOrEqual: return sign <= 0;
        case kGreater: return sign > 0;
        default: return sign >= 0;
    }
}
}
