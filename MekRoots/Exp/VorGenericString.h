// Collects the tokens of an object and the text of each, for a label that is put together from them later.
//
//   VorGenericString label;
//   label.addToken(L"%Length");
//   label.addEntry(L"%Length", 6000.0, 0, L"%.1f");
//   VorString text;
//   label.findEntry(L"%Length", text)   ->  1, text is "6000.0"
//
// A token may be added without an entry (it is known, but has no value), and several times; the first entry counts, as
// the first tuple of a row does. Owns its texts; copies are independent.
#pragma once

#include "MekExport.h"
#include "VorArray.h"
#include "VorString.h"

class MEK_UNITS_API VorGenericString
{
public:
    // Entry unit type: 0 for a text or number that is shown as it stands. Any other number is the host's own; it is
    // kept with the entry and changes no text.
    void addToken(const VorString& token);
    void addEntry(const VorString& token, int value, int unitType);
    void addEntry(const VorString& token, double value, int unitType, const wchar_t* format); // format as printf has it
    void addEntry(const VorString& token, const VorString& text, int unitType);

    // The tokens in the order in which they were added.
    const VorStringArray& tokens() const { return m_tokens; }

    // The text of the first entry for `token`, compared exactly; 0 with `text` untouched when there is none.
    int findEntry(const VorString& token, VorString& text) const;

    // The unit type of the first entry for `token`; 0 also when there is none.
    int getUnitType(const VorString& token) const;

private:
    int indexOfEntry(const VorString& token) const;

    // An entry stands at one index in all three.
    VorStringArray m_tokens;
    VorStringArray m_entryTokens;
    VorStringArray m_entryTexts;
    VorArray<int> m_entryUnitTypes;
};
