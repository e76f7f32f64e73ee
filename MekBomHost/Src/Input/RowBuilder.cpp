// Most texts of a parts list come back, a mark such as "B417" on some twenty rows of a million. Its row gets a copy
// that shares the characters, and making one touches three places of memory, none of which the processor's caches hold:
// the entry of the pool, found by the text's bytes; the characters it names; the count of their users beside them. Row
// by row, the processor would wait for one after the other. So of 64 rows all entries are asked for first, while the
// cells are still being read (addText), then all texts are found and their counts asked for (findTexts), and only then
// are the rows made (buildRow): the waits for 64 rows lie on top of each other.
#include "RowBuilder.h"

#include "ByteWord.h"
#include "Utf8.h"

#include "VorBomDataRow.h"

#include "MekRoots/Exp/VorMemoryHint.h"

#include <memory>

namespace mekbom
{
// Rows, values and texts that are in no pool get as much room as 64 rows can need, and never move: look-ups point at
// values, and values at handles and texts.
RowBuilder::RowBuilder(VorBomData& data, std::size_t numColumns)
    : m_data(data), m_texts(numColumns), m_rows(kMostRows), m_values(kMostRows * (numColumns + 2))
{
    m_unshared.reserve(m_values.size());
    begin();
}

// A row has at most one text for each column, so no pool is asked for more texts than it is prepared for, and what it
// gave stays where it is until the rows are built.
void RowBuilder::begin()
{
    m_numRows = 0;
    m_numValues = 0;
    m_lookUps.clear();
    m_unshared.clear();
    for (TextPool& texts : m_texts)
        texts.prepare(kMostRows);
}

void RowBuilder::beginRow()
{
    Row& row = m_rows[m_numRows++];
    row.firstDatum = m_numValues;
    row.handle.empty();
    row.shortHandle = 0;
}

// A short one is made with its row, so that it lies beside it.
void RowBuilder::setHandle(std::string_view text)
{
    Row& row = m_rows[m_numRows - 1];
    if (text.size() <= ByteWord::kSize)
        row.shortHandle = ByteWord::of(text);
    else
        row.handle = Utf8::toWide(text);
}

RowBuilder::Datum& RowBuilder::addDatum(const VorString& token, VorBomDataValue::eBomDataValueType type)
{
    Datum& datum = m_values[m_numValues++];
    datum.pToken = &token;
    datum.type = type;
    return datum;
}

void RowBuilder::add(const VorString& token, int value)
{
    addDatum(token, VorBomDataValue::kIntData).whole = value;
}

void RowBuilder::add(const VorString& token, double value)
{
    addDatum(token, VorBomDataValue::kDoubleData).number = value;
}

// The handle may not be made yet; buildRow() makes it before the row's tuples.
void RowBuilder::addHandle(const VorString& token)
{
    addDatum(token, VorBomDataValue::kStringData).pText = &m_rows[m_numRows - 1].handle;
}

// Only a text of up to eight bytes can wait, since its key holds all of them. The bytes of a longer one belong to the
// record, which is gone when the rows are built, so that is found at once.
void RowBuilder::addText(const VorString& token, std::size_t column, std::string_view text)
{
    Datum& datum = addDatum(token, VorBomDataValue::kStringData);
    TextPool& texts = m_texts[column];
    if (!texts.isLooking())
    {
        m_unshared.push_back(Utf8::toWide(text));
        datum.pText = &m_unshared.back();
    }
    else if (text.size() > ByteWord::kSize)
        datum.pText = &texts.find(text);
    else
    {
        const std::uint64_t key = ByteWord::of(text);
        texts.willFind(key);
        m_lookUps.push_back({ &datum, &texts, key });
    }
}

void RowBuilder::build()
{
    findTexts();
    for (std::size_t i = 0; i < m_numRows; ++i)
        buildRow(m_rows[i], i + 1 < m_numRows ? m_rows[i + 1].firstDatum : m_numValues);
    begin();
}

// Copying a text counts its users, next to its characters.
void RowBuilder::findTexts()
{
    for (const LookUp& lookUp : m_lookUps)
    {
        lookUp.pDatum->pText = &lookUp.pTexts->find(lookUp.key);
        VorMemoryHint::willRead(lookUp.pDatum->pText->getStringW());
    }
}

void RowBuilder::buildRow(Row& row, std::size_t endDatum)
{
    char bytes[ByteWord::kSize];
    std::unique_ptr<VorBomDataRow> pRow(new VorBomDataRow); // std::make_unique would fill it with zeros beforehand
    if (row.shortHandle != 0)
        row.handle = Utf8::toWide(ByteWord::write(row.shortHandle, bytes));
    pRow->setObjectHandle(row.handle);
    const Datum* const pFirst = m_values.data() + row.firstDatum;
    const Datum* const pEnd = m_values.data() + endDatum;
    VorBomDataTupleArray& tuples = pRow->getData();
    // A row of a large model holds no more than it needs.
    const auto numTuples = static_cast<int>(pEnd - pFirst);
    tuples.setPhysicalLength(numTuples + m_numReserved);
    for (const Datum* pDatum = pFirst; pDatum != pEnd; ++pDatum)
        switch (pDatum->type)
        {
            case VorBomDataValue::kIntData: tuples.emplace(*pDatum->pToken, pDatum->whole); break;
            case VorBomDataValue::kDoubleData: tuples.emplace(*pDatum->pToken, pDatum->number); break;
            default: tuples.emplace(*pDatum->pToken, *pDatum->pText); break;
        }
    m_data.addChild(pRow.release());
}
}
