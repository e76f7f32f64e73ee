// Writes reports as text tables, which TextTable describes. Needs no more of a report than its texts.
#pragma once

#include "OutputChoices.h"
#include "ReportWriter.h"

namespace mekbom
{
class TextTableWriter : public ReportWriter
{
public:
    explicit TextTableWriter(const OutputChoices& choices = OutputChoices()) : m_choices(choices) {}

    void write(const EvaluatedReport& report, TextSink& sink) const override;

private:
    OutputChoices m_choices;
};
}
