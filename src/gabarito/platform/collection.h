// An ordered collection of values, numbered from 1.
#ifndef GABARITO_PLATFORM_COLLECTION_H
#define GABARITO_PLATFORM_COLLECTION_H

#include <cstdint>
#include <utility>
#include <vector>

#include "gabarito/platform/erro.h"
#include "gabarito/platform/variant.h"

namespace gabarito {

class Collection {
 public:
  // Appends.
  void Add(Variant item) { items_.push_back(std::move(item)); }

  std::int32_t Count() const { return static_cast<std::int32_t>(items_.size()); }

  // Position 1 to Count(); raises 9 elsewhere.
  const Variant& Item(std::int32_t position) const {
    if (position < 1 || position > Count()) Fail(kSubscriptOutOfRange);
    return items_[static_cast<std::size_t>(position) - 1];
  }

  // In order of insertion.
  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }

 private:
  std::vector<Variant> items_;
};

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_COLLECTION_H
