#include "quillet/persistence/clsRulerSettings.h"

#include "quillet/frame/Failure.h"
#include "quillet/persistence/clsBufferIO.h"

namespace quillet {

void clsRulerSettings::setDefaults() { m_visibility = True; }

void clsRulerSettings::setVisibility(Boolean visibility_) { m_visibility = visibility_; }
Boolean clsRulerSettings::getVisibility() const { return m_visibility; }

void clsRulerSettings::assignObject(const std::shared_ptr<clsRulerSettings>& ruler_settings_) {
    // No guard against Nothing: the copy fails and nothing changes.
    attempt([&] { setVisibility(deref(ruler_settings_).getVisibility()); });
}

Variant clsRulerSettings::writeObject() const {
    const clsBufferIO io;
    return io.WriteVariantBetween(getSaveTag(), Variant(io.WriteBooleanBetween(u"RulerVisibility", getVisibility())));
}

void clsRulerSettings::readObject(const Variant& buffer) {
    const clsBufferIO io;
    attempt([&] { setVisibility(io.ReadBooleanBetween(buffer, u"RulerVisibility", True)); });
}

String clsRulerSettings::getSaveTag() const { return u"RulerSettings"; }

}  // namespace quillet
