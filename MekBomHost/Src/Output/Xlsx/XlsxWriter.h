// Writes reports as workbooks: the list on a sheet named after its title, and a sheet "About" with what it is made of.
//
//   Cutting list                                        the title
//   670 rows read, 106 filtered out by "%Name", ...     what the list is made of
//   Profile   Length [mm]   Pieces   Weight [kg]        the heading row, which stays on the screen and on each page
//   HEA200                                              a group, which can be folded away
//             4522          4        764.34             numbers in formats that show what the list prints
//                           4        764.34             a subtotal: a value, as the list prints it, and no formula
//   Total                   564      26290.78
//
// Totals are values: a formula over the cells above it would add up what they hold, and not the rows behind them, of
// which a line may show several and of which merged ones count in no total. A list that is longer than a sheet goes on in
// a further one. The same list gives the same bytes.
#pragma once

#include "OutputChoices.h"
#include "ReportWriter.h"
#include "XlsxSettings.h"

namespace mekbom
{
class XlsxWriter : public ReportWriter
{
public:
    XlsxWriter() = default;
    explicit XlsxWriter(const XlsxSettings& settings) : m_settings(settings) {}

    // Plain values are given beside texts, where the list shows quantities in a way that no number does.
    explicit XlsxWriter(const OutputChoices& choices)
        : XlsxWriter(XlsxSettings{ choices.hasPlainValues, choices.paper.value_or(kA4Paper) })
    {
    }

    LineContents contents() const override;

    // Throws a Fault of status kOutputNotWritten for a list that no workbook can hold: of more columns than a sheet has,
    // or with a text that is longer than those of cells.
    void write(const EvaluatedReport& report, TextSink& sink) const override;

private:
    XlsxSettings m_settings;
};
}
