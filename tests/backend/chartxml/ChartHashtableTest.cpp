#include <algorithm>
#include <map>
#include <set>

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <chartxml/ChartHashtable.h>

namespace {

int destroyed = 0;
struct Value {
  explicit Value(int number) : n(number) {}
  virtual ~Value() { ++destroyed; }
  int n;
};
using Table = ChartHashtable<Value>;

bool put(Table& table, int handle) {
  auto* key = new ChartKey(ChartKey::ofHandle(handle));
  auto* value = new Value(handle);
  if (table.put(key, value)) return true;
  delete key;
  delete value;
  return false;
}

Value* get(const Table& table, int handle) {
  const ChartKey key = ChartKey::ofHandle(handle);
  const auto* pair = table.get(&key);
  return pair ? pair->getValue() : nullptr;
}

bool remove(Table& table, int handle) {
  const ChartKey key = ChartKey::ofHandle(handle);
  auto pair = table.remove(&key);
  if (!pair) return false;
  pair->clear();
  return true;
}

std::vector<int> walk(const Table& table) {
  std::vector<int> order;
  for (const auto* pair : table)
    order.push_back(pair->getValue()->n);
  return order;
}

} // namespace

TEST(ChartKey, HashesHandlesToNonNegativeNumbersThatSpread) {
  for (const int handle : {0, 1, 88, 100'000, 50'000'000}) {
    EXPECT_GE(static_cast<std::int32_t>(ChartKey::ofHandle(handle).hashcode()), 0) << handle;
  }
  Table table(89);
  for (int handle = 0; handle < 66; ++handle)
    put(table, handle);
  std::set<std::uint32_t> buckets;
  for (const auto* pair : table)
    buckets.insert(pair->getKey()->hashcode() % 89);
  EXPECT_EQ(buckets.size(), 66U);
}

TEST(ChartKey, HashesEveryValueOfATupleAtItsPosition) {
  ChartKey ascending(2);
  ascending[0] = 1;
  ascending[1] = 2;
  ascending.UpdateHashCode();
  ChartKey descending(2);
  descending[0] = 2;
  descending[1] = 1;
  descending.UpdateHashCode();
  EXPECT_EQ(ascending.hashcode(), (2U * 2U) ^ (3U * 3U));
  EXPECT_EQ(descending.hashcode(), (2U * 3U) ^ (3U * 2U));
  EXPECT_FALSE(ascending == descending);
}

TEST(ChartHashtable, GrowsWhenThe67thOf89BucketsIsPut) {
  Table table(89);
  for (int handle = 0; handle < 66; ++handle)
    EXPECT_TRUE(put(table, handle));
  EXPECT_EQ(table.capacity(), 89);
  EXPECT_EQ(table.threshold(), 66);
  const Value* early = get(table, 3);
  put(table, 66);
  EXPECT_EQ(table.capacity(), 179);
  EXPECT_EQ(table.threshold(), 134);
  EXPECT_EQ(table.rehashCount(), 1);
  EXPECT_EQ(get(table, 3), early);
  table.clearDeep();
  EXPECT_EQ(table.capacity(), 179) << "a table never shrinks";
}

TEST(ChartHashtable, RefusesAKnownKeyAndKeepsWhatItHas) {
  Table table(89);
  put(table, 7);
  const Value* first = get(table, 7);
  EXPECT_FALSE(put(table, 7));
  EXPECT_EQ(get(table, 7), first);
  EXPECT_EQ(table.getSize(), 1);
}

// Handles 0, 89 and 178 share a bucket: 2 * (h + 1) modulo 89.
TEST(ChartHashtable, MovesTheHeadsPairIntoTheRemovedNodesPlace) {
  Table table(89);
  for (const int handle : {0, 89, 178})
    put(table, handle);
  EXPECT_EQ(walk(table), (std::vector<int>{178, 89, 0}));
  EXPECT_TRUE(remove(table, 0));
  EXPECT_EQ(walk(table), (std::vector<int>{89, 178}));
  EXPECT_TRUE(remove(table, 89)) << "the head itself";
  EXPECT_EQ(walk(table), (std::vector<int>{178}));
  EXPECT_FALSE(remove(table, 0));
  EXPECT_EQ(table.getSize(), 1);
}

// Handles 0 and 21 share a bucket of 3 and of 7.
TEST(ChartHashtable, ReversesAChainThatStaysTogetherWhenItGrows) {
  Table table(3);
  for (const int handle : {0, 21})
    put(table, handle);
  EXPECT_EQ(walk(table), (std::vector<int>{21, 0}));
  put(table, 5);
  EXPECT_EQ(table.capacity(), 7);
  EXPECT_EQ(walk(table), (std::vector<int>{0, 21, 5}));
}

TEST(ChartHashtable, ReleasesValuesOnlyWhenItOwnsThem) {
  destroyed = 0;
  Value kept(1);
  {
    Table table(89);
    put(table, 1);
    put(table, 2);
    table.clearDeep();
    EXPECT_EQ(destroyed, 2);
    EXPECT_FALSE(table.begin() != table.end());
    table.put(new ChartKey(ChartKey::ofHandle(1)), &kept);
    table.clearKey();
    EXPECT_EQ(destroyed, 2);
    put(table, 3);
  }
  EXPECT_EQ(destroyed, 3) << "the destructor releases deeply";
}

TEST(ChartHashtable, AgreesWithAMapUnderAnySequenceOfCalls) {
  EXPECT_TRUE(rc::check([](const std::vector<std::pair<bool, std::uint16_t>>& calls) {
    Table table(3);
    std::map<int, int> model;
    for (const auto& [adds, wide] : calls) {
      const int handle = wide % 200;
      if (adds) {
        RC_ASSERT(put(table, handle) == model.emplace(handle, handle).second);
      } else {
        RC_ASSERT(remove(table, handle) == (model.erase(handle) == 1));
      }
    }
    std::vector<int> found = walk(table);
    std::ranges::sort(found);
    std::vector<int> expected;
    expected.reserve(model.size());
    for (const auto& [handle, value] : model)
      expected.push_back(value);
    RC_ASSERT(found == expected);
    for (int handle = 0; handle < 200; ++handle) {
      RC_ASSERT((get(table, handle) != nullptr) == model.contains(handle));
    }
    RC_ASSERT(table.getSize() == static_cast<int>(model.size()));
  }));
}
