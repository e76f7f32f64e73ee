// Reads one cell of a parts list as its column has it: the number that it holds, or why it holds none.
//
//   CellParser parser;
//   CellNumber number;
//   parser.readNumber(lengthInFeet, RecordCell(std::string_view("7.5")), number)    ->  true, number.value is 2286 mm
//   parser.readNumber(lengthInFeet, RecordCell(std::string_view("n/a")), number)    ->  false
//   parser.refusal()                                                                ->  found "n/a", expected a number
//
// What becomes of the number, and where the cell stands, is not its concern. One parser is for one thread at a time.
#pragma once

#include "Finding.h"
#include "InputColumn.h"
#include "NumberNotation.h"
#include "RecordCell.h"

#include <string>
#include <string_view>

namespace mekbom
{
struct FindingCode;

struct CellNumber
{
    double value = 0;       // in the model's unit; as it stands where the column has no kind of quantity
    bool isPlain = false;   // digits with at most a sign, a point and an exponent: no fraction, no unit
    int numDecimals = 0;    // that a plain number is written with, 0 to 15
    bool namesUnit = false; // "7.5 ft", "7'-6\""
};

class CellParser
{
public:
    // How numbers are written in cells that are texts; the plain way where nobody says it.
    void setNotation(const NumberNotation& notation) { m_notation = notation; }

    // The text of any cell; that of a number is good until the next number is read.
    std::string_view textOf(const RecordCell& cell);

    // These set their last argument, for a cell that is neither nothing nor refused; false, with refusal() set, when it
    // is no such number. The value of a column in the unit that it lacks is refused, too.
    bool readWhole(const RecordCell& cell, int& value);
    bool readNumber(const InputColumn& column, const RecordCell& cell, CellNumber& number);

    // The same for a column of one's own that must hold numbers: its text as NumberReader has numbers, which is good for
    // as long as the cell is, and until the next one is read.
    bool readPlainText(const InputColumn& column, const RecordCell& cell, std::string_view& plain);

    // Why the cell that was read last is no number, without its place and the name of its column.
    const Finding& refusal() const { return m_refusal; }

    // Whether the number that was read last had its digits in groups, and what it was read as: "1.234,5" is read as
    // 1234.5.
    bool hadGroups() const { return !m_groupedText.empty(); }
    Finding noteOfGroups() const;

private:
    template <class Read>
    NumberNotation::eReading readWithNotation(const RecordCell& cell, std::string_view text, const Read& read,
                                              bool& isRead);
    static bool readQuantity(const InputColumn& column, std::string_view text, CellNumber& number);
    bool refuse(const FindingCode& code, std::string_view text, const std::string& expected,
                const std::string& remedy = std::string());
    bool refuseNumber(const InputColumn& column, std::string_view text);
    bool refuseNotation(std::string_view text, NumberNotation::eReading reading);
    void refuseUnclear(std::string_view text);
    void refuseOtherSign(std::string_view text);
    bool refuseForWantOfUnit(const InputColumn& column, std::string_view text);

    NumberNotation m_notation;
    Finding m_refusal;
    std::string m_numberText;       // of the cell that is being read, if it is a number
    std::string m_plainText;        // of the cell that is being read, where its number is written in another way
    std::string_view m_groupedText; // that of the cell read last, where m_plainText is without its groups
};
}
