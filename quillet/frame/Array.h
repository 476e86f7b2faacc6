// quillet/frame/Array.h - the one-dimensional arrays of the interface
// (String(), Byte(), Long(), Boolean(), Variant()): any lower and upper bound,
// or unallocated, copied on assignment.
//
//   Array<String> names;                 // unallocated
//   names.isAllocated();                 // false
//   names.lbound();                      // throws Failure(errSubscript)
//   names.redim(-5, -4);                 // two empty texts, subscripts -5 and -4
//   names[-5] = u"a";
//   names.redimPreserve(-5, -3);         // keeps "a" and "", adds one ""
//   names[0];                            // throws Failure(errSubscript)
//   Array<Byte> none(0, -1);             // allocated with no element: ubound < lbound
#pragma once

#include <cstddef>
#include <initializer_list>
#include <vector>

#include "quillet/frame/Failure.h"
#include "quillet/frame/checked.h"
#include "quillet/frame/types.h"

namespace quillet {

template <class T>
class Array {
public:
    using value_type = T;

    // construction
    Array() = default;  // unallocated
    Array(Long lower, Long upper) { redim(lower, upper); }
    // An allocated array with the given elements from subscript `lower`.
    static Array from(Long lower, std::initializer_list<T> items) {
        Array a;
        a.m_allocated = true;
        a.m_lower = lower;
        a.m_items.assign(items.begin(), items.end());
        return a;
    }
    static Array from(Long lower, std::vector<T> items) {
        Array a;
        a.m_allocated = true;
        a.m_lower = lower;
        a.m_items = std::move(items);
        return a;
    }

    // redim - new bounds, every element reset to its zero value. An upper
    // bound below lower - 1 fails with errSubscript and changes nothing.
    void redim(Long lower, Long upper) {
        const std::size_t n = count(lower, upper);
        m_items.assign(n, T{});
        m_lower = lower;
        m_allocated = true;
    }
    // redimPreserve - new bounds, keeping the elements in order from the first:
    // the element that was first is first again, whatever the new lower bound.
    void redimPreserve(Long lower, Long upper) {
        const std::size_t n = count(lower, upper);
        m_items.resize(n);
        m_lower = lower;
        m_allocated = true;
    }
    // erase - back to unallocated.
    void erase() noexcept {
        m_items.clear();
        m_lower = 0;
        m_allocated = false;
    }

    // queries
    [[nodiscard]] bool isAllocated() const noexcept { return m_allocated; }
    // lbound, ubound - the bounds; on an unallocated array errSubscript.
    [[nodiscard]] Long lbound() const {
        if (!m_allocated) throw Failure(errSubscript);
        return m_lower;
    }
    [[nodiscard]] Long ubound() const {
        if (!m_allocated) throw Failure(errSubscript);
        return static_cast<Long>(m_lower + static_cast<long long>(m_items.size()) - 1);
    }
    // size - number of elements; 0 when unallocated. Never fails.
    [[nodiscard]] std::size_t size() const noexcept { return m_items.size(); }

    // element access - outside the bounds, or unallocated, errSubscript.
    [[nodiscard]] T& operator[](Long subscript) { return m_items[offset(subscript)]; }
    [[nodiscard]] const T& operator[](Long subscript) const { return m_items[offset(subscript)]; }

    // The elements in subscript order, for range-for and algorithms.
    [[nodiscard]] const std::vector<T>& elements() const noexcept { return m_items; }
    [[nodiscard]] auto begin() noexcept { return m_items.begin(); }
    [[nodiscard]] auto end() noexcept { return m_items.end(); }
    [[nodiscard]] auto begin() const noexcept { return m_items.begin(); }
    [[nodiscard]] auto end() const noexcept { return m_items.end(); }

    friend bool operator==(const Array&, const Array&) = default;

private:
    static std::size_t count(Long lower, Long upper) {
        const long long n = static_cast<long long>(upper) - lower + 1;
        if (n < 0) throw Failure(errSubscript);
        return static_cast<std::size_t>(n);
    }
    [[nodiscard]] std::size_t offset(Long subscript) const {
        const long long i = static_cast<long long>(subscript) - m_lower;
        if (!m_allocated || i < 0 || i >= static_cast<long long>(m_items.size())) throw Failure(errSubscript);
        return static_cast<std::size_t>(i);
    }

    std::vector<T> m_items;
    Long m_lower = 0;
    bool m_allocated = false;
};

}  // namespace quillet
