// The plain structures that the slow second evaluator of reports works on: values, tuples, rows, sections and units,
// open to everyone. What they compare, split and show is written out here in the most obvious way.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

struct RefValue
{
    enum Kind
    {
        kUnknown,
        kInt,
        kDouble,
        kText
    };

    static RefValue ofInt(int number) { return RefValue{ kInt, number, 0.0, L"" }; }
    static RefValue ofDouble(double number) { return RefValue{ kDouble, 0, number, L"" }; }
    static RefValue ofText(const std::wstring& text) { return RefValue{ kText, 0, 0.0, text }; }

    bool isNumber() const { return kind == kInt || kind == kDouble; }
    double asDouble() const { return kind == kInt ? static_cast<double>(integer) : number; }
    std::wstring asText() const;

    // Negative, 0 or positive. Unlike kinds give -1 both ways; doubles closer than 1e-6 are equal.
    static int compare(const RefValue& a, const RefValue& b);
    // The same for texts in natural order; numbers are all equal.
    static int compareNaturally(const RefValue& a, const RefValue& b);
    // Whether these values have one order: not when unlike kinds meet, nor when doubles a little apart are equal each to
    // the next but not to the one after.
    static bool areOrdered(const std::vector<RefValue>& values, bool naturally);

    Kind kind = kUnknown;
    int integer = 0;
    double number = 0.0;
    std::wstring text;
};

struct RefTuple
{
    std::wstring token;
    RefValue value;
    int used = 0;
};

// The first tuple of exactly this token, or null.
RefTuple* findTuple(std::vector<RefTuple>& tuples, const std::wstring& token);

struct RefRow
{
    std::wstring handle;
    int countsInSums = 1;
    std::vector<RefTuple> tuples;
};

// A section of a template, or an evaluated one. Children are shared so that the evaluation may hold on to them while
// their parents grow.
struct RefSection
{
    enum Type
    {
        kUnknownType,
        kBomTemplate,
        kReportHeader,
        kPageHeader,
        kGroupHeader,
        kDetails,
        kGroupFooter,
        kPageFooter,
        kReportFooter
    };

    explicit RefSection(Type sectionType) : type(sectionType) {}

    // This section and everything under it, one line each, indented by one blank per level.
    std::wstring listing() const;
    void appendListing(std::wstring& text, std::size_t level) const;

    Type type;
    std::vector<RefTuple> tuples;
    std::vector<std::wstring> groupingTokens;
    std::vector<std::wstring> sortingTokens;
    RefRow* firstRow = nullptr;
    std::vector<std::shared_ptr<RefSection>> children;
};

// Which kind of quantity each token is, and how a number of each kind is shown.
struct RefUnits
{
    enum Type
    {
        kNoUnit,
        kDistance,
        kWeight,
        kArea,
        kAngle,
        kWeightPerDistance,
        kAreaPerDistance,
        kReserved,
        kDensity
    };

    // The first registration of a token stays.
    void add(const std::wstring& token, int type);
    // Registers what a template knows by itself.
    void addUsualTokens();
    int typeOf(const std::wstring& token) const;
    std::wstring display(const std::wstring& token, double value) const;

    std::map<std::wstring, int> types; // without the usual tokens
    bool hasUsualTokens = false;
    std::function<std::wstring(int type, double value)> format; // asked for real units only
};
