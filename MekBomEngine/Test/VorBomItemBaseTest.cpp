#include "VorBomItemBase.h"

#include "Support/BomTestSupport.h"

#include <gtest/gtest.h>

#include <new>

#include <memory>
#include <string>

namespace
{
const wchar_t kSourcePath[] = L"MekBomEngine/Src/VorBomItemBase";

// Tells when it is destroyed.
class WitnessItem : public VorBomItemBase
{
public:
    WitnessItem(std::string& log, char name) : m_log(log), m_name(name) {}
    ~WitnessItem() override { m_log += m_name; }

private:
    std::string& m_log;
    char m_name;
};

// Writes its own line in its own way.
class StarredItem : public VorBomItemBase
{
public:
    int list(VorString& out, int level, int withChildren, int withNext) override
    {
        out += L'*';
        return VorBomItemBase::list(out, level, withChildren, withNext);
    }
};

VorString listed(VorBomItemBase& item, int level, int withChildren, int withNext)
{
    VorString text;
    EXPECT_EQ(1, item.list(text, level, withChildren, withNext));
    return text;
}

// The item of which "a" has the children "b" with child "c", and "d"; "e" is its sibling, with child "f".
struct FamilyOfSix
{
    FamilyOfSix()
    {
        for (VorBomItemBase* pItem : { &a, &b, &c, &d, &e, &f })
            pItem->addData(tuple(L"", 0));
        const wchar_t* const kNames[] = { L"a", L"b", L"c", L"d", L"e", L"f" };
        VorBomItemBase* const kItems[] = { &a, &b, &c, &d, &e, &f };
        for (int i = 0; i < 6; ++i)
            kItems[i]->setData(named(kNames[i]));
        a.addChild(&b);
        a.addChild(&d);
        b.addChild(&c);
        a.setNext(&e);
        e.addChild(&f);
    }

    static VorBomDataTupleArray named(const wchar_t* name)
    {
        VorBomDataTupleArray tuples;
        tuples.append(tuple(name, 1));
        return tuples;
    }

    VorBomItemBase a, b, c, d, e, f;
};
}

TEST(VorBomItemBaseTest, StartsWithoutLinksAndTuples)
{
    const VorBomItemBase item;

    EXPECT_EQ(nullptr, item.next());
    EXPECT_EQ(nullptr, item.child());
    EXPECT_EQ(nullptr, item.lastChild());
    EXPECT_EQ(0, item.getData().length());
    EXPECT_EQ(8, item.getData().growBy());
}

TEST(VorBomItemBaseTest, TuplesStayInTheOrderOfInsertion)
{
    VorBomItemBase item;
    item.addData(tuple(L"%B", 1));
    item.addData(tuple(L"%A", 2));
    item.addData(tuple(L"%B", 3));

    EXPECT_EQ(VorString(L"[%B:1][%A:2][%B:3]"), listed(item, 0, 0, 0));
}

TEST(VorBomItemBaseTest, AddDataCopiesTheTuple)
{
    VorBomItemBase item;
    VorBomDataTuple added = tuple(L"%A", 1);

    item.addData(added);
    added.value().set(2);

    EXPECT_EQ(VorString(L"[%A:1]"), listed(item, 0, 0, 0));
}

TEST(VorBomItemBaseTest, SetDataReplacesAllTuplesByCopies)
{
    VorBomItemBase source;
    addTuples(source, { tuple(L"%A", 1), tuple(L"%B", NoValue()) });
    VorBomItemBase item;
    addTuples(item, { tuple(L"%X", 7), tuple(L"%Y", 8), tuple(L"%Z", 9) });

    item.setData(source.getData());
    source.getData()[0].value().set(5);

    EXPECT_EQ(VorString(L"[%A:1][%B:]"), listed(item, 0, 0, 0)); // "%B" does not keep the 8 that stood there
    EXPECT_EQ(VorBomDataValue::kUnknownData, item.getData()[1].value().type());
}

