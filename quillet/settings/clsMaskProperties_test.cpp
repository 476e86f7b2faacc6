#include "quillet/settings/clsMaskProperties.h"

#include <gtest/gtest.h>

#include "quillet/frame/utf8.h"

namespace quillet {
namespace {

std::string saved(const clsMaskProperties& m) {
    const Variant buffer = m.writeObject();
    const String* text = buffer.getIf<String>();
    return text ? toUtf8(*text) : std::string("<not a String>");
}

std::shared_ptr<clsMaskProperties> changed() {
    auto m = std::make_shared<clsMaskProperties>();
    m->setApplyMaskColor(True);
    m->setMaskColorOption(QLT_MCO_FIXED_COLOR);
    m->setMaskColor(0x00FF8040);
    m->setMaskTolerance(42);
    return m;
}

const std::string FRESH_TEXT =
    "<MaskProperties><ApplyMaskColor>False</ApplyMaskColor>\r\n"
    "<MaskColorOption>0</MaskColorOption>\r\n"
    "<MaskColor>0</MaskColor>\r\n"
    "<MaskTolerance>0</MaskTolerance>\r\n"
    "</MaskProperties>\r\n";

TEST(clsMaskProperties, FreshObjectSavesTheGoldenTextAndReadsItBack) {
    clsMaskProperties fresh;
    EXPECT_EQ(fresh.getSaveTag(), u"MaskProperties");
    EXPECT_EQ(saved(fresh), FRESH_TEXT);
    auto other = changed();
    other->readObject(fresh.writeObject());
    EXPECT_EQ(saved(*other), FRESH_TEXT);

    clsMaskProperties copy;
    copy.readObject(changed()->writeObject());
    EXPECT_EQ(saved(copy), saved(*changed()));
    EXPECT_EQ(copy.getMaskTolerance(), 42);
}

TEST(clsMaskProperties, ToleranceIsClampedBySetterAndReader) {
    struct Row {
        Long given;
        Long stored;
    } rows[] = {{-5, 0}, {0, 0}, {1, 1}, {99, 99}, {100, 100}, {150, 100}, {-2147483647 - 1, 0}, {2147483647, 100}};
    for (const Row& r : rows) {
        clsMaskProperties m;
        m.setMaskTolerance(r.given);
        EXPECT_EQ(m.getMaskTolerance(), r.stored) << "setter " << r.given;
        m.setMaskTolerance(50);
        m.readObject(Variant(u"<MaskTolerance>" + fromUtf8(std::to_string(r.given)) + u"</MaskTolerance>"));
        EXPECT_EQ(m.getMaskTolerance(), r.stored) << "reader " << r.given;
    }
    // A number beyond a Long fails its statement before the clamp can run.
    clsMaskProperties m;
    m.setMaskTolerance(50);
    m.readObject(Variant(u"<MaskTolerance>1e10</MaskTolerance>"));
    EXPECT_EQ(m.getMaskTolerance(), 50);
}

TEST(clsMaskProperties, EmptyBufferResetsLikeAnyOther) {
    for (const Variant& buffer : {Variant(), Variant(u""), Variant::null(), Variant(u"<Other>1</Other>")}) {
        auto m = changed();
        EXPECT_NO_THROW(m->readObject(buffer));
        EXPECT_EQ(saved(*m), FRESH_TEXT);
    }
    // Values out of range stay out of range, but for the tolerance.
    auto m = changed();
    m->readObject(Variant(u"<MaskColorOption>9</MaskColorOption><MaskColor>-1</MaskColor>"));
    EXPECT_EQ(m->getMaskColorOption(), 9);
    EXPECT_EQ(m->getMaskColor(), -1);
}

TEST(clsMaskProperties, AssignObjectCopiesAndNothingChangesNothing) {
    clsMaskProperties target;
    target.assignObject(changed());
    EXPECT_EQ(saved(target), saved(*changed()));
    EXPECT_NO_THROW(target.assignObject(nullptr));
    EXPECT_EQ(saved(target), saved(*changed()));
}

}  // namespace
}  // namespace quillet
