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
    virtual void toAttrNodeList(AttrNodeList* target) { anlFromBuffer(getBytes(), target); }
    virtual void setFromAttrNodeList(const AttrNodeList& source);

    void setBuffer(const ByteBuffer& buffer);
    ByteBuffer getBuffer() const { return getBytes(); }
    std::size_t size() const { return getBytes().size(); }

    /// Compares the bytes.
    bool operator==(const AnlDealer& other) const { return getBytes() == other.getBytes(); }

protected:
    AnlDealer() = default;
    AnlDealer(const AnlDealer&) = default;
    AnlDealer& operator=(const AnlDealer&) = default;

    /// Called just before the buffer is replaced.
    virtual void noteNewBuffer(const ByteBuffer& buffer);
    /// Called before the bytes are looked at: a dealer that puts off making them makes them here.
    virtual void completeBuffer(ByteBuffer& buffer) const;

    const ByteBuffer& getBytes() const {
        completeBuffer(m_buffer);
        return m_buffer;
    }

private:
    mutable ByteBuffer m_buffer;
};

} // namespace zent
