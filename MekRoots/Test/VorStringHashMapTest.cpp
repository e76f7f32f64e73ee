#include "MekRoots/Test/Support/TestSupport.h"

#include <cstdint>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace
{
using Map = VorStringHashMap<int>;

// The bucket counts a map may have; the list goes on, but no test grows that far.
const int kBucketCounts[] = { 53, 97, 193, 389, 769, 1543, 3079, 6151, 12289, 24593, 49157, 98317, 196613 };

int bucketCountFor(int numElements)
{
    const int* pCount = kBucketCounts;
    while (*pCount < numElements)
        ++pCount;
    return *pCount;
}

// The hash rule: h = 5h + c, unsigned 32-bit.
std::uint32_t hashOf(const VorString& key)
{
    std::uint32_t hash = 0;
    for (int i = 0; i < key.length(); ++i)
        hash = hash * 5U + static_cast<std::uint32_t>(key.getStringW()[i]);
    return hash;
}

VorString keyOf(int number)
{
    VorString key;
    key.format(L"%%Token%d", number);
    return key;
}

Map::Node* insert(Map& map, const VorString& key, int value)
{
    bool inserted = false;
    Map::Node* node = map.findOrInsert(key, value, inserted);
    EXPECT_TRUE(inserted) << key;
    return node;
}

Map mapOf(int numElements)
{
    Map map;
    for (int i = 0; i < numElements; ++i)
        insert(map, keyOf(i), i);
    return map;
}
}

TEST(VorStringHashMapTest, AFreshMapHas53Buckets)
{
    const LeakCheck leaks;
    const Map map;

    EXPECT_EQ(0, map.count());
    EXPECT_EQ(53, map.bucketCount());
    EXPECT_EQ(nullptr, map.find(VorString(L"%Name")));
    EXPECT_EQ(nullptr, map.find(VorString()));
}

TEST(VorStringHashMapTest, AnInsertedKeyIsFound)
{
    const LeakCheck leaks;
    Map map;
    bool inserted = false;

    Map::Node* node = map.findOrInsert(VorString(L"%Weight"), 2, inserted);

    ASSERT_NE(nullptr, node);
    EXPECT_TRUE(inserted);
    EXPECT_EQ(VorString(L"%Weight"), node->key);
    EXPECT_EQ(2, node->value);
    EXPECT_EQ(nullptr, node->next);
    EXPECT_EQ(node, map.find(VorString(L"%Weight")));
    EXPECT_EQ(1, map.count());
}

TEST(VorStringHashMapTest, TheFirstRegistrationWins)
{
    Map map;
    Map::Node* first = insert(map, L"%Weight", 2);
    bool inserted = true;

    Map::Node* second = map.findOrInsert(VorString(L"%Weight"), 3, inserted);

    EXPECT_FALSE(inserted);
    EXPECT_EQ(first, second);
    EXPECT_EQ(2, second->value);
    EXPECT_EQ(1, map.count());
}

TEST(VorStringHashMapTest, AValueMayBeChangedInItsNode)
{
    Map map;
    insert(map, L"%Weight", 2)->value = 7;

    EXPECT_EQ(7, map.find(VorString(L"%Weight"))->value);
}

TEST(VorStringHashMapTest, KeysAreComparedExactly)
{
    Map map;
    const VorString keys[] = { L"%Weight", L"%weight", L"%Weight ", L"", VorString(L"\0", 1), VorString(L"\0\0", 2) };
    int value = 0;
    for (const VorString& key : keys)
        insert(map, key, value++);

    value = 0;
    for (const VorString& key : keys)
        EXPECT_EQ(value++, map.find(key)->value);
    EXPECT_EQ(6, map.count());
}

TEST(VorStringHashMapTest, CollidingKeysStandInOneBucketNewestFirst)
{
    Map map; // 5 * 'a' + 'K' = 5 * 'b' + 'F' = 5 * 'c' + 'A'
    Map::Node* first = insert(map, L"aK", 1);
    Map::Node* second = insert(map, L"bF", 2);
    Map::Node* third = insert(map, L"cA", 3);

    EXPECT_EQ(second, third->next);
    EXPECT_EQ(first, second->next);
    EXPECT_EQ(nullptr, first->next);
    EXPECT_EQ(1, map.find(L"aK")->value);
    EXPECT_EQ(2, map.find(L"bF")->value);
    EXPECT_EQ(3, map.find(L"cA")->value);
    EXPECT_EQ(nullptr, map.find(L"dA"));
}

TEST(VorStringHashMapTest, EveryInsertionGoesToTheHeadOfItsBucket)
{
    Map map;
    std::vector<Map::Node*> heads(53, nullptr);
    for (int i = 0; i < 53; ++i)
    {
        VorString key = keyOf(i * 7919);
        key += L"\x20AC and a tail that makes the hash wrap around";
        Map::Node*& head = heads[hashOf(key) % 53];

        Map::Node* node = insert(map, key, i);

        EXPECT_EQ(head, node->next) << key;
        head = node;
    }
}

