#include "UnitsFile.h"

#include "FileSource.h"
#include "UnitChoice.h"

#include <filesystem>
#include <memory>
#include <system_error>

namespace mekbom::UnitsFile
{
// A slip such as "imprial" is told better by the job, which knows the words there are, than as a file that is missing.
void setIn(ReportRequest& request, const std::string& name)
{
    std::error_code error; // a name that cannot be looked up is no file
    if (!UnitChoice::isBase(name) && std::filesystem::exists(name, error))
        request.pUnits = std::make_unique<FileSource>(name);
    else
        request.units = name;
}
}
