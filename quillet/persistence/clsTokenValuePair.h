// quillet/persistence/clsTokenValuePair.h - a token joined with any value. A
// creatable, persistable class with the save tag "TokenValuePair".
//
//   auto pair = std::make_shared<clsTokenValuePair>();
//   pair->isValueEmpty();                 // True: the value is the empty text
//   pair->setToken(u"T");
//   pair->setValue(5);
//   pair->writeObject();                  //
//   u"<TokenValuePair><Token>T</Token>\r\n<Value>5</Value>\r\n</TokenValuePair>\r\n"
//   pair->readObject(pair->writeObject());
//   pair->getValue();                     // Variant(u"5"): kinds are not saved
//
//   std::shared_ptr<clsTokenValuePair> none;
//   pair->assignObject(none);             // none now holds a new pair; pair has the defaults
//
// The value is saved and read back raw: text with tag characters in it can
// confuse the buffer. Every member is continue-on-failure.
#pragma once

#include <memory>

#include "quillet/frame/Variant.h"
#include "quillet/frame/types.h"

namespace quillet {

class clsTokenValuePair {
public:
    clsTokenValuePair() { setDefaults(); }

    // assignObject - copies token and value (an object value by reference).
    // Given Nothing, it first puts a new pair into token_value_, so this one
    // takes the defaults and the caller's variable no longer holds Nothing.
    void assignObject(std::shared_ptr<clsTokenValuePair>& token_value_);
    void setToken(const String& token_);
    [[nodiscard]] String getToken() const;
    void setValue(const Variant& value_);
    [[nodiscard]] Variant getValue() const;
    // isValueEmpty - isVariantValueEmpty of the value.
    [[nodiscard]] Boolean isValueEmpty() const;
    // readObject - nothing is read from a buffer equal to the empty text;
    // otherwise "Token" (default "") and "Value" (the raw text, Empty when
    // absent) are read.
    void readObject(const Variant& buffer);
    [[nodiscard]] Variant writeObject() const;
    [[nodiscard]] String getSaveTag() const;  // "TokenValuePair"

    // Implementation details follow.
private:
    void setDefaults();

    String m_token;
    Variant m_value;
};

}  // namespace quillet
