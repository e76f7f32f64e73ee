// The sheet of a workbook that tells what its list is made of: of which rows, which of them are in which total, in which
// units its columns are.
//
//   AboutSheet::write(report, file, formats);
//
//   List                           Cutting list
//   Rows read                      670
//   Filtered out by "%Name"        106
//   Rows listed                    564
//   Lines                          27
//
//   Total                          Rows that have a value
//   Weight                         564
//
//   Column                         Unit
//   Weight [kg]                    kg (weight)
#pragma once

#include "CellFormats.h"
#include "EvaluatedReport.h"
#include "WorkbookFile.h"

namespace mekbom::AboutSheet
{
// Adds it to the file, behind the sheets that are there. Throws a Fault of status kOutputNotWritten for what cannot be
// written.
void write(const EvaluatedReport& report, WorkbookFile& file, CellFormats& formats);
}
