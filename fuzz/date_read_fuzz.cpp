// The date reader never throws anything but Failure(errTypeMismatch), and a
// date it reads, written again as "mm/dd/yyyy hh:nn:ss", reads back to the
// same second.
#include <cstdint>
#include <cstdlib>

#include "quillet/frame/Calendar.h"
#include "quillet/frame/DateText.h"
#include "quillet/frame/Failure.h"
#include "quillet/frame/RegionalSettings.h"

using namespace quillet;

namespace {

RegionalSettings dayFirst() {
    RegionalSettings rs = RegionalSettings::usEnglish();
    rs.decimalSeparator = u",";
    rs.dateSeparator = u".";
    rs.shortDatePattern = u"dd.MM.yyyy";
    rs.longTimePattern = u"HH:mm:ss";
    rs.dateOrder = DateOrder::DayMonthYear;
    return rs;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 1) return 0;
    static const RegionalSettings profiles[] = {RegionalSettings::usEnglish(), dayFirst()};
    const bool wide = data[0] & 2;
    String text;
    if (wide) {
        for (std::size_t i = 1; i + 1 < size; i += 2) text.push_back(static_cast<char16_t>(data[i] | data[i + 1] << 8));
    } else {
        for (std::size_t i = 1; i < size; ++i) text.push_back(static_cast<char16_t>(data[i]));
    }
    RegionalScope scope(profiles[data[0] & 1]);
    Date read;
    try {
        read = readDate(text);
    } catch (const Failure& f) {
        if (f.number() != errTypeMismatch) std::abort();
        return 0;
    } catch (...) {
        std::abort();
    }
    const String again = formatDate(read, (data[0] & 1) ? u"dd/mm/yyyy hh:nn:ss" : u"mm/dd/yyyy hh:nn:ss");
    const auto back = tryReadDate(again);
    if (!back || calendar::totalSeconds(*back) != calendar::totalSeconds(read)) std::abort();
    return 0;
}
