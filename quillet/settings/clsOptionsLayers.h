// quillet/settings/clsOptionsLayers.h - where the layers display stands and
// how large it is. A creatable, persistable class that owns a clsPoint for
// its position and saves it nested inside its own element.
//
//   auto layers = std::make_shared<clsOptionsLayers>();
//   layers->writeObject();    // u"<LayersOptions><Point><X>690</X>\r\n<Y>1005</Y>\r\n</Point>\r\n"
//                             //   "<Width>0</Width>\r\n<Height>0</Height>\r\n</LayersOptions>\r\n"
//   layers->getPosition()->setX(10);
//   layers->getX();                         // 10: getPosition hands out the held point
//   layers->readObject(Variant(u"<Width>300</Width>"));
//   layers->getX();                         // 0: an absent point reads as 0, 0
//   layers->getWidth();                     // 300
//
// Every member is continue-on-failure: no failure reaches the caller.
#pragma once

#include <memory>

#include "quillet/frame/Variant.h"
#include "quillet/frame/types.h"
#include "quillet/persistence/clsPoint.h"

namespace quillet {

class clsOptionsLayers {
public:
    clsOptionsLayers() { setDefaults(); }

    // assignObject - copies the position's values, then width and height.
    // Given Nothing, a new object is put into the caller's variable first, so
    // this one takes the defaults (690, 1005, 0, 0).
    void assignObject(std::shared_ptr<clsOptionsLayers>& layers_options_);
    // readObject - an empty buffer (Empty, Null, "") is not read at all. Of
    // any other buffer the "Point" element is handed to the position (absent,
    // it gives 0, 0), and absent width and height read as 0.
    void readObject(const Variant& buffer_);
    [[nodiscard]] Variant writeObject() const;
    // setPosition - copies the point's values into the held point; no
    // reference to position_ is kept. Given Nothing, a new point is put into
    // the caller's variable and the held point becomes 0, 0.
    void setPosition(std::shared_ptr<clsPoint>& position_);
    // getPosition - the held point itself: changing it changes this object.
    [[nodiscard]] std::shared_ptr<clsPoint> getPosition() const;
    void setY(Long y_);
    [[nodiscard]] Long getY() const;
    void setX(Long x_);
    [[nodiscard]] Long getX() const;
    void setHeight(Long height_);
    [[nodiscard]] Long getHeight() const;
    void setWidth(Long width_);
    [[nodiscard]] Long getWidth() const;
    [[nodiscard]] String getSaveTag() const;  // "LayersOptions"

    // Implementation details follow.
private:
    void setDefaults();

    std::shared_ptr<clsPoint> m_position;  // never Nothing
    Long m_width = 0;
    Long m_height = 0;
};

}  // namespace quillet
