// quillet/persistence/clsRulerSettings.h - whether the design rulers show. A
// creatable, persistable class with the save tag "RulerSettings".
//
//   auto rulers = std::make_shared<clsRulerSettings>();
//   rulers->setVisibility(False);
//   rulers->writeObject();                //
//   u"<RulerSettings><RulerVisibility>False</RulerVisibility>\r\n</RulerSettings>\r\n"
//   rulers->readObject(Variant(u""));
//   rulers->getVisibility();              // True: an absent tag reads as True
//
// Every member is continue-on-failure: no failure reaches the caller.
#pragma once

#include <memory>

#include "quillet/frame/Variant.h"
#include "quillet/frame/types.h"

namespace quillet {

class clsRulerSettings {
public:
    clsRulerSettings() { setDefaults(); }

    void setVisibility(Boolean visibility_);
    [[nodiscard]] Boolean getVisibility() const;
    // assignObject - copies the visibility; Nothing changes nothing.
    void assignObject(const std::shared_ptr<clsRulerSettings>& ruler_settings_);
    [[nodiscard]] Variant writeObject() const;
    // readObject - reads "RulerVisibility"; absent or unreadable gives True.
    void readObject(const Variant& buffer);
    [[nodiscard]] String getSaveTag() const;  // "RulerSettings"

    // Implementation details follow.
private:
    void setDefaults();

    Boolean m_visibility = True;
};

}  // namespace quillet
