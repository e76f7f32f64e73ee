// What may be asked of a token depends on who knows it. A list says "tokens": { "%Gap": "number" } and is run on a
// parts list with the columns "Gap", "Weight" and "PosNum":
//
//              knows   kindOf    who says it
//   %Weight    yes     kNumber   the catalogue, whatever the data hold
//   %Gap       yes     kNumber   the template
//   %PosNum    yes     kOpen     the data have it, but only the cells of a column tell what is in it
//   %Wieght    no      kOpen     nobody, and %Weight is the nearest
#include "KnownTokens.h"

#include "NearestWord.h"
#include "TokenNames.h"
#include "TokenRequest.h"
#include "Utf8.h"

#include "VorBomTemplateUnits.h"
#include "VorBomTokenCatalogue.h"

#include <utility>

namespace mekbom
{
namespace
{
const VorBomTokenCatalogue::Entry* entryOf(const std::string& token)
{
    return VorBomTokenCatalogue::find(Utf8::toWide(token));
}
}

KnownTokens::KnownTokens(const ReportTemplate& reportTemplate, std::vector<std::string> dataTokens)
    : m_template(reportTemplate),
      m_dataTokens(std::move(dataTokens)),
      m_isOfData(m_dataTokens.begin(), m_dataTokens.end())
{
}

bool KnownTokens::isInCatalogue(const std::string& token) const
{
    return token == TokenNames::kHandle || entryOf(token) != nullptr;
}

bool KnownTokens::knows(const std::string& token) const
{
    return isInCatalogue(token) || m_template.ownTokens.count(token) > 0 ||
           m_template.tokenUnitPlaces.count(token) > 0 || isOfData(token);
}

bool KnownTokens::isOfData(const std::string& token) const
{
    return m_isOfData.count(token) > 0;
}

// The catalogue comes first, whatever the template declares: the engine asks nobody else for the type of %Weight. A
// kind in "tokenUnits" makes a number of a token that nothing else describes.
KnownTokens::eKind KnownTokens::kindOf(const std::string& token) const
{
    if (token == TokenNames::kHandle)
        return kText;
    if (const VorBomTokenCatalogue::Entry* const pEntry = entryOf(token))
        return pEntry->type == VorBomDataValue::kStringData ? kText
               : pEntry->type == VorBomDataValue::kIntData  ? kWhole
                                                            : kNumber;
    const auto own = m_template.ownTokens.find(token);
    if (own != m_template.ownTokens.end())
        return own->second == kOwnText ? kText : kNumber;
    return hasUnit(token) ? kNumber : kOpen;
}

bool KnownTokens::isNumeric(const std::string& token) const
{
    const eKind kind = kindOf(token);
    return kind == kWhole || kind == kNumber;
}

bool KnownTokens::hasUnit(const std::string& token) const
{
    return m_template.pTemplate->getBomTemplateUnits()->getUnitType(Utf8::toWide(token)) !=
           VorBomTemplateUnits::kNoUnit;
}

// The catalogue's names tell it: %AssemblyWeight and %WeightInAssembly are of one assembly, %QuantityInPhase is of a
// phase, and %MQuantity, the number of equal assemblies, is the one that follows no pattern. A token of the author's
// own may be called anything.
bool KnownTokens::isSharedByRows(const std::string& token) const
{
    if (!isInCatalogue(token))
        return false;
    for (const char* const part : { "%Assembly", "InAssembly", "InAllAssembly", "InPhase", "InModel" })
        if (token.find(part) != std::string::npos)
            return true;
    return token == "%MQuantity";
}

// A column with an "order" overrules the catalogue, and what neither of them orders is plain text.
bool KnownTokens::isNatural(const std::string& token) const
{
    const ColumnStyle* const pStyle = m_template.columnStyleOf(Utf8::toWide(token));
    if (pStyle != nullptr && pStyle->order != ColumnStyle::kByCatalogue)
        return pStyle->order == ColumnStyle::kNatural;
    const VorBomTokenCatalogue::Entry* const pEntry = entryOf(token);
    return pEntry != nullptr && pEntry->sort == VorBomDataToken::kSortAlphanumeric;
}

// "%Sumby:%Weight" is no token at all: what stands before the colon is looked for among the prefixes. Of equally near
// names the first counts, so that columns of the data come before the author's own tokens, and these before the
// catalogue's.
std::string KnownTokens::nearestTo(const std::string& token) const
{
    const std::size_t colon = token.find(':');
    if (colon != std::string::npos)
    {
        const std::string prefix = NearestWord::of(token.substr(0, colon + 1), requestPrefixes());
        return prefix.empty() ? "" : prefix + token.substr(colon + 1);
    }
    std::vector<std::string> words = m_dataTokens;
    for (const auto& [own, kind] : m_template.ownTokens)
        words.push_back(own);
    for (const VorBomTokenCatalogue::Entry* pEntry = VorBomTokenCatalogue::begin();
         pEntry != VorBomTokenCatalogue::end(); ++pEntry)
        words.push_back(Utf8::toBytes(pEntry->name));
    return NearestWord::of(token, words);
}
}
