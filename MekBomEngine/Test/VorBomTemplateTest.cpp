#include "VorBomTemplate.h"

#include "VorBomEvaluator2.h"

#include "Support/BomTestSupport.h"

#include "MekRoots/Exp/KTRepositoryProxy.h"
#include "MekRoots/Exp/MEKUnitsCommon.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace
{
using Item = VorBomTemplateItem;
using Units = VorBomTemplateUnits;
using Option = VorBomTemplate::eObjectsPresentationOptions;

const struct
{
    const wchar_t* token;
    Units::eTokenUnitType type;
} kTokenUnits[] = {
    { L"%Length", Units::kDistanceUnit },
    { L"%SysLength", Units::kDistanceUnit },
    { L"%SawLength", Units::kDistanceUnit },
    { L"%CurvedBeamRadius", Units::kDistanceUnit },
    { L"%Diameter", Units::kDistanceUnit },
    { L"%Thick", Units::kDistanceUnit },
    { L"%Width", Units::kDistanceUnit },
    { L"%contourLength", Units::kDistanceUnit },
    { L"%LengthInModel", Units::kDistanceUnit },
    { L"%SawLengthInModel", Units::kDistanceUnit },
    { L"%EDValue", Units::kDistanceUnit },
    { L"%WidthExtensionLeft", Units::kDistanceUnit },
    { L"%WidthExtensionRight", Units::kDistanceUnit },
    { L"%BarSpacing", Units::kDistanceUnit },
    { L"%CrossBarSpacing", Units::kDistanceUnit },
    { L"%ObjectTopLevel", Units::kDistanceUnit },
    { L"%ObjectBottomLevel", Units::kDistanceUnit },
    { L"%Weight", Units::kWeightUnit },
    { L"%WeightInAssembly", Units::kWeightUnit },
    { L"%WeightInAllAssembly", Units::kWeightUnit },
    { L"%WeightInAllAssemblyInPhase", Units::kWeightUnit },
    { L"%WeightInPhase", Units::kWeightUnit },
    { L"%WeightInModel", Units::kWeightUnit },
    { L"%AssemblyWeight", Units::kWeightUnit },
    { L"%ExactWeight", Units::kWeightUnit },
    { L"%ExactWeightInAssembly", Units::kWeightUnit },
    { L"%ExactWeightInAllAssembly", Units::kWeightUnit },
    { L"%ExactWeightInAllAssemblyInPhase", Units::kWeightUnit },
    { L"%ExactWeightInPhase", Units::kWeightUnit },
    { L"%ExactWeightInModel", Units::kWeightUnit },
    { L"%AssemblyExactWeight", Units::kWeightUnit },
    { L"%Area", Units::kAreaUnit },
    { L"%Paint", Units::kAreaUnit },
    { L"%PaintInAssembly", Units::kAreaUnit },
    { L"%ExactPaintArea", Units::kAreaUnit },
    { L"%WeightMeter", Units::kWeightPerDistanceUnit },
    { L"%%PaintMeter", Units::kAreaPerDistanceUnit },
    { L"%Density", Units::kDensityUnit },
};

// The trace of a template whose only section has these tuples.
Texts traceOf(Tuples tuples)
{
    VorBomTemplate bomTemplate;
    bomTemplate.addChild(newSection(Item::kDetails, tuples));
    return elementsOf(bomTemplate.getTokenTrace());
}

VorBomDataRow* newUsedRow(const wchar_t* handle, const wchar_t* token)
{
    VorBomDataRow* pRow = newRow({ usedTuple(token, 1), usedTuple(L"%Unused", 0) });
    pRow->setObjectHandle(handle);
    return pRow;
}
}

TEST(VorBomTemplateTest, StartsWithoutSectionsAndWithEmptyData)
{
    const LeakCheck leaks;
    VorBomTemplate bomTemplate;

    EXPECT_EQ(Item::kBomTemplate, bomTemplate.type());
    EXPECT_EQ(nullptr, bomTemplate.child());
    ASSERT_NE(nullptr, bomTemplate.getBomData());
    EXPECT_EQ(nullptr, bomTemplate.getBomData()->child());
    ASSERT_NE(nullptr, bomTemplate.getBomTemplateUnits());
    EXPECT_EQ(Units::kNoUnit, bomTemplate.getBomTemplateUnits()->getUnitType(L"%Weight"));
    EXPECT_EQ(VorString(), bomTemplate.getQueryFilter());
    EXPECT_FALSE(bomTemplate.isObjectPresentationOptionOn(static_cast<Option>(1)));
    EXPECT_EQ(0, bomTemplate.getTokenTrace().length());
    EXPECT_EQ(8, bomTemplate.getTokenTrace().growBy());
}

