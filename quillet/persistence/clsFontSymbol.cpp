#include "quillet/persistence/clsFontSymbol.h"

#include "quillet/persistence/internal/Record.h"

namespace quillet {

namespace {

using persistence_internal::field;
using persistence_internal::Record;
using F = clsFontSymbol;

// The fields in saved order: tag, getter, setter, fresh value, reader's
// default. Absent tags read as empty texts, not as "Arial" and "A".
const auto& record() {
    static const Record r(u"FontSymbol", field(u"FontName", &F::getFontName, &F::setFontName, u"Arial", u""),
                          field(u"FontChar", &F::getFontChar, &F::setFontChar, u"A", u""));
    return r;
}

}  // namespace

void clsFontSymbol::setDefaults() { record().setDefaults(*this); }

// No guard against Nothing: each copy fails on its own and nothing changes.
void clsFontSymbol::assignObject(const std::shared_ptr<clsFontSymbol>& font_symbol_) {
    record().assign(*this, font_symbol_);
}

void clsFontSymbol::readObject(const Variant& buffer) { record().read(*this, buffer); }

Variant clsFontSymbol::writeObject() const { return record().write(*this); }

void clsFontSymbol::setFontName(const String& font_name_) { m_fontName = font_name_; }
String clsFontSymbol::getFontName() const { return m_fontName; }
void clsFontSymbol::setFontChar(const String& font_char_) { m_fontChar = font_char_; }
String clsFontSymbol::getFontChar() const { return m_fontChar; }

String clsFontSymbol::getSaveTag() const { return record().saveTag(); }

}  // namespace quillet
