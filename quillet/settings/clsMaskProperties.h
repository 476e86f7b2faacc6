// quillet/settings/clsMaskProperties.h - whether a mask colour applies to a
// picture, how the colour is chosen, and how far a pixel may stray from it.
// A creatable, persistable class.
//
//   auto mask = std::make_shared<clsMaskProperties>();
//   mask->setMaskTolerance(150);
//   mask->getMaskTolerance();               // 100: the tolerance is kept within 0 to 100
//   mask->writeObject();                    // u"<MaskProperties><ApplyMaskColor>False</ApplyMaskColor>\r\n"
//                                           //   "<MaskColorOption>0</MaskColorOption>\r\n<MaskColor>0</MaskColor>\r\n"
//                                           //   "<MaskTolerance>100</MaskTolerance>\r\n</MaskProperties>\r\n"
//   mask->readObject(Variant(u"<MaskTolerance>-5</MaskTolerance>"));
//   mask->getMaskTolerance();               // 0: reading goes through the same setter
//
// Unlike the other setting records, an empty buffer is read like any other:
// every field takes its reader's default. Every member is continue-on-failure.
#pragma once

#include <memory>

#include "quillet/frame/Variant.h"
#include "quillet/frame/enums.h"
#include "quillet/frame/types.h"

namespace quillet {

class clsMaskProperties {
public:
    clsMaskProperties() { setDefaults(); }

    // assignObject - copies the four fields. Nothing changes nothing.
    void assignObject(const std::shared_ptr<clsMaskProperties>& mask_properties_);
    // readObject - sets every field, absent tags (an empty buffer too) giving
    // False and 0; the tolerance is clamped; a number that does not fit a
    // Long leaves its field as it was.
    void readObject(const Variant& buffer);
    [[nodiscard]] Variant writeObject() const;
    [[nodiscard]] String getSaveTag() const;  // "MaskProperties"

    void setApplyMaskColor(Boolean apply_mask_color_);
    [[nodiscard]] Boolean getApplyMaskColor() const;
    void setMaskColorOption(QltMaskColorOption mask_color_option_);
    [[nodiscard]] QltMaskColorOption getMaskColorOption() const;
    // setMaskColor - a long colour; any value is stored.
    void setMaskColor(Long mask_color_);
    [[nodiscard]] Long getMaskColor() const;
    // setMaskTolerance - stores the value clamped to 0 to 100.
    void setMaskTolerance(Long mask_tolerance_);
    [[nodiscard]] Long getMaskTolerance() const;

    // Implementation details follow.
private:
    void setDefaults();

    Boolean m_applyMaskColor;
    QltMaskColorOption m_maskColorOption = QLT_MCO_AUTO_DETECT;
    Long m_maskColor = 0;
    Long m_maskTolerance = 0;
};

}  // namespace quillet
