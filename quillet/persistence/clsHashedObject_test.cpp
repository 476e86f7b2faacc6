#include "quillet/persistence/clsHashedObject.h"

#include <gtest/gtest.h>

#include "quillet/persistence/clsPoint.h"

namespace quillet {
namespace {

TEST(clsHashedObject, KeepsTheSameReference) {
    auto entry = std::make_shared<clsHashedObject>();
    EXPECT_TRUE(entry->getObject().isNothing());
    auto point = std::make_shared<clsPoint>();
    entry->setObject(point);
    EXPECT_EQ(entry->getObject().object<clsPoint>(), point);
    entry->setObject(5);  // no object reference
    EXPECT_EQ(entry->getObject().object<clsPoint>(), point);
    entry->setObject(Nothing);
    EXPECT_TRUE(entry->getObject().isNothing());
}

TEST(clsHashedObject, AssignObjectSharesTheObjectAndFillsNothing) {
    auto source = std::make_shared<clsHashedObject>();
    auto point = std::make_shared<clsPoint>();
    source->setHashKey(u"k");
    source->setObject(point);
    auto entry = std::make_shared<clsHashedObject>();
    entry->assignObject(source);
    EXPECT_EQ(entry->getHashKey(), u"k");
    EXPECT_EQ(entry->getObject().object<clsPoint>(), point);

    std::shared_ptr<clsHashedObject> none;
    entry->assignObject(none);
    ASSERT_NE(none, nullptr);
    EXPECT_EQ(entry->getHashKey(), u"");
    EXPECT_TRUE(entry->getObject().isNothing());
}

}  // namespace
}  // namespace quillet
