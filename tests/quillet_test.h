// tests/quillet_test.h - what the library's tests share: a check that a
// statement fails with a given error number, and the saved text of a
// persistable object as UTF-8 for readable comparisons.
//
//   EXPECT_FAILURE((void)readDate(u"abc"), errTypeMismatch);
//   EXPECT_EQ(savedText(zpl.writeObject()), "<AdvancedPrinterSettingsZPL2>...");
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "quillet/frame/Failure.h"
#include "quillet/frame/Variant.h"
#include "quillet/frame/print.h"
#include "quillet/frame/utf8.h"

namespace quillet::testing_support {

// failureNumber - the error number `statement` fails with, or a message that
// it did not fail (or threw something else).
template <class Statement>
::testing::AssertionResult failsWith(Statement&& statement, Long expected) {
    try {
        statement();
    } catch (const Failure& f) {
        if (f.number() == expected) return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << "failed with error " << f.number() << ", expected " << expected;
    } catch (const std::exception& e) {
        return ::testing::AssertionFailure() << "threw " << e.what() << " instead of Failure(" << expected << ")";
    }
    return ::testing::AssertionFailure() << "did not fail; expected Failure(" << expected << ")";
}

// savedText - the String a writer returned, as UTF-8; "<not a String>" for
// any other kind.
inline std::string savedText(const Variant& saved) {
    const String* text = saved.getIf<String>();
    return text ? toUtf8(*text) : std::string("<not a String>");
}

}  // namespace quillet::testing_support

// EXPECT_FAILURE - `statement` throws quillet::Failure with error `number`.
#define EXPECT_FAILURE(statement, number) \
    EXPECT_TRUE(::quillet::testing_support::failsWith([&] { statement; }, (number))) << #statement

namespace quillet {
using testing_support::savedText;
}
