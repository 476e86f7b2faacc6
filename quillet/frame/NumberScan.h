// quillet/frame/NumberScan.h - the one reader of numbers in text. The numeric
// prefix, strict conversion, the date reader and the tag buffer all read their
// digits here, each with its own options, so that a rule about signs, points,
// exponents or radix prefixes is written once.
//
// scanNumber reads a sign, digits with at most one decimal separator, and an
// optional exponent (E or D, a sign, digits), or "&H"/"&O" and hexadecimal or
// octal digits. The options say which blanks it skips and where, which
// separator it takes, whether exponent and radix forms count, and whether the
// whole text must be the number:
//
//   scanNumber(u"12.5kg", PREFIX_SCAN)        Number 12.5, end 4
//   scanNumber(u"1 000", PREFIX_SCAN)         Number 1000, end 5 (blanks inside)
//   scanNumber(u"1e", PREFIX_SCAN)            Number 1, end 1    (no exponent digit)
//   scanNumber(u"abc", PREFIX_SCAN)           NoNumber 0, end 0
//   scanNumber(u"&HFFFF", PREFIX_SCAN)        Number -1          (four hex digits: an Integer)
//   scanNumber(u"1e400", PREFIX_SCAN)         OutOfRange 0
//   scanNumber(u" 2.5 ", STRICT_SCAN)         Number 2.5, end 5
//   scanNumber(u"2.5kg", STRICT_SCAN)         NoNumber 0
//   scanNumber(u"1 000", STRICT_SCAN)         NoNumber 0         (blanks only around)
//   scanNumber(u"2,5", STRICT_SCAN)           Number 2.5 under a German profile
//   scanNumber(u"&H123456789", STRICT_SCAN)   OutOfRange 0       (beyond 32 bits)
//
// A number too small for a Double reads as 0 and is a Number; one too large
// is OutOfRange. Memory and time follow the length of the text.
//
// scanDigits reads a run of ASCII digits as a whole number, for readers that
// want the number and its length (years, day numbers, item subscripts):
//
//   scanDigits(u"2015/1/2", 0, 9)    value 2015, digits 4, end 4
//   scanDigits(u"x12", 1, 9)         value 12, digits 2, end 3
//   scanDigits(u"1234567890123", 0, 10)   tooLong, end 11: stops one digit past the cap
//   scanDigits(u"abc", 0, 9)         digits 0, end 0
//
// The date reader reads each number of a date as
//   const DigitRun run = scanDigits(text, i, 9);
//   if (run.tooLong) return std::nullopt;         // no part of a date has 10 digits
//   item.value = run.value; item.digits = run.digits; i = run.end;
// and the tag buffer reads an item subscript "<Item" n ">" as
//   const DigitRun run = scanDigits(text, i, 10);  // a Long has at most 10 digits
//   if (run.digits == 0 || run.tooLong || run.end >= text.size() || text[run.end] != u'>') continue;
//   then checks the leading zero and the range of Long on run.value.
#pragma once

#include <cstddef>
#include <cstdint>

#include "quillet/frame/chars.h"
#include "quillet/frame/types.h"

namespace quillet {

// NumberScanOptions - how scanNumber reads.
struct NumberScanOptions {
    // blank - the blanks that are skipped (a class of chars.h); nullptr: none.
    bool (*blank)(char16_t) noexcept = nullptr;
    // blanksInside - blanks are skipped anywhere in the number, also between
    // digits and around the exponent letter; otherwise only before and after.
    bool blanksInside = false;
    // regionalSeparator - the decimal separator is the one of the current
    // regional settings (any length); otherwise the point.
    bool regionalSeparator = false;
    bool exponent = true;    // E or D, then an optional sign and digits
    bool radix = true;       // "&H" hexadecimal, "&O" octal
    bool wholeText = false;  // anything but blanks after the number makes it NoNumber
};

// The numeric prefix: never fails, skips blanks anywhere, the point only.
inline constexpr NumberScanOptions PREFIX_SCAN{chars::isNumberBlank, true, false, true, true, false};
// Strict conversion: the whole text in the regional form, blanks around it.
inline constexpr NumberScanOptions STRICT_SCAN{chars::isStrictNumberBlank, false, true, true, true, true};

enum class NumberScanStatus { Number, NoNumber, OutOfRange };

struct NumberScan {
    NumberScanStatus status = NumberScanStatus::NoNumber;
    Double value = 0;     // 0 unless status is Number
    std::size_t end = 0;  // where reading stopped: the first unit not read as part of the number
};

// scanNumber - reads a number from the start of `text` as `options` say.
// Never fails.
[[nodiscard]] NumberScan scanNumber(StringView text, const NumberScanOptions& options) noexcept;

struct DigitRun {
    std::uint64_t value = 0;  // the digits read as a whole number; meaningless when tooLong
    int digits = 0;           // how many digits were read (at most maxDigits)
    std::size_t end = 0;      // the first unit after the digits read
    bool tooLong = false;     // the run has more than maxDigits digits
};

// The most digits scanDigits reads into a value; larger caps are taken as this.
inline constexpr int MAX_DIGIT_RUN = 19;

// scanDigits - the run of ASCII digits at `pos`, read as a whole number. A
// run longer than `maxDigits` (at most MAX_DIGIT_RUN) is tooLong, and reading
// stops one digit past the cap, so a hostile run costs no more than the cap.
[[nodiscard]] DigitRun scanDigits(StringView text, std::size_t pos, int maxDigits) noexcept;

}  // namespace quillet
