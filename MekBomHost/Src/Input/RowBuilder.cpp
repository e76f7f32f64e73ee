// Most texts of a parts list come back, a mark such as "B417" on some twenty rows of a million. Its row gets a copy
// that shares the characters, and making one touches three places of memory, none of which the processor's caches hold:
// the entry of the pool, found by the text's bytes; the characters it names; the count of their users beside them. Row
// by row, the processor would wait for one after the other. So of 64 rows all entries are asked for first
// (beginLookUps), then all texts are found and their counts asked for (findTexts), and only then are the rows made
// (buildRow): the waits for 64 rows lie on top of each other.
#include "RowBuilder.h"

#include "ByteWord.h"
#include "Utf8.h"

#include "VorBomDataRow.h"

#include "MekRoots/Exp/VorMemoryHint.h"

#include <algorithm>
#include <memory>

namespace mekbom
{
namespace
{
const std::size_t kRowsAtOnce = 64; // measured: no faster beyond

VorString wideText(const RowBatch& batch, std::uint64_t text)
{
    char bytes[ByteWord::kSize];
    return Utf8::toWide(RowBatch::isLong(text) ? batch.longText(text) : ByteWord::write(text, bytes));
}
}

RowBuilder::RowBuilder(VorBomData& data, std::size_t numColumns) : m_data(data), m_texts(numColumns) {}

void RowBuilder::build(const RowBatch& batch)
{
    for (std::size_t begin = 0; begin < batch.numRows(); begin += kRowsAtOnce)
    {
        const std::size_t end = std::min(begin + kRowsAtOnce, batch.numRows());
        beginLookUps(batch, batch.dataOf(begin), batch.dataOf(end));
        findTexts(batch);
        for (std::size_t row = begin; row < end; ++row)
            buildRow(batch, row, m_found.data() + (batch.dataOf(row) - batch.dataOf(begin)));
    }
}

// A row has at most one text for each column, so no pool is asked for more texts than it is prepared for, and what it
// gives stays where it is until the rows are built.
void RowBuilder::beginLookUps(const RowBatch& batch, const RowBatch::Datum* pBegin, const RowBatch::Datum* pEnd)
{
    const auto numData = static_cast<std::size_t>(pEnd - pBegin);
    m_lookUps.clear();
    m_found.resize(numData);
    m_unshared.clear();
    m_unshared.reserve(numData);
    for (TextPool& texts : m_texts)
        texts.prepare(kRowsAtOnce);
    for (std::size_t i = 0; i < numData; ++i)
        if (pBegin[i].kind == RowBatch::kText)
            beginLookUp(batch, pBegin[i], m_found[i]);
}

// Only a text of up to eight bytes is found by its number; that of a longer one tells nothing of its bytes.
void RowBuilder::beginLookUp(const RowBatch& batch, const RowBatch::Datum& datum, const VorString*& pFound)
{
    TextPool& texts = m_texts[datum.column];
    if (!texts.isLooking())
    {
        m_unshared.push_back(wideText(batch, datum.text));
        pFound = &m_unshared.back();
        return;
    }
    if (!RowBatch::isLong(datum.text))
        texts.willFind(datum.text);
    m_lookUps.push_back({ &pFound, &texts, datum.text });
}

// Copying a text counts its users, next to its characters.
void RowBuilder::findTexts(const RowBatch& batch)
{
    for (const LookUp& lookUp : m_lookUps)
    {
        const VorString& text = RowBatch::isLong(lookUp.text) ? lookUp.pTexts->find(batch.longText(lookUp.text))
                                                              : lookUp.pTexts->find(lookUp.text);
        VorMemoryHint::willRead(text.getStringW());
        *lookUp.pFound = &text;
    }
}

// The handle is made with its row, so that it lies beside it. A row of a large model holds no more than it needs.
void RowBuilder::buildRow(const RowBatch& batch, std::size_t row, const VorString* const* pTexts)
{
    std::unique_ptr<VorBomDataRow> pRow(new VorBomDataRow); // std::make_unique would fill it with zeros beforehand
    const VorString handle = wideText(batch, batch.handleOf(row));
    pRow->setObjectHandle(handle);
    const RowBatch::Datum* const pBegin = batch.dataOf(row);
    const RowBatch::Datum* const pEnd = batch.dataOf(row + 1);
    VorBomDataTupleArray& tuples = pRow->getData();
    const auto numTuples = static_cast<int>(pEnd - pBegin);
    tuples.setPhysicalLength(numTuples + m_numReserved);
    for (const RowBatch::Datum* pDatum = pBegin; pDatum != pEnd; ++pDatum, ++pTexts)
        switch (pDatum->kind)
        {
            case RowBatch::kWhole: tuples.emplace(*pDatum->pToken, pDatum->whole); break;
            case RowBatch::kNumber: tuples.emplace(*pDatum->pToken, pDatum->number); break;
            case RowBatch::kHandle: tuples.emplace(*pDatum->pToken, handle); break;
            case RowBatch::kText: tuples.emplace(*pDatum->pToken, **pTexts); break;
        }
    m_data.addChild(pRow.release());
}
}
