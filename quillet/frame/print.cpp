#include "quillet/frame/print.h"

#include "quillet/frame/convert.h"
#include "quillet/frame/utf8.h"

namespace quillet {

namespace {
const char* kindName(Integer kind) noexcept {
    switch (kind & ~vbArray) {
        case vbEmpty: return "Empty";
        case vbNull: return "Null";
        case vbInteger: return "Integer";
        case vbLong: return "Long";
        case vbSingle: return "Single";
        case vbDouble: return "Double";
        case vbDate: return "Date";
        case vbString: return "String";
        case vbObject: return "Object";
        case vbError: return "Error";
        case vbBoolean: return "Boolean";
        case vbVariant: return "Variant";
        case vbByte: return "Byte";
        default: return "?";
    }
}
}  // namespace

std::ostream& operator<<(std::ostream& out, const String& text) { return out << toUtf8(text); }

std::ostream& operator<<(std::ostream& out, const Variant& value) {
    const Integer kind = value.kind();
    if (value.isEmpty() || value.isNull()) return out << kindName(kind);
    if (value.isArray()) return out << kindName(kind) << "()";
    if (value.isObject()) return out << (value.isNothing() ? "Nothing" : "Object");
    if (value.isMissing()) return out << "Missing";
    if (const auto* e = value.getIf<ErrorValue>()) return out << "Error " << e->code;
    if (const auto* d = value.getIf<Date>()) return out << "Date " << d->serial;
    if (const auto* s = value.getIf<String>()) {
        out << '"';
        for (char c : toUtf8(*s)) {
            switch (c) {
                case '\r': out << "\\r"; break;
                case '\n': out << "\\n"; break;
                case '\t': out << "\\t"; break;
                case '\0': out << "\\0"; break;
                case '"': out << "\\\""; break;
                default: out << c;
            }
        }
        return out << "\" (String)";
    }
    // Numbers and Booleans: their text, which cannot fail for these kinds.
    return out << toUtf8(toText(value)) << " (" << kindName(kind) << ')';
}

void PrintTo(const Variant& value, std::ostream* out) { *out << value; }

}  // namespace quillet
