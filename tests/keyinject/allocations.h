// How often this program has asked for memory. The operators stand in a source of their own, out of the
// compiler's sight: inlined next to a call of new, their free looks like a mismatch to it.
#ifndef TESTS_KEYINJECT_ALLOCATIONS_H
#define TESTS_KEYINJECT_ALLOCATIONS_H

namespace gabarito {

int Allocations();

}  // namespace gabarito

#endif  // TESTS_KEYINJECT_ALLOCATIONS_H
