// The settings of the application: whole numbers by name.
//
//   KTRepositoryProxy::setDefault(L"C40_ShowMinusBetweenFeetAndInch", 1);
//   int showMinus = 0;
//   vor_odbc_getDefault(L"C40_ShowMinusBetweenFeetAndInch", showMinus)   ->  1, showMinus is 1
//   vor_odbc_getDefault(L"C40_NoSuchKey", showMinus)                     ->  0, showMinus still 1
//
// Empty at the start. Keys are compared exactly and case-sensitively. Shared by all threads and safe to use from all.
#pragma once

#include "MekExport.h"
#include "VorString.h"

// Sets `value` to the number stored under `key`; 0 with `value` untouched when there is none.
MEK_REPOSITORY_API int vor_odbc_getDefault(const VorString& key, int& value);

class MEK_REPOSITORY_API KTRepositoryProxy
{
public:
    // Adds the key or replaces its value.
    static void setDefault(const VorString& key, int value);

    // A key that is not there is no error.
    static void removeDefault(const VorString& key);

    static void clear();
};
