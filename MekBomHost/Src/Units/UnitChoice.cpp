// A choice is tried on the units themselves: VorUnitsManager::setUnit() reads "ft-in/16", and refuses what is no unit
// of the kind. Whoever asked knows where the choice stood, so choose() leaves the place to them: for "--unit length=lb"
// the source of the finding is the option, for the third line of shop.ini it is the file and its line.
#include "UnitChoice.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "InQuotes.h"
#include "IniFile.h"
#include "NearestWord.h"
#include "UnitKinds.h"
#include "Utf8.h"

namespace mekbom::UnitChoice
{
namespace
{
const char* const kBaseKey = "base";

Finding unknownKind(const std::string& kind)
{
    std::vector<std::string> names;
    for (const UnitKind& known : UnitKinds::all())
        names.push_back(known.name);
    Finding finding = Finding::of(FindingCodes::kKindUnknown, inQuotes(kind), "one of " + UnitKinds::names());
    finding.remedy = NearestWord::question(kind, names);
    return finding;
}

// Each of these takes the choice, or says what is wrong with it.
std::optional<Finding> choose(VorUnitsManager& units, const std::string& kind, const std::string& unit)
{
    const UnitKind* const pKind = UnitKinds::find(kind);
    if (pKind == nullptr)
        return unknownKind(kind);
    if (units.setUnit(pKind->system, Utf8::toWide(unit)) == 1)
        return std::nullopt;
    return unitUnknown(unit, *pKind);
}

// All kinds at once; what was chosen before is gone.
std::optional<Finding> chooseBase(VorUnitsManager& units, const std::string& base)
{
    if (!isBase(base))
    {
        Finding finding = Finding::of(FindingCodes::kBaseUnknown, inQuotes(base), "metric or imperial");
        finding.remedy = NearestWord::question(base, { kMetric, kImperial });
        return finding;
    }
    units = base == kMetric ? VorUnitsManager::metric() : VorUnitsManager::imperial();
    return std::nullopt;
}

// Whoever passes a word that is no base meant a file, most likely, so the finding offers both.
VorUnitsManager unitsOfBase(const std::string& base)
{
    VorUnitsManager units;
    if (std::optional<Finding> finding = chooseBase(units, base))
    {
        finding->source = "--units";
        finding->expected = "metric, imperial or a file of units";
        throw Fault(kWrongUsage, *finding);
    }
    return units;
}

// The base counts wherever its line stands, so the file is read twice: a base sets the units of all kinds, and would
// undo "length = cm" in a line above it.
VorUnitsManager unitsOfFile(const NamedText& file)
{
    VorUnitsManager units;
    for (const bool isBaseWanted : { true, false })
        for (IniFile ini(file); ini.next();)
            if ((ini.key() == kBaseKey) == isBaseWanted)
                if (const auto finding =
                        isBaseWanted ? chooseBase(units, ini.value()) : choose(units, ini.key(), ini.value()))
                    ini.fail(*finding);
    return units;
}

// Choices are made one after the other, on top of the base or the file: of two for one kind the last one counts.
VorUnitsManager withChoices(VorUnitsManager units, const Choices& choices)
{
    for (const auto& [kind, unit] : choices)
        if (std::optional<Finding> finding = choose(units, kind, unit))
        {
            finding->source = std::string("--unit ").append(kind).append("=").append(unit);
            throw Fault(kWrongUsage, *finding);
        }
    return units;
}
}

// The examples of a precision are of other kinds than most: they show how it is written, while the expectation in front
// names the units.
Finding unitUnknown(const std::string& unit, const UnitKind& kind)
{
    return Finding::of(FindingCodes::kUnitUnknown, inQuotes(unit),
                       std::string(kind.expectation) + ", and after a slash a precision if need be: lb/1, ft-in/16");
}

std::optional<Finding> faultIn(const std::string& kind, const std::string& unit)
{
    VorUnitsManager units;
    return choose(units, kind, unit);
}

const char* const kMetric = "metric";
const char* const kImperial = "imperial";

// Case counts, as in units: "Metric" is asked for as a file, and not found.
bool isBase(const std::string& word)
{
    return word == kMetric || word == kImperial;
}

VorUnitsManager unitsOf(const std::string& base, const Choices& choices)
{
    return withChoices(unitsOfBase(base), choices);
}

VorUnitsManager unitsOf(const NamedText& file, const Choices& choices)
{
    return withChoices(unitsOfFile(file), choices);
}
}
