#include "quillet/settings/clsDrawAttributes.h"

#include "quillet/frame/Failure.h"

namespace quillet {

void clsDrawAttributes::setDefaults() {
    m_opacity = 255;
    m_printPanel = QLT_PRINT_ALL_PANELS;
    m_forceToPanel = False;
    m_ignoreVisibility = False;
}

void clsDrawAttributes::assignObject(const std::shared_ptr<clsDrawAttributes>& draw_attributes_) {
    // No guard against Nothing: each copy fails on its own and nothing changes.
    attempt([&] { setOpacity(deref(draw_attributes_).getOpacity()); });
    attempt([&] { setPrintPanel(deref(draw_attributes_).getPrintPanel()); });
    attempt([&] { setForceToPanel(deref(draw_attributes_).getForceToPanel()); });
    attempt([&] { setIgnoreVisibility(deref(draw_attributes_).getIgnoreVisibility()); });
}

Long clsDrawAttributes::getOpacity() const { return m_opacity; }
void clsDrawAttributes::setOpacity(Long opacity_) { m_opacity = opacity_; }
qltPrintPanel clsDrawAttributes::getPrintPanel() const { return m_printPanel; }
void clsDrawAttributes::setPrintPanel(qltPrintPanel print_panel_) { m_printPanel = print_panel_; }
Boolean clsDrawAttributes::getForceToPanel() const { return m_forceToPanel; }
void clsDrawAttributes::setForceToPanel(Boolean force_to_panel_) { m_forceToPanel = force_to_panel_; }
Boolean clsDrawAttributes::getIgnoreVisibility() const { return m_ignoreVisibility; }
void clsDrawAttributes::setIgnoreVisibility(Boolean ignore_visibility_) { m_ignoreVisibility = ignore_visibility_; }

}  // namespace quillet
