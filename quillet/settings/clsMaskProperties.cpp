#include "quillet/settings/clsMaskProperties.h"

#include <algorithm>

#include "quillet/persistence/internal/Record.h"

namespace quillet {

namespace {

using persistence_internal::field;
using persistence_internal::Record;
using M = clsMaskProperties;

// The fields in saved order: tag, getter, setter, fresh value, reader's
// default. The tolerance is clamped by its setter on every road in.
const auto& record() {
    static const Record r(
        u"MaskProperties", field(u"ApplyMaskColor", &M::getApplyMaskColor, &M::setApplyMaskColor, False, False),
        field(u"MaskColorOption", &M::getMaskColorOption, &M::setMaskColorOption, QLT_MCO_AUTO_DETECT, 0),
        field(u"MaskColor", &M::getMaskColor, &M::setMaskColor, 0, 0),
        field(u"MaskTolerance", &M::getMaskTolerance, &M::setMaskTolerance, 0, 0));
    return r;
}

}  // namespace

void clsMaskProperties::setDefaults() { record().setDefaults(*this); }

// No guard against Nothing: each copy fails on its own and nothing changes.
void clsMaskProperties::assignObject(const std::shared_ptr<clsMaskProperties>& mask_properties_) {
    record().assign(*this, mask_properties_);
}

void clsMaskProperties::readObject(const Variant& buffer) { record().read(*this, buffer); }

Variant clsMaskProperties::writeObject() const { return record().write(*this); }

String clsMaskProperties::getSaveTag() const { return record().saveTag(); }

void clsMaskProperties::setApplyMaskColor(Boolean apply_mask_color_) { m_applyMaskColor = apply_mask_color_; }
Boolean clsMaskProperties::getApplyMaskColor() const { return m_applyMaskColor; }
void clsMaskProperties::setMaskColorOption(QltMaskColorOption mask_color_option_) {
    m_maskColorOption = mask_color_option_;
}
QltMaskColorOption clsMaskProperties::getMaskColorOption() const { return m_maskColorOption; }
void clsMaskProperties::setMaskColor(Long mask_color_) { m_maskColor = mask_color_; }
Long clsMaskProperties::getMaskColor() const { return m_maskColor; }
void clsMaskProperties::setMaskTolerance(Long mask_tolerance_) {
    m_maskTolerance = std::min(std::max(Long{0}, mask_tolerance_), Long{100});
}
Long clsMaskProperties::getMaskTolerance() const { return m_maskTolerance; }

}  // namespace quillet
