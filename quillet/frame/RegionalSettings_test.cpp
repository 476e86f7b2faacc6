#include "quillet/frame/RegionalSettings.h"

#include <gtest/gtest.h>

#include <thread>

#include "quillet/frame/hostenums.h"
#include "quillet/frame/utf8.h"

namespace quillet {
namespace {

TEST(RegionalSettings, EnUsFromIcuEqualsTheDefaultProfile) {
    const RegionalSettings icu = RegionalSettings::fromLocale("en_US");
    const RegionalSettings us = RegionalSettings::usEnglish();
    using R = RegionalSettings;
    for (String R::*text :
         {&R::localeName, &R::decimalSeparator, &R::thousandSeparator, &R::dateSeparator, &R::timeSeparator,
          &R::shortDatePattern, &R::longDatePattern, &R::longTimePattern, &R::shortTimePattern, &R::amMark, &R::pmMark})
        EXPECT_EQ(toUtf8(icu.*text), toUtf8(us.*text));
    EXPECT_EQ(icu.monthNames, us.monthNames);
    EXPECT_EQ(icu.monthAbbreviations, us.monthAbbreviations);
    EXPECT_EQ(icu.dayNames, us.dayNames);
    EXPECT_EQ(icu.dayAbbreviations, us.dayAbbreviations);
    EXPECT_EQ(icu.firstDayOfWeek, us.firstDayOfWeek);
    EXPECT_EQ(icu.dateOrder, us.dateOrder);
    EXPECT_EQ(icu.ansiCodePage, us.ansiCodePage);
    // The hyphenated form names the same locale.
    EXPECT_EQ(RegionalSettings::fromLocale("en-US").shortDatePattern, u"M/d/yyyy");
}

TEST(RegionalSettings, EuropeanProfiles) {
    const RegionalSettings de = RegionalSettings::fromLocale("de_DE");
    EXPECT_EQ(de.thousandSeparator, u".");
    EXPECT_EQ(de.dateSeparator, u".");
    EXPECT_EQ(de.shortDatePattern, u"dd.MM.yyyy");  // a four-digit year, as the platform shows
    EXPECT_EQ(de.longDatePattern, u"dddd, d. MMMM yyyy");
    EXPECT_EQ(de.dateOrder, DateOrder::DayMonthYear);
    EXPECT_EQ(de.firstDayOfWeek, vbMonday);
    EXPECT_EQ(de.monthNames[2], u"März");
    EXPECT_EQ(de.dayNames[0], u"Sonntag");  // index 0 is Sunday whatever the first day
    EXPECT_EQ(de.ansiCodePage, 1252);

    const RegionalSettings gb = RegionalSettings::fromLocale("en_GB");
    EXPECT_EQ(gb.firstDayOfWeek, vbMonday);

    const RegionalSettings fr = RegionalSettings::fromLocale("fr-FR");
    EXPECT_EQ(fr.localeName, u"fr_FR");
    EXPECT_EQ(fr.shortDatePattern, u"dd/MM/yyyy");
    EXPECT_EQ(fr.longDatePattern, u"dddd d MMMM yyyy");
    EXPECT_EQ(fr.monthNames[7], u"août");
    EXPECT_EQ(fr.dayNames[1], u"lundi");

    const RegionalSettings ru = RegionalSettings::fromLocale("ru_RU");
    EXPECT_EQ(ru.ansiCodePage, 1251);
    EXPECT_EQ(ru.shortDatePattern, u"dd.MM.yyyy");
    // Literal letters of a pattern are quoted so they are never taken for fields.
    EXPECT_EQ(ru.longDatePattern, u"dddd, d MMMM yyyy 'г'.");
}

TEST(RegionalSettings, AsianProfilesAndCodePages) {
    const RegionalSettings ja = RegionalSettings::fromLocale("ja_JP");
    EXPECT_EQ(ja.ansiCodePage, 932);
    EXPECT_EQ(ja.dateOrder, DateOrder::YearMonthDay);
    EXPECT_EQ(ja.shortDatePattern, u"yyyy/MM/dd");
    EXPECT_EQ(ja.firstDayOfWeek, vbSunday);

    struct Row {
        const char* locale;
        Long codePage;
    };
    const Row rows[] = {{"pl_PL", 1250}, {"cs_CZ", 1250}, {"sr_RS", 1251}, {"sr_Latn_RS", 1250}, {"uk_UA", 1251},
                        {"el_GR", 1253}, {"tr_TR", 1254}, {"he_IL", 1255}, {"ar_EG", 1256},      {"lt_LT", 1257},
                        {"vi_VN", 1258}, {"th_TH", 874},  {"zh_CN", 936},  {"zh_TW", 950},       {"zh_Hant_HK", 950},
                        {"ko_KR", 949},  {"sv_SE", 1252}, {"pt_BR", 1252}};
    for (const Row& r : rows) EXPECT_EQ(RegionalSettings::fromLocale(r.locale).ansiCodePage, r.codePage) << r.locale;

    // Arabic gets Latin digits and separators, and no direction marks in patterns.
    const RegionalSettings ar = RegionalSettings::fromLocale("ar_EG");
    EXPECT_EQ(ar.decimalSeparator, u".");
    EXPECT_EQ(ar.shortDatePattern.find(u'\u200F'), String::npos);
}

TEST(RegionalSettings, OddNamesDoNotFail) {
    for (const char* name : {"", "xx_YY", "not a locale at all", "@@@", "de_DE@calendar=buddhist", "C", "root"}) {
        const RegionalSettings s = RegionalSettings::fromLocale(name);
        EXPECT_FALSE(s.decimalSeparator.empty()) << name;
        EXPECT_FALSE(s.shortDatePattern.empty()) << name;
        EXPECT_GE(s.firstDayOfWeek, 1) << name;
        EXPECT_LE(s.firstDayOfWeek, 7) << name;
    }
}

TEST(RegionalSettings, ScopeRestoresAndProfilesArePerThread) {
    ASSERT_EQ(RegionalSettings::current().decimalSeparator, u".");
    {
        RegionalScope de(RegionalSettings::fromLocale("de_DE"));
        EXPECT_EQ(RegionalSettings::current().decimalSeparator, u",");
        {
            RegionalScope fr(RegionalSettings::fromLocale("fr_FR"));
            EXPECT_EQ(RegionalSettings::current().localeName, u"fr_FR");
        }
        EXPECT_EQ(RegionalSettings::current().localeName, u"de_DE");

        String seenByOtherThread;
        std::thread other([&] { seenByOtherThread = RegionalSettings::current().localeName; });
        other.join();
        EXPECT_EQ(seenByOtherThread, u"en_US");
    }
    EXPECT_EQ(RegionalSettings::current().localeName, u"en_US");

    // setCurrent lasts until changed; put the default back for the other tests.
    RegionalSettings::setCurrent(RegionalSettings::fromLocale("ja_JP"));
    EXPECT_EQ(RegionalSettings::current().ansiCodePage, 932);
    RegionalSettings::setCurrent(RegionalSettings::usEnglish());
}

}  // namespace
}  // namespace quillet
