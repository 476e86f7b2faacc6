// quillet/frame/Failure.h - the one exception of the library, and the helpers
// that turn it into the two documented behaviours of a member.
//
// Nothing in the library throws on purpose: a Failure comes from the frame's
// checked operations (overflow, subscript, conversion, missing key, a call on
// Nothing) or from a platform or host call. Members then either skip the
// failing statement or end with their stated failure result:
//
//   Long total = 0;
//   attempt([&] { total = checked::add(total, 2147483647); });  // fine
//   attempt([&] { total = checked::add(total, 1); });           // overflow: skipped
//   // total == 2147483647
//
//   Long parsed = stopOnFailure(Long{-1}, [&] { return toLong(u"abc"); });  // -1
//
//   if (attemptTest([&] { return riskyCondition(); })) { /* runs on failure too */ }
#pragma once

#include <exception>
#include <string>
#include <type_traits>
#include <utility>

#include "quillet/frame/types.h"

namespace quillet {

// The classic error numbers that a Failure carries.
inline constexpr Long errInvalidCall = 5;  // invalid procedure call or argument
inline constexpr Long errOverflow = 6;
inline constexpr Long errSubscript = 9;  // subscript out of range
inline constexpr Long errDivisionByZero = 11;
inline constexpr Long errTypeMismatch = 13;
inline constexpr Long errObjectNotSet = 91;   // a call on Nothing
inline constexpr Long errInvalidNull = 94;    // Null where a value is needed
inline constexpr Long errDuplicateKey = 457;  // collection key already in use
inline constexpr Long errPlatform = 5;        // a refusing platform or host call

// Failure - thrown by the frame's checked operations. number() is the classic
// error number; what() its usual English description.
class Failure : public std::exception {
public:
    explicit Failure(Long number) noexcept : m_number(number) {}
    Failure(Long number, std::string detail) : m_number(number), m_detail(std::move(detail)) {}

    [[nodiscard]] Long number() const noexcept { return m_number; }
    [[nodiscard]] const char* what() const noexcept override;

private:
    Long m_number;
    std::string m_detail;
};

// attempt - continue-on-failure for one statement: runs `statement`; a failure
// (any exception, since a host or platform object may throw its own) is
// swallowed, so the statement has no effect beyond what ran before it failed.
// Write the statement so that its target is assigned last:
//   attempt([&] { x = compute(); });   // x keeps its value if compute() fails
template <class Statement>
inline void attempt(Statement&& statement) noexcept {
    try {
        std::forward<Statement>(statement)();
    } catch (...) {}
}

// attemptTest - the test of a conditional under continue-on-failure. A test
// that fails lets the next statement in text order run, and that is the first
// statement of the first branch: so a failing test answers true.
template <class Condition>
[[nodiscard]] inline bool attemptTest(Condition&& condition) noexcept {
    try {
        return static_cast<bool>(std::forward<Condition>(condition)());
    } catch (...) {
        return true;
    }
}

// stopOnFailure - a member body that ends at its first failure with
// `failureResult`. The body returns the member's normal result.
template <class Result, class Body>
[[nodiscard]] inline Result stopOnFailure(Result failureResult,
                                          Body&& body) noexcept(std::is_nothrow_move_constructible_v<Result>) {
    try {
        return std::forward<Body>(body)();
    } catch (...) {
        return failureResult;
    }
}

// stopOnFailure for a member with no result: the body simply ends.
template <class Body>
inline void stopOnFailure(Body&& body) noexcept {
    try {
        std::forward<Body>(body)();
    } catch (...) {}
}

// deref - a call on an object reference; Nothing fails with errObjectNotSet.
template <class Pointer>
[[nodiscard]] inline auto& deref(const Pointer& object) {
    if (!object) throw Failure(errObjectNotSet);
    return *object;
}

}  // namespace quillet
