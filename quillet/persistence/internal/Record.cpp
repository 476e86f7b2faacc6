#include "quillet/persistence/internal/Record.h"

#include "quillet/text/clsString.h"

namespace quillet::persistence_internal {

// An absent or empty element reads as the default. A whole default gives the
// same number as its text would; a Double default is read through its number
// text, as a default passed to ReadNumberBetween is, so that a decimal comma
// loses the fraction there too.
Double readWhole(StringView buffer, const TagPair& tag, Long absent) {
    const StringView text = elementText(buffer, tag);
    if (text.empty()) return absent;
    return toDouble(clsString().stringToNumber(text));
}

Double readReal(StringView buffer, const TagPair& tag, Double absent) {
    const StringView text = elementText(buffer, tag);
    return toDouble(clsString().stringToNumber(text.empty() ? StringView(numberText(absent)) : text));
}

void appendWhole(String& out, const TagPair& tag, Long value) { appendElement(out, tag, numberText(value)); }

void appendReal(String& out, const TagPair& tag, Double value) { appendElement(out, tag, numberText(value)); }

void appendBoolean(String& out, const TagPair& tag, Boolean value) {
    appendElement(out, tag, clsString().booleanToString(value));
}

}  // namespace quillet::persistence_internal
