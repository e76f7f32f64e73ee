// One macro per library in front of its exported classes and functions. Static libraries export nothing; shared ones
// are built with hidden visibility and show exactly what carries the macro. CMake defines <library>_EXPORTS while it
// compiles a shared library.
#pragma once

#if defined(MEK_STATIC_LIBRARIES)
#define MEK_EXPORT
#define MEK_IMPORT
#elif defined(_WIN32)
#define MEK_EXPORT __declspec(dllexport)
#define MEK_IMPORT __declspec(dllimport)
#else
#define MEK_EXPORT __attribute__((visibility("default")))
#define MEK_IMPORT __attribute__((visibility("default")))
#endif

#if defined(MekRoots_EXPORTS)
#define MEK_ROOTS_API MEK_EXPORT
#else
#define MEK_ROOTS_API MEK_IMPORT
#endif

#if defined(MekUnits_EXPORTS)
#define MEK_UNITS_API MEK_EXPORT
#else
#define MEK_UNITS_API MEK_IMPORT
#endif

#if defined(MekRepositoryProxy_EXPORTS)
#define MEK_REPOSITORY_API MEK_EXPORT
#else
#define MEK_REPOSITORY_API MEK_IMPORT
#endif

#if defined(MekExpressionEvaluator_EXPORTS)
#define MEK_EXPRESSION_API MEK_EXPORT
#else
#define MEK_EXPRESSION_API MEK_IMPORT
#endif

#if defined(MekBomEngine_EXPORTS)
#define MEK_BOM_API MEK_EXPORT
#else
#define MEK_BOM_API MEK_IMPORT
#endif
