#include "quillet/platform/Base64.h"

#include <gtest/gtest.h>

#include <string>

namespace quillet {
namespace {

Array<Byte> bytesOf(std::string_view s) {
    if (s.empty()) return Array<Byte>();
    return Array<Byte>::from(0, std::vector<Byte>(s.begin(), s.end()));
}

TEST(Base64, Rfc4648VectorsBothWays) {
    const std::pair<const char*, const char16_t*> vectors[] = {
        {"", u""},
        {"f", u"Zg=="},
        {"fo", u"Zm8="},
        {"foo", u"Zm9v"},
        {"foob", u"Zm9vYg=="},
        {"fooba", u"Zm9vYmE="},
        {"foobar", u"Zm9vYmFy"},
    };
    for (const auto& [plain, encoded] : vectors) {
        SCOPED_TRACE(plain);
        EXPECT_EQ(base64::encode(bytesOf(plain)), encoded);
        EXPECT_EQ(base64::decode(encoded), bytesOf(plain));
    }
    // All 256 byte values, so both ends of the alphabet show.
    std::vector<Byte> all(256);
    for (int i = 0; i < 256; ++i) all[static_cast<std::size_t>(i)] = static_cast<Byte>(i);
    const Array<Byte> every = Array<Byte>::from(0, all);
    const String text = base64::encode(every);
    EXPECT_EQ(text.substr(0, 8), u"AAECAwQF");
    EXPECT_EQ(text.substr(text.size() - 8), u"/P3+/w==");
    EXPECT_EQ(base64::decode(text), every);
}

TEST(Base64, DecodingIsLenientWithLayoutAndRefusesEverythingElse) {
    EXPECT_EQ(base64::decode(u"Zm9v\r\nYmFy"), bytesOf("foobar"));
    EXPECT_EQ(base64::decode(u" Zm9vYg "), bytesOf("foob"));  // padding left out
    EXPECT_EQ(base64::decode(u"Zm9vYmE"), bytesOf("fooba"));
    for (const char16_t* bad : {u"Zm9*", u"Zm=v", u"Z", u"Zm9vY", u"Zg===", u"====", u"-_-_"}) {
        SCOPED_TRACE(testing::PrintToString(String(bad)));
        EXPECT_FALSE(base64::decode(bad).isAllocated());
    }
    EXPECT_FALSE(base64::decode(StringView(u"Zm9v\0", 5)).isAllocated());
}

}  // namespace
}  // namespace quillet
