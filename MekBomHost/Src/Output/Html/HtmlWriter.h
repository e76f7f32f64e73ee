// Writes reports as pages for a browser, which ListPage describes. Numbers are sorted there by their values, which it
// asks for beside their texts.
#pragma once

#include "ReportWriter.h"

namespace mekbom
{
class HtmlWriter : public ReportWriter
{
public:
    LineContents contents() const override;
    void write(const EvaluatedReport& report, TextSink& sink) const override;
};
}
