// A setting may be made several times, and the last one counts:
//   nobody says anything                           C40_SuppressZeroFeet is 1
//   a line of a configuration file                 1
//   a variable of that name in the environment     0
//   a line of the settings file                    1 again
//   --setting C40_SuppressZeroFeet=0               0
// All of them are read, so that a mistake shows even where another one comes over it.
#include "DisplaySettings.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "InQuotes.h"
#include "IniFile.h"
#include "NearestWord.h"
#include "NumberReader.h"

#include <algorithm>
#include <iterator>

namespace mekbom
{
namespace
{
// What a setting is called, and the number that it sets.
struct Setting
{
    const char* name;
    int DisplaySettings::*pNumber;
};

// A setting that is added to DisplaySettings is added here, too, in the same order; all else follows from the table.
const Setting kSettings[] = {
    { "C0_BOMSuppressLastZeros", &DisplaySettings::suppressLastZeros },
    { "C40_SuppressZeroFeet", &DisplaySettings::suppressZeroFeet },
    { "C40_SuppressZeroInch", &DisplaySettings::suppressZeroInch },
    { "C40_ShowMinusBetweenFeetAndInch", &DisplaySettings::showMinusBetweenFeetAndInch },
};

const Setting* findSetting(const std::string& name)
{
    const auto pFound = std::find_if(std::begin(kSettings), std::end(kSettings),
                                     [&name](const Setting& setting) { return name == setting.name; });
    return pFound == std::end(kSettings) ? nullptr : pFound;
}

std::string namesOfAll()
{
    std::string names;
    for (const Setting& setting : kSettings)
        names += (names.empty() ? "" : ", ") + std::string(setting.name);
    return names;
}

Finding unknown(const std::string& name)
{
    Finding finding = Finding::of(FindingCodes::kSettingUnknown, inQuotes(name), "one of " + namesOfAll());
    finding.remedy = NearestWord::question(name, DisplaySettings::names());
    return finding;
}

// Only a note: one file of settings may serve several programs, of which this one knows four settings.
Finding unused(const std::string& name, const std::string& fileName)
{
    Finding finding = Finding::saying(FindingCodes::kSettingUnused,
                                      fileName + " sets " + harmless(name) + ", which lists do not use");
    finding.remedy = NearestWord::question(name, DisplaySettings::names());
    return finding;
}

Finding noWholeNumber(const std::string& found)
{
    return Finding::of(FindingCodes::kSettingIsNoNumber, found, "a whole number");
}

[[noreturn]] void failUsage(const std::string& source, Finding finding)
{
    finding.source = source;
    throw Fault(kWrongUsage, finding);
}

// Those of the environment and of configuration files, of which the latter are known to be right. Elsewhere a number may
// have blanks around it. A variable holds the number alone, as nobody lines variables up.
void readPairs(const DisplaySettings::Pairs& pairs, DisplaySettings& settings)
{
    for (const auto& [name, value] : pairs)
        if (const Setting* const pSetting = findSetting(name))
            if (value.find_first_of(" \t") != std::string::npos ||
                !NumberReader::read(value, settings.*pSetting->pNumber))
                failUsage("environment", noWholeNumber(inQuotes(value) + " for " + name));
}

// The numbers of other programs are checked too, so that a slip in the file shows whatever it is about.
void readFile(const NamedText& file, DisplaySettings& settings, FindingList& findings)
{
    for (IniFile ini(file); ini.next();)
    {
        const Setting* const pSetting = findSetting(ini.key());
        int number = 0;
        if (!NumberReader::read(ini.value(), number))
            ini.fail(noWholeNumber(inQuotes(ini.value()) + " for " + harmless(ini.key())));
        if (pSetting != nullptr)
            settings.*pSetting->pNumber = number;
        else
            findings.add(ini.aboutEntry(unused(ini.key(), file.name)));
    }
}

// A mistake names the option as the user wrote it: "--setting" alone where the name is wrong, with the name where its
// value is.
void readOption(const std::string& name, const std::string& value, DisplaySettings& settings)
{
    const Setting* const pSetting = findSetting(name);
    if (pSetting == nullptr)
        failUsage("--setting", unknown(name));
    if (!NumberReader::read(value, settings.*pSetting->pNumber))
        failUsage("--setting " + name, noWholeNumber(inQuotes(value)));
}
}

std::vector<std::string> DisplaySettings::names()
{
    std::vector<std::string> names;
    for (const Setting& setting : kSettings)
        names.emplace_back(setting.name);
    return names;
}

std::optional<Finding> DisplaySettings::faultIn(const std::string& name, const std::string& value)
{
    int number = 0;
    if (NumberReader::read(value, number))
        return std::nullopt;
    return noWholeNumber(inQuotes(value) + " for " + name);
}

// From the farthest to the nearest: what is set for the user, for the machine, for the shop, for this one list.
DisplaySettings DisplaySettings::read(const Origins& origins, FindingList& findings)
{
    DisplaySettings settings;
    readPairs(origins.configuration, settings);
    readPairs(origins.environment, settings);
    if (origins.file)
        readFile(*origins.file, settings, findings);
    for (const auto& [name, value] : origins.options)
        readOption(name, value, settings);
    return settings;
}

void DisplaySettings::applyTo(VorBomTemplateUnits& units) const
{
    units.setDisplaySettings(suppressLastZeros, suppressZeroFeet, suppressZeroInch, showMinusBetweenFeetAndInch);
}
}
