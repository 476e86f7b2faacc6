// quillet/settings/clsDrawAttributes.h - how the objects of a design are to
// be drawn: opacity, the printer panel they go to, and whether visibility is
// ignored. A creatable class; it does not save itself.
//
//   auto attributes = std::make_shared<clsDrawAttributes>();
//   attributes->getOpacity();               // 255
//   attributes->setOpacity(300);
//   attributes->getOpacity();               // 300: stored as given
//   attributes->setPrintPanel(QLT_PRINT_K_PANEL);
//   attributes->getPrintPanel();            // QLT_PRINT_K_PANEL (2)
//
// Every member is continue-on-failure: no failure reaches the caller.
#pragma once

#include <memory>

#include "quillet/frame/enums.h"
#include "quillet/frame/types.h"

namespace quillet {

class clsDrawAttributes {
public:
    clsDrawAttributes() { setDefaults(); }

    // assignObject - copies opacity, print panel, force to panel and ignore
    // visibility. Nothing changes nothing.
    void assignObject(const std::shared_ptr<clsDrawAttributes>& draw_attributes_);

    [[nodiscard]] Long getOpacity() const;
    void setOpacity(Long opacity_);
    [[nodiscard]] qltPrintPanel getPrintPanel() const;
    void setPrintPanel(qltPrintPanel print_panel_);
    [[nodiscard]] Boolean getForceToPanel() const;
    void setForceToPanel(Boolean force_to_panel_);
    [[nodiscard]] Boolean getIgnoreVisibility() const;
    void setIgnoreVisibility(Boolean ignore_visibility_);

    // Implementation details follow.
private:
    void setDefaults();

    Long m_opacity = 0;
    qltPrintPanel m_printPanel = QLT_PRINT_ALL_PANELS;
    Boolean m_forceToPanel;
    Boolean m_ignoreVisibility;
};

}  // namespace quillet
