#include "quillet/persistence/internal/modMisc.h"

#include "quillet/frame/trim.h"

namespace quillet::persistence_internal::modMisc {

Boolean readBooleanText(StringView text, Boolean default_value_) noexcept {
    const StringView s = trimBlanks(text);
    // The four words are ASCII, and no other character lower-cases into
    // ASCII letters, so ASCII lower-casing decides exactly as full lower-casing.
    if (s.size() > 5) return default_value_;
    char16_t lower[5] = {};
    for (std::size_t i = 0; i < s.size(); ++i) {
        const char16_t c = s[i];
        lower[i] = (c >= u'A' && c <= u'Z') ? static_cast<char16_t>(c + 32) : c;
    }
    const StringView word(lower, s.size());
    if (word == u"true" || word == u"yes") return True;
    if (word == u"false" || word == u"no") return False;
    return default_value_;
}

}  // namespace quillet::persistence_internal::modMisc
