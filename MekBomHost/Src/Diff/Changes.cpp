// The lines that have changed are rows of a report of their own, which the engine groups and adds up as it does any:
//
//   pair      B1 4 537.6 kg   ->   B7 6 806.4 kg
//   row       %KindOfChange "changed"  %Shown0 "B1 → B7"  %Shown1 "4 → 6"  %Change1 2  %Shown2 "537.6 → 806.4"  ...
#include "Changes.h"

#include "ChangesTemplate.h"
#include "ExplainedReport.h"
#include "Fault.h"
#include "FindingCodes.h"
#include "InQuotes.h"
#include "ListNumbers.h"
#include "TemplateLevels.h"
#include "TemplateReader.h"
#include "Utf8.h"

#include "VorBomDataRow.h"
#include "VorBomDataTuple.h"

#include <algorithm>
#include <memory>
#include <string_view>
#include <utility>

namespace mekbom
{
namespace
{
const char* const kArrow = " \u2192 ";
const char* const kNothing = "\u2013"; // of a text that is not there, beside one that is

// Data of a part that may change without other steel: what it is called, where it goes, what is said of it, and what it
// weighs, which is counted besides.
const std::string_view kNotOfTheSteel[] = {
    "%PNum",
    "%MNum",
    "%MName",
    "%Num",
    "%PreliminaryNum",
    "%Phase",
    "%Class",
    "%Role",
    "%FreeRemark",
    "%Set",
    "%PreDefinedRemark",
    "%ElementID",
    "%Level",
    "%JointName",
    "%LoadNumber",
    "%Carrier",
    "%Supplier",
    "%FabricationStation",
    "%PONumber",
    "%DeliveryDate",
    "%ShippedDate",
    "%Handle",
    "%RequisitionNumber",
    "%ApprovalComment",
    "%ApprovalCode",
    "%ApprovalStatus",
    "%Assembly",
    "%Weight",
    "%ExactWeight",
    "%AssemblyWeight",
    "%ObjectTopLevel",
    "%ObjectBottomLevel",
};

bool isOfTheSteel(const VorString& token)
{
    return std::find(std::begin(kNotOfTheSteel), std::end(kNotOfTheSteel), Utf8::toBytes(token)) ==
           std::end(kNotOfTheSteel);
}

bool isNumber(const VorBomTypedValue& value)
{
    return value.type == VorBomDataValue::kIntData || value.type == VorBomDataValue::kDoubleData;
}

double numberOf(const ComparedLine* pLine, std::size_t column)
{
    return pLine != nullptr && isNumber(pLine->values[column]) ? pLine->values[column].number : 0;
}

std::string orNothing(const std::string& text)
{
    return text.empty() ? kNothing : text;
}

std::string shownText(const ComparedLine* pOld, const ComparedLine* pNew, std::size_t column)
{
    if (pOld == nullptr || pNew == nullptr)
        return (pOld == nullptr ? pNew : pOld)->texts[column];
    const std::string& before = pOld->texts[column];
    const std::string& now = pNew->texts[column];
    return before == now ? now : orNothing(before) + kArrow + orNothing(now);
}

void addText(VorBomDataRow& row, const std::string& token, const std::string& text)
{
    if (!text.empty())
        row.addData(VorBomDataTuple(Utf8::toWide(token), Utf8::toWide(text)));
}

ReportTemplate templateOf(const EvaluatedReport& report, const ReportJob& job,
                          const std::vector<ComparedColumn>& columns)
{
    const std::string text = ChangesTemplate::textOf(report, job.reportTemplate(), columns);
    return TemplateReader::read("list of changes", text);
}

std::string countedLines(int number, const char* what)
{
    return std::to_string(number) + (number == 1 ? " line " : " lines ") + what;
}

const ReportColumn& columnOfChange(const EvaluatedReport& changes, std::size_t column)
{
    const VorString token = Utf8::toWide(ChangesTemplate::changeToken(column));
    return *std::find_if(changes.columns().begin(), changes.columns().end(),
                         [&token](const ReportColumn& candidate) { return candidate.token == token; });
}
}

Changes::Changes(const ComparedList& oldList, const ComparedList& newList, const ReportJob& newJob,
                 LineContents contents)
    : m_newReport(newJob.report()),
      m_columns(newList.columns()),
      m_report(templateOf(m_newReport, newJob, m_columns), newJob.units(), newJob.settings(), contents),
      m_balances(m_columns.size())
{
    requireSameColumns(oldList);
    for (const LinePair& pair : LinePairs::of(oldList, newList))
        add(pair);
    m_report.evaluate();
    m_report.facts().statements = statements();
}

// Numbers are compared as they are shown.
void Changes::requireSameColumns(const ComparedList& oldList) const
{
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        if (oldList.columns()[i].heading != m_columns[i].heading)
            throw Fault(kInvalidInput,
                        Finding::of(FindingCodes::kListsUnlike,
                                    "a column " + inQuotes(oldList.columns()[i].heading) + " in the old list and " +
                                        inQuotes(m_columns[i].heading) + " in the new one",
                                    "the same units in both parts lists"));
}

void Changes::add(const LinePair& pair)
{
    if (pair.pOld != nullptr && pair.pNew != nullptr && pair.pOld->texts == pair.pNew->texts)
    {
        ++m_numSame;
        return;
    }
    count(pair);
    if (pair.pOld == nullptr)
        ++m_numAdded;
    else if (pair.pNew == nullptr)
        ++m_numRemoved;
    else
        ++m_numChanged;
    if (pair.pOld == nullptr)
        addRow("added", nullptr, pair.pNew);
    else if (pair.pNew == nullptr)
        addRow("removed", pair.pOld, nullptr);
    else if (hasMoved(pair))
    {
        addRow("changed, old", pair.pOld, nullptr);
        addRow("changed, new", nullptr, pair.pNew);
    }
    else
        addRow("changed", pair.pOld, pair.pNew);
}

void Changes::addRow(const char* change, const ComparedLine* pOld, const ComparedLine* pNew)
{
    auto pRow = std::make_unique<VorBomDataRow>();
    addText(*pRow, ChangesTemplate::kKindToken, change);
    for (std::size_t i = 0; i < m_columns.size(); ++i)
    {
        addText(*pRow, ChangesTemplate::shownToken(i), shownText(pOld, pNew, i));
        const double difference = numberOf(pNew, i) - numberOf(pOld, i);
        if (m_columns[i].isCounted && difference != 0)
            pRow->addData(VorBomDataTuple(Utf8::toWide(ChangesTemplate::changeToken(i)), difference));
    }
    m_report.engineTemplate().getBomData()->addChild(pRow.release());
}

void Changes::count(const LinePair& pair)
{
    const bool replacesAll = pair.pOld != nullptr && pair.pNew != nullptr && makesOtherSteel(pair);
    for (std::size_t i = 0; i < m_columns.size(); ++i)
    {
        if (!m_columns[i].isCounted)
            continue;
        Balance& balance = m_balances[i];
        const auto lacks = [i](const ComparedLine* pLine) { return pLine != nullptr && !isNumber(pLine->values[i]); };
        balance.numLines += lacks(pair.pOld) || lacks(pair.pNew) ? 0 : 1;
        const double before = numberOf(pair.pOld, i);
        const double now = numberOf(pair.pNew, i);
        balance.ordered += replacesAll ? now : std::max(now - before, 0.0);
        balance.sentBack += replacesAll ? before : std::max(before - now, 0.0);
    }
}

bool Changes::hasMoved(const LinePair& pair) const
{
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        if (m_columns[i].groupLevel >= 0 && pair.pOld->texts[i] != pair.pNew->texts[i])
            return true;
    return false;
}

bool Changes::makesOtherSteel(const LinePair& pair) const
{
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        if (!m_columns[i].isCounted && pair.pOld->texts[i] != pair.pNew->texts[i] &&
            isOfTheSteel(m_newReport.columns()[i].token))
            return true;
    return false;
}

// "Pieces 18, Weight 312.19 kg"; empty where there is nothing of it. Shown as the changes are in the footer of the list,
// which has a tuple for each counted column, in their order.
std::string Changes::balanceText(double Balance::*side) const
{
    const EvaluatedReport changes = report();
    const ExplainedReport explained{ m_report.reportTemplate(), m_report.units(), changes, m_report.rowNumbers() };
    const TemplateLevels levels(*m_report.reportTemplate().pTemplate);
    std::string text;
    int tuple = -1;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
    {
        if (!m_columns[i].isCounted)
            continue;
        ++tuple;
        const double number = m_balances[i].*side;
        if (number == 0)
            continue;
        const ReportColumn& column = m_newReport.columns()[i];
        const auto type = column.pUnitKind == nullptr ? VorBomTemplateUnits::kNoUnit
                                                      : VorBomTemplateUnits::unitTypeOf(column.pUnitKind->system);
        const ListNumbers numbers(explained, *levels.section({ 0, true }), tuple,
                                  { VorBomDataValue::kDoubleData, type, number }, columnOfChange(changes, i));
        text += (text.empty() ? "" : ", ") + column.label + " " + numbers.withUnit(numbers.textOf(number));
    }
    return text;
}

std::vector<std::string> Changes::statements() const
{
    const std::string same = countedLines(m_numSame, "as before");
    if (!any())
        return { "Nothing has changed: " + same };
    std::vector<std::string> all = { countedLines(m_numAdded, "added") + ", " + countedLines(m_numRemoved, "removed") +
                                     ", " + countedLines(m_numChanged, "changed") + ", " + same };
    if (const std::string ordered = balanceText(&Balance::ordered); !ordered.empty())
        all.push_back("Order in addition: " + ordered);
    if (const std::string sentBack = balanceText(&Balance::sentBack); !sentBack.empty())
        all.push_back("Send back: " + sentBack);
    for (const std::string& gap : gaps())
        all.push_back(gap);
    return all;
}

// An order is short by what its lines do not say. A column that no line has anything in orders nothing.
std::vector<std::string> Changes::gaps() const
{
    const int numLines = m_numAdded + m_numRemoved + m_numChanged;
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        if (const int number = m_balances[i].numLines; m_columns[i].isCounted && number > 0 && number < numLines)
            texts.push_back(m_newReport.columns()[i].label + ": " + std::to_string(number) + " of " +
                            countedLines(numLines, "that differ"));
    return texts;
}
}
