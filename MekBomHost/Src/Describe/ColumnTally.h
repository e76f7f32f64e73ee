// One column of a parts list while its cells come in, and what is to be said of it in the end.
//
//   ColumnTally lengths(column, 1, kind, source, parser, notation, limit);
//   while (const Record* const pRecord = source.next())
//       if (!(*pRecord)[1].isNothing())
//           lengths.add((*pRecord)[1], numPieces);
//   lengths.description(2, false).sumOfRows   ->  "17.5"
//
// Cells are read as a list reads them (CellParser, TypeOfCells). Those that it would refuse are told as odd, and are in
// none of the numbers but that of the filled cells.
#pragma once

#include "CellParser.h"
#include "DistinctValues.h"
#include "InputColumn.h"
#include "NumberTally.h"
#include "OddCells.h"
#include "PartsDescription.h"
#include "RecordSource.h"
#include "TextTally.h"
#include "TypeOfCells.h"

#include "VorBomTemplateUnits.h"

#include "MekRoots/Exp/MEKUnit.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
struct UnitKind;

class ColumnTally
{
public:
    // `column` is resolved (ColumnTypes) and stands at `index` in its file; if it holds quantities they are of `kind`. Source
    // and parser are not owned and outlive this; numbers are written as `notation` says, which the parser knows, too.
    // `limit` is that of the file.
    ColumnTally(const InputColumn& column, std::size_t index, VorBomTemplateUnits::eTokenUnitType kind,
                const RecordSource& source, CellParser& parser, const NumberNotation& notation, OddityLimit& limit);

    // The unit of the column is none: its cells are counted, and no number is read.
    void refuseNumbers() { m_areNumbersRefused = true; }

    // A cell of the record that was read last, which is not nothing.
    void add(const RecordCell& cell, int numPieces);

    // Of a list of that many rows; `hasPieces` says that the numbers of pieces were those of the file.
    ColumnDescription description(std::size_t numRows, bool hasPieces) const;

    // What is odd about the cells, as messages.
    std::vector<std::string> oddities() const { return m_odd.texts("cell"); }

private:
    void addWhole(const RecordCell& cell, int numPieces);
    void addQuantity(const RecordCell& cell, int numPieces);
    bool readQuantity(const RecordCell& cell, CellNumber& number);
    void addNumber(const CellNumber& number, int numPieces);
    void noteUnit(const RecordCell& cell, bool namesUnit);
    void addText(std::string_view text);
    void addUntyped(std::string_view text, int numPieces);
    void noteRefusal(const Finding& refusal);
    void noteGroups();
    template <class Make>
    void note(const std::string& key, const Make& make);
    Finding placed(Finding finding) const;

    VorBomDataValue::eBomDataValueType type() const;
    bool hasNumbers() const;
    bool mixesUnits() const;
    std::string kindText() const;
    std::string unitText() const;
    std::optional<MEKUnit> shownUnit() const;
    std::string shown(double value) const;
    std::string shownSum(double value) const;
    std::string shownWith(double value, int mostDigits) const;
    void describeNumbers(ColumnDescription& description) const;
    std::string sumOfPieces(std::size_t numRows) const;

    InputColumn m_column;
    std::size_t m_index;
    VorBomTemplateUnits::eTokenUnitType m_kind;
    const UnitKind* m_pKind; // null for numbers without a unit
    const RecordSource& m_source;
    CellParser& m_parser;
    bool m_areNumbersRefused = false;
    bool m_lacksUnit = false; // and has plain numbers, of which nobody says in which unit they are

    std::size_t m_numFilled = 0;
    std::size_t m_numWithUnit = 0; // cells that name one
    bool m_allArePlain = true;     // numbers: then their decimals are known
    bool m_hasTexts = false;       // that are surely none, where the type is open
    TypeOfCells m_typeOfCells;     // used where the type is open
    NumberTally m_numbers;
    DistinctValues m_distinctNumbers;
    TextTally m_texts;
    OddCells m_odd;
};
}
