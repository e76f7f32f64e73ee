// One column of a parts list: which datum it carries, of which type, and in which unit its numbers are given.
//
//   heading "Length [ft]"    token "%Length", unitSymbol "ft"      known once the header row is read
//                            type kDoubleData, unit of feet        known once the template is, for a wanted column
//
// A value, which PartsList fills in and CellReader reads by.
#pragma once

#include "ColumnNames.h"

#include "VorBomDataValue.h"

#include "MekRoots/Exp/MEKUnit.h"
#include "MekRoots/Exp/VorString.h"
#include "MekUnits/Src/VorQuantityReader.h"

#include <memory>
#include <optional>
#include <string>

namespace mekbom
{
struct InputColumn
{
    std::string name;       // as the header row has it, for messages
    std::string label;      // the same without its unit, for readers of a list
    std::string token;      // "%Length"
    VorString tupleToken;   // the same; every tuple of the column copies this one, so that all share its characters
    std::string unitSymbol; // "ft", empty for numbers in internal units
    bool unitIsFromUser = false;                       // by --input-unit, not by the header row
    bool isRowTotal = false;                           // the values are those of all pieces of their row
    ColumnName::eOrigin origin = ColumnName::kWritten; // who says which token it is
    std::shared_ptr<const HeadingDoubt> doubt;         // that it is that; a list that needs such a token is refused

    // The rest follows from the token and the template. kUnknownData until the content has been seen, for a column that
    // the catalogue of tokens does not know and that has no unit.
    VorBomDataValue::eBomDataValueType type = VorBomDataValue::kUnknownData;
    std::string whyNumbers; // why such a column must hold numbers, as a message says it; empty where it need not
    std::optional<MEKUnit> unit;
    std::optional<VorQuantityReader> quantities; // for cells of numbers whose kind is known; else they name no unit
    std::string lackingUnit; // "m2" where plain numbers are refused, since nobody says in which unit of areas they are
    bool takesPlainNumbers = true;
    bool isInModelUnit = true; // plain numbers need no conversion
    bool isHandle = false;     // the identity of the object, beside being a datum
    bool isPieces = false;     // how many objects a row stands for
    bool isWanted = false;     // somebody asks for it; cells of other columns are not looked at
};
}
