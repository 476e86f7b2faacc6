// A settings object read from and written to its tagged text must cost about
// what a plain pass over that text costs. Compare the lines of each pair in
// one run, with the same text:
//   read/ZPL2_readObject   within 1x of read/plain_17Scans (17 searches of
//                          the whole text for a tag that is absent)
//   write/ZPL2_writeObject within 1.2x of write/plain_Appends (the same text
//                          appended to one std::u16string made large enough
//                          at once, as a careful hand-written writer would)
#include <benchmark/benchmark.h>

#include <charconv>
#include <string_view>

#include "quillet/frame/Variant.h"
#include "quillet/settings/clsZPL2.h"

namespace {

using quillet::clsZPL2;
using quillet::Long;
using quillet::String;
using quillet::Variant;

clsZPL2 sample() {
    clsZPL2 z;
    z.setPauseInterval(25);
    z.setCutterInterval(3);
    z.setBackfeedPercentage(250);
    z.setTopAdjustment(-40);
    z.setTearOffAdjustment(12);
    return z;
}

void read_ZPL2_readObject(benchmark::State& state) {
    const Variant saved = sample().writeObject();
    clsZPL2 z;
    for (auto _ : state) {
        z.readObject(saved);
        benchmark::DoNotOptimize(z);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * 17 *
                            static_cast<int64_t>(saved.getIf<String>()->size() * sizeof(char16_t)));
}

void read_plain_17Scans(benchmark::State& state) {
    const Variant saved = sample().writeObject();
    const std::u16string_view text = *saved.getIf<String>();
    const std::u16string_view absent = u"<ZPL2Absent>";
    for (auto _ : state) {
        std::size_t sum = 0;
        for (int i = 0; i < 17; ++i) {
            benchmark::DoNotOptimize(text.data());
            sum += text.find(absent);
        }
        benchmark::DoNotOptimize(sum);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * 17 *
                            static_cast<int64_t>(text.size() * sizeof(char16_t)));
}

void write_ZPL2_writeObject(benchmark::State& state) {
    const clsZPL2 z = sample();
    for (auto _ : state) benchmark::DoNotOptimize(z.writeObject());
}

// The same text built directly: literal tags and the digits of each value.
void appendNumber(String& out, std::u16string_view tag, Long value) {
    char digits[16];
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    out += u'<';
    out += tag;
    out += u'>';
    for (const char* p = digits; p != end; ++p) out += static_cast<char16_t>(*p);
    out += u"</";
    out += tag;
    out += u">\r\n";
}

String plainText(const clsZPL2& z) {
    String fields;
    fields.reserve(768);
    fields += u"<AdvancedPrinterSettingsZPL2>";
    appendNumber(fields, u"ZPL2PrintMode", z.getPrintMode());
    appendNumber(fields, u"ZPL2PageMode", z.getPageMode());
    appendNumber(fields, u"ZPL2PrintSpeed", z.getPrintSpeed());
    appendNumber(fields, u"ZPL2SlewSpeed", z.getSlewSpeed());
    appendNumber(fields, u"ZPL2BackfeedSpeed", z.getBackfeedSpeed());
    appendNumber(fields, u"ZPL2PrintDarkness", z.getPrintDarkness());
    appendNumber(fields, u"ZPL2PrintOrientation", z.getPrintOrientation());
    appendNumber(fields, u"ZPL2FeedMode", z.getFeedMode());
    fields += u"<ZPL2PauseAfterCut>";
    fields += z.getPauseAfterCut() == quillet::True ? u"True" : u"False";
    fields += u"</ZPL2PauseAfterCut>\r\n";
    appendNumber(fields, u"ZPL2PauseMode", z.getPauseMode());
    appendNumber(fields, u"ZPL2PauseInterval", z.getPauseInterval());
    appendNumber(fields, u"ZPL2CutterMode", z.getCutterMode());
    appendNumber(fields, u"ZPL2CutterInterval", z.getCutterInterval());
    appendNumber(fields, u"ZPL2BackfeedMode", z.getBackfeedMode());
    appendNumber(fields, u"ZPL2BackfeedPercentage", z.getBackfeedPercentage());
    appendNumber(fields, u"ZPL2TopAdjustment", z.getTopAdjustment());
    appendNumber(fields, u"ZPL2TearOffAdjustment", z.getTearOffAdjustment());
    fields += u"</AdvancedPrinterSettingsZPL2>\r\n";
    return fields;
}

void write_plain_Appends(benchmark::State& state) {
    const clsZPL2 z = sample();
    if (plainText(z) != *z.writeObject().getIf<String>()) {
        state.SkipWithError("the plain text differs from writeObject");
        return;
    }
    for (auto _ : state) benchmark::DoNotOptimize(plainText(z));
}

}  // namespace

BENCHMARK(read_ZPL2_readObject);
BENCHMARK(read_plain_17Scans);
BENCHMARK(write_ZPL2_writeObject);
BENCHMARK(write_plain_Appends);
