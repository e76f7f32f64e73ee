// The units to show numbers in as the command line names them.
//
//   UnitsFile::setIn(request, "imperial");      the word, whatever files there are
//   UnitsFile::setIn(request, "house.ini");     a file of units, read when its first byte is asked for
//   UnitsFile::setIn(request, "imprial");       no file: left as a word, which the job refuses
#pragma once

#include "ReportRequest.h"

#include <string>

namespace mekbom::UnitsFile
{
// Sets either `request.pUnits` or `request.units`.
void setIn(ReportRequest& request, const std::string& name);
}
