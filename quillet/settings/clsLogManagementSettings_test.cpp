#include "quillet/settings/clsLogManagementSettings.h"

#include <gtest/gtest.h>

#include "quillet/frame/utf8.h"

namespace quillet {
namespace {

std::string saved(const clsLogManagementSettings& s) {
    const Variant buffer = s.writeObject();
    const String* text = buffer.getIf<String>();
    return text ? toUtf8(*text) : std::string("<not a String>");
}

std::shared_ptr<clsLogManagementSettings> changed() {
    auto s = std::make_shared<clsLogManagementSettings>();
    s->setRemoveLogsByAge(True);
    s->setRemoveLogsByCount(True);
    s->setMaxLogAge(30);
    s->setMaxLogCount(-2);
    return s;
}

const std::string FRESH_TEXT =
    "<LogManagementSettings><RemoveLogsByAge>False</RemoveLogsByAge>\r\n"
    "<RemoveLogsByCount>False</RemoveLogsByCount>\r\n"
    "<MaxLogAge>1000</MaxLogAge>\r\n"
    "<MaxLogCount>1000</MaxLogCount>\r\n"
    "</LogManagementSettings>\r\n";

TEST(clsLogManagementSettings, FreshObjectSavesTheGoldenTextAndReadsItBack) {
    clsLogManagementSettings fresh;
    EXPECT_EQ(fresh.getSaveTag(), u"LogManagementSettings");
    EXPECT_EQ(fresh.getMaxLogAge(), 1000);
    EXPECT_EQ(saved(fresh), FRESH_TEXT);
    auto other = changed();
    other->readObject(fresh.writeObject());
    EXPECT_EQ(saved(*other), FRESH_TEXT);

    clsLogManagementSettings copy;
    copy.readObject(changed()->writeObject());
    EXPECT_EQ(saved(copy), saved(*changed()));
}

TEST(clsLogManagementSettings, EmptyBufferKeepsEverythingOtherTagsGiveReaderDefaults) {
    auto s = changed();
    for (const Variant& empty : {Variant(), Variant(u""), Variant::null(), Variant(Nothing)}) {
        s->readObject(empty);
        EXPECT_EQ(saved(*s), saved(*changed()));
    }
    s->readObject(Variant(u"<Other>yes</Other>"));
    EXPECT_EQ(saved(*s), FRESH_TEXT);

    // Readers do not validate; a number beyond a Long keeps its field.
    s->readObject(
        Variant(u"<MaxLogAge>-7</MaxLogAge><MaxLogCount>1e12</MaxLogCount>"
                u"<RemoveLogsByAge> Yes </RemoveLogsByAge>"));
    EXPECT_EQ(s->getMaxLogAge(), -7);
    EXPECT_EQ(s->getMaxLogCount(), 1000);
    EXPECT_EQ(s->getRemoveLogsByAge(), True);
}

TEST(clsLogManagementSettings, AssignObjectWithNothingFillsTheCallersVariable) {
    auto target = changed();
    std::shared_ptr<clsLogManagementSettings> none;
    target->assignObject(none);
    ASSERT_NE(none, nullptr);
    EXPECT_EQ(saved(*none), FRESH_TEXT);
    EXPECT_EQ(saved(*target), FRESH_TEXT);

    auto source = changed();
    target->assignObject(source);
    EXPECT_EQ(saved(*target), saved(*source));
    EXPECT_NE(target, source);
}

}  // namespace
}  // namespace quillet
