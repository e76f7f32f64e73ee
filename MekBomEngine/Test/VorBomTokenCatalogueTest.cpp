#include "VorBomTokenCatalogue.h"

#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{
using Catalogue = VorBomTokenCatalogue;

long long countOf(VorBomDataValue::eBomDataValueType type)
{
    return std::count_if(Catalogue::begin(), Catalogue::end(),
                         [type](const Catalogue::Entry& entry) { return entry.type == type; });
}

// Checks that the catalogue goes on at `pEntry` with these names, all of one type; returns the entry after them.
template <int N>
const Catalogue::Entry* expectNames(const Catalogue::Entry* pEntry, const wchar_t* const (&names)[N],
                                    VorBomDataValue::eBomDataValueType type)
{
    for (const wchar_t* name : names)
    {
        EXPECT_EQ(VorString(name), VorString(pEntry->name));
        EXPECT_EQ(type, pEntry->type) << VorString(name);
        EXPECT_EQ(type, VorBomDataToken::getTokenType(name)) << VorString(name);
        ++pEntry;
    }
    return pEntry;
}
}

TEST(VorBomTokenCatalogueTest, HoldsThreeGroupsInOrder)
{
    EXPECT_EQ(42, countOf(VorBomDataValue::kStringData));
    EXPECT_EQ(16, countOf(VorBomDataValue::kIntData));
    EXPECT_EQ(38, countOf(VorBomDataValue::kDoubleData));
    EXPECT_EQ(96, Catalogue::end() - Catalogue::begin());

    const auto rank = [](const Catalogue::Entry& entry)
    { return entry.type == VorBomDataValue::kStringData ? 0 : (entry.type == VorBomDataValue::kIntData ? 1 : 2); };
    EXPECT_TRUE(std::is_sorted(Catalogue::begin(), Catalogue::end(),
                               [rank](const Catalogue::Entry& a, const Catalogue::Entry& b)
                               { return rank(a) < rank(b); }));
}

TEST(VorBomTokenCatalogueTest, EveryNameIsSpelledAsDataAndTemplatesSpellIt)
{
    const wchar_t* const kTexts[] = { L"%Phase",
                                      L"%MNum",
                                      L"%MName",
                                      L"%PNum",
                                      L"%Num",
                                      L"%PreliminaryNum",
                                      L"%Class",
                                      L"%Name",
                                      L"%GratingConnectorName",
                                      L"%Material",
                                      L"%Coating",
                                      L"%InsideCoating",
                                      L"%OutsideCoating",
                                      L"%Commodity",
                                      L"%PreDefinedRemark",
                                      L"%DStV",
                                      L"%Role",
                                      L"%FreeRemark",
                                      L"%Set",
                                      L"%BoltName",
                                      L"%Standard",
                                      L"%ElementID",
                                      L"%Level",
                                      L"%JointName",
                                      L"%ApprovalComment",
                                      L"%ApprovalCode",
                                      L"%LoadNumber",
                                      L"%Carrier",
                                      L"%FabricationStation",
                                      L"%Supplier",
                                      L"%PONumber",
                                      L"%RequisitionNumber",
                                      L"%DeliveryDate",
                                      L"%GalvanizingConstructionClass",
                                      L"%GalvanizingDetailClass",
                                      L"%GalvanizingConfidence",
                                      L"%HeatNumber",
                                      L"%ShippedDate",
                                      L"%ApprovalStatus",
                                      L"%ShopConnection",
                                      L"%External",
                                      L"%UserAttr" };
    const wchar_t* const kWholeNumbers[] = { L"%MQuantity",
                                             L"%MQuantityInPhase",
                                             L"%IsMP",
                                             L"%Quantity",
                                             L"%QuantityInModel",
                                             L"%QuantityInAllAssembly",
                                             L"%QuantityInPhase",
                                             L"%QuantityInAllAssemblyInPhase",
                                             L"%ClassId",
                                             L"%isUnwidable",
                                             L"%CompoundId",
                                             L"%GratingConnectorQuantity",
                                             L"%CladdingConnectorQuantity",
                                             L"%CladdingConnectorQuantityInModel",
                                             L"%BarQuantity",
                                             L"%CrossBarQuantity" };
    const wchar_t* const kNumbers[] = { L"%SysLength",
                                        L"%CurvedBeamRadius",
                                        L"%Weight",
                                        L"%WeightInAssembly",
                                        L"%WeightInAllAssembly",
                                        L"%WeightInAllAssemblyInPhase",
                                        L"%WeightInPhase",
                                        L"%WeightInModel",
                                        L"%ExactWeight",
                                        L"%ExactWeightInAssembly",
                                        L"%ExactWeightInAllAssembly",
                                        L"%ExactWeightInAllAssemblyInPhase",
                                        L"%ExactWeightInPhase",
                                        L"%ExactWeightInModel",
                                        L"%WeightMeter",
                                        L"%Length",
                                        L"%LengthInModel",
                                        L"%SawLength",
                                        L"%SawLengthInModel",
                                        L"%Paint",
                                        L"%PaintInAssembly",
                                        L"%%PaintMeter",
                                        L"%Thick",
                                        L"%Width",
                                        L"%Area",
                                        L"%contourLength",
                                        L"%Diameter",
                                        L"%AssemblyWeight",
                                        L"%AssemblyExactWeight",
                                        L"%EDValue",
                                        L"%WidthExtensionLeft",
                                        L"%WidthExtensionRight",
                                        L"%BarSpacing",
                                        L"%CrossBarSpacing",
                                        L"%ExactPaintArea",
                                        L"%ObjectTopLevel",
                                        L"%ObjectBottomLevel",
                                        L"%Density" };

    const Catalogue::Entry* pEntry = expectNames(Catalogue::begin(), kTexts, VorBomDataValue::kStringData);
    pEntry = expectNames(pEntry, kWholeNumbers, VorBomDataValue::kIntData);
    pEntry = expectNames(pEntry, kNumbers, VorBomDataValue::kDoubleData);

    EXPECT_EQ(Catalogue::end(), pEntry);
}

