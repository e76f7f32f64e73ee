// What `mekbom report` is asked to do.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace mekbom
{
struct ReportOptions
{
    static constexpr const char* kStandardStream = "-"; // as data or output
    static constexpr const char* kSampleData = "sample";
    static constexpr const char* kDefaultTemplate = "default";

    std::string data;             // a file or one of the above; empty for the shipped parts list
    std::string templateName;     // a file or kDefaultTemplate; empty for a shipped template that suits the data
    std::string units = "metric"; // to print in, as UnitChoice takes them
    std::vector<std::pair<std::string, std::string>> unitChoices; // "length", "ft-in/16"
    std::string settingsFile;                                     // empty for none
    std::vector<std::pair<std::string, std::string>> settings;    // "C40_ShowMinusBetweenFeetAndInch", "1"
    std::string output = kStandardStream;                         // a file or kStandardStream
    std::vector<std::pair<std::string, std::string>> inputUnits;  // "%Paint", "m2"
};
}
