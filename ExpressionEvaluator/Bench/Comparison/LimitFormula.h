// The least that computing a formula from its text takes: a recursive descent over plain doubles, written for formulas
// like those of the comparison and for nothing else. It knows no errors, no quirks and no rounding to six decimals, and
// trusts that its formula is well-formed and its names are known. What the library costs is told as a ratio to this.
//
//   statements = statement { ";" statement }      the value of the last one counts
//   statement  = [ name "=" ] sum
//   sum        = product { ( "+" | "-" ) product }
//   product    = factor { ( "*" | "/" ) factor }
//   factor     = "(" sum ")" | "-" factor | number | name
#pragma once

class LimitFormula
{
public:
    LimitFormula(const wchar_t* const* names, const double* values, int count)
        : m_pNames(names), m_pValues(values), m_nCount(count)
    {
    }

    double evaluate(const wchar_t* text)
    {
        m_pText = text;
        double value = statement();
        while (*m_pText == L';')
        {
            ++m_pText;
            value = statement();
        }
        return value;
    }

private:
    static bool isDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }
    static bool isNamePart(wchar_t c) { return c >= L'A' || isDigit(c) || c == L'%' || c == L'_'; }

    double statement()
    {
        const wchar_t* pEnd = m_pText;
        while (isNamePart(*pEnd))
            ++pEnd;
        if (*pEnd != L'=')
            return sum();
        const wchar_t* pName = m_pText;
        m_pText = pEnd + 1;
        const double value = sum();
        m_assigned[m_nAssigned++] = { pName, pEnd, value };
        return value;
    }

    double sum()
    {
        double value = product();
        for (;;)
        {
            if (*m_pText == L'+')
                ++m_pText, value += product();
            else if (*m_pText == L'-')
                ++m_pText, value -= product();
            else
                return value;
        }
    }

    double product()
    {
        double value = factor();
        for (;;)
        {
            if (*m_pText == L'*')
                ++m_pText, value *= factor();
            else if (*m_pText == L'/')
                ++m_pText, value /= factor();
            else
                return value;
        }
    }

    double factor()
    {
        if (isDigit(*m_pText) || *m_pText == L'.')
            return number();
        if (*m_pText == L'-')
        {
            ++m_pText;
            return -factor();
        }
        if (*m_pText != L'(')
            return name();
        ++m_pText;
        const double value = sum();
        ++m_pText;
        return value;
    }

    double number()
    {
        static constexpr double kPowersOfTen[] = { 1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9 };
        long long digits = 0;
        for (; isDigit(*m_pText); ++m_pText)
            digits = digits * 10 + (*m_pText - L'0');
        if (*m_pText != L'.')
            return static_cast<double>(digits);
        const wchar_t* pPoint = m_pText++;
        for (; isDigit(*m_pText); ++m_pText)
            digits = digits * 10 + (*m_pText - L'0');
        return static_cast<double>(digits) / kPowersOfTen[m_pText - pPoint - 1];
    }

    double name()
    {
        for (int i = 0; i < m_nCount; ++i)
            if (passOverGiven(m_pNames[i]))
                return m_pValues[i];
        for (int i = 0; i < m_nAssigned; ++i)
            if (passOverAssigned(m_assigned[i]))
                return m_assigned[i].value;
        return 0.0;
    }

    struct Assigned
    {
        const wchar_t* pName;
        const wchar_t* pEnd;
        double value;
    };

    // Whether the zero-terminated name stands here, and nothing longer; the text goes on behind it then.
    bool passOverGiven(const wchar_t* name)
    {
        const wchar_t* pText = m_pText;
        for (; *name != L'\0'; ++name, ++pText)
            if (*name != *pText)
                return false;
        return passOverName(pText);
    }

    bool passOverAssigned(const Assigned& variable)
    {
        const wchar_t* pText = m_pText;
        for (const wchar_t* pName = variable.pName; pName != variable.pEnd; ++pName, ++pText)
            if (*pName != *pText)
                return false;
        return passOverName(pText);
    }

    bool passOverName(const wchar_t* pEnd)
    {
        if (isNamePart(*pEnd))
            return false;
        m_pText = pEnd;
        return true;
    }

    const wchar_t* const* m_pNames;
    const double* m_pValues;
    int m_nCount;
    const wchar_t* m_pText = nullptr;
    Assigned m_assigned[4]; // more than any of the formulas has
    int m_nAssigned = 0;
};