TEST(VorBomTemplateTest, TypeOfTheRootIsSetWithoutReport)
{
    const AssertLog log;
    const VorBomTemplate bomTemplate;
    EXPECT_TRUE(log.isEmpty());
}

TEST(VorBomTemplateTest, QueryFilterIsKept)
{
    VorBomTemplate bomTemplate;
    bomTemplate.setQueryFilter(L"phase = 3");
    EXPECT_EQ(VorString(L"phase = 3"), bomTemplate.getQueryFilter());
}

TEST(VorBomTemplateTest, OptionsAreOnWhenAllTheirBitsAre)
{
    for (const int option : { 0, 2, 4, 6 })
        EXPECT_TRUE(VorBomTemplate::isObjectPresentationOptionOn(6, static_cast<Option>(option))) << option;
    for (const int option : { 1, 7, 8 })
        EXPECT_FALSE(VorBomTemplate::isObjectPresentationOptionOn(6, static_cast<Option>(option))) << option;

    VorBomTemplate bomTemplate;
    EXPECT_TRUE(bomTemplate.isObjectPresentationOptionOn(VorBomTemplate::kNoOptions));
    bomTemplate.setObjectPresentationOptions(6);
    EXPECT_TRUE(bomTemplate.isObjectPresentationOptionOn(static_cast<Option>(6)));
    EXPECT_TRUE(bomTemplate.isObjectPresentationOptionOn(VorBomTemplate::kNoOptions));
    EXPECT_FALSE(bomTemplate.isObjectPresentationOptionOn(static_cast<Option>(3)));
}

TEST(VorBomTemplateTest, TraceHoldsTokensAndWhatTheySum)
{
    EXPECT_EQ((Texts{ L"%PosNum", L"%SumBy:%Weight", L"%Weight" }),
              traceOf({ tuple(L"%PosNum", 0), tuple(L"%SumBy:%Weight", 0.0) }));
}

TEST(VorBomTemplateTest, TraceHoldsFormulasAndTheirTokens)
{
    EXPECT_EQ((Texts{ L"%A", L"%B", L"%Formula:%A*%B+2", L"%PosNum" }),
              traceOf({ tuple(L"%PosNum", 0), tuple(L"%Formula:%A*%B+2", 0.0) }));
}

TEST(VorBomTemplateTest, TraceHoldsSummedFormulasInThreeForms)
{
    EXPECT_EQ((Texts{ L"%A", L"%B", L"%Formula:%A*%B", L"%SumBy:%Formula:%A*%B" }),
              traceOf({ tuple(L"%SumBy:%Formula:%A*%B", 0.0) }));
}

TEST(VorBomTemplateTest, FormulaTokensMayRepeatInTheTrace)
{
    EXPECT_EQ((Texts{ L"%A", L"%A", L"%A", L"%Formula:%A*%A" }),
              traceOf({ tuple(L"%A", 0), tuple(L"%Formula:%A*%A", 0.0) }));
    EXPECT_EQ((Texts{ L"%A", L"%Formula:%A*2" }), // found in the formula first, the tuple is passed over
              traceOf({ tuple(L"%Formula:%A*2", 0.0), tuple(L"%A", 0) }));
}

TEST(VorBomTemplateTest, SumOfAKnownFormulaRepeatsItsTokens)
{
    // The formula itself is known by then, its tokens are added again all the same.
    EXPECT_EQ((Texts{ L"%A", L"%A", L"%Formula:%A*2", L"%SumBy:%Formula:%A*2" }),
              traceOf({ tuple(L"%Formula:%A*2", 0.0), tuple(L"%SumBy:%Formula:%A*2", 0.0) }));
}

