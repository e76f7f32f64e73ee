#include "Catalogue.h"

#include "JsonText.h"
#include "ReportFormats.h"
#include "SchemaTexts.h"
#include "TokenTable.h"
#include "UnitKinds.h"
#include "UnitTable.h"

#include <utility>

namespace mekbom::Catalogue
{
namespace
{
using Members = std::vector<std::pair<const char*, std::string>>;

// An object on a line; texts that are empty are null.
std::string objectOf(const Members& members)
{
    std::string text;
    for (const auto& [key, value] : members)
    {
        text += text.empty() ? "{" : ", ";
        text += jsonText(key) + ": ";
        appendJsonTextOrNull(text, value);
    }
    return text + "}";
}

template <class Elements, class TextOf>
std::string arrayOf(const Elements& elements, const TextOf& toText)
{
    std::string text;
    for (const auto& element : elements)
        text += (text.empty() ? "\n" : ",\n") + toText(element);
    return "[" + text + "]\n";
}

std::string tokens()
{
    return arrayOf(TokenTable::lines(),
                   [](const TokenTable::Line& line)
                   {
                       return objectOf({ { line.isPrefix ? "tokensFrom" : "token", line.token },
                                         { "value", line.value },
                                         { "order", line.order },
                                         { "kind", line.kind } });
                   });
}

std::string kinds()
{
    return arrayOf(UnitKinds::all(),
                   [](const UnitKind& kind) {
                       return objectOf({ { "kind", kind.name }, { "meaning", kind.expectation } });
                   });
}

std::string units()
{
    return arrayOf(UnitTable::lines(),
                   [](const UnitTable::Line& line)
                   {
                       return objectOf({ { "kind", line.kind },
                                         { "unit", line.symbol },
                                         { "notation", line.notation },
                                         { "oneIs", line.oneIs },
                                         { "source", line.source },
                                         { "names", line.names } });
                   });
}

std::string formats()
{
    return arrayOf(ReportFormats::names(), [](const std::string& name) { return jsonText(name); });
}

struct Chapter
{
    const char* name;
    std::string (*text)();
};

const Chapter kChapters[] = {
    { "tokens", tokens },
    { "kinds", kinds },
    { "units", units },
    { "formats", formats },
    { "schema", [] { return std::string(SchemaTexts::kTemplate); } },
    { "list-schema", [] { return std::string(SchemaTexts::kList); } },
};
}

std::vector<std::string> names()
{
    std::vector<std::string> names;
    for (const Chapter& chapter : kChapters)
        names.emplace_back(chapter.name);
    return names;
}

std::string textOf(std::string_view name)
{
    for (const Chapter& chapter : kChapters)
        if (name == chapter.name)
            return chapter.text();
    return "";
}
}
