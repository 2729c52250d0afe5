// Puts a range in order; equal elements in any.
#ifndef GABARITO_PLATFORM_SORT_H
#define GABARITO_PLATFORM_SORT_H

#include <algorithm>

namespace gabarito {

template <class Iterator, class Less>
void Sort(Iterator first, Iterator last, Less less) {
#ifdef __OPTIMIZE_SIZE__
  // By a heap: a fifth of the code, and half the speed.
  std::make_heap(first, last, less);
  std::sort_heap(first, last, less);
#else
  std::sort(first, last, less);
#endif
}

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_SORT_H
