#include "UnitsVerb.h"

#include "StandardOutput.h"
#include "UnitTable.h"
#include "UnitsConvertVerb.h"
#include "UnitsReadVerb.h"

#include <CLI/CLI.hpp>

#include <memory>

namespace mekbom
{
const char* const UnitsVerb::kNotes = R"(Examples
  mekbom units
  mekbom units convert 2286 mm ft-in/16
  mekbom units convert "7'-6 1/2\"" ft-in mm --suppress-zeros 0
  mekbom units read "7'-6 1/2\"")";

UnitsVerb::UnitsVerb()
{
    m_tasks.add(std::make_unique<UnitsConvertVerb>());
    m_tasks.add(std::make_unique<UnitsReadVerb>());
}

CLI::App& UnitsVerb::declareOn(CLI::App& parent)
{
    CLI::App& units = *parent.add_subcommand("units", "List the units, or convert a quantity");
    units.require_subcommand(0, 1);
    units.footer(kNotes);
    m_tasks.declareOn(units);
    return units;
}

// The verbs below belong to this one, so that it runs the one that was called; the program sees "units" alone.
ExitStatus UnitsVerb::run(FindingList& findings)
{
    if (m_tasks.called() != nullptr)
        return m_tasks.called()->run(findings);
    StandardOutput::print(UnitTable::text());
    return kDone;
}
}
