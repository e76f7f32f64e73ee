// The settings are one map behind a lock, under which many may read and one may write. Told on an INI text:
//   "a = 1" and "b = yes"    "yes" is no whole number: line 2 and the fault are answered, and "a" is not stored either
//   "a = 1" and "b = 2"      both are stored under one lock; what was there before under other keys stays
#include "MekRoots/Exp/KTRepositoryProxy.h"

#include "KTIniReader.h"
#include "MekRoots/Exp/VorCharacters.h"
#include "MekRoots/Exp/VorStringOrder.h"

#include <cstdlib>
#include <limits>
#include <map>
#include <mutex>
#include <shared_mutex>
#include <string>

namespace
{
using Settings = std::map<VorString, int, VorStringLess>;

struct Repository
{
    std::shared_mutex mutex;
    Settings values; // guarded by mutex
};

// Made at the first call, which may come from the initialisation of another library.
Repository& repository()
{
    static Repository theRepository;
    return theRepository;
}

// All of them under one lock, so that no reader finds half of a text.
void setDefaults(const Settings& settings)
{
    Repository& theRepository = repository();
    const std::unique_lock<std::shared_mutex> lock(theRepository.mutex);
    for (const auto& [key, value] : settings)
        theRepository.values[key] = value;
}

// False, with `number` untouched, for anything but digits with an optional sign, and for what 32 bits cannot hold.
// Digits are read until the number is past 32 bits, and those left over then make the text none. "+3" is 3; "3.0",
// "3 mm", "2147483648" and the empty text are none.
bool readWholeNumber(const wchar_t* pText, int& number)
{
    const bool isNegative = *pText == L'-';
    if (isNegative || *pText == L'+')
        ++pText;
    const wchar_t* const pDigits = pText;
    long long read = 0;
    for (; VorCharacters::isDigit(*pText) && read <= std::numeric_limits<int>::max(); ++pText)
        read = read * 10 + (*pText - L'0');
    read = isNegative ? -read : read;
    if (*pText != 0 || pText == pDigits || read > std::numeric_limits<int>::max() ||
        read < std::numeric_limits<int>::min())
        return false;
    number = static_cast<int>(read);
    return true;
}

// Adds the setting; false with a fault for a value that is no whole number. The key is among the settings then all the
// same: the caller gives up all of them.
bool addSetting(const VorString& key, const VorString& value, Settings& settings, VorString& fault)
{
    if (readWholeNumber(value.getStringW(), settings[key]))
        return true;
    fault = L"found \"";
    fault += value;
    fault += L"\" for ";
    fault += key;
    fault += L", expected a whole number";
    return false;
}

// The value of an environment variable; whole numbers are ASCII, and other bytes need only stay other characters.
VorString variableOf(const char* pValue)
{
    std::wstring text;
    for (; *pValue != 0; ++pValue)
        text += static_cast<unsigned char>(*pValue) < 0x80 ? static_cast<wchar_t>(*pValue) : L'?';
    return VorString(text.c_str());
}

// Keys are ASCII.
const char* findVariable(const wchar_t* pKey)
{
    std::string name;
    for (; *pKey != 0; ++pKey)
        name += static_cast<char>(*pKey);
    return std::getenv(name.c_str()); // NOLINT(concurrency-mt-unsafe): the header tells
}
}

// Readers share the lock, so that reports that are made at once do not wait for one another.
int vor_odbc_getDefault(const VorString& key, int& value)
{
    Repository& theRepository = repository();
    const std::shared_lock<std::shared_mutex> lock(theRepository.mutex);
    const auto found = theRepository.values.find(key);
    if (found == theRepository.values.end())
        return 0;
    value = found->second;
    return 1;
}

void KTRepositoryProxy::setDefault(const VorString& key, int value)
{
    Repository& theRepository = repository();
    const std::unique_lock<std::shared_mutex> lock(theRepository.mutex);
    theRepository.values[key] = value;
}

void KTRepositoryProxy::removeDefault(const VorString& key)
{
    Repository& theRepository = repository();
    const std::unique_lock<std::shared_mutex> lock(theRepository.mutex);
    theRepository.values.erase(key);
}

void KTRepositoryProxy::clear()
{
    Repository& theRepository = repository();
    const std::unique_lock<std::shared_mutex> lock(theRepository.mutex);
    theRepository.values.clear();
}

// Nothing is stored before the last line has turned out well.
int KTRepositoryProxy::readIni(const VorString& text, int& line, VorString& fault)
{
    Settings settings;
    KTIniReader reader(text);
    VorString found;
    while (reader.next() == 1 && addSetting(reader.key(), reader.value(), settings, found))
    {
    }
    if (found.isEmpty())
        found = reader.fault();
    if (!found.isEmpty())
    {
        line = reader.line();
        fault = found;
        return 0;
    }
    setDefaults(settings);
    return 1;
}

// As with readIni(), nothing is stored before all variables have turned out well.
int KTRepositoryProxy::readEnvironment(VorString& fault)
{
    Settings settings;
    for (const wchar_t* const key : kDisplayKeys)
    {
        const char* const pValue = findVariable(key);
        if (pValue != nullptr && !addSetting(key, variableOf(pValue), settings, fault))
            return 0;
    }
    setDefaults(settings);
    return 1;
}
