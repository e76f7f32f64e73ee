// The bytes pass through what is needed to tell how to read them, each of which looks at the head of what it is given:
//
//   m_bytes      4C E4 6E 67 65 3B ...     the head is no UTF-8: Windows-1252
//   m_decoded    the same in UTF-8
//   m_text       "L\u00E4nge;Menge ..."    the head has semicolons
//   m_reader     records
//
// How numbers are written shows only in cells that are numbers, and who reads the header row knows which are: then the
// head is read once more, ahead of the records.
#include "CsvFile.h"

#include "CsvDelimiter.h"
#include "Fault.h"
#include "FindingCodes.h"
#include "MemorySource.h"
#include "NotationEvidence.h"

#include <string_view>
#include <utility>

namespace mekbom
{
namespace
{
// Some six hundred rows. Arbitrary: enough to meet a number with decimals, and read twice without a delay.
const std::size_t kHeadSize = 1 << 16;

bool isWhole(const PeekedSource& source)
{
    return source.head().size() < kHeadSize;
}

void addNote(const FindingCode& code, const std::string& source, const std::string& statement, FindingList& notes)
{
    Finding note = Finding::stating(code, statement);
    note.source = source;
    notes.add(std::move(note));
}

int lineOf(const CsvReader& reader)
{
    Finding finding;
    reader.placeRecord(finding);
    return finding.begin.line;
}

// Most cells show nothing, and the line of the record takes longer to ask for than to see that.
void addRecord(const Record& record, const std::vector<std::size_t>& columns, const CsvReader& reader,
               NotationEvidence& evidence)
{
    for (const std::size_t column : columns)
        if (column < record.size() && NumberNotation::shownBy(record[column].text()) != NumberNotation::kNoSign)
            evidence.add(record[column].text(), lineOf(reader));
}
}

CsvFile::CsvFile(ByteSource& source, const InputChoices& choices, FindingList& notes)
    : m_bytes(source, kHeadSize),
      m_decoded(m_bytes, encodingOf(m_bytes, choices, notes)),
      m_text(m_decoded, kHeadSize),
      m_sign(choices.decimalSign),
      m_delimiter(delimiterOf(m_text, choices, notes)),
      m_skipsRecord(CsvDelimiter::announced(m_text.head()) != 0),
      m_reader(m_text, m_delimiter)
{
}

const Record* CsvFile::next()
{
    if (std::exchange(m_skipsRecord, false))
        m_reader.next();
    return m_reader.next();
}

// The head mostly ends within a record, and whatever else is wrong in it is told by who reads it in earnest.
NumberNotation CsvFile::notationOf(const std::vector<std::size_t>& columns) const
{
    if (m_sign != NumberNotation::kNoSign)
        return { m_sign, NumberNotation::kChosen, "as --decimal says" };
    MemorySource head(name(), m_text.head());
    CsvReader reader(head, m_delimiter);
    NotationEvidence evidence;
    try
    {
        for (const Record* pRecord = reader.next(); pRecord != nullptr && !evidence.isEnough(); pRecord = reader.next())
            addRecord(*pRecord, columns, reader, evidence);
    }
    catch (const Fault&) // NOLINT(bugprone-empty-catch): see above
    {
    }
    return evidence.notation(m_delimiter);
}

TextEncoding::eEncoding CsvFile::encodingOf(const PeekedSource& bytes, const InputChoices& choices, FindingList& notes)
{
    if (choices.encoding)
        return *choices.encoding;
    const TextEncoding::eEncoding encoding = TextEncoding::recognise(bytes.head(), isWhole(bytes));
    if (encoding != TextEncoding::kUtf8)
        addNote(FindingCodes::kOtherEncoding, bytes.name(),
                std::string("read as ") + TextEncoding::nameOf(encoding) + "; give --encoding if it is in another one",
                notes);
    return encoding;
}

char CsvFile::delimiterOf(const PeekedSource& text, const InputChoices& choices, FindingList& notes)
{
    if (choices.delimiter)
        return *choices.delimiter;
    const char announced = CsvDelimiter::announced(text.head());
    const char delimiter = announced != 0 ? announced : CsvDelimiter::recognise(text.head(), text.name());
    if (delimiter != CsvDelimiter::kPlain)
        addNote(FindingCodes::kOtherDelimiter, text.name(),
                std::string("columns are separated by ") + CsvDelimiter::nameOf(delimiter) +
                    "; give --delimiter if that is wrong",
                notes);
    return delimiter;
}
}
