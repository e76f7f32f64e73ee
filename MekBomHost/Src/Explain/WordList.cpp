#include "WordList.h"

namespace mekbom
{
std::string WordList::joined(const std::vector<std::string>& words)
{
    std::string text;
    for (std::size_t i = 0; i < words.size(); ++i)
    {
        if (i > 0)
            text += i + 1 == words.size() ? " and " : ", ";
        text += words[i];
    }
    return text;
}

std::string WordList::firstOf(const std::vector<std::string>& words, std::size_t most)
{
    if (words.size() <= most)
        return joined(words);
    std::vector<std::string> first(words.begin(), words.begin() + static_cast<std::ptrdiff_t>(most));
    first.push_back(std::to_string(words.size() - most) + " more");
    return joined(first);
}
}
