// What fills a column of the list, told on a list whose groups show the profile, and whose lines show it once more:
//
//   level 1, header    %Name in the column Profile
//   level 2, details   %Name in the column Profile         the same datum: the line says it, one field is enough
//
//   level 1, header    %Name in the column Profile
//   level 2, details   %PNum in the column Profile         another one: "Profile (group 1)" and "Profile"
#include "CsvColumns.h"

namespace mekbom
{
namespace
{
// What one section shows in a column.
struct Filling
{
    SectionPlace place;
    VorString token;
};

// The deepest level with anything to show, and its footer if that is where its records end.
SectionPlace lastSectionOf(const ReportLayout& layout)
{
    for (auto level = static_cast<int>(layout.levels().size()); level-- > 0;)
        for (const bool isFooter : { true, false })
            if (!layout.section({ level, isFooter }).columns.empty())
                return { level, isFooter };
    return {};
}

// By column, from the outermost header to the records.
std::vector<std::vector<Filling>> fillingsOf(const EvaluatedReport& report, SectionPlace last)
{
    std::vector<std::vector<Filling>> fillings(report.columns().size());
    const auto add = [&](SectionPlace place)
    {
        const SectionLayout& section = report.layout().section(place);
        for (std::size_t i = 0; i < section.columns.size(); ++i)
        {
            std::vector<Filling>& ofColumn = fillings[static_cast<std::size_t>(section.columns[i])];
            if (!ofColumn.empty() && VorString::compare(ofColumn.back().token, section.tokens[i]) == 0)
                ofColumn.pop_back();
            ofColumn.push_back({ place, section.tokens[i] });
        }
    };
    for (int level = 0; level <= last.level && level < static_cast<int>(report.layout().levels().size()); ++level)
        add({ level, false });
    if (last.isFooter)
        add(last);
    return fillings;
}

// Told apart from the column of the record itself.
std::string headingOfGroup(const std::string& heading, int level)
{
    return heading + (level == 0 ? " (list)" : " (group " + std::to_string(level) + ")");
}
}

CsvColumns CsvColumns::of(const EvaluatedReport& report, bool hasNumbers)
{
    CsvColumns fields;
    fields.last = lastSectionOf(report.layout());
    const std::vector<std::vector<Filling>> fillings = fillingsOf(report, fields.last);
    for (std::size_t index = 0; index < fillings.size(); ++index)
    {
        const ReportColumn& column = report.columns()[index];
        const std::string heading = hasNumbers ? column.headingOfNumbers() : column.heading();
        for (const Filling& filling : fillings[index])
        {
            const bool isRepeatedNumber = column.isNumeric && filling.place.level < fields.last.level;
            const bool isOfGroup = isRepeatedNumber || &filling != &fillings[index].back();
            fields.columns.push_back(
                { isOfGroup ? headingOfGroup(heading, filling.place.level) : heading, index, filling.place });
        }
    }
    return fields;
}

bool CsvColumns::endsRecord(const LinePlace& place) const
{
    return place.level == last.level && (last.isFooter ? place.hasFooter : place.hasHeader);
}
}
