// Writes evaluated reports in one format: the interface that a new output format implements. A format is a
// class of its own in a folder of its own beside Output/Text, and a line in the table of
// Output/Formats/ReportFormats.cpp; nothing else knows of it. A class whose lists may be written in one way or another
// is constructed with OutputChoices.
//
//   class MarkdownWriter : public ReportWriter
//   {
//   public:
//       void write(const EvaluatedReport& report, TextSink& sink) const override
//       {
//           ReportLines lines = report.lines();
//           ReportLine line;
//           while (lines.next(line))
//           {
//               for (const ShownText& text : line.texts)
//                   sink.write("| " + std::string(text.view()) + " ");
//               sink.write("|\n");
//           }
//           sink.finish();
//       }
//   };
#pragma once

#include "EvaluatedReport.h"
#include "LineContents.h"
#include "TextSink.h"

namespace mekbom
{
class ReportWriter
{
public:
    ReportWriter() = default;
    ReportWriter(const ReportWriter&) = delete;
    ReportWriter& operator=(const ReportWriter&) = delete;
    virtual ~ReportWriter() = default;

    // What lines must hold beside their texts. Asked before the report is evaluated: it is kept from then on.
    virtual LineContents contents() const { return LineContents(); }

    // Whether what it writes tells what the list is made of. Where it does not, somebody else has to.
    virtual bool tellsFoot() const { return true; }

    // Writes the whole report, reading its lines as often as need be, and finishes the sink. `report` was evaluated
    // with contents() at least, and neither of the two is kept. Throws what the sink throws, which is then not
    // finished. The same writer can write other reports, at the same time too.
    virtual void write(const EvaluatedReport& report, TextSink& sink) const = 0;
};
}
