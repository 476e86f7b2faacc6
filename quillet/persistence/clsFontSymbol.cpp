#include "quillet/persistence/clsFontSymbol.h"

#include "quillet/frame/Failure.h"
#include "quillet/persistence/clsBufferIO.h"

namespace quillet {

void clsFontSymbol::setDefaults() {
    // Assigned as Strings: g++ 12 at -O3 misreads assign(const char16_t*) as an overlapping copy (-Wrestrict).
    m_fontName = String(u"Arial");
    m_fontChar = String(u"A");
}

void clsFontSymbol::assignObject(const std::shared_ptr<clsFontSymbol>& font_symbol_) {
    // No guard against Nothing: each copy fails on its own and nothing changes.
    attempt([&] { setFontName(deref(font_symbol_).getFontName()); });
    attempt([&] { setFontChar(deref(font_symbol_).getFontChar()); });
}

void clsFontSymbol::readObject(const Variant& buffer) {
    const clsBufferIO io;
    attempt([&] { setFontName(io.ReadStringBetween(buffer, u"FontName", String())); });
    attempt([&] { setFontChar(io.ReadStringBetween(buffer, u"FontChar", String())); });
}

Variant clsFontSymbol::writeObject() const {
    const clsBufferIO io;
    String fields;
    fields += io.WriteStringBetween(u"FontName", getFontName());
    fields += io.WriteStringBetween(u"FontChar", getFontChar());
    return io.WriteVariantBetween(getSaveTag(), Variant(std::move(fields)));
}

void clsFontSymbol::setFontName(const String& font_name_) { m_fontName = font_name_; }
String clsFontSymbol::getFontName() const { return m_fontName; }
void clsFontSymbol::setFontChar(const String& font_char_) { m_fontChar = font_char_; }
String clsFontSymbol::getFontChar() const { return m_fontChar; }

String clsFontSymbol::getSaveTag() const { return u"FontSymbol"; }

}  // namespace quillet
