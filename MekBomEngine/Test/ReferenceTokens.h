// The language of tokens as the slow second evaluator of reports reads it.
#pragma once

#include <string>
#include <vector>

bool startsWith(const std::wstring& text, const std::wstring& prefix);

// `text` without `prefix`, or all of it when it does not start so.
std::wstring without(const std::wstring& prefix, const std::wstring& text);

bool isSum(const std::wstring& token);
bool isFormula(const std::wstring& token);

// Whether rows are ordered by this token in natural order, "B2" before "B10".
bool isOrderedNaturally(const std::wstring& token);

// What a section with this token groups or sorts by, none when it is no such request. Sorting requests keep their
// direction prefixes.
//   "%GroupBy: %A , %B"  ->  "%A", "%B"
std::vector<std::wstring> groupingRequest(const std::wstring& token);
std::vector<std::wstring> sortingRequest(const std::wstring& token);

// The tokens in a formula, in order of appearance.
std::vector<std::wstring> tokensOfFormula(const std::wstring& formula);