TEST(VorBomTemplateTest, TuplesThatAreTracedAlreadyArePassedOverAltogether)
{
    // "%SumBy:%B" is grouped by first, so what it sums is not traced when it comes as a tuple.
    VorBomTemplate bomTemplate;
    bomTemplate.addChild(newSection(Item::kGroupHeader, { tuple(L"%GroupBy:%SumBy:%B", L"") }));
    bomTemplate.addChild(newSection(Item::kGroupFooter, { tuple(L"%SumBy:%B", 0) }));

    EXPECT_EQ((Texts{ L"%GroupBy:%SumBy:%B", L"%SumBy:%B" }), elementsOf(bomTemplate.getTokenTrace()));
}

TEST(VorBomTemplateTest, GroupingAndSortingTokensAreTracedWithoutDirection)
{
    EXPECT_EQ((Texts{ L"%A", L"%B", L"%C", L"%GroupBy:%A,%B", L"%SortDescBy:%Weight,%C", L"%Weight" }),
              traceOf({ tuple(L"%GroupBy:%A,%B", L""), tuple(L"%SortDescBy:%Weight,%C", L"") }));
    EXPECT_EQ((Texts{ L"%SortAscBy:%SortDescBy:%A", L"%SortDescBy:%A" }), // one prefix is removed, not two
              traceOf({ tuple(L"%SortAscBy:%SortDescBy:%A", L"") }));
}

TEST(VorBomTemplateTest, FilterTypesAreNotTraced)
{
    EXPECT_EQ((Texts{ L"%FilterBy:%Beam,%Plate" }), traceOf({ tuple(L"%FilterBy:%Beam,%Plate", L"") }));
}

TEST(VorBomTemplateTest, TokensInSeveralSectionsAreTracedOnce)
{
    VorBomTemplate bomTemplate;
    bomTemplate.addChild(newSection(Item::kReportHeader, { tuple(L"%Weight", 0) }));
    bomTemplate.addChild(newSection(Item::kReportFooter, { tuple(L"%Weight", 0), tuple(L"%weight", 0) }));

    const Texts trace = elementsOf(bomTemplate.getTokenTrace());

    EXPECT_EQ(2u, trace.size()); // another case is another token
    EXPECT_EQ(1, std::count(trace.begin(), trace.end(), VorString(L"%Weight")));
    EXPECT_EQ(1, std::count(trace.begin(), trace.end(), VorString(L"%weight")));
    EXPECT_TRUE(bomTemplate.isTokenRequired(L"%Weight"));
    EXPECT_TRUE(bomTemplate.isTokenRequired(L"%weight"));
    EXPECT_TRUE(bomTemplate.isTokenRequired(L"%WEIGHT"));
}

TEST(VorBomTemplateTest, SectionsAreTracedLevelByLevel)
{
    // Tokens that differ in case only stay in the order in which the sections name them.
    VorBomTemplate bomTemplate;
    Item* pHeader = newSection(Item::kReportHeader, { tuple(L"%aA", 0) });
    pHeader->addChild(newSection(Item::kDetails, { tuple(L"%aa", 0) }));
    bomTemplate.addData(tuple(L"%AA", 0));
    bomTemplate.addChild(pHeader);
    bomTemplate.addChild(newSection(Item::kReportFooter, { tuple(L"%Aa", 0) }));

    EXPECT_EQ((Texts{ L"%AA", L"%aA", L"%Aa", L"%aa" }), elementsOf(bomTemplate.getTokenTrace()));
}

TEST(VorBomTemplateTest, TracingFillsTheCachesOfEverySection)
{
    VorBomTemplate bomTemplate;
    Item* pHeader = newSection(Item::kReportHeader, { tuple(L"%GroupBy:%A", L"") });
    Item* pFirst = newSection(Item::kGroupHeader, { tuple(L"%SortAscBy:%B", L"") });
    Item* pSecond = newSection(Item::kGroupHeader, { tuple(L"%GroupBy:%C", L""), tuple(L"%FilterBy:3", L"") });
    bomTemplate.addChild(pHeader);
    pHeader->addChild(pFirst);
    pHeader->addChild(pSecond); // which findGroupingTokens alone would leave alone

    EXPECT_EQ(1, bomTemplate.findUsedTokens());

    EXPECT_EQ((Texts{ L"%A" }), elementsOf(pHeader->groupingTokens()));
    EXPECT_EQ((Texts{ L"%SortAscBy:%B" }), elementsOf(pFirst->sortingTokens()));
    EXPECT_EQ((Texts{ L"%C" }), elementsOf(pSecond->groupingTokens()));
    EXPECT_EQ(0, pSecond->filterObjTypes().length());
}

