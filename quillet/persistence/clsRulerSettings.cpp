#include "quillet/persistence/clsRulerSettings.h"

#include "quillet/persistence/internal/Record.h"

namespace quillet {

namespace {

using persistence_internal::field;
using persistence_internal::Record;
using R = clsRulerSettings;

const auto& record() {
    static const Record r(u"RulerSettings",
                          field(u"RulerVisibility", &R::getVisibility, &R::setVisibility, True, True));
    return r;
}

}  // namespace

void clsRulerSettings::setDefaults() { record().setDefaults(*this); }

void clsRulerSettings::setVisibility(Boolean visibility_) { m_visibility = visibility_; }
Boolean clsRulerSettings::getVisibility() const { return m_visibility; }

// No guard against Nothing: the copy fails and nothing changes.
void clsRulerSettings::assignObject(const std::shared_ptr<clsRulerSettings>& ruler_settings_) {
    record().assign(*this, ruler_settings_);
}

Variant clsRulerSettings::writeObject() const { return record().write(*this); }

void clsRulerSettings::readObject(const Variant& buffer) { record().read(*this, buffer); }

String clsRulerSettings::getSaveTag() const { return record().saveTag(); }

}  // namespace quillet
