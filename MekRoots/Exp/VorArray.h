// The growable array of this system with all that belongs to it.
//
//   VorStringArray tokens;                                  // an array of texts with the usual policies
//   VorArray<int, VorArrayMemCopyReallocator<int>> types;   // one of plain values, copied byte by byte as it grows
//   VorStringHashMap<int> typeOfToken;                      // a map from texts to numbers, built on such an array
//
// The array itself, with its lengths, is in VorArrayTemplate.h; where it gets its storage and how elements move there,
// in the headers of its policies; what happens on misuse, in VorArrayMisuse.h and VorArrayNoElement.h.
#pragma once

#include "VorArrayMemCopyReallocator.h"
#include "VorArrayMemoryController.h"
#include "VorArrayMisuse.h"
#include "VorArrayNoElement.h"
#include "VorArrayObjectCopyReallocator.h"
#include "VorArrayTemplate.h"
#include "VorStringHashMap.h"
