// The user's file says    units = imperial, weight = kg/1      and that of the template's folder
//                         length = m/2                         imperial units, but kg and m
//                         units = metric                       metric units, and nothing is left of kg/1
//
// Whoever writes the second file knows what the lists beside it need, and nothing of what stands in the first.
#include "Configuration.h"

#include "DisplaySettings.h"
#include "FindingCodes.h"
#include "InQuotes.h"
#include "NearestWord.h"
#include "OutputWords.h"
#include "UnitChoice.h"
#include "UnitKinds.h"

#include <algorithm>

namespace mekbom
{
namespace
{
const char* const kUnitsKey = "units";

// The keys that are about how lists are written; they are options, too.
struct OutputKey
{
    const char* name;
    OutputChoices::eChoice choice;
    void (*take)(const IniFile& entry, OutputChoices& choices);
};

// The value that the word of the entry stands for.
template <class Value>
Value valueIn(const IniFile& entry, const WordChoices::Choices<Value>& choices)
{
    if (const Value* const pValue = WordChoices::find(choices, entry.value()))
        return *pValue;
    entry.fail(Finding::of(FindingCodes::kConfiguredWordUnknown, inQuotes(entry.value()) + " for " + entry.key(),
                           "one of" + WordChoices::wordsOf(choices)));
}

const OutputKey kOutputKeys[] = {
    { "output-delimiter", OutputChoices::kDelimiter,
      [](const IniFile& entry, OutputChoices& choices)
      { choices.delimiter = valueIn(entry, OutputWords::delimiters()); } },
    { "output-decimal", OutputChoices::kDecimalSign,
      [](const IniFile& entry, OutputChoices& choices)
      { choices.decimalSign = valueIn(entry, OutputWords::decimalSigns()); } },
    { "output-encoding", OutputChoices::kEncoding,
      [](const IniFile& entry, OutputChoices& choices)
      { choices.encoding = valueIn(entry, OutputWords::encodings()); } },
    { "paper", OutputChoices::kPaper,
      [](const IniFile& entry, OutputChoices& choices) { choices.paper = valueIn(entry, OutputWords::papers()); } },
};

bool isSetting(const std::string& key)
{
    const std::vector<std::string> names = DisplaySettings::names();
    return std::find(names.begin(), names.end(), key) != names.end();
}

std::vector<std::string> allKeys()
{
    std::vector<std::string> keys = { kUnitsKey };
    for (const UnitKind& kind : UnitKinds::all())
        keys.emplace_back(kind.name);
    for (const OutputKey& key : kOutputKeys)
        keys.emplace_back(key.name);
    for (const std::string& name : DisplaySettings::names())
        keys.push_back(name);
    return keys;
}

Finding unknown(const std::string& key)
{
    std::string expected;
    for (const std::string& known : allKeys())
        expected += (expected.empty() ? "one of " : ", ") + known;
    Finding finding = Finding::of(FindingCodes::kSettingUnknown, inQuotes(key), expected);
    finding.remedy = NearestWord::question(key, allKeys());
    return finding;
}

// Files of units are named by --units alone: here their lines stand in the file itself.
void requireBase(const IniFile& entry)
{
    if (UnitChoice::isBase(entry.value()))
        return;
    Finding finding =
        Finding::of(FindingCodes::kBaseUnknown, inQuotes(entry.value()) + " for units", "metric or imperial");
    finding.remedy = "single kinds have lines of their own, such as length = ft-in/16";
    entry.fail(finding);
}
}

void Configuration::read(const NamedText& file)
{
    m_files.push_back(file.name);
    readUnits(file);
    for (IniFile entry(file); entry.next();)
        take(entry);
}

// Wherever the line stands in the file: the units to start from come before those of single kinds.
void Configuration::readUnits(const NamedText& file)
{
    for (IniFile entry(file); entry.next();)
        if (entry.key() == kUnitsKey)
        {
            requireBase(entry);
            m_units = entry.value();
            m_unitChoices.clear();
            m_filesOfUnits = { file.name };
        }
}

void Configuration::take(const IniFile& entry)
{
    if (entry.key() == kUnitsKey || takeOfOutput(entry))
        return;
    if (UnitKinds::find(entry.key()) != nullptr)
    {
        if (const auto finding = UnitChoice::faultIn(entry.key(), entry.value()))
            entry.fail(*finding);
        m_unitChoices.emplace_back(entry.key(), entry.value());
        if (m_filesOfUnits.empty() || m_filesOfUnits.back() != m_files.back())
            m_filesOfUnits.push_back(m_files.back());
    }
    else if (isSetting(entry.key()))
    {
        if (const auto finding = DisplaySettings::faultIn(entry.key(), entry.value()))
            entry.fail(*finding);
        m_settings.emplace_back(entry.key(), entry.value());
    }
    else
        entry.fail(unknown(entry.key()));
}

bool Configuration::takeOfOutput(const IniFile& entry)
{
    for (const OutputKey& key : kOutputKeys)
        if (entry.key() == key.name)
        {
            key.take(entry, m_output);
            m_output.give(key.choice);
            return true;
        }
    return false;
}

// A list in inches on account of a file that its reader has forgotten, or never seen, must not be a riddle.
std::optional<Finding> Configuration::noteOfUnits() const
{
    if (m_unitChoices.empty() && m_units == UnitChoice::kMetric)
        return std::nullopt;
    std::string files;
    for (const std::string& file : m_filesOfUnits)
        files += (files.empty() ? "" : " and ") + file;
    std::string units = m_units == UnitChoice::kMetric ? "" : m_units;
    for (const auto& [kind, unit] : m_unitChoices)
        units += std::string(units.empty() ? "" : ", ").append(kind).append(" = ").append(unit);
    Finding finding = Finding::saying(FindingCodes::kUnitsConfigured, "units of " + files + ": " + units);
    finding.remedy = "--units takes others, --no-config reads no such file";
    return finding;
}
}
