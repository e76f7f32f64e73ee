// What does a row cost, whatever its shape? Times evaluate() alone, from prepared template and rows to the finished tree.
//   ShapesBench 100000                               a line for each shape: ns per row, ratio to plain, bound
//   ShapesBench 100000 --only full-lengths --runs 9  one shape, the median of more runs
//   ShapesBench 100000 --json                        lines for Scripts/bench.py
//   ShapesBench 1000 --only plain --alone            evaluates the shape --runs times and nothing else, for callgrind
// A run evaluates the plain report of as many rows and then the shape's, each built anew before the clock starts, so that
// what disturbs the machine meets both; the ratio is the median of the runs' ratios. The first run is not counted. Each
// shape is measured in a process of its own, so that none finds the memory that another one left behind.
//
// Times are of the processor, so that other programs on the machine count as little as they can.
//
// Where more is asked for than of the plain report, the bound is 1.3 times what the shape's tuples cost there: the plain
// time by the plain result's tuples, times the tuples of this result. All tuples of all sections count.
#include "Shapes.h"

#include "../Comparison/ComparisonRun.h"

#include "MekBomEngine/Src/VorBomEvaluator2.h"
#include "VorBomItemWalk.h"

#include <malloc.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

namespace
{
struct Arguments
{
    int numRows = 0;
    int numRuns = 5;
    const char* only = nullptr;
    bool alone = false;
    bool asJson = false;
};

[[noreturn]] void failWithUsage()
{
    std::fprintf(stderr, "usage: ShapesBench ROWS [--only NAME] [--runs N] [--alone] [--json]\nshapes:\n");
    for (const Shape& shape : allShapes())
        std::fprintf(stderr, "    %-24s%s\n", shape.name, shape.question);
    std::exit(2);
}

Arguments readArguments(int argc, char** argv)
{
    Arguments arguments;
    for (int i = 1; i < argc; ++i)
    {
        const bool hasValue = i + 1 < argc;
        if (std::strcmp(argv[i], "--only") == 0 && hasValue)
            arguments.only = argv[++i];
        else if (std::strcmp(argv[i], "--runs") == 0 && hasValue)
            arguments.numRuns = std::atoi(argv[++i]);
        else if (std::strcmp(argv[i], "--alone") == 0)
            arguments.alone = true;
        else if (std::strcmp(argv[i], "--json") == 0)
            arguments.asJson = true;
        else
            arguments.numRows = std::atoi(argv[i]);
    }
    const bool isKnown = arguments.only == nullptr || findShape(arguments.only) != nullptr;
    if (arguments.numRows < 1 || arguments.numRuns < 1 || !isKnown || (arguments.alone && arguments.only == nullptr))
        failWithUsage();
    return arguments;
}

// Fresh pages are dear on virtual machines: what is freed stays in the process.
void keepFreedMemory()
{
    mallopt(M_TRIM_THRESHOLD, 1 << 30);
    mallopt(M_MMAP_THRESHOLD, 1 << 30);
    mallopt(M_TOP_PAD, 64 << 20);
}

double countTuples(VorBomTemplate& result)
{
    double count = 0;
    for (VorBomItemWalk walk(result.child(), 0); walk.item() != nullptr; walk.advance(true, true))
        count += walk.item()->getData().length();
    return count;
}

// Of all threads, and not of whatever else the machine does meanwhile.
double processorMilliseconds()
{
    return static_cast<double>(std::clock()) * 1000.0 / CLOCKS_PER_SEC;
}

// One evaluation of a report that was built for it.
struct Evaluation
{
    Evaluation(const Shape& shape, int numRows)
    {
        const auto pReport = createReport(shape, numRows);
        VorBomTemplate result;
        const double start = processorMilliseconds();
        VorBomEvaluator2::evaluate(pReport.get(), &result);
        milliseconds = processorMilliseconds() - start;
        tuples = countTuples(result);
    }

    double milliseconds = 0;
    double tuples = 0;
};

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 != 0 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

struct Measured
{
    int numRows = 0;
    double milliseconds = 0;
    double tuples = 0;
    double toPlain = 0; // 0 for a shape of fixed rows, as is what is allowed
    double allowed = 0;
};

// A shape of fixed rows has no plain report to be compared with.
Measured measureTime(const Shape& shape, int numRuns)
{
    std::vector<double> times;
    double tuples = 0;
    for (int i = 0; i < numRuns; ++i)
    {
        const Evaluation evaluation(shape, shape.fixedRows);
        times.push_back(evaluation.milliseconds);
        tuples = evaluation.tuples;
    }
    return { shape.fixedRows, median(times), tuples };
}

Measured measureRatio(const Shape& shape, int numRows, int numRuns)
{
    std::vector<double> times;
    std::vector<double> ratios;
    double tuples = 0;
    double tuplesOfPlain = 0;
    for (int i = 0; i <= numRuns; ++i)
    {
        const Evaluation plain(allShapes().front(), numRows);
        const Evaluation shaped(shape, numRows);
        tuples = shaped.tuples;
        tuplesOfPlain = plain.tuples;
        if (i == 0)
            continue;
        times.push_back(shaped.milliseconds);
        ratios.push_back(shaped.milliseconds / plain.milliseconds);
    }
    return { numRows, median(times), tuples, median(ratios), allowedRatio(shape, tuples, tuplesOfPlain) };
}

void printJson(const Shape& shape, const Measured& measured)
{
    ComparisonRun::Line(shape.name, measured.numRows)
        .add("difference", shape.difference)
        .add("milliseconds", measured.milliseconds)
        .add("tuples", measured.tuples)
        .add("toPlain", measured.toPlain)
        .add("allowed", measured.allowed)
        .print();
}

void printLine(const Shape& shape, const Measured& measured)
{
    const double tuples = measured.tuples / measured.numRows;
    if (shape.bound == eShapeBound::kTimeOnly)
        std::printf("%-24s%10.0f ms    %8.1f tuples a row\n", shape.name, measured.milliseconds, tuples);
    else
        std::printf("%-24s%10.0f ns    %8.1f tuples a row    %5.2f of plain, at most %.2f%s\n", shape.name,
                    measured.milliseconds * 1e6 / measured.numRows, tuples, measured.toPlain, measured.allowed,
                    measured.toPlain > measured.allowed ? "    MISSED" : "");
}

void measure(const Shape& shape, const Arguments& arguments)
{
    const Measured measured = shape.bound == eShapeBound::kTimeOnly
                                  ? measureTime(shape, arguments.numRuns)
                                  : measureRatio(shape, arguments.numRows, arguments.numRuns);
    if (arguments.asJson)
        printJson(shape, measured);
    else
        printLine(shape, measured);
    std::fflush(stdout);
}

// Ends the program when the shape's process has not ended well.
void measureApart(const Shape& shape, const Arguments& arguments)
{
    const pid_t child = fork();
    if (child == 0)
    {
        measure(shape, arguments);
        std::_Exit(0);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child || status != 0)
    {
        std::fprintf(stderr, "ShapesBench: %s could not be measured\n", shape.name);
        std::exit(1);
    }
}
}

int main(int argc, char** argv)
{
    const Arguments arguments = readArguments(argc, argv);
    keepFreedMemory();
    if (arguments.alone)
    {
        for (int i = 0; i < arguments.numRuns; ++i)
            Evaluation(*findShape(arguments.only), arguments.numRows);
        return 0;
    }
    for (const Shape& shape : allShapes())
        if (arguments.only == nullptr || std::strcmp(arguments.only, shape.name) == 0)
            measureApart(shape, arguments);
    return 0;
}
