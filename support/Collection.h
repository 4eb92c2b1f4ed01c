#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>
#include <type_traits>
#include <unordered_map>
#include <utility>
#include <vector>

#include "support/Failure.h"
#include "support/Text.h"

namespace wxbrg {

/// The program's one container: insertion-ordered, positions from 1, with an optional key for each entry.
/// Keys compare without regard to case. An entry may hold an empty reference: that is an entry, not a
/// missing key.
///
/// A walk (`for (const auto& item : collection)`) goes in insertion order and stays valid when entries are
/// appended during the walk: it reaches them too. Removing during a walk is not allowed.
///
/// Cost: adding and finding by key take constant time, removing takes time in the number of entries.
template <class T>
class Collection {
  public:
    /// Appends an entry without a key.
    void Add(T item) { entries_.push_back({std::move(item), std::string(), false}); }

    /// Appends an entry under `key`. Throws failure 457 when the key is taken.
    void Add(T item, std::string_view key) {
        if (!AddNew(std::move(item), key)) throw Failure(FailureKind::duplicateKey);
    }

    /// Appends an entry under `key` unless the key is taken; the first entry stays then.
    /// Returns whether the entry was appended.
    bool AddNew(T item, std::string_view key) {
        std::string folded = UpperCase(key);
        if (Position(folded) != none) return false;
        if (indexed_) index_.emplace(folded, entries_.size());
        entries_.push_back({std::move(item), std::move(folded), true});
        return true;
    }

    /// The entry at a position from 1 to `Count`. Throws failure 5 outside that range.
    const T& Item(std::int32_t position) const {
        if (position < 1 || position > Count()) throw Failure(FailureKind::invalidCall);
        return entries_[static_cast<std::size_t>(position) - 1].item;
    }

    /// The entry under `key`. Throws failure 5 when there is none.
    const T& Item(std::string_view key) const {
        const T* found = Find(key);
        if (found == nullptr) throw Failure(FailureKind::invalidCall);
        return *found;
    }

    /// The entry under `key`, or null when there is none. Valid until the collection changes.
    const T* Find(std::string_view key) const {
        const std::size_t position = Position(UpperCase(key));
        return position == none ? nullptr : &entries_[position].item;
    }

    /// Takes out the entry under `key`. Throws failure 5 when there is none.
    void Remove(std::string_view key) {
        const std::size_t position = Position(UpperCase(key));
        if (position == none) throw Failure(FailureKind::invalidCall);
        entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(position));
        index_.clear();
        indexed_ = false;
    }

    std::int32_t Count() const { return static_cast<std::int32_t>(entries_.size()); }
    bool IsEmpty() const { return entries_.empty(); }

    /// A place in a walk: it asks the collection at each step, so that appended entries are met.
    class Walk {
      public:
        using iterator_category = std::input_iterator_tag;
        using value_type = T;
        using difference_type = std::ptrdiff_t;
        using pointer = const T*;
        using reference = std::conditional_t<std::is_trivially_copyable_v<T>, T, const T&>;

        Walk(const Collection& collection, std::size_t position)
            : collection_(&collection), position_(position) {}
        reference operator*() const { return collection_->entries_[position_].item; }
        Walk& operator++() {
            ++position_;
            return *this;
        }
        /// Two places are equal where both have no entry left at this moment, or point to the same one.
        bool operator==(const Walk& other) const {
            return IsOver() == other.IsOver() && (IsOver() || position_ == other.position_);
        }

      private:
        bool IsOver() const { return position_ >= collection_->entries_.size(); }

        const Collection* collection_;
        std::size_t position_;
    };
    Walk begin() const { return Walk(*this, 0); }
    Walk end() const { return Walk(*this, none); }

  private:
    struct Entry {
        T item;
        std::string key;  // upper-cased
        bool keyed;
    };
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
    };

    static constexpr std::size_t none = static_cast<std::size_t>(-1);
    /// Up to this many entries a scan is quicker than an index, and most collections stay that small.
    static constexpr std::size_t scanned = 8;

    std::size_t Position(const std::string& folded) const {
        if (entries_.size() <= scanned) {
            for (std::size_t i = 0; i < entries_.size(); ++i)
                if (entries_[i].keyed && entries_[i].key == folded) return i;
            return none;
        }
        if (!indexed_) {
            for (std::size_t i = 0; i < entries_.size(); ++i)
                if (entries_[i].keyed) index_.emplace(entries_[i].key, i);
            indexed_ = true;
        }
        const auto found = index_.find(folded);
        return found == index_.end() ? none : found->second;
    }

    std::vector<Entry> entries_;
    mutable std::unordered_map<std::string, std::size_t, Hash, std::equal_to<>> index_;
    mutable bool indexed_ = false;
};

}  // namespace wxbrg
