// The settings of the application: whole numbers by name.
//
//   KTRepositoryProxy::setDefault(L"C40_ShowMinusBetweenFeetAndInch", 1);
//   int showMinus = 0;
//   vor_odbc_getDefault(L"C40_ShowMinusBetweenFeetAndInch", showMinus)   ->  1, showMinus is 1
//   vor_odbc_getDefault(L"C40_NoSuchKey", showMinus)                     ->  0, showMinus still 1
//
// Empty at the start: the host fills it one by one, from an INI text or from the environment. Keys are compared exactly
// and case-sensitively. Shared by all threads and safe to use from all; what is read from a text comes at once.
#pragma once

#include "MekExport.h"
#include "VorString.h"

// Sets `value` to the number stored under `key`; 0 with `value` untouched when there is none.
MEK_REPOSITORY_API int vor_odbc_getDefault(const VorString& key, int& value);

class MEK_REPOSITORY_API KTRepositoryProxy
{
public:
    // The settings that say how lists show their numbers, each 0 or 1.
    static constexpr const wchar_t* kDisplayKeys[] = { L"C0_BOMSuppressLastZeros", L"C40_SuppressZeroFeet",
                                                       L"C40_SuppressZeroInch", L"C40_ShowMinusBetweenFeetAndInch" };

    // Adds the key or replaces its value.
    static void setDefault(const VorString& key, int value);

    // A key that is not there is no error.
    static void removeDefault(const VorString& key);

    static void clear();

    // Sets what an INI text (KTIniReader) holds; its values are whole numbers of 32 bits. 0 for a malformed text, with
    // nothing changed, `line` the number of the line and `fault` what is wrong there:
    //   found "yes" for C40_SuppressZeroFeet, expected a whole number
    // `line` and `fault` are touched only then.
    static int readIni(const VorString& text, int& line, VorString& fault);

    // Sets those of kDisplayKeys that are names of environment variables. 0 for a variable that holds no whole number,
    // with nothing changed and `fault` as above. Not to be called while another thread changes the environment.
    static int readEnvironment(VorString& fault);
};
