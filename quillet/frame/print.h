// quillet/frame/print.h - writing Strings and Variants to a std::ostream, for
// hosts' logs and for tests (GoogleTest finds PrintTo and prints Variants in
// failure messages).
//
//   std::cout << String(u"Größe");        // Größe (UTF-8)
//   std::cout << Variant(2.5);            // 2.5 (Double)
//   std::cout << Variant::null();         // Null
//   std::cout << Variant(u"a\r\n");       // "a\r\n" (String)
#pragma once

#include <ostream>

#include "quillet/frame/Variant.h"
#include "quillet/frame/types.h"

namespace quillet {

// The text as UTF-8.
std::ostream& operator<<(std::ostream& out, const String& text);
// The value and its kind; texts quoted with CR, LF, tab and NUL escaped, so
// that saved buffers read clearly in a failure message.
std::ostream& operator<<(std::ostream& out, const Variant& value);
void PrintTo(const Variant& value, std::ostream* out);

}  // namespace quillet
