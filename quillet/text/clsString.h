// quillet/text/clsString.h - text helpers shared by every class. A global
// class: it holds no data, so a host makes one wherever it needs it.
//
//   clsString s;
//   s.stringToNumber(u" 12.5kg ");          // Variant(12.5), a Double
//   s.booleanToString(True);                // u"True"
//   s.booleanToString(Boolean::fromRaw(1)); // u"False": only -1 is true here
//   s.dateToString(Date{42006.5});          // u"01/02/2015 12:00:00" (US profile)
#pragma once

#include "quillet/frame/Array.h"
#include "quillet/frame/Variant.h"
#include "quillet/frame/types.h"

namespace quillet {

class clsString {
public:
    // US_DATE_TIME_FORMAT - "mm/dd/yyyy hh:mm:ss"; the second mm is minutes.
    [[nodiscard]] String US_DATE_TIME_FORMAT() const { return u"mm/dd/yyyy hh:mm:ss"; }

    // stringToNumber - the numeric prefix of the trimmed text, as a Double;
    // 0 when there is none. Never refuses.
    [[nodiscard]] Variant stringToNumber(StringView str_) const;
    // stringToBytes - the text in the profile's ANSI code page, 0-based; an
    // empty array with no bounds for an empty text or a value that holds no text.
    [[nodiscard]] Array<Byte> stringToBytes(const Variant& src_string) const;
    // bytesToString - the bytes from that code page as a String Variant; an
    // empty array gives an Empty Variant; a failure gives "".
    [[nodiscard]] Variant bytesToString(const Array<Byte>& src_bytes) const;
    // booleanToString - "True" only for -1; every other value "False".
    [[nodiscard]] String booleanToString(Boolean value_) const;
    // stringToDate - the trimmed text rewritten as US_DATE_TIME_FORMAT, then
    // read under the regional settings; Date 0 when it reads as no date.
    [[nodiscard]] Date stringToDate(const String& str_) const;
    // dateToString - the date written as US_DATE_TIME_FORMAT, with the
    // regional date and time separators.
    [[nodiscard]] String dateToString(Date date_) const;
};

}  // namespace quillet
