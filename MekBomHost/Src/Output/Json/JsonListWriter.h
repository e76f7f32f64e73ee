// Writes reports as JSON, which JsonList describes.
#pragma once

#include "ReportWriter.h"

namespace mekbom
{
class JsonListWriter : public ReportWriter
{
public:
    // Numbers are numbers, and lines name the objects behind them.
    LineContents contents() const override { return { true, true }; }

    void write(const EvaluatedReport& report, TextSink& sink) const override;
};
}
