// The footer of the open group is there from the start. Told on "%SumBy:%Weight" 0.0 and "%Material" "":
//   beginFooter                  0.0 and "", a copy of the template's section
//   row 2.5, S235                2.5 and S235: a total adds, a plain token takes the value over
//   row 1.5 without material     4.0 and S235: what a row lacks changes nothing
//   row that does not count      4.0 and S235
//   finish                       this footer is handed over, and the next begun as a fresh copy
#include "VorBomFooterPlan.h"

#include "MekRoots/Exp/VorAssert.h"

#include <limits>
#include <utility>

namespace
{
const wchar_t kSourcePath[] = L"MekBomEngine/Src/VorBomEvaluator2"; // whose reports these are

int intOf(const VorBomDataValue& value)
{
    return *static_cast<const int*>(value.data());
}

double doubleOf(const VorBomDataValue& value)
{
    return *static_cast<const double*>(value.data());
}

bool isDouble(const VorBomDataValue& value)
{
    return value.type() == VorBomDataValue::kDoubleData;
}

bool isNumber(const VorBomDataValue& value)
{
    return value.type() == VorBomDataValue::kIntData || isDouble(value);
}

double numberOf(const VorBomDataValue& value)
{
    return value.type() == VorBomDataValue::kIntData ? intOf(value) : doubleOf(value);
}

// A total may stand in its template as an empty text. What kind of number it is, its first row tells.
void setToZeroLike(const VorBomDataValue& number, VorBomDataValue& value)
{
    if (number.type() == VorBomDataValue::kIntData)
        value.set(0);
    else
        value.set(0.0);
}

// 2147483647 and 1 make 2147483648, which no int holds: the total is a double from then on, and stays one even when -1
// brings it back.
void addToTotal(VorBomDataValue& total, const VorBomDataValue& added)
{
    if (!isNumber(total))
        setToZeroLike(added, total);
    if (total.type() == VorBomDataValue::kIntData && added.type() == VorBomDataValue::kIntData)
    {
        // In 64 bits no two ints overflow, and whether the sum fits 32 is seen afterwards.
        const long long sum = static_cast<long long>(intOf(total)) + intOf(added);
        if (sum >= std::numeric_limits<int>::min() && sum <= std::numeric_limits<int>::max())
            total.set(static_cast<int>(sum));
        else
            total.set(static_cast<double>(sum));
        return;
    }
    total.set(numberOf(total) + numberOf(added));
}

// Lets a column of the footer take in one row's value.
void takeValue(VorBomDataValue& columnValue, const VorBomDataValue& rowValue, bool isSum)
{
    if (isNumber(rowValue) && isSum)
    {
        addToTotal(columnValue, rowValue);
        return;
    }
    if (isSum && rowValue.type() == VorBomDataValue::kStringData)
        VorAssert::vorAssert(L"!bIsSummingRequest", kSourcePath, __LINE__);
    columnValue = rowValue; // an empty value changes nothing
}

// What each column is looked up by in rows: a plain token by itself, a total by the token that it adds up.
std::vector<VorString> tokensOf(const VorBomDataTupleArray& tuples)
{
    std::vector<VorString> tokens;
    for (const VorBomDataTuple& tuple : tuples)
    {
        tokens.push_back(tuple.token().token());
        tuple.token().getSummingRequest(tokens.back());
    }
    return tokens;
}
}

VorBomFooterPlan::VorBomFooterPlan(const std::shared_ptr<VorBomTuplePositions>& pPositions,
                                   const VorBomTemplateItem& section)
    : m_section(section), m_columns(pPositions, tokensOf(section.getData())), m_display(section.getData())
{
    for (const VorBomDataTuple& tuple : section.getData())
    {
        VorString summed;
        m_isSum.push_back(tuple.token().getSummingRequest(summed) != 0 ? 1 : 0);
    }
    beginFooter();
}

// To be called when the row has passed through all levels: only then do formulas stand in it and is it known to count.
void VorBomFooterPlan::takeNewRows(const VorBomDataRowPointerArray& rows)
{
    for (; m_nTakenRows < rows.length(); ++m_nTakenRows)
        takeIn(*rows.begin()[m_nTakenRows]);
}