TEST(VorStringHashMapTest, TheMapGrowsWhenThereIsNoRoomForOneMore)
{
    const LeakCheck leaks;
    Map map;
    for (int count = 1; count <= 100000; ++count)
    {
        insert(map, keyOf(count), count);
        ASSERT_EQ(count, map.count());
        ASSERT_EQ(bucketCountFor(count), map.bucketCount()) << count << " elements";
    }
    EXPECT_EQ(196613, map.bucketCount());
    for (int count = 1; count <= 100000; ++count)
        ASSERT_EQ(count, map.find(keyOf(count))->value);
    EXPECT_EQ(nullptr, map.find(keyOf(0)));
}

TEST(VorStringHashMapTest, RoomIsMadeBeforeTheKeyIsLookedUp)
{
    Map map = mapOf(53);
    EXPECT_EQ(53, map.bucketCount());
    map.find(keyOf(52));
    EXPECT_EQ(53, map.bucketCount());

    bool inserted = true;
    map.findOrInsert(keyOf(52), 0, inserted);

    EXPECT_FALSE(inserted);
    EXPECT_EQ(97, map.bucketCount()); // on purpose: it is not known yet that nothing will be added
    EXPECT_EQ(53, map.count());
}

TEST(VorStringHashMapTest, GrowingKeepsTheNodesAndDealsThemOutAnew)
{
    Map map;
    std::vector<Map::Node*> nodes;
    nodes.reserve(1000);
    for (int i = 0; i < 1000; ++i)
        nodes.push_back(insert(map, keyOf(i), i));

    std::set<std::uint32_t> buckets;
    int numChains = 0;
    for (int i = 0; i < 1000; ++i)
    {
        Map::Node* node = nodes[static_cast<std::size_t>(i)];
        ASSERT_EQ(node, map.find(keyOf(i))) << "nodes stay where they are";
        const std::uint32_t bucket = hashOf(node->key) % 1543;
        buckets.insert(bucket);
        numChains += node->next == nullptr ? 1 : 0;
        for (const Map::Node* other = node->next; other != nullptr; other = other->next)
            ASSERT_EQ(bucket, hashOf(other->key) % 1543);
    }
    EXPECT_EQ(buckets.size(), static_cast<std::size_t>(numChains)); // one chain for each bucket in use
}

TEST(VorStringHashMapTest, CopiesAreEqualAndIndependent)
{
    const LeakCheck leaks;
    Map source = mapOf(500);
    const Map copy(source);

    source.find(keyOf(7))->value = -1;
    insert(source, L"more", 1);

    EXPECT_EQ(500, copy.count());
    EXPECT_EQ(769, copy.bucketCount());
    for (int i = 0; i < 500; ++i)
        ASSERT_EQ(i, copy.find(keyOf(i))->value);
    EXPECT_EQ(nullptr, copy.find(VorString(L"more")));
}

TEST(VorStringHashMapTest, CopiesKeepTheOrderWithinABucket)
{
    Map source;
    for (const wchar_t* key : { L"aK", L"bF", L"cA" }) // of one hash
        insert(source, key, 0);
    Map assigned = mapOf(200);

    const Map copy(source);
    assigned = source;

    for (const Map* map : { &copy, &static_cast<const Map&>(assigned) })
    {
        EXPECT_EQ(53, map->bucketCount());
        const Map::Node* newest = map->find(L"cA");
        ASSERT_NE(nullptr, newest->next);
        EXPECT_EQ(VorString(L"bF"), newest->next->key);
        EXPECT_EQ(VorString(L"aK"), newest->next->next->key);
        EXPECT_EQ(nullptr, newest->next->next->next);
    }
}

TEST(VorStringHashMapTest, AssignmentReplacesEverything)
{
    const LeakCheck leaks;
    Map target = mapOf(200);
    Map source;
    insert(source, L"%Weight", 5);

    target = source;

    EXPECT_EQ(1, target.count());
    EXPECT_EQ(5, target.find(L"%Weight")->value);
    EXPECT_EQ(nullptr, target.find(keyOf(3)));

    Map& same = target;
    target = same;
    EXPECT_EQ(5, target.find(L"%Weight")->value);

    target = Map();
    EXPECT_EQ(0, target.count());
    EXPECT_EQ(nullptr, target.find(L"%Weight"));
}

TEST(VorStringHashMapTest, TheKeyMayComeFromTheMapItself)
{
    const LeakCheck leaks;
    Map map = mapOf(53);
    bool inserted = true;

    const Map::Node* node = map.find(keyOf(9));

    EXPECT_EQ(node, map.findOrInsert(node->key, 5, inserted));
    EXPECT_FALSE(inserted);
}

TEST(VorStringHashMapTest, TwoThousandKeysOfOneHashAreAllFound)
{
    // Every exchange of "aF" for "bA" keeps the hash.
    const LeakCheck leaks;
    Map map;
    for (unsigned number = 0; number < 2048; ++number)
    {
        VorString key;
        for (unsigned bit = 0; bit < 11; ++bit)
            key += (number >> bit) & 1U ? L"aF" : L"bA";
        insert(map, key, static_cast<int>(number));
    }

    EXPECT_EQ(2048, map.count());
    EXPECT_EQ(2047, map.find(L"aFaFaFaFaFaFaFaFaFaFaF")->value);
    EXPECT_EQ(0, map.find(L"bAbAbAbAbAbAbAbAbAbAbA")->value);
}