TEST(VorBomItemBaseTest, SetDataTakesTheItemsOwnTuples)
{
    VorBomItemBase item;
    addTuples(item, { tuple(L"%A", 1), tuple(L"%B", 2) });

    item.setData(item.getData());

    EXPECT_EQ(VorString(L"[%A:1][%B:2]"), listed(item, 0, 0, 0));
}

TEST(VorBomItemBaseTest, FirstTupleOfATokenIsFound)
{
    VorBomItemBase item;
    addTuples(item,
              { tuple(L"%GroupBy:%Weight", 1), tuple(L"%Weight", 2), tuple(L"%Weight", 3), tuple(L"%weight", 4) });

    ASSERT_NE(nullptr, item.getTupleAt(L"%Weight"));
    EXPECT_EQ(VorString(L"2"), item.getTupleAt(L"%Weight")->value().asString());
    EXPECT_EQ(VorString(L"4"), item.getTupleAt(L"%weight")->value().asString());
    EXPECT_EQ(nullptr, item.getTupleAt(L"%Weigh"));
    EXPECT_EQ(nullptr, item.getTupleAt(L"%Weight "));
    EXPECT_EQ(nullptr, item.getTupleAt(L""));
    EXPECT_EQ(nullptr, VorBomItemBase().getTupleAt(L"%Weight"));
}

TEST(VorBomItemBaseTest, FirstTupleIsFoundEvenIfALaterOneSharesTheText)
{
    const VorString token(L"%Weight");
    VorBomItemBase item;
    item.addData(tuple(L"%Weight", 1)); // equal characters in a block of their own
    item.addData(VorBomDataTuple(token, 2));

    EXPECT_EQ(VorString(L"1"), item.getTupleAt(token)->value().asString());
}

TEST(VorBomItemBaseTest, TuplesAreFoundForWritingToo)
{
    VorBomItemBase item;
    item.addData(tuple(L"%Weight", 1));

    item.getTupleAt(L"%Weight")->setUsed(1);

    const VorBomItemBase& same = item;
    EXPECT_EQ(1, same.getTupleAt(L"%Weight")->used());
    EXPECT_EQ(same.getTupleAt(L"%Weight"), &same.getData()[0]);
}

TEST(VorBomItemBaseTest, AddChildAppends)
{
    VorBomItemBase parent;
    VorBomItemBase first;
    VorBomItemBase second;

    parent.addChild(&first);
    EXPECT_EQ(&first, parent.child());
    EXPECT_EQ(&first, parent.lastChild());

    parent.addChild(&second);
    EXPECT_EQ(&first, parent.child());
    EXPECT_EQ(&second, first.next());
    EXPECT_EQ(&second, parent.lastChild());
    EXPECT_EQ(nullptr, second.next());
}

TEST(VorBomItemBaseTest, AddChildOfNullEndsTheChain)
{
    VorBomItemBase parent;
    VorBomItemBase first;
    VorBomItemBase stray;
    parent.addChild(&first);
    first.setNext(&stray);

    parent.addChild(nullptr);

    EXPECT_EQ(nullptr, first.next());
    EXPECT_EQ(&first, parent.child());
    EXPECT_EQ(&first, parent.lastChild());
}

TEST(VorBomItemBaseTest, AddChildOfNullToNoChildrenAddsNone)
{
    VorBomItemBase parent;

    parent.addChild(nullptr);

    EXPECT_EQ(nullptr, parent.child());
    EXPECT_EQ(nullptr, parent.lastChild());
}

TEST(VorBomItemBaseTest, AddChildDoesNotFollowTheSiblings)
{
    VorBomItemBase parent;
    VorBomItemBase a;
    VorBomItemBase b;
    VorBomItemBase c;
    a.setNext(&b);

    parent.addChild(&a);
    EXPECT_EQ(&a, parent.lastChild());
    EXPECT_EQ(&b, a.next());

    parent.addChild(&c); // where setChild would have gone on after b
    EXPECT_EQ(&c, a.next());
    EXPECT_EQ(&c, parent.lastChild());
}

