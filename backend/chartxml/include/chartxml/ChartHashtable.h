#pragma once

#include <cstdint>
#include <memory>
#include <utility>

#include <chartxml/ChartKey.h>

/// A key and its value.
template <class T> class ChartPair {
public:
  ChartPair() = default;
  ChartPair(ChartKey* key, T* value) : key_(key), value_(value) {}

  ChartKey* getKey() const { return key_; }
  T* getValue() const { return value_; }

  /// Destroys key and value.
  void clear() {
    clearKey();
    delete std::exchange(value_, nullptr);
  }

  /// Destroys the key only.
  void clearKey() { delete std::exchange(key_, nullptr); }

private:
  ChartKey* key_ = nullptr;
  T* value_ = nullptr;
};

/// A pair in a chain; look-ups hand out the pair inside the node.
template <class T> struct PairNode : ChartPair<T> {
  PairNode* next = nullptr;

  void setPair(const ChartPair<T>& pair) { static_cast<ChartPair<T>&>(*this) = pair; }
};

/// The free list of chain nodes.
template <class T> class PairNodeStack {
public:
  PairNodeStack() = default;
  PairNodeStack(const PairNodeStack&) = delete;
  PairNodeStack& operator=(const PairNodeStack&) = delete;
  ~PairNodeStack() {
    while (top_)
      delete popTop();
  }

  void push(PairNode<T>* node) {
    node->next = top_;
    top_ = node;
  }

  /// A recycled node, or a fresh one when there is none.
  PairNode<T>* pop() { return top_ ? popTop() : new PairNode<T>; }

private:
  PairNode<T>* popTop() { return std::exchange(top_, top_->next); }

  PairNode<T>* top_ = nullptr;
};

template <class T> class ChartHashtable;

/// Walks a table by ascending bucket and, within a bucket, from the chain's head.
template <class T, class Table> class HashIteratorOf {
public:
  HashIteratorOf(Table& table, PairNode<T>* node, std::int32_t bucket)
      : table_(&table), node_(node), bucket_(bucket) {
    skipEmpty();
  }

  ChartPair<T>* operator*() const { return node_; }

  HashIteratorOf& operator++() {
    node_ = node_->next;
    if (!node_) {
      ++bucket_;
      node_ = table_->head(bucket_);
      skipEmpty();
    }
    return *this;
  }
  HashIteratorOf operator++(int) {
    HashIteratorOf before = *this;
    ++*this;
    return before;
  }

  bool operator!=(const HashIteratorOf& other) const {
    return node_ != other.node_ || bucket_ != other.bucket_ || table_ != other.table_;
  }

private:
  void skipEmpty() {
    while (!node_ && bucket_ < table_->capacity_)
      node_ = table_->head(++bucket_);
  }

  Table* table_;
  PairNode<T>* node_;
  std::int32_t bucket_;
};

template <class T> using HashIterator = HashIteratorOf<T, ChartHashtable<T>>;
template <class T> using const_HashIterator = HashIteratorOf<T, const ChartHashtable<T>>;

