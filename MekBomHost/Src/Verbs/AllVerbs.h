// The verbs of the program.
//
//   VerbList verbs = allVerbs();
//   verbs.declareOn(app);
#pragma once

#include "VerbList.h"

namespace mekbom
{
// All of them, in the order in which help lists them: what most people call comes first. Each call makes new ones, so
// that nothing of one run is left for the next.
VerbList allVerbs();
}
