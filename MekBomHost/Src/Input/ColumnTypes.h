// What the columns of a parts list hold, before any of their cells is read: texts, whole numbers or quantities, and in
// which unit.
//
//   const ColumnTypes types(units, ownTokens);
//   types.resolve(column)   ->  of "Length [ft]" nothing is wrong: quantities in feet
//   types.resolve(column)   ->  of "Length [kg]": found unit "kg", expected a unit of distance such as mm, m, in or ft
//   types.resolve(column)   ->  of "Paint" nothing is wrong; its numbers lack a unit such as m2
//
// The catalogue of tokens decides what type a column has. A column it does not know has numbers if its heading names a
// unit or the template says so; else it has the type of its content (TypeOfCells).
#pragma once

#include "Finding.h"
#include "InputColumn.h"
#include "NumberNotation.h"
#include "RecordSource.h"
#include "ReportTemplate.h"

#include "VorBomTemplateUnits.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace mekbom
{
class ColumnTypes
{
public:
    // `units` know the kinds of the template's tokens, and `ownTokens` says of which kind tokens are that the catalogue
    // does not know. Neither is owned; both outlive this.
    ColumnTypes(const VorBomTemplateUnits& units, const std::map<std::string, eOwnToken>& ownTokens)
        : m_units(units), m_ownTokens(ownTokens)
    {
    }

    // Tells `units` of what kind the columns are that nobody knows but whose unit says it: "Gap [in]" is a length. What
    // they know already stays.
    static void registerKinds(const std::vector<InputColumn>& columns, VorBomTemplateUnits& units);

    // kUnknownData where the cells will tell.
    VorBomDataValue::eBomDataValueType typeOf(const InputColumn& column) const;

    // Sets type, unit and quantities of a column. Answers what is wrong with its unit, still without a place.
    std::optional<Finding> resolve(InputColumn& column) const;

    // "%Name is a text"
    static std::string statementOf(const InputColumn& column);

    // How numbers are written in the file, as far as its first rows tell. To be asked for before any row is read.
    NumberNotation notationOf(const std::vector<InputColumn>& columns, const RecordSource& source) const;

    // Says that the numbers of `source` have a decimal comma; nothing where they have none, or the user says it.
    static std::optional<Finding> noteOfComma(const NumberNotation& notation, const RecordSource& source);

private:
    std::optional<Finding> resolveUnit(InputColumn& column, VorBomTemplateUnits::eTokenUnitType kind) const;

    const VorBomTemplateUnits& m_units;
    const std::map<std::string, eOwnToken>& m_ownTokens;
};
}
