// quillet/labeldata/clsUccAISpec.h - one entry of a host's table of
// application identifiers for UCC/EAN-128 barcodes: the identifier code, what
// its data looks like and how long it may be. A creatable value object; it
// answers questions about itself and does not save itself.
//
//   auto ai = std::make_shared<clsUccAISpec>();
//   ai->getAI();                      // u"00", the serial shipping container code
//   ai->isVariableLen();              // False: 18 to 18
//   ai->setAI(u"310y");
//   ai->containsDecimalInfo();        // True: a trailing y marks a decimal position
//   ai->setAI(u"37X");
//   ai->containsLotNumber();          // True: a trailing x, in any case, marks a lot digit
//   ai->setMinLen(1);
//   ai->isVariableLen();              // True, while getHasPredefinedLength() stays True
//
// Setters store what they are given: a minimum above the maximum or a
// negative length is kept as it is.
#pragma once

#include <memory>

#include "quillet/frame/types.h"

namespace quillet {

class clsUccAISpec {
public:
    clsUccAISpec();

    // fields
    [[nodiscard]] String getAI() const;
    void setAI(const String& ai_);
    [[nodiscard]] Boolean getIsDataNumeric() const;
    void setIsDataNumeric(Boolean is_data_numeric_);
    [[nodiscard]] Long getMinLen() const;
    void setMinLen(Long min_len_);
    [[nodiscard]] Long getMaxLen() const;
    void setMaxLen(Long max_len_);
    [[nodiscard]] String getDescription() const;
    void setDescription(const String& description_);
    [[nodiscard]] Boolean getUsesDataCheckDigit() const;
    void setUsesDataCheckDigit(Boolean uses_data_check_digit_);
    [[nodiscard]] Boolean getHasPredefinedLength() const;
    void setHasPredefinedLength(Boolean has_predefined_length_);

    // assignObject - copies the seven fields of application_. Given Nothing
    // it changes nothing (there is no reset to the defaults).
    void assignObject(std::shared_ptr<clsUccAISpec>& application_);

    // queries
    // isVariableLen - True when the minimum and maximum length differ; the
    // predefined-length flag is not consulted.
    [[nodiscard]] Boolean isVariableLen() const;
    // containsLotNumber - True when the code's last character is x or X.
    [[nodiscard]] Boolean containsLotNumber() const;
    // containsDecimalInfo - True when the code's last character is y or Y.
    [[nodiscard]] Boolean containsDecimalInfo() const;
    [[nodiscard]] Boolean containsLotOrDecimalChar() const;

private:
    void setDefaults();
    [[nodiscard]] bool endsInPlaceholder(char16_t placeholder) const;

    String m_ai;
    Boolean m_isDataNumeric;
    Long m_minLen = 0;
    Long m_maxLen = 0;
    String m_description;
    Boolean m_usesDataCheckDigit;
    Boolean m_hasPredefinedLength;
};

}  // namespace quillet
