#include "FormulaProgram.h"

#include <cwchar>

std::string plainText(const wchar_t* text)
{
    std::string plain;
    for (; *text != L'\0'; ++text)
        if (*text != L'%')
            plain += static_cast<char>(*text);
    return plain;
}

PlainFormula plainFormula(const TypicalFormula& formula)
{
    const std::string text = plainText(formula.formula);
    const std::size_t separator = text.find(';');
    if (separator == std::string::npos)
        return { "", "", text };
    const std::size_t assignment = text.find('=');
    return { text.substr(0, assignment), text.substr(assignment + 1, separator - assignment - 1),
             text.substr(separator + 1) };
}

std::string plainNames(const TypicalFormula& formula)
{
    std::string names;
    for (int i = 0; i < formula.numVariables; ++i)
        names += (i == 0 ? "" : ",") + plainText(kTypicalNames[i]);
    return names;
}
