// One table, gone through from its top until an entry matches. Told on four tokens:
//   "%WeightInModel"   is none of the entries before it: "%Weight" stands for itself alone, so the lengths must agree
//   "%UserAttr7"       is "%UserAttr", an entry that stands for all tokens that begin with it
//   "%weight"          is nothing known, as case counts
//   "%SumBy:%Weight"   is nothing known either: what asks for a total must be stripped before
// A walk over a hundred entries is fast enough, as nobody looks here for every row: only for columns and sort keys.
#include "VorBomTokenCatalogue.h"

#include <cwchar>
#include <iterator>

namespace
{
constexpr VorBomDataValue::eBomDataValueType kText = VorBomDataValue::kStringData;
constexpr VorBomDataValue::eBomDataValueType kInt = VorBomDataValue::kIntData;
constexpr VorBomDataValue::eBomDataValueType kDouble = VorBomDataValue::kDoubleData;

constexpr VorBomDataToken::eSortType kNatural = VorBomDataToken::kSortAlphanumeric;
constexpr VorBomDataToken::eSortType kPlain = VorBomDataToken::kSortString;
constexpr VorBomDataToken::eSortType kNumeric = VorBomDataToken::kSortNumeric;

constexpr bool kIsPrefix = true;

// On purpose: the spellings are exact, "%isUnwidable" and "%contourLength" and the two percent signs of "%%PaintMeter"
// included; existing templates and data name them so. Pinned by VorBomTokenCatalogueTest.OddSpellingsAreExact.
constexpr VorBomTokenCatalogue::Entry kEntries[] = {
    // Texts. Seven that number or name parts sort naturally, P2 before P10 and HEA90 before HEA200; the others sort by
    // their characters.
    { L"%Phase", kText, kPlain },
    { L"%MNum", kText, kNatural },
    { L"%MName", kText, kNatural },
    { L"%PNum", kText, kNatural },
    { L"%Num", kText, kNatural },
    { L"%PreliminaryNum", kText, kNatural },
    { L"%Class", kText, kPlain },
    { L"%Name", kText, kNatural },
    { L"%GratingConnectorName", kText, kPlain },
    { L"%Material", kText, kPlain },
    { L"%Coating", kText, kPlain },
    { L"%InsideCoating", kText, kPlain },
    { L"%OutsideCoating", kText, kPlain },
    { L"%Commodity", kText, kPlain },
    { L"%PreDefinedRemark", kText, kPlain },
    { L"%DStV", kText, kPlain },
    { L"%Role", kText, kPlain },
    { L"%FreeRemark", kText, kPlain },
    { L"%Set", kText, kPlain },
    { L"%BoltName", kText, kNatural },
    { L"%Standard", kText, kPlain },
    { L"%ElementID", kText, kPlain },
    { L"%Level", kText, kPlain },
    { L"%JointName", kText, kPlain },
    { L"%ApprovalComment", kText, kPlain },
    { L"%ApprovalCode", kText, kPlain },
    { L"%LoadNumber", kText, kPlain },
    { L"%Carrier", kText, kPlain },
    { L"%FabricationStation", kText, kPlain },
    { L"%Supplier", kText, kPlain },
    { L"%PONumber", kText, kPlain },
    { L"%RequisitionNumber", kText, kPlain },
    { L"%DeliveryDate", kText, kPlain },
    { L"%GalvanizingConstructionClass", kText, kPlain },
    { L"%GalvanizingDetailClass", kText, kPlain },
    { L"%GalvanizingConfidence", kText, kPlain },
    { L"%HeatNumber", kText, kPlain },
    { L"%ShippedDate", kText, kPlain },
    { L"%ApprovalStatus", kText, kPlain },
    { L"%ShopConnection", kText, kPlain },
    { L"%External", kText, kPlain, kIsPrefix },
    { L"%UserAttr", kText, kPlain, kIsPrefix },

    // Whole numbers: counts, numbers that identify something, and marks that are 0 or 1. They have no units.
    { L"%MQuantity", kInt, kNumeric },
    { L"%MQuantityInPhase", kInt, kNumeric },
    { L"%IsMP", kInt, kNumeric },
    { L"%Quantity", kInt, kNumeric },
    { L"%QuantityInModel", kInt, kNumeric },
    { L"%QuantityInAllAssembly", kInt, kNumeric },
    { L"%QuantityInPhase", kInt, kNumeric },
    { L"%QuantityInAllAssemblyInPhase", kInt, kNumeric },
    { L"%ClassId", kInt, kNumeric },
    { L"%isUnwidable", kInt, kNumeric },
    { L"%CompoundId", kInt, kNumeric },
    { L"%GratingConnectorQuantity", kInt, kNumeric },
    { L"%CladdingConnectorQuantity", kInt, kNumeric },
    { L"%CladdingConnectorQuantityInModel", kInt, kNumeric },
    { L"%BarQuantity", kInt, kNumeric },
    { L"%CrossBarQuantity", kInt, kNumeric },

    // Numbers, in the model's internal units. Each of them has its kind of unit in the table of VorBomTemplate.cpp.
    { L"%SysLength", kDouble, kNumeric },
    { L"%CurvedBeamRadius", kDouble, kNumeric },
    { L"%Weight", kDouble, kNumeric },
    { L"%WeightInAssembly", kDouble, kNumeric },
    { L"%WeightInAllAssembly", kDouble, kNumeric },
    { L"%WeightInAllAssemblyInPhase", kDouble, kNumeric },
    { L"%WeightInPhase", kDouble, kNumeric },
    { L"%WeightInModel", kDouble, kNumeric },
    { L"%ExactWeight", kDouble, kNumeric },
    { L"%ExactWeightInAssembly", kDouble, kNumeric },
    { L"%ExactWeightInAllAssembly", kDouble, kNumeric },
    { L"%ExactWeightInAllAssemblyInPhase", kDouble, kNumeric },
    { L"%ExactWeightInPhase", kDouble, kNumeric },
    { L"%ExactWeightInModel", kDouble, kNumeric },
    { L"%WeightMeter", kDouble, kNumeric },
    { L"%Length", kDouble, kNumeric },
    { L"%LengthInModel", kDouble, kNumeric },
    { L"%SawLength", kDouble, kNumeric },
    { L"%SawLengthInModel", kDouble, kNumeric },
    { L"%Paint", kDouble, kNumeric },
    { L"%PaintInAssembly", kDouble, kNumeric },
    { L"%%PaintMeter", kDouble, kNumeric },
    { L"%Thick", kDouble, kNumeric },
    { L"%Width", kDouble, kNumeric },
    { L"%Area", kDouble, kNumeric },
    { L"%contourLength", kDouble, kNumeric },
    { L"%Diameter", kDouble, kNumeric },
    { L"%AssemblyWeight", kDouble, kNumeric },
    { L"%AssemblyExactWeight", kDouble, kNumeric },
    { L"%EDValue", kDouble, kNumeric },
    { L"%WidthExtensionLeft", kDouble, kNumeric },
    { L"%WidthExtensionRight", kDouble, kNumeric },
    { L"%BarSpacing", kDouble, kNumeric },
    { L"%CrossBarSpacing", kDouble, kNumeric },
    { L"%ExactPaintArea", kDouble, kNumeric },
    { L"%ObjectTopLevel", kDouble, kNumeric },
    { L"%ObjectBottomLevel", kDouble, kNumeric },
    { L"%Density", kDouble, kNumeric },
};
}

bool VorBomTokenCatalogue::Entry::matches(const VorString& token) const
{
    // The lengths first: most entries are ruled out by them, without a look at a character.
    const bool fits = isPrefix ? token.length() >= length : token.length() == length;
    return fits && std::wmemcmp(token.getStringW(), name, static_cast<std::size_t>(length)) == 0;
}

const VorBomTokenCatalogue::Entry* VorBomTokenCatalogue::find(const VorString& token)
{
    for (const Entry& entry : kEntries)
        if (entry.matches(token))
            return &entry;
    return nullptr;
}

const VorBomTokenCatalogue::Entry* VorBomTokenCatalogue::begin()
{
    return std::begin(kEntries);
}

const VorBomTokenCatalogue::Entry* VorBomTokenCatalogue::end()
{
    return std::end(kEntries);
}
