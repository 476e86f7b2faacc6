#include "quillet/persistence/clsTokenValuePair.h"

#include "quillet/frame/Failure.h"
#include "quillet/frame/VariantCompare.h"
#include "quillet/persistence/clsBufferIO.h"
#include "quillet/text/clsNumericHandling.h"

namespace quillet {

void clsTokenValuePair::setDefaults() {
    m_token.clear();
    m_value = Variant(String());
}

void clsTokenValuePair::assignObject(std::shared_ptr<clsTokenValuePair>& token_value_) {
    attempt([&] {
        if (!token_value_) token_value_ = std::make_shared<clsTokenValuePair>();
    });
    attempt([&] { setToken(deref(token_value_).getToken()); });
    attempt([&] { setValue(deref(token_value_).getValue()); });
}

void clsTokenValuePair::setToken(const String& token_) { m_token = token_; }
String clsTokenValuePair::getToken() const { return m_token; }
void clsTokenValuePair::setValue(const Variant& value_) { m_value = value_; }
Variant clsTokenValuePair::getValue() const { return m_value; }

Boolean clsTokenValuePair::isValueEmpty() const { return clsNumericHandling().isVariantValueEmpty(m_value); }

void clsTokenValuePair::readObject(const Variant& buffer) {
    // The buffer compared with the empty text: Empty equals it, a number is
    // below it; Null (an unknown answer) and the objects and arrays that
    // cannot be compared take the branch that reads nothing.
    const bool isEmptyText = attemptTest([&] {
        const VariantOrder order = compareVariants(buffer, Variant(String()));
        return order == VariantOrder::Equal || order == VariantOrder::Null;
    });
    if (isEmptyText) return;
    const clsBufferIO io;
    attempt([&] { setToken(io.ReadStringBetween(buffer, u"Token", String())); });
    attempt([&] { setValue(io.ReadVariantBetween(buffer, u"Value")); });
}

Variant clsTokenValuePair::writeObject() const {
    const clsBufferIO io;
    String fields = io.WriteStringBetween(u"Token", getToken());
    // A value with no text (an object) writes no element.
    const Variant value = io.WriteVariantBetween(u"Value", getValue());
    if (const String* text = value.getIf<String>()) fields += *text;
    return io.WriteVariantBetween(getSaveTag(), Variant(std::move(fields)));
}

String clsTokenValuePair::getSaveTag() const { return u"TokenValuePair"; }

}  // namespace quillet
