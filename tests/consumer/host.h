// The host's own interface: what it prints through quillet.
#pragma once

#include <string>

#if defined(HOST_BUILDING_PLUGIN)
#define HOST_API __attribute__((visibility("default")))
#else
#define HOST_API
#endif

namespace host {

// One line made with the library: a host object, a String, a Variant, number
// text under a German profile (ICU) and a failure that was skipped.
HOST_API std::string report();

}  // namespace host
