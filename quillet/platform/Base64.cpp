#include "quillet/platform/Base64.h"

#include <vector>

#include "quillet/frame/chars.h"

namespace quillet::base64 {

namespace {

constexpr char16_t ALPHABET[] = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

int sextet(char16_t c) noexcept {
    if (c >= u'A' && c <= u'Z') return c - u'A';
    if (c >= u'a' && c <= u'z') return c - u'a' + 26;
    if (c >= u'0' && c <= u'9') return c - u'0' + 52;
    if (c == u'+') return 62;
    if (c == u'/') return 63;
    return -1;
}

constexpr auto isSkipped = chars::isBase64Skipped;

}  // namespace

String encode(const Array<Byte>& bytes) noexcept {
    try {
        const std::vector<Byte>& in = bytes.elements();
        String out;
        out.reserve((in.size() + 2) / 3 * 4);
        std::size_t i = 0;
        for (; i + 3 <= in.size(); i += 3) {
            const unsigned v = (unsigned{in[i]} << 16) | (unsigned{in[i + 1]} << 8) | in[i + 2];
            out += ALPHABET[(v >> 18) & 63];
            out += ALPHABET[(v >> 12) & 63];
            out += ALPHABET[(v >> 6) & 63];
            out += ALPHABET[v & 63];
        }
        const std::size_t rest = in.size() - i;
        if (rest == 1) {
            const unsigned v = unsigned{in[i]} << 16;
            out += ALPHABET[(v >> 18) & 63];
            out += ALPHABET[(v >> 12) & 63];
            out += u"==";
        } else if (rest == 2) {
            const unsigned v = (unsigned{in[i]} << 16) | (unsigned{in[i + 1]} << 8);
            out += ALPHABET[(v >> 18) & 63];
            out += ALPHABET[(v >> 12) & 63];
            out += ALPHABET[(v >> 6) & 63];
            out += u'=';
        }
        return out;
    } catch (...) {  // out of memory
        return String();
    }
}

Array<Byte> decode(StringView text) noexcept {
    try {
        std::vector<Byte> out;
        out.reserve(text.size() / 4 * 3 + 3);
        unsigned group = 0;
        int filled = 0;   // sextets in `group`
        int padding = 0;  // "=" seen; only more padding and skipped characters may follow
        for (const char16_t c : text) {
            if (isSkipped(c)) continue;
            if (c == u'=') {
                ++padding;
                continue;
            }
            const int v = sextet(c);
            if (v < 0 || padding > 0) return Array<Byte>();
            group = (group << 6) | static_cast<unsigned>(v);
            if (++filled == 4) {
                out.push_back(static_cast<Byte>(group >> 16));
                out.push_back(static_cast<Byte>(group >> 8));
                out.push_back(static_cast<Byte>(group));
                group = 0;
                filled = 0;
            }
        }
        // A last group of two or three sextets carries one or two bytes; its
        // padding, when present, must fill it to four.
        if (filled == 1) return Array<Byte>();
        if (padding > 0 && (filled == 0 || filled + padding != 4)) return Array<Byte>();
        if (filled == 2) {
            out.push_back(static_cast<Byte>(group >> 4));
        } else if (filled == 3) {
            out.push_back(static_cast<Byte>(group >> 10));
            out.push_back(static_cast<Byte>(group >> 2));
        }
        if (out.empty()) return Array<Byte>();
        return Array<Byte>::from(0, std::move(out));
    } catch (...) {  // out of memory
        return Array<Byte>();
    }
}

}  // namespace quillet::base64