TEST(VorBomTemplateTest, TracingTwiceAddsNothing)
{
    VorBomTemplate bomTemplate;
    bomTemplate.addChild(newSection(Item::kDetails, { tuple(L"%Formula:%A*%A", 0.0), tuple(L"%GroupBy:%B", L""),
                                                      tuple(L"%SumBy:%Formula:%C+1", 0.0) }));
    const Texts trace = elementsOf(bomTemplate.getTokenTrace());

    EXPECT_EQ(1, bomTemplate.findUsedTokens());

    EXPECT_EQ(trace, elementsOf(bomTemplate.getTokenTrace()));
    EXPECT_EQ((Texts{ L"%B" }), elementsOf(static_cast<Item*>(bomTemplate.child())->groupingTokens()));
}

TEST(VorBomTemplateTest, TraceIsOnlyAddedTo)
{
    VorBomTemplate bomTemplate;
    bomTemplate.addChild(newSection(Item::kDetails, { tuple(L"%M", 0) }));
    bomTemplate.findUsedTokens();
    bomTemplate.child()->getData()[0] = tuple(L"%Z", 0);
    bomTemplate.child()->addData(tuple(L"%A", 0));
    EXPECT_EQ((Texts{ L"%M" }), elementsOf(bomTemplate.getTokenTrace())); // not computed anew by itself

    bomTemplate.findUsedTokens();

    EXPECT_EQ((Texts{ L"%A", L"%M", L"%Z" }), elementsOf(bomTemplate.getTokenTrace()));
}

TEST(VorBomTemplateTest, NoTokenIsRequiredBeforeTheTraceIsComputed)
{
    VorBomTemplate bomTemplate;
    bomTemplate.addChild(newSection(Item::kDetails, { tuple(L"%Weight", 0) }));
    EXPECT_FALSE(bomTemplate.isTokenRequired(L"%Weight"));

    bomTemplate.getTokenTrace();

    EXPECT_TRUE(bomTemplate.isTokenRequired(L"%wEIGHT"));
    EXPECT_FALSE(bomTemplate.isTokenRequired(L"%Weigh"));
    EXPECT_FALSE(bomTemplate.isTokenRequired(L"%Weights"));
    EXPECT_FALSE(bomTemplate.isTokenRequired(L""));
}

TEST(VorBomTemplateTest, EveryTracedTokenIsRequired)
{
    VorBomTemplate bomTemplate;
    bomTemplate.addChild(newSection(Item::kDetails));
    for (const auto& entry : kTokenUnits)
        bomTemplate.child()->addData(tuple(entry.token, 0));
    bomTemplate.findUsedTokens();

    for (const auto& entry : kTokenUnits)
        EXPECT_TRUE(bomTemplate.isTokenRequired(entry.token)) << VorString(entry.token);
}

TEST(VorBomTemplateTest, ManyTokensInDeepAndWideTreesAreTraced)
{
    VorBomTemplate bomTemplate;
    VorBomItemBase* pItem = &bomTemplate;
    const int numSections = 100000;
    for (int i = 0; i < numSections; ++i) // nested group headers
    {
        VorString token;
        token.format(L"%%GroupBy:%%T%d", i);
        pItem->addChild(newSection(Item::kGroupHeader, { tuple(token.getStringW(), L"") }));
        pItem = pItem->child();
    }
    for (int i = 0; i < numSections; ++i) // siblings
        bomTemplate.addChild(newSection(Item::kDetails, { tuple(L"%Weight", 0) }));

    bomTemplate.findUsedTokens();

    EXPECT_EQ(2 * numSections + 1, bomTemplate.getTokenTrace().length());
    EXPECT_TRUE(bomTemplate.isTokenRequired(L"%t99999"));
}

