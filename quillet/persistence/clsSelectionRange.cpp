#include "quillet/persistence/clsSelectionRange.h"

#include "quillet/frame/Failure.h"
#include "quillet/frame/checked.h"
#include "quillet/frame/convert.h"
#include "quillet/persistence/clsBufferIO.h"

namespace quillet {

void clsSelectionRange::setDefaults() {
    m_start = 1;
    m_end = 1;
}

void clsSelectionRange::setStart(Long start_) { m_start = start_; }
void clsSelectionRange::setEnd(Long end_) { m_end = end_; }

void clsSelectionRange::assignObject(const std::shared_ptr<clsSelectionRange>& range_) {
    // No guard against Nothing: each copy fails on its own and nothing changes.
    attempt([&] { setStart(deref(range_).getStart()); });
    attempt([&] { setEnd(deref(range_).getEnd()); });
}

void clsSelectionRange::readObject(const Variant& buffer) {
    const clsBufferIO io;
    attempt([&] { setStart(toLong(io.ReadNumberBetween(buffer, u"Start"))); });
    attempt([&] { setEnd(toLong(io.ReadNumberBetween(buffer, u"End"))); });
}

Variant clsSelectionRange::writeObject() const {
    const clsBufferIO io;
    String fields;
    fields += io.WriteNumberBetween(u"Start", getStart());
    fields += io.WriteNumberBetween(u"End", getEnd());
    return io.WriteVariantBetween(getSaveTag(), Variant(std::move(fields)));
}

void clsSelectionRange::selectRange(Long range_start_, Long range_end_) {
    if (range_start_ <= range_end_ && range_start_ >= 0) {
        setStart(range_start_);
        setEnd(range_end_);
    }
}

Long clsSelectionRange::getStart() const { return m_start; }
Long clsSelectionRange::getEnd() const { return m_end; }

Long clsSelectionRange::getLength() const {
    Long result = 0;
    if (m_start <= m_end && m_start >= 0)
        attempt([&] { result = checked::add(checked::sub(m_end, m_start), Long{1}); });
    return result;
}

String clsSelectionRange::getSaveTag() const { return u"SelectionRange"; }

}  // namespace quillet
