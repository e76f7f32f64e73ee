// Random reports, evaluated by the engine and by the slow reference, must agree in everything that shows: the result
// tree, whether kept or handed over in pieces, the order of the rows, what was added to them and marked in them, and
// what was reported as misuse.

#include "RandomReport.h"
#include "ReferenceReport.h"

#include "MekBomEngine/Src/VorBomData.h"
#include "MekBomEngine/Src/VorBomDataRow.h"
#include "MekBomEngine/Src/VorBomEvaluator2.h"
#include "MekBomEngine/Src/VorBomTemplate.h"
#include "MekBomEngine/Src/VorBomTemplateItem.h"
#include "MekBomEngine/Src/VorBomTemplateUnits.h"
#include "MekBomEngine/Test/Support/ReportBuilders.h"
#include "MekBomEngine/Test/Support/SectionTree.h"
#include "MekRoots/Exp/VorUnitsManager.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace
{
const unsigned long long kUsualCases = 20000;
const VorString kEnginePath(L"MekBomEngine/Src/VorBomEvaluator2");

// Most texts share their characters, as those of rows made by a host do; those of 7, 14, 21 ... characters never do.
VorString engineText(const std::wstring& text)
{
    static std::map<std::wstring, VorString> shared;
    if (text.size() % 7 == 0)
        return VorString(text.c_str());
    return shared.emplace(text, VorString(text.c_str())).first->second;
}

std::wstring plainText(const VorString& text)
{
    return std::wstring(text.getStringW(), static_cast<std::size_t>(text.length()));
}

// Which units a template shows its numbers in.
enum UnitsChoice
{
    kUnitsNeverSet,
    kUnitsAsConstructed,
    kMetricUnits,
    kImperialUnits,
    kNumUnitsChoices
};

void setUnits(VorBomTemplate& tmpl, UnitsChoice choice)
{
    static const VorUnitsManager metric = VorUnitsManager::metric();
    static const VorUnitsManager imperial = VorUnitsManager::imperial();
    if (choice != kUnitsNeverSet)
        tmpl.setUnitsForTokens(choice == kMetricUnits ? &metric : choice == kImperialUnits ? &imperial : nullptr);
}

// Formats numbers of a kind for the reference; formatting itself is not what is compared here.
class NumberFormatter
{
public:
    explicit NumberFormatter(UnitsChoice choice)
    {
        setUnits(m_template, choice);
        for (int type = RefUnits::kDistance; type <= RefUnits::kDensity; ++type)
            m_template.getBomTemplateUnits()->AddTokenType(nameOf(type),
                                                           static_cast<VorBomTemplateUnits::eTokenUnitType>(type));
    }

    std::wstring format(int type, double value) const
    {
        return plainText(m_template.getBomTemplateUnits()->getDisplayString(nameOf(type), value));
    }

private:
    static VorString nameOf(int type) { return engineText(L"number of kind " + std::to_wstring(type)); }

    VorBomTemplate m_template;
};

// What of an evaluation is not in the report itself.
struct Circumstances
{
    UnitsChoice units;
    std::vector<std::pair<std::wstring, int>> unitsBefore; // registered by the host before the usual tokens
    std::vector<std::pair<std::wstring, int>> unitsAfter;
    bool isPrepared;
    bool hasResult;
    int numEvaluations;
    bool isResultKept;      // by the second evaluation
    bool areSectionsSorted; // in the end, by themselves
    bool isHandedOver;      // section by section, where there is a result
};

Circumstances randomCircumstances(Dice& dice, RandomReport& source)
{
    Circumstances chosen;
    chosen.units = static_cast<UnitsChoice>(dice.below(kNumUnitsChoices));
    for (int i = dice.below(6); i > 3; --i)
    {
        const std::wstring token = source.someTokenWithUnit();
        chosen.unitsBefore.emplace_back(token, dice.below(10));
    }
    for (int i = dice.below(6); i > 3; --i)
    {
        const std::wstring token = source.someTokenWithUnit();
        chosen.unitsAfter.emplace_back(token, dice.below(10));
    }
    chosen.isPrepared = !dice.oneIn(25);
    chosen.hasResult = !dice.oneIn(50);
    chosen.numEvaluations = dice.oneIn(10) ? 2 : 1;
    chosen.isResultKept = dice.oneIn(2);
    chosen.areSectionsSorted = dice.oneIn(6);
    chosen.isHandedOver = dice.oneIn(2);
    return chosen;
}

VorBomDataTuple engineTuple(const RefTuple& tuple)
{
    VorBomDataTuple made(engineText(tuple.token), 0);
    switch (tuple.value.kind)
    {
        case RefValue::kInt: made.value().set(tuple.value.integer); break;
        case RefValue::kDouble: made.value().set(tuple.value.number); break;
        case RefValue::kText: made.value().set(engineText(tuple.value.text)); break;
        default: VorBomDataValue(std::move(made.value())); break; // leaves an empty value behind
    }
    made.setUsed(tuple.used);
    return made;
}

void addSections(VorBomItemBase& parent, const RefSection& section)
{
    for (const RefReport::SectionPtr& child : section.children)
    {
        auto* made = new VorBomTemplateItem(static_cast<VorBomTemplateItem::eTemplateItemType>(child->type));
        for (const RefTuple& tuple : child->tuples)
            made->addData(engineTuple(tuple));
        addSections(*made, *child);
        parent.addChild(made);
    }
}

void addRows(VorBomData& data, const std::vector<RefRow>& rows)
{
    for (const RefRow& row : rows)
    {
        auto* made = new VorBomDataRow;
        made->setObjectHandle(engineText(row.handle));
        made->setUseThisDataForSums(row.countsInSums);
        for (const RefTuple& tuple : row.tuples)
            made->addData(engineTuple(tuple));
        if (row.handle.back() == L'7')
            made->addChild(new VorBomDataRow(*made)); // no report visits the parts of a row
        data.addChild(made);
    }
}

void registerUnits(VorBomTemplate& tmpl, RefUnits& units, const std::vector<std::pair<std::wstring, int>>& types)
{
    for (const auto& [token, type] : types)
    {
        tmpl.getBomTemplateUnits()->AddTokenType(engineText(token),
                                                 static_cast<VorBomTemplateUnits::eTokenUnitType>(type));
        units.add(token, type);
    }
}

std::wstring describeTuple(const std::wstring& token, int kind, const std::wstring& text, int used)
{
    return L"[" + token + L":" + L"?idt"[kind] + text + (used == 1 ? L"*]" : L"]");
}

// The rows as they stand: handles, flags and tuples.
std::wstring describeRows(const RefReport& report)
{
    std::wstring text = L"last " + (report.lastChild == nullptr ? L"none" : report.lastChild->handle);
    for (const RefRow* row : report.order)
    {
        text += L"\n" + row->handle + L" counts " + std::to_wstring(row->countsInSums) + L" ";
        for (const RefTuple& tuple : row->tuples)
            text += describeTuple(tuple.token, tuple.value.kind, tuple.value.asText(), tuple.used);
    }
    return text;
}

std::wstring describeRows(VorBomData& data)
{
    const auto* last = static_cast<const VorBomDataRow*>(data.lastChild());
    std::wstring text = L"last " + (last == nullptr ? L"none" : plainText(last->objectHandle()));
    for (const VorBomItemBase* item = data.child(); item != nullptr; item = item->next())
    {
        const auto* row = static_cast<const VorBomDataRow*>(item);
        text +=
            L"\n" + plainText(row->objectHandle()) + L" counts " + std::to_wstring(row->getUseThisDataForSums()) + L" ";
        for (const VorBomDataTuple& tuple : row->getData())
            text += describeTuple(plainText(tuple.token().token()), tuple.value().type(),
                                  plainText(tuple.value().asString()), tuple.used());
    }
    return text;
}

// What the listing does not show of evaluated sections: the kinds of their values and the row that opened them.
std::wstring describeSections(const RefSection& section)
{
    std::wstring text = section.firstRow == nullptr ? L"-" : section.firstRow->handle;
    for (const RefTuple& tuple : section.tuples)
        text += L"?idt"[tuple.value.kind];
    for (const std::wstring& token : section.groupingTokens)
        text += L"," + token;
    for (const std::wstring& token : section.sortingTokens)
        text += L";" + token;
    for (const RefReport::SectionPtr& child : section.children)
        text += L"\n" + describeSections(*child);
    return text;
}

std::wstring describeSections(VorBomTemplateItem& section)
{
    std::wstring text =
        section.getFirstDataRow() == nullptr ? L"-" : plainText(section.getFirstDataRow()->objectHandle());
    for (const VorBomDataTuple& tuple : section.getData())
        text += L"?idt"[tuple.value().type()];
    for (const VorString& token : section.groupingTokens())
        text += L"," + plainText(token);
    for (const VorString& token : section.sortingTokens())
        text += L";" + plainText(token);
    for (VorBomItemBase* child = section.child(); child != nullptr; child = child->next())
        text += L"\n" + describeSections(*static_cast<VorBomTemplateItem*>(child));
    return text;
}

std::wstring listingOf(VorBomItemBase& item)
{
    VorString text;
    item.list(text, 0, 1, 1);
    return plainText(text);
}

// Gives the reference the order that the engine put the rows in; false when they are not the same rows any more.
bool takeOverOrder(RefReport& report, VorBomData& data)
{
    std::vector<RefRow*> order;
    std::vector<bool> isSeen(report.rows.size(), false);
    for (const VorBomItemBase* item = data.child(); item != nullptr; item = item->next())
    {
        const auto place =
            static_cast<std::size_t>(static_cast<const VorBomDataRow*>(item)->objectHandle().toInteger());
        if (isSeen[place])
            return false;
        isSeen[place] = true;
        order.push_back(&report.rows[place]);
    }
    report.order = order;
    return order.size() == report.rows.size();
}

std::string narrow(const std::wstring& text)
{
    return toUtf8(engineText(text));
}

// Texts are made readable only where they differ; in nearly all cases they do not.
void expectSame(const std::wstring& expected, const std::wstring& got, const char* what)
{
    if (expected != got)
    {
        EXPECT_EQ(narrow(expected), narrow(got)) << what;
    }
}

// Everything that goes into the case of `seed`.
std::string describeCase(unsigned long long seed)
{
    Dice dice(seed);
    RefReport report;
    RandomReport(dice).fill(report);
    return RandomCases::repetition(seed) + "\ntemplate\n" + narrow(report.root.listing()) + "\nrows\n" +
           narrow(describeRows(report));
}

// One random report in both worlds.
class Comparison
{
public:
    explicit Comparison(unsigned long long seed) : m_dice(seed), m_source(m_dice)
    {
        m_source.fill(m_report);
        m_circumstances = randomCircumstances(m_dice, m_source);
        addSections(m_template, m_report.root);
        addRows(*m_template.getBomData(), m_report.rows);
        chooseUnits();
        if (!m_circumstances.isPrepared)
            return;
        m_template.findUsedTokens();
        m_report.prepare();
    }

    void run()
    {
        for (int i = 0; i < m_circumstances.numEvaluations && !testing::Test::HasFailure(); ++i)
        {
            if (i == 0 || !m_circumstances.isResultKept)
            {
                m_result = std::make_unique<VorBomTemplate>();
                m_expected = RefSection(RefSection::kBomTemplate);
            }
            evaluateBoth();
            compare();
        }
        if (m_circumstances.areSectionsSorted)
            sortSectionsOfBoth();
    }

private:
    void chooseUnits()
    {
        registerUnits(m_template, m_report.units, m_circumstances.unitsBefore);
        setUnits(m_template, m_circumstances.units);
        if (m_circumstances.units != kUnitsNeverSet)
            m_report.units.addUsualTokens();
        registerUnits(m_template, m_report.units, m_circumstances.unitsAfter);
        static const NumberFormatter kFormatters[kNumUnitsChoices] = { NumberFormatter(kUnitsNeverSet),
                                                                       NumberFormatter(kUnitsAsConstructed),
                                                                       NumberFormatter(kMetricUnits),
                                                                       NumberFormatter(kImperialUnits) };
        const NumberFormatter& formatter = kFormatters[m_circumstances.units];
        m_report.units.format = [&formatter](int type, double value) { return formatter.format(type, value); };
    }

    void evaluateBoth()
    {
        const bool hasOneOrder = m_report.hasOneOrder();
        const AssertLog log;
        m_report.misuses.clear();
        const int got = evaluateByEngine();
        m_report.sort();
        // Any order of the same rows will do where the requests do not give one.
        if (!hasOneOrder)
        {
            ASSERT_TRUE(takeOverOrder(m_report, *m_template.getBomData())) << "rows lost or doubled";
        }
        ASSERT_EQ(m_report.evaluate(m_circumstances.hasResult ? &m_expected : nullptr), got);
        compareReports(log);
    }

    int evaluateByEngine()
    {
        if (!m_circumstances.hasResult)
            return VorBomEvaluator2::evaluate(&m_template, nullptr);
        if (!m_circumstances.isHandedOver)
            return VorBomEvaluator2::evaluate(&m_template, m_result.get());
        SectionTree tree(*m_result);
        return VorBomEvaluator2::evaluate(&m_template, tree);
    }

    void compareReports(const AssertLog& log)
    {
        for (const wchar_t* text : { L"false", L"!bIsSummingRequest", L"NULL != completedGroup.m_pCollector",
                                     L"VorBomTemplateItem::kDetails != state.m_pHeader->type()" })
            EXPECT_EQ(m_report.misuses[text], log.count(text, kEnginePath)) << narrow(text);
    }

    void compare()
    {
        expectSame(m_expected.listing(), listingOf(*m_result), "the result");
        expectSame(describeSections(m_expected), describeSections(*m_result), "kinds, first rows and requests in it");
        expectSame(describeRows(m_report), describeRows(*m_template.getBomData()), "the rows");
        expectSame(m_report.root.listing(), listingOf(m_template), "the template");
        for (const auto& [token, type] : m_report.units.types)
            EXPECT_EQ(type, m_template.getBomTemplateUnits()->getUnitType(engineText(token))) << narrow(token);
    }

    // Of sections without one order nothing is known but that all are still there.
    void sortSectionsOfBoth()
    {
        VorBomEngineStateArray stack = VorBomEvaluator2Access::getTemplateStack(&m_template);
        VorBomEvaluator2Access::sortSubGroupsOnLevels(m_result.get(), stack, 0);
        if (sortSections(m_expected, m_report.sortingRequests()))
            expectSame(m_expected.listing(), listingOf(*m_result), "the result with its sections sorted");
        else
            EXPECT_EQ(m_expected.listing().size(), listingOf(*m_result).size()) << "sections lost";
    }

    Dice m_dice;
    RandomReport m_source;
    RefReport m_report;
    Circumstances m_circumstances;
    VorBomTemplate m_template;
    std::unique_ptr<VorBomTemplate> m_result;
    RefSection m_expected{ RefSection::kBomTemplate };
};
}

TEST(ReportRandomTest, RandomReportsComeOutAsTheReferenceMakesThem)
{
    for (const unsigned long long seed : RandomCases(kUsualCases))
    {
        Comparison comparison(seed);
        comparison.run();
        ASSERT_FALSE(HasFailure()) << describeCase(seed);
    }
}
