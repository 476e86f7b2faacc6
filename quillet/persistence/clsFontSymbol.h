// quillet/persistence/clsFontSymbol.h - one character of one font. A
// creatable, persistable class with the save tag "FontSymbol".
//
//   auto symbol = std::make_shared<clsFontSymbol>();
//   symbol->getFontName();                // u"Arial"
//   symbol->writeObject();                //
//   u"<FontSymbol><FontName>Arial</FontName>\r\n<FontChar>A</FontChar>\r\n</FontSymbol>\r\n"
//   symbol->readObject(Variant(u""));
//   symbol->getFontName();                // u"": absent tags read as the empty text
//
// Every member is continue-on-failure: no failure reaches the caller.
#pragma once

#include <memory>

#include "quillet/frame/Variant.h"
#include "quillet/frame/types.h"

namespace quillet {

class clsFontSymbol {
public:
    clsFontSymbol() { setDefaults(); }

    // assignObject - copies font name and font character; Nothing changes nothing.
    void assignObject(const std::shared_ptr<clsFontSymbol>& font_symbol_);
    // readObject - reads "FontName" and "FontChar"; an absent or empty
    // element reads as "", not as the defaults "Arial" and "A".
    void readObject(const Variant& buffer);
    [[nodiscard]] Variant writeObject() const;
    void setFontName(const String& font_name_);
    [[nodiscard]] String getFontName() const;
    void setFontChar(const String& font_char_);
    [[nodiscard]] String getFontChar() const;
    [[nodiscard]] String getSaveTag() const;  // "FontSymbol"

    // Implementation details follow.
private:
    void setDefaults();

    String m_fontName;
    String m_fontChar;
};

}  // namespace quillet