TEST(VorBomTemplateTest, SetUnitsForTokensRegistersTheWholeTable)
{
    VorBomTemplate bomTemplate;

    bomTemplate.setUnitsForTokens(nullptr);

    for (const auto& entry : kTokenUnits)
        EXPECT_EQ(entry.type, bomTemplate.getBomTemplateUnits()->getUnitType(entry.token)) << VorString(entry.token);
    for (const wchar_t* token : { L"%PaintMeter", L"%ContourLength", L"%Quantity", L"%Name", L"%weight", L"%Angle" })
        EXPECT_EQ(Units::kNoUnit, bomTemplate.getBomTemplateUnits()->getUnitType(token)) << VorString(token);
}

TEST(VorBomTemplateTest, SetUnitsForTokensTakesTheManagersUnits)
{
    MEKUnitsCommon::setCurrentUnits(VorUnitsManager::metric());
    KTRepositoryProxy::clear();
    const VorUnitsManager imperial = VorUnitsManager::imperial();
    VorBomTemplate bomTemplate;

    bomTemplate.setUnitsForTokens(nullptr); // those of construction stay
    EXPECT_EQ(VorString(L"2286"), bomTemplate.getBomTemplateUnits()->getDisplayString(L"%Length", 2286.0));

    bomTemplate.setUnitsForTokens(&imperial);
    EXPECT_EQ(VorString(L"7' 6\""), bomTemplate.getBomTemplateUnits()->getDisplayString(L"%Length", 2286.0));
}

TEST(VorBomTemplateTest, ClientsRegisterBeforeTheTableOrNotAtAll)
{
    VorBomTemplate bomTemplate;
    bomTemplate.getBomTemplateUnits()->AddTokenType(L"%Paint", Units::kWeightUnit);

    bomTemplate.setUnitsForTokens(nullptr);
    bomTemplate.getBomTemplateUnits()->AddTokenType(L"%Weight", Units::kAreaUnit);

    EXPECT_EQ(Units::kWeightUnit, bomTemplate.getBomTemplateUnits()->getUnitType(L"%Paint"));
    EXPECT_EQ(Units::kWeightUnit, bomTemplate.getBomTemplateUnits()->getUnitType(L"%Weight"));
}

TEST(VorBomTemplateTest, UsedDataOfCountedRowsAreReported)
{
    VorBomTemplate bomTemplate;
    VorBomData& data = *bomTemplate.getBomData();
    data.addChild(newUsedRow(L"1", L"%A"));
    data.addChild(newUsedRow(L"2", L"%B"));
    static_cast<VorBomDataRow*>(data.lastChild())->setUseThisDataForSums(0);
    data.addChild(newRow({ usedTuple(L"%C", 0), usedTuple(L"%D", 2) }));
    VorBomDataRow* pLast = newUsedRow(L"3", L"%E");
    pLast->setEqualPartObjectHandles(arrayOf({ L"4", L"5" }));
    data.addChild(pLast);
    Item* pHeader = newSection(Item::kReportHeader);
    pHeader->setFirstDataRow(static_cast<VorBomDataRow*>(data.child()));
    bomTemplate.addChild(pHeader);
    VorStringArrayArray handles;
    VorStringArrayArray tokens;
    handles.append(arrayOf({ L"before" }));
    tokens.append(arrayOf({ L"%before" }));

    EXPECT_EQ(1, bomTemplate.getUsedHandlesAndTokens(handles, tokens));

    ASSERT_EQ(3, handles.length());
    ASSERT_EQ(3, tokens.length());
    EXPECT_EQ((Texts{ L"1" }), elementsOf(handles[1]));
    EXPECT_EQ((Texts{ L"%A" }), elementsOf(tokens[1]));
    EXPECT_EQ((Texts{ L"3", L"4", L"5" }), elementsOf(handles[2]));
    EXPECT_EQ((Texts{ L"%E" }), elementsOf(tokens[2]));
}

