// What the programs of the comparison have in common: their arguments, and how they tell their times.
//
//   LimitReport --data parts.csv --runs 5 --text report.txt
//   {"program": "limit", "rows": 10000, "milliseconds": [0.91, 0.90, 0.93, 0.90]}
//
// The first run is made but not told: it pays for fresh memory pages, which the later ones find in the process.
#pragma once

#include <chrono>
#include <string>
#include <vector>

class ComparisonRun
{
public:
    // Reads --data, --runs and --text; other arguments by `option`. Ends the program with a message when one has no
    // value.
    ComparisonRun(int argc, char** argv);

    const std::string& dataPath() const { return m_dataPath; }
    int numRuns() const { return m_nRuns; }

    // The value given for `name`, or `otherwise`.
    std::string option(const std::string& name, const std::string& otherwise) const;

    // Writes the report's text to the file that was asked for, if any.
    void writeText(const std::string& text) const;

    // One line of JSON on standard output. `program` names its version where it has one.
    class Line
    {
    public:
        Line(const char* program, long long numRows);
        Line& add(const char* name, const std::vector<double>& runs); // all but the first
        Line& add(const char* name, double value);
        Line& add(const char* name, const std::string& text); // without quotes and backslashes
        void print() const;

    private:
        std::string m_text;
    };

private:
    std::vector<std::string> m_arguments;
    std::string m_dataPath;
    int m_nRuns;
};

// Milliseconds since it was made.
class Stopwatch
{
public:
    double milliseconds() const
    {
        return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - m_start).count();
    }

private:
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};
