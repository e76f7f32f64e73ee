// What rules on the template have in common: the levels and tuples they look at, what is known of tokens, and the list
// that takes their findings. A class for each hundred of codes holds the rules, each a function of its own, which finds
// one mistake, wherever it stands, and adds it with what was written, what comes of it and how to write it right.
//
//   SumRules(checked, tokens, mistakes).run();
//
// None of the three is owned, and all of them outlive the rules.
#pragma once

#include "CheckedTemplate.h"
#include "InQuotes.h"
#include "KnownTokens.h"
#include "MistakeCodes.h"
#include "MistakeList.h"

#include <string>

namespace mekbom
{
class TemplateRules
{
public:
    TemplateRules(const CheckedTemplate& list, const KnownTokens& tokens, MistakeList& mistakes)
        : m_list(list), m_tokens(tokens), m_mistakes(mistakes)
    {
    }

protected:
    const CheckedTemplate& m_list;
    const KnownTokens& m_tokens;
    MistakeList& m_mistakes;
};

// "write "%Weight"": a suggestion in quotes behind a few words; empty for an empty one.
inline std::string suggestion(const std::string& words, const std::string& text)
{
    return text.empty() ? "" : words + inQuotes(text);
}
}
