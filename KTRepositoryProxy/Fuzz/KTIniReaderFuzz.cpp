// Any text: its entries come with rising lines and keys that differ, and a malformed text leaves the repository empty.
// Input: Latin-1 characters. Seeds: Fuzz/Seeds/KTIniReaderFuzz.
#include "KTRepositoryProxy/Src/KTIniReader.h"

#include "MekRoots/Exp/KTRepositoryProxy.h"

#include <cstdint>
#include <cstdlib>
#include <set>
#include <string>
#include <vector>

namespace
{
void require(bool holds)
{
    if (!holds)
        std::abort();
}
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t size)
{
    const std::wstring bytes(pData, pData + size);
    const VorString text(bytes.data(), static_cast<int>(bytes.size()));

    std::set<std::wstring> keys;
    std::vector<VorString> keysInOrder;
    int lastLine = 0;
    KTIniReader reader(text);
    while (reader.next() == 1)
    {
        require(reader.line() > lastLine);
        lastLine = reader.line();
        require(!reader.key().isEmpty() && keys.insert(reader.key().getStringW()).second);
        keysInOrder.push_back(reader.key());
    }
    require(reader.next() == 0);

    KTRepositoryProxy::clear();
    int line = 0;
    VorString fault;
    const int isRead = KTRepositoryProxy::readIni(text, line, fault);
    require(isRead == 1 ? reader.fault().isEmpty() : line > 0 && !fault.isEmpty());
    for (const VorString& key : keysInOrder)
    {
        int value = 0;
        require(vor_odbc_getDefault(key, value) == isRead);
    }
    return 0;
}
