#include "quillet/labeldata/clsUccAISpec.h"

#include "quillet/frame/Failure.h"
#include "quillet/frame/TextCompare.h"
#include "quillet/labeldata/internal/modConstants.h"

namespace quillet {

namespace modConstants = labeldata_internal::modConstants;

clsUccAISpec::clsUccAISpec() { setDefaults(); }

void clsUccAISpec::setDefaults() {
    setAI(modConstants::DEFAULT_UCC128_APPLICATION_CODE);
    setIsDataNumeric(modConstants::DEFAULT_UCC128_DATA_FORMAT_IS_DATA_NUMERIC);
    setMinLen(modConstants::DEFAULT_UCC128_DATA_FORMAT_MIN_LENGTH);
    setMaxLen(modConstants::DEFAULT_UCC128_DATA_FORMAT_MAX_LENGTH);
    setDescription(modConstants::DEFAULT_UCC128_APPLICATION_DESCRIPTION);
    setUsesDataCheckDigit(modConstants::DEFAULT_UCC128_USES_DATA_CHECK_DIGIT);
    setHasPredefinedLength(modConstants::DEFAULT_UCC128_HAS_PREDEFINED_LENGTH);
}

String clsUccAISpec::getAI() const { return m_ai; }
void clsUccAISpec::setAI(const String& ai_) { m_ai = ai_; }
Boolean clsUccAISpec::getIsDataNumeric() const { return m_isDataNumeric; }
void clsUccAISpec::setIsDataNumeric(Boolean is_data_numeric_) { m_isDataNumeric = is_data_numeric_; }
Long clsUccAISpec::getMinLen() const { return m_minLen; }
void clsUccAISpec::setMinLen(Long min_len_) { m_minLen = min_len_; }
Long clsUccAISpec::getMaxLen() const { return m_maxLen; }
void clsUccAISpec::setMaxLen(Long max_len_) { m_maxLen = max_len_; }
String clsUccAISpec::getDescription() const { return m_description; }
void clsUccAISpec::setDescription(const String& description_) { m_description = description_; }
Boolean clsUccAISpec::getUsesDataCheckDigit() const { return m_usesDataCheckDigit; }
void clsUccAISpec::setUsesDataCheckDigit(Boolean uses_data_check_digit_) {
    m_usesDataCheckDigit = uses_data_check_digit_;
}
Boolean clsUccAISpec::getHasPredefinedLength() const { return m_hasPredefinedLength; }
void clsUccAISpec::setHasPredefinedLength(Boolean has_predefined_length_) {
    m_hasPredefinedLength = has_predefined_length_;
}

void clsUccAISpec::assignObject(std::shared_ptr<clsUccAISpec>& application_) {
    // No guard for Nothing: each copy fails on its own and is skipped.
    attempt([&] { setAI(deref(application_).getAI()); });
    attempt([&] { setIsDataNumeric(deref(application_).getIsDataNumeric()); });
    attempt([&] { setMinLen(deref(application_).getMinLen()); });
    attempt([&] { setMaxLen(deref(application_).getMaxLen()); });
    attempt([&] { setDescription(deref(application_).getDescription()); });
    attempt([&] { setUsesDataCheckDigit(deref(application_).getUsesDataCheckDigit()); });
    attempt([&] { setHasPredefinedLength(deref(application_).getHasPredefinedLength()); });
}

Boolean clsUccAISpec::isVariableLen() const { return m_minLen != m_maxLen; }

bool clsUccAISpec::endsInPlaceholder(char16_t placeholder) const {
    if (m_ai.empty()) return false;
    // Only the last character counts; folding it makes X and Y count too.
    const String last = foldCase(StringView(m_ai).substr(m_ai.size() - 1));
    return last.size() == 1 && last.front() == placeholder;
}

Boolean clsUccAISpec::containsLotNumber() const {
    bool result = false;
    attempt([&] { result = endsInPlaceholder(u'x'); });
    return result;
}

Boolean clsUccAISpec::containsDecimalInfo() const {
    bool result = false;
    attempt([&] { result = endsInPlaceholder(u'y'); });
    return result;
}

Boolean clsUccAISpec::containsLotOrDecimalChar() const { return containsLotNumber() || containsDecimalInfo(); }

}  // namespace quillet
