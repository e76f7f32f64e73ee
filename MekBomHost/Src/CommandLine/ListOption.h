// An option that takes words with commas between them, and may be repeated:  --allow MB105,MB209 --allow MB307
//
//   ListOption allowed("--allow", "CODE,...");
//   allowed.declareOn(report, "Mistakes that stop no report");
//   allowed.words()   ->  "MB105", "MB209", "MB307"
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
class ListOption
{
public:
    // `form` is what help calls the words.
    ListOption(std::string name, std::string form) : m_name(std::move(name)), m_form(std::move(form)) {}

    // Adds the option to `command`; parsing fills this object, which outlives it.
    void declareOn(CLI::App& command, const std::string& help);

    // The words in the order in which they were given; none where the option was not.
    const std::vector<std::string>& words() const { return m_words; }

private:
    std::string m_name;
    std::string m_form;
    std::vector<std::string> m_words;
};
}
