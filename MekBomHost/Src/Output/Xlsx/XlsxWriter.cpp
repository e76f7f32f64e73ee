#include "XlsxWriter.h"

#include "AboutSheet.h"
#include "ListSheets.h"
#include "SheetText.h"
#include "WorkbookFile.h"

#include <locale.h> // of POSIX, which the C++ header need not declare

namespace mekbom
{
namespace
{
const std::size_t kLongestTitle = 255; // of a document

// Has this thread write numbers with a decimal point while it lives: the library does as the process's locale says, and a
// workbook with commas is none.
class PointLocale
{
public:
    PointLocale() : m_locale(newlocale(LC_ALL_MASK, "C", nullptr)), m_before(uselocale(m_locale)) {}
    ~PointLocale()
    {
        uselocale(m_before);
        freelocale(m_locale);
    }
    PointLocale(const PointLocale&) = delete;
    PointLocale& operator=(const PointLocale&) = delete;

private:
    locale_t m_locale;
    locale_t m_before;
};
}

LineContents XlsxWriter::contents() const
{
    LineContents wanted;
    wanted.values = true;
    return wanted;
}

void XlsxWriter::write(const EvaluatedReport& report, TextSink& sink) const
{
    const PointLocale locale;
    WorkbookFile file(SheetText::inOneLine(report.title(), kLongestTitle), m_settings.paper);
    CellFormats formats(file.workbook());
    ListSheets(report, m_settings, file, formats).write();
    AboutSheet::write(report, file, formats);
    file.writeTo(sink);
    sink.finish();
}
}
