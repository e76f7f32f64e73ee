#include "CsvWriter.h"

#include "CsvTable.h"
#include "EncodedSink.h"

namespace mekbom
{
void CsvWriter::write(const EvaluatedReport& report, TextSink& sink) const
{
    EncodedSink encoded(sink, m_choices.encoding);
    CsvTable(report, m_choices, m_delimiter, encoded).write();
}
}