TEST(VorBomItemBaseTest, SetChildFollowsTheSiblings)
{
    const AssertLog log;
    VorBomItemBase parent;
    VorBomItemBase a;
    VorBomItemBase b;
    VorBomItemBase c;
    a.setNext(&b);
    b.setNext(&c);

    parent.setChild(&a);

    EXPECT_EQ(&a, parent.child());
    EXPECT_EQ(&c, parent.lastChild());
    EXPECT_TRUE(log.isEmpty());
}

TEST(VorBomItemBaseTest, SetChildOfNullClearsBothLinks)
{
    VorBomItemBase parent;
    VorBomItemBase a;
    parent.addChild(&a);

    parent.setChild(nullptr);

    EXPECT_EQ(nullptr, parent.child());
    EXPECT_EQ(nullptr, parent.lastChild());
}

TEST(VorBomItemBaseTest, BeingItsOwnChildIsReportedAndSurvived)
{
    AssertLog log;
    VorBomItemBase item;
    VorBomItemBase a;
    VorBomItemBase b;
    a.setNext(&item);
    item.setNext(&b);

    item.setChild(&a);

    EXPECT_TRUE(log.holdsOnly(L"this != m_pLastChild", kSourcePath));
    EXPECT_EQ(1, log.count(L"this != m_pLastChild", kSourcePath));
    EXPECT_EQ(&b, item.lastChild());
}

TEST(VorBomItemBaseTest, BeingItsOwnLastChildGoesUnnoticed)
{
    const AssertLog log;
    VorBomItemBase item;
    VorBomItemBase a;
    a.setNext(&item);

    item.setChild(&a);

    EXPECT_TRUE(log.isEmpty());
    EXPECT_EQ(&item, item.lastChild());
}

TEST(VorBomItemBaseTest, CopiesShareLinksAndOwnTuples)
{
    const LeakCheck leaks;
    VorBomItemBase sibling;
    VorBomItemBase child;
    VorBomItemBase source;
    source.setNext(&sibling);
    source.addChild(&child);
    addTuples(source, { tuple(L"%A", 1), tuple(L"%B", NoValue()) });
    VorBomItemBase target;
    addTuples(target, { tuple(L"%X", 7), tuple(L"%Y", 8), tuple(L"%Z", 9) });

    const VorBomItemBase copy(source);
    target = source;
    source.getData()[0].value().set(5);

    for (const VorBomItemBase* pItem : { &copy, const_cast<const VorBomItemBase*>(&target) })
    {
        EXPECT_EQ(&sibling, pItem->next());
        EXPECT_EQ(&child, pItem->child());
        EXPECT_EQ(&child, pItem->lastChild());
        ASSERT_EQ(2, pItem->getData().length());
        EXPECT_EQ(VorString(L"1"), pItem->getData()[0].value().asString());
        EXPECT_EQ(VorString(L"%B"), pItem->getData()[1].token().token());
        EXPECT_EQ(VorBomDataValue::kUnknownData, pItem->getData()[1].value().type()); // no 8 kept
    }
}

TEST(VorBomItemBaseTest, AssigningToItselfChangesNothing)
{
    VorBomItemBase child;
    VorBomItemBase item;
    item.addChild(&child);
    item.addData(tuple(L"%A", 1));
    VorBomItemBase& same = item;

    item = same;

    EXPECT_EQ(&child, item.child());
    EXPECT_EQ(VorString(L"[%A:1]"), listed(item, 0, 0, 0));
}

TEST(VorBomItemBaseTest, DestroyingAnItemLeavesItsChildren)
{
    std::string destroyed;
    WitnessItem child(destroyed, 'c');
    {
        VorBomItemBase parent;
        parent.addChild(&child);
    }
    EXPECT_EQ("", destroyed);
}

