#include "quillet/settings/clsMaskProperties.h"

#include <gtest/gtest.h>

#include "quillet/frame/utf8.h"

namespace quillet {
namespace {

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

}  // namespace
}  // namespace quillet
