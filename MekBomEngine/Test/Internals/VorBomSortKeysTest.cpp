#include "VorBomSortKeys.h"
#include "MekBomEngine/Test/Support/BomTestSupport.h"

#include <gtest/gtest.h>

namespace
{
struct SortKey
{
    const wchar_t* token;
    int order;
    int sortType = VorBomSortKeys::kByCatalogue;
};

VorBomSortKeys keysOf(std::initializer_list<SortKey> keys)
{
    VorStringArray tokens;
    VorArray<int> orders, sortTypes;
    for (const SortKey& key : keys)
    {
        tokens.append(key.token);
        orders.append(key.order);
        sortTypes.append(key.sortType);
    }
    return VorBomSortKeys(tokens, orders, sortTypes);
}

VorBomItemBase item(std::initializer_list<VorBomDataTuple> tuples)
{
    VorBomItemBase made;
    for (const VorBomDataTuple& tuple : tuples)
        made.addData(tuple);
    return made;
}

int compare(VorBomSortKeys keys, const VorBomItemBase& first, const VorBomItemBase& second)
{
    return keys.compare([&](std::size_t key) { return first.getTupleAt(keys.token(key)); },
                        [&](std::size_t key) { return second.getTupleAt(keys.token(key)); });
}
}

TEST(VorBomSortKeysTest, FirstDifferenceDecides)
{
    const VorBomSortKeys keys = keysOf({ { L"%Material", 1 }, { L"%Length", 1 } });
    const VorBomItemBase shortS235 = item({ { L"%Material", L"S235" }, { L"%Length", 100.0 } });
    const VorBomItemBase longS235 = item({ { L"%Material", L"S235" }, { L"%Length", 900.0 } });
    const VorBomItemBase shortS355 = item({ { L"%Material", L"S355" }, { L"%Length", 100.0 } });

    EXPECT_EQ(-1, compare(keys, shortS235, longS235));
    EXPECT_EQ(-1, compare(keys, longS235, shortS355));
    EXPECT_EQ(0, compare(keys, longS235, longS235));
}

TEST(VorBomSortKeysTest, EachKeyHasItsDirection)
{
    const VorBomSortKeys keys = keysOf({ { L"%Material", 1 }, { L"%Length", 0 } });

    EXPECT_TRUE(keys.isAscending(0));
    EXPECT_FALSE(keys.isAscending(1));
    EXPECT_EQ(1, compare(keys, item({ { L"%Length", 100.0 } }), item({ { L"%Length", 900.0 } })));
}

TEST(VorBomSortKeysTest, RowWithoutTheDatumStandsFirstAscending)
{
    const VorBomItemBase with = item({ { L"%Length", 100.0 } });
    const VorBomItemBase without = item({});

    EXPECT_EQ(1, compare(keysOf({ { L"%Length", 1 } }), with, without));
    EXPECT_EQ(-1, compare(keysOf({ { L"%Length", 0 } }), with, without));
    EXPECT_EQ(0, compare(keysOf({ { L"%Length", 1 } }), without, without));
}

TEST(VorBomSortKeysTest, OnlyNaturalTokensCompareNaturally)
{
    const VorBomItemBase b2 = item({ { L"%Num", L"B2" }, { L"%Material", L"B2" } });
    const VorBomItemBase b10 = item({ { L"%Num", L"B10" }, { L"%Material", L"B10" } });

    EXPECT_EQ(-1, compare(keysOf({ { L"%Num", 1 } }), b2, b10));
    EXPECT_EQ(1, compare(keysOf({ { L"%Material", 1 } }), b2, b10));
}

TEST(VorBomSortKeysTest, UnknownTokenIsReportedOnceTwoValuesMeet)
{
    const VorBomItemBase with = item({ { L"%Nobody", L"B2" } });
    const VorBomItemBase without = item({});
    const VorBomSortKeys keys = keysOf({ { L"%Nobody", 1 } });
    AssertLog log;

    compare(keys, with, without);
    EXPECT_TRUE(log.isEmpty());
    compare(keys, with, with);
    EXPECT_FALSE(log.isEmpty());
}

TEST(VorBomSortKeysTest, SortTypeThatIsSetComesBeforeTheCatalogues)
{
    const VorBomItemBase b2 = item({ { L"%Num", L"B2" }, { L"%Material", L"B2" } });
    const VorBomItemBase b10 = item({ { L"%Num", L"B10" }, { L"%Material", L"B10" } });

    EXPECT_EQ(1, compare(keysOf({ { L"%Num", 1, VorBomDataToken::kSortString } }), b2, b10));
    EXPECT_EQ(-1, compare(keysOf({ { L"%Material", 1, VorBomDataToken::kSortAlphanumeric } }), b2, b10));
}

TEST(VorBomSortKeysTest, UnknownTokenWithASortTypeOfItsOwnIsNotReported)
{
    const VorBomItemBase b2 = item({ { L"%Nobody", L"B2" } });
    const VorBomItemBase b10 = item({ { L"%Nobody", L"B10" } });
    AssertLog log;

    EXPECT_EQ(-1, compare(keysOf({ { L"%Nobody", 1, VorBomDataToken::kSortAlphanumeric } }), b2, b10));
    EXPECT_EQ(1, compare(keysOf({ { L"%Nobody", 1, VorBomDataToken::kSortString } }), b2, b10));
    EXPECT_TRUE(log.isEmpty());
}

TEST(VorBomSortKeysTest, TokensWithoutEntryAreUnknownAndComparePlainly)
{
    const VorBomSortKeys keys = keysOf({ { L"%Num", 1 }, { L"%Formula:%A*2", 1 }, { L"%Nobody", 1 } });

    EXPECT_EQ(VorBomDataToken::kSortAlphanumeric, keys.sortType(0));
    EXPECT_FALSE(keys.isUnknown(0));
    for (const std::size_t key : { 1U, 2U })
    {
        EXPECT_TRUE(keys.isUnknown(key));
        EXPECT_EQ(VorBomDataToken::kSortString, keys.sortType(key));
    }
}

TEST(VorBomSortKeysTest, ValueOrderComesBeforeTheSortType)
{
    VorStringArray texts;
    texts.append(VorString(L"b"));
    texts.append(VorString(L"a"));
    const VorBomValueOrder order(texts);

    EXPECT_FALSE(order.isEmpty());
    EXPECT_EQ(0, order.placeOf(L"b"));
    EXPECT_EQ(1, order.placeOf(L"a"));
    EXPECT_EQ(2, order.placeOf(L"c"));
    EXPECT_EQ(-1, order.compare(VorBomDataValue(L"b"), VorBomDataValue(L"a")));
    EXPECT_EQ(1, order.compare(VorBomDataValue(1), VorBomDataValue(L"a"))) << "a number is not listed";
    EXPECT_EQ(0, order.compare(VorBomDataValue(1), VorBomDataValue(L"c")));
    EXPECT_TRUE(VorBomValueOrder().isEmpty());
    EXPECT_TRUE(VorBomValueOrder(VorStringArray()).isEmpty());
    EXPECT_EQ(0, VorBomValueOrder().placeOf(L"a"));
}