TEST(VorBomItemBaseTest, EmptyDestroysChildrenBeforeTheirParentAndSiblingsInOrder)
{
    const LeakCheck leaks;
    std::string destroyed;
    VorBomItemBase root;
    auto* pA = new WitnessItem(destroyed, 'a');
    auto* pB = new WitnessItem(destroyed, 'b');
    root.addChild(pA);
    root.addChild(pB);
    root.addChild(new WitnessItem(destroyed, 'c'));
    pA->addChild(new WitnessItem(destroyed, 'd'));
    pA->addChild(new WitnessItem(destroyed, 'e'));
    pA->lastChild()->addChild(new WitnessItem(destroyed, 'f'));
    pB->addChild(new WitnessItem(destroyed, 'g'));

    root.empty();

    EXPECT_EQ("dfeagbc", destroyed);
}

TEST(VorBomItemBaseTest, EmptyLeavesTheLinksAndTuples)
{
    VorBomItemBase root;
    auto* pChild = new VorBomItemBase;
    const VorBomItemBase* pFormerChild = pChild;
    root.addChild(pChild);
    root.addData(tuple(L"%A", 1));

    root.empty();

    EXPECT_EQ(pFormerChild, root.child());
    EXPECT_EQ(pFormerChild, root.lastChild());
    EXPECT_EQ(VorString(L"[%A:1]"), listed(root, 0, 0, 0));

    VorBomItemBase newChild;
    root.setChild(&newChild);
    EXPECT_EQ(&newChild, root.lastChild());
}

TEST(VorBomItemBaseTest, EmptyWithoutChildrenDoesNothing)
{
    VorBomItemBase root;
    VorBomItemBase sibling;
    root.setNext(&sibling);

    root.empty();

    EXPECT_EQ(&sibling, root.next());
}

TEST(VorBomItemBaseTest, EmptyFollowsTheChainPastLastChild)
{
    std::string destroyed;
    VorBomItemBase root;
    auto* pA = new WitnessItem(destroyed, 'a');
    pA->setNext(new WitnessItem(destroyed, 'b')); // addChild below knows nothing of it
    root.addChild(pA);
    EXPECT_EQ(pA, root.lastChild());

    root.empty();

    EXPECT_EQ("ab", destroyed);
}

TEST(VorBomItemBaseTest, EmptyingACopyDestroysTheSharedChildren)
{
    const LeakCheck leaks;
    std::string destroyed;
    VorBomItemBase source;
    source.addChild(new WitnessItem(destroyed, 'a'));
    VorBomItemBase copy(source);

    copy.empty();

    EXPECT_EQ("a", destroyed);
    source.setChild(nullptr); // must not be emptied as well
}

TEST(VorBomItemBaseTest, EmptyDestroysAHundredThousandLevels)
{
    const LeakCheck leaks;
    VorBomItemBase root;
    VorBomItemBase* pItem = &root;
    for (int i = 0; i < 100000; ++i)
    {
        pItem->addChild(newItem({ tuple(L"%A", i) }));
        pItem = pItem->child();
    }

    root.empty();
}

TEST(VorBomItemBaseTest, EmptyDestroysAMillionSiblingsWithChildren)
{
    const LeakCheck leaks;
    VorBomItemBase root;
    for (int i = 0; i < 1000000; ++i)
        root.addChild(new VorBomItemBase);
    for (VorBomItemBase* pItem = root.child(); pItem != nullptr; pItem = pItem->next())
        pItem->addChild(newItem({ tuple(L"%A", 1) }));

    root.empty();
}

TEST(VorBomItemBaseTest, ListShowsTokensAndValues)
{
    VorBomItemBase item;
    addTuples(item, { tuple(L"%PosNum", 12), tuple(L"%Weight", 3.5) });

    EXPECT_EQ(VorString(L"[%PosNum:12][%Weight:3.5]"), listed(item, 0, 0, 0));
    EXPECT_EQ(VorString(L"[%PosNum:12][%Weight:3.5]"), listed(item, 5, 0, 0)); // its own line is not indented

    VorBomItemBase odd;
    addTuples(odd, { tuple(L"", L"x]"), tuple(L"%Empty", NoValue()), tuple(L"%Big", 1234567.0) });
    EXPECT_EQ(VorString(L"[:x]][%Empty:][%Big:1.23457e+06]"), listed(odd, 0, 0, 0));
    EXPECT_EQ(VorString(), listed(*std::make_unique<VorBomItemBase>(), 0, 1, 1));
}

