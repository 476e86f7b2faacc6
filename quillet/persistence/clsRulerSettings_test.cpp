#include "quillet/persistence/clsRulerSettings.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

TEST(clsRulerSettings, SavedFormRoundTripsAndAbsentReadsTrue) {
    const Variant fresh = std::make_shared<clsRulerSettings>()->writeObject();
    EXPECT_EQ(fresh, Variant(u"<RulerSettings><RulerVisibility>True</RulerVisibility>\r\n</RulerSettings>\r\n"));
    auto rulers = std::make_shared<clsRulerSettings>();
    rulers->setVisibility(False);
    rulers->readObject(rulers->writeObject());
    EXPECT_EQ(rulers->getVisibility(), False);
    rulers->readObject(fresh);
    EXPECT_EQ(rulers->getVisibility(), True);
    rulers->setVisibility(False);
    rulers->readObject(Variant(u""));
    EXPECT_EQ(rulers->getVisibility(), True);
    rulers->readObject(Variant(u"<RulerVisibility> no </RulerVisibility>"));
    EXPECT_EQ(rulers->getVisibility(), False);
    // Only -1 is written as True.
    rulers->setVisibility(Boolean::fromRaw(1));
    EXPECT_EQ(rulers->writeObject(),
              Variant(u"<RulerSettings><RulerVisibility>False</RulerVisibility>\r\n</RulerSettings>\r\n"));
}

TEST(clsRulerSettings, AssignObjectCopiesAndIgnoresNothing) {
    auto source = std::make_shared<clsRulerSettings>();
    source->setVisibility(False);
    auto rulers = std::make_shared<clsRulerSettings>();
    rulers->assignObject(source);
    EXPECT_EQ(rulers->getVisibility(), False);
    rulers->setVisibility(True);
    rulers->assignObject(nullptr);
    EXPECT_EQ(rulers->getVisibility(), True);
}

}  // namespace
}  // namespace quillet
