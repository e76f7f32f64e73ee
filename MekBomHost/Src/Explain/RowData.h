// What rows have under a token, in the units of the list.
//
//   const RowData data(explained);
//   data.textOf(row, L"%Name")                   ->  "HEA200" in its quotes
//   data.textOf(row, L"%Weight")                 ->  260.61 kg
//   data.textOf(row, L"%Price")                  ->  none, for a row without
//   *RowData::numberIn(row, L"%Weight")          ->  260.61
#pragma once

#include "ExplainedReport.h"

#include "VorBomDataRow.h"
#include "VorBomDataTuple.h"
#include "VorBomTemplateItem.h"

#include "MekRoots/Exp/VorString.h"

#include <optional>
#include <string>

namespace mekbom
{
class RowData
{
public:
    // Nothing of `report` is copied; it must outlive this object.
    explicit RowData(const ExplainedReport& report) : m_report(report) {}

    // The number, whole or not, in the model's unit; nothing for a text and for a row without the datum.
    static std::optional<double> numberIn(const VorBomDataRow& row, const VorString& token);

    // Texts come in quotes, quantities with the symbol of their unit; "none" for a row without the datum.
    std::string textOf(const VorBomDataRow& row, const VorString& token) const;

    // The data of a formula of `section`, each once:  "%Weight 260.61 kg and %Quantity 2". What the row lacks and the
    // section shows is the template's value:  "%Weight 0 kg (the template's)". `formula` is without its prefix; empty
    // for one without data.
    std::string operandsOf(const VorBomDataRow& row, const VorString& formula, const VorBomTemplateItem& section) const;

private:
    std::string textOf(const VorBomDataTuple* pTuple, const VorString& token) const;
    std::string quantity(const VorString& token, double number) const;

    const ExplainedReport& m_report;
};
}
