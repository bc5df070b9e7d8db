#pragma once

#include <memory>

#include "ocore/AnlXlate/AnlTranslator.h"

namespace zent {

/// A translator that keeps one list in its outside form, so that a long-lived object can be held as
/// bytes and rebuilt on demand.
class AnlDealer : public AnlTranslator {
public:
    virtual std::unique_ptr<AnlDealer> clone() const = 0;
    /// Whether the other is of this class and holds the same bytes.
    virtual bool isEqual(const AnlDealer& other) const = 0;

    std::unique_ptr<AttrNodeList> toNewAttrNodeList();
    void toAttrNodeList(AttrNodeList* target) { anlFromBuffer(m_buffer, target); }
    void setFromAttrNodeList(const AttrNodeList& source);

    void setBuffer(const ByteBuffer& buffer);
    ByteBuffer getBuffer() const { return m_buffer; }
    std::size_t size() const { return m_buffer.size(); }

    /// Compares the bytes.
    bool operator==(const AnlDealer& other) const { return m_buffer == other.m_buffer; }

protected:
    AnlDealer() = default;
    AnlDealer(const AnlDealer&) = default;
    AnlDealer& operator=(const AnlDealer&) = default;

    /// Called just before the buffer is replaced.
    virtual void noteNewBuffer(const ByteBuffer& buffer);

private:
    ByteBuffer m_buffer;
};

} // namespace zent
