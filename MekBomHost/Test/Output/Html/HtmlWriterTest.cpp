#include "HtmlWriter.h"

#include "Support/EvaluatedParts.h"
#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(HtmlWriterTest, AReportIsWrittenWithTheValuesThatItAsksFor)
{
    const HtmlWriter writer;
    const EvaluatedParts parts(kPartsByMaterial, { { L"HEA200", L"S355", 10.5 } }, writer.contents());
    StringSink sink;

    writer.write(parts.report(), sink);

    EXPECT_TRUE(sink.isFinished);
    EXPECT_NE(std::string::npos, sink.text.find("<tr><td><td>HEA200<td>10.5</tr>\n"));
}
}
