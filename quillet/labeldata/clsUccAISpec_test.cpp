#include "quillet/labeldata/clsUccAISpec.h"

#include <gtest/gtest.h>

#include <memory>
#include <tuple>

#include "quillet/frame/utf8.h"

namespace quillet {
namespace {

TEST(clsUccAISpec, PlaceholdersCountOnlyAsTheLastCharacterInAnyCase) {
    struct Row {
        const char* code;
        bool lot;
        bool decimal;
    };
    const Row rows[] = {
        {"00", false, false}, {"310y", false, true}, {"310Y", false, true},
        {"37X", true, false}, {"x37", false, false}, {"3y1", false, false},
        {"", false, false},   {"yx", true, false},   {"310y ", false, false},
    };
    for (const Row& row : rows) {
        clsUccAISpec ai;
        ai.setAI(fromUtf8(row.code));
        EXPECT_EQ(ai.containsLotNumber(), Boolean(row.lot)) << row.code;
        EXPECT_EQ(ai.containsDecimalInfo(), Boolean(row.decimal)) << row.code;
        EXPECT_EQ(ai.containsLotOrDecimalChar(), Boolean(row.lot || row.decimal)) << row.code;
    }
}

TEST(clsUccAISpec, LengthsAreUncheckedAndIndependentOfThePredefinedFlag) {
    clsUccAISpec ai;
    EXPECT_EQ(ai.isVariableLen(), False);  // 18 to 18
    ai.setMinLen(1);
    EXPECT_EQ(ai.isVariableLen(), True);
    EXPECT_EQ(ai.getHasPredefinedLength(), True);
    ai.setMinLen(30);  // above the maximum, and a negative maximum: both kept
    ai.setMaxLen(-4);
    EXPECT_EQ(ai.getMinLen(), 30);
    EXPECT_EQ(ai.getMaxLen(), -4);
}

TEST(clsUccAISpec, AssignObjectCopiesAllSevenAndIgnoresNothing) {
    auto source = std::make_shared<clsUccAISpec>();
    source->setAI(u"10x");
    source->setIsDataNumeric(False);
    source->setMinLen(1);
    source->setMaxLen(20);
    source->setDescription(u"Batch or lot number");
    source->setUsesDataCheckDigit(False);
    source->setHasPredefinedLength(False);
    const auto fields = [](const clsUccAISpec& a) {
        return std::tuple(a.getAI(), a.getIsDataNumeric(), a.getMinLen(), a.getMaxLen(), a.getDescription(),
                          a.getUsesDataCheckDigit(), a.getHasPredefinedLength());
    };
    clsUccAISpec target;
    target.assignObject(source);
    EXPECT_TRUE(fields(target) == fields(*source));

    std::shared_ptr<clsUccAISpec> nothing;
    target.assignObject(nothing);
    EXPECT_TRUE(fields(target) == fields(*source));
    EXPECT_EQ(nothing, nullptr);
}

}  // namespace
}  // namespace quillet
