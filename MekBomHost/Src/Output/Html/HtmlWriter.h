// Writes reports as pages for a browser, which ListPage describes. Numbers are sorted there by their values, which it
// asks for beside their texts. Browsers print them on the paper of the printer, unless one is chosen.
#pragma once

#include "OutputChoices.h"
#include "ReportWriter.h"

#include <optional>

namespace mekbom
{
class HtmlWriter : public ReportWriter
{
public:
    HtmlWriter() = default;
    explicit HtmlWriter(const OutputChoices& choices) : m_paper(choices.paper) {}

    LineContents contents() const override;
    void write(const EvaluatedReport& report, TextSink& sink) const override;

private:
    std::optional<ePaper> m_paper;
};
}