/// A separately chained hash table from a ChartKey to an owned pointer. Nodes are
/// recycled and never move, so that pairs stay where they are when the table
/// grows; it never shrinks. Keys must have hashes that read as non-negative.
template <class T> class ChartHashtable {
public:
  /// A table of `size` buckets, at least 1.
  explicit ChartHashtable(int size)
      : buckets_(std::make_unique<PairNode<T>*[]>(static_cast<std::size_t>(size))), capacity_(size),
        threshold_(thresholdOf(size)) {}
  ChartHashtable(const ChartHashtable&) = delete;
  ChartHashtable& operator=(const ChartHashtable&) = delete;
  ~ChartHashtable() { clearDeep(); }

  /// The entry of an equal key, or null. The pair stays the table's; it stays where
  /// it is until its key, or another key of its bucket, is removed.
  ChartPair<T>* get(const ChartKey* key) const {
    return findInBucket(buckets_[hashedKey(key)], key);
  }

  /// Stores key and value, which become the table's, and returns true; false, and
  /// both stay the caller's, when an equal key is stored already.
  bool put(ChartKey* key, T* value) {
    std::size_t bucket = hashedKey(key);
    if (findInBucket(buckets_[bucket], key)) return false;
    if (count_ + 1 > threshold_) {
      rehash();
      bucket = hashedKey(key);
    }
    PairNode<T>* node = freeNodes_.pop();
    node->setPair({key, value});
    listHeadInsert(buckets_[bucket], node);
    ++count_;
    return true;
  }

  /// Takes the entry out: a new pair, the caller's with all that is in it, or
  /// null when the key is absent.
  std::unique_ptr<ChartPair<T>> remove(const ChartKey* key) {
    PairNode<T>*& head = buckets_[hashedKey(key)];
    PairNode<T>* node = findInBucket(head, key);
    if (!node) return nullptr;
    auto removed = std::make_unique<ChartPair<T>>(*node);
    listRemove(head, node);
    --count_;
    return removed;
  }

  /// Empties the table, destroying every key and value.
  void clearDeep() { release(&ChartPair<T>::clear); }
  /// Empties the table, destroying the keys only.
  void clearKey() { release(&ChartPair<T>::clearKey); }

  std::int32_t getSize() const { return count_; }
  std::int32_t capacity() const { return capacity_; }
  std::int32_t threshold() const { return threshold_; }
  std::int32_t rehashCount() const { return rehashCount_; }

  HashIterator<T> begin() { return {*this, head(0), 0}; }
  HashIterator<T> end() { return {*this, nullptr, capacity_}; }
  const_HashIterator<T> begin() const { return {*this, head(0), 0}; }
  const_HashIterator<T> end() const { return {*this, nullptr, capacity_}; }

private:
  friend HashIterator<T>;
  friend const_HashIterator<T>;

  static constexpr float loadFactor = 0.75F;

  static std::int32_t thresholdOf(std::int32_t capacity) {
    return static_cast<std::int32_t>(loadFactor * static_cast<float>(capacity));
  }

  PairNode<T>* head(std::int32_t bucket) const {
    return bucket < capacity_ ? buckets_[static_cast<std::size_t>(bucket)] : nullptr;
  }

  std::size_t hashedKey(const ChartKey* key) const {
    return static_cast<std::size_t>(static_cast<std::int32_t>(key->hashcode()) % capacity_);
  }

  static PairNode<T>* findInBucket(PairNode<T>* node, const ChartKey* key) {
    for (; node; node = node->next) {
      if (node->getKey()->hashcode() == key->hashcode() && *node->getKey() == *key) return node;
    }
    return nullptr;
  }

  void rehash() {
    const std::int32_t grown = 2 * capacity_ + 1;
    auto old = std::make_unique<PairNode<T>*[]>(static_cast<std::size_t>(grown));
    std::swap(old, buckets_);
    const std::int32_t oldCapacity = std::exchange(capacity_, grown);
    ++rehashCount_;
    threshold_ = thresholdOf(capacity_);
    for (std::int32_t i = 0; i < oldCapacity; ++i) {
      PairNode<T>*& chain = old[static_cast<std::size_t>(i)];
      while (chain) {
        PairNode<T>* node = listHeadRemove(chain);
        listHeadInsert(buckets_[hashedKey(node->getKey())], node);
      }
    }
  }

  static void listHeadInsert(PairNode<T>*& head, PairNode<T>* node) {
    node->next = head;
    head = node;
  }

  static PairNode<T>* listHeadRemove(PairNode<T>*& head) { return std::exchange(head, head->next); }

  // The chain has no back links: the head's pair takes the removed node's place,
  // and the head goes.
  void listRemove(PairNode<T>*& head, PairNode<T>* node) {
    if (node != head) node->setPair(*head);
    freeNodes_.push(listHeadRemove(head));
  }

  void release(void (ChartPair<T>::*clearPair)()) {
    for (std::int32_t i = 0; count_ > 0 && i < capacity_; ++i) {
      PairNode<T>*& chain = buckets_[static_cast<std::size_t>(i)];
      while (chain) {
        (chain->*clearPair)();
        freeNodes_.push(listHeadRemove(chain));
      }
    }
    count_ = 0;
  }

  std::unique_ptr<PairNode<T>*[]> buckets_;
  std::int32_t capacity_;
  std::int32_t count_ = 0;
  std::int32_t threshold_;
  std::int32_t rehashCount_ = 0;
  PairNodeStack<T> freeNodes_;
};

/// Stores a value under a handle; false, and the value stays the caller's, when the
/// handle is taken.
template <class T> bool putUnderHandle(ChartHashtable<T>& table, int handle, T* value) {
  auto key = std::make_unique<ChartKey>(ChartKey::ofHandle(handle));
  if (!table.put(key.get(), value)) return false;
  static_cast<void>(key.release());
  return true;
}
