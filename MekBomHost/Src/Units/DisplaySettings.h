// How a list shows its numbers, as the user sets it.
//
//   DisplaySettings::Origins origins;
//   origins.file = NamedText{ "shop.ini", "C40_SuppressZeroFeet = 0\n" };
//   origins.options = { { "C40_ShowMinusBetweenFeetAndInch", "1" } };
//   FindingList findings;
//   const DisplaySettings settings = DisplaySettings::read(origins, findings);      7'-6" and 0'-6"
//   settings.applyTo(*pTemplate->getBomTemplateUnits());
//
// A value: each report of a process has its own, and the settings repository of the process is left alone.
#pragma once

#include "FindingList.h"
#include "NamedText.h"

#include "VorBomTemplateUnits.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace mekbom
{
struct DisplaySettings
{
    using Pairs = std::vector<std::pair<std::string, std::string>>; // "C40_SuppressZeroFeet", "0"

    // What was set, by where it comes from: a later one comes over an earlier one.
    struct Origins
    {
        Pairs configuration;           // entries of configuration files, none of which has a faultIn()
        Pairs environment;             // variables whose name is one of names()
        std::optional<NamedText> file; // an INI file of whole numbers, perhaps with settings of other programs
        Pairs options;
    };

    // The names of the settings, in the order of the numbers below.
    static std::vector<std::string> names();

    // What is wrong with the value of a setting, without a place; nothing for a whole number.
    static std::optional<Finding> faultIn(const std::string& name, const std::string& value);

    // Adds a note for each setting of the file that lists do not use. Throws a Fault for what is malformed: of status
    // kInvalidInput where the file is, else of kWrongUsage.
    static DisplaySettings read(const Origins& origins, FindingList& findings);

    // Has the units show numbers so. To be called after VorBomTemplateUnits::setUnits(), which sets something else.
    void applyTo(VorBomTemplateUnits& units) const;

    // As the engine shows numbers when nobody sets anything.
    int suppressLastZeros = 1;           // 0 keeps trailing zeros: 2.50
    int suppressZeroFeet = 1;            // 0 shows 0' 6" instead of 6"
    int suppressZeroInch = 1;            // 0 shows 7' 0" instead of 7'
    int showMinusBetweenFeetAndInch = 0; // 1 shows 7'-6" instead of 7' 6"
};
}
