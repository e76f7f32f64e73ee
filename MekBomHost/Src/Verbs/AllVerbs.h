// The verbs of the program.
//
//   VerbList verbs = allVerbs();
//   verbs.declareOn(app);
#pragma once

#include "VerbList.h"

namespace mekbom
{
// All of them, in the order in which help lists them.
VerbList allVerbs();
}
