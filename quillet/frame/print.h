// quillet/frame/print.h - writing Strings and Variants to a std::ostream, for
// hosts' logs and test failure messages.
//
//   std::cout << String(u"Größe");        // Größe (UTF-8)
//   std::cout << Variant(2.5);            // 2.5 (Double)
//   std::cout << Variant::null();         // Null
//   std::cout << Variant(u"a\r\n");       // "a\r\n" (String)
//
// Variant is a class of the library, so its operator<< (declared in
// Variant.h) is found from any namespace. String is std::u16string: C++ looks
// for the operator<< of a std type in std, and otherwise only in the scopes
// around the call, where the nearest namespace that declares an operator<< of
// its own hides every other. Nothing the library could declare changes that
// short of adding to std, which the language forbids. Outside namespace
// quillet, bring the operator into the namespace (or function) that prints:
//
//   namespace host {
//   std::ostream& operator<<(std::ostream&, const Widget&);   // the host's own
//   using quillet::operator<<;
//   void log(const quillet::String& s) { std::clog << s; }  // UTF-8
//   }
//
// `using namespace quillet;` is not enough there: a using-directive makes the
// names visible as if declared in the global namespace, behind the host's
// operator. toUtf8(s) (utf8.h) gives a std::string, which prints anywhere.
#pragma once

#include <ostream>

#include "quillet/frame/Variant.h"
#include "quillet/frame/types.h"

namespace quillet {

// The text as UTF-8.
std::ostream& operator<<(std::ostream& out, const String& text);

}  // namespace quillet
