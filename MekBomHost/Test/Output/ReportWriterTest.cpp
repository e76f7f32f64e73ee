#include "ReportWriter.h"

#include "Support/EvaluatedParts.h"
#include "Support/HostTestSupport.h"
#include "Utf8.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
// What a writer of records needs: for each line its place and, by column, the values; and how many rows are behind it.
//   2 %Name=HEA200 %Weight=10500e-3 weight rows=1
class RecordWriter : public ReportWriter
{
public:
    LineContents contents() const override { return { true, true }; }

    void write(const EvaluatedReport& report, TextSink& sink) const override
    {
        ReportLines lines = report.lines();
        ReportLine line;
        while (lines.next(line))
            sink.write(recordOf(report, line));
        sink.finish();
    }

private:
    static std::string recordOf(const EvaluatedReport& report, const ReportLine& line)
    {
        std::string record = std::to_string(line.place.level);
        if (!line.label.empty())
            record += " label=" + std::string(line.label);
        for (std::size_t i = 0; i < line.values.size(); ++i)
            if (line.values[i].type != VorBomDataValue::kUnknownData)
                record += " " + Utf8::toBytes(report.columns()[i].token) + "=" + valueOf(line, i);
        const RowList& rows = line.place.hasHeader ? line.headerRows : line.footerRows;
        return record + " rows=" + std::to_string(rows.size()) + "\n";
    }

    static std::string valueOf(const ReportLine& line, std::size_t column)
    {
        const VorBomTypedValue& value = line.values[column];
        if (value.type == VorBomDataValue::kStringData)
            return std::string(line.texts[column].view());
        const UnitKind* const pKind = UnitKinds::find(value.unitType);
        return std::to_string(static_cast<int>(value.number * 1000)) + "e-3" +
               (pKind == nullptr ? "" : std::string(" ") + pKind->name);
    }
};
}

TEST(ReportWriterTest, AWriterOfRecordsFindsAllItNeeds)
{
    const RecordWriter writer;
    const EvaluatedParts parts(kPartsByMaterial,
                               { { L"HEA200", L"S355", 10.5 }, { L"HEA200", L"S355", 10.5 }, { L"L50", L"S235", 2 } },
                               writer.contents(), VorUnitsManager::imperial());
    StringSink sink;

    writer.write(parts.report(), sink);

    EXPECT_TRUE(sink.isFinished);
    EXPECT_EQ("1 %Material=S235 rows=1\n"
              "2 %Name=L50 %Weight=2000e-3 weight rows=1\n"
              "1 %Weight=2000e-3 weight rows=1\n"
              "1 %Material=S355 rows=1\n"
              "2 %Name=HEA200 %Weight=10500e-3 weight rows=2\n"
              "1 %Weight=10500e-3 weight rows=1\n"
              "0 label=Total %Weight=12500e-3 weight rows=2\n",
              sink.text);
}
}