TEST(VorBomTemplateTest, UsedDataAreReportedUpToTheFirstReportFooter)
{
    VorBomTemplate bomTemplate;
    const std::unique_ptr<VorBomDataRow> pFirst(newUsedRow(L"1", L"%A"));
    const std::unique_ptr<VorBomDataRow> pSecond(newUsedRow(L"2", L"%B"));
    const std::unique_ptr<VorBomDataRow> pBelow(newUsedRow(L"3", L"%C"));
    const std::unique_ptr<VorBomDataRow> pAfter(newUsedRow(L"4", L"%D"));
    Item* pPage = newSection(Item::kPageHeader);
    Item* pReportFooter = newSection(Item::kReportFooter);
    Item* pNested = newSection(Item::kDetails);
    Item* pSecondFooter = newSection(Item::kReportFooter);
    pPage->setFirstDataRow(pFirst.get());
    pReportFooter->setFirstDataRow(pSecond.get()); // the footer itself still counts
    pNested->setFirstDataRow(pBelow.get());        // children do not
    pSecondFooter->setFirstDataRow(pAfter.get());
    for (Item* pSection : { newSection(Item::kReportHeader), pPage, pReportFooter, pSecondFooter })
        bomTemplate.addChild(pSection);
    pPage->addChild(pNested);
    VorStringArrayArray handles;
    VorStringArrayArray tokens;

    EXPECT_EQ(1, bomTemplate.getUsedHandlesAndTokens(handles, tokens));

    ASSERT_EQ(2, handles.length());
    EXPECT_EQ((Texts{ L"1" }), elementsOf(handles[0]));
    EXPECT_EQ((Texts{ L"2" }), elementsOf(handles[1]));
    EXPECT_EQ((Texts{ L"%B" }), elementsOf(tokens[1]));
}

TEST(VorBomTemplateTest, WithoutSectionsNoUsedDataAreReported)
{
    VorBomTemplate bomTemplate;
    bomTemplate.getBomData()->addChild(newUsedRow(L"1", L"%A"));
    VorStringArrayArray handles;
    VorStringArrayArray tokens;

    EXPECT_EQ(1, bomTemplate.getUsedHandlesAndTokens(handles, tokens));

    EXPECT_EQ(0, handles.length());
    EXPECT_EQ(0, tokens.length());
}

TEST(VorBomTemplateTest, CopiesShareSectionsUnitsAndData)
{
    const LeakCheck leaks;
    VorBomTemplate source;
    source.addChild(newSection(Item::kDetails, { tuple(L"%Weight", 0) }));
    source.setQueryFilter(L"phase = 3");
    source.setObjectPresentationOptions(6);
    source.findUsedTokens();
    VorBomTemplate copy(source);
    VorBomTemplate assigned;
    delete VorBomTemplateAccess::data(assigned); // assigning does not
    delete VorBomTemplateAccess::units(assigned);

    assigned = source;

    for (VorBomTemplate* pCopy : { &copy, &assigned })
    {
        EXPECT_EQ(Item::kBomTemplate, pCopy->type());
        EXPECT_EQ(source.child(), pCopy->child());
        EXPECT_EQ(source.getBomData(), pCopy->getBomData());
        EXPECT_EQ(source.getBomTemplateUnits(), pCopy->getBomTemplateUnits());
        EXPECT_EQ(VorString(L"phase = 3"), pCopy->getQueryFilter());
        EXPECT_TRUE(pCopy->isObjectPresentationOptionOn(static_cast<Option>(6)));
        EXPECT_TRUE(pCopy->isTokenRequired(L"%Weight"));
        VorBomTemplateAccess::forgetSharedParts(*pCopy); // only one of them may be destroyed with all
    }
}

TEST(VorBomTemplateTest, DestroyingATemplateDestroysSectionsUnitsAndRows)
{
    const LeakCheck leaks;
    VorBomTemplate bomTemplate;
    VorBomItemBase* pSection = &bomTemplate;
    VorBomItemBase* pRow = bomTemplate.getBomData();
    for (int i = 0; i < 100000; ++i)
    {
        pSection->addChild(newSection(Item::kGroupHeader, { tuple(L"%A", 1) }));
        pSection->addChild(newSection(Item::kGroupFooter, { tuple(L"%A", 1) }));
        pSection = pSection->child();
        pRow->addChild(newRow({ tuple(L"%A", 1) }));
        pRow->addChild(newRow({ tuple(L"%A", 1) }));
        pRow = pRow->child();
    }
    bomTemplate.setUnitsForTokens(nullptr);
}

TEST(VorBomTemplateTest, TemplatesHungIntoATemplateAreDestroyedOnce)
{
    const LeakCheck leaks;
    VorBomTemplate bomTemplate;
    auto* pInner = new VorBomTemplate;
    pInner->addChild(newSection(Item::kDetails, { tuple(L"%A", 1) }));
    bomTemplate.addChild(pInner);
}

