#include "quillet/text/clsString.h"

#include "quillet/frame/DateText.h"
#include "quillet/frame/Failure.h"
#include "quillet/frame/NumberText.h"
#include "quillet/frame/RegionalSettings.h"
#include "quillet/frame/convert.h"
#include "quillet/frame/trim.h"
#include "quillet/platform/CodePage.h"
#include "quillet/text/clsNumericHandling.h"

namespace quillet {

Variant clsString::stringToNumber(StringView str_) const { return Variant(numericPrefix(trimBlanks(str_))); }

Array<Byte> clsString::stringToBytes(const Variant& src_string) const {
    return stopOnFailure(Array<Byte>(), [&] {
        const String text = toText(src_string);
        if (text.empty()) return Array<Byte>();
        const std::string bytes = toCodePage(text, RegionalSettings::current().ansiCodePage);
        return Array<Byte>::from(0, std::vector<Byte>(bytes.begin(), bytes.end()));
    });
}

Variant clsString::bytesToString(const Array<Byte>& src_bytes) const {
    return stopOnFailure(Variant(String()), [&] {
        if (src_bytes.size() == 0) return Variant();
        const auto& e = src_bytes.elements();
        return Variant(fromCodePage(std::string_view(reinterpret_cast<const char*>(e.data()), e.size()),
                                    RegionalSettings::current().ansiCodePage));
    });
}

String clsString::booleanToString(Boolean value_) const { return value_ == True ? u"True" : u"False"; }

Date clsString::stringToDate(const String& str_) const {
    Date result;
    attempt([&] {
        // A text that reads as a date goes through the fixed form first, so
        // that what is read back is exactly what dateToString would write. A
        // text that reads as none is not read a second time.
        const auto read = tryReadDate(trimBlanks(str_));
        if (!read) return;
        result = readDate(formatDate(*read, US_DATE_TIME_FORMAT()));
    });
    return result;
}

String clsString::dateToString(Date date_) const {
    String result;
    attempt([&] { result = formatDate(date_, US_DATE_TIME_FORMAT()); });
    return result;
}

}  // namespace quillet