TEST(VorBomItemBaseTest, ListAppends)
{
    VorBomItemBase item;
    item.addData(tuple(L"%A", 1));
    VorString text(L"before ");

    item.list(text, 0, 0, 0);

    EXPECT_EQ(VorString(L"before [%A:1]"), text);
}

TEST(VorBomItemBaseTest, ListIndentsChildrenByTheirLevel)
{
    FamilyOfSix family;

    EXPECT_EQ(VorString(L"[a:1]\n [b:1]\n  [c:1]\n [d:1]\n[e:1]\n [f:1]"), listed(family.a, 0, 1, 1));
    EXPECT_EQ(VorString(L"[a:1]\n   [b:1]\n    [c:1]\n   [d:1]\n  [e:1]\n   [f:1]"), listed(family.a, 2, 1, 1));
}

TEST(VorBomItemBaseTest, ListWithoutSiblingsLeavesOutThoseOfTheChildrenToo)
{
    FamilyOfSix family;

    EXPECT_EQ(VorString(L"[a:1]\n [b:1]\n  [c:1]"), listed(family.a, 0, 1, 0));
}

TEST(VorBomItemBaseTest, ListWithoutChildrenShowsSiblingsOnly)
{
    FamilyOfSix family;

    EXPECT_EQ(VorString(L"[a:1]\n[e:1]"), listed(family.a, 0, 0, 1));
    EXPECT_EQ(VorString(L"[a:1]"), listed(family.a, 0, 0, 0));
}

TEST(VorBomItemBaseTest, ListTakesOnlyOneForYes)
{
    FamilyOfSix family;

    EXPECT_EQ(VorString(L"[a:1]"), listed(family.a, 0, 2, -1));
}

TEST(VorBomItemBaseTest, EveryItemListsItsOwnLine)
{
    VorBomItemBase root;
    VorBomItemBase plain;
    StarredItem starred;
    StarredItem grandchild;
    root.addChild(&plain);
    root.addChild(&starred);
    plain.addChild(&grandchild);

    EXPECT_EQ(VorString(L"\n \n  *\n *"), listed(root, 0, 1, 1));
}

TEST(VorBomItemBaseTest, ListReachesAHundredThousandLevelsAndAMillionSiblings)
{
    BomTree<VorBomItemBase> root;
    VorBomItemBase* pItem = &root;
    const int numLevels = 100000;
    for (int i = 0; i < numLevels; ++i)
    {
        pItem->addChild(new VorBomItemBase);
        pItem = pItem->child();
    }
    const int numSiblings = 1000000;
    for (int i = 0; i < numSiblings; ++i)
        root.addChild(new VorBomItemBase);

    const VorString text = listed(root, -numLevels - 1, 1, 1); // levels below 0 lead no blanks

    EXPECT_EQ(numLevels + numSiblings, text.length()); // one line break each
}

TEST(VorBomItemBaseTest, EveryFormOfNewMakesAnItem)
{
    const LeakCheck leaks;
    delete new (std::nothrow) VorBomItemBase;
    delete new (std::nothrow) VorBomTemplate;
    delete[] new VorBomDataRow[3];

    alignas(VorBomDataRow) unsigned char place[sizeof(VorBomDataRow)];
    auto* pRow = new (place) VorBomDataRow;
    pRow->addData(tuple(L"%A", 1));

    EXPECT_EQ(static_cast<void*>(place), static_cast<void*>(pRow));
    EXPECT_EQ(VorString(L"[%A:1]"), listOf(*pRow));
    pRow->~VorBomDataRow();
}
