// Writes reports as text tables, which TextTable describes. Needs no more of a report than its texts.
#pragma once

#include "ReportWriter.h"

namespace mekbom
{
class TextTableWriter : public ReportWriter
{
public:
    void write(const EvaluatedReport& report, TextSink& sink) const override;
};
}
