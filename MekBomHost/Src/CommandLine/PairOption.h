// An option that takes a pair of words and may be repeated:  --unit length=ft-in/16 --unit weight=lb
//
//   PairOption units("--unit", "KIND=UNIT", "length=ft-in/16");
//   units.declareOn(report, "Unit and precision of one kind, such as length=ft-in/16");
//   units.pairs()   ->   { "length", "ft-in/16" }, { "weight", "lb" }
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace CLI
{
class App;
}

namespace mekbom
{
class PairOption
{
public:
    // `form` is what help and messages call a pair, `example` one that messages show.
    PairOption(std::string name, std::string form, std::string example)
        : m_name(std::move(name)), m_form(std::move(form)), m_example(std::move(example))
    {
    }

    // Adds the option to `command`; parsing fills this object, which outlives it.
    void declareOn(CLI::App& command, const std::string& help);

    // The pairs in the order in which they were given. Throws a Fault of status kWrongUsage for a text without an
    // equals sign, and for one with nothing on either side of it.
    std::vector<std::pair<std::string, std::string>> pairs() const;

private:
    std::pair<std::string, std::string> pairOf(const std::string& argument) const;

    std::string m_name;
    std::string m_form;
    std::string m_example;
    std::vector<std::string> m_arguments;
};
}
