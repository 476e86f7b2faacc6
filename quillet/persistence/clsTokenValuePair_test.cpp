#include "quillet/persistence/clsTokenValuePair.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

TEST(clsTokenValuePair, SavedFormRoundTripsWithTheValueAsRawText) {
    auto pair = std::make_shared<clsTokenValuePair>();
    pair->setToken(u"T");
    pair->setValue(5);
    EXPECT_EQ(pair->writeObject(),
              Variant(u"<TokenValuePair><Token>T</Token>\r\n<Value>5</Value>\r\n</TokenValuePair>\r\n"));
    pair->readObject(pair->writeObject());
    EXPECT_EQ(pair->getValue(), Variant(u"5"));  // kinds are not saved
    pair->readObject(std::make_shared<clsTokenValuePair>()->writeObject());
    EXPECT_EQ(pair->getValue(), Variant(u""));
    EXPECT_EQ(pair->isValueEmpty(), True);

    // The token is escaped, the value is not: a value with tags confuses the buffer.
    pair->setToken(u"<a&b>");
    pair->setValue(u"<Token>x</Token>");
    pair->readObject(pair->writeObject());
    EXPECT_EQ(pair->getToken(), u"<a&b>");
    pair->setValue(u"<Value>1</Value>");
    pair->readObject(pair->writeObject());
    EXPECT_EQ(pair->getValue(), Variant(u"<Value>1</Value>"));  // nested same-name tags still pair
}

TEST(clsTokenValuePair, EmptyBufferReadsNothingOtherBuffersReadDefaults) {
    auto pair = std::make_shared<clsTokenValuePair>();
    pair->setToken(u"keep");
    pair->setValue(7);
    for (const Variant& nothingRead : {Variant(u""), Variant(), Variant::null(), Variant(std::make_shared<int>(1))}) {
        pair->readObject(nothingRead);
        EXPECT_EQ(pair->getToken(), u"keep");
        EXPECT_EQ(pair->getValue(), Variant(7));
    }
    pair->readObject(Variant(u"no tags"));
    EXPECT_EQ(pair->getToken(), u"");
    EXPECT_EQ(pair->getValue(), Variant());  // Empty, not the empty text
    EXPECT_EQ(pair->isValueEmpty(), True);
    pair->setValue(0);
    EXPECT_EQ(pair->isValueEmpty(), False);
}

TEST(clsTokenValuePair, AssignObjectWithNothingFillsTheCallersVariable) {
    auto source = std::make_shared<clsTokenValuePair>();
    source->setToken(u"k");
    auto object = std::make_shared<int>(3);
    source->setValue(object);
    auto pair = std::make_shared<clsTokenValuePair>();
    pair->assignObject(source);
    EXPECT_EQ(pair->getToken(), u"k");
    EXPECT_EQ(pair->getValue().object<int>(), object);  // the same reference
    // An object value writes no Value element.
    EXPECT_EQ(pair->writeObject(), Variant(u"<TokenValuePair><Token>k</Token>\r\n</TokenValuePair>\r\n"));
}

}  // namespace
}  // namespace quillet
