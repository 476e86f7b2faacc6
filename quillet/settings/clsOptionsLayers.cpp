#include "quillet/settings/clsOptionsLayers.h"

#include "quillet/frame/Failure.h"
#include "quillet/frame/convert.h"
#include "quillet/persistence/clsBufferIO.h"
#include "quillet/text/clsNumericHandling.h"

namespace quillet {

void clsOptionsLayers::setDefaults() {
    m_position = std::make_shared<clsPoint>();
    m_position->setX(690);
    m_position->setY(1005);
    m_width = 0;
    m_height = 0;
}

void clsOptionsLayers::assignObject(std::shared_ptr<clsOptionsLayers>& layers_options_) {
    // Given Nothing, the caller's variable receives a fresh object, whose
    // defaults are then copied.
    if (!layers_options_) {
        attempt([&] { layers_options_ = std::make_shared<clsOptionsLayers>(); });
    }
    attempt([&] {
        std::shared_ptr<clsPoint> position = deref(layers_options_).getPosition();
        deref(m_position).assignObject(position);
    });
    attempt([&] { setWidth(deref(layers_options_).getWidth()); });
    attempt([&] { setHeight(deref(layers_options_).getHeight()); });
}

void clsOptionsLayers::readObject(const Variant& buffer_) {
    if (clsNumericHandling{}.isVariantValueEmpty(buffer_)) return;
    const clsBufferIO io;
    // The point reads only its own section, so tags of the same name
    // elsewhere in the buffer cannot reach it; an absent section is Empty
    // and sets the point to 0, 0.
    attempt([&] { deref(m_position).readObject(io.ReadVariantBetween(buffer_, deref(m_position).getSaveTag())); });
    attempt([&] { setWidth(toLong(io.ReadNumberBetween(buffer_, u"Width"))); });
    attempt([&] { setHeight(toLong(io.ReadNumberBetween(buffer_, u"Height"))); });
}

Variant clsOptionsLayers::writeObject() const {
    const clsBufferIO io;
    String fields;
    attempt([&] { fields += toText(deref(m_position).writeObject()); });
    fields += io.WriteNumberBetween(u"Width", getWidth());
    fields += io.WriteNumberBetween(u"Height", getHeight());
    Variant result;
    attempt([&] { result = io.WriteVariantBetween(getSaveTag(), Variant(std::move(fields))); });
    return result;
}

void clsOptionsLayers::setPosition(std::shared_ptr<clsPoint>& position_) {
    if (!position_) {
        attempt([&] { position_ = std::make_shared<clsPoint>(); });
    }
    attempt([&] { deref(m_position).assignObject(position_); });
}

std::shared_ptr<clsPoint> clsOptionsLayers::getPosition() const { return m_position; }

void clsOptionsLayers::setY(Long y_) {
    attempt([&] { deref(m_position).setY(y_); });
}
Long clsOptionsLayers::getY() const {
    Long result = 0;
    attempt([&] { result = deref(m_position).getY(); });
    return result;
}
void clsOptionsLayers::setX(Long x_) {
    attempt([&] { deref(m_position).setX(x_); });
}
Long clsOptionsLayers::getX() const {
    Long result = 0;
    attempt([&] { result = deref(m_position).getX(); });
    return result;
}
void clsOptionsLayers::setHeight(Long height_) { m_height = height_; }
Long clsOptionsLayers::getHeight() const { return m_height; }
void clsOptionsLayers::setWidth(Long width_) { m_width = width_; }
Long clsOptionsLayers::getWidth() const { return m_width; }

String clsOptionsLayers::getSaveTag() const { return u"LayersOptions"; }

}  // namespace quillet
