// The name of the JSON type, for headers that only pass it on: the type itself (json.h) takes a compiler
// seconds.
#ifndef SCRIPT_JSON_FWD_H
#define SCRIPT_JSON_FWD_H

#include <nlohmann/json_fwd.hpp>

namespace gabarito::script {

template <class Key, class T, class IgnoredLess, class Allocator>
class OrderedObject;

// Objects keep the order of their keys.
using Json = nlohmann::basic_json<OrderedObject>;

}  // namespace gabarito::script

#endif  // SCRIPT_JSON_FWD_H
