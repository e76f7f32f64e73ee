// How a section's numbers become the texts that a report shows: one VorBomDisplayColumn for each of its tuples.
//
//   section           %Name "HEA200", %Weight 12.5, %Quantity 3
//   show(units, it)   %Name "HEA200", %Weight "27.56", %Quantity "3"
//   values()          text, 12.5 as a weight, 3                        what they were, once keepValues() was called
//
// A plan is for the units of one evaluation, and for its thread.
#pragma once

#include "VorBomDataTuple.h"
#include "VorBomDisplayColumn.h"

#include "VorBomTypedValue.h"

#include <cstddef>
#include <cstdint>
#include <vector>

class VorBomDisplayPlan
{
public:
    // The plan shows sections that have the tokens of `tuples`, in the same order.
    explicit VorBomDisplayPlan(const VorBomDataTupleArray& tuples);

    // Shows the numbers of the `index`-th tuple by a format of the host's; see VorBomDisplayColumn.
    void setFormat(int index, const VorBomNumberFormat* pFormat)
    {
        m_columns[static_cast<std::size_t>(index)].setFormat(pFormat);
    }

    // From now on show() writes down what it replaces.
    void keepValues() { m_values.resize(m_columns.size()); }

    // Replaces numbers by their texts, from the first tuple to the last; texts and empty values stay.
    void show(VorBomTemplateUnits& units, VorBomDataTupleArray& tuples);

    // What the tuples shown last held before, in their order; null unless they are kept.
    const VorBomTypedValue* values() const { return m_values.empty() ? nullptr : m_values.data(); }

    // Tells of a double among the values kept last that it is this sum of ints. Only where values are kept.
    void setWholeTotal(int index, std::int64_t total);

private:
    void showAndKeep(VorBomTemplateUnits& units, VorBomDataTupleArray& tuples);

    std::vector<VorBomDisplayColumn> m_columns;
    std::vector<VorBomTypedValue> m_values; // none, or one for each column
};
