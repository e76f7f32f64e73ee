// An option that names a file, or a word that stands for one, and where it makes sense several:
// --data parts.csv --data bolts.csv
//
//   FileOption data("--data", "FILE");
//   data.declareOn(report, "Parts list");
//   data.names()   ->  "parts.csv" and "bolts.csv"
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace CLI
{
class App;
class Option;
}

namespace mekbom
{
class FileOption
{
public:
    // `names` are those of the option, "-o,--output"; `form` is what help calls its value.
    FileOption(std::string names, std::string form) : m_names(std::move(names)), m_form(std::move(form)) {}

    // Adds the option to `command`, which keeps what it is given: the command outlives the use of this object. To be
    // called once, and before the others.
    void declareOn(CLI::App& command, const std::string& help);

    // What was given; empty for nothing. Throws a Fault of status kWrongUsage when there is a second one.
    std::string name() const;

    // All that was given, in its order.
    std::vector<std::string> names() const;

    // "--output": what findings call the option.
    std::string option() const;

private:
    std::string m_names;
    std::string m_form;
    const CLI::Option* m_pOption = nullptr; // not owned: the command's; null until declareOn()
};
}
