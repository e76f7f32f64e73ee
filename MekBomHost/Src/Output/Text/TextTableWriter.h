// Writes reports as text tables: see TextTable.
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
