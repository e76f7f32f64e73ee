#include "TotalTokens.h"

#include "VorBomDataToken.h"

namespace mekbom::TotalTokens
{
namespace
{
// In the order of ColumnTotal::eKind. A sum has the engine's own prefix.
const wchar_t* const kPrefixes[] = { nullptr, L"%CountBy:", L"%MinBy:", L"%MaxBy:", L"%MeanBy:", L"%TotalIn:" };

bool startsWith(const VorString& token, const wchar_t* pPrefix)
{
    return token.find(pPrefix, 0) == 0;
}
}

VorString of(const ColumnTotal& total, const VorString& columnToken, const VorString& sum)
{
    if (total.kind == ColumnTotal::kSum)
        return sum;
    VorString token = kPrefixes[total.kind];
    token += total.kind == ColumnTotal::kCalculated ? columnToken : datumOf(sum);
    return token;
}

ColumnTotal::eKind kindOf(const VorString& token)
{
    for (const auto kind : { ColumnTotal::kCount, ColumnTotal::kLeast, ColumnTotal::kGreatest, ColumnTotal::kMean,
                             ColumnTotal::kCalculated })
        if (startsWith(token, kPrefixes[kind]))
            return kind;
    return ColumnTotal::kSum;
}

VorString datumOf(const VorString& token)
{
    VorString summed;
    if (VorBomDataToken(token).getSummingRequest(summed) == 1)
        return summed;
    const ColumnTotal::eKind kind = kindOf(token);
    if (kind == ColumnTotal::kSum || kind == ColumnTotal::kCalculated)
        return token;
    return token.right(token.length() - VorString(kPrefixes[kind]).length());
}

bool isSum(const VorString& token)
{
    VorString summed;
    return VorBomDataToken(token).getSummingRequest(summed) == 1;
}
}
