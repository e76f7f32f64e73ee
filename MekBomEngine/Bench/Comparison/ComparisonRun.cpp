#include "ComparisonRun.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace
{
std::string numberText(double value)
{
    char text[40];
    std::snprintf(text, sizeof(text), "%.6g", value);
    return text;
}
}

ComparisonRun::ComparisonRun(int argc, char** argv) : m_arguments(argv + 1, argv + argc)
{
    if (m_arguments.size() % 2 != 0)
    {
        std::fprintf(stderr, "%s: expected options with values: --data FILE [--runs N] [--text FILE]\n", argv[0]);
        std::exit(2);
    }
    m_dataPath = option("--data", "parts.csv");
    m_nRuns = std::atoi(option("--runs", "5").c_str());
}

std::string ComparisonRun::option(const std::string& name, const std::string& otherwise) const
{
    for (std::size_t i = 0; i + 1 < m_arguments.size(); i += 2)
        if (m_arguments[i] == name)
            return m_arguments[i + 1];
    return otherwise;
}

void ComparisonRun::writeText(const std::string& text) const
{
    const std::string path = option("--text", "");
    if (path.empty())
        return;
    std::ofstream file(path, std::ios::binary);
    file << text;
    file.close();
    if (!file)
    {
        std::fprintf(stderr, "%s: cannot be written\n", path.c_str());
        std::exit(1);
    }
}

ComparisonRun::Line::Line(const char* program, long long numRows)
    : m_text("{\"program\": \"" + std::string(program) + "\", \"rows\": " + std::to_string(numRows))
{
}

ComparisonRun::Line& ComparisonRun::Line::add(const char* name, const std::vector<double>& runs)
{
    m_text += ", \"" + std::string(name) + "\": [";
    for (std::size_t i = 1; i < runs.size(); ++i)
        m_text += (i > 1 ? ", " : "") + numberText(runs[i]);
    m_text += "]";
    return *this;
}

ComparisonRun::Line& ComparisonRun::Line::add(const char* name, double value)
{
    m_text += ", \"" + std::string(name) + "\": " + numberText(value);
    return *this;
}

ComparisonRun::Line& ComparisonRun::Line::add(const char* name, const std::string& text)
{
    m_text += ", \"" + std::string(name) + "\": \"" + text + "\"";
    return *this;
}

void ComparisonRun::Line::print() const
{
    std::printf("%s}\n", m_text.c_str());
}
