// Every persistable class against hostile buffers: no exception leaves
// readObject, writeObject or assignObject, and write -> read -> write gives
// the same text. The hostile buffers are each class's own saved text with
// every value replaced, so every field's reader meets every bad value.
#include <gtest/gtest.h>

#include <memory>

#include "quillet/quillet.h"

namespace quillet {
namespace {

// Replaces the text of every innermost element ("<T>value</T>") by `value`.
String withEveryValue(StringView saved, StringView value) {
    String out;
    std::size_t i = 0;
    while (i < saved.size()) {
        const std::size_t open = saved.find(u'>', i);
        if (open == StringView::npos) break;
        const std::size_t close = saved.find(u'<', open + 1);
        if (close == StringView::npos) break;
        out.append(saved.substr(i, open + 1 - i));
        if (close + 1 < saved.size() && saved[close + 1] == u'/') {
            out.append(value);
        } else {
            out.append(saved.substr(open + 1, close - open - 1));
        }
        i = close;
    }
    out.append(saved.substr(i));
    return out;
}

template <class T>
class Persistable : public ::testing::Test {};

using PersistableClasses =
    ::testing::Types<clsPoint, clsSelectionRange, clsTokenValuePair, clsFontSymbol, clsRulerSettings, clsOptionsBarcode,
                     clsEPL2, clsZPL2, clsOptionsPrinter, clsMaskProperties, clsLogManagementSettings, clsOptionsLayers,
                     clsOptionsSignaturePad>;
TYPED_TEST_SUITE(Persistable, PersistableClasses);

TYPED_TEST(Persistable, HostileBuffersNeverThrowAndWritingIsStable) {
    const auto fresh = std::make_shared<TypeParam>();
    const String saved = toText(fresh->writeObject());
    ASSERT_FALSE(saved.empty());
    const String tag = fresh->getSaveTag();

    // write -> read -> write gives the same text, under two profiles.
    for (const auto& profile : {RegionalSettings::usEnglish(), RegionalSettings::fromLocale("de_DE")}) {
        RegionalScope scope(profile);
        const String text = toText(fresh->writeObject());
        auto copy = std::make_shared<TypeParam>();
        copy->readObject(Variant(text));
        EXPECT_EQ(toText(copy->writeObject()), text) << toUtf8(profile.localeName);
    }

    const StringView hostileValues[] = {
        u"1e400",          u"-1e400", u"99999999999", u"-2147483649", u"2147483647.5",      u"abc", u"", u"   ",
        u"&lt;&AMP;&quot", u"<",      u"&HFFFFFFFFF", u"NaN",         StringView(u"\0x", 2)};
    std::vector<Variant> buffers;
    buffers.emplace_back();
    buffers.push_back(Variant::null());
    buffers.emplace_back(Nothing);
    buffers.emplace_back(std::make_shared<int>(1));
    buffers.emplace_back(Array<String>(0, 1));
    buffers.push_back(Variant::missing());
    buffers.emplace_back(1e300);
    buffers.emplace_back(u"<" + tag + u">");
    buffers.emplace_back(saved.substr(0, saved.size() / 2));
    for (StringView v : hostileValues) buffers.emplace_back(withEveryValue(saved, v));

    for (const Variant& buffer : buffers) {
        auto object = std::make_shared<TypeParam>();
        EXPECT_NO_THROW(object->readObject(buffer)) << ::testing::PrintToString(buffer);
        EXPECT_NO_THROW((void)object->writeObject()) << ::testing::PrintToString(buffer);
    }

    auto target = std::make_shared<TypeParam>();
    std::shared_ptr<TypeParam> none;
    EXPECT_NO_THROW(target->assignObject(none));
    EXPECT_NO_THROW((void)target->writeObject());
}

}  // namespace
}  // namespace quillet
