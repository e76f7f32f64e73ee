#include "TextTableWriter.h"

#include "TextTable.h"

namespace mekbom
{
void TextTableWriter::write(const EvaluatedReport& report, TextSink& sink) const
{
    TextTable(report, m_choices, sink).write();
}
}
