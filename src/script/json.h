// JSON whose objects keep the order of their keys, whatever their number: N keys cost N log N.
#ifndef SCRIPT_JSON_H
#define SCRIPT_JSON_H

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <utility>

#include "script/json_fwd.h"

namespace gabarito::script {

// The library's own ordered object looks at each key for each one that comes: 100,000 of them, which is one
// line of a script, would take 20 seconds. This one is the same with an index of the keys beside it, once
// there are many.
template <class Key, class T, class IgnoredLess = std::less<Key>,
          class Allocator = std::allocator<std::pair<const Key, T>>>
class OrderedObject : public nlohmann::ordered_map<Key, T, IgnoredLess, Allocator> {
  using Base = nlohmann::ordered_map<Key, T, IgnoredLess, Allocator>;

 public:
  using Base::Base;
  using typename Base::const_iterator;
  using typename Base::iterator;

  OrderedObject() = default;
  // An index is worth its memory in an object that still grows: copies start without one.
  OrderedObject(const OrderedObject& other) : Base(other) {}
  OrderedObject(OrderedObject&& other) noexcept : Base(std::move(static_cast<Base&>(other))) {
    other.places_.reset();
  }
  OrderedObject& operator=(OrderedObject other) noexcept {
    this->swap(other);
    places_.reset();
    return *this;
  }

  std::pair<iterator, bool> emplace(std::string_view key, T&& value) {
    if (const iterator found = find(key); found != this->end()) return {found, false};
    this->emplace_back(Key(key), std::forward<T>(value));
    return {std::prev(this->end()), true};
  }
  T& operator[](std::string_view key) { return emplace(key, T{}).first->second; }
  const T& operator[](std::string_view key) const { return this->at(Key(key)); }

  iterator find(std::string_view key) { return this->begin() + static_cast<std::ptrdiff_t>(PlaceOf(key)); }
  const_iterator find(std::string_view key) const {
    return this->begin() + static_cast<std::ptrdiff_t>(PlaceOf(key));
  }
  std::size_t count(std::string_view key) const { return PlaceOf(key) < this->size() ? 1 : 0; }

  // Behind an erased key all places are others.
  template <class... Where>
  auto erase(Where&&... where) {
    places_.reset();
    return Base::erase(std::forward<Where>(where)...);
  }
  void clear() noexcept {
    places_.reset();
    Base::clear();
  }

 private:
  static constexpr std::size_t kFew = 32;

  // Size for a key that is not there. The index catches up with what has come since the last question.
  std::size_t PlaceOf(std::string_view key) const {
    if (this->size() <= kFew) {
      std::size_t place = 0;
      while (place < this->size() && (*this)[place].first != key) ++place;
      return place;
    }
    if (!places_) places_ = std::make_unique<std::map<Key, std::size_t, std::less<>>>();
    for (std::size_t i = places_->size(); i < this->size(); ++i) places_->emplace((*this)[i].first, i);
    const auto found = places_->find(key);
    return found == places_->end() ? this->size() : found->second;
  }
  const std::pair<const Key, T>& operator[](std::size_t place) const { return this->begin()[place]; }

  mutable std::unique_ptr<std::map<Key, std::size_t, std::less<>>> places_;
};

}  // namespace gabarito::script

#endif  // SCRIPT_JSON_H