TEST(VorBomTemplateTest, DestructorToleratesMissingUnitsAndData)
{
    const LeakCheck leaks;
    VorBomTemplate bomTemplate;
    delete VorBomTemplateAccess::data(bomTemplate);
    delete VorBomTemplateAccess::units(bomTemplate);
    VorBomTemplateAccess::data(bomTemplate) = nullptr;
    VorBomTemplateAccess::units(bomTemplate) = nullptr;
}

TEST(VorBomTemplateTest, EvaluatingWithoutDataAppendsNothing)
{
    VorBomTemplate bomTemplate;
    bomTemplate.addChild(newSection(Item::kReportHeader, { tuple(L"%A", 1) }));
    bomTemplate.addChild(newSection(Item::kReportFooter, { tuple(L"%A", 1) }));
    delete VorBomTemplateAccess::data(bomTemplate);
    VorBomTemplateAccess::data(bomTemplate) = nullptr;
    VorBomTemplate result;

    EXPECT_EQ(1, VorBomEvaluator2::evaluate(&bomTemplate, &result)); // as for data without rows

    EXPECT_EQ(nullptr, result.child());
}

TEST(VorBomTemplateTest, DefaultTemplateIsSpelledAsItAlwaysWas)
{
    const LeakCheck leaks;
    const std::unique_ptr<VorBomTemplate> pTemplate(VorBomTemplate::createDefaultTemplate());

    EXPECT_EQ(VorString(L"[ kBomTemplate ]\n"
                        L" [ kReportHeader][%FilterBy: %Beam , %Plate:]\n"
                        L"  [ kGroupHeader ][%GroupBy:%PosNum:][%SortAscBy:%Material:][%PosNum:0]\n"
                        L"   [ kGroupHeader ][%GroupBy:Material:][%SortDescBy:Weight:][%Material:0]\n"
                        L"    [ kDetails     ][%posNum:0][%Weight:0][%Material:0]\n"
                        L"   [ kGroupFooter ][%SumBy:%Weight:0]\n"
                        L"  [ kGroupFooter ][%SumBy:%Weight:0]\n"
                        L" [ kReportFooter]"),
              listOf(*pTemplate));
}

TEST(VorBomTemplateTest, DefaultInstructionsAreTextsAndColumnsAreInts)
{
    const std::unique_ptr<VorBomTemplate> pTemplate(VorBomTemplate::createDefaultTemplate());
    auto* pReportHeader = static_cast<Item*>(pTemplate->child());
    Item* pOuterHeader = pReportHeader->getSubItemAt(Item::kGroupHeader);
    ASSERT_NE(nullptr, pOuterHeader);

    EXPECT_EQ(VorBomDataValue::kStringData, pReportHeader->getData()[0].value().type());
    EXPECT_EQ(VorBomDataValue::kStringData, pOuterHeader->getData()[0].value().type());
    EXPECT_EQ(VorBomDataValue::kStringData, pOuterHeader->getData()[1].value().type());
    EXPECT_EQ(VorBomDataValue::kIntData, pOuterHeader->getData()[2].value().type());
    Item* pOuterFooter = pReportHeader->getSubItemAt(Item::kGroupFooter);
    ASSERT_NE(nullptr, pOuterFooter);
    EXPECT_EQ(VorBomDataValue::kIntData, pOuterFooter->getData()[0].value().type());
}

TEST(VorBomTemplateTest, DefaultTemplateNestsItsSections)
{
    const std::unique_ptr<VorBomTemplate> pTemplate(VorBomTemplate::createDefaultTemplate());
    Item* pReportHeader = pTemplate->getSubItemAt(Item::kReportHeader);
    ASSERT_NE(nullptr, pReportHeader);
    Item* pOuterHeader = pReportHeader->getSubItemAt(Item::kGroupHeader);
    ASSERT_NE(nullptr, pOuterHeader);
    Item* pInnerHeader = pOuterHeader->getSubItemAt(Item::kGroupHeader);
    ASSERT_NE(nullptr, pInnerHeader);

    EXPECT_NE(nullptr, pInnerHeader->getTupleAt(L"%GroupBy:Material"));
    EXPECT_EQ(nullptr, pReportHeader->getSubItemAt(Item::kDetails)); // two levels lower
    EXPECT_NE(nullptr, pInnerHeader->getSubItemAt(Item::kDetails));
    EXPECT_EQ(pTemplate->getSubItemAt(Item::kReportFooter), pTemplate->lastChild());
}

