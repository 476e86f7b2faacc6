// Any format on any date gives a text, or Failure(errOverflow) for a serial
// outside the dates; a date written as "mm/dd/yyyy hh:nn:ss" reads back to
// the same second under the US profile.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "quillet/frame/Calendar.h"
#include "quillet/frame/DateText.h"
#include "quillet/frame/Failure.h"
#include "quillet/frame/RegionalSettings.h"

using namespace quillet;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 9) return 0;
    double serial;
    std::memcpy(&serial, data, sizeof serial);
    // Half the inputs use a serial inside the dates, so the format gets exercised.
    if (data[8] & 1) serial = std::isfinite(serial) ? std::fmod(std::fabs(serial), 3615900.0) - 657434.0 : 0.0;
    const bool inRange =
        std::isfinite(serial) && serial > calendar::FIRST_SERIAL - 1.0 && serial < calendar::LAST_SERIAL + 1.0;
    String format;
    for (std::size_t i = 9; i < size; ++i)
        format.push_back(data[8] & 2 ? static_cast<char16_t>(data[i])
                                     : static_cast<char16_t>(data[i] | (i % 7 == 0 ? 0x2000 : 0)));
    static const RegionalSettings us = RegionalSettings::usEnglish();
    RegionalScope scope(us);
    const VbDayOfWeek firstDay = static_cast<VbDayOfWeek>(data[8] % 8);
    try {
        (void)formatDate(Date(serial), format, firstDay == vbUseSystemDayOfWeek ? vbSunday : firstDay);
        (void)formatDate(Date(serial), static_cast<VbDateTimeFormat>(data[8] % 5));
    } catch (const Failure& f) {
        // Only a serial that rounds out of the dates may fail.
        if (f.number() != errOverflow) std::abort();
        if (inRange && std::fabs(serial - calendar::LAST_SERIAL - 1.0) > 1e-5) std::abort();
        return 0;
    }
    if (!inRange) std::abort();
    const Date d(serial);
    const String text = formatDate(d, u"mm/dd/yyyy hh:nn:ss");
    const auto back = tryReadDate(text);
    if (!back || calendar::totalSeconds(*back) != calendar::totalSeconds(d)) std::abort();
    return 0;
}