TEST(VorBomTokenCatalogueTest, EveryEntryIsFoundUnderItsName)
{
    for (const Catalogue::Entry* pEntry = Catalogue::begin(); pEntry != Catalogue::end(); ++pEntry)
    {
        EXPECT_EQ(pEntry, Catalogue::find(pEntry->name)) << VorString(pEntry->name);
        EXPECT_EQ(VorString(pEntry->name).length(), pEntry->length) << VorString(pEntry->name);
        EXPECT_EQ(L'%', pEntry->name[0]) << VorString(pEntry->name);
    }
}

TEST(VorBomTokenCatalogueTest, OnlyTextsSortAsText)
{
    for (const Catalogue::Entry* pEntry = Catalogue::begin(); pEntry != Catalogue::end(); ++pEntry)
        EXPECT_EQ(pEntry->type != VorBomDataValue::kStringData, pEntry->sort == VorBomDataToken::kSortNumeric)
            << VorString(pEntry->name);
}

TEST(VorBomTokenCatalogueTest, SevenTextsSortNaturally)
{
    const wchar_t* const kNatural[] = { L"%MNum",           L"%MName", L"%PNum",    L"%Num",
                                        L"%PreliminaryNum", L"%Name",  L"%BoltName" };
    for (const wchar_t* name : kNatural)
        EXPECT_EQ(VorBomDataToken::kSortAlphanumeric, Catalogue::find(name)->sort) << VorString(name);
    EXPECT_EQ(7, std::count_if(Catalogue::begin(), Catalogue::end(),
                               [](const Catalogue::Entry& entry)
                               { return entry.sort == VorBomDataToken::kSortAlphanumeric; }));
}

TEST(VorBomTokenCatalogueTest, TwoEntriesStandForAllThatStartSo)
{
    for (const wchar_t* token : { L"%External", L"%External2", L"%ExternalWeight" })
        EXPECT_EQ(VorString(L"%External"), Catalogue::find(token)->name);
    for (const wchar_t* token : { L"%UserAttr", L"%UserAttr15" })
        EXPECT_EQ(VorString(L"%UserAttr"), Catalogue::find(token)->name);

    EXPECT_EQ(nullptr, Catalogue::find(L"%Externa"));
    EXPECT_EQ(nullptr, Catalogue::find(L"%userattr1"));
    EXPECT_EQ(nullptr, Catalogue::find(L"x%UserAttr1"));
    EXPECT_EQ(nullptr, Catalogue::find(L"%Weight2")); // the others are whole names
    EXPECT_EQ(nullptr, Catalogue::find(L"%Name "));
    EXPECT_EQ(2, std::count_if(Catalogue::begin(), Catalogue::end(),
                               [](const Catalogue::Entry& entry) { return entry.isPrefix; }));
}

TEST(VorBomTokenCatalogueTest, OddSpellingsAreExact)
{
    EXPECT_EQ(VorBomDataValue::kIntData, Catalogue::find(L"%isUnwidable")->type);
    EXPECT_EQ(nullptr, Catalogue::find(L"%IsUnwidable"));
    EXPECT_EQ(VorBomDataValue::kDoubleData, Catalogue::find(L"%contourLength")->type);
    EXPECT_EQ(nullptr, Catalogue::find(L"%ContourLength"));
    EXPECT_EQ(VorBomDataValue::kDoubleData, Catalogue::find(L"%%PaintMeter")->type);
    EXPECT_EQ(nullptr, Catalogue::find(L"%PaintMeter"));
}

TEST(VorBomTokenCatalogueTest, UnknownTokensAreNoMistakeHere)
{
    const AssertLog log;

    EXPECT_EQ(nullptr, Catalogue::find(L"%PosNum"));
    EXPECT_EQ(nullptr, Catalogue::find(L""));
    EXPECT_EQ(nullptr, Catalogue::find(L"%SumBy:%Weight"));

    EXPECT_TRUE(log.isEmpty());
}
