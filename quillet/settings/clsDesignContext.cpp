#include "quillet/settings/clsDesignContext.h"

#include "quillet/frame/Failure.h"

namespace quillet {

void clsDesignContext::setDefaults() {
    m_designSide = QLT_DESIGN_FRONT_SIDE;
    m_drawBackground = True;
}

void clsDesignContext::assignObject(const std::shared_ptr<clsDesignContext>& design_context_) {
    // No guard against Nothing: each copy fails on its own and nothing changes.
    attempt([&] { setDesignSide(deref(design_context_).getDesignSide()); });
    attempt([&] { setDrawBackground(deref(design_context_).getDrawBackground()); });
}

QltDesignSide clsDesignContext::getDesignSide() const { return m_designSide; }
void clsDesignContext::setDesignSide(QltDesignSide design_side_) { m_designSide = design_side_; }
Boolean clsDesignContext::getDrawBackground() const { return m_drawBackground; }
void clsDesignContext::setDrawBackground(Boolean draw_background_) { m_drawBackground = draw_background_; }

}  // namespace quillet
