#include "quillet/frame/Failure.h"

namespace quillet {

const char* Failure::what() const noexcept {
    if (!m_detail.empty()) return m_detail.c_str();
    switch (m_number) {
        case errInvalidCall: return "Invalid procedure call or argument";
        case errOverflow: return "Overflow";
        case errSubscript: return "Subscript out of range";
        case errDivisionByZero: return "Division by zero";
        case errTypeMismatch: return "Type mismatch";
        case errObjectNotSet: return "Object variable or With block variable not set";
        case errInvalidNull: return "Invalid use of Null";
        case errDuplicateKey: return "This key is already associated with an element of this collection";
        default: return "Application-defined or object-defined error";
    }
}

}  // namespace quillet
