// A host that includes X11 first, has an operator<< of its own and prints
// quillet's Strings from its own namespace.
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xos.h>
#include <X11/Xresource.h>
#include <X11/Xutil.h>
#include <X11/keysym.h>

#include <quillet/quillet.h>

#include <sstream>
#include <type_traits>

#include "host.h"

// X11's macros are back after the library's header, unchanged.
static_assert(True == 1 && False == 0 && None == 0L && Success == 0);
static_assert(std::is_same_v<Bool, int> && std::is_same_v<Status, int>);
#if !defined(index) || !defined(rindex)
#error "X11/Xos.h's index and rindex macros were not restored"
#endif

namespace host {

struct Widget {
    int id;
};

// The host's own operator<< hides every operator<< of the enclosing
// namespaces; the using-declaration brings quillet's beside it.
std::ostream& operator<<(std::ostream& out, const Widget& widget) { return out << "widget " << widget.id; }
using quillet::operator<<;

std::string report() {
    std::ostringstream out;
    const quillet::String size = u"Gr\u00f6\u00dfe";
    out << Widget{7} << '|' << size << '|' << quillet::Variant(2.5) << '|';

    quillet::RegionalScope german(quillet::RegionalSettings::fromLocale("de_DE"));
    out << quillet::numberText(1.5) << '|';

    quillet::Long total = 2147483647;
    quillet::attempt([&] { total = quillet::checked::add(total, 1); });  // overflows: skipped
    out << total;
    return out.str();
}

}  // namespace host
