#pragma once

#include <memory>

#include "ocore/AnlXlate/AnlToStreamTranslator.h"
#include "ocore/AnlXlate/AnlTranslator.h"

namespace zent {

class TarvoXmlDataStream;
class TarvoXmlFile;

/// What the translators of all XML forms share. A form says how its streams are made, and may
/// change a list on its way out or in.
class AnlTranslatorForXml : public AnlTranslator, public AnlToStreamTranslator {
public:
    void anlFromBuffer(const ByteBuffer& source, AttrNodeList* target) override;
    void anlToBuffer(const AttrNodeList& source, ByteBuffer* target) override;
    void anlFromFile(const CXString& fileName, AttrNodeList* target) override;
    void anlToFile(const AttrNodeList& source, const CXString& fileName) override;
    void translate(const AttrNodeList& source, Stream& target) override;

    /// Whether documents are laid out with line breaks and tabs. On to begin with.
    void setFormatted(bool formatted) { m_formatted = formatted; }
    bool isFormatted() const { return m_formatted; }

protected:
    /// May write a changed copy of the source to the target, which is empty; true if that one is to
    /// be written out in place of the source.
    virtual bool prepareForOutput(const AttrNodeList& source, AttrNodeList* target);
    /// Works on a list that was just read. Not called if the reading failed.
    virtual void finishAfterInput(AttrNodeList* list);
    virtual std::unique_ptr<TarvoXmlFile> createFileStream(const CXString& fileName) = 0;
    virtual std::unique_ptr<TarvoXmlDataStream> createDataStream() = 0;

private:
    bool m_formatted = true;
};

} // namespace zent
