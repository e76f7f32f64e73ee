// Writes reports as CSV, which CsvTable describes.
#pragma once

#include "OutputChoices.h"
#include "ReportWriter.h"

namespace mekbom
{
class CsvWriter : public ReportWriter
{
public:
    explicit CsvWriter(const OutputChoices& choices) : CsvWriter(choices, choices.delimiter.value_or(',')) {}

    // Values tell numbers from texts that look like some.
    LineContents contents() const override { return { true, false }; }

    // What the list is made of would be records among those of the list.
    bool tellsFoot() const override { return m_choices.hasFoot; }

    void write(const EvaluatedReport& report, TextSink& sink) const override;

protected:
    CsvWriter(const OutputChoices& choices, char delimiter) : m_choices(choices), m_delimiter(delimiter) {}

private:
    OutputChoices m_choices;
    char m_delimiter;
};

// The same with tabs between the fields, whatever stands between those of csv.
class TsvWriter : public CsvWriter
{
public:
    explicit TsvWriter(const OutputChoices& choices) : CsvWriter(choices, '\t') {}
};
}
