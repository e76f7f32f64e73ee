// How fast can this one report be made at all? A program for it alone: packed rows, every key built once, numbers by
// its own exact integer arithmetic, flat text. What it prints is, character by character, what EngineReport prints of
// the engine's tree; the engine also builds that tree, with a text in a block of its own for every value.
//   LimitReport --data parts.csv [--runs N] [--text report.txt] [--rows-ahead N]
#include "LimitNumber.h"
#include "LimitOrder.h"

#include "../Comparison/ComparisonRun.h"

#include <cstdlib>

namespace
{
using LimitNumber::partsOf;
using LimitNumber::writeHundredths;
using LimitNumber::writeTenths;

constexpr std::size_t kMostCharactersOfRow = 400; // with the headers and footers of groups of one row

// How many rows before it is written a row is fetched into the cache. On 10^6 rows 12 or 16 take half the time of 0,
// and 4, 8, 32 or 64 more than those.
const char* const kRowsAhead = "0";

// The sums of weights that are open.
struct Sums
{
    double ofMark = 0;
    double ofMaterial = 0;
    double ofAll = 0;

    void add(double weight)
    {
        ofMark += weight;
        ofMaterial += weight;
        ofAll += weight;
    }
};

char* writeCell(char* out, const LimitText& text)
{
    out = text.write(out);
    *out = '\t';
    return out + 1;
}

char* writeLengthCell(char* out, double millimetres)
{
    out = writeTenths(out, partsOf<1, 10>(millimetres));
    *out = '\t';
    return out + 1;
}

char* writeWeight(char* out, double kilograms)
{
    return writeHundredths(out, partsOf<1, 100>(kilograms));
}

// The formula's result has six decimals before it is shown with one. To those the engine rounds the double itself, and
// partsOf the number that a reader sees, which differs for the one double nearest to a middle between two millionths.
// That shows where tenths change, too: in some 1e-13 of all rows with full lengths, and in none with round ones.
char* writeFormula(char* out, const LimitRow& row)
{
    const std::uint64_t millionths = partsOf<1, 1000000>(row.length * row.quantity / 1000);
    return writeTenths(out, (millionths + 50000) / 100000);
}

char* writeDetails(char* out, const LimitRow& row)
{
    out = writeCell(out, row.handle);
    out = writeCell(out, row.position);
    out = writeCell(out, row.mark);
    out = writeCell(out, row.material);
    out = writeCell(out, row.profile);
    out = writeLengthCell(out, row.length);
    out = writeWeight(out, row.weight);
    *out++ = '\t';
    out = writeHundredths(out, partsOf<10000, 1>(row.paint)); // hundredths of m²
    *out++ = '\t';
    out = LimitNumber::writeWhole(out, static_cast<std::uint64_t>(row.quantity));
    *out++ = '\t';
    out = writeCell(out, row.phase);
    out = writeCell(out, row.type);
    out = writeCell(out, row.coating);
    out = writeLengthCell(out, row.thickness);
    out = writeLengthCell(out, row.width);
    out = writeFormula(out, row);
    *out++ = '\n';
    return out;
}

char* writeLine(char* out, const LimitText& text)
{
    out = text.write(out);
    *out = '\n';
    return out + 1;
}

// Writes a footer and starts its sum again.
char* writeSum(char* out, double& sum)
{
    out = writeWeight(out, sum);
    *out = '\n';
    sum = 0;
    return out + 1;
}

void fetch(const LimitRow& row)
{
    const char* const pRow = reinterpret_cast<const char*>(&row);
    __builtin_prefetch(pRow);
    __builtin_prefetch(pRow + sizeof(row) / 2);
}

char* writeReport(char* out, const std::vector<LimitRow>& rows, std::ptrdiff_t rowsAhead)
{
    const LimitOrder order(rows);
    Sums sums;
    const LimitRow* pLast = nullptr;
    for (const LimitOrder::Entry* p = order.begin(); p < order.end(); ++p)
    {
        const LimitRow& row = rows[p->row];
        if (order.end() - p > rowsAhead)
            fetch(rows[p[rowsAhead].row]);
        const bool newMaterial = pLast == nullptr || row.material.bits() != pLast->material.bits();
        const bool newMark = newMaterial || row.mark.bits() != pLast->mark.bits();
        if (newMark && pLast != nullptr)
            out = writeSum(out, sums.ofMark);
        if (newMaterial && pLast != nullptr)
            out = writeSum(out, sums.ofMaterial);
        if (newMaterial)
            out = writeLine(out, row.material);
        if (newMark)
            out = writeLine(out, row.mark);
        sums.add(row.weight);
        out = writeDetails(out, row);
        pLast = &row;
    }
    out = writeSum(out, sums.ofMark);
    out = writeSum(out, sums.ofMaterial);
    return writeSum(out, sums.ofAll);
}
}

int main(int argc, char** argv)
{
    const ComparisonRun run(argc, argv);
    const std::vector<LimitRow> rows = readLimitRows(run.dataPath());
    const std::ptrdiff_t rowsAhead = std::atoi(run.option("--rows-ahead", kRowsAhead).c_str());
    const std::unique_ptr<char[]> text(new char[(rows.size() + 1) * kMostCharactersOfRow]);
    const char* end = text.get();
    std::vector<double> times;
    for (int i = 0; i < run.numRuns(); ++i)
    {
        const Stopwatch stopwatch;
        end = writeReport(text.get(), rows, rowsAhead);
        times.push_back(stopwatch.milliseconds());
    }
    run.writeText(std::string(static_cast<const char*>(text.get()), end));
    ComparisonRun::Line("limit", static_cast<long long>(rows.size())).add("milliseconds", times).print();
    return 0;
}
