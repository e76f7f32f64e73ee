#include "CsvWriter.h"

#include "CsvTable.h"

namespace mekbom
{
void CsvWriter::write(const EvaluatedReport& report, TextSink& sink) const
{
    CsvTable(report, m_choices, m_delimiter, sink).write();
}
}
