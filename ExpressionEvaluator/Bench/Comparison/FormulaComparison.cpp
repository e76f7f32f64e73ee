// How far is a one-shot formula from the least it could cost, and from what other programs take?
//
// Prints JSON, a line each: for every program the nanoseconds per call, as the median over the repetitions of the mean
// over the typical formulas, and for every program and formula the median. The programs take turns, so that a slow
// moment of the machine falls on all of them; the first repetition is discarded. Before the clock starts all programs
// must agree on all results; where they do not, the program ends with 1.
#include "FormulaProgram.h"
#include "LimitFormula.h"

#include "ExpressionEvaluator/Src/evaluateFormula.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <limits>
#include <vector>

namespace
{
const int kRepetitions = 31;
const double kBatchNanoseconds = 1e6; // long against the clock, short against the machine's moods

// Numbers in formulas are read in single precision by some.
const double kTolerance = 1e-6;

class LimitProgram : public FormulaProgram
{
public:
    double evaluate(int index) override
    {
        const TypicalFormula& formula = kTypicalFormulas[index];
        return LimitFormula(kTypicalNames, kTypicalValues, formula.numVariables).evaluate(formula.formula);
    }
};

class EngineProgram : public FormulaProgram
{
public:
    double evaluate(int index) override
    {
        const TypicalFormula& formula = kTypicalFormulas[index];
        double result = std::numeric_limits<double>::quiet_NaN();
        evaluateFormula(formula.formula, kTypicalNames, kTypicalValues, formula.numVariables, &result);
        return result;
    }
};

struct Contestant
{
    const char* name;
    const char* package;
    std::unique_ptr<FormulaProgram> pProgram;                              // null when left out
    std::array<std::vector<double>, kNumTypicalFormulas> nanoseconds = {}; // per call, by repetition
};

std::vector<Contestant> makeContestants()
{
    std::vector<Contestant> all;
    all.push_back({ "limit", "", std::make_unique<LimitProgram>() });
    all.push_back({ "engine", "", std::make_unique<EngineProgram>() });
    all.push_back({ "fparser", "libfparser-dev", makeFparserProgram() });
    all.push_back({ "muParser", "libmuparser-dev", makeMuParserProgram() });
    all.push_back({ "Lua", "liblua5.4-dev", makeLuaProgram() });
    all.push_back({ "SQLite", "libsqlite3-dev", makeSqliteProgram() });
    return all;
}

bool agree(std::vector<Contestant>& all)
{
    bool isSame = true;
    for (int i = 0; i < kNumTypicalFormulas; ++i)
    {
        const double expected = all.front().pProgram->evaluate(i);
        for (Contestant& contestant : all)
        {
            const double result = contestant.pProgram ? contestant.pProgram->evaluate(i) : expected;
            if (std::fabs(result - expected) <= kTolerance * std::max(1.0, std::fabs(expected)))
                continue;
            std::fprintf(stderr, "%s: %s gives %.9g instead of %.9g\n", kTypicalFormulas[i].name, contestant.name,
                         result, expected);
            isSame = false;
        }
    }
    return isSame;
}

// Nanoseconds of the processor per call, so that other programs on the machine do not count.
double measure(FormulaProgram& program, int index, int numCalls)
{
    volatile double sink = 0.0;
    const std::clock_t start = std::clock();
    for (int i = 0; i < numCalls; ++i)
        sink = program.evaluate(index);
    const std::clock_t elapsed = std::clock() - start;
    static_cast<void>(sink);
    return 1e9 * static_cast<double>(elapsed) / CLOCKS_PER_SEC / numCalls;
}

int callsPerBatch(FormulaProgram& program, int index)
{
    const int numTrials = 1000;
    const double once = std::max(1.0, measure(program, index, numTrials));
    return std::max(10, static_cast<int>(kBatchNanoseconds / once));
}

void measureInTurns(std::vector<Contestant>& all, int index)
{
    std::vector<int> numCalls;
    for (Contestant& contestant : all)
        numCalls.push_back(contestant.pProgram ? callsPerBatch(*contestant.pProgram, index) : 0);
    for (int repetition = 0; repetition <= kRepetitions; ++repetition)
        for (std::size_t i = 0; i < all.size(); ++i)
        {
            if (!all[i].pProgram)
                continue;
            const double nanoseconds = measure(*all[i].pProgram, index, numCalls[i]);
            if (repetition > 0)
                all[i].nanoseconds[static_cast<std::size_t>(index)].push_back(nanoseconds);
        }
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void print(const Contestant& contestant)
{
    if (!contestant.pProgram)
    {
        std::printf("{\"name\": \"%s\", \"skipped\": \"%s is not installed\"}\n", contestant.name, contestant.package);
        return;
    }
    std::vector<double> means(kRepetitions, 0.0);
    for (std::size_t formula = 0; formula < contestant.nanoseconds.size(); ++formula)
    {
        for (std::size_t repetition = 0; repetition < means.size(); ++repetition)
            means[repetition] += contestant.nanoseconds[formula][repetition] / kNumTypicalFormulas;
        std::printf("{\"name\": \"%s\", \"formula\": \"%s\", \"ns\": %.1f}\n", contestant.name,
                    kTypicalFormulas[formula].name, median(contestant.nanoseconds[formula]));
    }
    std::printf("{\"name\": \"%s\", \"ns\": %.1f}\n", contestant.name, median(means));
}
}

int main()
{
    std::vector<Contestant> all = makeContestants();
    if (!agree(all))
        return 1;
    for (int i = 0; i < kNumTypicalFormulas; ++i)
        measureInTurns(all, i);
    for (const Contestant& contestant : all)
        print(contestant);
    return 0;
}
