// quillet/persistence/internal/modMisc.h - a private helper of the tag buffer: the
// reading of a saved boolean text. Not part of the public interface.
//
//   modMisc::readBooleanText(u"  YES ", False)   True
//   modMisc::readBooleanText(u"no", True)        False
//   modMisc::readBooleanText(u"1", False)        False: the default
//   modMisc::readBooleanText(u"\ttrue", False)   False: only blanks are trimmed
#pragma once

#include "quillet/frame/types.h"

namespace quillet::persistence_internal::modMisc {

// readBooleanText - blanks trimmed from both ends, case ignored: "true" and
// "yes" give True, "false" and "no" give False; anything else, the empty text
// included, gives `default_value_` as it is.
[[nodiscard]] Boolean readBooleanText(StringView text, Boolean default_value_) noexcept;

}  // namespace quillet::persistence_internal::modMisc
