#include "quillet/settings/clsMaskProperties.h"

#include <algorithm>

#include "quillet/frame/Failure.h"
#include "quillet/frame/convert.h"
#include "quillet/persistence/clsBufferIO.h"

namespace quillet {

void clsMaskProperties::setDefaults() {
    m_applyMaskColor = False;
    m_maskColorOption = QLT_MCO_AUTO_DETECT;
    m_maskColor = 0;
    m_maskTolerance = 0;
}

void clsMaskProperties::assignObject(const std::shared_ptr<clsMaskProperties>& mask_properties_) {
    // No guard against Nothing: each copy fails on its own and nothing changes.
    attempt([&] { setApplyMaskColor(deref(mask_properties_).getApplyMaskColor()); });
    attempt([&] { setMaskColorOption(deref(mask_properties_).getMaskColorOption()); });
    attempt([&] { setMaskColor(deref(mask_properties_).getMaskColor()); });
    attempt([&] { setMaskTolerance(deref(mask_properties_).getMaskTolerance()); });
}

void clsMaskProperties::readObject(const Variant& buffer) {
    const clsBufferIO io;
    attempt([&] { setApplyMaskColor(io.ReadBooleanBetween(buffer, u"ApplyMaskColor", False)); });
    attempt([&] {
        setMaskColorOption(static_cast<QltMaskColorOption>(toLong(io.ReadNumberBetween(buffer, u"MaskColorOption"))));
    });
    attempt([&] { setMaskColor(toLong(io.ReadNumberBetween(buffer, u"MaskColor"))); });
    attempt([&] { setMaskTolerance(toLong(io.ReadNumberBetween(buffer, u"MaskTolerance"))); });
}

Variant clsMaskProperties::writeObject() const {
    const clsBufferIO io;
    String fields;
    fields += io.WriteBooleanBetween(u"ApplyMaskColor", getApplyMaskColor());
    fields += io.WriteNumberBetween(u"MaskColorOption", Long{getMaskColorOption()});
    fields += io.WriteNumberBetween(u"MaskColor", getMaskColor());
    fields += io.WriteNumberBetween(u"MaskTolerance", getMaskTolerance());
    Variant result;
    attempt([&] { result = io.WriteVariantBetween(getSaveTag(), Variant(std::move(fields))); });
    return result;
}

String clsMaskProperties::getSaveTag() const { return u"MaskProperties"; }

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
