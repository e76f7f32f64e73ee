#include "ExpressionEvaluator/Src/VorExprEvVariableList.h"
#include "Support/FormulaSupport.h"

#include <deque>
#include <thread>

namespace
{
constexpr int kMany = 5000; // far beyond what is searched without the index

// Names n0, n1, ... that outlive the list.
class Names
{
public:
    explicit Names(int count)
    {
        for (int i = 0; i < count; ++i)
            m_names.push_back(L"n" + std::to_wstring(i));
    }
    VorExprEvTextView operator[](int i) const { return view(m_names[static_cast<std::size_t>(i)].c_str()); }

private:
    std::deque<std::wstring> m_names;
};

void add(VorExprEvVariableList& list, const VorExprEvTextView& name, double number)
{
    list.prepend(name, doubleValue(number));
}

double find(VorExprEvVariableList& list, const VorExprEvTextView& name)
{
    const VorExprEvVariable* pVariable = list.find(name);
    return pVariable == nullptr ? -1.0 : pVariable->value().toNumber();
}
}

TEST(VorExprEvVariableListTest, NewestFirst)
{
    VorExprEvVariableList list;
    add(list, view(L"a"), 1.0);
    add(list, view(L"b"), 2.0);

    EXPECT_EQ(2, list.count());
    EXPECT_EQ(L"b", list.head()->name().existingPart());
    EXPECT_EQ(L"a", list.head()->next()->name().existingPart());
    EXPECT_EQ(nullptr, list.head()->next()->next());
}

TEST(VorExprEvVariableListTest, AddingReleasesTheCallersValue)
{
    VorExprEvVariableList list;
    VorExprEvValue value = integerValue(3);

    EXPECT_EQ(1, list.addVariable(view(L"a"), value));

    EXPECT_EQ(VorExprEvValue::kUnknown, value.type());
    EXPECT_EQ(VorString(L"3"), textOf(list.head()->value()));
}

TEST(VorExprEvVariableListTest, AnUnknownValueMakesAVariableWithoutOne)
{
    VorExprEvVariableList list;
    VorExprEvValue value;

    EXPECT_EQ(1, list.addVariable(view(L"a"), value));

    ASSERT_NE(nullptr, list.find(view(L"a")));
    EXPECT_EQ(VorExprEvValue::kUnknown, list.find(view(L"a"))->value().type());
}

TEST(VorExprEvVariableListTest, TheNewestOfEqualNamesIsFound)
{
    VorExprEvVariableList list;
    add(list, view(L"a"), 1.0);
    add(list, view(L"b"), 2.0);
    add(list, view(L"a"), 3.0);

    EXPECT_EQ(3.0, find(list, view(L"a")));
    EXPECT_EQ(2.0, find(list, view(L"b")));
    EXPECT_EQ(nullptr, list.find(view(L"A")));
    EXPECT_EQ(nullptr, list.find(view(L"aa")));
    EXPECT_EQ(nullptr, list.find(view(L"")));
}

TEST(VorExprEvVariableListTest, NamesAreComparedOverTheirWholeLength)
{
    VorExprEvVariableList list;
    add(list, view(L"a"), 1.0);
    const VorExprEvTextView overlong(L"a", 0, 2, 1);

    EXPECT_EQ(nullptr, list.find(overlong));
    add(list, VorExprEvTextView(L"a\0", 0, 2), 2.0);
    EXPECT_EQ(2.0, find(list, overlong));
    EXPECT_EQ(1.0, find(list, view(L"a")));
}

TEST(VorExprEvVariableListTest, LongListsFindWhatShortOnesFind)
{
    const Names names(kMany);
    VorExprEvVariableList list;
    for (int i = 0; i < kMany; ++i)
        add(list, names[i], i);

    for (int i = 0; i < kMany; ++i)
        ASSERT_EQ(i, find(list, names[i]));
    EXPECT_EQ(nullptr, list.find(view(L"n5000")));
}

TEST(VorExprEvVariableListTest, LongListsFindTheNewestOfEqualNames)
{
    const Names names(kMany);
    VorExprEvVariableList list;
    for (int i = 0; i < kMany; ++i)
        add(list, names[i % (kMany / 2)], i); // every name twice before the first search

    EXPECT_EQ(kMany / 2, find(list, names[0]));
    add(list, names[0], -2.0); // and a third time after it
    EXPECT_EQ(-2.0, find(list, names[0]));
    add(list, view(L"new"), -3.0);
    EXPECT_EQ(-3.0, find(list, view(L"new")));
}

TEST(VorExprEvVariableListTest, LongListsCountZeroCharactersInNames)
{
    const Names names(kMany);
    VorExprEvVariableList list;
    for (int i = 0; i < kMany; ++i)
        add(list, names[i], i);
    add(list, VorExprEvTextView(L"n7\0\0", 0, 4), -2.0);

    EXPECT_EQ(7.0, find(list, names[7]));
    EXPECT_EQ(-1.0, find(list, VorExprEvTextView(L"n7", 0, 3, 2)));
    EXPECT_EQ(-2.0, find(list, VorExprEvTextView(L"n7", 0, 4, 2)));
    EXPECT_EQ(-2.0, find(list, VorExprEvTextView(L"n7\0", 0, 4, 3)));
}

TEST(VorExprEvVariableListTest, EveryLengthAroundTheIndexIsSearched)
{
    const Names names(100);
    for (int nLength = 0; nLength < 100; ++nLength)
    {
        VorExprEvVariableList list;
        for (int i = 0; i < nLength; ++i)
        {
            add(list, names[i], i);
            ASSERT_EQ(i, find(list, names[i]));
            ASSERT_EQ(0.0, find(list, names[0]));
        }
        ASSERT_EQ(nullptr, list.find(names[nLength]));
    }
}

TEST(VorExprEvVariableListTest, AClearedListIsEmptyAndUsable)
{
    const LeakCheck leaks;
    const Names names(kMany);
    VorExprEvVariableList list;
    for (int i = 0; i < kMany; ++i)
        add(list, names[i], i);
    list.find(names[0]);

    list.clear();

    EXPECT_EQ(nullptr, list.head());
    EXPECT_EQ(0, list.count());
    EXPECT_EQ(nullptr, list.find(names[0]));
    add(list, names[0], 8.0);
    EXPECT_EQ(8.0, find(list, names[0]));
}

TEST(VorExprEvVariableListTest, EveryThreadHasItsOwn)
{
    emptyThreadLists();
    define(L"a", doubleValue(1.0));
    int nElsewhere = -1;

    std::thread([&nElsewhere] { nElsewhere = VorExprEvVariableList::ofThread().count(); }).join();

    EXPECT_EQ(0, nElsewhere);
    EXPECT_EQ(1, VorExprEvVariableList::ofThread().count());
    EXPECT_EQ(&VorExprEvVariableList::ofThread(), &VorExprEvVariableList::ofThread());
}
