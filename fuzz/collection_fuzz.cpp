// Keyed Collection operations driven by the input bytes, checked against a
// plain list of (folded key, item) searched from the start each time. Every
// result, every error number and the final order must agree; any difference
// aborts. Keys are drawn from a few letters whose folding matters (ASCII case,
// A with diaeresis, the Kelvin sign and the long s, which fold to k and s),
// so keys collide by case often.
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <vector>

#include "quillet/frame/Collection.h"
#include "quillet/frame/Failure.h"
#include "quillet/frame/TextCompare.h"

using namespace quillet;

namespace {

void check(bool condition) {
    if (!condition) std::abort();
}

struct Entry {
    std::optional<String> foldedKey;
    Long item;
};

class Reader {
public:
    Reader(const std::uint8_t* data, std::size_t size) : m_data(data), m_size(size) {}
    [[nodiscard]] bool more() const { return m_at < m_size; }
    std::uint8_t next() { return m_at < m_size ? m_data[m_at++] : 0; }

private:
    const std::uint8_t* m_data;
    std::size_t m_size;
    std::size_t m_at = 0;
};

String keyFrom(Reader& in) {
    static constexpr char16_t letters[] = {u'k', u'K', u'\u212A', u's', u'S', u'\u017F', u'\u00E4', u'\u00C4'};
    const std::uint8_t b = in.next();
    String key;
    for (int i = 0; i <= (b & 3); ++i) key += letters[(in.next() >> (i & 1)) % 8];
    return key;
}

long modelFind(const std::vector<Entry>& model, const String& key) {
    const String folded = foldCase(key);
    for (std::size_t i = 0; i < model.size(); ++i)
        if (model[i].foldedKey == folded) return static_cast<long>(i);
    return -1;
}

// What an index names in the model: its 0-based place, or the error number.
struct Place {
    long at = -1;
    Long error = 0;
};

Place placeOf(const std::vector<Entry>& model, const Variant& index) {
    if (const auto* key = index.getIf<String>()) {
        const long at = modelFind(model, *key);
        return at < 0 ? Place{-1, errInvalidCall} : Place{at, 0};
    }
    const Long position = *index.getIf<Long>();
    if (position < 1 || position > static_cast<Long>(model.size())) return {-1, errSubscript};
    return {position - 1, 0};
}

Variant indexFrom(Reader& in, const std::vector<Entry>& model) {
    const std::uint8_t b = in.next();
    if (b & 1) return keyFrom(in);
    return static_cast<Long>(b >> 1) - 2 + (model.size() > 100 ? static_cast<Long>(model.size()) - 60 : 0);
}

Long errorOf(const auto& statement) {
    try {
        statement();
    } catch (const Failure& f) {
        return f.number();
    }
    return 0;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Reader in(data, size);
    Collection c;
    std::vector<Entry> model;
    for (Long step = 0; in.more(); ++step) {
        const std::uint8_t op = in.next() % 6;
        if (op <= 3) {  // Add, with a key for 0-2, at the end or before or after an index
            const bool keyed = op != 3;
            const String key = keyed ? keyFrom(in) : String();
            const std::uint8_t where = in.next() % 3;
            Variant before = Variant::missing();
            Variant after = Variant::missing();
            long at = static_cast<long>(model.size());
            Long expected = keyed && modelFind(model, key) >= 0 ? errDuplicateKey : 0;
            if (where != 0) {
                const Variant index = indexFrom(in, model);
                const Place place = placeOf(model, index);
                (where == 1 ? before : after) = index;
                if (expected == 0) expected = place.error;
                at = where == 1 ? place.at : place.at + 1;
            }
            const Long got = errorOf([&] { c.Add(step, keyed ? Variant(key) : Variant::missing(), before, after); });
            check(got == expected);
            if (got == 0)
                model.insert(model.begin() + at, Entry{keyed ? std::optional(foldCase(key)) : std::nullopt, step});
        } else {
            const Variant index = indexFrom(in, model);
            const Place place = placeOf(model, index);
            if (op == 4) {
                check(errorOf([&] { c.Remove(index); }) == place.error);
                if (place.error == 0) model.erase(model.begin() + place.at);
            } else {
                Variant item;
                check(errorOf([&] { item = c.Item(index); }) == place.error);
                if (place.error == 0) check(item == Variant(model[place.at].item));
            }
        }
        check(c.Count() == static_cast<Long>(model.size()));
    }
    for (std::size_t i = 0; i < model.size(); ++i) {
        check(c.Item(static_cast<Long>(i + 1)) == Variant(model[i].item));
        if (model[i].foldedKey) check(c.Item(*model[i].foldedKey) == Variant(model[i].item));
    }
    return 0;
}
