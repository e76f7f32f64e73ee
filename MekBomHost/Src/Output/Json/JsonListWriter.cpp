#include "JsonListWriter.h"

#include "JsonList.h"

namespace mekbom
{
void JsonListWriter::write(const EvaluatedReport& report, TextSink& sink) const
{
    JsonList(report, sink).write();
}
}
