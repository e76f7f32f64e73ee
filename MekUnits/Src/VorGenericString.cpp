// An entry is spread over three arrays, of tokens, texts and unit types, in which it has one index. Labels have a
// handful of entries, so looking for one is a walk over their tokens.
#include "MekRoots/Exp/VorGenericString.h"

void VorGenericString::addToken(const VorString& token)
{
    m_tokens.append(token);
}

// Numbers become texts here and stay so: whoever puts the label together later knows nothing of kinds of value.
void VorGenericString::addEntry(const VorString& token, int value, int unitType)
{
    VorString text;
    text.format(L"%d", value);
    addEntry(token, text, unitType);
}

void VorGenericString::addEntry(const VorString& token, double value, int unitType, const wchar_t* format)
{
    VorString text;
    text.format(format, value);
    addEntry(token, text, unitType);
}

void VorGenericString::addEntry(const VorString& token, const VorString& text, int unitType)
{
    m_entryTokens.append(token);
    m_entryTexts.append(text);
    m_entryUnitTypes.append(unitType);
}

int VorGenericString::findEntry(const VorString& token, VorString& text) const
{
    const int index = indexOfEntry(token);
    if (index < 0)
        return 0;
    text = m_entryTexts[index];
    return 1;
}

// 0 is also what a text has that is shown as it stands; whether there is an entry at all, findEntry() tells.
int VorGenericString::getUnitType(const VorString& token) const
{
    const int index = indexOfEntry(token);
    return index < 0 ? 0 : m_entryUnitTypes[index];
}

// Of several entries for one token the first counts, as the first tuple of a row does.
int VorGenericString::indexOfEntry(const VorString& token) const
{
    for (int i = 0; i < m_entryTokens.length(); ++i)
        if (m_entryTokens[i] == token)
            return i;
    return -1;
}