std::unique_ptr<VorBomTemplateItem> VorBomFooterPlan::finish(const VorBomDataRowPointerArray& rows)
{
    takeNewRows(rows);
    std::unique_ptr<VorBomTemplateItem> pFinished = std::move(m_pFooter);
    m_numFoundInFinished.swap(m_numFound);
    m_wholeSumsInFinished.swap(m_wholeSums);
    beginFooter();
    return pFinished;
}

void VorBomFooterPlan::keepValues()
{
    m_display.keepValues();
    m_keepsValues = true;
    beginWholeSums();
}

// Totals of ints that have become doubles are told apart by their rows: each that had a datum had an int.
const VorBomTypedValue* VorBomFooterPlan::typedValues()
{
    const VorBomTypedValue* const pValues = m_display.values();
    for (std::size_t i = 0; i < m_wholeSumsInFinished.size(); ++i)
    {
        const WholeSum& whole = m_wholeSumsInFinished[i];
        if (pValues[i].type == VorBomDataValue::kDoubleData && whole.numAdded == m_numFoundInFinished[i] &&
            whole.numAdded > 0)
            m_display.setWholeTotal(static_cast<int>(i), whole.sum);
    }
    return pValues;
}

// Room is taken for the section's tuples and no more, since nothing is appended to a footer.
void VorBomFooterPlan::beginFooter()
{
    m_pFooter = std::make_unique<VorBomTemplateItem>(m_section, VorBomTemplateItem::kWithoutLinksAndTuples);
    m_pFooter->getData().setPhysicalLength(m_section.getData().length());
    m_pFooter->setData(m_section.getData());
    m_numFound.assign(m_isSum.size(), 0);
    if (m_keepsValues)
        beginWholeSums();
    m_nTakenRows = 0;
}

// A total starts from the template's number, from zero where that is none; from a double no sum of ints comes.
void VorBomFooterPlan::beginWholeSums()
{
    const VorBomDataTuple* pColumn = m_section.getData().begin();
    m_wholeSums.resize(m_isSum.size());
    for (std::size_t i = 0; i < m_isSum.size(); ++i, ++pColumn)
    {
        const VorBomDataValue& start = pColumn->value();
        m_wholeSums[i].sum = start.type() == VorBomDataValue::kIntData ? intOf(start) : 0;
        m_wholeSums[i].numAdded = m_isSum[i] != 0 && !isDouble(start) ? 0 : WholeSum::kNone;
    }
}

void VorBomFooterPlan::addWhole(WholeSum& whole, const VorBomDataValue& value)
{
    if (value.type() != VorBomDataValue::kIntData || whole.numAdded == WholeSum::kNone)
        return;
    whole.sum += intOf(value);
    ++whole.numAdded;
}

// Columns and tuples stand in one order, as the columns were made from the section's tuples: the i-th column finds what
// the i-th tuple takes in.
void VorBomFooterPlan::takeIn(VorBomDataRow& row)
{
    if (row.getUseThisDataForSums() == 0)
        return;
    const VorBomColumns::Found found = m_columns.find(row);
    VorBomDataTuple* pTuple = m_pFooter->getData().begin();
    const int numColumns = m_columns.count();
    for (int i = 0; i < numColumns; ++i, ++pTuple)
    {
        const VorBomDataTuple* pDatum = found[i];
        if (pDatum == nullptr)
            continue;
        ++m_numFound[static_cast<std::size_t>(i)];
        const bool isSum = m_isSum[static_cast<std::size_t>(i)] != 0;
        VorBomDataValue& value = pTuple->value();
        if (isSum && isDouble(value) && isDouble(pDatum->value())) // as takeValue() does it: nearly every total
            value.set(doubleOf(value) + doubleOf(pDatum->value()));
        else
        {
            if (m_keepsValues)
                addWhole(m_wholeSums[static_cast<std::size_t>(i)], pDatum->value());
            takeValue(value, pDatum->value(), isSum);
        }
    }
}
