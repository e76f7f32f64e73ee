// What configuration files say of lists: in which units they are, how numbers are laid out, how csv is written, and on
// which paper pages are.
//
//   ; ours
//   units = imperial
//   weight = kg/1
//   C40_SuppressZeroFeet = 0
//   output-decimal = ,
//   paper = letter
//
//   Configuration configuration;
//   configuration.read({ "/home/ann/.config/mekbom/config.ini", text });
//   configuration.read({ "lists/mekbom.ini", otherText });                    // over the first
//
// Keys are those of options without their minus signs, kinds of quantities, and names of settings. Which files there are
// is for ConfigurationFiles to say.
#pragma once

#include "Finding.h"
#include "IniFile.h"
#include "NamedText.h"
#include "OutputChoices.h"
#include "UnitChoice.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace mekbom
{
class Configuration
{
public:
    using Pairs = std::vector<std::pair<std::string, std::string>>;

    // Takes what a file says over what was read before. A file that names units to start from takes back whatever was
    // said of single kinds, but for what it says itself. Throws a Fault of status kInvalidInput, which names the file
    // and the line, for a key that means nothing and a value that the key cannot have.
    void read(const NamedText& file);

    // As the options --units, --unit and --setting have them.
    const std::string& units() const { return m_units; }
    const Pairs& unitChoices() const { return m_unitChoices; }
    const Pairs& settings() const { return m_settings; }

    // What was chosen is given in it, and the rest as it is where nobody chooses.
    const OutputChoices& output() const { return m_output; }

    // The names of the files, in the order in which they were read.
    const std::vector<std::string>& files() const { return m_files; }

    // Says from which files the units come; nothing where they are those that lists have anyway.
    std::optional<Finding> noteOfUnits() const;

private:
    void readUnits(const NamedText& file);
    void take(const IniFile& entry);
    bool takeOfOutput(const IniFile& entry);

    std::vector<std::string> m_files;
    std::string m_units = UnitChoice::kMetric;
    Pairs m_unitChoices;
    std::vector<std::string> m_filesOfUnits; // where both come from
    Pairs m_settings;
    OutputChoices m_output;
};
}
