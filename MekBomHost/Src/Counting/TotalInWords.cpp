#include "TotalInWords.h"

#include "TotalTokens.h"
#include "Utf8.h"
#include "ValueTally.h"

#include "VorBomDataToken.h"

namespace mekbom
{
namespace
{
// A formula is read without its prefix.
std::string readable(VorString datum)
{
    VorBomDataToken::removeFormulaPrefix(datum);
    return Utf8::toBytes(datum);
}

// "%C/%W with %C the total of %Cost and %W the total of %Weight*%Quantity"
std::string calculation(const ColumnTotal& total)
{
    std::string text = Utf8::toBytes(total.formula);
    const char* pJoint = " with ";
    for (const ColumnTotal::Operand& operand : total.operands)
    {
        text += pJoint + Utf8::toBytes(operand.name) + " the total of " + readable(TotalTokens::datumOf(operand.sum));
        pJoint = " and ";
    }
    return text;
}
}

std::string totalInWords(const ColumnTotal& total, const VorString& datum)
{
    const std::string name = readable(datum);
    switch (total.kind)
    {
        case ColumnTotal::kCount: return "the number of rows that have " + name;
        case ColumnTotal::kLeast: return "the smallest " + name;
        case ColumnTotal::kGreatest: return "the largest " + name;
        case ColumnTotal::kMean:
            return "the mean " + name + (ValueTally::isMeanOfPieces(datum) ? " of all pieces" : " of all rows");
        case ColumnTotal::kCalculated: return calculation(total);
        default: return name + " added up";
    }
}
}
