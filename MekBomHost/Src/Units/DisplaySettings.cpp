#include "DisplaySettings.h"

#include "NumberReader.h"
#include "Fault.h"
#include "MessageText.h"
#include "TextFile.h"
#include "Utf8.h"

#include "KTRepositoryProxy/Src/KTIniReader.h"
#include "MekRoots/Exp/KTRepositoryProxy.h"

#include <algorithm>
#include <iterator>

namespace mekbom::DisplaySettings
{
namespace
{
bool isUsed(const VorString& key)
{
    return std::any_of(std::begin(KTRepositoryProxy::kDisplayKeys), std::end(KTRepositoryProxy::kDisplayKeys),
                       [&key](const wchar_t* known) { return key == known; });
}

std::string namesOfAll()
{
    std::string names;
    for (const wchar_t* const key : KTRepositoryProxy::kDisplayKeys)
        names += (names.empty() ? "" : ", ") + Utf8::toBytes(key);
    return names;
}

void loadEnvironment()
{
    VorString fault;
    if (KTRepositoryProxy::readEnvironment(fault) == 0)
        throw Fault(kWrongUsage, "environment: " + Utf8::toBytes(fault));
}

std::vector<std::string> loadFile(const std::string& path)
{
    const VorString text = TextFile::read(path);
    int line = 0;
    VorString fault;
    if (KTRepositoryProxy::readIni(text, line, fault) == 0)
        throw Fault(kInvalidInput, path + ":" + std::to_string(line) + ": " + Utf8::toBytes(fault));
    std::vector<std::string> unused;
    for (KTIniReader reader(text); reader.next() == 1;)
        if (!isUsed(reader.key()))
            unused.push_back(Utf8::toBytes(reader.key()));
    return unused;
}

void loadSetting(const std::string& key, const std::string& value)
{
    const VorString wideKey = Utf8::toWide(key);
    int number = 0;
    if (!isUsed(wideKey))
        throw Fault(kWrongUsage, "--setting: found " + inQuotes(key) + ", expected one of " + namesOfAll());
    if (!NumberReader::read(value, number))
        throw Fault(kWrongUsage, "--setting " + key + ": found " + inQuotes(value) + ", expected a whole number");
    KTRepositoryProxy::setDefault(wideKey, number);
}
}

std::vector<std::string> load(const std::string& file, const std::vector<std::pair<std::string, std::string>>& settings)
{
    loadEnvironment();
    std::vector<std::string> unused;
    if (!file.empty())
        unused = loadFile(file);
    for (const auto& [key, value] : settings)
        loadSetting(key, value);
    return unused;
}
}
