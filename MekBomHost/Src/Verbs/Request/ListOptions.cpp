#include "ListOptions.h"

#include "ConfigurationFiles.h"
#include "DisplaySettings.h"
#include "Environment.h"
#include "FileSource.h"
#include "UnitsFile.h"

#include <CLI/CLI.hpp>

#include <memory>

namespace mekbom
{
void ListOptions::declareOn(CLI::App& command)
{
    command
        .add_option("--units", m_units,
                    "Units to print in: metric, imperial or a file of units [as configured, else metric]")
        ->type_name("UNITS");
    m_unitChoices.declareOn(command, "Unit and precision of one kind, such as length=ft-in/16");
    m_settingsFile.declareOn(command, "INI file that says how numbers are shown");
    m_settings.declareOn(command, "How numbers are laid out, such as C40_SuppressZeroFeet=0");
    command.add_flag("--no-config", m_hasNoConfiguration, "Read no configuration files");
    m_rows.declareOn(command, "Which rows to list, such as \"%Material = 'S355' and %Length > 6 m\"");
    m_allowed.declareOn(command, "Mistakes that stop no report, such as MB105");
}

Configuration ListOptions::configurationFor(const std::string& templateName) const
{
    return m_hasNoConfiguration ? Configuration() : ConfigurationFiles::readFor(templateName);
}

// Units of the command line leave nothing of those that are configured: "--units metric" asks for millimetres, whatever
// a file says of lengths. "--unit weight=kg" alone is about weights.
void ListOptions::fillIn(ReportRequest& request, const Configuration& configuration) const
{
    m_rows.fillIn(request);
    if (m_units.empty())
    {
        request.units = configuration.units();
        request.unitChoices = configuration.unitChoices();
    }
    else
        UnitsFile::setIn(request, m_units);
    for (const auto& choice : m_unitChoices.pairs())
        request.unitChoices.push_back(choice);
    request.configuredSettings = configuration.settings();
    request.settings = m_settings.pairs();
    request.allowed = m_allowed.words();
    request.environment = Environment::variables(DisplaySettings::names());
    if (const std::string settingsFile = m_settingsFile.name(); !settingsFile.empty())
        request.pSettings = std::make_unique<FileSource>(settingsFile);
}

std::optional<Finding> ListOptions::noteOfUnits(const Configuration& configuration) const
{
    return m_units.empty() ? configuration.noteOfUnits() : std::nullopt;
}

std::vector<std::string> ListOptions::inputNames() const
{
    return { m_units, m_settingsFile.name(), m_rows.assemblies() };
}
}
