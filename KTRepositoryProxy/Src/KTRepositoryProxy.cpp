#include "MekRoots/Exp/KTRepositoryProxy.h"

#include <map>
#include <mutex>
#include <shared_mutex>

namespace
{
struct OrderedByText
{
    bool operator()(const VorString& a, const VorString& b) const { return VorString::compare(a, b) < 0; }
};

struct Repository
{
    std::shared_mutex mutex;
    std::map<VorString, int, OrderedByText> values; // guarded by mutex
};

// Made at the first call, which may come from the initialisation of another library.
Repository& repository()
{
    static Repository theRepository;
    return theRepository;
}
}

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
