#include "UnitChoice.h"

#include "Fault.h"
#include "MessageText.h"
#include "TextFile.h"
#include "UnitKinds.h"
#include "Utf8.h"

#include "KTRepositoryProxy/Src/KTIniReader.h"

#include <filesystem>
#include <system_error>

namespace mekbom::UnitChoice
{
namespace
{
const char* const kBaseKey = "base";

// What is wrong with a choice, for the end of a message; empty when it was taken.
std::string choose(VorUnitsManager& units, const std::string& kind, const std::string& unit)
{
    const UnitKind* const pKind = UnitKinds::find(kind);
    if (pKind == nullptr)
        return "found " + inQuotes(kind) + ", expected one of " + UnitKinds::names();
    if (units.setUnit(pKind->system, Utf8::toWide(unit)) == 1)
        return std::string();
    return "found " + inQuotes(unit) + ", expected " + pKind->expectation +
           ", and after a slash a precision if need be: lb/1, ft-in/16";
}

std::string chooseBase(VorUnitsManager& units, const std::string& base)
{
    if (base != kMetric && base != kImperial)
        return "found " + inQuotes(base) + ", expected metric or imperial";
    units = base == kMetric ? VorUnitsManager::metric() : VorUnitsManager::imperial();
    return std::string();
}

void chooseOption(VorUnitsManager& units, const std::string& kind, const std::string& unit)
{
    const std::string fault = choose(units, kind, unit);
    if (!fault.empty())
        throw Fault(kWrongUsage, "--unit " + kind + "=" + unit + ": " + fault);
}

// The base counts wherever its line stands.
VorUnitsManager unitsOfFile(const std::string& path)
{
    const VorString text = TextFile::read(path);
    const auto fail = [&path](int line, const std::string& fault)
    { throw Fault(kInvalidInput, path + ":" + std::to_string(line) + ": " + fault); };
    VorUnitsManager units;
    for (const bool isBaseWanted : { true, false })
    {
        KTIniReader reader(text);
        while (reader.next() == 1)
        {
            const std::string key = Utf8::toBytes(reader.key());
            const std::string value = Utf8::toBytes(reader.value());
            if ((key == kBaseKey) != isBaseWanted)
                continue;
            const std::string fault = isBaseWanted ? chooseBase(units, value) : choose(units, key, value);
            if (!fault.empty())
                fail(reader.line(), fault);
        }
        if (reader.fault().isEmpty() == 0)
            fail(reader.line(), Utf8::toBytes(reader.fault()));
    }
    return units;
}

VorUnitsManager unitsOfBase(const std::string& base)
{
    VorUnitsManager units;
    std::error_code error;
    if (chooseBase(units, base).empty())
        return units;
    if (!std::filesystem::exists(base, error))
        throw Fault(kWrongUsage, "--units: found " + inQuotes(base) + ", expected metric, imperial or a file of units");
    return unitsOfFile(base);
}
}

const char* const kMetric = "metric";
const char* const kImperial = "imperial";

VorUnitsManager unitsOf(const std::string& base, const std::vector<std::pair<std::string, std::string>>& choices)
{
    VorUnitsManager units = unitsOfBase(base);
    for (const auto& [kind, unit] : choices)
        chooseOption(units, kind, unit);
    return units;
}
}
