#pragma once

#include <cstddef>

#include "ocore/AnlXlate/Stream.h"
#include "ocore/Resources/ByteBuffer.h"

namespace zent {

/// Takes the bytes of a document that is being written, piece by piece.
class XmlOutputCallback {
public:
    virtual ~XmlOutputCallback() = default;
    /// True if the bytes were taken; anything else ends the writing.
    virtual bool handleOutput(const char* bytes, std::size_t length) = 0;

    /// Whether the document is laid out with line breaks and tabs. On to begin with.
    bool isFormatted() const { return m_formatted; }
    void setFormatted(bool formatted) { m_formatted = formatted; }

protected:
    XmlOutputCallback() = default;
    XmlOutputCallback(const XmlOutputCallback&) = default;
    XmlOutputCallback& operator=(const XmlOutputCallback&) = default;

private:
    bool m_formatted = true;
};

/// Appends to a buffer, which must outlive it.
class XmlOutputBufferCallback final : public XmlOutputCallback {
public:
    explicit XmlOutputBufferCallback(ByteBuffer* target) : m_target(target) {}
    bool handleOutput(const char* bytes, std::size_t length) override;

private:
    ByteBuffer* m_target;
};

/// Hands each piece to a stream, which must outlive it, as one write.
class XmlOutputStreamCallback final : public XmlOutputCallback {
public:
    explicit XmlOutputStreamCallback(Stream* target) : m_target(target) {}
    bool handleOutput(const char* bytes, std::size_t length) override;

private:
    Stream* m_target;
};

} // namespace zent
