// Makes random reports: a template, data rows and units, written down in the plain structures of the reference.
//   Dice dice(4711);
//   RefReport report;
//   RandomReport(dice).fill(report);
// Most of them make sense, so that groups, totals and formulas come about; odd lists, missing and unlike values, equal
// rows, strange shapes of the tree and requests in the wrong sections are mixed in.
#pragma once

#include "ReferenceReport.h"

#include "ExpressionEvaluator/Test/Reference/RandomCases.h"

#include <string>
#include <vector>

class RandomReport
{
public:
    explicit RandomReport(Dice& dice) : m_dice(dice) {}

    // Fills template, rows and order of an empty report. Units are left to the caller.
    void fill(RefReport& report);

    // A token that the report uses, or any other text that may have a unit.
    std::wstring someTokenWithUnit();

private:
    // One datum of the rows: how often it is there, and what it may hold.
    struct Column
    {
        std::wstring token;
        int percentMissing;
        std::vector<RefValue> values;
    };

    void chooseColumns();
    RefValue randomValue(int kind);
    double randomDouble();
    void addRows(RefReport& report);
    std::vector<RefTuple> randomTuples();

    void addLevels(RefReport& report);
    RefReport::SectionPtr header(int level, int numLevels);
    RefReport::SectionPtr footer(RefSection::Type headerType);
    void addTuple(RefSection& section, const std::wstring& token);
    void repeatTuple(RefSection& section);

    std::wstring columnToken();
    std::wstring anyToken();
    std::wstring list(const std::wstring& prefix, bool isSorting);
    std::wstring formula();
    std::wstring formulaOperand(int depth);
    std::wstring formulaSum(int depth);

    Dice& m_dice;
    std::vector<Column> m_columns;
    std::vector<std::wstring> m_formulas;
};
