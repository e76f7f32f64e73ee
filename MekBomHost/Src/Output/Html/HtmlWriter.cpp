#include "HtmlWriter.h"

#include "ListPage.h"

namespace mekbom
{
LineContents HtmlWriter::contents() const
{
    LineContents wanted;
    wanted.values = true;
    return wanted;
}

void HtmlWriter::write(const EvaluatedReport& report, TextSink& sink) const
{
    ListPage(report, sink, m_paper).write();
}
}
