// quillet/settings/clsDesignContext.h - which side of a card is being
// designed, and whether its background is drawn. A creatable class; it does
// not save itself.
//
//   auto context = std::make_shared<clsDesignContext>();
//   context->getDesignSide();               // QLT_DESIGN_FRONT_SIDE (0)
//   context->getDrawBackground();           // True
//   context->setDesignSide(QLT_DESIGN_BACK_SIDE);
//
// Every member is continue-on-failure: no failure reaches the caller.
#pragma once

#include <memory>

#include "quillet/frame/enums.h"
#include "quillet/frame/types.h"

namespace quillet {

class clsDesignContext {
public:
    clsDesignContext() { setDefaults(); }

    // assignObject - copies design side and draw background. Nothing changes
    // nothing.
    void assignObject(const std::shared_ptr<clsDesignContext>& design_context_);

    [[nodiscard]] QltDesignSide getDesignSide() const;
    void setDesignSide(QltDesignSide design_side_);
    [[nodiscard]] Boolean getDrawBackground() const;
    void setDrawBackground(Boolean draw_background_);

    // Implementation details follow.
private:
    void setDefaults();

    QltDesignSide m_designSide = QLT_DESIGN_FRONT_SIDE;
    Boolean m_drawBackground;
};

}  // namespace quillet
