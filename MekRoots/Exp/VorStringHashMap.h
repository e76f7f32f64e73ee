// A map from texts to 32-bit values: separate chains in a prime number of buckets.
//
//   VorStringHashMap<int> types;
//   bool inserted = false;
//   types.findOrInsert(VorString(L"%Weight"), 2, inserted)->value  ->  2, inserted
//   types.findOrInsert(VorString(L"%Weight"), 3, inserted)->value  ->  2, not inserted: the first registration stays
//
// Keys are compared exactly. Nodes are owned by the map and stay where they are until the map is destroyed or assigned
// to. Copies are independent.
#pragma once

#include "VorArrayMemCopyReallocator.h"
#include "VorArrayMemoryController.h"
#include "VorArrayTemplate.h"
#include "VorMemoryControllerController.h"
#include "VorString.h"

#include <cstdint>
#include <limits>
#include <new>
#include <utility>

template <class V>
class VorStringHashMap
{
public:
    struct Node
    {
        Node* next;
        VorString key;
        V value;
    };

    VorStringHashMap() { m_buckets.setLogicalLength(kBucketCounts[0]); }
    VorStringHashMap(const VorStringHashMap& other);
    VorStringHashMap& operator=(const VorStringHashMap& other);
    ~VorStringHashMap() { removeAll(); }

    // The node with an equal key, or a new one with `key` and `value`; `inserted` says which. Never null.
    Node* findOrInsert(const VorString& key, V value, bool& inserted);

    // The node with an equal key, or null.
    Node* find(const VorString& key) { return findInBucket(key, bucketOf(key)); }
    const Node* find(const VorString& key) const { return findInBucket(key, bucketOf(key)); }

    int count() const { return m_nCount; }
    int bucketCount() const { return m_buckets.length(); }

private:
    using BucketArray = VorArray<Node*, VorArrayMemCopyReallocator<Node*>>;

    // Primes, each about twice the one before: a bucket holds one node on average just before the map grows. The list
    // goes on past what 32-bit lengths can address; growing stops there.
    static constexpr std::int64_t kBucketCounts[] = {
        53,       97,        193,       389,       769,       1543,       3079,       6151,      12289,    24593,
        49157,    98317,     196613,    393241,    786433,    1572869,    3145739,    6291469,   12582917, 25165843,
        50331653, 100663319, 201326611, 402653189, 805306457, 1610612741, 3221225473, 4294967291
    };

    static Node* createNode(Node* pNext, const VorString& key, V value);
    static std::uint32_t hashOf(const VorString& key);
    int bucketOf(const VorString& key) const;
    Node* findInBucket(const VorString& key, int bucket) const;
    void growFor(int numElements);
    void takeNodesFrom(BucketArray& buckets);
    void removeAll();

    BucketArray m_buckets;
    int m_nCount = 0;
};

// Bucket by bucket, each chain in its order.
template <class V>
VorStringHashMap<V>::VorStringHashMap(const VorStringHashMap& other) : VorStringHashMap()
{
    m_buckets.setLogicalLength(other.bucketCount());
    for (int i = 0; i < bucketCount(); ++i)
    {
        Node** ppLink = &m_buckets[i];
        for (const Node* pNode = other.m_buckets[i]; pNode != nullptr; pNode = pNode->next)
        {
            *ppLink = createNode(nullptr, pNode->key, pNode->value);
            ppLink = &(*ppLink)->next;
        }
    }
    m_nCount = other.m_nCount;
}

template <class V>
VorStringHashMap<V>& VorStringHashMap<V>::operator=(const VorStringHashMap& other)
{
    VorStringHashMap copy(other);
    std::swap(m_buckets, copy.m_buckets);
    std::swap(m_nCount, copy.m_nCount);
    return *this;
}

template <class V>
typename VorStringHashMap<V>::Node* VorStringHashMap<V>::findOrInsert(const VorString& key, V value, bool& inserted)
{
    // Before the look-up, so that the bucket found stays the right one. A key that is there already can make the map
    // grow by it one node early.
    growFor(m_nCount + 1);
    const int bucket = bucketOf(key);
    Node* pNode = findInBucket(key, bucket);
    inserted = pNode == nullptr;
    if (!inserted)
        return pNode;
    Node*& pHead = m_buckets[bucket];
    pHead = createNode(pHead, key, value);
    ++m_nCount;
    return pHead;
}

template <class V>
typename VorStringHashMap<V>::Node* VorStringHashMap<V>::createNode(Node* pNext, const VorString& key, V value)
{
    return ::new (VorMemoryControllerController::allocateArray(1, sizeof(Node))) Node{ pNext, key, value };
}

// h = 5h + c over the key's characters, in unsigned 32-bit arithmetic.
template <class V>
std::uint32_t VorStringHashMap<V>::hashOf(const VorString& key)
{
    std::uint32_t hash = 0;
    const wchar_t* pCharacter = key.getStringW();
    for (int i = key.length(); i > 0; --i, ++pCharacter)
        hash = hash * 5 + static_cast<std::uint32_t>(*pCharacter);
    return hash;
}

template <class V>
int VorStringHashMap<V>::bucketOf(const VorString& key) const
{
    return static_cast<int>(hashOf(key) % static_cast<std::uint32_t>(bucketCount()));
}

template <class V>
typename VorStringHashMap<V>::Node* VorStringHashMap<V>::findInBucket(const VorString& key, int bucket) const
{
    Node* pNode = m_buckets[bucket];
    while (pNode != nullptr && pNode->key != key)
        pNode = pNode->next;
    return pNode;
}

template <class V>
void VorStringHashMap<V>::growFor(int numElements)
{
    if (numElements <= bucketCount())
        return;
    const std::int64_t* pCount = kBucketCounts;
    while (*pCount < numElements)
        ++pCount;
    // From here on the chains grow instead.
    if (*pCount > std::numeric_limits<int>::max())
        return;

    // All buckets are there before the first node moves: without memory for them the map is as it was.
    BucketArray grown;
    grown.setLogicalLength(static_cast<int>(*pCount));
    std::swap(m_buckets, grown);
    takeNodesFrom(grown);
}

template <class V>
void VorStringHashMap<V>::takeNodesFrom(BucketArray& buckets)
{
    for (Node* pNode : buckets)
    {
        while (pNode != nullptr)
        {
            Node* pNext = pNode->next;
            Node*& pHead = m_buckets[bucketOf(pNode->key)];
            pNode->next = pHead;
            pHead = pNode;
            pNode = pNext;
        }
    }
}

template <class V>
void VorStringHashMap<V>::removeAll()
{
    for (Node*& pHead : m_buckets)
    {
        while (pHead != nullptr)
        {
            Node* pNode = pHead;
            pHead = pNode->next;
            pNode->~Node();
            VorMemoryControllerController::deallocateArray(pNode, 1, sizeof(Node));
        }
    }
    m_nCount = 0;
}
