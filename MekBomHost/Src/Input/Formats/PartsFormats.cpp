#include "PartsFormats.h"

#include "CsvReader.h"
#include "Fault.h"
#include "FindingCodes.h"
#include "OldWorkbook.h"
#include "XlsxReader.h"

#include <string_view>

namespace mekbom::PartsFormats
{
namespace
{
bool isWorkbook(const PeekedSource& source)
{
    const std::string_view mark = "PK\3\4"; // of all packed files; the reader knows which of them are workbooks
    return source.head().substr(0, mark.size()) == mark;
}

[[noreturn]] void failWithSheet(const ByteSource& source)
{
    Finding finding = Finding::stating(FindingCodes::kOptionWithoutUse, source.name() + " is no workbook");
    finding.source = "--sheet";
    throw Fault(kWrongUsage, finding);
}
}

std::unique_ptr<RecordSource> open(PeekedSource& source, const InputChoices& choices, FindingList& notes)
{
    if (isWorkbook(source))
        return std::make_unique<XlsxReader>(source, choices.sheet, notes);
    if (OldWorkbook::isOne(source.head()))
        OldWorkbook::refuse(source.name(), source.readAll());
    if (!choices.sheet.empty())
        failWithSheet(source);
    return std::make_unique<CsvReader>(source);
}
}