TEST(VorBomTemplateTest, DefaultTemplateUsesTwelveTokens)
{
    const std::unique_ptr<VorBomTemplate> pTemplate(VorBomTemplate::createDefaultTemplate());

    pTemplate->findUsedTokens();

    EXPECT_EQ((Texts{ L"%FilterBy: %Beam , %Plate", L"%GroupBy:%PosNum", L"%GroupBy:Material", L"%Material", L"%PosNum",
                      L"%posNum", L"%SortAscBy:%Material", L"%SortDescBy:Weight", L"%SumBy:%Weight", L"%Weight",
                      L"Material", L"Weight" }),
              elementsOf(pTemplate->getTokenTrace()));
    EXPECT_TRUE(pTemplate->isTokenRequired(L"%POSNUM"));
    EXPECT_TRUE(pTemplate->isTokenRequired(L"weight"));
    EXPECT_FALSE(pTemplate->isTokenRequired(L"%Length"));
}

TEST(VorBomTemplateTest, DefaultTemplateShowsWeightsInTheirUnit)
{
    MEKUnitsCommon::setCurrentUnits(VorUnitsManager::imperial());
    const std::unique_ptr<VorBomTemplate> pTemplate(VorBomTemplate::createDefaultTemplate());
    MEKUnitsCommon::setCurrentUnits(VorUnitsManager::metric());
    const Units& units = *pTemplate->getBomTemplateUnits();

    EXPECT_EQ(VorString(L"1000"), units.getDisplayString(L"%Weight", 453.59237));
    EXPECT_EQ(VorString(L"1000"), units.getDisplayString(L"%SumBy:%Weight", 453.59237));
    EXPECT_EQ(VorString(L"3"), units.getDisplayString(L"%PosNum", 3));
    EXPECT_EQ(VorString(L"453.592"), units.getDisplayString(L"%Material", 453.59237));
    EXPECT_EQ(Units::kNoUnit, units.getUnitType(L"%Length"));
}

TEST(VorBomTemplateTest, DefaultTokensWithoutUnitAreRegistered)
{
    const std::unique_ptr<VorBomTemplate> pTemplate(VorBomTemplate::createDefaultTemplate());
    Units& units = *pTemplate->getBomTemplateUnits();

    units.AddTokenType(L"%PosNum", Units::kWeightUnit);
    units.AddTokenType(L"%Material", Units::kWeightUnit);

    EXPECT_EQ(Units::kNoUnit, units.getUnitType(L"%PosNum"));
    EXPECT_EQ(Units::kNoUnit, units.getUnitType(L"%Material"));
}

TEST(VorBomTemplateTest, ReferenceToSortingTokensOutlivesASecondSearch)
{
    VorBomTemplate bomTemplate;
    Item* pGroup = newSection(Item::kGroupHeader, { tuple(L"%SortAscBy:%A", L"") });
    bomTemplate.addChild(pGroup);
    bomTemplate.findUsedTokens();
    const VorStringArray& sorting = pGroup->sortingTokens();

    pGroup->addData(tuple(L"%SortDescBy:%B", L""));
    bomTemplate.findUsedTokens();

    EXPECT_EQ((Texts{ L"%SortAscBy:%A", L"%SortDescBy:%B" }), elementsOf(sorting));
}

TEST(VorBomTemplateTest, OfTwoOrdersSetForOneTokenTheLastOneCounts)
{
    VorBomTemplate bomTemplate;
    EXPECT_EQ(0, bomTemplate.sortTypes().count());

    bomTemplate.setSortType(L"%Phase", VorBomDataToken::kSortString);
    bomTemplate.setSortType(L"%Phase", VorBomDataToken::kSortAlphanumeric);

    ASSERT_NE(nullptr, bomTemplate.sortTypes().find(L"%Phase"));
    EXPECT_EQ(VorBomDataToken::kSortAlphanumeric, bomTemplate.sortTypes().find(L"%Phase")->value);
    EXPECT_EQ(nullptr, bomTemplate.sortTypes().find(L"%phase"));
}
