// The version of the library, while a host is compiled and while it runs. The two differ where a shared library was
// exchanged for a later one after the host was built.
//
//   if (mekBomVersion() < MEK_BOM_VERSION)
//       std::fputs(mekBomVersionText(), stderr);   // "1.0.0": older than the headers that we were compiled with
//
// The same major number promises that hosts need not be changed, nor built anew: Docs/COMPATIBILITY.md.
#pragma once

#include "MekRoots/Exp/MekExport.h"

// The one place where the version stands: the build reads it from here.
#define MEK_BOM_VERSION_MAJOR 1
#define MEK_BOM_VERSION_MINOR 0
#define MEK_BOM_VERSION_PATCH 0

// 1.2.3 is 10203; minor and patch numbers stay below 100.
#define MEK_BOM_VERSION (MEK_BOM_VERSION_MAJOR * 10000 + MEK_BOM_VERSION_MINOR * 100 + MEK_BOM_VERSION_PATCH)

// MEK_BOM_VERSION as it was when the library was compiled.
extern "C" MEK_BOM_API int mekBomVersion();

// The same as text: "1.0.0". Never null; owned by the library.
extern "C" MEK_BOM_API const char* mekBomVersionText();
